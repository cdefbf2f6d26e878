#pragma once

#include "Ports/Device.h"
#include "Reminders/QueuedNotificationCenter.h"
#include "Support/Platform.h"
#include "Support/RemoteSwitches/RemoteConfig.h"
#include "Support/StartUp/ReviewPrompt.h"
#include "freedesktop/DataFolder.h"
#include "icu/IcuCalendar.h"
#include "icu/IcuDateFormatters.h"
#include "icu/IcuTextCounting.h"
#include "qt/QtForeground.h"
#include "qt/QtFrameClock.h"
#include "qt/QtMainQueue.h"
#include "qt/QtTextMeasuring.h"
#include "qt/QtTimers.h"
#include "qtdesktop/DesktopPreferences.h"
#include "qtdesktop/NotificationDaemon.h"
#include "qtdesktop/QtLinkOpener.h"
#include "qtdesktop/QtMailComposing.h"
#include "qtdesktop/QtPhotoLibrary.h"
#include "qtdesktop/QtPictureSharing.h"
#include "qtdesktop/QtResourceFiles.h"
#include "qtdesktop/QtTextSharing.h"
#include "qtimage/QtImageCoding.h"
#include "qtnetwork/QtHttpClient.h"
#include "qtnetwork/QtReachability.h"
#include "qtnetwork/QtResponseCaches.h"
#include "shell/bridge/QuickSnapshots.h"
#include "sqlite/SqliteEventStore.h"
#include "sqlite/SqliteNotificationQueue.h"
#include "sqlite/SqliteSavedSettings.h"
#include "standard/FolderDocumentFiles.h"
#include "standard/GregorianCalendar.h"
#include "standard/LinuxDevice.h"
#include "standard/NoRemoteNotifications.h"
#include "standard/RandomUuids.h"
#include "standard/ThreadWorkQueue.h"
#include "json/JsonLocalizedTexts.h"
#include "json/JsonNamedColors.h"
#include "json/NlohmannJson.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessivo {

/// The ports' real parts on this machine. Reads top to bottom: what stands further down is built on what
/// stands above. On the main thread of a running Qt application; outlives the program that runs on it.
///
/// A new port gets a member here, a line in `platform` and one in the tests' `Program`.
class Machine {
public:
    struct Settings {
        std::filesystem::path data;   ///< folder of the events, the settings and the queue of reminders
        std::filesystem::path caches; ///< folder of what can be fetched again
        std::string language;         ///< of the texts: a file of the text tables, such as "de"
        /// Tells the helper that the queue of reminders has changed; called off the main thread.
        std::function<void()> tellReminderHelper;
        std::string photoService = {}; ///< its base address; empty for the one that the build is made for
    };

    /// Clock and console outlive the machine. `ask` puts the question whether notifications may be shown
    /// before the user; see the notification center.
    Machine(const Settings& settings, Clock& clock, Console& console, QueuedNotificationCenter::Question ask);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    [[nodiscard]] Platform platform();

    /// The parts of which the window needs more than their ports.
    [[nodiscard]] QtFrameClock& frameClock() { return frameClock_; }
    [[nodiscard]] shell::QuickSnapshots& snapshots() { return snapshots_; }
    [[nodiscard]] QueuedNotificationCenter& notificationCenter() { return notificationCenter_; }
    /// The texts of the machine's own windows and alerts.
    [[nodiscard]] const LocalizedTexts& machineTexts() const { return machineTexts_; }
    [[nodiscard]] ReviewPrompt& reviews() { return reviews_; }
    [[nodiscard]] DesktopPreferences& preferences() { return preferences_; }
    [[nodiscard]] NotificationDaemon& notificationDaemon() { return notificationDaemon_; }

    /// Waits until no thread has anything left to do for the program, so that all of their answers wait on
    /// the main queue: where time is virtual, nothing else would wait for a thread.
    void waitForThreads();

    /// The languages that there are text tables for.
    [[nodiscard]] static std::vector<std::string_view> languages();

private:
    Clock& clock_;
    Console& console_;
    QtTimers timers_;
    QtMainQueue mainQueue_;
    QtFrameClock frameClock_;
    IcuCalendar calendar_;
    GregorianCalendar queueCalendar_; ///< the helper's
    IcuDateFormatters dateFormatters_;
    IcuTextCounting textCounting_;
    QtTextMeasuring textMeasuring_;
    JsonNamedColors colors_;
    JsonLocalizedTexts texts_;
    JsonLocalizedTexts photoTexts_;
    JsonLocalizedTexts machineTexts_;
    sqlite::SqliteSavedSettings savedSettings_;
    sqlite::SqliteEventStore eventStore_;
    sqlite::SqliteNotificationQueue notificationQueue_;
    RandomUuids uuids_;
    QueuedNotificationCenter notificationCenter_;
    NoRemoteNotifications remoteNotifications_;
    NlohmannJson json_;
    QtImageCoding images_;
    QtResponseCaches responseCaches_;
    FolderDocumentFiles documentFiles_;
    QtLinkOpener links_;
    QtResourceFiles resources_;
    // Their threads use what stands above.
    ThreadWorkQueue background_;
    QtHttpClient http_;
    QtPictureSharing pictureSharing_;
    QtPhotoLibrary photoLibrary_;
    QtTextSharing textSharing_;
    QtMailComposing mail_;
    QtReachability network_;
    QtForeground foreground_;
    ReviewPrompt reviews_;
    DesktopPreferences preferences_;
    NotificationDaemon notificationDaemon_;
    LinuxDevice device_;
    Bundle bundle_;
    RemoteProject remoteProject_;
    shell::QuickSnapshots snapshots_;
};

} // namespace tessivo
