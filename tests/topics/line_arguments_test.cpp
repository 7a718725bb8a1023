#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

TEST(LineArguments, WhatIsTypedIsWhatIsWorked) {
    const std::pair<int, std::vector<std::string>> topics[] = {
        {80, {"6/8", "#6/8#", "#3/4#"}},
        {78, {"6:8", "6:8", "#6/8#"}},
        {75, {"8/6", "#8/6#", "1 #2/6#"}},
        {74, {"2+6/8", "2#6/8#", "#11/4#"}},
        {73, {"6/8", "#6/8#", "0.75"}},
        {72, {"6/8", "#6/8#", "75%"}},
        {71, {"0.6", "0.6", "#3/5#"}},
        {70, {"0.6", "0.6", "60%"}},
        {69, {"6%", "6%", "0.06"}},
        {68, {"6%", "6%", "#3/50#"}},
        {65, {"680", "680", "6.8 * 10^2^"}},
        {104, {"90", "90", "90^o^ (degrees) forms a RIGHT angle."}}};
    for (const auto& [code, lines] : topics) {
        const Log log = TypedTopic(code).LogFor(lines[0]);
        EXPECT_EQ(log.front().first, lines[1]) << code;
        EXPECT_EQ(log.back().first, lines[2]) << code;
    }
}

TEST(LineArguments, AnUnfinishedLineIsRefusedBeforeAnyStep) {
    const std::pair<int, std::string> lines[] = {
        {80, "7/"}, {80, "7"},  {78, "7"}, {78, "7:"}, {78, "7:1."}, {75, "7/"},
        {75, "7"},  {75, "-"},  {74, "7"}, {74, "7+"}, {74, "7+1"},  {74, "7+1/"},
        {73, "7/"}, {72, "7/"}, {72, "7"}, {72, "."},  {71, "."},    {71, "7."},
        {70, "."},  {69, "7."}, {68, "."}, {65, "."},  {65, "-"},    {65, "7."}};
    for (const auto& [code, line] : lines) {
        EXPECT_TRUE(TypedTopic(code).LogFor(line, FailureKind::Format).empty())
            << code << " " << line;
    }
}

TEST(LineArguments, AFractionIsNoDecimal) {
    const Log log = TypedTopic(71).LogFor("3/4", FailureKind::Format);
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[1].first, "The fractional notation of 3/4 is:");
}

}  // namespace
}  // namespace numerello
