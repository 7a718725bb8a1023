#include <gtest/gtest.h>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

TEST(TypeRequest, JudgesEachKey) {
    const Json answer =
        Ask(R"({"id":"k","do":"type","topic":"Converting Inches To Feet","keys":"4,.5\b\b"})");
    const Json expected = {
        {"id", "k"},
        {"ok", true},
        {"code", 54},
        {"keys",
         {{{"key", "4"}, {"accepted", true}, {"why", ""}, {"line", "4"}},
          {{"key", ","},
           {"accepted", false},
           {"why",
            "Commas (,) are not allowed in 'Converting Inches To Feet'.  Click the Assistant Wiz "
            "for details."},
           {"line", "4"}},
          {{"key", "."}, {"accepted", true}, {"why", ""}, {"line", "4."}},
          {{"key", "5"}, {"accepted", true}, {"why", ""}, {"line", "4.5"}},
          {{"key", "\b"}, {"accepted", true}, {"why", ""}, {"line", "4."}},
          {{"key", "\b"}, {"accepted", true}, {"why", ""}, {"line", "4"}}}},
        {"problem", "4"},
        {"solvable", true}};
    EXPECT_EQ(answer.dump(), expected.dump());
}

TEST(TypeRequest, BackspaceOnAnEmptyLineIsRefused) {
    const Json answer = Ask(R"({"do":"type","code":54,"keys":"\b"})");
    EXPECT_EQ(answer.at("keys")[0].at("accepted"), false);
    EXPECT_EQ(answer.at("keys")[0].at("why"), "Problem has already been erased.");
    EXPECT_EQ(answer.at("solvable"), false);
}

TEST(TypeRequest, ABoxTopicRefusesWithoutWords) {
    const Json answer = Ask(R"({"do":"type","topic":"Meter Conversions","keys":"4\b"})");
    for (const Json& key : answer.at("keys")) {
        EXPECT_EQ(key.at("accepted"), false);
        EXPECT_EQ(key.at("why"), "");
        EXPECT_EQ(key.at("line"), "");
    }
    EXPECT_EQ(answer.at("keys").size(), 2U);
    EXPECT_EQ(answer.at("problem"), "");
}

TEST(TypeRequest, ShowsTheLineAsMathematics) {
    const Json answer = Ask(R"({"do":"type","topic":"Simplifying Polynomials","keys":"(X^2/3"})");
    std::string lines;
    for (const Json& key : answer.at("keys")) {
        lines += key.at("line").get<std::string>() + " ";
    }
    EXPECT_EQ(lines, "( (x (x^?^ (x^2^ (#x^2^/# (#x^2^/3# ");
    EXPECT_EQ(answer.at("problem"), "(x^2/3");
    EXPECT_EQ(answer.at("solvable"), true);
}

TEST(TypeRequest, ADroppedKeyHasNoReason) {
    std::string keys;
    for (int i = 0; i < 239; ++i) {
        keys += "1,";
    }
    const Json request = {{"do", "type"}, {"topic", "Medians"}, {"keys", keys + "1+,+"}};
    const Json judged = Ask(request.dump()).at("keys");
    ASSERT_EQ(judged.size(), 482U);
    EXPECT_EQ(judged[479].at("why"), "You can't type a '+' after a '1' in 'Medians'.");
    EXPECT_EQ(judged[480].at("accepted"), true);
    EXPECT_EQ(judged[481].at("accepted"), false);
    EXPECT_EQ(judged[481].at("why"), "");
}

TEST(TypeRequest, NoKeysMakeAnEmptyProblem) {
    const Json answer = Ask(R"({"do":"type","code":54,"keys":""})");
    EXPECT_TRUE(answer.at("keys").empty());
    EXPECT_EQ(answer.at("solvable"), false);
    EXPECT_EQ(Ask(R"({"do":"type","code":54})").at("ok"), false);
}

}  // namespace
}  // namespace numerello
