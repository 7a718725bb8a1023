#include <gtest/gtest.h>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

constexpr std::string_view kGood = R"({"id":1,"do":"type","topic":"Multiples","keys":"4"})";

bool Worked(const std::string& answer) {
    return Json::parse(answer).at("ok").get<bool>();
}

TEST(Batch, AnswersInOrder) {
    const auto answers = AnswersTo(R"({"id":"a","do":"topics"}
{"id":"b","do":"type","code":89,"keys":"1"}
{"id":"c","do":"nothing"}
)");
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_EQ(Json::parse(answers[0]).at("id"), "a");
    EXPECT_EQ(Json::parse(answers[1]).at("id"), "b");
    EXPECT_EQ(Json::parse(answers[2]).at("id"), "c");
}

TEST(Batch, SkipsBlankLines) {
    const auto answers = AnswersTo("\n   \n" + std::string(kGood) + "\n\t\n\r\n");
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_TRUE(Worked(answers[0]));
}

TEST(Batch, IgnoresACarriageReturnAndALeadingMark) {
    const std::string good(kGood);
    const auto answers = AnswersTo("\xEF\xBB\xBF" + good + "\r\n" + good + "\r\n");
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_TRUE(Worked(answers[0]));
    EXPECT_TRUE(Worked(answers[1]));
}

TEST(Batch, AnswersALastLineWithoutItsEnd) {
    EXPECT_EQ(AnswersTo(kGood).size(), 1U);
    EXPECT_TRUE(AnswersTo("").empty());
}

TEST(Batch, GoesOnAfterABadLine) {
    const auto answers = AnswersTo("this is no JSON\n" + std::string(kGood) + "\n");
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_FALSE(Worked(answers[0]));
    EXPECT_TRUE(Worked(answers[1]));
}

TEST(Batch, ALineOverOneMebibyteIsRefusedWhole) {
    const std::string good(kGood);
    const auto lineOf = [&good](std::size_t size) {
        return good + std::string(size - good.size(), ' ');
    };
    constexpr std::size_t kMebibyte = 1048576;
    const auto answers = AnswersTo(lineOf(kMebibyte + 1) + "\n" + std::string(kGood) + "\n" +
                                   std::string(3 * kMebibyte, '[') + "\n");
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_FALSE(Worked(answers[0]));
    EXPECT_TRUE(Worked(answers[1]));
    EXPECT_FALSE(Worked(answers[2]));
    EXPECT_TRUE(Worked(AnswersTo(lineOf(kMebibyte))[0]));
    EXPECT_TRUE(Worked(AnswersTo(lineOf(kMebibyte) + "\r\n")[0]));
}

TEST(Batch, TheMarkAndTheEndOfALineDoNotCountAsItsLength) {
    const std::string good(kGood);
    const std::string mark = "\xEF\xBB\xBF";
    constexpr std::size_t kMebibyte = 1048576;
    const std::string longest = good + std::string(kMebibyte - good.size(), ' ');
    EXPECT_TRUE(Worked(AnswersTo(mark + longest + "\r\n").at(0)));
    EXPECT_FALSE(Worked(AnswersTo(mark + longest + " \r\n").at(0)));
    EXPECT_FALSE(Worked(AnswersTo(mark + longest + longest).at(0)));
    EXPECT_FALSE(Worked(AnswersTo(std::string(2 * kMebibyte, ' ') + good).at(0)));
}

TEST(Batch, StopsWhenNobodyTakesTheAnswers) {
    std::istringstream in(std::string(kGood) + "\n" + std::string(kGood) + "\n");
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    RunBatch(in, out, nullptr);
    EXPECT_EQ(out.str(), "");
    EXPECT_TRUE(in.good());
}

TEST(Batch, CountsWhatIsAnsweredForWhoeverWatches) {
    std::string requests;
    for (int i = 0; i < 150; ++i) {
        requests += std::string(kGood) + "\n";
    }
    std::istringstream in(requests);
    std::ostringstream out;
    std::ostringstream progress;
    RunBatch(in, out, &progress);
    EXPECT_EQ(progress.str(), "\r100 requests answered\r150 requests answered\n");
}

TEST(Batch, ARequestSeesNothingOfTheOneBefore) {
    const std::string solve =
        R"({"do":"solve","code":53,"problem":"40","settings":{"RoundDigits":4}})";
    const std::string plain = R"({"do":"solve","code":53,"problem":"40"})";
    const auto answers = AnswersTo(plain + "\n" + solve + "\n" + plain + "\n");
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_NE(answers[0], answers[1]);
    EXPECT_EQ(answers[0], answers[2]);
}

TEST(Batch, EchoesTheIdByValue) {
    for (const char* id : {R"("x")", "7", "-1.5", "null", "true", R"({"a":[1,2]})", R"([])"}) {
        const Json answer = Ask(std::string(R"({"id":)") + id + R"(,"do":"topics"})");
        EXPECT_EQ(answer.at("id"), Json::parse(id));
    }
    EXPECT_EQ(Ask(R"({"do":"topics"})").at("id"), nullptr);
    EXPECT_EQ(Ask(R"({"id":5,"do":"nothing"})").at("id"), 5);
    EXPECT_EQ(Ask("no JSON").at("id"), nullptr);
}

}  // namespace
}  // namespace numerello
