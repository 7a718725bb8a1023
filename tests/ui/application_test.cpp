#include "ui/application.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <new>
#include <stdexcept>

#include "tests/ui/window.h"

namespace numerello {
namespace {

/// Takes what is typed, and throws at an "x".
class Touchy : public QLineEdit {
  public:
    int paintings = 0;
    int badPaintings = 0;  ///< how many from now on are given up

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->text() == "x") {
            throw std::bad_alloc();
        }
        QLineEdit::keyPressEvent(event);
    }
    void paintEvent(QPaintEvent* event) override {
        ++paintings;
        if (badPaintings > 0) {
            --badPaintings;
            throw std::invalid_argument("cannot be painted");
        }
        QLineEdit::paintEvent(event);
    }
};

TEST(Application, GoesOnBehindWhatAnEventThrowsAndTellsItOnce) {
    Touchy line;
    ShowActive(line);
    TypeText(line, "a");
    {
        WhenDialogOpens told("MessageBox", [](QWidget& box) {
            EXPECT_TRUE(Find<QMessageBox>(box, "MessageBox").text().contains("Save your problem"));
            PressButton(box, "OK");
        });
        TypeText(line, "x");
        ASSERT_TRUE(QTest::qWaitFor([&] { return told.HasOpened(); }));
    }
    ShowActive(line);
    const NoDialogOpens silent;
    TypeText(line, "bxc");
    EXPECT_EQ(line.text(), "abc");

    line.badPaintings = 1;
    const int before = line.paintings;
    line.update();
    EXPECT_TRUE(QTest::qWaitFor([&] { return line.paintings > before; }));
    EXPECT_EQ(line.badPaintings, 0);
    TypeText(line, "d");
    EXPECT_EQ(line.text(), "abcd");
}

TEST(Application, PlaceholdersCanBeReadOnADarkDesktop) {
    const QPalette usual = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    dark.setColor(QPalette::Text, QColor(252, 252, 252));
    QApplication::setPalette(dark);
    const QColor placeholder = QApplication::palette().color(QPalette::PlaceholderText);
    EXPECT_EQ(placeholder.rgb(), qRgb(252, 252, 252));
    EXPECT_LT(placeholder.alpha(), 255);
    EXPECT_GT(placeholder.alpha(), 100);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(27, 30, 32));

    // What a desktop names itself stays.
    dark.setColor(QPalette::PlaceholderText, QColor(1, 200, 3));
    QApplication::setPalette(dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::PlaceholderText), QColor(1, 200, 3));
    QApplication::setPalette(usual);
    EXPECT_EQ(QApplication::palette().color(QPalette::PlaceholderText).rgb(),
              usual.color(QPalette::PlaceholderText).rgb());
}

}  // namespace
}  // namespace numerello

/// The other windows' tests run under the toolkit's own application: there, what a test's helper
/// throws has to end the test.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const numerello::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
