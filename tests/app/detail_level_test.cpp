#include "judging.h"

/// A coarser detail level leaves lines of the full log out, and changes none.
namespace numerello {
namespace {

/// The first line, each one whose index the level divides, and the last. A division shown as the
/// second line keeps all: it was not recorded as a step.
std::vector<std::size_t> KeptLines(const SolvedProblem& full, int level) {
    std::vector<std::size_t> kept;
    const std::size_t last = full.lines.size();
    const bool untouched = last < 2 || (full.notes[1].starts_with("Solve for ") &&
                                        full.notes[1].find("by dividing") != std::string::npos);
    for (std::size_t i = 1; i <= last; ++i) {
        if (untouched || i == 1 || i == last || i % static_cast<std::size_t>(level) == 0) {
            kept.push_back(i - 1);
        }
    }
    return kept;
}

std::string WrongAtLevel(const SolvedProblem& full, int level) {
    SolvedProblem thinned = full;
    thinned.settings.DetailLevel = level;
    Solve(thinned);
    const std::vector<std::size_t> kept = KeptLines(full, level);
    bool same = kept.size() == thinned.lines.size() && !thinned.failure;
    for (std::size_t i = 0; same && i < kept.size(); ++i) {
        same = thinned.lines[i] == full.lines[kept[i]] && thinned.notes[i] == full.notes[kept[i]];
    }
    return same ? "" : "other lines at level " + std::to_string(level);
}

Verdict JudgeLevels(const SolvedProblem& full) {
    if (full.failure) {
        return {true, ""};
    }
    const std::string wrong = WrongAtLevel(full, 2);
    return {false, wrong.empty() ? WrongAtLevel(full, 3) : wrong};
}

class DetailLevels : public ::testing::TestWithParam<int> {};

TEST_P(DetailLevels, LeaveLinesOutAndChangeNone) {
    JudgeMany(GetParam(), 20267, kInventedProblems / 20, AnswerSettings(), JudgeLevels);
}

INSTANTIATE_TEST_SUITE_P(Topics, DetailLevels,
                         ::testing::Values(91, 121, 81, 102, 82, 83, 76, 150, 120, 103, 101, 105),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace numerello
