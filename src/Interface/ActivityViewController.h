#pragma once

#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/ViewController.h"
#include "Ports/PictureSharing.h"

namespace tessivo::ui {

/// The share sheet: one picture, and what can be done with it. An act hands the picture over and takes the
/// sheet away; where it fails, an alert says so on the screen that is on top by then.
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
    using Act = void (PictureSharing::*)(std::shared_ptr<const Bitmap>, PictureSharing::Done);

    void offer(Button& button, const char* title, const char* image, Act act, const char* failure);
    void perform(Act act, const char* failure);

    PictureSharing& sharing_;
    std::shared_ptr<const Bitmap> picture_;
};

} // namespace tessivo::ui
