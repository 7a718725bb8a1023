#pragma once

#include "catalogue/topics.h"
#include "core/random_source.h"
#include "tests/catalogue/typing.h"
#include "tests/topics/solver_log.h"

namespace numerello {

/// The entry form of a topic, for many problems one after the other: each is typed key by key
/// through the filter and solved by the driver.
class TypedTopic {
  public:
    explicit TypedTopic(int code) : opened(Opened(FindTopicByCode(code)->caption)) {}

    void SetList(std::size_t list, int row) { opened.boxes.ListIndex[list] = row; }
    void SetRoundDigits(int digits) { opened.settings.RoundDigits = digits; }

    /// The solved problem. The filter has to take every key, and solving has to end so.
    Problem Solve(std::string_view keys, std::optional<FailureKind> ending = std::nullopt) const {
        Problem problem = opened;
        Type(problem, keys);
        EXPECT_EQ(problem.typed.ProblemText, keys);
        SilentLearner learner;
        Stage stage;
        EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), ending) << keys;
        return problem;
    }

    Log LogFor(std::string_view keys, std::optional<FailureKind> ending = std::nullopt) const {
        return LogOf(Solve(keys, ending));
    }

  private:
    Problem opened;
};

constexpr int kRandomProblems = 1000;

/// Draws that are the same in every run.
class Draws {
  public:
    explicit Draws(std::uint32_t seed) : source(seed) {}

    /// From 0 up to, not including, `count`.
    int Below(int count) { return static_cast<int>(source.Rnd() * count); }

    /// One to `longest` digits; the first ones may be 0.
    std::string Digits(int longest) {
        std::string digits;
        for (int i = Below(longest); i >= 0; --i) {
            digits += static_cast<char>('0' + Below(10));
        }
        return digits;
    }

  private:
    MersenneSource source;
};

inline std::string Joined(const std::vector<std::string>& pieces, std::string_view between) {
    std::string joined;
    for (const std::string& piece : pieces) {
        joined.append(&piece == pieces.data() ? "" : between).append(piece);
    }
    return joined;
}

}  // namespace numerello
