#include "qtdesktop/QtResourceFiles.h"

#include <QFile>

namespace tessivo {

std::optional<std::string> QtResourceFiles::read(std::string_view path) const {
    QFile file(QStringLiteral(":/tessivo/") +
               QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

} // namespace tessivo
