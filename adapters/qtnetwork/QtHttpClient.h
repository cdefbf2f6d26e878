#pragma once

#include "Ports/HttpClient.h"

#include <atomic>

class QNetworkAccessManager;
class QObject;
class QThread;

namespace tessivo {

class FileReader;

/// HTTP on QtNetwork and plain local files, with a thread of its own on which completions are called. Lives
/// within the life of a QCoreApplication.
class QtHttpClient final : public HttpClient {
public:
    QtHttpClient();
    /// Ends all exchanges without their completions; waits for a completion that is running.
    ~QtHttpClient() override;
    QtHttpClient(const QtHttpClient&) = delete;
    QtHttpClient& operator=(const QtHttpClient&) = delete;

    std::shared_ptr<HttpTask> start(HttpRequest request, Completion completion) override;

    /// Whether the completions of all exchanges that were started have been called; safe from any thread.
    [[nodiscard]] bool isIdle() const { return underWay_ == 0; }
    /// Waits until then. Not for the client's own thread.
    void waitUntilIdle() const;

private:
    std::atomic<int> underWay_ = 0;
    std::unique_ptr<QThread> thread_;
    std::shared_ptr<QObject> context_; ///< stands on the thread; what is posted to it runs there
    // Made, used and deleted on the thread.
    QNetworkAccessManager* manager_ = nullptr;
    std::unique_ptr<FileReader> files_;
};

} // namespace tessivo
