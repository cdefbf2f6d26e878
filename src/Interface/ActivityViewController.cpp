#include "Interface/ActivityViewController.h"

#include "Interface/AlertController.h"

namespace tessivo::ui {
namespace {

void showAlert(ViewController& screen, WindowContext& window, const char* title, const std::string& message) {
    ViewController* top = &screen;
    while (auto* above = top->presentedViewController())
        top = above;
    auto alert = std::make_shared<AlertController>(window, AlertStyle::Alert, title, message);
    alert->addAction({"OK", AlertActionStyle::Cancel, {}});
    top->present(std::move(alert));
}

} // namespace

ActivityViewController::ActivityViewController(WindowContext& window, PictureSharing& sharing,
                                               std::shared_ptr<const Bitmap> picture)
    : ViewController(window), sharing_(sharing), picture_(std::move(picture)) {
    modalPresentationStyle = PresentationStyle::ActionSheet;
    view().setAccessibilityName("Share");
    preview.setImage({"", picture_});
    preview.setContentMode(ContentMode::AspectFit);
    preview.setAccessibilityName("The picture to share");
    offerSaving();
    offer(copyButton, "Copy", "shareCopy", &PictureSharing::copy, "The Picture Was Not Copied");
    offer(openButton, "Open", "shareOpen", &PictureSharing::open, "The Picture Was Not Opened");
    offer(mailButton, "Mail", "shareMail", &PictureSharing::mail, "The Picture Was Not Sent");
    cancelButton.setTitle("Cancel");
    cancelButton.setTitleColor(ColorRef::named("button"));
    cancelButton.addTarget(PressEvent::UpInside, [this] { dismiss(); });
}

void ActivityViewController::offer(Button& button, const char* title, const char* image,
                                   std::function<void(Tell)> act) {
    button.setTitle(title);
    button.setImageName(image);
    button.addTarget(PressEvent::UpInside, [this, act = std::move(act)] {
        ViewController* below = presentingViewController();
        if (!below)
            return; // a second press on a sheet that is on its way out
        act(tellOver(*below));
        dismiss();
    });
}

void ActivityViewController::offer(Button& button, const char* title, const char* image, HandOver act,
                                   const char* failure) {
    offer(button, title, image, [this, act, failure](Tell tell) {
        (sharing_.*act)(picture_, [tell = std::move(tell), failure](const Outcome& outcome) {
            if (outcome)
                tell(failure, outcome->description);
        });
    });
}

void ActivityViewController::offerSaving() {
    offer(saveButton, "Save", "shareSave", [this](Tell tell) {
        sharing_.save(picture_, [tell = std::move(tell)](const Result<std::string>& path) {
            if (path)
                tell("The Picture Was Saved", path.value());
            else
                tell("The Picture Was Not Saved", path.error().description);
        });
    });
}

ActivityViewController::Tell ActivityViewController::tellOver(ViewController& screen) {
    return
        [weak = screen.weak_from_this(), &window = window()](const char* title, const std::string& message) {
            if (const auto standing = weak.lock())
                showAlert(*standing, window, title, message);
        };
}

} // namespace tessivo::ui
