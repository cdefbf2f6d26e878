#pragma once

#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/ViewController.h"
#include "Ports/PictureSharing.h"

#include <functional>
#include <string>

namespace tessivo::ui {

/// The share sheet: one picture, and what can be done with it. An act hands the picture over and takes the
/// sheet away. Where it fails, and where a picture was saved to, an alert says on the screen that is on top
/// by then.
class ActivityViewController final : public ViewController {
public:
    /// `sharing` outlives the sheet.
    ActivityViewController(WindowContext& window, PictureSharing& sharing,
                           std::shared_ptr<const Bitmap> picture);

    [[nodiscard]] std::string screenName() const override { return "ActivityViewController"; }

    ImageView preview{controls, "preview"};
    Button saveButton{controls, "saveButton"};
    Button copyButton{controls, "copyButton"};
    Button openButton{controls, "openButton"};
    Button mailButton{controls, "mailButton"};
    Button cancelButton{controls, "cancelButton"};

private:
    /// Says something to the user later, on the screen that is on top by then.
    using Tell = std::function<void(const char* title, const std::string& message)>;
    using HandOver = void (PictureSharing::*)(std::shared_ptr<const Bitmap>, PictureSharing::Done);

    void offer(Button& button, const char* title, const char* image, std::function<void(Tell)> act);
    void offer(Button& button, const char* title, const char* image, HandOver act, const char* failure);
    void offerSaving();
    [[nodiscard]] Tell tellOver(ViewController& screen);

    PictureSharing& sharing_;
    std::shared_ptr<const Bitmap> picture_;
};

} // namespace tessivo::ui
