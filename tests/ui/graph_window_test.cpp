#include <gtest/gtest.h>

#include <QAccessible>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>

#include "tests/ui/graph_window_fixture.h"
#include "tests/ui/interface_font.h"

namespace numerello {
namespace {

TEST_F(GraphWindow, HasEveryMenuEntryUnderItsName) {
    OpenLine();
    const std::vector<std::pair<const char*, std::vector<std::pair<const char*, const char*>>>>
        menus{{"mnuGraphFile|&File",
               {{"mnuGraphPrint", "&Print"},
                {"mnuGraphPrintSetup", "Print &Setup"},
                {"mnuGraphExit", "&Exit"}}},
              {"mnuGraphOptions|&Options",
               {{"mnuToggleZoomButtons", "Toggle &Zoom Buttons"},
                {"mnuToggleCoordinates", "Toggle &Coordinates"},
                {"mnuGraphQuadrant", "Toggle &Quadrants"},
                {"mnuGraphHighQuality", "Highest &Quality"},
                {"mnuGraphHighSpeed", "Highest &Speed"}}},
              {"mnuGraphSettings|&Change Colors",
               {{"mnuGraphColor", "&Line Color"},
                {"mnuGraphGridColor", "&Grid Color"},
                {"mnuGraphDefault", "&Default Colors"}}},
              {"mnuGraphWindow|&Window",
               {{"mnuGraphSmall", "&Small"},
                {"mnuGraphNormal", "&Normal"},
                {"mnuGraphMax", "&Large"},
                {"mnuGraphZoomIn", "Zoom &In"},
                {"mnuGraphZoomOut", "Zoom &Out"}}}};
    for (const auto& [named, entries] : menus) {
        const QStringList parts = QString::fromUtf8(named).split(u'|');
        const auto& menu = Find<QMenu>(*form, parts[0]);
        EXPECT_EQ(menu.title(), parts[1]);
        QStringList shown;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator()) {
                shown << action->objectName();
            }
        }
        QStringList expected;
        for (const auto& [name, text] : entries) {
            expected << QString::fromUtf8(name);
            EXPECT_EQ(Command(name).text().toStdString(), text);
        }
        EXPECT_EQ(shown, expected);
    }
}

TEST_F(GraphWindow, OpensWithTheDefaults) {
    OpenLine();
    EXPECT_EQ(form->objectName(), "frmGraph");
    EXPECT_EQ(form->windowTitle(), "Graphing A Linear Equation");
    // 8000 twips, 15 to a pixel.
    EXPECT_EQ(Picture().size(), QSize(533, 533));
    EXPECT_EQ(Edge(), 20);
    EXPECT_EQ(form->Shown().GraphStep(), 0.2);
    EXPECT_TRUE(Ticked("mnuToggleZoomButtons"));
    EXPECT_TRUE(Ticked("mnuToggleCoordinates"));
    EXPECT_FALSE(Ticked("mnuGraphQuadrant"));
    EXPECT_FALSE(Ticked("mnuGraphHighQuality"));
    EXPECT_TRUE(Ticked("mnuGraphHighSpeed"));
    EXPECT_TRUE(In().isVisible());
    EXPECT_TRUE(Out().isVisible());
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(In().size(), QSize(48, 48));
    EXPECT_EQ(In().toolTip(), "Zoom In");
    EXPECT_EQ(Out().size(), QSize(48, 48));
    EXPECT_EQ(Out().toolTip(), "Zoom Out");
}

TEST_F(GraphWindow, QuadrantsAreTickedForTheTopicThatAsksForOne) {
    Open(AskedPoint(kPointsQuadrant));
    EXPECT_TRUE(Ticked("mnuGraphQuadrant"));
    EXPECT_TRUE(form->Shown().ShowsQuadrants());
    Command("mnuGraphQuadrant").trigger();
    EXPECT_FALSE(Ticked("mnuGraphQuadrant"));
    EXPECT_FALSE(form->Shown().ShowsQuadrants());
}

TEST_F(GraphWindow, ExactlyOneOfQualityAndSpeedIsTicked) {
    OpenLine();
    EXPECT_EQ(List().model()->rowCount(), 201);
    Command("mnuGraphHighQuality").trigger();
    EXPECT_TRUE(Ticked("mnuGraphHighQuality"));
    EXPECT_FALSE(Ticked("mnuGraphHighSpeed"));
    EXPECT_EQ(settings.GraphQuality, 1);
    EXPECT_EQ(List().model()->rowCount(), 4000);
    Command("mnuGraphHighQuality").trigger();
    EXPECT_TRUE(Ticked("mnuGraphHighQuality"));
    Command("mnuGraphHighSpeed").trigger();
    EXPECT_FALSE(Ticked("mnuGraphHighQuality"));
    EXPECT_TRUE(Ticked("mnuGraphHighSpeed"));
    EXPECT_EQ(settings.GraphQuality, 20);
    EXPECT_EQ(List().model()->rowCount(), 201);
}

TEST_F(GraphWindow, TheQualityOfTheLastWindowIsTicked) {
    settings.GraphQuality = kHighQuality;
    OpenLine();
    EXPECT_TRUE(Ticked("mnuGraphHighQuality"));
    EXPECT_FALSE(Ticked("mnuGraphHighSpeed"));
    EXPECT_EQ(form->Shown().GraphStep(), 0.01);
}

TEST_F(GraphWindow, ZoomsByButtonsKeysAndMenuUpToTheLimits) {
    OpenLine();
    Click(In());
    EXPECT_EQ(Edge(), 10);
    PressKey(*form, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Edge(), 5);
    EXPECT_FALSE(In().isEnabled());
    EXPECT_FALSE(Command("mnuGraphZoomIn").isEnabled());
    Click(In());
    PressKey(*form, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(Edge(), 5);

    Click(Out());
    EXPECT_EQ(Edge(), 10);
    EXPECT_TRUE(In().isEnabled());
    PressKey(*form, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Edge(), 20);
    Command("mnuGraphZoomOut").trigger();
    EXPECT_EQ(Edge(), 40);
    for (int i = 0; i < 20; ++i) {
        Click(Out());
    }
    EXPECT_EQ(Edge(), 81920);
    EXPECT_FALSE(Out().isEnabled());
    EXPECT_EQ(EntryAt(0), "x=-81920  y=-163837");
}

TEST_F(GraphWindow, ShowsAndHidesButtonsAndList) {
    OpenLine();
    Command("mnuToggleZoomButtons").trigger();
    EXPECT_FALSE(In().isVisible());
    EXPECT_FALSE(Out().isVisible());
    EXPECT_TRUE(List().isVisible());
    Command("mnuToggleZoomButtons").trigger();
    EXPECT_TRUE(In().isVisible());
    Command("mnuToggleCoordinates").trigger();
    EXPECT_FALSE(Ticked("mnuToggleCoordinates"));
    EXPECT_FALSE(List().isVisible());
    Command("mnuToggleCoordinates").trigger();
    EXPECT_TRUE(List().isVisible());
}

TEST_F(GraphWindow, ControlsKeepTheirPlaceAtAnySizeAndRange) {
    OpenLine();
    for (const char* change : {"mnuGraphSmall", "mnuGraphZoomOut", "mnuGraphHighQuality",
                               "mnuGraphNormal", "mnuGraphZoomIn", "mnuGraphMax"}) {
        Command(change).trigger();
        QCoreApplication::processEvents();
        const QRect drawing = Picture().rect();
        EXPECT_TRUE(drawing.contains(List().geometry())) << change;
        EXPECT_EQ(List().geometry().right(), drawing.right()) << change;
        EXPECT_TRUE(drawing.contains(In().geometry())) << change;
        EXPECT_TRUE(drawing.contains(Out().geometry())) << change;
        EXPECT_EQ(In().y(), Out().y()) << change;
        EXPECT_GT(Out().x(), In().geometry().right()) << change;
        EXPECT_FALSE(List().geometry().intersects(Out().geometry())) << change;
        // The figures of the x axis stay free.
        EXPECT_GT(List().y(), drawing.height() / 2 + 20) << change;
    }
}

TEST_F(GraphWindow, SizesKeepTheWindowCentred) {
    OpenLine();
    form->move(200, 60);
    const QPoint centre = form->geometry().center();
    const auto distance = [&] { return (form->geometry().center() - centre).manhattanLength(); };
    Command("mnuGraphSmall").trigger();
    // 4000 twips.
    EXPECT_EQ(Picture().size(), QSize(267, 267));
    EXPECT_LE(distance(), 2);
    Command("mnuGraphNormal").trigger();
    EXPECT_EQ(Picture().size(), QSize(533, 533));
    EXPECT_LE(distance(), 2);
    Command("mnuGraphMax").trigger();
    EXPECT_TRUE(form->isMaximized());
    Command("mnuGraphSmall").trigger();
    EXPECT_FALSE(form->isMaximized());
    EXPECT_EQ(Picture().size(), QSize(267, 267));
}

TEST_F(GraphWindow, TheListReadsByArrowKeys) {
    OpenLine();
    EXPECT_EQ(EntryAt(0), "x=-20  y=-37");
    EXPECT_EQ(EntryAt(100), "x=0  y=2.99999999999992");
    List().setFocus();
    PressKeys(*form, {Qt::Key_Down, Qt::Key_Down});
    EXPECT_EQ(List().currentIndex().row(), 2);
    PressKey(*form, Qt::Key_End);
    EXPECT_EQ(List().currentIndex().row(), 200);
    PressKey(*form, Qt::Key_Up);
    EXPECT_EQ(List().currentIndex().data().toString(), EntryAt(199));
}

TEST_F(GraphWindow, TheListIsNoLargerThanItsEntries) {
    Open(AskedPoint(kPlottingAPoint));
    EXPECT_EQ(List().model()->rowCount(), 1);
    EXPECT_LT(List().height(), 40);
    EXPECT_LT(List().width(), 160);
}

/// The first entry has as many characters as the second, but is wider.
TEST_F(GraphWindow, TheListShowsItsEntriesWholeInAnyFont) {
    for (const int points : {8, 9, 10, 12, 14, 18}) {
        const InterfaceFont font(points);
        Problem problem = AskedPoint(kLineThroughTwoPoints);
        problem.graph = {kTwoPointsGraph, -12, 2, 5, -16};
        Open(problem);
        EXPECT_FALSE(List().verticalScrollBar()->isVisible()) << points;
        EXPECT_FALSE(List().horizontalScrollBar()->isVisible()) << points;
        for (int row = 0; row < 2; ++row) {
            const QRect place = List().visualRect(List().model()->index(row, 0));
            EXPECT_TRUE(List().viewport()->rect().contains(place)) << points;
            EXPECT_GT(place.width(), List().fontMetrics().horizontalAdvance(EntryAt(row)));
            EXPECT_GE(place.height(), List().fontMetrics().height()) << points;
        }
        delete form;
    }
}

TEST_F(GraphWindow, EscapeAndExitClose) {
    OpenLine();
    PressKey(*form, Qt::Key_Escape);
    EXPECT_FALSE(form && form->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form);
    OpenLine();
    Command("mnuGraphExit").trigger();
    EXPECT_FALSE(form && form->isVisible());
}

TEST_F(GraphWindow, PrintingIsAskedForWhenItIsOpen) {
    OpenLine();
    EXPECT_FALSE(Command("mnuGraphPrint").isEnabled());
    EXPECT_FALSE(Command("mnuGraphPrintSetup").isEnabled());
    form->SetPrintEnabled(true);
    const QSignalSpy printed(form, &FrmGraph::PrintAsked);
    const QSignalSpy setUp(form, &FrmGraph::PrintSetupAsked);
    Command("mnuGraphPrint").trigger();
    EXPECT_EQ(printed.count(), 1);
    EXPECT_EQ(setUp.count(), 0);
    Command("mnuGraphPrintSetup").trigger();
    EXPECT_EQ(setUp.count(), 1);
}

TEST_F(GraphWindow, IsToldInWords) {
    OpenLine();
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(&Picture());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->role(), QAccessible::Graphic);
    EXPECT_EQ(picture->text(QAccessible::Name), "Graph");
    EXPECT_EQ(picture->text(QAccessible::Description),
              "x and y go from -20 to 20. A line that rises from left to right. It crosses the x "
              "axis at -1.5 and the y axis at 3.");
    Click(Out());
    EXPECT_TRUE(picture->text(QAccessible::Description).startsWith("x and y go from -40 to 40."));
    EXPECT_EQ(List().accessibleName(), "Coordinates");
    EXPECT_EQ(In().accessibleName(), "Zoom In");
    EXPECT_EQ(Out().accessibleName(), "Zoom Out");
}

TEST_F(GraphWindow, TabReachesEveryControl) {
    OpenLine();
    QStringList reached;
    for (int i = 0; i < 4; ++i) {
        reached << form->focusWidget()->objectName();
        PressKey(*form, Qt::Key_Tab);
    }
    EXPECT_EQ(reached, QStringList({"Picture1", "Command1", "Command2", "List1"}));
    Click(In());
    PressKey(*form, Qt::Key_Space);
    In().setFocus();
    PressKey(*form, Qt::Key_Space);
    EXPECT_EQ(Edge(), 5);
}

}  // namespace
}  // namespace numerello
