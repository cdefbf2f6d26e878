#include "Support/Sharing/ActivityViewController.h"

#include "Interface/AlertController.h"
#include "Ports/LocalizedTexts.h"

namespace tessivo {
namespace {

void showAlert(ui::ViewController& screen, ui::WindowContext& window, const LocalizedTexts& texts,
               const char* title, const std::string& message) {
    ui::ViewController* top = &screen;
    while (auto* above = top->presentedViewController())
        top = above;
    auto alert = std::make_shared<ui::AlertController>(
        window, ui::AlertStyle::Alert, texts.localizedString(title), texts.localizedString(message));
    alert->addAction({texts.localizedString("OK"), ui::AlertActionStyle::Cancel, {}});
    top->present(std::move(alert));
}

} // namespace

ActivityViewController::ActivityViewController(ui::WindowContext& window, const LocalizedTexts& texts)
    : ui::ViewController(window), texts_(texts) {
    modalPresentationStyle = ui::PresentationStyle::ActionSheet;
    view().setAccessibilityName(texts.localizedString("Share"));
    preview.setContentMode(ui::ContentMode::AspectFit);
    for (ui::View* view : std::initializer_list<ui::View*>{&preview, &textPreview, &saveButton, &copyButton,
                                                           &openButton, &mailButton, &messageButton})
        view->setHidden(true);
    cancelButton.setTitle(texts.localizedString("Cancel"));
    cancelButton.setTitleColor(ui::ColorRef::named("button"));
    cancelButton.addTarget(ui::PressEvent::UpInside, [this] { dismiss(); });
}

ActivityViewController::ActivityViewController(ui::WindowContext& window, const LocalizedTexts& texts,
                                               PictureSharing& sharing, std::shared_ptr<const Bitmap> picture)
    : ActivityViewController(window, texts) {
    preview.setImage({"", picture});
    preview.setAccessibilityName(texts.localizedString("The picture to share"));
    preview.setHidden(false);
    offer(saveButton, "Save", "shareSave", [&sharing, picture](Tell tell) {
        sharing.save(picture, [tell = std::move(tell)](const Result<std::string>& path) {
            if (path)
                tell("The Picture Was Saved", path.value());
            else
                tell("The Picture Was Not Saved", path.error().description);
        });
    });
    const auto handOver = [&sharing, picture](auto act) {
        return
            [&sharing, picture, act](PictureSharing::Done done) { (sharing.*act)(picture, std::move(done)); };
    };
    offer(copyButton, "Copy", "shareCopy", handOver(&PictureSharing::copy), "The Picture Was Not Copied");
    offer(openButton, "Open", "shareOpen", handOver(&PictureSharing::open), "The Picture Was Not Opened");
    offer(mailButton, "Mail", "shareMail", handOver(&PictureSharing::mail), "The Picture Was Not Sent");
}

ActivityViewController::ActivityViewController(ui::WindowContext& window, const LocalizedTexts& texts,
                                               TextSharing& sharing, std::string text)
    : ActivityViewController(window, texts) {
    textPreview.setText(text);
    textPreview.setHidden(false);
    const auto handOver = [&sharing, text = std::move(text)](auto act) {
        return [&sharing, text, act](TextSharing::Done done) { (sharing.*act)(text, std::move(done)); };
    };
    offer(copyButton, "Copy", "shareCopy", handOver(&TextSharing::copy), "The Text Was Not Copied");
    offer(mailButton, "Mail", "shareMail", handOver(&TextSharing::mail), "The Text Was Not Sent");
    if (sharing.canMessage())
        offer(messageButton, "Message", "shareMessage", handOver(&TextSharing::message),
              "The Text Was Not Sent");
}

void ActivityViewController::offer(ui::Button& button, const char* title, const char* image,
                                   std::function<void(Tell)> act) {
    button.setTitle(texts_.localizedString(title));
    button.setImageName(image);
    button.setHidden(false);
    button.addTarget(ui::PressEvent::UpInside, [this, act = std::move(act)] {
        ui::ViewController* below = presentingViewController();
        if (!below)
            return; // a second press on a sheet that is on its way out
        act(tellOver(*below));
        dismiss();
    });
}

void ActivityViewController::offer(ui::Button& button, const char* title, const char* image, HandOver act,
                                   const char* failure) {
    offer(button, title, image, [act = std::move(act), failure](Tell tell) {
        act([tell = std::move(tell), failure](const Outcome& outcome) {
            if (outcome)
                tell(failure, outcome->description);
        });
    });
}

ActivityViewController::Tell ActivityViewController::tellOver(ui::ViewController& screen) {
    return [weak = screen.weak_from_this(), &window = window(), &texts = texts_](const char* title,
                                                                                 const std::string& message) {
        if (const auto standing = weak.lock())
            showAlert(*standing, window, texts, title, texts.localizedString(message));
    };
}

} // namespace tessivo
