#include <gtest/gtest.h>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

TEST(TypesetRequest, AnswersMarksEndPagesAndMessages) {
    // Paper at 12 points: the margin is 17 blanks, 67 units; the base Y is 2.4 * 12 = 28.8; a
    // character is 134/204 * 12 = 7.882 wide.
    const Json answer = Ask(R"({"id":3,"do":"typeset","variant":"paper","text":"4[7]"})");
    const Json expected = {
        {"id", 3},
        {"ok", true},
        {"marks",
         {{{"text", "4"}, {"x", 67}, {"y", 28.8}, {"size", 12}, {"color", 0}, {"page", 0}},
          {{"text", "7"}, {"x", 74.882}, {"y", 28.8}, {"size", 12}, {"color", 255}, {"page", 0}}}},
        {"end", {78.765, 28.8}},
        {"pages", 0},
        {"messages", Json::array()}};
    EXPECT_EQ(answer.dump(), expected.dump());
}

TEST(TypesetRequest, StartsWhereTheRequestSays) {
    // Print: X and Y plus 12; after the line X is 0 and Y one line of 43/30 * 10 lower.
    const Json answer = Ask(
        R"({"do":"typeset","variant":"print","text":"a","x":100,"y":-5.5,"size":10,"blue":true})");
    ASSERT_EQ(answer.at("marks").size(), 1U);
    const Json expected = {{"text", "a"}, {"x", 112},          {"y", 6.5},
                           {"size", 10},  {"color", 16711680}, {"page", 0}};
    EXPECT_EQ(answer.at("marks")[0].dump(), expected.dump());
    EXPECT_EQ(answer.at("end").dump(), Json({0, 20.833}).dump());
}

TEST(TypesetRequest, TellsWhatCannotBeDrawn) {
    const Json answer = Ask(R"({"do":"typeset","variant":"explain","text":"#1/2"})");
    EXPECT_EQ(answer.at("ok"), true);
    const Json expected =
        Json::array({{{"title", ""}, {"text", "An error occurred while displaying information."}}});
    EXPECT_EQ(answer.at("messages").dump(), expected.dump());
}

TEST(TypesetRequest, TurnsPages) {
    const Json answer = Ask(R"({"do":"typeset","variant":"preview","text":"ab","y":549})");
    EXPECT_EQ(answer.at("pages"), 1);
    EXPECT_EQ(answer.at("marks")[0].at("page"), 1);
    EXPECT_EQ(answer.at("marks")[0].at("x"), 12);
    EXPECT_EQ(answer.at("marks")[0].at("y"), 24);
}

TEST(TypesetRequest, RefusesWhatIsOutOfRange) {
    for (const char* fields : {
             R"("variant":"paper")",
             R"("text":"1")",
             R"("variant":"wall","text":"1")",
             R"("variant":"paper","text":1)",
             R"("variant":"paper","text":"1","x":1000001)",
             R"("variant":"paper","text":"1","y":-1000000.5)",
             R"("variant":"paper","text":"1","size":0.5)",
             R"("variant":"paper","text":"1","size":101)",
             R"("variant":"paper","text":"1","size":"12")",
             R"("variant":"paper","text":"1","blue":0)",
         }) {
        EXPECT_EQ(Ask(std::string(R"({"do":"typeset",)") + fields + "}").at("ok"), false) << fields;
    }
}

}  // namespace
}  // namespace numerello
