#include "core/options.h"

#include <array>

namespace numerello {

namespace {

constexpr std::array<std::string_view, 5> kRoundDigits{"1", "2", "3", "4", "5"};

struct Detail {
    int ExpDetail;
    int DetailLevel;
};

constexpr std::array<std::string_view, 3> kDetailNames{"High", "Medium", "Low"};
constexpr std::array kDetails{Detail{3, 1}, Detail{2, 2}, Detail{1, 3}};

/// The explanation's detail alone decides the row, also where the other does not go with it.
int DetailRow(int ExpDetail) {
    int row = 0;
    while (kDetails.at(static_cast<std::size_t>(row)).ExpDetail != ExpDetail) {
        ++row;
    }
    return row;
}

}  // namespace

std::span<const std::string_view> RoundDigitsRows() {
    return kRoundDigits;
}

std::span<const std::string_view> DetailRows() {
    return kDetailNames;
}

OptionControls ShownOptions(const AnswerSettings& settings) {
    return {settings.RoundDigits - 1, DetailRow(settings.ExpDetail), settings.ClickNotify,
            settings.ComplexEx == AnswerSettings::kComplex};
}

void Command1_Click(const OptionControls& controls, AnswerSettings& settings) {
    if (controls.Combo1ListIndex >= 0) {
        settings.RoundDigits = controls.Combo1ListIndex + 1;
    }
    if (controls.Combo2ListIndex >= 0) {
        const Detail& detail = kDetails.at(static_cast<std::size_t>(controls.Combo2ListIndex));
        settings.ExpDetail = detail.ExpDetail;
        settings.DetailLevel = detail.DetailLevel;
    }
    settings.ClickNotify = controls.Check2;
    settings.ComplexEx = controls.Check3 ? AnswerSettings::kComplex : 0;
}

}  // namespace numerello
