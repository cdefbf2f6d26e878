#include "app/Machine.h"

#include "Ports/Console.h"
#include "Support/RemoteSwitches/RemoteKeys.h"
#include "icu/DeviceLocale.h"

#include <QDBusConnection>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

#include <array>
#include <future>
#include <memory>
#include <utility>

namespace tessivo {
namespace {

constexpr std::array<std::string_view, 7> languageNames{"en", "de", "fr", "es", "ru", "ja", "ar"};

std::string resource(const std::string& name) {
    QFile file(QString::fromStdString(":/tessivo/" + name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// The program's own tables are part of it: one that cannot be parsed is a broken build.
template <class Table>
Table table(const std::string& name, Console& console) {
    auto read = Table::fromJson(resource(name));
    if (!read)
        console.stopProgram(name + ": " + read.error().description);
    return std::move(read.value());
}

std::filesystem::path picturesFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation).toStdString();
}

/// Desktops on X11 tell of larger letters as dots per inch, by which Qt enlarges the whole window.
bool windowSystemScalesText() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen && screen->devicePixelRatio() != 1 &&
           QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace

Machine::Machine(const Settings& settings, Clock& clock, Console& console,
                 QueuedNotificationCenter::Question ask)
    : clock_(clock),
      console_(console),
      colors_(table<JsonNamedColors>("colors.json", console)),
      texts_(table<JsonLocalizedTexts>("texts/" + settings.language + ".json", console)),
      photoTexts_(table<JsonLocalizedTexts>("unsplash-texts/" + settings.language + ".json", console)),
      machineTexts_(table<JsonLocalizedTexts>("machine-texts/" + settings.language + ".json", console)),
      savedSettings_(settings.data / "settings.sqlite", console),
      eventStore_(settings.data / "events.sqlite", [] { return deviceLocale(LocalePurpose::Dates); }),
      notificationQueue_(settings.data / "reminders.sqlite", console),
      notificationCenter_({notificationQueue_, calendar_, queueCalendar_, mainQueue_, clock},
                          std::make_unique<ThreadWorkQueue>(), std::move(ask), settings.tellReminderHelper),
      responseCaches_(settings.caches),
      documentFiles_(settings.data / "documents"),
      pictureSharing_({picturesFolder(), settings.caches / "lent"}, QDBusConnection::sessionBus(), images_,
                      background_, mainQueue_),
      photoLibrary_(QDBusConnection::sessionBus(), settings.data / "photos"),
      textSharing_(QDBusConnection::sessionBus(), mainQueue_),
      mail_(QDBusConnection::sessionBus()),
      reviews_(links_, texts_, [this] { return foreground_.isActive(); }),
      preferences_(QDBusConnection::sessionBus(), windowSystemScalesText()),
      notificationDaemon_(QDBusConnection::sessionBus()),
      bundle_{.shortVersion = TESSIVO_VERSION,
              .version = TESSIVO_BUILD_NUMBER,
              .preferredLocalization = settings.language},
      remoteProject_(tessivo::remoteProject()) {}

Platform Machine::platform() {
    return {.console = console_,
            .clock = clock_,
            .timers = timers_,
            .mainQueue = mainQueue_,
            .calendar = calendar_,
            .dateFormatters = dateFormatters_,
            .textCounting = textCounting_,
            .textMeasuring = textMeasuring_,
            .colors = colors_,
            .texts = texts_,
            .settings = savedSettings_,
            .uuids = uuids_,
            .eventStore = eventStore_,
            .notificationCenter = notificationCenter_,
            .remoteNotifications = remoteNotifications_,
            .http = http_,
            .background = background_,
            .json = json_,
            .images = images_,
            .responseCaches = responseCaches_,
            .documentFiles = documentFiles_,
            .links = links_,
            .snapshots = snapshots_,
            .pictureSharing = pictureSharing_,
            .photoLibrary = photoLibrary_,
            .textSharing = textSharing_,
            .mail = mail_,
            .network = network_,
            .reviews = reviews_,
            .device = device_,
            .bundle = bundle_,
            .remoteProject = remoteProject_,
            .photoTexts = &photoTexts_,
            .resources = resources_};
}

void Machine::waitForThreads() {
    do {
        http_.waitUntilIdle();
        std::promise<void> worked;
        background_.post([&worked] { worked.set_value(); });
        worked.get_future().wait();
        std::promise<void> notified;
        notificationCenter_.getNotificationSettings([&notified](auto) { notified.set_value(); });
        notified.get_future().wait();
    } while (!http_.isIdle());
}

std::vector<std::string_view> Machine::languages() {
    return {languageNames.begin(), languageNames.end()};
}

} // namespace tessivo
