#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_explain.h"

namespace numerello {
namespace {

/// A solution on three sheets, all of them in view; none scrolls.
class SheetsOnTheDesk : public Window {
  protected:
    SheetsOnTheDesk() { frame.resize(1300, 900); }

    /// 5040 has thirty pairs of factors: 12, 12 and 8 lines.
    void PlayThreeSheets() {
        Command("mnuShowStep").trigger();
        Choose(QStringLiteral("Factoring"));
        Type(QStringLiteral("5040"));
        Enter();
        ASSERT_EQ(Now().playback.CurrentPage, 2);
    }

    SheetWidget& Paper(int index) {
        return Find<SheetWidget>(frame, QStringLiteral("Paper%1").arg(index));
    }
    QScrollArea& Form() { return Find<QScrollArea>(frame, QStringLiteral("frmPaper")); }
    QWidget& Pencil() { return Find<QWidget>(frame, QStringLiteral("Pencil")); }

    /// The sheets that are to be seen, from the lowest up.
    std::vector<int> Order() {
        std::vector<int> order;
        for (const QObject* child : Find<QWidget>(frame, QStringLiteral("desk")).children()) {
            const auto* paper = qobject_cast<const SheetWidget*>(child);
            if (paper != nullptr && paper->isVisible()) {
                order.push_back(paper->objectName().mid(5).toInt());
            }
        }
        return order;
    }

    /// Where the lowest dark stroke of the first sheet is.
    int LowestInk() {
        const QImage image = Paper(0).grab().toImage();
        for (int y = image.height() - 1; y > 0; --y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 110) {
                    return y;
                }
            }
        }
        return 0;
    }

    void Drag(QWidget& widget, QPoint from, QPoint way) {
        const QPoint start = widget.mapTo(&frame, from);
        QTest::mousePress(frame.windowHandle(), Qt::LeftButton, {}, start);
        QTest::mouseMove(frame.windowHandle(), start + way / 2);
        QTest::mouseMove(frame.windowHandle(), start + way);
        QTest::mouseRelease(frame.windowHandle(), Qt::LeftButton, {}, start + way);
    }
};

TEST_F(SheetsOnTheDesk, LieFannedAndComeToTheFrontByAPress) {
    PlayThreeSheets();
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(Paper(1).pos(), Paper(0).pos() + QPoint(25, 25));
    EXPECT_EQ(Paper(2).pos(), Paper(1).pos() + QPoint(25, 25));
    // Of the lower sheets the left edge is to be seen.
    Click(Paper(0), QPoint(10, 400));
    EXPECT_EQ(Order(), (std::vector<int>{1, 2, 0}));
    Click(Paper(2), QPoint(790, 640), Qt::RightButton);
    EXPECT_EQ(Order(), (std::vector<int>{1, 2, 0}));
    Click(Paper(1), QPoint(10, 650));
    EXPECT_EQ(Order(), (std::vector<int>{2, 0, 1}));
}

TEST_F(SheetsOnTheDesk, HaveAWhiteStripForTheTitleButTheFirst) {
    PlayThreeSheets();
    // At the ends of the strip, where no title reaches.
    for (const QPoint place : {QPoint(61, 2), QPoint(743, 56)}) {
        EXPECT_EQ(Paper(2).grab().toImage().pixelColor(place), QColor(Qt::white)) << place.x();
        EXPECT_NE(Paper(0).grab().toImage().pixelColor(place), QColor(Qt::white)) << place.x();
    }
    EXPECT_NE(Paper(2).grab().toImage().pixelColor(746, 30), QColor(Qt::white));
}

TEST_F(SheetsOnTheDesk, ALongDivisionStaysInViewWhereItGoesOn) {
    frame.resize(1100, 480);
    QTest::qWait(20);
    Choose(QStringLiteral("Division"));
    Type(QStringLiteral("7"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("123456789"));
    Enter();
    const QScrollArea& form = Form();
    for (int step = 0; Arrow().isVisible(); ++step) {
        SCOPED_TRACE(step);
        Enter();
        EXPECT_LT(Paper(0).mapTo(form.viewport(), QPoint(0, LowestInk())).y(),
                  form.viewport()->height());
        EXPECT_TRUE(!Arrow().isVisible() || !Arrow().visibleRegion().isEmpty());
        ASSERT_LT(step, 200);
    }
    EXPECT_GT(form.verticalScrollBar()->value(), 0);
}

TEST_F(SheetsOnTheDesk, FollowTheMouse) {
    PlayThreeSheets();
    const QPoint first = Paper(0).pos();
    const QPoint third = Paper(2).pos();
    Drag(Paper(2), QPoint(400, 600), QPoint(-130, 70));
    EXPECT_EQ(Paper(2).pos(), third + QPoint(-130, 70));
    EXPECT_EQ(Paper(0).pos(), first);
    // With the right button nothing moves.
    const QPoint start = Paper(2).mapTo(&frame, QPoint(300, 300));
    QTest::mousePress(frame.windowHandle(), Qt::RightButton, {}, start);
    QTest::mouseMove(frame.windowHandle(), start + QPoint(50, 50));
    QTest::mouseRelease(frame.windowHandle(), Qt::RightButton, {}, start + QPoint(50, 50));
    EXPECT_EQ(Paper(2).pos(), third + QPoint(-130, 70));
}

TEST_F(SheetsOnTheDesk, ThePencilGoesWithTheFirstSheetAndNothingElseDoes) {
    Choose(QStringLiteral("Factoring"));
    const QPoint onSheet = Pencil().pos() - Paper(0).pos();
    auto& wiz = Find<QWidget>(frame, QStringLiteral("Wizard"));
    const QPoint figure = wiz.pos();
    const QPoint light = Find<QWidget>(frame, QStringLiteral("Light")).pos();
    const QPoint sheet = Paper(0).pos();
    Drag(Paper(0), QPoint(400, 600), QPoint(-60, 33));
    EXPECT_EQ(Paper(0).pos(), sheet + QPoint(-60, 33));
    EXPECT_EQ(Pencil().pos() - Paper(0).pos(), onSheet);
    EXPECT_EQ(wiz.pos(), figure);
    EXPECT_EQ(Find<QWidget>(frame, QStringLiteral("Light")).pos(), light);
}

TEST_F(SheetsOnTheDesk, ADraggedSheetStaysWhenTheWindowChanges) {
    Choose(QStringLiteral("Factoring"));
    Drag(Paper(0), QPoint(400, 600), QPoint(-60, 33));
    const QPoint place = Paper(0).pos();
    frame.resize(1200, 860);
    QTest::qWait(20);
    EXPECT_EQ(Paper(0).pos(), place);
    Type(QStringLiteral("6"));
    Erase();
    EXPECT_EQ(Paper(0).pos(), QPoint(200, 33));
}

TEST_F(SheetsOnTheDesk, CannotBeLostBeyondTheEdge) {
    PlayThreeSheets();
    const QSize view = Form().viewport()->size();
    Drag(Paper(2), QPoint(400, 600), QPoint(3000, 2000));
    EXPECT_EQ(Paper(2).pos(), QPoint(view.width() - 60, view.height() - 40));
    EXPECT_GT(Form().horizontalScrollBar()->maximum(), 600) << "the desk reaches around it";
    Drag(Paper(0), QPoint(5, 500), QPoint(-3000, -2000));
    EXPECT_EQ(Paper(0).pos(), QPoint(60 - 800, 0));
}

TEST_F(SheetsOnTheDesk, ThePictureIsPartOfTheFirstSheet) {
    Choose(QStringLiteral("Area of a Circle"));
    const QPoint place = Paper(0).pos();
    auto& picture = Find<QWidget>(frame, QStringLiteral("Picture3"));
    Drag(picture, QPoint(10, 190), QPoint(20, 40));
    EXPECT_EQ(Paper(0).pos(), place + QPoint(20, 40));
}

TEST_F(SheetsOnTheDesk, PageUpAndPageDownTurnToTheNeighbours) {
    PlayThreeSheets();
    PressKey(frame, Qt::Key_PageDown);
    EXPECT_EQ(Order().back(), 2);
    PressKey(frame, Qt::Key_PageUp);
    EXPECT_EQ(Order(), (std::vector<int>{0, 2, 1}));
    PressKeys(frame, {Qt::Key_PageUp, Qt::Key_PageUp});
    EXPECT_EQ(Order(), (std::vector<int>{2, 1, 0}));
    PressKey(frame, Qt::Key_PageDown);
    EXPECT_EQ(Order().back(), 1);
}

TEST_F(SheetsOnTheDesk, ASheetTurnedToScrollsIntoView) {
    frame.resize(700, 500);
    PlayThreeSheets();
    PressKeys(frame, {Qt::Key_PageUp, Qt::Key_PageUp});
    EXPECT_EQ(Form().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Form().horizontalScrollBar()->value(), 0);
}

TEST_F(SheetsOnTheDesk, PageDownScrollsASingleSheet) {
    frame.resize(700, 500);
    Choose(QStringLiteral("Factoring"));
    PressKey(frame, Qt::Key_PageDown);
    EXPECT_GT(Form().verticalScrollBar()->value(), 100);
}

TEST_F(SheetsOnTheDesk, TheNextStepIsWrittenWhereItIsSeen) {
    Choose(QStringLiteral("Factoring"));
    Type(QStringLiteral("5040"));
    for (int i = 0; i < 14; ++i) {
        Enter();
    }
    ASSERT_EQ(Order(), (std::vector<int>{0, 1}));
    PressKey(frame, Qt::Key_PageUp);
    EXPECT_EQ(Order().back(), 0);
    Enter();
    EXPECT_EQ(Order().back(), 1);
}

TEST_F(SheetsOnTheDesk, ThrowAShadowOnTheSheetsBelow) {
    PlayThreeSheets();
    // Two left of the third sheet, on the second one.
    const QPoint inShadow = Paper(1).mapTo(&frame, QPoint(23, 300));
    const QImage covered = frame.grab().toImage();
    Drag(Paper(2), QPoint(400, 600), QPoint(100, 0));
    const QImage bare = frame.grab().toImage();
    EXPECT_LT(covered.pixelColor(inShadow).lightness(), bare.pixelColor(inShadow).lightness());
}

TEST_F(SheetsOnTheDesk, ASheetIsADocumentThatIsReadAsWords) {
    PlayThreeSheets();
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(&Paper(i));
        ASSERT_NE(sheet, nullptr);
        EXPECT_EQ(sheet->role(), QAccessible::Document);
        EXPECT_TRUE(sheet->state().readOnly);
        EXPECT_FALSE(sheet->state().editable);
        ASSERT_NE(sheet->textInterface(), nullptr);
    }
    QAccessibleInterface* third = QAccessible::queryAccessibleInterface(&Paper(2));
    EXPECT_EQ(third->text(QAccessible::Name), "Factoring (Page 3)");
    EXPECT_EQ(third->text(QAccessible::Description),
              "All the numbers that divide evenly into another number are the factors of that "
              "number.");
    const QAccessibleTextInterface& text = *third->textInterface();
    const QString all = text.text(0, -1);
    EXPECT_TRUE(all.startsWith(QStringLiteral("5040 equals 42 times 120\n5040 equals 45")))
        << all.toStdString();
    EXPECT_EQ(text.characterCount(), all.size());
    EXPECT_EQ(text.text(5, 11), "equals");
    EXPECT_EQ(text.text(5, 2), "");
    int start = -1;
    int end = -1;
    EXPECT_EQ(text.textAtOffset(6, QAccessible::WordBoundary, &start, &end), "equals");
    EXPECT_EQ(start, 5);
    EXPECT_EQ(text.textAtOffset(26, QAccessible::LineBoundary, &start, &end).trimmed(),
              "5040 equals 45 times 112");
}

TEST_F(SheetsOnTheDesk, TellWhyAKeyWasRefused) {
    Choose(QStringLiteral("Fraction Arithmetic"));
    QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(&Paper(0));
    EXPECT_EQ(sheet->text(QAccessible::Description), Reason());
    Type(QStringLiteral("1/2+3/4"));
    EXPECT_EQ(sheet->textInterface()->text(0, -1), "one half plus three fourths");
    Type(QStringLiteral("x"));
    EXPECT_EQ(sheet->text(QAccessible::Description).toStdString(), Now().input.InputError);
    EXPECT_FALSE(Now().input.InputError.empty());
}

}  // namespace
}  // namespace numerello
