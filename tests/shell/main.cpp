#include "hand/VirtualTime.h"

#include <QAccessible>
#include <QFont>
#include <QGuiApplication>

#include <gtest/gtest.h>

#include <cstring>

namespace {

/// A complaint of QML is a fault in whatever test it comes up.
void complain(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg)
        ADD_FAILURE() << message.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    tessivo::virtualtime::start();
    testing::InitGoogleTest(&argc, argv);
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("TZ", "Europe/Berlin");
    // Without a display, also where the tests are only listed; or with one, and so through OpenGL.
    if (argc < 2 || std::strcmp(argv[1], "--on-display") != 0)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Color Emoji")});
    QGuiApplication::setFont(font);
    QAccessible::setActive(true);
    qInstallMessageHandler(complain);
    return RUN_ALL_TESTS();
}
