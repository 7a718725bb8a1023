#include <gtest/gtest.h>

#include "tests/graph/asked.h"

namespace numerello {
namespace {

template <class Kind>
std::vector<Kind> Marks(const GraphPicture& picture) {
    std::vector<Kind> marks;
    for (const GraphMark& mark : picture.marks) {
        if (const auto* found = std::get_if<Kind>(&mark)) {
            marks.push_back(*found);
        }
    }
    return marks;
}

std::vector<GraphStroke> StrokesOf(const GraphPicture& picture, double width) {
    std::vector<GraphStroke> strokes;
    for (const GraphStroke& stroke : Marks<GraphStroke>(picture)) {
        if (stroke.width == width) {
            strokes.push_back(stroke);
        }
    }
    return strokes;
}

class PictureOfAPoint : public testing::Test {
  protected:
    GraphPicture Drawn(int zoomedOut = 0) {
        return numerello::Drawn(AskedPoint(4, -8), settings, zoomedOut).Picture();
    }

    GraphSettings settings;
};

TEST_F(PictureOfAPoint, HasAGridLineAtEveryWholeNumber) {
    const GraphPicture picture = Drawn();
    EXPECT_EQ(picture.BackColor, 0xFFFFFFU);
    const std::vector<GraphStroke> grid = StrokesOf(picture, 1);
    ASSERT_EQ(grid.size(), 82U);
    for (int i = -20; i <= 20; ++i) {
        const GraphStroke& across = grid[static_cast<std::size_t>(2 * (i + 20))];
        const GraphStroke& upright = grid[static_cast<std::size_t>(2 * (i + 20) + 1)];
        EXPECT_EQ(std::tuple(across.x1, across.y1, across.x2, across.y2),
                  std::tuple(-20, i, 20, i));
        EXPECT_EQ(std::tuple(upright.x1, upright.y1, upright.x2, upright.y2),
                  std::tuple(i, -20, i, 20));
        EXPECT_EQ(across.color, 16766596U);
    }
}

TEST_F(PictureOfAPoint, LosesItsGridFrom320) {
    EXPECT_EQ(StrokesOf(Drawn(3), 1).size(), 2U * 321);
    EXPECT_EQ(Drawn(3).BackColor, 0xFFFFFFU);
    EXPECT_TRUE(StrokesOf(Drawn(4), 1).empty());
    EXPECT_EQ(Drawn(4).BackColor, 16766596U);
    EXPECT_EQ(StrokesOf(Drawn(-2), 1).size(), 22U);
}

TEST_F(PictureOfAPoint, HasAxesAcrossTheRange) {
    const std::vector<GraphStroke> axes = StrokesOf(Drawn(1), 2);
    ASSERT_EQ(axes.size(), 2U);
    EXPECT_EQ(std::tuple(axes[0].x1, axes[0].y1, axes[0].x2, axes[0].y2),
              std::tuple(-40, 0, 40, 0));
    EXPECT_EQ(std::tuple(axes[1].x1, axes[1].y1, axes[1].x2, axes[1].y2),
              std::tuple(0, -40, 0, 40));
}

TEST_F(PictureOfAPoint, TellsTheRangeAtTheEndsOfTheAxes) {
    const std::vector<GraphLabel> labels = Marks<GraphLabel>(Drawn());
    ASSERT_EQ(labels.size(), 5U);
    const auto expect = [&labels](std::size_t i, const char* text, double x, double y,
                                  double alongWidth, double alongHeight) {
        EXPECT_EQ(labels[i].text, text);
        EXPECT_DOUBLE_EQ(labels[i].x, x) << text;
        EXPECT_DOUBLE_EQ(labels[i].y, y) << text;
        EXPECT_EQ(labels[i].alongWidth, alongWidth) << text;
        EXPECT_EQ(labels[i].alongHeight, alongHeight) << text;
        EXPECT_EQ(labels[i].font.name, "MS Sans Serif");
        EXPECT_EQ(labels[i].font.size, 8.25);
    };
    expect(0, "-20", -20, 0, 0, 0);
    expect(1, "0", 0, 0, 0, 0);
    expect(2, "20", 0, 20, 0, 0);
    expect(3, "-20", 0, -20, 0, 1);
    expect(4, "20", 19.6, 0, 1, 0);
}

TEST_F(PictureOfAPoint, NumbersTheQuadrantsWhenAsked) {
    Graph graph = numerello::Drawn(AskedPoint(4, -8), settings, 1);
    graph.ShowQuadrants(true);
    graph.Redraw();
    const std::vector<GraphLabel> labels = Marks<GraphLabel>(graph.Picture());
    ASSERT_EQ(labels.size(), 9U);
    const std::vector<std::tuple<std::string, double, double>> expected{
        {"I", 20, 20}, {"II", -20, 20}, {"III", -20, -20}, {"IV", 20, -20}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const GraphLabel& label = labels[i + 5];
        EXPECT_EQ(std::tuple(label.text, label.x, label.y), expected[i]);
        EXPECT_EQ(label.font.name, "Courier");
        EXPECT_EQ(label.font.size, 16);
    }
}

TEST_F(PictureOfAPoint, IsADotInTheColorOfTheLine) {
    settings.GraphLineColor = kBlue;
    const std::vector<GraphDot> dots = Marks<GraphDot>(Drawn());
    ASSERT_EQ(dots.size(), 1U);
    EXPECT_EQ(dots[0].x, 4);
    EXPECT_EQ(dots[0].y, -8);
    EXPECT_EQ(dots[0].color, kBlue);
    EXPECT_TRUE(std::holds_alternative<GraphDot>(Drawn().marks.back()));
}

TEST_F(PictureOfAPoint, FarOutsideHasNoDot) {
    EXPECT_TRUE(
        Marks<GraphDot>(numerello::Drawn(AskedPoint(99999, 0), settings).Picture()).empty());
    EXPECT_EQ(
        Marks<GraphDot>(numerello::Drawn(AskedPoint(99999, 0), settings, 12).Picture()).size(), 0U);
    EXPECT_EQ(
        Marks<GraphDot>(numerello::Drawn(AskedPoint(81000, 0), settings, 12).Picture()).size(), 1U);
}

TEST_F(PictureOfAPoint, OnADarkGroundAxesAreWhite) {
    settings.GraphGridColor = kBlack;
    EXPECT_EQ(StrokesOf(Drawn(4), 2)[0].color, 0xFFFFFFU);
    EXPECT_NE(StrokesOf(Drawn(3), 2)[0].color, 0xFFFFFFU);
}

TEST(PictureOfALine, GoesThroughItsPointsFromEdgeToEdge) {
    const GraphSettings settings;
    const GraphPicture picture = Drawn(AskedLine(1, 2, 5, 6), settings).Picture();
    const std::vector<GraphPath> paths = Marks<GraphPath>(picture);
    ASSERT_EQ(paths.size(), 1U);
    ASSERT_EQ(paths[0].points.size(), 2U);
    EXPECT_EQ(paths[0].width, 2);
    EXPECT_EQ(paths[0].color, kRed);
    for (const GraphPoint& point : paths[0].points) {
        EXPECT_DOUBLE_EQ(point.y, point.x + 1);
    }
    EXPECT_LE(paths[0].points[0].x, -20);
    EXPECT_GE(paths[0].points[1].y, 20);
    EXPECT_EQ(Marks<GraphDot>(picture).size(), 2U);
}

TEST(PictureOfALine, MayBeUprightSteepOrLevel) {
    const GraphSettings settings;
    const auto path = [&settings](double x1, double y1, double x2, double y2) {
        return Marks<GraphPath>(Drawn(AskedLine(x1, y1, x2, y2), settings).Picture()).at(0).points;
    };
    EXPECT_EQ(path(3, 1, 3, 7)[0].x, 3);
    EXPECT_EQ(path(3, 1, 3, 7)[1].x, 3);
    EXPECT_EQ(path(3, 1, 3, 7)[1].y - path(3, 1, 3, 7)[0].y, 40);
    EXPECT_EQ(path(-5, -2, 9, -2)[0].y, -2);
    EXPECT_EQ(path(-5, -2, 9, -2)[1].x - path(-5, -2, 9, -2)[0].x, 40);
    // A thousand up for one to the right: x = (y - 500) / 1000.
    EXPECT_DOUBLE_EQ(path(0, 500, -1, -500)[1].x, (20 - 500) / 1000.0);
}

TEST(PictureOfALine, ThroughOnePointTwiceIsADot) {
    const GraphSettings settings;
    const GraphPicture picture = Drawn(AskedLine(1, 2, 1, 2), settings).Picture();
    EXPECT_TRUE(Marks<GraphPath>(picture).empty());
    EXPECT_FALSE(Marks<GraphDot>(picture).empty());
}

TEST(PictureOfACurve, LiesInThePictureWhateverItsSize) {
    const GraphSettings settings;
    for (const char* equation : {"y=99999x", "y=x^99", "y^2=x^40", "y=x^-3"}) {
        const GraphPicture picture = Drawn(AskedEquation(equation), settings).Picture();
        EXPECT_FALSE(Marks<GraphPath>(picture).empty()) << equation;
        for (const GraphPath& path : Marks<GraphPath>(picture)) {
            for (const GraphPoint& point : path.points) {
                EXPECT_LE(std::abs(point.x), 22.6) << equation;
                EXPECT_LE(std::abs(point.y), 22.6) << equation;
            }
        }
    }
}

}  // namespace
}  // namespace numerello
