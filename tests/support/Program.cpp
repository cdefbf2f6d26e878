#include "support/Program.h"

#include "Interface/Animation.h"
#include "Support/StartUp/AppDelegate.h"
#include "Support/StartUp/Screens.h"
#include "fakes/FixedWidthTexts.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "icu/IcuTextCounting.h"
#include "qtimage/QtImageCoding.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"
#include "standard/FolderDocumentFiles.h"
#include "support/Resources.h"
#include "json/JsonLocalizedTexts.h"
#include "json/JsonNamedColors.h"
#include "json/NlohmannJson.h"

namespace tessivo {

struct Program::RealParts {
    explicit RealParts(const std::filesystem::path& folder) : documents(folder / "documents") {}

    IcuCalendar calendar{"en_US", "Europe/Berlin"};
    IcuDateFormatters dateFormatters{"en_US", "Europe/Berlin"};
    IcuTextCounting textCounting;
    fakes::FixedWidthTexts textMeasuring;
    JsonNamedColors colors = JsonNamedColors::fromJson(resource("colors.json")).value();
    JsonLocalizedTexts texts = JsonLocalizedTexts::fromJson(resource("texts/en.json")).value();
    JsonLocalizedTexts photoTexts = JsonLocalizedTexts::fromJson(resource("unsplash-texts/en.json")).value();
    NlohmannJson json;
    QtImageCoding images;
    FolderDocumentFiles documents;
};

struct Program::Run {
    explicit Run(Program& program)
        : animations(program.timeline, program.timeline),
          window{program.screen, animations},
          eventStore(program.folder / "events.sqlite"),
          settings(program.folder / "settings.sqlite", program.console),
          services({.console = program.console,
                    .clock = program.timeline,
                    .timers = program.timeline,
                    .mainQueue = program.timeline,
                    .calendar = program.realParts_->calendar,
                    .dateFormatters = program.realParts_->dateFormatters,
                    .textCounting = program.realParts_->textCounting,
                    .textMeasuring = program.realParts_->textMeasuring,
                    .colors = program.realParts_->colors,
                    .texts = program.realParts_->texts,
                    .settings = settings,
                    .uuids = program.uuids_,
                    .eventStore = eventStore,
                    .notificationCenter = program.center_,
                    .http = program.http,
                    .background = program.background_,
                    .json = program.realParts_->json,
                    .images = program.realParts_->images,
                    .responseCaches = program.responseCaches,
                    .documentFiles = program.realParts_->documents,
                    .links = program.links,
                    .snapshots = program.snapshots,
                    .pictureSharing = program.pictureSharing,
                    .photoLibrary = program.photoLibrary,
                    .photoTexts = &program.realParts_->photoTexts},
                   window, screens),
          stack(window) {
        screens.use(services);
        AppDelegate(services).didFinishLaunching(stack);
    }

    ui::Animations animations;
    ui::WindowContext window;
    Screens screens;
    sqlite::SqliteEventStore eventStore;
    sqlite::SqliteSavedSettings settings;
    SharedServices services;
    ui::PresentationStack stack;
};

Program::Program() : Program(notifications) {}

Program::Program(NotificationCenter& center)
    : realParts_(std::make_unique<RealParts>(folder.path())),
      center_(center),
      images(realParts_->images),
      documents(realParts_->documents),
      dateFormatters(realParts_->dateFormatters) {
    restart();
}

Program::~Program() = default;

void Program::restart() {
    run_.reset();
    run_ = std::make_unique<Run>(*this);
}

ui::PresentationStack& Program::stack() {
    return run_->stack;
}

SharedServices& Program::services() {
    return run_->services;
}

} // namespace tessivo
