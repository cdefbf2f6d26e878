#pragma once

#include "Ports/HttpClient.h"

class QNetworkAccessManager;
class QObject;
class QThread;

namespace tessivo {

/// HTTP and local files on QtNetwork, with a thread of its own: completions are called there, so that
/// pictures can be decoded without holding up the main thread. Lives within the life of a QCoreApplication.
class QtHttpClient final : public HttpClient {
public:
    QtHttpClient();
    /// Ends all exchanges without their completions; waits for a completion that is running.
    ~QtHttpClient() override;
    QtHttpClient(const QtHttpClient&) = delete;
    QtHttpClient& operator=(const QtHttpClient&) = delete;

    std::shared_ptr<HttpTask> start(HttpRequest request, Completion completion) override;

private:
    std::unique_ptr<QThread> thread_;
    std::shared_ptr<QObject> context_;         ///< stands on the thread; what is posted to it runs there
    QNetworkAccessManager* manager_ = nullptr; ///< made, used and deleted on the thread
};

} // namespace tessivo
