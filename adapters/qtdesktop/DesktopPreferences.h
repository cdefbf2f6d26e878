#pragma once

#include "Ports/UserPreferences.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace tessivo {

/// The desktop user's preferences, from the settings portal and the accessibility bus. Where none of them
/// answers everything stays at its default. Main thread of a running Qt application; never waits for the bus.
class DesktopPreferences final : public QObject {
    Q_OBJECT

public:
    using Changed = std::function<void(const UserPreferences&)>;

    /// `scalesAll`: the window system makes everything larger by the user's text scale, so that the letters
    /// need not grow by themselves.
    explicit DesktopPreferences(const QDBusConnection& bus, bool scalesAll = false)
        : bus_(bus), scalesAll_(scalesAll) {}

    /// Starts to follow them. `changed` is called in later turns of the main loop, whenever one of them is
    /// found to differ from its default or changes.
    void onChange(Changed changed);

private Q_SLOTS:
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);
    void statusChanged(const QString& interface, const QVariantMap& values, const QStringList& invalidated);

private:
    void read(const QString& space, const QString& key);
    void take(const QString& key, const QVariant& value);

    QDBusConnection bus_;
    bool scalesAll_;
    Changed changed_;
    UserPreferences preferences_;
};

} // namespace tessivo
