#pragma once

#include "log_check.h"

namespace numerello {

/// An equation as the sum of its letters' multiples and a number that equals 0, from its left side
/// minus its right side.
struct LinearForm {
    std::map<char, Rational> counts;  ///< of the letters, 0 left out
    Rational constant = 0;

    friend bool operator==(const LinearForm& a, const LinearForm& b) {
        return a.counts == b.counts && a.constant == b.constant;
    }
};

/// Of typed characters or of a line; throws as ValueOf does.
LinearForm TypedLinearForm(int code, std::string_view typed);
LinearForm LineLinearForm(std::string_view line);

/// Whether every line of a solved equation has the solutions of the problem, and the end says what
/// they are: for 101 and 122 the first letter's value, for 105 the line solved for a letter, else
/// that none or any number solves it.
Verdict JudgeEquation(const SolvedProblem& worked);

}  // namespace numerello
