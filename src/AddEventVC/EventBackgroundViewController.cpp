#include "AddEventVC/EventBackgroundViewController.h"

#include "AddEventVC/BackgrounCell.h"
#include "AddEventVC/UnsplashKeys.h"
#include "Event/CoreDataStack.h"
#include "Event/CounterText.h"
#include "Event/EventDate.h"
#include "Event/ReminderScheduler.h"
#include "Extension/EventCardText.h"
#include "Ports/Clock.h"
#include "Ports/Console.h"
#include "Ports/DocumentFiles.h"
#include "Ports/HttpClient.h"
#include "Ports/ImageCoding.h"
#include "Ports/MainQueue.h"
#include "Ports/Uuid.h"
#include "Support/EventImages.h"
#include "Support/LocalizationVariables.h"
#include "Support/ScreenFactory.h"
#include "UnsplashPicker/PickerServices.h"

namespace tessivo {
namespace {

constexpr auto reuseIdentifier = "BackgrounCell";
constexpr double swatchSpacing = 16;

std::unique_ptr<ui::LineLayout> stripLayout() {
    return std::make_unique<ui::LineLayout>(ui::LineLayout::Axis::Horizontal, swatchSpacing, swatchSpacing);
}

} // namespace

EventBackgroundViewController::EventBackgroundViewController(SharedServices& services)
    : WizardScreen(services),
      currentDate(services.platform().clock.now()),
      eventView(controls, "eventView", services.platform().colors, services.platform().console),
      colorCollection(controls, "colorCollection", stripLayout()),
      gradientCollection(controls, "gradientCollection", stripLayout()) {}

void EventBackgroundViewController::viewDidLoad() {
    dateFormatter = platform().dateFormatters.make(dateFormat);
    eventFormatter = platform().dateFormatters.make(fullFormat);
    buildFrame("Background", "steps4", texts().done);
    nextButton.addTarget(ui::PressEvent::UpInside, [this] { doneButtonTapped(); });
    buildRow(photosButton, "Photo Library");
    photosButton.addTarget(ui::PressEvent::UpInside, [this] { photosButtonTapped(); });
    buildRow(imagesButton, "Image by Unsplash");
    imagesButton.addTarget(ui::PressEvent::UpInside, [this] { imagesButtonTapped(); });
    for (ui::View* row : std::initializer_list<ui::View*>{
             &previewLabel, &eventView, &photosLabel, &photosButton, &imagesLabel, &imagesButton,
             &colorsLabel, &colorCollection, &gradientsLabel, &gradientCollection})
        view().addSubview(*row);
    // Confirming at once must give a whole event, so a background is chosen from the start.
    if (!eventData)
        eventData.emplace();
    eventData->gradient = static_cast<std::int16_t>(defaultGradientRow);
    eventData->color = NO_VALUE;
    selectedGradientIndexPath = static_cast<int>(defaultGradientRow);
    buildStrip(colorCollection);
    buildStrip(gradientCollection);
    showDraft();
}

void EventBackgroundViewController::buildRow(ui::Button& row, std::string title) {
    row.setTitle(std::move(title));
    row.setFont({17, ui::FontWeight::Regular});
    row.setImageName("chevronNext");
    row.setTint(ui::ColorRef::black());
}

void EventBackgroundViewController::buildStrip(ui::CollectionView& strip) {
    strip.registerCell(reuseIdentifier, [] { return std::make_shared<BackgrounCell>(); });
    strip.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    strip.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    strip.setFrame({0, 0, screen().width(), BackgrounCell::side});
    strip.reloadData();
}

void EventBackgroundViewController::showDraft() {
    eventView.eventInformationLabel.setStyledText(
        makeEventCardText(eventData->dateEvent.value_or(""), eventData->title.value_or(""), screen()));
    const auto counter = counterText(eventDay(), currentDate, eventData->timeFormat.value_or(0), unitWords,
                                     platform().console);
    if (counter)
        eventView.timeLabel.setStyledText(makeEventCardText(counter->unit, counter->number, screen()));
}

Instant EventBackgroundViewController::eventDay() const {
    if (const auto date =
            eventDateOf(eventData->dateEvent, eventData->timeEvent, *eventFormatter, *dateFormatter))
        return *date;
    platform().console.stopProgram("The date of the new event does not read.");
}

int EventBackgroundViewController::numberOfItems(ui::CollectionView& collection) {
    return static_cast<int>(&collection == &colorCollection ? sectionsColor.size() : sectionsGradient.size());
}

std::shared_ptr<ui::CollectionViewCell>
EventBackgroundViewController::cellForItem(ui::CollectionView& collection, int item) {
    const auto cell =
        std::static_pointer_cast<BackgrounCell>(collection.dequeueReusableCell(reuseIdentifier));
    const char* kind = &collection == &colorCollection ? "Color " : "Gradient ";
    cell->setAccessibilityName(kind + std::to_string(item + 1));
    if (&collection == &colorCollection) {
        cell->showColor(colorItemAt(item, platform().console));
        cell->setMarked(selectedColorIndexPath == item);
    } else {
        cell->showGradient(gradientItemAt(item, platform().console), platform().colors, platform().console);
        cell->setMarked(selectedGradientIndexPath == item);
    }
    return cell;
}

ui::Size EventBackgroundViewController::sizeForItem(ui::CollectionView&, int) {
    return {BackgrounCell::side, BackgrounCell::side};
}

void EventBackgroundViewController::didSelectItem(ui::CollectionView& collection, int item) {
    if (&collection == &colorCollection)
        chooseColor(item);
    else
        chooseGradient(item);
}

ui::GradientLayer* EventBackgroundViewController::previewGradient() const {
    return eventView.sublayers().empty() ? nullptr : eventView.sublayers().front().get();
}

void EventBackgroundViewController::chooseColor(int row) {
    eventView.photoView.setImage({});
    if (auto* gradient = previewGradient())
        gradient->setHidden(true);
    eventView.setBackgroundColor(ui::ColorRef::named(colorItemAt(row, platform().console).color));
    eventData->photoPath.reset();
    eventData->gradient = NO_VALUE;
    eventData->color = static_cast<std::int16_t>(row);
    eventData->unsplashPath.reset();
    selectedColorIndexPath = row;
    selectedGradientIndexPath.reset();
    reloadStrips();
}

void EventBackgroundViewController::chooseGradient(int row) {
    eventView.photoView.setImage({});
    if (auto* gradient = previewGradient()) {
        gradient->setHidden(false);
        applyGradientItem(*gradient, gradientItemAt(row, platform().console), platform().colors,
                          platform().console);
        eventView.layerChanged();
    }
    eventData->photoPath.reset();
    eventData->gradient = static_cast<std::int16_t>(row);
    eventData->color = NO_VALUE;
    eventData->unsplashPath.reset();
    selectedGradientIndexPath = row;
    selectedColorIndexPath.reset();
    reloadStrips();
}

void EventBackgroundViewController::reloadStrips() {
    colorCollection.reloadData();
    gradientCollection.reloadData();
}

void EventBackgroundViewController::photosButtonTapped() {
    const auto picker = std::make_shared<ImagePickerController>(services());
    picker->delegate = weakSelf<ImagePickerControllerDelegate>(this);
    present(picker);
}

void EventBackgroundViewController::imagePickerControllerDidFinishPickingMedia(ImagePickerController& picker,
                                                                               const PickedMedia& info) {
    if (!info.editedImage)
        platform().console.stopProgram("The photo library gave no edited picture.");
    const bool hasAddress = info.imageURL && Url::parse(*info.imageURL);
    eventData->photoPath = hasAddress ? info.imageURL : std::nullopt;
    eventData->gradient = NO_VALUE;
    eventData->color = NO_VALUE;
    eventData->unsplashPath.reset();
    eventView.photoView.setContentMode(ui::ContentMode::AspectFill);
    eventView.photoView.setImage(*info.editedImage);
    selectedColorIndexPath.reset();
    selectedGradientIndexPath.reset();
    reloadStrips();
    picker.dismiss();
}

void EventBackgroundViewController::imagesButtonTapped() {
    auto configuration = services().photoPicker().configuration();
    configuration.accessKey = unsplashAccessKey;
    configuration.secretKey = unsplashSecretKey;
    const auto picker = unsplash::UnsplashPicker::make(services().photoPicker(), services().window(),
                                                       std::move(configuration));
    picker->photoPickerDelegate = weakSelf<unsplash::UnsplashPickerDelegate>(this);
    present(picker);
}

void EventBackgroundViewController::photoPickerDidSelect(unsplash::UnsplashPicker&,
                                                         const unsplash::Photos& photos) {
    if (photos.empty())
        return;
    const auto& photo = photos.front();
    const auto regular = photo->urls.find(unsplash::URLKind::regular);
    if (regular == photo->urls.end())
        return;
    // The network's thread must not be the one that lets go of a screen.
    const auto received = [weak = weak_from_this(), platform = platform(), photo,
                           url = regular->second](const Result<HttpResponse>& answer) {
        if (!answer)
            return;
        const ui::Image image{{}, platform.images.decode(answer.value().body, std::nullopt)};
        if (!image.isSet())
            return;
        platform.mainQueue.post([weak, photo, url, image] {
            if (const auto self = std::static_pointer_cast<EventBackgroundViewController>(weak.lock()))
                self->showPreview(*photo, url, image);
        });
    };
    platform().http.start({.url = regular->second.absoluteString()}, received);
}

void EventBackgroundViewController::showPreview(const unsplash::UnsplashPhoto& photo, const Url& url,
                                                ui::Image image) {
    const auto preview = std::make_shared<UnsplahImageView>(services());
    preview->delegate = weakSelf<FullScreenImageDelegate>(this);
    preview->unsplash = std::move(image);
    preview->urlString = url.absoluteString();
    preview->photographer = photo.user.name;
    if (const auto html = photo.user.links.find(unsplash::UserLinkKind::html); html != photo.user.links.end())
        preview->profileURL = html->second;
    show(preview);
}

void EventBackgroundViewController::didCrop(const ui::Image& image,
                                            const std::optional<std::string>& urlString) {
    eventData->photoPath.reset();
    eventData->gradient = NO_VALUE;
    eventData->color = NO_VALUE;
    eventData->unsplashPath = urlString;
    eventView.photoView.setImage(image);
    unsplashPath = urlString;
    unsplashImage = image;
    selectedColorIndexPath.reset();
    selectedGradientIndexPath.reset();
    reloadStrips();
}

void EventBackgroundViewController::doneButtonTapped() {
    const Instant day = eventDay();
    currentDate = platform().clock.now();
    eventData->eventType = !isPast(day, currentDate);
    if (eventData->unsplashPath) {
        services().eventImages().keepUnsplashImage(unsplashImage, *eventData->unsplashPath);
        platform().console.print(platform().documentFiles.fileExists(*eventData->unsplashPath) ? "true"
                                                                                               : "false");
    }
    eventData->id = platform().uuids.random();
    services().coreDataStack().addEvent(*eventData);
    services().reminderScheduler().finishWizard(*eventData);
    show(services().screens().makeTabShell());
}

} // namespace tessivo
