#pragma once

#include "catalogue/examples/example.h"
#include "catalogue/random_digit.h"
#include "catalogue/topics.h"
#include "tests/catalogue/typing.h"

namespace numerello {

constexpr int kMoments = 3600;

/// "mmss" of a second of the hour.
inline int MomentAt(int second) {
    return second / 60 * 100 + second % 60;
}

/// The first moment of the hour at which RandInt draws this digit.
inline int MomentOf(int digit) {
    MersenneSource random;
    int second = 0;
    while (second < kMoments && RandInt(FixedClock(MomentAt(second)), random) != digit) {
        ++second;
    }
    return MomentAt(second);
}

/// The draws of one moment.
class MomentDraws {
  public:
    explicit MomentDraws(int moment) : clock(moment) {}
    MomentDraws(int moment, std::uint32_t seed) : clock(moment) { draws.Seed(seed); }

    ExampleDraws& operator*() { return draws; }

  private:
    FixedClock clock;
    MersenneSource digits;
    MersenneSource direct;
    ExampleDraws draws{clock, digits, direct};
};

}  // namespace numerello
