#include <gtest/gtest.h>

#include <algorithm>

#include "engine_log.h"

namespace numerello {
namespace {

constexpr int kFractions = 76;

TEST(FractionArithmetic, WorksFortyProductsAndNoMore) {
    std::string text = "1/1";
    for (int factor = 2; factor <= 45; ++factor) {
        text += "*1/1";
    }
    Problem problem = ProblemWith(text, kFractions);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    engine.FractionArithmetic(0);
    EXPECT_EQ(LinesOf(problem).size(), 41U);
    const std::string line = engine.ExprToText();
    EXPECT_EQ(std::count(line.begin(), line.end(), '*'), 4);
}

}  // namespace
}  // namespace numerello
