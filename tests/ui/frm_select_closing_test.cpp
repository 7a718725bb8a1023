#include <QMouseEvent>
#include <functional>
#include <map>

#include "tests/ui/frm_select_fixture.h"
#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {
namespace {

TEST_F(FrmSelectTest, EscCancelsInEveryControl) {
    const std::map<std::string, std::function<void()>> controls{
        {"TreeView1", [this] { TreeView1.setFocus(); }},
        {"SSTab1", [this] { SSTab1.tabBar()->setFocus(); }},
        {"Text1", [this] { OpenIndex(); }},
        {"IndexList",
         [this] {
             OpenIndex();
             IndexList.setFocus();
         }},
    };
    for (const auto& [name, enter] : controls) {
        SCOPED_TRACE(name);
        topic.ProblemType = 5;
        topic.LastProblemType = 91;
        topic.ChooserCancelled = false;
        ShowActive(form);
        enter();
        PressKeys(form, {Qt::Key_Escape});
        // The last choice, not what was stored at opening.
        ExpectCancelled(91, 1039);
    }
}

TEST_F(FrmSelectTest, EscAfterAFolderLeavesCodeZero) {
    ClickNode("Graphing");
    PressKeys(form, {Qt::Key_Escape});
    ExpectCancelled(0, 1039);
}

TEST_F(FrmSelectTest, CloseBoxBringsBackCodeAndMask) {
    ClickNode("Means(Averages)/Medians/Modes/Ranges");
    ArrowDownTo("Medians");
    EXPECT_NE(topic.InputMask, 1039);
    form.close();
    ExpectCancelled(91, 1039);
}

/// The chooser over a sheet: what the mouse does there after the chooser has closed.
class FrmSelectOverASheet : public FrmSelectTest {
  protected:
    FrmSelectOverASheet() {
        sheet.setGeometry(0, 0, 700, 700);
        sheet.show();
        form.move(100, 50);
        ShowActive(form);
    }

    QPoint OnSheet(QWidget& viewport, QPoint place) {
        return sheet.mapFromGlobal(viewport.mapToGlobal(place));
    }

    MouseCounter sheet;
};

TEST_F(FrmSelectOverASheet, SecondHalfOfADoubleClickDoesNotReachIt) {
    ClickNode("Graphing");
    const QPoint place = PlaceOf(TreeView1, NodeRow("Plotting A Point"));
    const QPoint onSheet = OnSheet(*TreeView1.viewport(), place);
    Click(*TreeView1.viewport(), place);
    ExpectChosen("Plotting A Point", 108);
    Click(sheet, onSheet);
    EXPECT_EQ(sheet.events, 0);
    Click(sheet, onSheet + QPoint(60, 0));
    EXPECT_GT(sheet.events, 0);
}

TEST_F(FrmSelectOverASheet, LaterClickDoesReachIt) {
    ClickNode("Graphing");
    const QPoint place = PlaceOf(TreeView1, NodeRow("Plotting A Point"));
    Click(*TreeView1.viewport(), place);
    QTest::qWait(kShortInterval + 20);
    Click(sheet, OnSheet(*TreeView1.viewport(), place));
    EXPECT_EQ(sheet.events, 2);
}

TEST_F(FrmSelectOverASheet, ReleaseAfterADoubleClickDoesNotReachIt) {
    OpenIndex();
    const QPoint place = PlaceOf(IndexList, IndexRow("Addition"));
    const QPoint onScreen = IndexList.viewport()->mapToGlobal(place);
    Click(*IndexList.viewport(), place);
    // The second press of the double click; the button is still held down.
    QMouseEvent second(QEvent::MouseButtonDblClick, place, onScreen, Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(IndexList.viewport(), &second);
    ExpectChosen("Addition", 200);
    Release(sheet, sheet.mapFromGlobal(onScreen));
    EXPECT_EQ(sheet.events, 0);
    Click(sheet, sheet.mapFromGlobal(onScreen));
    EXPECT_EQ(sheet.events, 2);
}

}  // namespace
}  // namespace numerello
