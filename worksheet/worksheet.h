#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "core/solve_driver.h"
#include "typeset/sheets.h"
#include "worksheet/assistant.h"
#include "worksheet/pencil.h"
#include "worksheet/sheet_stack.h"

namespace numerello {

/// The paper of the entry form: draws the typed line and plays the step log line by line onto a
/// stack of sheets. The flashing arrow waits behind the last line; a check mark ends the work.
/// Where playback stands is kept in the problem's record.
class Worksheet : public Stage, public PaperSheets {
  public:
    static constexpr int kSheetCount = SheetStack::kCount;

    /// All three must outlive the worksheet.
    Worksheet(Problem& problem, const TextMetrics& metrics, Learner& learner);

    /// The sheets as a freshly loaded form shows them: the topic's titles, nothing drawn, the first
    /// sheet centred at the upper edge of a view of this width, in pixels.
    void Open(int viewWidth);

    /// The view was resized. Centres the first sheet across it, but not beyond its left edge; the
    /// sheets that lie fanned over it move along. Once a sheet was dragged, all stay where they
    /// lie.
    void Centre(int viewWidth);

    /// Where the first sheet lies centred in a view of this width.
    static int CentredLeft(int viewWidth);

    /// Lays the sheet in use over all others.
    void RaiseCurrentSheet();

    /// Lays the sheet before (-1) or after (1) the uppermost one over all others, by number. False
    /// when there is none.
    bool RaiseNeighbour(int direction);

    /// A button went down on a sheet, at this place of it; the left one lays it over all others.
    void Paper_MouseDown(int Index, bool leftButton, int X, int Y);

    /// As on the first sheet, but what the picture brings to light is the first sheet alone.
    void Picture3_MouseDown(int X, int Y);

    /// The mouse moves on a sheet, which follows it while the left button is down.
    void Paper_MouseMove(int Index, bool leftButton, int X, int Y);

    /// The part of the desk that is seen, from its upper left corner.
    struct SeenDesk {
        double left;
        double top;
        double width;
        double height;
    };

    /// The left button came up: a sheet that was dragged comes back as far as to be seen and
    /// gripped again.
    void Paper_MouseUp(int Index, const SeenDesk& seen);

    /// Draws the line as it is typed, in place of the one drawn before. Nothing for a topic with
    /// boxes, nor once typing is closed.
    void DrawTypedLine();

    /// After each key of the typed line: the pencil follows the line's end, and writes when the key
    /// was accepted. Without motion it jumps to where it comes to rest.
    void MovePencil(bool motion);

    /// Draws the line that ShownStep points at and the arrow behind it; the last line gets the
    /// check mark instead. With ShownStep 0 draws all lines at once, up to the check mark.
    void ShowNextStep() override;

    /// Draws the next step of the column request, and the arrow behind it unless it was the last.
    void DrawColumns() override;

    /// The learner clicked the arrow. Nothing when none is visible.
    void blinker_Click();

    /// Show Step-By-Step was ticked or unticked, also while the arrow waits.
    void mnuShowStep_Click(bool ticked);

    /// The tick of every 400 ms while Timer2Enabled(): changes the arrow's picture.
    void Timer2_Timer();

    /// The tick of every 10 ms while ThePencil().Timer1Enabled().
    void Timer1_Timer();

    const Pencil& ThePencil() const { return pencil; }

    Assistant& TheAssistant() { return assistant; }
    const Assistant& TheAssistant() const { return assistant; }

    /// Ends the work: the check mark behind the last line, no arrow, no column request.
    void DrawCheckMark();

    void BlankSheets() override;

    Surface& Current() override;
    void Turn() override;
    void PlaceBlinker() override;

    /// A sheet by its number, 0 to 9; throws Failure(Format) for any other. Stays valid as long as
    /// the worksheet.
    const Sheet& SheetAt(int index) const { return stack[index]; }

    /// The numbers of the visible sheets, the lowest first.
    const std::vector<int>& StackingOrder() const { return stack.Order(); }

    /// Whether the arrow waits on the sheet in use.
    bool ArrowVisible() const;

    /// Whether the arrow shows the second of its two pictures.
    bool ArrowFrame() const { return arrowFrame; }

    bool Timer2Enabled() const { return timer2Enabled; }

    /// Calls `listener` whenever what is to be seen has changed.
    void OnChange(std::function<void()> listener) { onChange = std::move(listener); }

  protected:
    /// Shows the graph that GraphMode asks for.
    virtual void OpenGraph() {}

    /// Draws the next step of the column request, and ends it by DrawCheckMark after the last.
    virtual void StepColumns() {}

  private:
    void ShowAllLines();
    void ShowLastLine();
    void PrintStep(int index, bool showBlinker);
    void FinishWork();
    void TakeRequests();

    void HoldSheet(int Index, int X, int Y);
    void ClearTo(int lastSheet);
    void HideArrow();
    Sheet& CurrentSheet();
    void Changed();

    Problem& problem;
    Learner& learner;
    SheetStack stack;
    Pencil pencil;
    Assistant assistant;
    int lastViewWidth = 0;
    int dragStartX = 0;  ///< the place of the mouse on its sheet at the last press
    int dragStartY = 0;
    double heldLeft = 0;  ///< the place of the pressed sheet then
    double heldTop = 0;
    bool movedSincePress = false;
    bool sheetsDragged = false;  ///< since the sheets were last laid out
    bool timer2Enabled = false;
    bool arrowFrame = false;
    bool outOfSheets = false;  ///< the log outgrew the tenth sheet: the rest stays undrawn
    std::function<void()> onChange;
};

}  // namespace numerello
