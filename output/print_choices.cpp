#include "output/print_choices.h"

#include "core/topic_codes.h"

namespace numerello {

PrintChoices ChoicesAtOpening(int ProblemType, bool graphIsOpen) {
    // Of these two the graph is all there is.
    const bool hasLines = ProblemType != kLineThroughTwoPoints && ProblemType != kPlottingAPoint;
    return {.Problem = {hasLines, hasLines},
            .Explanation = {hasLines && !IsColumnTopic(ProblemType), false},
            .Graph = {graphIsOpen, graphIsOpen}};
}

}  // namespace numerello
