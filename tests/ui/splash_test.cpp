#include "ui/frm_logo.h"

#include <gtest/gtest.h>

#include <QTest>

#include "tests/ui/window.h"
#include "ui/font_metrics.h"

namespace numerello {
namespace {

TEST(Splash, ClosesByItselfOnAKeyAndOnAClick) {
    LoadSheetFont();
    const auto closed = [](const std::function<void(FrmLogo&)>& action, int patience) {
        FrmLogo logo;
        bool done = false;
        QObject::connect(&logo, &FrmLogo::Closed, [&done] { done = true; });
        ShowActive(logo);
        action(logo);
        return QTest::qWaitFor([&done] { return done; }, patience);
    };
    EXPECT_FALSE(closed([](FrmLogo&) {}, 700));
    EXPECT_TRUE(closed([](FrmLogo&) {}, 1500));
    EXPECT_TRUE(closed([](FrmLogo& logo) { PressKey(logo, Qt::Key_Space); }, 100));
    EXPECT_TRUE(closed([](FrmLogo& logo) { Click(logo); }, 100));
}

}  // namespace
}  // namespace numerello
