#include <gtest/gtest.h>

#include "app/solvers.h"
#include "tests/cli/ask.h"

namespace numerello {
namespace {

TEST(SolveRequest, AnswersEveryFieldInItsOrder) {
    const Json answer =
        Ask(R"({"id":1,"do":"solve","topic":"Converting Feet To Yards","problem":"7"})");
    const Json expected = {
        {"id", 1},
        {"ok", true},
        {"code", 50},
        {"problem", "7"},
        {"refused", Json::array()},
        {"solvable", true},
        {"lines",
         {{{"text", "7"}, {"note", ""}},
          {{"text", "There are 3 feet in a yard."}, {"note", "3 feet = 1 yard"}},
          {{"text", "To convert feet to yards, divide the number of feet (7) by 3:"},
           {"note", "Dividing by 3 will convert feet to yards."}},
          {{"text", "7 feet = 2.33333333333333 yards"}, {"note", "Feet converted to yards."}}}},
        {"messages", Json::array()},
        {"prompts", Json::array()},
        {"failure", nullptr},
        {"drawing", Json::array()},
        {"graph", nullptr}};
    EXPECT_EQ(answer.dump(), expected.dump());
}

TEST(SolveRequest, EveryTopicHasItsSolver) {
    const Json answer = Ask(R"({"do":"topics"})");
    ASSERT_EQ(answer.at("topics").size(), 105U);
    for (const Json& topic : answer.at("topics")) {
        EXPECT_NE(AllSolvers().Find(topic.at("code").get<int>()), nullptr) << topic.dump();
    }
}

TEST(SolveRequest, ACodeIsAsGoodAsACaption) {
    EXPECT_EQ(Ask(R"({"do":"solve","code":53,"problem":"40"})"),
              Ask(R"({"do":"solve","topic":"Converting Inches To Yards","problem":"40"})"));
}

TEST(SolveRequest, TellsRefusedKeysByPlaceAndReason) {
    const Json answer = Ask(
        R"({"do":"solve","topic":"Converting Inches To Yards","problem":"4+0é.5.","settings":{}})");
    EXPECT_EQ(answer.at("problem"), "40.5");
    const Json expected = {
        {{"at", 1},
         {"key", "+"},
         {"why",
          "The '+' sign is not allowed in 'Converting Inches To Yards'.  Enter a number without "
          "using + or -.  Click the Assistant Wiz for details."}},
        {{"at", 3},
         {"key", "é"},
         {"why",
          "The 'é' is not allowed in 'Converting Inches To Yards'.  Click the Assistant Wiz for "
          "details."}},
        {{"at", 6}, {"key", "."}, {"why", "A number can only have one decimal point."}}};
    EXPECT_EQ(answer.at("refused").dump(), expected.dump());
    EXPECT_EQ(answer.at("failure"), nullptr);
}

TEST(SolveRequest, WithoutAProblemNothingIsSolved) {
    for (const char* request :
         {R"({"do":"solve","code":53})", R"({"do":"solve","code":53,"problem":"+-"})",
          R"({"do":"solve","code":23,"boxes":["","","","5"]})"}) {
        const Json answer = Ask(request);
        EXPECT_EQ(answer.at("ok"), true);
        EXPECT_EQ(answer.at("solvable"), false);
        EXPECT_TRUE(answer.at("lines").empty());
        EXPECT_TRUE(answer.at("messages").empty());
        EXPECT_EQ(answer.at("failure"), nullptr);
    }
}

TEST(SolveRequest, AnUnfinishedLineIsSolvedIntoTheFormatFailure) {
    const Json answer = Ask(R"({"do":"solve","code":53,"problem":"4."})");
    EXPECT_EQ(answer.at("solvable"), true);
    EXPECT_EQ(answer.at("failure"), "format");
    EXPECT_TRUE(answer.at("lines").empty());
    const Json expected = Json::array(
        {{{"title", ""},
          {"text",
           "The format of the entered problem was not recognized.  Click the 'Erase' button and "
           "try again."}}});
    EXPECT_EQ(answer.at("messages").dump(), expected.dump());
}

TEST(SolveRequest, BoxesAndListsMakeAMetricProblem) {
    const Json answer =
        Ask(R"({"do":"solve","topic":"Meter Conversions","boxes":["","","","2.5"],"lists":[6,3]})");
    EXPECT_EQ(answer.at("code"), 23);
    EXPECT_EQ(answer.at("problem"), "");
    EXPECT_EQ(answer.at("solvable"), true);
    EXPECT_EQ(answer.at("lines").size(), 6U);
    EXPECT_EQ(answer.at("lines").back().at("text"), "2.5 km = 2500 m");
}

TEST(SolveRequest, BoxesAreTypedThroughTheBoxRule) {
    const Json answer =
        Ask(R"({"do":"solve","code":24,"boxes":["","","","1x.5.-2"],"lists":[3,3]})");
    const Json expected = {{{"at", 1}, {"key", "x"}, {"why", ""}, {"box", 4}},
                           {{"at", 4}, {"key", "."}, {"why", ""}, {"box", 4}},
                           {{"at", 5}, {"key", "-"}, {"why", ""}, {"box", 4}}};
    EXPECT_EQ(answer.at("refused").dump(), expected.dump());
    EXPECT_EQ(answer.at("lines").back().at("text"), "1.52 g = 1.52 g");
}

TEST(SolveRequest, ABackspaceInABoxTakesACharacterBack) {
    const Json answer = Ask(R"({"do":"solve","code":24,"boxes":["","","","5\b6"],"lists":[3,3]})");
    EXPECT_TRUE(answer.at("refused").empty());
    EXPECT_EQ(answer.at("lines").back().at("text"), "6 g = 6 g");
}

TEST(SolveRequest, RefusedKeysOfTheLineComeBeforeThoseOfTheBoxes) {
    const Json answer =
        Ask(R"({"do":"solve","code":24,"problem":"7","boxes":["x","","","5y"],"lists":[3,3]})");
    const Json expected = {{{"at", 0}, {"key", "7"}, {"why", ""}},
                           {{"at", 0}, {"key", "x"}, {"why", ""}, {"box", 1}},
                           {{"at", 1}, {"key", "y"}, {"why", ""}, {"box", 4}}};
    EXPECT_EQ(answer.at("refused").dump(), expected.dump());
}

TEST(SolveRequest, FilledBoxesStandAsTheyAre) {
    const Json answer = Ask(
        R"({"do":"solve","code":24,"boxes":["","","","123456789012"],"filled":true,"lists":[3,6]})");
    EXPECT_TRUE(answer.at("refused").empty());
    EXPECT_EQ(answer.at("lines").back().at("text"), "123456789012 g = 123456789.012 kg");
}

TEST(SolveRequest, TheLineOfABoxTopicTakesNoKey) {
    const Json answer =
        Ask(R"({"do":"solve","code":23,"problem":"5","boxes":["","","","5"],"lists":[0,1]})");
    const Json expected = Json::array({{{"at", 0}, {"key", "5"}, {"why", ""}}});
    EXPECT_EQ(answer.at("refused").dump(), expected.dump());
    EXPECT_EQ(answer.at("problem"), "");
    EXPECT_EQ(answer.at("lines").back().at("text"), "5 mm = 0.5 cm");
}

TEST(SolveRequest, SettingsShapeTheAnswer) {
    const Json answer =
        Ask(R"({"do":"solve","code":110,"problem":"100","settings":{"RoundDigits":4,)"
            R"("UseFractions":false,"DetailLevel":3,"ExpDetail":1,"ComplexEx":2,)"
            R"("mnuShowStep":false}})");
    EXPECT_EQ(answer.at("lines").size(), 6U);
    EXPECT_EQ(answer.at("lines").back().at("text"), "100^o^ F = 37.7778^o^ C");
}

Json SolveLine(int code, const std::string& problem, const std::string& more = "") {
    return Ask(R"({"do":"solve","code":)" + std::to_string(code) + R"(,"problem":")" + problem +
               "\"" + more + "}");
}

Json Line(int x1, int y1, int x2, int y2) {
    return {{"line", {x1, y1, x2, y2}}, {"width", 2}, {"color", 0}};
}

Json Label(const char* text, int x) {
    return {{"text", text}, {"x", x}, {"y", 158}, {"size", 12}, {"color", 0}};
}

TEST(SolveRequest, ComparingDrawsItsNumberLine) {
    const Json answer = SolveLine(90, "4,-2");
    const Json expected =
        Json::array({Line(150, 150, 550, 150), Line(150, 150, 155, 155), Line(150, 150, 155, 145),
                     Line(550, 150, 545, 145), Line(550, 150, 545, 155), Line(350, 145, 350, 155),
                     Label("0", 345), Line(250, 145, 250, 155), Label("-2", 244),
                     Line(450, 145, 450, 155), Label("4", 451)});
    EXPECT_EQ(answer.at("drawing").dump(), expected.dump());
    EXPECT_EQ(answer.at("lines").size(), 2U);
    EXPECT_EQ(answer.at("lines").back().at("text"), "4 > -2");
    EXPECT_EQ(answer.at("graph"), nullptr);
}

TEST(SolveRequest, AFailedComparisonDrawsNothing) {
    const Json answer = SolveLine(90, "4,");
    EXPECT_EQ(answer.at("solvable"), true);
    EXPECT_EQ(answer.at("failure"), "format");
    EXPECT_TRUE(answer.at("lines").empty());
    EXPECT_EQ(answer.at("drawing").dump(), "[]");
}

TEST(SolveRequest, APointAsksForItsGraph) {
    const Json answer = SolveLine(108, "(4,-8)");
    EXPECT_EQ(answer.at("graph").dump(),
              R"({"mode":1,"x1":4,"y1":-8,"x2":0,"y2":0,"equation":""})");
    EXPECT_TRUE(answer.at("lines").empty());
    EXPECT_EQ(answer.at("failure"), nullptr);
    EXPECT_EQ(answer.at("drawing").dump(), "[]");
}

TEST(SolveRequest, APointsQuadrantAsksForTheGraphOfThePoint) {
    const Json answer = SolveLine(107, "(-3,5)");
    EXPECT_EQ(answer.at("graph").dump(),
              R"({"mode":1,"x1":-3,"y1":5,"x2":0,"y2":0,"equation":""})");
    EXPECT_EQ(answer.at("lines").size(), 3U);
    EXPECT_EQ(answer.at("lines").front().at("text"), "(-3 , 5)");
}

TEST(SolveRequest, TwoPointsAskForTheirGraph) {
    const Json answer = SolveLine(106, "(1,-2)-(-5,6)");
    EXPECT_EQ(answer.at("graph").dump(),
              R"({"mode":2,"x1":1,"y1":-2,"x2":-5,"y2":6,"equation":""})");
    EXPECT_TRUE(answer.at("lines").empty());
}

TEST(SolveRequest, AFailureLeavesNoGraph) {
    for (const auto& [code, line] :
         {std::pair(108, "(4,"), std::pair(107, "(4,8"), std::pair(107, "(4,-"),
          std::pair(106, "(1,2)"), std::pair(106, "(1,2)-(3,4")}) {
        const Json answer = SolveLine(code, line);
        EXPECT_EQ(answer.at("solvable"), true) << line;
        EXPECT_EQ(answer.at("failure"), "format") << line;
        EXPECT_EQ(answer.at("graph"), nullptr) << line;
        EXPECT_TRUE(answer.at("lines").empty()) << line;
    }
}

TEST(SolveRequest, TheThirdListChoosesThePlaceToRoundTo) {
    const std::pair<const char*, const char*> places[] = {{"", "1000"},
                                                          {R"(,"lists":[])", "1000"},
                                                          {R"(,"lists":[-1,-1,0])", "1000"},
                                                          {R"(,"lists":[-1,-1,1])", "1300"},
                                                          {R"(,"lists":[-1,-1,2])", "1250"},
                                                          {R"(,"lists":[-1,-1,3])", "1251"},
                                                          {R"(,"lists":[-1,-1,4])", "1250.5"},
                                                          {R"(,"lists":[-1,-1,5])", "1250.50"},
                                                          {R"(,"lists":[-1,-1,6])", "1250.500"}};
    for (const auto& [lists, result] : places) {
        EXPECT_EQ(SolveLine(98, "1250.5", lists).at("lines").back().at("text"), result) << lists;
    }
    const Json none = SolveLine(98, "1250.5", R"(,"lists":[-1,-1,-1])");
    EXPECT_EQ(none.at("solvable"), true);
    EXPECT_EQ(none.at("failure"), "format");
    EXPECT_TRUE(none.at("lines").empty());
}

TEST(SolveRequest, AnOverflowKeepsTheLinesBeforeIt) {
    const Json answer = SolveLine(87, "40000,50000");
    EXPECT_EQ(answer.at("failure"), "overflow");
    EXPECT_EQ(answer.at("lines").size(), 2U);
    const Json expected = Json::array(
        {{{"title", "Overflow!"},
          {"text",
           "The entered problem caused a data overflow.  Click the 'Erase' button and try "
           "again."}}});
    EXPECT_EQ(answer.at("messages").dump(), expected.dump());
}

TEST(SolveRequest, ADivisionByZeroKeepsTheLinesBeforeIt) {
    const Json answer = SolveLine(88, "6,00");
    EXPECT_EQ(answer.at("failure"), "division by zero");
    EXPECT_EQ(answer.at("lines").size(), 2U);
    EXPECT_EQ(answer.at("messages").at(0).at("title"), "Division by 0!");
}

}  // namespace
}  // namespace numerello
