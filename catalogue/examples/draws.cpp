#include "catalogue/examples/draws.h"

#include "catalogue/random_digit.h"
#include "core/number.h"

namespace numerello {

ExampleDraws::ExampleDraws(const Clock& clock, RandomSource& digits, RandomSource& direct)
    : clock(clock), digits(digits), direct(direct) {
    Seed(static_cast<std::uint32_t>(clock.MinutesAndSeconds()));
}

int ExampleDraws::RandInt() {
    return numerello::RandInt(clock, digits);
}

int ExampleDraws::RandInt2to9() {
    return numerello::RandInt2to9(clock, digits);
}

std::string ExampleDraws::Digits(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += WholeText(RandInt());
    }
    return text;
}

}  // namespace numerello
