#include <gtest/gtest.h>

#include "columns/steps.h"
#include "core/silent_learner.h"

namespace numerello {
namespace {

TEST(PrintColumns, PrintsNothingForATopicWithoutColumns) {
    const PlainMetrics metrics;
    Surface page(metrics, {std::string(kSheetFace), 12});
    SilentLearner learner;
    Problem problem;
    problem.topic.ProblemType = 91;
    problem.columns.ColumnTop = "12";
    problem.columns.ColumnBottom = "34";
    PrintColumns(problem, page, learner);
    EXPECT_TRUE(page.Marks().empty());

    problem.topic.ProblemType = 200;
    PrintColumns(problem, page, learner);
    EXPECT_FALSE(page.Marks().empty());
}

}  // namespace
}  // namespace numerello
