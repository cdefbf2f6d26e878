#pragma once

#include "Ports/Bitmap.h"
#include "Ports/Error.h"

#include <functional>
#include <memory>
#include <string>

namespace tessivo {

/// Ways to give a picture to the rest of the machine. Main thread.
///
/// Each operation keeps the picture for as long as it needs it, and answers once, on the main thread in
/// a later turn of its loop: with nothing when the picture has been handed over (or the user has changed
/// their mind in the desktop's own dialog), otherwise with an error whose description is a sentence for the
/// user. An operation still under way when this object goes is never answered.
class PictureSharing {
public:
    using Done = std::function<void(Outcome)>;
    using Saved = std::function<void(Result<std::string> path)>;

    virtual ~PictureSharing() = default;

    /// Saves it as a new file in the user's Pictures folder and returns the path. Never overwrites.
    virtual void save(std::shared_ptr<const Bitmap> picture, Saved saved) = 0;
    /// Puts it on the clipboard in place of what was there.
    virtual void copy(std::shared_ptr<const Bitmap> picture, Done done) = 0;
    /// Opens it with another program.
    virtual void open(std::shared_ptr<const Bitmap> picture, Done done) = 0;
    /// Begins a mail with it attached.
    virtual void mail(std::shared_ptr<const Bitmap> picture, Done done) = 0;
};

} // namespace tessivo
