#pragma once

#include "Ports/HttpClient.h"

#include <QNetworkReply>

namespace tessivo {

/// What stopped `reply`, in the program's terms; empty where it ended with an answer of the server, whatever
/// its status.
[[nodiscard]] Outcome urlErrorOf(const QNetworkReply& reply);

[[nodiscard]] Error urlError(UrlErrorCode code, std::string description);

} // namespace tessivo
