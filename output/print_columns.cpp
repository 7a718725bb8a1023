#include "output/print_columns.h"

#include <algorithm>
#include <string>

#include "columns/steps.h"
#include "core/failure.h"
#include "core/silent_learner.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "output/print_line.h"
#include "output/print_scale.h"

namespace numerello {

namespace {

/// The signs of the four topics, by their codes from 200.
constexpr std::string_view kSigns = "+-*{";

std::string OperandLine(const Problem& problem) {
    const auto sign = static_cast<std::size_t>(problem.topic.ProblemType - kFirstColumnTopic);
    return Text(problem.columns.ColumnTop, " ", kSigns.substr(sign, 1), " ",
                problem.columns.ColumnBottom);
}

/// From the top of the highest text to the end of the lowest.
struct Extent {
    double top;
    double end;
};

/// What printing at the pen would take.
Extent ExtentOfColumns(const Problem& problem, const Surface& Printer) {
    Surface probe = Printer.Blank();
    SilentLearner silent;
    PrintColumns(problem, probe, silent);
    Extent extent{PrintScale::kHeight, 0};
    for (const Mark& mark : probe.Marks()) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            extent.top = std::min(extent.top, text->y);
            extent.end = std::max(extent.end, text->y + probe.LineHeight(text->font.size));
        }
    }
    return extent;
}

/// The layout leaves room for carries that a problem need not have: the pen goes up by that much,
/// and the highest text stands a line below where the pen was. Gives the end of the lowest.
double PlaceColumns(const Problem& problem, Surface& Printer) {
    const Extent extent = ExtentOfColumns(problem, Printer);
    const double unused = extent.top - Printer.CurrentY - Printer.LineHeight(Printer.FontSize());
    Printer.CurrentY -= unused;
    return extent.end - unused;
}

void Print(const Problem& problem, Surface& Printer, Learner& learner) {
    double end = PlaceColumns(problem, Printer);
    if (end > PrintScale::kHeight) {
        Printer.NewPage();
        end = PlaceColumns(problem, Printer);
    }
    PrintColumns(problem, Printer, learner);
    Printer.CurrentX = 0;
    Printer.CurrentY = end;
}

}  // namespace

void PrintWholeColumns(const Problem& problem, Surface& Printer, Learner& learner) {
    const double size = Printer.FontSize();
    try {
        Print(problem, Printer, learner);
    } catch (const Failure&) {
        // The learner was told when it was solved.
        PrintWholeLine(OperandLine(problem), Printer, false, learner);
    }
    Printer.SetFontSize(size);
}

}  // namespace numerello
