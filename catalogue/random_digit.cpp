#include "catalogue/random_digit.h"

namespace numerello {

namespace {

double SeededDraw(const Clock& clock, RandomSource& random) {
    random.Seed(static_cast<std::uint32_t>(clock.MinutesAndSeconds()));
    return random.Rnd();
}

}  // namespace

int RandInt(const Clock& clock, RandomSource& random) {
    return static_cast<int>(SeededDraw(clock, random) * 9) + 1;
}

int RandInt2to9(const Clock& clock, RandomSource& random) {
    return static_cast<int>(SeededDraw(clock, random) * 8) + 2;
}

}  // namespace numerello
