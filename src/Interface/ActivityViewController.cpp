#include "Interface/ActivityViewController.h"

#include "Interface/AlertController.h"

namespace tessivo::ui {
namespace {

void tell(ViewController& screen, WindowContext& window, const char* failure, const Error& error) {
    ViewController* top = &screen;
    while (auto* above = top->presentedViewController())
        top = above;
    auto alert = std::make_shared<AlertController>(window, AlertStyle::Alert, failure, error.description);
    alert->addAction({"OK", AlertActionStyle::Cancel, {}});
    top->present(std::move(alert));
}

} // namespace

ActivityViewController::ActivityViewController(WindowContext& window, PictureSharing& sharing,
                                               std::shared_ptr<const Bitmap> picture)
    : ViewController(window), sharing_(sharing), picture_(std::move(picture)) {
    modalPresentationStyle = PresentationStyle::ActionSheet;
    preview.setImage({"", picture_});
    preview.setContentMode(ContentMode::AspectFit);
    preview.setAccessibilityName("The picture to share");
    offer(saveButton, "Save", "shareSave", &PictureSharing::save, "The Picture Was Not Saved");
    offer(copyButton, "Copy", "shareCopy", &PictureSharing::copy, "The Picture Was Not Copied");
    offer(openButton, "Open", "shareOpen", &PictureSharing::open, "The Picture Was Not Opened");
    offer(mailButton, "Mail", "shareMail", &PictureSharing::mail, "The Picture Was Not Sent");
    cancelButton.setTitle("Cancel");
    cancelButton.setTitleColor(ColorRef::named("button"));
    cancelButton.addTarget(PressEvent::UpInside, [this] { dismiss(); });
}

void ActivityViewController::offer(Button& button, const char* title, const char* image, Act act,
                                   const char* failure) {
    button.setTitle(title);
    button.setImageName(image);
    button.addTarget(PressEvent::UpInside, [this, act, failure] { perform(act, failure); });
}

void ActivityViewController::perform(Act act, const char* failure) {
    ViewController* below = presentingViewController();
    if (!below)
        return; // a second press on a sheet that is on its way out
    auto tellFailure = [presenter = below->weak_from_this(), &window = window(), failure](Outcome outcome) {
        const auto screen = presenter.lock();
        if (outcome && screen)
            tell(*screen, window, failure, *outcome);
    };
    (sharing_.*act)(picture_, std::move(tellFailure));
    dismiss();
}

} // namespace tessivo::ui
