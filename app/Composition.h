#pragma once

#include "Interface/Animation.h"
#include "Interface/PresentationStack.h"
#include "Reminders/QueuedNotificationCenter.h"
#include "Support/SharedServices.h"
#include "Support/StartUp/NotificationPermission.h"
#include "Support/StartUp/Screens.h"
#include "freedesktop/DataFolder.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "icu/IcuTextCounting.h"
#include "qt/QtFrameClock.h"
#include "qt/QtMainQueue.h"
#include "qt/QtTextMeasuring.h"
#include "qt/QtTimers.h"
#include "qtdesktop/QtLinkOpener.h"
#include "qtdesktop/QtPhotoLibrary.h"
#include "qtdesktop/QtPictureSharing.h"
#include "qtimage/QtImageCoding.h"
#include "qtnetwork/QtHttpClient.h"
#include "qtnetwork/QtResponseCaches.h"
#include "shell/Shell.h"
#include "shell/bridge/QuickSnapshots.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "sqlite/SqliteSavedSettings.h"
#include "standard/FolderDocumentFiles.h"
#include "standard/RandomUuids.h"
#include "standard/ThreadWorkQueue.h"
#include "json/JsonLocalizedTexts.h"
#include "json/JsonNamedColors.h"
#include "json/NlohmannJson.h"

#include <filesystem>
#include <functional>
#include <string>

namespace tessivo {

/// The whole program with its real parts, from the ports up to the window. Reads top to bottom: what stands
/// further down is built on what stands above. One per program, on the main thread of a running Qt
/// application.
class Composition {
public:
    struct Settings {
        std::filesystem::path data;   ///< folder of the events, the settings and the queue of reminders
        std::filesystem::path caches; ///< folder of what can be fetched again
        std::string language;         ///< of the texts: a file of the text tables, such as "de"
        /// Tells the helper that the queue of reminders has changed; called off the main thread.
        std::function<void()> tellReminderHelper;
        std::string photoService = {}; ///< its base address; empty for the one that the build is made for
    };

    /// Clock and console outlive the composition.
    Composition(Settings settings, Clock& clock, Console& console);
    Composition(const Composition&) = delete;
    Composition& operator=(const Composition&) = delete;

    /// Lets the notification center finish first: its completions reach what goes next.
    ~Composition() { notificationCenter_.finish(); }

    /// Launches the program and opens its window.
    void start();

    /// Waits until no thread has anything left to do for the program, so that all of their answers wait on
    /// the main queue: where time is virtual, nothing else would wait for a thread.
    void waitForThreads();

    [[nodiscard]] shell::Shell& shell() { return shell_; }
    [[nodiscard]] SharedServices& services() { return services_; }
    [[nodiscard]] ui::PresentationStack& stack() { return stack_; }

    /// The languages that there are text tables for.
    [[nodiscard]] static std::vector<std::string_view> languages();

private:
    Settings settings_;

    // What the machine gives.
    QtTimers timers_;
    QtMainQueue mainQueue_;
    QtFrameClock frameClock_;
    IcuCalendar calendar_;
    IcuCalendar queueCalendar_{freedesktop::queueLocale};
    IcuDateFormatters dateFormatters_;
    IcuTextCounting textCounting_;
    QtTextMeasuring textMeasuring_;
    JsonNamedColors colors_;
    JsonLocalizedTexts texts_;
    sqlite::SqliteSavedSettings savedSettings_;
    sqlite::SqliteEventStore eventStore_;
    sqlite::SqliteNotificationQueue notificationQueue_;
    RandomUuids uuids_;
    QueuedNotificationCenter notificationCenter_;
    JsonLocalizedTexts photoTexts_;
    NlohmannJson json_;
    QtImageCoding images_;
    QtResponseCaches responseCaches_;
    FolderDocumentFiles documentFiles_;
    QtLinkOpener links_;
    // Their threads use what stands above.
    ThreadWorkQueue background_;
    QtHttpClient http_;
    QtPictureSharing pictureSharing_;
    QtPhotoLibrary photoLibrary_{QDBusConnection::sessionBus()};
    shell::QuickSnapshots snapshots_;

    // The program.
    ui::MainScreen screen_;
    ui::Animations animations_{frameClock_, timers_};
    ui::WindowContext window_{screen_, animations_};
    Screens screens_;
    SharedServices services_;
    ui::PresentationStack stack_{window_};
    NotificationPermission permission_;

    // What is seen.
    shell::Shell shell_;
};

} // namespace tessivo
