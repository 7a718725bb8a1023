#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "ui/font_metrics.h"

/// Fonts, painting and windows need the toolkit's application object, but no screen.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("NUMERELLO_TESTS_ON_SCREEN")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Nothing is printed on the printer of whoever runs the tests.
    qputenv("CUPS_SERVER", "/nowhere");
    // Nothing is read from the home of whoever runs the tests, or written there.
    const QTemporaryDir home;
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(folder, home.path().toUtf8());
    }
    const QApplication application(argc, argv);
    if (!numerello::LoadSheetFont()) {
        qCritical("VantrelFont cannot be used");
        return 1;
    }
    return RUN_ALL_TESTS();
}
