#include "output/print_key.h"

#include "core/text.h"
#include "core/topic_codes.h"
#include "graph/spoken_graph.h"
#include "output/kept_together.h"
#include "output/print_columns.h"
#include "output/print_line.h"

namespace numerello {

namespace {

constexpr std::string_view kIndent = "        ";

bool IsWorkedInColumns(const WorkedProblem& worked) {
    return IsColumnTopic(worked.problem.topic.ProblemType);
}

/// Whether a worked line only says again what the test asks.
bool RepeatsProblem(const WorkedProblem& worked, const std::string& line) {
    return worked.line.ends_with(Text(") ", line));
}

void PrintWorking(const WorkedProblem& worked, Surface& Printer, Learner& learner) {
    if (IsWorkedInColumns(worked)) {
        PrintWholeColumns(worked.problem, Printer, learner);
        return;
    }
    std::string above = worked.line;
    for (const std::string& line : KeyLines(worked)) {
        PartFractions(above, line, Printer);
        PrintWholeLine(Text(kIndent, line), Printer, false, learner);
        above = line;
    }
}

void PrintProblem(const WorkedProblem& worked, Surface& Printer, Learner& learner) {
    PrintWholeLine(worked.line, Printer, false, learner);
    PrintWorking(worked, Printer, learner);
}

}  // namespace

std::vector<std::string> KeyLines(const WorkedProblem& worked) {
    std::vector<std::string> lines;
    const StepLog& log = worked.problem.log;
    for (int i = 1; i < log.StepCount; ++i) {
        lines.push_back(log.StepText[i]);
    }
    if (lines.empty() && worked.problem.graph.GraphMode != 0) {
        return {SpokenAnswer(worked.problem.graph)};
    }
    if (lines.size() > 1 && RepeatsProblem(worked, lines.front())) {
        lines.erase(lines.begin());
    }
    return lines;
}

std::vector<int> PrintAnswerKey(const HeadingLines& heading,
                                std::span<const WorkedProblem> problems, Surface& Printer,
                                Learner& learner) {
    PrintHeading(heading, Printer);
    PrintEmptyLine(Printer);
    std::vector<int> pages;
    for (const WorkedProblem& worked : problems) {
        if (!pages.empty()) {
            KeepTogether(Printer, [&worked](Surface& page, Learner& told) {
                PrintProblem(worked, page, told);
            });
        }
        pages.push_back(Printer.PageCount() - 1);
        PrintProblem(worked, Printer, learner);
        PrintEmptyLine(Printer);
    }
    return pages;
}

}  // namespace numerello
