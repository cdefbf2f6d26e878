#pragma once

#include "Ports/Error.h"
#include "Ports/Subscription.h"

#include <functional>
#include <string>

namespace tessivo {

/// What the user gets to see: plain text, no markup.
struct Notice {
    std::string title;
    std::string body;
    bool sound = true;

    friend bool operator==(const Notice&, const Notice&) = default;
};

/// The desktop's notifications. Main thread; nothing calls back inline.
class NotificationDisplay {
public:
    /// Events that a display sends on its own.
    struct Events {
        /// A desktop that can show notices has come up, for the first time or again.
        std::function<void()> available;

        /// The user opened the notification `token`. `activation` is the desktop's permission to bring a
        /// window to the front; empty where it gives none.
        std::function<void(const std::string& token, const std::string& activation)> opened;
    };

    virtual ~NotificationDisplay() = default;

    /// At most one listener at a time.
    [[nodiscard]] virtual Subscription listen(Events events) = 0;

    /// Shows `notice` and answers with a token that names what is shown, among all that any process on this
    /// machine ever showed. There is no time limit: the answer comes when the desktop has spoken or has gone
    /// away. An error means that the notice is not on the screen.
    virtual void show(const Notice& notice, std::function<void(const Result<std::string>& token)> answer) = 0;
};

} // namespace tessivo
