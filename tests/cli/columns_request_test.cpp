#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

Json Text(const char* text, double x, double y, int size = 12, int color = 0) {
    const auto number = [](double value) {
        return value == std::floor(value) ? Json(static_cast<long>(value)) : Json(value);
    };
    return {{"text", text}, {"x", number(x)}, {"y", number(y)}, {"size", size}, {"color", color}};
}

TEST(ColumnsRequest, AnswersEveryFieldInItsOrder) {
    const Json answer = Ask(R"({"id":7,"do":"columns","topic":"Addition","boxes":["5","7"]})");
    const Json rule = {{"line", {80, 334.4, 118, 334.4}}, {"width", 2}, {"color", 0}};
    const Json numbers =
        Json::array({Text("5", 100, 300), Text("+", 80, 317.2), Text("7", 100, 317.2), rule});
    Json sum = numbers;
    sum.push_back(Text("1", 80, 338.4));
    sum.push_back(Text("2", 100, 338.4));
    const Json expected = {
        {"id", 7},
        {"ok", true},
        {"code", 200},
        {"refused", Json::array()},
        {"solvable", true},
        {"frames",
         {{{"note", "Add 5 and 7."}, {"marks", numbers}, {"end", {120, 339}}, {"finished", false}},
          {{"note", "Add 5 and 7 (12) ."},
           {"marks", sum},
           {"end", {120, 339}},
           {"finished", true}}}},
        {"messages", Json::array()},
        {"failure", nullptr}};
    EXPECT_EQ(answer.dump(), expected.dump());
}

TEST(ColumnsRequest, UntickedThereIsOneFrame) {
    const Json answer =
        Ask(R"({"do":"columns","code":203,"boxes":["95","7"],"settings":{"mnuShowStep":false}})");
    ASSERT_EQ(answer.at("frames").size(), 1U);
    EXPECT_EQ(answer.at("frames")[0].at("finished"), true);
    // The 5 that is brought down, in red: 80 + 20 + ")" of 14 points + 5 + 20, 39 below the bar's
    // row.
    const Json red = Text("5", 134.196, 339, 12, 255);
    const Json& marks = answer.at("frames")[0].at("marks");
    EXPECT_EQ(std::count(marks.begin(), marks.end(), red), 1);
}

TEST(ColumnsRequest, TypesItsBoxesOrFillsThem) {
    const Json typed = Ask(R"({"do":"columns","code":200,"boxes":["4.7","38"]})");
    EXPECT_EQ(typed.at("refused").dump(), R"([{"at":1,"key":".","why":"","box":1}])");
    EXPECT_EQ(typed.at("frames")[0].at("note"), "Add 47 and 38.");
    const Json filled = Ask(R"({"do":"columns","code":200,"boxes":["4.7","38"],"filled":true})");
    EXPECT_EQ(filled.at("failure"), "format");
    EXPECT_TRUE(filled.at("frames").empty());
    EXPECT_EQ(filled.at("messages").size(), 1U);
}

TEST(ColumnsRequest, WithAnEmptyBoxNothingIsSolved) {
    const Json answer = Ask(R"({"do":"columns","code":201,"boxes":["","7"]})");
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("solvable"), false);
    EXPECT_TRUE(answer.at("frames").empty());
    EXPECT_TRUE(answer.at("messages").empty());
    EXPECT_EQ(answer.at("failure"), nullptr);
}

TEST(ColumnsRequest, AFailureLeavesNoFrame) {
    const Json answer = Ask(R"({"do":"columns","code":203,"boxes":["7","9999999999"]})");
    EXPECT_EQ(answer.at("failure"), "overflow");
    EXPECT_TRUE(answer.at("frames").empty());
    ASSERT_EQ(answer.at("messages").size(), 2U);
    EXPECT_EQ(answer.at("messages")[0].at("title"), "");
    EXPECT_EQ(answer.at("messages")[1].at("title"), "Overflow!");
}

TEST(ColumnsRequest, AProductThatIsCutOffEndsWithItsHundredthCell) {
    const Json answer = Ask(R"({"do":"columns","code":202,"boxes":["9999999999","9999999999"]})");
    ASSERT_EQ(answer.at("frames").size(), 101U);
    EXPECT_EQ(answer.at("frames")[100].at("finished"), false);
    EXPECT_NE(answer.at("frames")[100].at("marks"), answer.at("frames")[99].at("marks"));
}

TEST(ColumnsRequest, OtherTopicsAndFieldsAreRefused) {
    for (const char* request :
         {R"({"do":"columns","code":53,"boxes":["4"]})",
          R"({"do":"columns","code":200,"boxes":["4","5"],"problem":"4+5"})",
          R"({"do":"columns","code":200,"boxes":["4","5"],"lists":[0]})",
          R"({"do":"columns","boxes":["4","5"]})", R"({"do":"columns","code":200,"boxes":"4"})"}) {
        EXPECT_EQ(Ask(request).at("ok"), false) << request;
    }
}

TEST(ColumnsRequest, SolvingHasNoLinesButMessagesAndFailure) {
    const Json answer = Ask(R"({"do":"solve","code":201,"boxes":["1","52"]})");
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("solvable"), true);
    EXPECT_TRUE(answer.at("lines").empty());
    EXPECT_EQ(answer.at("messages").size(), 1U);
    EXPECT_EQ(answer.at("failure"), nullptr);
    EXPECT_EQ(Ask(R"({"do":"solve","code":203,"boxes":["9999999999","7"]})").at("failure"),
              "overflow");
}

}  // namespace
}  // namespace numerello
