// The test program of the delivered pictures: GoogleTest inside a Qt application without windows.
#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
