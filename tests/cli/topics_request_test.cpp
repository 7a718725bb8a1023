#include <gtest/gtest.h>

#include <set>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

TEST(TopicsRequest, ListsTheTreeThenTheHiddenCaptions) {
    const Json answer = Ask(R"({"id":2,"do":"topics","clock":"1234"})");
    EXPECT_EQ(FieldsOf(answer), (std::vector<std::string>{"id", "ok", "topics"}));
    const Json& topics = answer.at("topics");
    ASSERT_EQ(topics.size(), 105U);
    const Json addition = {{"caption", "Addition"},
                           {"code", 200},
                           {"mask", "unchanged"},
                           {"digits", 5},
                           {"variables", 0},
                           {"parent", "Tree0"},
                           {"instruction", "Enter numbers into both boxes."}};
    EXPECT_EQ(topics[0].dump(), addition.dump());
    EXPECT_EQ(topics[96].at("caption"), "Distance = Speed * Time");
    EXPECT_EQ(topics[96].at("parent"), "Tree7.2");
    const Json evaluating = {
        {"caption", "Evaluating Polynomials"},
        {"code", 103},
        {"mask", "00000010110111"},
        {"digits", 5},
        {"variables", 3},
        {"parent", nullptr},
        {"instruction",
         "Enter a polynomial to be evaluated.  Use variables and/or numbers with or without "
         "exponents separated by operators ( + - * ). Example : 4xy+9x*6y+8z^2^ "}};
    EXPECT_EQ(topics[101].dump(), evaluating.dump());
}

TEST(TopicsRequest, TheClockAloneDrawsTheExamples) {
    std::set<std::string> answers;
    for (const char* clock : {"0000", "0001", "0002", "0003", "1030", "2359", "4500", "5959"}) {
        const std::string request = std::string(R"({"do":"topics","clock":")") + clock + "\"}";
        EXPECT_EQ(AnswersTo(request), AnswersTo(request));
        answers.insert(AnswersTo(request).at(0));
    }
    EXPECT_GT(answers.size(), 2U);
}

TEST(TopicsRequest, TheClockIsMinutesAndSeconds) {
    for (const char* clock : {"0000", "5959", "0930"}) {
        EXPECT_EQ(Ask(std::string(R"({"do":"topics","clock":")") + clock + "\"}").at("ok"), true);
    }
    for (const char* clock : {R"("6000")", R"("0060")", R"("930")", R"("12345")", R"("")",
                              R"("-100")", R"("12:3")", "1234"}) {
        EXPECT_EQ(Ask(std::string(R"({"do":"topics","clock":)") + clock + "}").at("ok"), false)
            << clock;
    }
}

}  // namespace
}  // namespace numerello
