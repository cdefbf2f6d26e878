#pragma once

#include "Ports/Error.h"
#include "Ports/Url.h"

#include <functional>
#include <optional>
#include <string_view>

namespace tessivo {

/// The user's own pictures, behind whatever the desktop lets people choose a file with. Main thread.
class PhotoLibrary {
public:
    /// The address of the chosen picture's file; empty if the user has changed their mind.
    using Choice = Result<std::optional<Url>>;
    using Chosen = std::function<void(Choice)>;

    virtual ~PhotoLibrary() = default;

    /// Lets the user choose one picture. `chosen` is called once, on the main thread in a later turn of its
    /// loop; with an error, whose description is a sentence for the user, where the desktop has no way to
    /// choose a file. A later call takes the place of one that is still open, and a choice still open when
    /// this object goes is dropped: neither is ever answered.
    virtual void choosePhoto(Chosen chosen) = 0;

    /// Writes `data` as a new file of the library's own and gives its address. The file stays when the photo
    /// that it was made from goes. An error's description is a sentence for the user.
    [[nodiscard]] virtual Result<Url> keep(std::string_view data) = 0;
};

} // namespace tessivo
