#pragma once

#include "Ports/Error.h"

#include <functional>
#include <optional>
#include <string>

namespace tessivo {

/// The user's own pictures, behind whatever the desktop lets people choose a file with. Main thread.
class PhotoLibrary {
public:
    /// The address of the chosen picture's file; empty where the user has changed their mind.
    using Choice = Result<std::optional<std::string>>;
    using Chosen = std::function<void(Choice)>;

    virtual ~PhotoLibrary() = default;

    /// Lets the user choose one picture. `chosen` is called once, on the main thread in a later turn of its
    /// loop; with an error, whose description is a sentence for the user, where the desktop has no way to
    /// choose a file. A later call takes the place of one that is still open, and a choice still open when
    /// this object goes is dropped: neither is ever answered.
    virtual void choosePhoto(Chosen chosen) = 0;
};

} // namespace tessivo
