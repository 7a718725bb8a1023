#include "solved_problem.h"

#include <algorithm>
#include <chrono>
#include <sstream>

#include "app/solvers.h"
#include "catalogue/complete_line.h"

namespace numerello {

namespace {

/// Answers from a list, its last one for ever; cancels without any.
class ListLearner : public Learner {
  public:
    explicit ListLearner(const std::vector<std::string>& answers) : answers(answers) {}

    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        if (answers.empty()) {
            return std::nullopt;
        }
        const std::string answer = answers[std::min(next, answers.size() - 1)];
        ++next;
        return answer;
    }

  private:
    const std::vector<std::string>& answers;
    std::size_t next = 0;
};

/// Code 122 has no entry of its own: its equations are typed into that of 101.
int EntryCode(int code) {
    return code == 122 ? 101 : code;
}

/// False when the filter refuses a key or waits for more.
bool TypeWhole(Problem& problem, std::string_view keys) {
    for (const char key : keys) {
        Form_KeyPress(problem, std::string_view(&key, 1));
        if (!problem.input.KeyAccepted) {
            return false;
        }
    }
    return LineIsComplete(problem);
}

}  // namespace

std::string LettersOf(std::string_view text) {
    std::string letters;
    for (const char c : text) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0 &&
            letters.find(c) == std::string::npos) {
            letters += c;
        }
    }
    return letters;
}

std::string SolvedProblem::Description() const {
    std::ostringstream text;
    text << "  " << code << ": " << typed << (settings.UseFractions ? "" : "  decimals")
         << "  detail " << settings.DetailLevel;
    for (const std::string& answer : answers) {
        text << "  answer " << answer;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        text << "\n    " << i + 1 << ". " << lines[i] << " | " << notes[i];
    }
    if (failure) {
        text << "\n    failure: " << FailureName(*failure);
    }
    return text.str();
}

InventedProblems::InventedProblems(int code, std::uint32_t seed)
    : code(code), opened(Opened(FindTopicByCode(EntryCode(code))->caption)), inventor(code, seed) {}

SolvedProblem InventedProblems::Next() {
    while (true) {
        SolvedProblem worked;
        worked.code = code;
        worked.typed = inventor.Problem();
        worked.unsolved = opened;
        if (!TypeWhole(worked.unsolved, worked.typed)) {
            continue;
        }
        worked.unsolved.topic.ProblemType = code;
        const std::string letters = LettersOf(worked.typed);
        for (std::size_t i = 0; code == 103 && i < letters.size(); ++i) {
            worked.answers.push_back(inventor.Answer());
        }
        if (code == 105 && !letters.empty()) {
            worked.answers.emplace_back(1, letters.back());
        }
        return worked;
    }
}

void Solve(SolvedProblem& worked) {
    Problem problem = worked.unsolved;
    problem.settings = worked.settings;
    ListLearner learner(worked.answers);
    Stage stage;
    const auto begin = std::chrono::steady_clock::now();
    worked.failure = compute_Click(problem, AllSolvers(), learner, stage);
    worked.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    worked.lines.clear();
    worked.notes.clear();
    for (const auto& [line, note] : LogOf(problem)) {
        worked.lines.push_back(line);
        worked.notes.push_back(note);
    }
}

void Findings::Add(const std::string& kind, const SolvedProblem& worked) {
    Kind& known = kinds[kind];
    if (known.count == 0 || worked.typed.size() < known.shortest.typed.size()) {
        known.shortest = worked;
    }
    ++known.count;
}

std::string Findings::Report() const {
    std::vector<std::pair<std::string, const Kind*>> sorted;
    for (const auto& [kind, known] : kinds) {
        sorted.emplace_back(kind, &known);
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
        return a.second->count > b.second->count;
    });
    std::string report;
    for (const auto& [kind, known] : sorted) {
        report += "\n" + std::to_string(known->count) + " times: " + kind + "\n" +
                  known->shortest.Description();
    }
    return report;
}

}  // namespace numerello
