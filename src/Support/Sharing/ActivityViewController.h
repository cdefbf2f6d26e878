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

namespace tessivo {

/// The share sheet: one picture or one text, and what can be done with it. What cannot be done with it is
/// hidden. An act hands it over and takes the sheet away. Where it fails, and where a picture was saved to,
/// an alert says on the screen that is on top by then.
class ActivityViewController final : public ui::ViewController {
public:
    /// `texts` and `sharing` outlive the sheet and what it has handed over.
    ActivityViewController(ui::WindowContext& window, const LocalizedTexts& texts, PictureSharing& sharing,
                           std::shared_ptr<const Bitmap> picture);
    ActivityViewController(ui::WindowContext& window, const LocalizedTexts& texts, TextSharing& sharing,
                           std::string text);

    [[nodiscard]] std::string screenName() const override { return "ActivityViewController"; }

    ui::ImageView preview{controls, "preview"};
    ui::Label textPreview{controls, "textPreview"};
    ui::Button saveButton{controls, "saveButton"};
    ui::Button copyButton{controls, "copyButton"};
    ui::Button openButton{controls, "openButton"};
    ui::Button mailButton{controls, "mailButton"};
    ui::Button messageButton{controls, "messageButton"};
    ui::Button cancelButton{controls, "cancelButton"};

private:
    /// Says something to the user later, on the screen that is on top by then.
    using Tell = std::function<void(const char* title, const std::string& message)>;
    using HandOver = std::function<void(std::function<void(Outcome)>)>;

    ActivityViewController(ui::WindowContext& window, const LocalizedTexts& texts);
    void offer(ui::Button& button, const char* title, const char* image, std::function<void(Tell)> act);
    void offer(ui::Button& button, const char* title, const char* image, HandOver act, const char* failure);
    [[nodiscard]] Tell tellOver(ui::ViewController& screen);

    const LocalizedTexts& texts_;
};

} // namespace tessivo
