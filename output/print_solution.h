#pragma once

#include <string_view>

#include "core/learner.h"
#include "core/problem.h"
#include "output/print_heading.h"
#include "typeset/surface.h"

namespace numerello {

/// What to print, and under which heading.
struct PrintOrder {
    HeadingLines heading;
    bool Problem = true;
    bool Explanation = false;
    bool Graph = false;
};

/// The graph's picture on a printed page. Its corner is where the mark is; it is a square, as large
/// as the paper allows.
inline constexpr std::string_view kGraphPicture = "graph";

/// Prints the worked problem, all its lines however far the sheet has shown them, with the reasons
/// under them if wanted, and the graph on a page of its own. `Printer` is an empty print surface in
/// the sheets' face at 12 points. What cannot be drawn is told the learner.
void PrintSolution(const Problem& problem, const PrintOrder& order, Surface& Printer,
                   Learner& learner);

/// The page of the graph, which ends there.
void PrintTheGraph(const HeadingLines& heading, bool WithHeading, Surface& Printer);

}  // namespace numerello
