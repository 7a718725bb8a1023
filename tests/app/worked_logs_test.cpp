#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/solvers.h"
#include "core/text.h"
#include "tests/catalogue/typing.h"
#include "tests/learners.h"

/// Works the problems of worked_logs/. A file names its topic; its problems are separated by empty
/// lines. A problem is its typed characters, the settings other than the usual ones (decimals,
/// detail N, digits N), the answers to prompts, and the lines, those that have a reason with it
/// behind " | " (a ␣ at the end is a blank). "failure KIND" ends a problem that fails; "graph TEXT"
/// is the equation left to the graph.
namespace numerello {
namespace {

struct WorkedProblem {
    std::string topic;
    std::string typed;
    AnswerSettings settings;
    std::vector<std::string> answers;
    std::vector<std::string> lines;
    std::optional<FailureKind> failure;
    std::string graph;
};

std::vector<std::string> SplitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = std::min(text.find_first_not_of(' ', end + 1), text.size());
    }
    return parts;
}

AnswerSettings ReadSettings(const std::string& text) {
    AnswerSettings settings;
    for (const std::string& word : SplitAtCommas(text)) {
        if (word == "decimals") {
            settings.UseFractions = false;
        } else if (word.starts_with("detail ")) {
            settings.DetailLevel = word.back() - '0';
        } else if (word.starts_with("digits ")) {
            settings.RoundDigits = word.back() - '0';
        } else {
            ADD_FAILURE() << "unknown setting " << word;
        }
    }
    return settings;
}

FailureKind ReadFailure(const std::string& text) {
    if (text == "division by zero") {
        return FailureKind::DivisionByZero;
    }
    EXPECT_TRUE(text == "overflow" || text == "format") << text;
    return text == "overflow" ? FailureKind::Overflow : FailureKind::Format;
}

void ReadInto(WorkedProblem& problem, const std::string& line) {
    const std::size_t blank = line.find(' ');
    const std::string word = line.substr(0, blank);
    const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
    if (word == "settings") {
        problem.settings = ReadSettings(rest);
    } else if (word == "answers") {
        problem.answers = SplitAtCommas(rest);
    } else if (word == "failure") {
        problem.failure = ReadFailure(rest);
    } else if (word == "graph") {
        problem.graph = rest;
    } else {
        const bool reasoned = line.find(" | ") != std::string::npos;
        problem.lines.push_back(Replace(line, "␣", " ") + (reasoned ? "" : " | "));
    }
}

std::vector<WorkedProblem> ReadProblems(const std::filesystem::path& path) {
    constexpr std::string_view kTopic = "topic ";
    constexpr std::string_view kProblem = "problem ";
    std::vector<WorkedProblem> problems;
    std::ifstream file(path);
    std::string topic;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(kTopic)) {
            topic = line.substr(kTopic.size());
        } else if (line.starts_with(kProblem)) {
            problems.emplace_back();
            problems.back().topic = topic;
            problems.back().typed = line.substr(kProblem.size());
        } else if (!line.empty()) {
            ReadInto(problems.back(), line);
        }
    }
    return problems;
}

void Check(const WorkedProblem& worked) {
    SCOPED_TRACE(worked.topic + ": " + worked.typed);
    Problem problem = Opened(worked.topic);
    problem.settings = worked.settings;
    for (const char key : worked.typed) {
        Form_KeyPress(problem, std::string_view(&key, 1));
        EXPECT_TRUE(problem.input.KeyAccepted) << key;
    }
    PromptedLearner learner(worked.answers);
    Stage stage;
    EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), worked.failure);

    std::vector<std::string> lines;
    for (int i = 1; i < problem.log.StepCount; ++i) {
        lines.push_back(problem.log.StepText[i] + " | " + problem.log.StepNote[i]);
    }
    EXPECT_EQ(lines, worked.lines);
    std::string equation;
    for (int i = 0; !problem.typed.ExprVariants[i].empty(); ++i) {
        equation += problem.typed.ExprVariants[i];
    }
    EXPECT_EQ(equation, worked.graph);
}

class WorkedLogs : public testing::TestWithParam<std::string> {};

TEST_P(WorkedLogs, AreReproducedToTheLetter) {
    const auto problems =
        ReadProblems(std::filesystem::path(NUMERELLO_WORKED_LOGS) / (GetParam() + ".txt"));
    EXPECT_GE(problems.size(), 30U);
    for (const WorkedProblem& problem : problems) {
        Check(problem);
    }
}

INSTANTIATE_TEST_SUITE_P(Topics, WorkedLogs,
                         testing::Values("absolute_value", "arithmetic", "arithmetic_principles",
                                         "calculating_roots", "calculating_with_exponents",
                                         "complex_arithmetic_expressions", "evaluating_polynomials",
                                         "exponential_notation", "fraction_arithmetic",
                                         "graphing_a_linear_equation", "negative_exponents",
                                         "simplifying_polynomials"),
                         [](const auto& topic) { return topic.param; });

}  // namespace
}  // namespace numerello
