#include "typeset/shown_sign.h"

#include <algorithm>
#include <array>

namespace numerello {

namespace {

struct Sign {
    std::string_view character;
    std::string_view shown;
};

constexpr std::array kSigns{
    Sign{"{", "\u00f7"},
    Sign{"`", "\u03c0"},
    Sign{"\\", "\u00b1"},
    Sign{"$", "\u2260"},
};

}  // namespace

std::string_view ShownSign(std::string_view character) {
    const auto* const sign =
        std::find_if(kSigns.begin(), kSigns.end(),
                     [character](const Sign& each) { return each.character == character; });
    return sign == kSigns.end() ? character : sign->shown;
}

}  // namespace numerello
