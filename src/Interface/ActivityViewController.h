#pragma once

#include "Interface/Button.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Interface/ViewController.h"
#include "Ports/PictureSharing.h"
#include "Ports/TextSharing.h"

#include <functional>
#include <string>

namespace tessivo {
class LocalizedTexts;
}

namespace tessivo::ui {

/// The share sheet: one picture or one text, and what can be done with it. What cannot be done with it is
/// hidden. An act hands it over and takes the sheet away. Where it fails, and where a picture was saved to,
/// an alert says on the screen that is on top by then.
class ActivityViewController final : public ViewController {
public:
    /// `texts` and `sharing` outlive the sheet and what it has handed over.
    ActivityViewController(WindowContext& window, const LocalizedTexts& texts, PictureSharing& sharing,
                           std::shared_ptr<const Bitmap> picture);
    ActivityViewController(WindowContext& window, const LocalizedTexts& texts, TextSharing& sharing,
                           std::string text);

    [[nodiscard]] std::string screenName() const override { return "ActivityViewController"; }

    ImageView preview{controls, "preview"};
    Label textPreview{controls, "textPreview"};
    Button saveButton{controls, "saveButton"};
    Button copyButton{controls, "copyButton"};
    Button openButton{controls, "openButton"};
    Button mailButton{controls, "mailButton"};
    Button messageButton{controls, "messageButton"};
    Button cancelButton{controls, "cancelButton"};

private:
    /// Says something to the user later, on the screen that is on top by then.
    using Tell = std::function<void(const char* title, const std::string& message)>;
    using HandOver = std::function<void(std::function<void(Outcome)>)>;

    ActivityViewController(WindowContext& window, const LocalizedTexts& texts);
    void offer(Button& button, const char* title, const char* image, std::function<void(Tell)> act);
    void offer(Button& button, const char* title, const char* image, HandOver act, const char* failure);
    [[nodiscard]] Tell tellOver(ViewController& screen);

    const LocalizedTexts& texts_;
};

} // namespace tessivo::ui
