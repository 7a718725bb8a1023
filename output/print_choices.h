#pragma once

namespace numerello {

/// A check box of the print options.
struct PrintChoice {
    bool enabled;
    bool ticked;
};

/// What the print options offer when they open.
struct PrintChoices {
    PrintChoice Problem;
    PrintChoice Explanation;
    PrintChoice Graph;
};

PrintChoices ChoicesAtOpening(int ProblemType, bool graphIsOpen);

/// The reasons alone are nothing to print: they stand under the lines of the problem.
constexpr bool CanPrint(bool problem, bool graph) {
    return problem || graph;
}

}  // namespace numerello
