#include "qtnetwork/Exchange.h"

#include "Ports/Url.h"
#include "qtnetwork/UrlError.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>

#include <algorithm>
#include <array>
#include <utility>

namespace tessivo {
namespace {

constexpr int maximumRedirects = 16;

std::chrono::milliseconds milliseconds(Seconds span) {
    return std::chrono::ceil<std::chrono::milliseconds>(span);
}

bool isRedirect(int status) {
    constexpr std::array redirects{301, 302, 303, 307, 308};
    return std::ranges::find(redirects, status) != redirects.end();
}

int portOf(const QUrl& url) {
    return url.port(url.scheme() == "https" ? 443 : 80);
}

bool isSameService(const QUrl& one, const QUrl& other) {
    return one.scheme() == other.scheme() && one.host() == other.host() && portOf(one) == portOf(other);
}

bool isAuthorization(const std::string& header) {
    return QByteArray::fromStdString(header).compare("authorization", Qt::CaseInsensitive) == 0;
}

std::optional<int> statusOf(const QNetworkReply& reply) {
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    return status.isValid() ? std::optional(status.toInt()) : std::nullopt;
}

HttpHeaders headersOf(const QNetworkReply& reply) {
    HttpHeaders headers;
    for (const auto& [name, value] : reply.rawHeaderPairs())
        headers.insert_or_assign(name.toLower().toStdString(), value.toStdString());
    return headers;
}

} // namespace

Exchange::Exchange(QNetworkAccessManager& manager, FileReader& files, HttpRequest request,
                   HttpClient::Completion completion)
    : QObject(&manager), // an exchange that is still out goes with the client
      manager_(manager),
      files_(files),
      request_(std::move(request)),
      origin_(QUrl(QString::fromStdString(request_.url), QUrl::StrictMode)),
      completion_(std::move(completion)) {
    // QtNetwork's own time-out is measured from byte to byte and looks like a cancel afterwards.
    for (QTimer* timer : {&deadline_, &silence_}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, [this] { stop(UrlErrorTimedOut, "The request timed out."); });
    }
}

void Exchange::start() {
    const auto url = Url::parse(request_.url);
    if (!url || !origin_.isValid() || origin_.isRelative())
        return end(urlError(UrlErrorBadUrl, "The address is malformed."));
    const auto path = url->filePath();
    if (request_.kind == AddressKind::File ? !path : !url->isWeb())
        return end(urlError(UrlErrorUnsupportedUrl, "An address of this kind is not fetched."));
    deadline_.start(milliseconds(request_.deadline));
    if (path)
        readFile(*path);
    else
        send(origin_);
}

void Exchange::readFile(const std::string& path) {
    silence_.start(milliseconds(request_.timeout));
    files_.read(path, request_.maximumBody, this,
                [this](Result<HttpResponse> answer) { end(std::move(answer)); });
}

void Exchange::send(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    if (request_.reload)
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    for (const auto& [name, value] : request_.headers) {
        if (!isAuthorization(name) || isSameService(url, origin_))
            request.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    }
    body_.clear();
    // Servers know methods in capitals; "Get" would be another one to them.
    const QByteArray method = QByteArray::fromStdString(request_.method).toUpper();
    reply_ = method == "GET"
                 ? manager_.get(request)
                 : manager_.sendCustomRequest(request, method, QByteArray::fromStdString(request_.body));
    reply_->setParent(this);
    silence_.start(milliseconds(request_.timeout));
    connect(reply_, &QNetworkReply::metaDataChanged, this, &Exchange::answering);
    connect(reply_, &QNetworkReply::readyRead, this, &Exchange::received);
    connect(reply_, &QNetworkReply::finished, this, &Exchange::finished);
}

void Exchange::answering() {
    silence_.start();
    if (reply_->header(QNetworkRequest::ContentLengthHeader).toULongLong() > request_.maximumBody)
        stop(UrlErrorTooLarge, "The answer is too large.");
}

void Exchange::received() {
    silence_.start();
    const QByteArray bytes = reply_->readAll();
    if (body_.size() + static_cast<std::size_t>(bytes.size()) > request_.maximumBody)
        return stop(UrlErrorTooLarge, "The answer is too large.");
    body_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

void Exchange::finished() {
    if (reply_->bytesAvailable() > 0)
        received();
    if (!completion_)
        return;
    if (const auto error = urlErrorOf(*reply_))
        return end(*error);
    const auto status = statusOf(*reply_);
    const QUrl target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (status && isRedirect(*status) && !target.isEmpty())
        return follow(reply_->url().resolved(target));
    end(HttpResponse{status, headersOf(*reply_), std::move(body_)});
}

void Exchange::follow(const QUrl& url) {
    if (++redirects_ > maximumRedirects)
        return end(urlError(UrlErrorTooManyRedirects, "The server redirects without end."));
    const bool isOpen = url.scheme() == "http";
    if (!isOpen && url.scheme() != "https")
        return end(urlError(UrlErrorUnsupportedUrl, "The server redirects to what is no web address."));
    if (isOpen && reply_->url().scheme() == "https")
        return end(urlError(UrlErrorSecureConnectionFailed, "The server redirects to an open address."));
    std::exchange(reply_, nullptr)->deleteLater();
    send(url);
}

void Exchange::cancel() {
    stop(UrlErrorCancelled, "cancelled");
}

void Exchange::stop(UrlErrorCode code, const char* description) {
    end(urlError(code, description));
}

void Exchange::end(Result<HttpResponse> result) {
    const auto completion = std::exchange(completion_, nullptr);
    if (!completion)
        return;
    deadline_.stop();
    silence_.stop();
    if (reply_) {
        reply_->disconnect(this);
        reply_->abort();
    }
    deleteLater();
    completion(std::move(result));
}

} // namespace tessivo
