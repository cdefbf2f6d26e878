#include "support/Program.h"

#include "Support/RemoteSwitches/RemoteConfig.h"
#include "Support/SettingKeys.h"
#include "Support/StartUp/RunningProgram.h"
#include "fakes/FixedWidthTexts.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "icu/IcuTextCounting.h"
#include "qtimage/QtImageCoding.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"
#include "standard/FolderDocumentFiles.h"
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
    Bundle bundle{.shortVersion = "0.1.0", .version = "1"};
    QtImageCoding images;
    FolderDocumentFiles documents;
};

struct Program::Run {
    explicit Run(Program& program)
        : eventStore(program.folder / "events.sqlite"),
          settings(program.folder / "settings.sqlite", program.console),
          running(platform(program), program.timeline, program.screen) {
        running.launch();
    }

    [[nodiscard]] Platform platform(Program& program) {
        RealParts& real = *program.realParts_;
        return {.console = program.console,
                .clock = program.timeline,
                .timers = program.timeline,
                .mainQueue = program.timeline,
                .calendar = real.calendar,
                .dateFormatters = real.dateFormatters,
                .textCounting = real.textCounting,
                .textMeasuring = real.textMeasuring,
                .colors = real.colors,
                .texts = real.texts,
                .settings = settings,
                .uuids = program.uuids_,
                .eventStore = eventStore,
                .notificationCenter = program.center_,
                .remoteNotifications = program.remoteNotifications,
                .http = program.http,
                .background = program.background_,
                .json = real.json,
                .images = real.images,
                .responseCaches = program.responseCaches,
                .documentFiles = real.documents,
                .links = program.links,
                .snapshots = program.snapshots,
                .pictureSharing = program.pictureSharing,
                .photoLibrary = program.photoLibrary,
                .textSharing = program.textSharing,
                .mail = program.mail,
                .network = program.network,
                .reviews = program.reviews,
                .device = program.device,
                .bundle = real.bundle,
                .remoteProject = program.remoteProject,
                .photoTexts = &real.photoTexts,
                .resources = program.resources};
    }

    sqlite::SqliteEventStore eventStore;
    sqlite::SqliteSavedSettings settings;
    RunningProgram running;
};

Program::Program(Launch launch) : Program(notifications, launch) {}

Program::Program(NotificationCenter& center, Launch launch)
    : realParts_(std::make_unique<RealParts>(folder.path())),
      center_(center),
      images(realParts_->images),
      documents(realParts_->documents),
      dateFormatters(realParts_->dateFormatters) {
    if (launch == Launch::Later)
        sqlite::SqliteSavedSettings(folder / "settings.sqlite", console)
            .setBoolean(settingKeys::isFirstLaunch, true);
    restart();
}

Program::~Program() = default;

void Program::restart() {
    run_.reset();
    run_ = std::make_unique<Run>(*this);
}

ui::PresentationStack& Program::stack() {
    return run_->running.stack();
}

SharedServices& Program::services() {
    return run_->running.services();
}

} // namespace tessivo
