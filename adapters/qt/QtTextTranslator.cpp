#include "qt/QtTextTranslator.h"

#include "Ports/LocalizedTexts.h"

#include <QCoreApplication>

namespace tessivo {

QtTextTranslator::QtTextTranslator(const LocalizedTexts& texts) : texts_(texts) {
    QCoreApplication::installTranslator(this);
}

QString QtTextTranslator::translate(const char*, const char* source, const char*, int) const {
    return QString::fromStdString(texts_.localizedString(source));
}

} // namespace tessivo
