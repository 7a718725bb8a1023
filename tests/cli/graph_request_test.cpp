#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/cli/ask.h"
#include "tests/topics/rational.h"

namespace numerello {
namespace {

Json AskGraph(int code, const std::string& problem, const std::string& more = "") {
    return Ask(R"({"do":"graph","code":)" + std::to_string(code) + R"(,"problem":")" + problem +
               "\"" + more + "}");
}

TEST(GraphRequest, AnswersEveryFieldInItsOrder) {
    const Json answer =
        Ask(R"j({"id":7,"do":"graph","topic":"Plotting A Point","problem":"(4,-8)"})j");
    EXPECT_EQ(answer.dump(),
              R"({"id":7,"ok":true,"code":108,"solvable":true,"failure":null,"messages":[],)"
              R"("range":[-20,20,-20,20],"step":0.2,"grid":true,"mode":1,"points":[[4,-8]],)"
              R"("list":["x=4  y=-8"]})");
}

TEST(GraphRequest, TheFourTopicsHaveTheirModes) {
    EXPECT_EQ(AskGraph(107, "(-3,5)").at("mode"), 1);
    EXPECT_EQ(AskGraph(107, "(-3,5)").at("points").dump(), "[[-3,5]]");
    const Json line = AskGraph(106, "(1,-2)-(-5,6)");
    EXPECT_EQ(line.at("mode"), 2);
    EXPECT_EQ(line.at("points").dump(), "[[1,-2],[-5,6]]");
    EXPECT_EQ(line.at("list").dump(), R"(["x=1  y=-2","x=-5  y=6"])");
    EXPECT_EQ(AskGraph(105, "y=2x+3").at("mode"), 3);
}

TEST(GraphRequest, UprightAndLevelLinesHaveTwoPoints) {
    EXPECT_EQ(AskGraph(105, "x=3").at("points").dump(), "[[3,-20],[3,20]]");
    EXPECT_EQ(AskGraph(105, "x=3").at("list").dump(), R"(["x=3  y=-20","x=3  y=20"])");
    EXPECT_EQ(AskGraph(105, "2y=-1").at("points").dump(), "[[-20,-0.5],[20,-0.5]]");
    EXPECT_EQ(AskGraph(105, "y=0").at("points").dump(), "[[-20,0],[20,0]]");
    EXPECT_EQ(AskGraph(105, "x=0").at("points").dump(), "[[0,-20],[0,20]]");
    EXPECT_EQ(AskGraph(105, "x=3", R"(,"zoom":3)").at("points").dump(), "[[3,-160],[3,160]]");
}

TEST(GraphRequest, ZoomsOutAndInUpToItsLimits) {
    const auto range = [](const std::string& zoom) {
        return AskGraph(108, "(1,1)", R"(,"zoom":)" + zoom).at("range")[1].get<double>();
    };
    EXPECT_EQ(range("0"), 20);
    EXPECT_EQ(range("1"), 40);
    EXPECT_EQ(range("12"), 81920);
    EXPECT_EQ(range("13"), 81920);
    EXPECT_EQ(range("1000000000"), 81920);
    EXPECT_EQ(range("-1"), 10);
    EXPECT_EQ(range("-2"), 5);
    EXPECT_EQ(range("-3"), 5);
    EXPECT_EQ(AskGraph(108, "(1,1)", R"(,"zoom":3)").at("grid"), true);
    EXPECT_EQ(AskGraph(108, "(1,1)", R"(,"zoom":4)").at("grid"), false);
}

TEST(GraphRequest, QualityChoosesTheStep) {
    const Json fine = AskGraph(105, "y=2x+3", R"(,"quality":1)");
    EXPECT_EQ(fine.at("step"), 0.01);
    EXPECT_EQ(fine.at("points").size(), 4000U);
    EXPECT_EQ(fine.at("list").size(), 4000U);
    const Json quick = AskGraph(105, "y=2x+3", R"(,"quality":20)");
    EXPECT_EQ(quick.at("step"), 0.2);
    EXPECT_EQ(quick.at("points").size(), 201U);
    EXPECT_EQ(quick.at("list")[0], "x=-20  y=-37");
}

TEST(GraphRequest, ThePlaybackDoesNotMatter) {
    const std::string untold = R"(,"settings":{"mnuShowStep":false})";
    EXPECT_EQ(AskGraph(105, "2x+3y=6", untold).at("points"), AskGraph(105, "2x+3y=6").at("points"));
    EXPECT_EQ(AskGraph(107, "(-3,5)", untold).at("mode"), 1);
}

TEST(GraphRequest, AnswersChooseTheLetter) {
    const Json answer = AskGraph(105, "a+2b=4", R"(,"answers":["b"])");
    EXPECT_EQ(answer.at("points")[0].dump(), "[-20,12]");
    EXPECT_EQ(AskGraph(105, "a+2b=4", R"(,"answers":["a"])").at("points")[0].dump(), "[-20,44]");
    EXPECT_EQ(AskGraph(105, "a+2b=4").at("failure"), "unanswered");
}

TEST(GraphRequest, WhatIsNotSolvedHasNoGraph) {
    const std::vector<std::string> bare{"id", "ok", "code", "solvable", "failure", "messages"};
    const Json empty = AskGraph(108, "");
    EXPECT_EQ(FieldsOf(empty), bare);
    EXPECT_EQ(empty.at("solvable"), false);
    const Json half = AskGraph(108, "(4,");
    EXPECT_EQ(FieldsOf(half), bare);
    EXPECT_EQ(half.at("solvable"), true);
    EXPECT_EQ(half.at("failure"), "format");
    EXPECT_EQ(half.at("messages").size(), 1U);
}

TEST(GraphRequest, AnEquationWithoutALetterLeftHasNothingToPlot) {
    const Json answer = AskGraph(105, "y=y+3");
    EXPECT_EQ(answer.at("failure"), nullptr);
    EXPECT_EQ(answer.at("mode"), 0);
    EXPECT_TRUE(answer.at("points").empty());
    EXPECT_TRUE(answer.at("list").empty());
}

TEST(GraphRequest, OtherTopicsAndValuesAreRefused) {
    for (const char* request : {
             R"({"do":"graph","code":104,"problem":"90"})",
             R"({"do":"graph","code":109,"problem":"90"})",
             R"({"do":"graph","topic":"Addition","boxes":["4","5"]})",
             R"({"do":"graph","code":108,"quality":2})",
             R"({"do":"graph","code":108,"quality":0})",
             R"({"do":"graph","code":108,"quality":21})",
             R"({"do":"graph","code":108,"quality":"1"})",
             R"({"do":"graph","code":108,"zoom":1.5})",
             R"({"do":"graph","code":108,"zoom":"1"})",
             R"({"do":"graph","code":108,"zoom":18446744073709551615})",
             R"({"do":"graph","code":108,"range":20})",
             R"({"do":"graph","problem":"y=x"})",
             R"({"do":"solve","code":108,"zoom":1})",
         }) {
        EXPECT_EQ(Ask(request).at("ok"), false) << request;
    }
}

double Near(const Rational& value) {
    return static_cast<double>(static_cast<long double>(value.Numerator()) /
                               static_cast<long double>(value.Denominator()));
}

/// ax + by = c as it is typed, and y by the same numbers.
void ExpectOnLine(int a, int b, int c) {
    const std::string equation =
        std::to_string(a) + "x" + (b < 0 ? "" : "+") + std::to_string(b) + "y=" + std::to_string(c);
    const Json answer = AskGraph(105, equation);
    ASSERT_EQ(answer.at("failure"), nullptr) << equation;
    const Json& points = answer.at("points");
    ASSERT_EQ(points.size(), 201U) << equation;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Rational x = Rational(static_cast<std::int64_t>(i), 5) - 20;
        const double y = Near((Rational(c) - x * a) / b);
        const double noise = 1e-12 * (1 + std::abs(static_cast<double>(a) / b));
        ASSERT_NEAR(points[i][0].get<double>(), Near(x), 1e-12) << equation;
        ASSERT_NEAR(points[i][1].get<double>(), y, noise + 1e-14 * std::abs(y)) << equation;
    }
}

TEST(GraphRequest, ThePointsOfFiftyTypedEquationsLieOnThem) {
    int equations = 0;
    for (const int a : {1, 2, -3, 7, 45}) {
        for (const int b : {1, -1, 3, -8, 13}) {
            for (const int c : {0, 6, -11}) {
                ExpectOnLine(a, b, c);
                ++equations;
            }
        }
    }
    EXPECT_GE(equations, 50);
}

}  // namespace
}  // namespace numerello
