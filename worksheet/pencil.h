#pragma once

namespace numerello {

/// The pencil that stands over the first sheet and bobs while the learner types. Places are sheet
/// pixels from the upper left corner of the first sheet to that of the pencil, so that it moves
/// with the sheet; it reaches above the sheet.
class Pencil {
  public:
    static constexpr int kWidth = 14;
    static constexpr int kHeight = 234;

    double Left() const { return left; }
    double Top() const { return top; }

    /// Above the first typing position of an empty line. A motion ends.
    void Erase();

    /// Beside the text, for a sheet without a typed line. A motion ends.
    void LieInMargin();

    /// A key was accepted: sets out on ten ticks. A motion under way goes on to its end.
    void KeyAccepted();

    /// As KeyAccepted, for those who want no motion: to where the ten ticks end.
    void KeyAcceptedAtRest();

    /// To the end of the typed line, `LineEndX` on the first sheet.
    void Follow(double LineEndX);

    /// The tick of every 10 ms while Timer1Enabled().
    void Timer1_Timer();

    bool Timer1Enabled() const { return timer1Enabled; }

    /// How many ticks of the motion are done: 0 at rest, up to 9.
    int PencilTicks() const { return pencilTicks; }

  private:
    void PutDown(double newLeft);

    double left = 0;
    double top = 0;
    int pencilTicks = 0;
    bool timer1Enabled = false;
};

}  // namespace numerello
