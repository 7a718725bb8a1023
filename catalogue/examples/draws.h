#pragma once

#include <cstdint>
#include <string>

#include "core/clock.h"
#include "core/random_source.h"

namespace numerello {

/// The draws that examples are made of, in two streams. RandInt and RandInt2to9 are seeded with the
/// moment at every call, so that all digits of one second are alike; the direct draws are seeded
/// once and go on, whatever digits are drawn between them.
class ExampleDraws {
  public:
    /// All three must outlive the draws. Seeds the direct draws with the moment.
    ExampleDraws(const Clock& clock, RandomSource& digits, RandomSource& direct);

    /// Seeds the direct draws anew.
    void Seed(std::uint32_t seed) { direct.Seed(seed); }

    int RandInt();
    int RandInt2to9();

    /// RandInt Mod count.
    int RandIntMod(int count) { return RandInt() % count; }

    /// So many draws of RandInt as one text.
    std::string Digits(int count);

    /// A direct draw: from 0 up to, not including, `count`.
    int Below(int count) { return static_cast<int>(direct.Rnd() * count); }

    /// A direct draw of 0 out of 0 and 1: then a number gets its "-".
    std::string Sign() { return Below(2) == 0 ? "-" : ""; }

  private:
    const Clock& clock;
    RandomSource& digits;
    RandomSource& direct;
};

}  // namespace numerello
