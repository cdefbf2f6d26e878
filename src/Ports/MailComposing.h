#pragma once

#include "Ports/Error.h"

#include <functional>
#include <optional>
#include <string>

namespace tessivo {

struct MailAttachment {
    std::string address; ///< of a local file
    std::string mimeType;
    std::string fileName; ///< under which the reader sees it
};

struct MailMessage {
    std::string recipient;
    std::string subject;
    std::string htmlBody;
    std::optional<MailAttachment> attachment{};
};

/// The machine's mail program. Main thread.
class MailComposing {
public:
    virtual ~MailComposing() = default;

    using Finished = std::function<void(Outcome)>;

    /// Whether there is a mail program that would take a message.
    [[nodiscard]] virtual bool canSendMail() const = 0;

    /// Opens the user's mail program with `message`, for the user to read, change and send. `finished` is
    /// called once, in a later turn of the main loop: with nothing once the program has taken the message,
    /// otherwise with an error whose description is a sentence for the user. Never called when this object
    /// goes first.
    virtual void compose(const MailMessage& message, Finished finished) = 0;
};

} // namespace tessivo
