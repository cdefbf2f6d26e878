#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

class QDBusArgument;

namespace tessivo::desktop {

/// One way in which a file may fit a filter of the portal's file chooser.
struct FileMatch {
    static constexpr unsigned byMediaType = 1;

    unsigned kind = byMediaType;
    QString pattern;
};

/// The files that the chooser shows under one name.
struct FileFilter {
    QString name;
    QList<FileMatch> matches;
};

QDBusArgument& operator<<(QDBusArgument& argument, const FileMatch& match);
const QDBusArgument& operator>>(const QDBusArgument& argument, FileMatch& match);
QDBusArgument& operator<<(QDBusArgument& argument, const FileFilter& filter);
const QDBusArgument& operator>>(const QDBusArgument& argument, FileFilter& filter);

/// Makes filters known to the bus; before the first is sent or read.
void registerFileFilters();

} // namespace tessivo::desktop

Q_DECLARE_METATYPE(tessivo::desktop::FileMatch)
Q_DECLARE_METATYPE(tessivo::desktop::FileFilter)
