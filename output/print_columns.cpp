#include "output/print_columns.h"
#include "core/topic_codes.h"

#include <algorithm>
#include <string>

#include "columns/steps.h"
#include "core/failure.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "output/print_line.h"
#include "output/print_scale.h"
#include "output/silent_learner.h"

namespace numerello {

namespace {

/// The signs of the four topics, by their codes from 200.
constexpr std::string_view kSigns = "+-*{";

std::string OperandLine(const Problem& problem) {
    const auto sign = static_cast<std::size_t>(problem.topic.ProblemType - kFirstColumnTopic);
    return Text(problem.columns.ColumnTop, " ", kSigns.substr(sign, 1), " ",
                problem.columns.ColumnBottom);
}

double LineHeight(Surface probe, double points) {
    probe.SetFontSize(points);
    const double top = probe.CurrentY;
    probe.Print("", Surface::LineEnd::Break);
    return probe.CurrentY - top;
}

/// The Y below the lowest mark that printing here would leave.
double EndOfColumns(const Problem& problem, Surface probe) {
    const std::size_t before = probe.Marks().size();
    SilentLearner silent;
    PrintColumns(problem, probe, silent);
    double end = probe.CurrentY;
    for (std::size_t i = before; i < probe.Marks().size(); ++i) {
        if (const auto* const text = std::get_if<TextMark>(&probe.Marks()[i])) {
            end = std::max(end, text->y + LineHeight(probe, text->font.size));
        }
    }
    return end;
}

void Print(const Problem& problem, Surface& Printer, Learner& learner) {
    double end = EndOfColumns(problem, Printer);
    if (end > PrintScale::kHeight) {
        Printer.NewPage();
        end = EndOfColumns(problem, Printer);
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
