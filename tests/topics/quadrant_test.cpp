#include "tests/topics/typed_topic.h"
#include "topics/quadrants.h"

namespace numerello {
namespace {

constexpr int kLineThroughTwoPoints = 106;
constexpr int kPointsQuadrant = 107;
constexpr int kPlottingAPoint = 108;

TEST(PointQuadrant, WritesThreeLines) {
    const Log expected{
        {"(4 , 8)", ""},
        {"Point (4 , 8) is located:",
         "The location of the point is detemined by the coordinates and whether each is positive "
         "or negative."},
        {"Both coordinates are positive - Quadrant I", "Both coordinates are greater than 0."}};
    EXPECT_EQ(LogOf(Solved(kPointsQuadrant, "(4,8)")), expected);
}

/// By the signs of x and y.
std::pair<std::string, std::string> PlaceOf(int x, int y) {
    if (x > 0) {
        if (y > 0) {
            return {"Both coordinates are positive - Quadrant I",
                    "Both coordinates are greater than 0."};
        }
        if (y < 0) {
            return {"The first coordinate is positive, the second is negative - Quadrant IV.",
                    "The first coordinate is greater than 0, and the second is less than 0."};
        }
        return {"The point is located along the axis between Quadrant I and IV",
                "The first coordinate is greater than 0, and the second is 0."};
    }
    if (x < 0) {
        if (y > 0) {
            return {"The first coordinate is negative, the second is positive - Quadrant II.",
                    "The first coordinate is less than 0, and the second is greater than 0."};
        }
        if (y < 0) {
            return {"Both coordinates are negative - Quadrant III",
                    "Both coordinates are less than 0."};
        }
        return {"The point is located along the axis between Quadrant II and III",
                "The first coordinate is less than 0, and the second is 0."};
    }
    if (y > 0) {
        return {"The point is located along the axis between Quadrant I and II",
                "The first coordinate is 0, and the second is greater than 0."};
    }
    if (y < 0) {
        return {"The point is located along the axis between Quadrant III and IV",
                "The first coordinate is 0, and the second is less than 0."};
    }
    return {"The point is located at the origin.",
            "The origin of the graph is located at point (0,0)."};
}

Log LogOfPoint(const std::string& x, const std::string& y) {
    return {{"(" + x + " , " + y + ")", ""},
            {"Point (" + x + " , " + y + ") is located:",
             "The location of the point is detemined by the coordinates and whether each is "
             "positive or negative."},
            PlaceOf(std::stoi(x), std::stoi(y))};
}

TEST(PointQuadrant, EveryPairOfSigns) {
    for (const std::string x : {"7", "-3", "0"}) {
        for (const std::string y : {"5", "-12", "0"}) {
            EXPECT_EQ(LogOf(Solved(kPointsQuadrant, "(" + x + "," + y + ")")), LogOfPoint(x, y));
        }
    }
}

TEST(PointQuadrant, CoordinatesAreRepeatedAsTyped) {
    EXPECT_EQ(LogOf(Solved(kPointsQuadrant, "(-0,007)")), LogOfPoint("-0", "007"));
    EXPECT_EQ(LogOf(Solved(kPointsQuadrant, "(-0,-0)")), LogOfPoint("-0", "-0"));
    EXPECT_EQ(LogOf(Solved(kPointsQuadrant, "(00,-01)")), LogOfPoint("00", "-01"));
}

TEST(PointQuadrant, TakesDecimals) {
    Problem problem;
    PointQuadrant(problem, "0.5", "-.25");
    const Log log = LogOf(problem);
    EXPECT_EQ(log[0].first, "(0.5 , -.25)");
    EXPECT_EQ(log[2].first,
              "The first coordinate is positive, the second is negative - Quadrant IV.");
}

TEST(PointQuadrant, TheLastParenthesisMayBeMissing) {
    EXPECT_EQ(LogOf(Solved(kPointsQuadrant, "(4,8")), LogOfPoint("4", "8"));
}

TEST(PointQuadrant, ACoordinateThatIsNoNumberKeepsTwoLines) {
    for (const auto& [x, y] : {std::pair("-", "4"), std::pair("4", ""), std::pair("", "")}) {
        Problem problem;
        EXPECT_THROW(PointQuadrant(problem, x, y), Failure);
        EXPECT_EQ(problem.log.StepCount, 3);
    }
}

TEST(PointQuadrant, RandomPointsLieWhereTheirSignsSay) {
    const TypedTopic topic(kPointsQuadrant);
    Draws draws(107);
    const auto coordinate = [&draws] {
        return (draws.Below(2) == 0 ? "-" : "") +
               (draws.Below(4) == 0 ? std::string("0") : draws.Digits(5));
    };
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string x = coordinate();
        const std::string y = coordinate();
        const Problem problem = topic.Solve("(" + x + "," + y + ")");
        EXPECT_EQ(LogOf(problem), LogOfPoint(x, y));
        EXPECT_EQ(problem.graph.GraphX1, std::stoi(x));
        EXPECT_EQ(problem.graph.GraphY1, std::stoi(y));
    }
}

TEST(GraphRequests, OfAPoint) {
    const Problem problem = Solved(kPlottingAPoint, "(4,-8)");
    EXPECT_EQ(LogOf(problem), Log());
    EXPECT_TRUE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.graph.GraphMode, 1);
    EXPECT_EQ(problem.graph.GraphX1, 4);
    EXPECT_EQ(problem.graph.GraphY1, -8);
}

TEST(GraphRequests, OfAPointsQuadrant) {
    const Problem problem = Solved(kPointsQuadrant, "(-3,5)");
    EXPECT_TRUE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.graph.GraphMode, 1);
    EXPECT_EQ(problem.graph.GraphX1, -3);
    EXPECT_EQ(problem.graph.GraphY1, 5);
}

TEST(GraphRequests, OfALineThroughTwoPoints) {
    const Problem problem = Solved(kLineThroughTwoPoints, "(1,-2)-(-5,6)");
    EXPECT_EQ(LogOf(problem), Log());
    EXPECT_TRUE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.graph.GraphMode, 2);
    EXPECT_EQ(problem.graph.GraphX1, 1);
    EXPECT_EQ(problem.graph.GraphY1, -2);
    EXPECT_EQ(problem.graph.GraphX2, -5);
    EXPECT_EQ(problem.graph.GraphY2, 6);
}

TEST(GraphRequests, NothingIsToBePlayedWithoutALine) {
    for (const auto& [code, line] :
         {std::pair(kPlottingAPoint, "(4,8)"), std::pair(kLineThroughTwoPoints, "(1,2)-(5,6)")}) {
        const Problem problem = TypedTopic(code).Solve(line);
        EXPECT_EQ(problem.playback.ShownStep, 0);
        EXPECT_EQ(problem.log.StepNote[0], problem.topic.InstructionText);
    }
}

TEST(GraphRequests, AMissingCoordinateFailsBeforeTheFirstLine) {
    const std::pair<int, const char*> cases[] = {
        {kPlottingAPoint, "(4,"},
        {kPlottingAPoint, "(4)"},
        {kPlottingAPoint, "(-,8)"},
        {kPlottingAPoint, ""},
        {kPointsQuadrant, "(4,"},
        {kPointsQuadrant, "(4)"},
        {kPointsQuadrant, "(4,-)"},
        {kLineThroughTwoPoints, "(1,2)"},
        {kLineThroughTwoPoints, "(1,2)-"},
        {kLineThroughTwoPoints, "(1,2)-(5,"},
        {kLineThroughTwoPoints, "(1,2)-(,6)"},
    };
    for (const auto& [code, line] : cases) {
        ExpectFailure(ProblemOf(code, line), FailureKind::Format, {});
    }
}

TEST(GraphRequests, RandomLinesKeepBothOfTheirPoints) {
    const TypedTopic topic(kLineThroughTwoPoints);
    Draws draws(106);
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> parts;
        for (int part = 0; part < 4; ++part) {
            parts.push_back((draws.Below(2) == 0 ? "-" : "") + draws.Digits(5));
        }
        const Problem problem =
            topic.Solve("(" + parts[0] + "," + parts[1] + ")-(" + parts[2] + "," + parts[3] + ")");
        EXPECT_EQ(problem.graph.GraphMode, 2);
        EXPECT_EQ(problem.graph.GraphX1, std::stoi(parts[0]));
        EXPECT_EQ(problem.graph.GraphY1, std::stoi(parts[1]));
        EXPECT_EQ(problem.graph.GraphX2, std::stoi(parts[2]));
        EXPECT_EQ(problem.graph.GraphY2, std::stoi(parts[3]));
    }
}

}  // namespace
}  // namespace numerello
