#pragma once

#include "Ports/Error.h"

#include <functional>
#include <string>

namespace tessivo {

/// Ways to give a text to the rest of the machine. Main thread.
///
/// Each operation answers once, in a later turn of the main loop: with nothing when the text has been handed
/// over, otherwise with an error whose description is a sentence for the user.
class TextSharing {
public:
    using Done = std::function<void(Outcome)>;

    virtual ~TextSharing() = default;

    /// Puts it on the clipboard in place of what was there.
    virtual void copy(const std::string& text, Done done) = 0;
    /// Begins a mail with it.
    virtual void mail(const std::string& text, Done done) = 0;
    /// Whether a messenger would take it.
    [[nodiscard]] virtual bool canMessage() const = 0;
    /// Begins a message with it.
    virtual void message(const std::string& text, Done done) = 0;
};

} // namespace tessivo
