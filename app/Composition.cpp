#include "app/Composition.h"

#include "Ports/Console.h"
#include "Support/StartUp/AppDelegate.h"
#include "UnsplashPicker/PickerServices.h"

#include <QDBusConnection>
#include <QFile>
#include <QStandardPaths>

#include <array>
#include <future>

namespace tessivo {
namespace {

constexpr std::array<std::string_view, 7> languageNames{"en", "de", "fr", "es", "ru", "ja", "ar"};

std::string resource(const std::string& name) {
    QFile file(QString::fromStdString(":/tessivo/" + name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

/// The program's own tables are part of it: one that does not read is a broken build.
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

} // namespace

Composition::Composition(Settings settings, Clock& clock, Console& console)
    : settings_(std::move(settings)),
      colors_(table<JsonNamedColors>("colors.json", console)),
      texts_(table<JsonLocalizedTexts>("texts/" + settings_.language + ".json", console)),
      savedSettings_(settings_.data / "settings.sqlite", console),
      eventStore_(settings_.data / "events.sqlite"),
      notificationQueue_(settings_.data / "reminders.sqlite", console),
      notificationCenter_(
          {notificationQueue_, calendar_, queueCalendar_, mainQueue_}, std::make_unique<ThreadWorkQueue>(),
          [this](std::function<void(bool)> answer) { permission_.ask(std::move(answer)); },
          settings_.tellReminderHelper),
      photoTexts_(table<JsonLocalizedTexts>("unsplash-texts/" + settings_.language + ".json", console)),
      responseCaches_(settings_.caches),
      documentFiles_(settings_.data / "documents"),
      pictureSharing_({picturesFolder(), settings_.caches / "lent"}, QDBusConnection::sessionBus(), images_,
                      background_, mainQueue_),
      services_({console,         clock,
                 timers_,         mainQueue_,
                 calendar_,       dateFormatters_,
                 textCounting_,   textMeasuring_,
                 colors_,         texts_,
                 savedSettings_,  uuids_,
                 eventStore_,     notificationCenter_,
                 http_,           background_,
                 json_,           images_,
                 responseCaches_, documentFiles_,
                 links_,          snapshots_,
                 pictureSharing_, photoLibrary_,
                 &photoTexts_},
                window_, screens_),
      permission_(stack_, notificationCenter_, mainQueue_,
                  [this](bool allowed) { notificationCenter_.setAuthorization(allowed); }),
      shell_(stack_, colors_, console, snapshots_) {
    if (!settings_.photoService.empty())
        services_.photoPicker().setConfiguration(
            unsplash::UnsplashPickerConfiguration(settings_.photoService));
    screens_.use(services_);
    screens_.onOpenNotificationSettings([this] { permission_.openSettings(); });
}

void Composition::start() {
    AppDelegate(services_).didFinishLaunching(stack_);
    shell_.open();
    frameClock_.setWindow(shell_.window());
}

void Composition::waitForThreads() {
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

std::vector<std::string_view> Composition::languages() {
    return {languageNames.begin(), languageNames.end()};
}

} // namespace tessivo
