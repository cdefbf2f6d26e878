#include "qtnetwork/UrlError.h"

#include <QNetworkInterface>

namespace tessivo {
namespace {

/// Whether any interface but the loopback has an address: without one, no name can be looked up.
bool hasNetwork() {
    for (const auto& interface : QNetworkInterface::allInterfaces()) {
        const auto flags = interface.flags();
        if (flags.testFlag(QNetworkInterface::IsRunning) && !flags.testFlag(QNetworkInterface::IsLoopBack) &&
            !interface.addressEntries().isEmpty())
            return true;
    }
    return false;
}

UrlErrorCode codeOf(QNetworkReply::NetworkError error) {
    switch (error) {
    case QNetworkReply::ConnectionRefusedError:
        return UrlErrorCannotConnectToHost;
    case QNetworkReply::RemoteHostClosedError:
        return UrlErrorNetworkConnectionLost;
    case QNetworkReply::HostNotFoundError:
        return hasNetwork() ? UrlErrorCannotFindHost : UrlErrorNotConnectedToInternet;
    case QNetworkReply::TimeoutError:
        return UrlErrorTimedOut;
    case QNetworkReply::OperationCanceledError:
        return UrlErrorCancelled;
    case QNetworkReply::SslHandshakeFailedError:
        return UrlErrorSecureConnectionFailed;
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
        return UrlErrorNotConnectedToInternet;
    case QNetworkReply::ProtocolUnknownError:
        return UrlErrorUnsupportedUrl;
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::ContentAccessDenied:
        return UrlErrorFileDoesNotExist;
    default:
        return hasNetwork() ? UrlErrorUnknown : UrlErrorNotConnectedToInternet;
    }
}

} // namespace

Error urlError(UrlErrorCode code, std::string description) {
    return {std::string(urlErrorDomain), code, std::move(description)};
}

Outcome urlErrorOf(const QNetworkReply& reply) {
    if (reply.error() == QNetworkReply::NoError)
        return std::nullopt;
    // A refusal is an answer all the same. An error beside any other status is one of reading the answer: the
    // connection broke, or the body cannot be unpacked.
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isAboutTheStatus = reply.error() >= QNetworkReply::ContentAccessDenied;
    if (status >= 400 && isAboutTheStatus && reply.error() != QNetworkReply::ProtocolFailure)
        return std::nullopt;
    return urlError(codeOf(reply.error()), reply.errorString().toStdString());
}

} // namespace tessivo
