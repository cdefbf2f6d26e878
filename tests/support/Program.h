#pragma once

#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "Support/SharedServices.h"
#include "Support/StartUp/AppDelegate.h"
#include "Support/StartUp/Screens.h"
#include "fakes/CannedSnapshots.h"
#include "fakes/CountingUuids.h"
#include "fakes/FakeNotificationCenter.h"
#include "fakes/FixedWidthTexts.h"
#include "fakes/MemoryResponseCaches.h"
#include "fakes/PostedWorkQueue.h"
#include "fakes/RecordingConsole.h"
#include "fakes/RecordingLinkOpener.h"
#include "fakes/RecordingPictureSharing.h"
#include "fakes/ScriptedHttpClient.h"
#include "fakes/ScriptedPhotoLibrary.h"
#include "fakes/Timeline.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "icu/IcuTextCounting.h"
#include "qtimage/QtImageCoding.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteSavedSettings.h"
#include "standard/FolderDocumentFiles.h"
#include "support/TemporaryFolder.h"
#include "json/JsonLocalizedTexts.h"
#include "json/JsonNamedColors.h"
#include "json/NlohmannJson.h"

#include <fstream>
#include <iterator>
#include <memory>
#include <string>

namespace tessivo {

/// The whole program without a window: its real store, settings, dates, colours and texts in a folder of the
/// test's own, on virtual time. A test drives the screens as a user does, through their controls.
class Program {
public:
    /// Starts on 21 June 2030, 10:30:15 in Berlin, in English.
    Program() { launch(); }

    /// The same with a notification center of the test's, which must outlive the program.
    explicit Program(NotificationCenter& center) : center_(center) { launch(); }

    /// Ends the program and starts it anew on the same folder.
    void restart() {
        run_.reset();
        launch();
    }

    /// The top screen, which must be of that kind.
    template <class Kind>
    [[nodiscard]] Kind& top() {
        return dynamic_cast<Kind&>(*run_->stack.top());
    }
    [[nodiscard]] ui::PresentationStack& stack() { return run_->stack; }
    [[nodiscard]] SharedServices& services() { return run_->services; }

    /// Lets a slide between screens come to its end.
    void settle() { timeline.advance(Seconds(0.5)); }

    TemporaryFolder folder;
    fakes::Timeline timeline{instantAt(1908261015)}; // 2030-06-21 10:30:15 +02:00
    fakes::RecordingConsole console;
    fakes::FakeNotificationCenter notifications;
    fakes::ScriptedHttpClient http;
    fakes::MemoryResponseCaches responseCaches;
    fakes::RecordingLinkOpener links;
    fakes::CannedSnapshots snapshots{timeline};
    fakes::RecordingPictureSharing pictureSharing;
    fakes::ScriptedPhotoLibrary photoLibrary;
    QtImageCoding images;
    FolderDocumentFiles documents{folder / "documents"};
    ui::MainScreen screen{{390, 844}};
    IcuCalendar calendar{"en_US", "Europe/Berlin"};
    IcuDateFormatters dateFormatters{"en_US", "Europe/Berlin"};

private:
    [[nodiscard]] static std::string resource(const std::string& name) {
        std::ifstream file(std::string(TESSIVO_RESOURCES) + "/" + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// What lasts from one start of the program to its end.
    struct Run {
        explicit Run(Program& program)
            : animations(program.timeline, program.timeline),
              window{program.screen, animations},

              eventStore(program.folder / "events.sqlite"),
              settings(program.folder / "settings.sqlite", program.console),
              services({program.console,
                        program.timeline,
                        program.timeline,
                        program.timeline,
                        program.calendar,
                        program.dateFormatters,
                        program.textCounting_,
                        program.textMeasuring_,
                        program.colors_,
                        program.texts_,
                        settings,
                        program.uuids_,
                        eventStore,
                        program.center_,
                        program.http,
                        program.background_,
                        program.json_,
                        program.images,
                        program.responseCaches,
                        program.documents,
                        program.links,
                        program.snapshots,
                        program.pictureSharing,
                        program.photoLibrary,
                        &program.photoTexts_},
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

    NotificationCenter& center_ = notifications;

    void launch() { run_ = std::make_unique<Run>(*this); }

    IcuTextCounting textCounting_;
    fakes::FixedWidthTexts textMeasuring_;
    JsonNamedColors colors_ = JsonNamedColors::fromJson(resource("colors.json")).value();
    JsonLocalizedTexts texts_ = JsonLocalizedTexts::fromJson(resource("texts/en.json")).value();
    JsonLocalizedTexts photoTexts_ = JsonLocalizedTexts::fromJson(resource("unsplash-texts/en.json")).value();
    NlohmannJson json_;
    fakes::PostedWorkQueue background_{timeline};
    fakes::CountingUuids uuids_;
    std::unique_ptr<Run> run_;
};

} // namespace tessivo
