#include <gtest/gtest.h>

#include "engine_log.h"

/// A pass on a group that is not there does nothing.
namespace numerello {
namespace {

constexpr std::size_t kNowhere = 1;

struct Pass {
    const char* name;
    bool (*run)(Engine& engine);
};

std::ostream& operator<<(std::ostream& out, const Pass& pass) {
    return out << pass.name;
}

class PassWithoutAGroup : public testing::TestWithParam<Pass> {};

TEST_P(PassWithoutAGroup, DoesNothing) {
    const std::string text = "2+3*|-4|+2^3+1/2";
    Problem problem = ProblemWith(text, 121);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    const std::string before = engine.ExprToText();
    EXPECT_FALSE(GetParam().run(engine));
    engine.RecordStep();
    EXPECT_EQ(engine.ExprToText(), before);
    EXPECT_EQ(problem.log.StepCount, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Passes, PassWithoutAGroup,
    testing::Values(
        Pass{"CombineTerms",
             [](Engine& engine) {
                 engine.CombineTerms(kNowhere, Engine::NegativeExponents::Remove,
                                     Engine::Record::Line);
                 return false;
             }},
        Pass{"SortTerms", [](Engine& engine) { return !engine.SortTerms(kNowhere).empty(); }},
        Pass{"MultiplyPass", [](Engine& engine) { return engine.MultiplyPass(kNowhere); }},
        Pass{"MultiplyPair", [](Engine& engine) { return engine.MultiplyPair(kNowhere); }},
        Pass{"ReorderFactor", [](Engine& engine) { return engine.ReorderFactor(kNowhere); }},
        Pass{"DistributeFront", [](Engine& engine) { return engine.DistributeFront(kNowhere); }},
        Pass{"MultiplyGroups", [](Engine& engine) { return engine.MultiplyGroups(kNowhere); }},
        Pass{"MultiplyGroups, of the last",
             [](Engine& engine) { return engine.MultiplyGroups(0); }},
        Pass{"RemoveAbsolute", [](Engine& engine) { return engine.RemoveAbsolute(kNowhere); }},
        Pass{"ExpandPowers", [](Engine& engine) { return engine.ExpandPowers(kNowhere); }},
        Pass{"ExpandConstantTerms",
             [](Engine& engine) { return engine.ExpandConstantTerms(kNowhere); }},
        Pass{"ExpandFrontPower", [](Engine& engine) { return engine.ExpandFrontPower(kNowhere); }},
        Pass{"ExpandPower", [](Engine& engine) { return engine.ExpandPower(kNowhere); }},
        Pass{"FractionArithmetic",
             [](Engine& engine) {
                 engine.FractionArithmetic(kNowhere);
                 return false;
             }},
        Pass{"FactorExpression",
             [](Engine& engine) { return engine.FactorExpression(kNowhere, true); }}));

}  // namespace
}  // namespace numerello
