#pragma once

#include "Ports/Error.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace tessivo::desktop {

/// The desktop's own command-line tools. Main thread of a running Qt application.
class DesktopPrograms final {
public:
    using Done = std::function<void(Outcome)>;

    /// Starts a program and hears whether it did what it was asked. An error has `failed` as its description,
    /// or says that there is no such program. Never answers when this object goes first.
    void run(const QString& program, const QStringList& arguments, const char* failed, Done done);

    /// Whether some program opens addresses of that scheme, such as "mailto". Waits for the answer, some
    /// milliseconds.
    [[nodiscard]] static bool handles(const QString& scheme);

private:
    QObject running_; ///< owns those that run
};

} // namespace tessivo::desktop
