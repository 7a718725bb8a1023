#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "inventor.h"

namespace numerello {

/// A problem that was typed and solved as a learner does.
struct SolvedProblem {
    int code = 0;
    std::string typed;
    Problem unsolved;  ///< with the keys typed
    std::vector<std::string> answers;
    AnswerSettings settings;
    std::vector<std::string> lines;
    std::vector<std::string> notes;
    std::optional<FailureKind> failure;
    double seconds = 0;

    std::string Description() const;
};

/// A topic whose entry form takes one invented problem after the other.
class InventedProblems {
  public:
    InventedProblems(int code, std::uint32_t seed);

    /// The next problem that the filter takes, not solved yet.
    SolvedProblem Next();

  private:
    int code;
    Problem opened;
    Inventor inventor;
};

/// Solves the typed problem with its settings; fills lines, notes, failure and time.
void Solve(SolvedProblem& worked);

/// The letters of a text in order of first appearance.
std::string LettersOf(std::string_view text);

/// What was found wrong, by kind, each with its shortest problem.
class Findings {
  public:
    void Add(const std::string& kind, const SolvedProblem& worked);

    bool None() const { return kinds.empty(); }
    /// The commonest kinds first.
    std::string Report() const;

  private:
    struct Kind {
        int count = 0;
        SolvedProblem shortest;
    };
    std::map<std::string, Kind> kinds;
};

}  // namespace numerello
