#pragma once

#include "Ports/HttpClient.h"
#include "qtnetwork/FileReader.h"

#include <QNetworkReply>
#include <QObject>
#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;

namespace tessivo {

/// One exchange on the client's thread, from the request over its redirects to the one call of its
/// completion. Deletes itself afterwards.
class Exchange final : public QObject {
public:
    Exchange(QNetworkAccessManager& manager, FileReader& files, HttpRequest request,
             HttpClient::Completion completion);

    void start();
    void cancel();

private:
    void readFile(const std::string& path);
    void send(const QUrl& url);
    void answering();
    void received();
    void finished();
    void follow(const QUrl& url);
    /// Ends the exchange with an error of our own.
    void stop(UrlErrorCode code, const char* description);
    void end(Result<HttpResponse> result);

    QNetworkAccessManager& manager_;
    FileReader& files_;
    const HttpRequest request_;
    const QUrl origin_;
    HttpClient::Completion completion_;
    QTimer deadline_;
    QTimer silence_;
    QNetworkReply* reply_ = nullptr;
    std::string body_;
    int redirects_ = 0;
};

} // namespace tessivo
