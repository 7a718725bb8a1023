#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/failure.h"
#include "graph/coordinate_list.h"
#include "tests/graph/asked.h"
#include "tests/topics/rational.h"

namespace numerello {
namespace {

/// y to this power is a sum of terms in x, exactly.
struct Exact {
    struct Term {
        Rational coefficient;
        int power;
    };
    std::vector<Term> terms;
    int yPower = 1;

    Rational At(const Rational& x) const {
        Rational sum = 0;
        for (const Term& term : terms) {
            Rational product = term.coefficient;
            for (int i = 0; i < term.power; ++i) {
                product = product * x;
            }
            sum = sum + product;
        }
        return sum;
    }
};

long double Near(const Rational& value) {
    return static_cast<long double>(value.Numerator()) /
           static_cast<long double>(value.Denominator());
}

std::string Signed(std::string text) {
    return text.starts_with('-') ? text : "+" + text;
}

std::string FractionText(const Rational& value) {
    return Signed(std::to_string(static_cast<long>(value.Numerator())) + "/" +
                  std::to_string(static_cast<long>(value.Denominator())));
}

std::string TextOfEquation(const Exact& equation) {
    std::string text = "+1/1y^+" + std::to_string(equation.yPower) + "=";
    for (const Exact::Term& term : equation.terms) {
        text += FractionText(term.coefficient);
        if (term.power == 1) {
            text += "x";
        } else if (term.power > 1) {
            text += "x^+" + std::to_string(term.power);
        }
    }
    return text;
}

/// How far the terms can carry the noise of x, which is the sum of up to 4000 steps.
long double Noise(const Exact& equation, long double edge) {
    constexpr long double kOfX = 1e-12L;
    long double noise = 0;
    for (const Exact::Term& term : equation.terms) {
        noise += std::abs(Near(term.coefficient)) *
                 std::pow(edge, static_cast<long double>(term.power)) *
                 static_cast<long double>(std::max(1, term.power)) * kOfX;
    }
    return noise + 1e-13L;
}

/// A step as the fraction that it stands for.
Rational ExactStep(double edge, int quality) {
    const Rational steps[] = {{1, 100}, {1, 10}, {1, 1}, {10, 1}, {100, 1}};
    const double limits[] = {40, 320, 2560, 20480};
    std::size_t row = 0;
    while (row < 4 && edge >= limits[row]) {
        ++row;
    }
    return steps[row] * quality;
}

void ExpectExact(const Exact& equation, int zoomedOut, int quality) {
    const std::string text = TextOfEquation(equation);
    SCOPED_TRACE(text + " zoomed out " + std::to_string(zoomedOut) + " times");
    GraphSettings settings;
    settings.GraphQuality = quality;
    const Graph graph = Drawn(AskedEquation(text), settings, zoomedOut);
    const double edge = graph.Range().GraphXMax;
    const Rational step = ExactStep(edge, quality);
    const long double noise = Noise(equation, edge);
    const bool even = equation.yPower % 2 == 0;
    const std::vector<GraphPoint>& points = graph.ThePlot().points;

    // The last step may or may not reach the edge.
    const auto most = static_cast<std::size_t>(2 * edge / static_cast<double>(Near(step)) + 1.5);
    const std::size_t count = points.size() / (even ? 2 : 1);
    ASSERT_GE(count + 1, most);
    ASSERT_LE(count, most);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto k = static_cast<std::int64_t>(even ? i / 2 : i);
        const Rational x = step * k - Rational(static_cast<std::int64_t>(edge));
        ASSERT_NEAR(points[i].x, static_cast<double>(Near(x)), 1e-12 * edge);
        const Rational value = equation.At(x);
        if (even && value < 0 && -Near(value) > noise) {
            ASSERT_EQ(points[i].y, edge + 1);
            continue;
        }
        const long double power = std::pow(static_cast<long double>(points[i].y),
                                           static_cast<long double>(equation.yPower));
        if (!even || points[i].y != edge + 1) {
            const long double slack =
                noise + std::abs(Near(value)) * 1e-14L * static_cast<long double>(equation.yPower);
            ASSERT_NEAR(static_cast<double>(power - Near(value)), 0, static_cast<double>(slack))
                << "at x = " << points[i].x;
            ASSERT_TRUE(!even || (i % 2 == 0 ? points[i].y >= 0 : points[i].y <= 0));
        }
    }
}

/// Straight lines with whole and broken coefficients, steep and flat, and curves.
std::vector<Exact> Equations() {
    std::vector<Exact> equations;
    for (const Rational& slope : {Rational(2), Rational(-1), Rational(-2, 3), Rational(7, 5),
                                  Rational(99999), Rational(1, 99999), Rational(-355, 113)}) {
        for (const Rational& start :
             {Rational(3), Rational(-5, 7), Rational(0), Rational(99999), Rational(-1, 3)}) {
            equations.push_back({{{slope, 1}, {start, 0}}, 1});
        }
    }
    for (const int power : {2, 3, 4, 5}) {
        equations.push_back({{{Rational(1, 2), power}, {Rational(-3), 0}}, 1});
        equations.push_back({{{Rational(-2, 7), power}, {Rational(5), 1}, {Rational(1), 0}}, 1});
        equations.push_back({{{Rational(3, 2), 1}, {Rational(-4), 0}}, power});
        equations.push_back({{{Rational(-1), 2}, {Rational(25), 0}}, power});
    }
    return equations;
}

TEST(ExactPoints, OfFiftyEquationsLieOnThem) {
    ASSERT_GE(Equations().size(), 50U);
    for (const Exact& equation : Equations()) {
        ExpectExact(equation, 0, kHighSpeed);
    }
}

TEST(ExactPoints, AlsoAtTheFinestStep) {
    for (const Exact& equation : Equations()) {
        ExpectExact(equation, 0, kHighQuality);
    }
}

TEST(ExactPoints, AtEveryZoomFrom5To81920) {
    for (int zoomedOut = -2; zoomedOut <= 12; ++zoomedOut) {
        ExpectExact({{{Rational(2), 1}, {Rational(3), 0}}, 1}, zoomedOut, kHighSpeed);
        ExpectExact({{{Rational(-2, 3), 1}, {Rational(2), 0}}, 1}, zoomedOut, kHighQuality);
        ExpectExact({{{Rational(1), 1}}, 2}, zoomedOut, kHighSpeed);
    }
}

TEST(CoordinateEntry, RoundsTheXOfACurveAndNothingElse) {
    Plot curve;
    curve.isCurve = true;
    // Both are exactly between their neighbours: half to even.
    curve.points = {{0.125, 0.125}, {0.375, -2.0 / 3}, {-3.9e-14, 2.99999999999992}, {-20, -37}};
    EXPECT_EQ(CoordinateEntry(curve, 0), "x=0.12  y=0.125");
    EXPECT_EQ(CoordinateEntry(curve, 1), "x=0.38  y=-0.666666666666667");
    EXPECT_EQ(CoordinateEntry(curve, 2), "x=0  y=2.99999999999992");
    EXPECT_EQ(CoordinateEntry(curve, 3), "x=-20  y=-37");
    EXPECT_THROW(CoordinateEntry(curve, 4), Failure);
    EXPECT_THROW(CoordinateEntry(curve, -1), Failure);

    Plot line;
    line.points = {{1.0 / 3, -20}};
    EXPECT_EQ(CoordinateEntry(line, 0), "x=0.333333333333333  y=-20");
}

TEST(CoordinateEntry, CarriesTheNoiseOfTheSteps) {
    const GraphSettings settings;
    const Graph graph = Drawn(AskedEquation("+1/1y^+1=+2/1x+3/1"), settings);
    // A hundred times 0.2 added to -20 is not quite 0.
    EXPECT_EQ(CoordinateEntry(graph.ThePlot(), 100), "x=0  y=2.99999999999992");
}

}  // namespace
}  // namespace numerello
