#include "qtdesktop/DesktopPreferences.h"

#include "qtdesktop/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <utility>

namespace tessivo {
namespace {

constexpr const char* settingsInterface = "org.freedesktop.portal.Settings";
constexpr const char* propertiesInterface = "org.freedesktop.DBus.Properties";
constexpr const char* accessibilityName = "org.a11y.Bus";
constexpr const char* accessibilityPath = "/org/a11y/bus";
constexpr const char* statusInterface = "org.a11y.Status";

const QString animations = QStringLiteral("enable-animations");
const QString contrast = QStringLiteral("high-contrast");
const QString textScale = QStringLiteral("text-scaling-factor");
const QString screenReader = QStringLiteral("ScreenReaderEnabled");

/// A portal wraps a value in one or more variants.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

void DesktopPreferences::onChange(Changed changed) {
    changed_ = std::move(changed);
    if (!bus_.isConnected())
        return;
    qDBusRegisterMetaType<QDBusVariant>();
    bus_.connect(QString::fromLatin1(desktop::portalName), QString::fromLatin1(desktop::portalPath),
                 QString::fromLatin1(settingsInterface), QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    bus_.connect(QString::fromLatin1(accessibilityName), QString::fromLatin1(accessibilityPath),
                 QString::fromLatin1(propertiesInterface), QStringLiteral("PropertiesChanged"), this,
                 SLOT(statusChanged(QString, QVariantMap, QStringList)));
    read(QStringLiteral("org.gnome.desktop.interface"), animations);
    if (!scalesAll_)
        read(QStringLiteral("org.gnome.desktop.interface"), textScale);
    read(QStringLiteral("org.gnome.desktop.a11y.interface"), contrast);
    read(QString(), screenReader);
}

void DesktopPreferences::read(const QString& space, const QString& key) {
    const bool isSetting = !space.isEmpty();
    auto question =
        isSetting
            ? QDBusMessage::createMethodCall(QString::fromLatin1(desktop::portalName),
                                             QString::fromLatin1(desktop::portalPath),
                                             QString::fromLatin1(settingsInterface), QStringLiteral("Read"))
            : QDBusMessage::createMethodCall(QString::fromLatin1(accessibilityName),
                                             QString::fromLatin1(accessibilityPath),
                                             QString::fromLatin1(propertiesInterface), QStringLiteral("Get"));
    question.setArguments({isSetting ? space : QString::fromLatin1(statusInterface), key});
    auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, key](QDBusPendingCallWatcher* watcher) {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> answer = *watcher;
        if (answer.isValid())
            take(key, unwrapped(answer.value().variant()));
    });
}

void DesktopPreferences::settingChanged(const QString&, const QString& key, const QDBusVariant& value) {
    take(key, unwrapped(value.variant()));
}

void DesktopPreferences::statusChanged(const QString&, const QVariantMap& values, const QStringList&) {
    if (const auto found = values.find(screenReader); found != values.end())
        take(screenReader, unwrapped(*found));
}

void DesktopPreferences::take(const QString& key, const QVariant& value) {
    const UserPreferences former = preferences_;
    if (key == animations)
        preferences_.reducedMotion = !value.toBool();
    else if (key == contrast)
        preferences_.highContrast = value.toBool();
    else if (key == textScale && !scalesAll_)
        preferences_.textScale = std::clamp(value.toDouble(), 0.8, 2.0);
    else if (key == screenReader)
        preferences_.screenReader = value.toBool();
    if (preferences_ != former)
        changed_(preferences_);
}

} // namespace tessivo
