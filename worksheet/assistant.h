#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// The Wiz, a figure that stands on the desk and explains, and the notice below it that asks for a
/// click. It grows in, shrinks out and can be dragged about. Lengths are pixels of the form's
/// visible part, from its upper left corner.
class Assistant {
  public:
    static constexpr int kWidth = 108;
    static constexpr int kHeight = 128;

    /// The problem must outlive the assistant.
    explicit Assistant(const Problem& problem);

    /// The figure of the settings, at its first place and still unseen.
    void Load();

    /// The form has this size, and its first sheet would lie centred at `sheetLeft`. The figure
    /// stands beside it, unless it was dragged elsewhere; a dragged one that the form no longer
    /// shows comes in as far as it must, and goes back when there is room again.
    void PlaceBeside(int sheetLeft, int formWidth, int formHeight);

    /// The left edge of its first place.
    static int FirstLeft(int sheetLeft, int formWidth);

    /// Another figure was chosen in the settings; it appears at the size of the moment.
    void ChooseFigure();

    /// The settings turned the notice on or off.
    void ClickNotifyChanged();

    /// "Show Wiz Assistant" was ticked or unticked: the figure grows in or shrinks out.
    void mnuHideWiz_Click(bool ticked);

    /// The tick of every 10 ms while WizInEnabled() or WizOutEnabled().
    void wizIn_Timer();
    void WizOut_Timer();
    bool WizInEnabled() const { return growing; }
    bool WizOutEnabled() const { return shrinking; }

    /// For those who want no motion: ends the one under way at once.
    void EndMotion();

    /// The divisor of the figure's size: 1 is full size, 10 is a tenth.
    double WizScale() const { return wizScale; }

    /// The key of the figure's picture.
    std::string_view WizImage() const { return wizImage; }

    bool Visible() const { return visible; }
    /// Whether the picture is painted; it is not before the first tick of growing.
    bool Painted() const { return painted; }

    double Left() const;
    double Top() const;
    double Width() const { return width; }
    double Height() const { return height; }

    /// A button went down, at this place of the figure.
    void Wizard_MouseDown(int X, int Y);

    /// The mouse moves with the left button down.
    void Wizard_MouseMove(int X, int Y);

    /// The left button came up: the figure comes back onto the form. True when it was a click that
    /// is to be answered by an explanation.
    bool Wizard_MouseUp();

    /// The arrow waits: the notice begins to flash, if the figure stands, the settings want it and
    /// there is something to explain.
    void Notify();

    /// The notice goes until it is next asked for.
    void StopNotice();

    /// As StopNotice, and nothing asks for it before RestartWork.
    void EndWork();
    void RestartWork();

    /// The tick of every 800 ms while ClickMeEnabled().
    void clickMe_Timer();
    bool ClickMeEnabled() const { return clickMe; }
    bool ClickVisible() const { return clickVisible; }

  private:
    void Size();
    void Vanish();
    bool MayNotify() const;

    const Problem& problem;
    std::string_view wizImage = "wiz3";
    double wizScale = 1;
    double width = kWidth;
    double height = kHeight;
    bool visible = false;
    bool painted = false;
    bool growing = false;
    bool shrinking = false;

    double left = 0;
    double top = 0;
    int formWidth = 0;
    int formHeight = 0;
    int besideSheet = 0;  ///< the left edge of the sheet that it was last placed beside
    bool pressed = false;
    bool dragged = false;  ///< away from its first place, by the learner
    int pressX = 0;
    int pressY = 0;
    double pressLeft = 0;
    double pressTop = 0;

    bool clickMe = false;
    bool clickVisible = false;
    bool workEnded = false;
};

}  // namespace numerello
