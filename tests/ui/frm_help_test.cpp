#include "ui/frm_help.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "catalogue/topics.h"
#include "tests/ui/interface_font.h"
#include "tests/ui/window.h"
#include "ui/help_pictures.h"
#include "ui/help_view.h"
#include "ui/text.h"

namespace numerello {

namespace {

class Help : public testing::Test {
  protected:
    Help() {
        window.ShowPage();
        ShowActive(window);
    }

    HelpView& View() { return Find<HelpView>(window, QStringLiteral("page")); }
    QLineEdit& SearchBox() { return Find<QLineEdit>(window, QStringLiteral("search")); }
    QListWidget& Results() { return Find<QListWidget>(window, QStringLiteral("results")); }
    QTreeWidget& Contents() { return Find<QTreeWidget>(window, QStringLiteral("contents")); }
    QAction& Command(const char* name) { return Find<QAction>(window, QString::fromLatin1(name)); }
    QString Page() { return View().Page(); }
    QString Words() { return View().Spoken(); }

    void Search(const QString& words) {
        PressKey(window, Qt::Key_F, Qt::ControlModifier);
        TypeText(window, words);
    }

    FrmHelp window;
};

TEST_F(Help, OpensWithTheFirstPage) {
    EXPECT_EQ(window.windowTitle(), "Numerello Help");
    EXPECT_EQ(Page(), "welcome");
    EXPECT_TRUE(Words().startsWith("Welcome to Numerello"));
    EXPECT_FALSE(Command("back").isEnabled());
    EXPECT_FALSE(Command("previous").isEnabled());
}

TEST_F(Help, HasThePageOfEveryTopic) {
    for (const Topic& topic : Topics()) {
        window.ShowTopic(topic.caption);
        EXPECT_TRUE(Words().startsWith(ToQString(topic.caption))) << topic.caption;
        EXPECT_EQ(Contents().currentItem()->text(0), ToQString(topic.caption));
    }
}

TEST_F(Help, ShowsTheFirstPageForNoTopic) {
    window.ShowTopic("Rounding");
    window.ShowTopic("");
    EXPECT_EQ(Page(), "welcome");
    window.ShowPage("attic");
    EXPECT_EQ(Page(), "welcome");
}

TEST_F(Help, DrawsEveryPicture) {
    HelpPictures pictures;
    int count = 0;
    for (const Topic& topic : Topics()) {
        window.ShowTopic(topic.caption);
        const QString html = View().toHtml();
        const QRegularExpression image(QStringLiteral("<img [^>]*src=\"([^\"]*)\""));
        for (auto each = image.globalMatch(html); each.hasNext();) {
            const QString address = each.next().captured(1);
            const QImage drawn = pictures.Picture(QUrl(address), {1, 1, Qt::black});
            ASSERT_FALSE(drawn.isNull()) << address.toStdString();
            EXPECT_GT(drawn.width(), 2) << address.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 105);
}

/// How far below the middle of its picture a letter stands, in pixels.
double Below(const char* address, qreal sink) {
    HelpPictures pictures;
    const QImage letter = pictures.Picture(QUrl(address), {4, 1, Qt::black, sink});
    int lowest = 0;
    for (int y = 0; y < letter.height(); ++y) {
        for (int x = 0; x < letter.width(); ++x) {
            lowest = qAlpha(letter.pixel(x, y)) > 128 ? y + 1 : lowest;
        }
    }
    return lowest - letter.height() / 2.0;
}

TEST_F(Help, SetsTheBaselineWhereTheTextBesideHasIt) {
    EXPECT_NEAR(Below("math:black/x", 0), 0, 2);
    EXPECT_NEAR(Below("math:black/x", 12), 12, 2);
    EXPECT_NEAR(Below("math:black/x%5E2%5E", 12), 12, 2);
}

TEST_F(Help, WritesInTheInkOfThePage) {
    HelpPictures pictures;
    const auto inks = [&pictures](const char* address, const QColor& ink) {
        const QImage image = pictures.Picture(QUrl(QString::fromLatin1(address)), {4, 1, ink});
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 255) {
                    colors.insert(image.pixel(x, y));
                }
            }
        }
        return colors;
    };
    const QColor pale(0xee, 0xdd, 0xcc);
    EXPECT_EQ(inks("math:page/1", pale), QSet<QRgb>{pale.rgb()});
    EXPECT_EQ(inks("math:black/1", pale), QSet<QRgb>{qRgb(0, 0, 0)});
    EXPECT_EQ(inks("math:blue/1", pale), QSet<QRgb>{qRgb(0, 0, 255)});
    EXPECT_EQ(inks("math:black/%5B1%5D", pale), QSet<QRgb>{qRgb(255, 0, 0)});
}

TEST_F(Help, GoesBackAndForward) {
    window.ShowTopic("Rounding");
    window.ShowTopic("Medians");
    PressKey(window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Page(), "rounding");
    EXPECT_EQ(Contents().currentItem()->text(0), "Rounding");
    PressKey(window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Page(), "medians");
    PressKey(window, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Page(), "welcome");
}

TEST_F(Help, GoesThroughTheContents) {
    window.ShowTopic("Means (Averages)");
    PressKey(window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Page(), "medians");
    PressKey(window, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Page(), "means-averages");
    // Over the end of a chapter.
    window.ShowTopic("Ranges");
    Command("next").trigger();
    EXPECT_EQ(Page(), "straight-obtuse-right-acute-angles");
    window.ShowTopic("Averages");
    EXPECT_FALSE(Command("next").isEnabled());
}

TEST_F(Help, FollowsALink) {
    View().setFocus();
    PressKey(window, Qt::Key_Tab);  // the first link of the page
    PressKey(window, Qt::Key_Return);
    EXPECT_EQ(Page(), "first-problem");
}

TEST_F(Help, FindsPagesAtEveryKey) {
    Search("m");
    const int many = Results().count();
    EXPECT_TRUE(Results().isVisible());
    TypeText(window, "edi");
    EXPECT_LT(Results().count(), many);
    EXPECT_EQ(Results().item(0)->text(), "Medians");
    EXPECT_EQ(Page(), "welcome");
    PressKey(window, Qt::Key_Return);
    EXPECT_EQ(Page(), "medians");
    EXPECT_FALSE(View().extraSelections().isEmpty());
    EXPECT_TRUE(View().extraSelections().first().cursor.selectedText().startsWith("Medi"));
}

TEST_F(Help, WalksThroughWhatWasFound) {
    Search("conversions");
    ASSERT_GT(Results().count(), 1);
    PressKey(window, Qt::Key_Down);
    const QString first = Page();
    PressKey(window, Qt::Key_Down);
    EXPECT_NE(Page(), first);
    EXPECT_EQ(Results().currentRow(), 1);
    EXPECT_TRUE(SearchBox().hasFocus());
    PressKey(window, Qt::Key_Up);
    EXPECT_EQ(Page(), first);
}

TEST_F(Help, SaysWhenNothingIsFound) {
    Search("xylophone");
    EXPECT_EQ(Results().count(), 0);
    EXPECT_EQ(Find<QLabel>(window, "found").text(), "No page has these words.");
    PressKey(window, Qt::Key_Return);
    EXPECT_EQ(Page(), "welcome");
}

TEST_F(Help, ClosesByEscape) {
    Search("median");
    PressKey(window, Qt::Key_Escape);
    EXPECT_EQ(SearchBox().text(), "");
    EXPECT_TRUE(Contents().isVisible());
    EXPECT_TRUE(window.isVisible());
    PressKey(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Help, ClosesByEscapeFromThePage) {
    View().setFocus();
    PressKey(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.ShowTopic("Rounding");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Page(), "rounding");
}

TEST_F(Help, OpensChaptersByAClick) {
    QTreeWidgetItem* chapter =
        Contents().findItems("Roots/Exponents", Qt::MatchExactly).constFirst();
    EXPECT_FALSE(chapter->isExpanded());
    ClickRow(
        Contents(),
        Contents().indexAt(PlaceOf(
            Contents(), Contents().model()->index(Contents().indexOfTopLevelItem(chapter), 0))));
    EXPECT_TRUE(chapter->isExpanded());
    EXPECT_EQ(Page(), "welcome");
    ClickRow(Contents(),
             Contents().model()->index(
                 0, 0, Contents().model()->index(Contents().indexOfTopLevelItem(chapter), 0)));
    EXPECT_EQ(Page(), "exponential-notation");
}

TEST_F(Help, GrowsAndShrinks) {
    window.ShowTopic("Fraction Arithmetic");
    const int usual = View().document()->defaultFont().pixelSize();
    const double height = View().document()->size().height();
    PressKey(window, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(View().document()->defaultFont().pixelSize(), usual);
    EXPECT_GT(View().document()->size().height(), height);
    PressKey(window, Qt::Key_Minus, Qt::ControlModifier);
    PressKey(window, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(View().document()->defaultFont().pixelSize(), usual);
    PressKey(window, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(View().document()->defaultFont().pixelSize(), usual);
    for (int i = 0; i < 20; ++i) {
        Command("larger").trigger();
    }
    EXPECT_EQ(View().Zoom(), 300);
    EXPECT_FALSE(Command("larger").isEnabled());
    EXPECT_EQ(Page(), "fraction-arithmetic");
}

TEST_F(Help, FitsItsPicturesIntoThePageAtAnyFontAndWidth) {
    for (const int points : {9, 14, 18}) {
        const InterfaceFont font(points);
        for (const int width : {1060, 800}) {
            window.resize(width, 700);
            for (const char* topic :
                 {"Volume of a Cylinder", "Similar Triangles", "Graphing A Linear Equation"}) {
                window.ShowTopic(topic);
                EXPECT_TRUE(QTest::qWaitFor(
                    [this] { return View().horizontalScrollBar()->maximum() == 0; }, 1000))
                    << topic << " at " << points << " in " << width;
            }
        }
    }
}

TEST_F(Help, ScrollsWhatWasOpenedIntoView) {
    const int last = Contents().topLevelItemCount() - 1;
    const QModelIndex chapter = Contents().model()->index(last, 0);
    window.resize(window.width(), 400);
    ClickRow(Contents(), chapter);
    ASSERT_TRUE(Contents().isExpanded(chapter));
    const auto child = [&] {
        return Contents().visualRect(Contents().model()->index(0, 0, chapter));
    };
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return child().height() > 0 && child().top() >= 0 &&
               child().bottom() < Contents().viewport()->height();
    })) << child().top()
        << " to " << child().bottom() << " of " << Contents().viewport()->height();
}

TEST_F(Help, KeepsTheHistoryWhenItGrows) {
    window.ShowTopic("Rounding");
    Command("larger").trigger();
    Command("back").trigger();
    EXPECT_EQ(Page(), "welcome");
}

TEST_F(Help, FollowsAChangeOfThePalette) {
    QPalette dark = window.palette();
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Link, QColor(0, 0, 255));
    window.setPalette(dark);
    const QString html = View().toHtml();
    EXPECT_TRUE(html.contains("#8ab8ff")) << "links on a dark ground stay dark";
    EXPECT_FALSE(html.contains("color:#0000ff;\"><span")) << "links on a dark ground stay dark";
    window.ShowTopic("Rounding");
    EXPECT_TRUE(View().toHtml().contains("#fffdf5")) << "paper stays paper";
}

TEST_F(Help, IsReadInWords) {
    window.ShowTopic("Fraction Arithmetic");
    EXPECT_TRUE(Words().contains("one half plus three fifths"));
    EXPECT_FALSE(Words().contains(QChar::ObjectReplacementCharacter));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(spoken, nullptr);
    ASSERT_NE(spoken->textInterface(), nullptr);
    EXPECT_EQ(spoken->textInterface()->text(0, -1), Words());
    EXPECT_EQ(spoken->role(), QAccessible::Document);
}

TEST_F(Help, NamesWhateverTakesTheFocus) {
    for (QWidget* each : window.findChildren<QWidget*>()) {
        const bool ours = !each->objectName().startsWith("qt_");
        if (ours && each->focusPolicy() != Qt::NoFocus && each->isVisible()) {
            EXPECT_FALSE(each->accessibleName().isEmpty())
                << each->metaObject()->className() << ' ' << each->objectName().toStdString();
        }
    }
}

}  // namespace

}  // namespace numerello
