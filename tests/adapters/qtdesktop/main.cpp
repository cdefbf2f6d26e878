#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");       // also where the tests are only listed
    const QGuiApplication application(argc, argv); // which owns the clipboard
    return RUN_ALL_TESTS();
}
