#include "worksheet/pencil.h"

#include <algorithm>

namespace numerello {

namespace {

constexpr double kFirstLeft = 63;
constexpr double kFirstTop = -132;
constexpr double kMarginLeft = 36;  ///< left of the red line, where no box and no text begins

constexpr int kTicks = 10;
constexpr double kDip = 30;
constexpr double kZigzag = 3;
constexpr double kRestTop = -134;
constexpr double kLeftmost = 65;

bool IsOdd(int ticks) {
    return ticks % 2 != 0;
}

}  // namespace

void Pencil::Erase() {
    PutDown(kFirstLeft);
}

void Pencil::LieInMargin() {
    PutDown(kMarginLeft);
}

void Pencil::PutDown(double newLeft) {
    left = newLeft;
    top = kFirstTop;
    pencilTicks = 0;
    timer1Enabled = false;
}

void Pencil::KeyAccepted() {
    timer1Enabled = true;
}

void Pencil::KeyAcceptedAtRest() {
    pencilTicks = 0;
    timer1Enabled = false;
    top = kRestTop - kZigzag;
}

void Pencil::Follow(double LineEndX) {
    // Between an odd tick and the next one the pencil stands to the right of its place; without
    // that a key in mid-motion would leave it beside the line's end.
    left = LineEndX + (IsOdd(pencilTicks) ? kZigzag : 0);
}

void Pencil::Timer1_Timer() {
    if (!timer1Enabled) {
        return;
    }
    if (pencilTicks == 0) {
        top += kDip;
    }
    ++pencilTicks;
    if (pencilTicks == kTicks) {
        timer1Enabled = false;
        pencilTicks = 0;
        top = kRestTop;
        left = std::max(left, kLeftmost);
    }
    left += IsOdd(pencilTicks) ? kZigzag : -kZigzag;
    top -= kZigzag;
}

}  // namespace numerello
