#include "catalogue/complete_line.h"

#include <algorithm>
#include <string_view>

#include "core/topic_codes.h"
#include "notation/typing_point.h"

namespace numerello {

namespace {

/// The separators that a topic's solver cannot do without, each with how often.
bool HasItsSeparators(std::string_view line, int ProblemType) {
    const auto count = [line](char mark) { return std::count(line.begin(), line.end(), mark); };
    switch (ProblemType) {
        case kComparingValues:
            return count(',') == 1;
        case kPointsQuadrant:
        case kPlottingAPoint:
            return count(')') == 1;
        case kLineThroughTwoPoints:
            return count(')') == 2;
        case kFractionToPercent:
        case kMixedToFraction:
        case kFractionToMixed:
        case kSimplifyingFractions:
            return count('/') >= 1;
        case kRatios:
            return count(':') == 1;
        case kSolvingEquations:
        case kGraphingAnEquation:
            return count('=') == 1;
        default:
            return true;
    }
}

/// A list may end in its comma; the driver takes it off.
bool MayEndInComma(int ProblemType) {
    return ProblemType == kGreatestCommonFactors || ProblemType == kLeastCommonMultiples;
}

}  // namespace

bool LineIsComplete(const Problem& problem) {
    const std::string_view line = problem.typed.ProblemText;
    const int code = problem.topic.ProblemType;
    const TypingPoint end = ReadLine(line, code);
    const bool ends = IsOperandEnd(end.last) || (end.last == Role::Comma && MayEndInComma(code));
    return ends && end.ParenDepth == 0 && !end.AbsOpen && HasItsSeparators(line, code);
}

}  // namespace numerello
