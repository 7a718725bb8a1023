#include <gtest/gtest.h>

#include <QApplication>

#include "ui/font_metrics.h"

/// Fonts, painting and windows need the toolkit's application object, but no screen.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (!numerello::LoadSheetFont()) {
        qCritical("VantrelFont cannot be used");
        return 1;
    }
    return RUN_ALL_TESTS();
}
