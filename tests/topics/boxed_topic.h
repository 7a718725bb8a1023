#pragma once

#include "catalogue/box_keys.h"
#include "tests/topics/rational.h"
#include "tests/topics/typed_topic.h"

namespace numerello {

/// The entry form of a topic with boxes, for many problems one after the other: each is typed key
/// by key through the rule of the boxes and solved by the driver.
class BoxedTopic {
  public:
    explicit BoxedTopic(int code) : opened(Opened(FindTopicByCode(code)->caption)) {}

    /// The lines of the solved problem. The boxes have to take every key and to make a problem,
    /// and solving has to end so.
    Log LogFor(const std::vector<std::string>& texts, int RoundDigits = 2,
               std::optional<FailureKind> ending = std::nullopt) const {
        Problem problem = opened;
        problem.settings.RoundDigits = RoundDigits;
        int box = 0;
        for (const std::string& text : texts) {
            ++box;
            for (const std::string& key : Characters(text)) {
                EXPECT_TRUE(BoxKey(problem, box, key)) << key << " in " << box << ": " << text;
            }
        }
        EXPECT_TRUE(problem.controls.SolveEnabled) << Joined(texts, ", ");
        SilentLearner learner;
        Stage stage;
        EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), ending)
            << Joined(texts, ", ");
        return LogOf(problem);
    }

  private:
    Problem opened;
};

/// What a box may hold beside digits.
enum class BoxMarks { None, Minus, Point, Both };

/// A number of at most so many characters as a box takes it: 5, 007, 1.50, .5 or 5.
inline std::string DrawBox(Draws& draws, int longest, BoxMarks marks = BoxMarks::Both) {
    const bool minus = marks == BoxMarks::Minus || marks == BoxMarks::Both;
    const bool point = marks == BoxMarks::Point || marks == BoxMarks::Both;
    std::string text = draws.Digits(longest - (minus ? 1 : 0) - (point ? 1 : 0));
    if (point && draws.Below(2) == 0) {
        text.insert(static_cast<std::size_t>(draws.Below(static_cast<int>(text.size()) + 1)), ".");
    }
    return (minus && draws.Below(5) == 0 ? "-" : "") + text;
}

inline int DrawRoundDigits(Draws& draws) {
    return 1 + draws.Below(5);
}

/// What stands between the two pieces, which the line has to begin and to end with.
inline std::string Between(const std::string& line, std::string_view before,
                           std::string_view behind = "") {
    if (!line.starts_with(before) || !line.ends_with(behind) ||
        line.size() < before.size() + behind.size()) {
        ADD_FAILURE() << "'" << line << "' is not '" << before << "...'" << behind << "'";
        return "0";
    }
    return line.substr(before.size(), line.size() - before.size() - behind.size());
}

}  // namespace numerello
