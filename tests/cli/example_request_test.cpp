#include <gtest/gtest.h>

#include <set>

#include "catalogue/topics.h"
#include "tests/cli/ask.h"

namespace numerello {
namespace {

Json AskFor(const Topic& topic, const Json& more) {
    Json request{{"do", "example"}, {"topic", topic.caption}};
    request.update(more);
    return Ask(request.dump());
}

TEST(ExampleRequest, AnswersWhatALearnerWouldHaveEntered) {
    const Json answer =
        Ask(R"({"id":1,"do":"example","topic":"Pythagorean Theorem","clock":"1234"})");
    EXPECT_EQ(FieldsOf(answer), (std::vector<std::string>{"id", "ok", "code", "problem", "boxes",
                                                          "lists", "filled"}));
    EXPECT_EQ(answer.at("id"), 1);
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("code"), 12);
    EXPECT_EQ(answer.at("problem"), "");
    EXPECT_EQ(answer.at("boxes").size(), 6U);
    EXPECT_EQ(answer.at("lists"), Json({-1, -1, 0}));
    EXPECT_EQ(answer.at("filled"), true);
}

TEST(ExampleRequest, MakesASolveOfEveryTopic) {
    for (const Topic& topic : Topics()) {
        for (const bool complex : {false, true}) {
            const Json example = AskFor(topic, {{"complex", complex}, {"clock", "0317"}});
            ASSERT_EQ(example.at("ok"), true) << topic.caption;
            const Json solved = Ask(Json{
                {"do", "solve"},
                {"topic", topic.caption},
                {"problem", example.at("problem")},
                {"boxes", example.at("boxes")},
                {"lists", example.at("lists")},
                {"filled", example.at("filled")},
                {"answers",
                 {"x", "2", "3"}}}.dump());
            EXPECT_EQ(solved.at("ok"), true) << topic.caption;
            EXPECT_EQ(solved.at("solvable"), true) << topic.caption;
            EXPECT_TRUE(solved.at("refused").empty()) << topic.caption;
            EXPECT_EQ(solved.at("problem"), example.at("problem"));
        }
    }
}

TEST(ExampleRequest, IsTheSameForTheSameMomentAndSeed) {
    for (const Topic& topic : Topics()) {
        for (const Json& more : {Json{{"clock", "0000"}}, Json{{"clock", "5959"}, {"seed", -7}},
                                 Json{{"clock", "1000"}, {"seed", 9007199254740993}}}) {
            EXPECT_EQ(AskFor(topic, more), AskFor(topic, more)) << topic.caption;
        }
    }
}

TEST(ExampleRequest, TheSeedDecidesTheDirectDraws) {
    std::set<std::string> problems;
    for (int seed = 0; seed < 20; ++seed) {
        problems.insert(AskFor(*FindTopic("Arithmetic"), {{"clock", "0000"}, {"seed", seed}})
                            .at("problem")
                            .get<std::string>());
    }
    EXPECT_GT(problems.size(), 10U);
}

TEST(ExampleRequest, TheSettingDoesNotDecideHowComplexItIs) {
    const Json plain = AskFor(*FindTopic("Addition"), {{"clock", "0000"}});
    const Json set =
        AskFor(*FindTopic("Addition"), {{"clock", "0000"}, {"settings", {{"ComplexEx", 2}}}});
    EXPECT_EQ(plain, set);
    EXPECT_NE(plain, AskFor(*FindTopic("Addition"), {{"clock", "0000"}, {"complex", true}}));
}

TEST(ExampleRequest, RefusesWhatItCannotUse) {
    for (const char* fields :
         {R"("clock":"6000")", R"("clock":"0060")", R"("clock":"123")", R"("clock":1234)",
          R"("clock":"12 4")", R"("seed":"1")", R"("seed":1.5)", R"("seed":null)", R"("complex":2)",
          R"("complex":"true")", R"("count":2)", R"("problem":"4")"}) {
        const std::string request =
            std::string(R"({"do":"example","topic":"Addition",)") + fields + "}";
        EXPECT_EQ(Ask(request).at("ok"), false) << request;
    }
    EXPECT_EQ(Ask(R"({"do":"example"})").at("ok"), false);
    EXPECT_EQ(Ask(R"({"do":"example","code":122})").at("ok"), false);
}

}  // namespace
}  // namespace numerello
