#include "graph/picture.h"

#include <cmath>

#include "core/number.h"
#include "graph/clipping.h"

namespace numerello {

namespace {

constexpr Color kWhite = 0xFFFFFF;
constexpr Color kDarkInk = 0x553A2B;

constexpr double kGridWidth = 1;
constexpr double kAxisWidth = 2;
constexpr double kLineWidth = 2;
constexpr double kDotRadius = 4.5;

constexpr double kFigureSize = 8.25;
constexpr double kNumeralSize = 16;
constexpr double kInsideRightEdge = 0.02;  ///< part of GraphXMax

/// The eye takes green for brighter than red, and red than blue.
bool IsDark(Color color) {
    constexpr double kMiddle = 110;
    return 0.3 * (color & 255) + 0.59 * (color >> 8 & 255) + 0.11 * (color >> 16 & 255) < kMiddle;
}

/// So much of the ink on the ground.
Color Pale(Color ink, Color ground) {
    constexpr double kInk = 0.4;
    Color pale = 0;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const double part = kInk * (ink >> shift & 255) + (1 - kInk) * (ground >> shift & 255);
        pale |= static_cast<Color>(part) << shift;
    }
    return pale;
}

class Drawing {
  public:
    Drawing(const GraphRange& range, const GraphSettings& settings)
        : range(range), settings(settings) {
        picture.range = range;
        picture.BackColor = range.HasGrid() ? kWhite : settings.GraphGridColor;
        ink = IsDark(picture.BackColor) ? kWhite : kDarkInk;
    }

    void DrawGrid() {
        if (!range.HasGrid()) {
            return;
        }
        const double last = std::trunc(range.GraphXMax);
        for (double i = std::trunc(range.GraphXMin); i <= last; ++i) {
            Across(i, kGridWidth, settings.GraphGridColor);
            Upright(i, kGridWidth, settings.GraphGridColor);
        }
    }

    void DrawAxes() {
        Across(0, kAxisWidth, ink);
        Upright(0, kAxisWidth, ink);
    }

    void PrintRange() {
        const double rightEnd = range.GraphXMax - kInsideRightEdge * range.GraphXMax;
        Figure(range.GraphXMin, range.GraphXMin, 0, 0, 0);
        Figure(0, 0, 0, 0, 0);
        Figure(range.GraphYMax, 0, range.GraphYMax, 0, 0);
        Figure(range.GraphYMin, 0, range.GraphYMin, 0, 1);
        Figure(range.GraphXMax, rightEnd, 0, 1, 0);
    }

    void PrintQuadrants() {
        Numeral("I", range.GraphXMax, range.GraphYMax);
        Numeral("II", range.GraphXMin, range.GraphYMax);
        Numeral("III", range.GraphXMin, range.GraphYMin);
        Numeral("IV", range.GraphXMax, range.GraphYMin);
    }

    void DrawPlot(const Plot& plot) {
        for (const auto& line : plot.lines) {
            for (auto& part : LinesInRange(line, range)) {
                picture.marks.emplace_back(
                    GraphPath{std::move(part), kLineWidth, settings.GraphLineColor});
            }
        }
        for (const GraphPoint& dot : plot.dots) {
            if (IsNearRange(dot, range)) {
                picture.marks.emplace_back(
                    GraphDot{dot.x, dot.y, kDotRadius, settings.GraphLineColor});
            }
        }
    }

    GraphPicture Finished() { return std::move(picture); }

  private:
    void Across(double y, double width, Color color) {
        picture.marks.emplace_back(
            GraphStroke{range.GraphXMin, y, range.GraphXMax, y, width, color});
    }

    void Upright(double x, double width, Color color) {
        picture.marks.emplace_back(
            GraphStroke{x, range.GraphYMin, x, range.GraphYMax, width, color});
    }

    void Figure(double value, double x, double y, double alongWidth, double alongHeight) {
        picture.marks.emplace_back(GraphLabel{
            NumberText(value), x, y, alongWidth, alongHeight, {"MS Sans Serif", kFigureSize}, ink});
    }

    /// In the middle of its quadrant.
    void Numeral(const char* text, double xEdge, double yEdge) {
        picture.marks.emplace_back(GraphLabel{text,
                                              xEdge / 2,
                                              yEdge / 2,
                                              0.5,
                                              0.5,
                                              {"Courier", kNumeralSize},
                                              Pale(ink, picture.BackColor)});
    }

    const GraphRange& range;
    const GraphSettings& settings;
    GraphPicture picture;
    Color ink;
};

}  // namespace

GraphPicture PictureOf(const Plot& plot, const GraphRange& range, const GraphSettings& settings,
                       bool showsQuadrants) {
    Drawing drawing(range, settings);
    drawing.DrawGrid();
    drawing.DrawAxes();
    drawing.PrintRange();
    if (showsQuadrants) {
        drawing.PrintQuadrants();
    }
    drawing.DrawPlot(plot);
    return drawing.Finished();
}

}  // namespace numerello
