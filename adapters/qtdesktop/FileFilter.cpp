#include "qtdesktop/FileFilter.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace tessivo::desktop {

QDBusArgument& operator<<(QDBusArgument& argument, const FileMatch& match) {
    argument.beginStructure();
    argument << match.kind << match.pattern;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FileMatch& match) {
    argument.beginStructure();
    argument >> match.kind >> match.pattern;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const FileFilter& filter) {
    argument.beginStructure();
    argument << filter.name << filter.matches;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FileFilter& filter) {
    argument.beginStructure();
    argument >> filter.name >> filter.matches;
    argument.endStructure();
    return argument;
}

void registerFileFilters() {
    qDBusRegisterMetaType<FileMatch>();
    qDBusRegisterMetaType<QList<FileMatch>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
}

} // namespace tessivo::desktop
