#pragma once

#include <string_view>

#include "typeset/surface.h"

namespace numerello {

/// Where a surface shows the layout of a column problem. The layout is counted in sheet pixels.
struct ColumnPlace {
    double left = 0;   ///< of the layout's origin, in the surface's units
    double top = 0;    ///< likewise
    double xUnit = 1;  ///< how many of the surface's units a sheet pixel is, across
    double yUnit = 1;  ///< and down
};

/// The pen of a surface, led by the layout's positions.
class ColumnPen {
  public:
    static constexpr double kCell = 20;
    static constexpr double kDigitSize = 12;  ///< in points, as the next two
    static constexpr double kMarkSize = 10;
    static constexpr double kBracketSize = 14;

    /// The surface must outlive the pen.
    ColumnPen(Surface& surface, const ColumnPlace& place);

    double X = 0;
    double Y = 0;  ///< top of the text cell that the next print fills

    void MoveTo(double x, double y);

    /// Prints at the pen, which goes to the end of the text.
    void Print(std::string_view text);

    /// Prints at the pen, which goes to the next cell on the right or on the left.
    void PrintCell(std::string_view text);
    void PrintCellLeftward(std::string_view text);

    /// The pen goes to X 0, one line of the font in force lower.
    void EndLine();

    /// A stroke from the pen, which goes to its end.
    void LineTo(double x, double y);

    void SetFontSize(double points) { surface.SetFontSize(points); }
    void SetColor(Color color) { surface.ForeColor = color; }
    void SetDrawWidth(double width) { surface.DrawWidth = width; }

  private:
    void Apply();
    void Take();

    Surface& surface;
    ColumnPlace place;
};

}  // namespace numerello
