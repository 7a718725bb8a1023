#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

/// Another number in each of Text1 to Text6.
const std::vector<std::string> kAllBoxes{"2", "3", "5", "7", "11", "13"};

/// What a topic makes of its boxes, told by its problem line and by its result.
struct Argued {
    int code;
    std::vector<int> boxes;  ///< that the topic reads
    std::string problem;
    std::string result;
};

const std::vector<Argued> kTopics{
    {1, {1, 2, 3}, "length = 3, width = 5, height = 2", "Volume = 30"},
    // 3.1415926 * 9 * 2 = 56.5486668, a third of it 18.8495556
    {2, {1, 2}, "radius = 3, height = 2", "Volume = 56.55"},
    {3, {1, 2}, "radius = 3, height = 2", "Volume = 18.85"},
    {4, {1, 2, 3}, "length = 3, width = 5, height = 2", "Volume = 10"},
    {5, {2}, "radius = 3", "Volume = 113.1"},
    {6, {1, 2}, "base = 3, height = 2", "Area = 6"},
    {7, {2}, "radius = 3", "Area = 28.27"},
    {8, {1, 2}, "base = 3, height = 2", "Area = 3"},
    {9, {1, 2}, "base = 3, height = 2", "Area = 6"},
    {10, {1, 2, 3}, "height = 3, a = 2, b = 5", "Area = 10.5"},
    {13, {1, 2}, "base = 3, height = 2", "Perimeter = 10"},
    {15, {2}, "radius = 3", "Circumference = 18.85"},
    {16, {2}, "diameter = 3", "Circumference = 9.42"},
    {17, {2}, "radius = 3", "Diameter = 6"},
    {18, {2}, "diameter = 3", "Radius = 1.5"},
    {19, {1, 2, 3}, "a = 5, b = 3, c = 2", "Perimeter = 10"},
    {25, {1, 2}, "2 * 10^3^", "2000"},
    {26, {1, 2, 3, 4}, "2 * 10^3^ * 5 * 10^7^", "10 * 10^10^"},
    {27, {1, 2, 3, 4}, "2 * 10^3^ { 5 * 10^7^", "0.4 * 10^-4^"}};

TEST(BoxArguments, EachBoxIsItsMeasureAndNoOtherBoxIsRead) {
    for (const Argued& topic : kTopics) {
        const Log log = BoxedLog(topic.code, kAllBoxes);
        EXPECT_EQ(log.front().first, topic.problem) << topic.code;
        EXPECT_EQ(log.back().first, topic.result) << topic.code;

        std::vector<std::string> own(kAllBoxes.size());
        for (const int box : topic.boxes) {
            const auto index = static_cast<std::size_t>(box) - 1;
            own[index] = kAllBoxes[index];
        }
        EXPECT_EQ(BoxedLog(topic.code, own), log) << topic.code;
    }
}

/// What a topic makes of one empty box.
struct Asked {
    int code;
    int empty;
    std::string problem;
    std::string result;
};

const std::vector<Asked> kMissing{{14, 1, "amount = ?, N = 3, base = 7", "0.21 = amount"},
                                  {14, 2, "amount = 2, N = ?, base = 7", "N = 28.5714285714286%"},
                                  {14, 4, "amount = 2, N = 3, base = ?", "base = 66.6666666666667"},
                                  {20, 1, "#x/3# = #5/7#", "#2.14285714285714/3# = #5/7#"},
                                  {20, 2, "#2/x# = #5/7#", "#2/2.8# = #5/7#"},
                                  {20, 3, "#2/3# = #x/7#", "#2/3# = #4.66666666666667/7#"},
                                  {20, 4, "#2/3# = #5/x#", "#2/3# = #5/7.5#"},
                                  {21, 1, "work = ?, rate = 3, time = 7", "work = 21"},
                                  {21, 2, "work = 2, rate = ?, time = 7", "rate = 0.29"},
                                  {21, 4, "work = 2, rate = 3, time = ?", "time = 0.67"},
                                  {22, 1, "distance = ?, speed = 3, time = 7", "distance = 21"},
                                  {22, 2, "distance = 2, speed = ?, time = 7", "speed = 0.29"},
                                  {22, 4, "distance = 2, speed = 3, time = ?", "time = 0.67"}};

TEST(BoxArguments, TheEmptyBoxIsTheUnknown) {
    for (const Asked& asked : kMissing) {
        std::vector<std::string> boxes = kAllBoxes;
        boxes[static_cast<std::size_t>(asked.empty) - 1].clear();
        const Log log = BoxedLog(asked.code, boxes);
        EXPECT_EQ(log.front().first, asked.problem) << asked.code;
        EXPECT_EQ(log.back().first, asked.result) << asked.code;
    }
}

TEST(BoxArguments, RightTriangle) {
    // c stands in Text1, b in Text2, a in Text4.
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"", "3", "5", "7", "11", "13"}, "a = 7, b = 3, c = ?"},
        {{"8", "", "5", "7", "11", "13"}, "a = 7, b = ?, c = 8"},
        {{"8", "3", "5", "", "11", "13"}, "a = ?, b = 3, c = 8"}};
    const std::string results[] = {"7.62 = c", "b = 3.87", "a = 7.42"};
    for (std::size_t i = 0; i < 3; ++i) {
        const Log log = BoxedLog(12, cases[i].first);
        EXPECT_EQ(log.front().first, cases[i].second);
        EXPECT_EQ(log.back().first, results[i]);
    }
}

TEST(BoxArguments, SimilarTriangles) {
    EXPECT_EQ(BoxedLog(11, kAllBoxes).front().first,
              "a1 = 5, b1 = 3, c1 = 2, a2 = 7, b2 = 13, c2 = 11");
    // 5 / 7 = 0.71, 3 / 13 = 0.23, 2 / 11 = 0.18
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"2", "3", "5", "7"}, "c2 = 2.82"},
        {{"2", "3", "5", "", "", "13"}, "c2 = 8.7"},
        {{"2", "3", "5", "", "11"}, "b2 = 16.67"}};
    for (const auto& [boxes, result] : cases) {
        EXPECT_EQ(BoxedLog(11, boxes).back().first, result);
    }
}

TEST(BoxArguments, WhatTheDriverTellsOfAProportionThatRoundsToZero) {
    const BoxedTopic topic(11);
    EXPECT_EQ(topic.LogFor({"3", "2", "1", "999"}, 2, FailureKind::DivisionByZero).size(), 7U);
    EXPECT_EQ(topic.LogFor({"3", "2", "1", "999"}, 3).size(), 11U);
}

TEST(BoxArguments, WhatTheDriverTellsOfAPowerBeyondADouble) {
    const BoxedTopic topic(25);
    EXPECT_EQ(topic.LogFor({"1.5", "309"}, 2, FailureKind::Overflow).size(), 3U);
    EXPECT_EQ(topic.LogFor({"1.5", "308"}).back().first, "1.5E+308");
}

}  // namespace
}  // namespace numerello
