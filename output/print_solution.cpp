#include "output/print_solution.h"

#include "core/topic_codes.h"
#include "output/kept_together.h"
#include "output/print_columns.h"
#include "output/print_line.h"
#include "typeset/variants.h"

namespace numerello {

namespace {

constexpr double kReasonSize = 10;

void SetLineFont(Surface& Printer) {
    Printer.SetFontName(kSheetFace);
    Printer.SetFontSize(kSheetPoints);
}

void PrintReason(std::string_view reason, Surface& Printer, Learner& learner) {
    Printer.SetFontName(kExplanationFace);
    Printer.SetFontSize(kReasonSize);
    if (!reason.empty()) {
        PrintWholeLine(reason, Printer, true, learner);
    }
    Printer.SetFontSize(kSheetPoints);
    PrintEmptyLine(Printer);
    Printer.SetFontName(kSheetFace);
}

void PrintExplained(std::string_view step, std::string_view reason, Surface& Printer,
                    Learner& learner) {
    const auto print = [step, reason](Surface& page, Learner& told) {
        PrintWholeLine(step, page, false, told);
        PrintReason(reason, page, told);
    };
    KeepTogether(Printer, print);
    print(Printer, learner);
}

void PrintSteps(const StepLog& log, bool withReasons, Surface& Printer, Learner& learner) {
    // The first line names the problem; its reason is the instruction to enter it.
    if (log.StepCount > 1) {
        PrintWholeLine(log.StepText[1], Printer, false, learner);
    }
    for (int i = 2; i < log.StepCount; ++i) {
        // Below a reason there is an empty line.
        if (!withReasons || i == 2) {
            PartFractions(log.StepText[i - 1], log.StepText[i], Printer);
        }
        if (withReasons) {
            PrintExplained(log.StepText[i], log.StepNote[i], Printer, learner);
        } else {
            PrintWholeLine(log.StepText[i], Printer, false, learner);
        }
    }
}

/// A problem that failed before its first line is named as it was typed.
void PrintProblem(const Problem& problem, bool withReasons, Surface& Printer, Learner& learner) {
    if (IsColumnTopic(problem.topic.ProblemType)) {
        PrintWholeColumns(problem, Printer, learner);
    } else if (problem.log.StepCount <= 1 && IsTypedOnLine(problem.topic.ProblemType)) {
        PrintWholeLine(problem.typed.DisplayLine, Printer, false, learner);
    } else {
        PrintSteps(problem.log, withReasons, Printer, learner);
    }
}

}  // namespace

void PrintSolution(const Problem& problem, const PrintOrder& order, Surface& Printer,
                   Learner& learner) {
    SetLineFont(Printer);
    if (order.Problem) {
        PrintHeading(order.heading, Printer);
        PrintEmptyLine(Printer);
        PrintProblem(problem, order.Explanation, Printer, learner);
    }
    if (order.Graph) {
        if (order.Problem) {
            Printer.NewPage();
        }
        PrintTheGraph(order.heading, !order.Problem, Printer);
    }
}

void PrintTheGraph(const HeadingLines& heading, bool WithHeading, Surface& Printer) {
    SetLineFont(Printer);
    if (WithHeading) {
        PrintHeading(heading, Printer);
    } else {
        for (int i = 0; i < 3; ++i) {
            PrintEmptyLine(Printer);
        }
    }
    PrintEmptyLine(Printer);
    PrintEmptyLine(Printer);
    Printer.PaintPicture(kGraphPicture, Printer.CurrentX, Printer.CurrentY);
    Printer.NewPage();
}

}  // namespace numerello
