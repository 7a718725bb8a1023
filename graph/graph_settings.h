#pragma once

#include "typeset/surface.h"

namespace numerello {

/// How exactly a curve is computed: 1 is 20 times as fine as 20.
inline constexpr int kHighQuality = 1;
inline constexpr int kHighSpeed = 20;

/// What the learner chose for all graphs, kept as long as the program runs.
struct GraphSettings {
    static constexpr Color kDefaultLineColor = kRed;
    static constexpr Color kDefaultGridColor = 16766596;  ///< a light blue

    Color GraphLineColor = kDefaultLineColor;
    Color GraphGridColor = kDefaultGridColor;
    int GraphQuality = kHighSpeed;
};

}  // namespace numerello
