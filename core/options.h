#pragma once

#include <span>
#include <string_view>

#include "core/problem.h"

/// The settings dialog without its window.
namespace numerello {

/// What its controls show. Rows count from 0.
struct OptionControls {
    int Combo1ListIndex = 0;  ///< row of RoundDigitsRows()
    int Combo2ListIndex = 0;  ///< row of DetailRows()
    bool Check2 = false;      ///< Click Notification Enabled
    bool Check3 = false;      ///< Complex Examples
};

/// The rows of Combo1 and of Combo2.
std::span<const std::string_view> RoundDigitsRows();
std::span<const std::string_view> DetailRows();

/// What the dialog opens with.
OptionControls ShownOptions(const AnswerSettings& settings);

/// OK. A list without a choice changes nothing; the assistant's picture was stored by its click.
void Command1_Click(const OptionControls& controls, AnswerSettings& settings);

}  // namespace numerello
