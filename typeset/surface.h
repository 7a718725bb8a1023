#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "typeset/text_metrics.h"

namespace numerello {

/// Red in the low byte.
using Color = unsigned;
inline constexpr Color kBlack = 0;
inline constexpr Color kRed = 255;
inline constexpr Color kBlue = 16711680;

/// Which face a surface writes in until somebody changes it.
inline constexpr std::string_view kSheetFace = "VantrelFont";
inline constexpr std::string_view kExplanationFace = "Book Antiqua";

struct TextMark {
    std::string text;
    double x;  ///< left edge
    double y;  ///< top of the text cell
    Font font;
    Color color;
};

struct StrokeMark {
    double x1, y1, x2, y2;
    double width;
    Color color;
};

struct ImageMark {
    std::string key;
    double x, y;  ///< top left corner
};

using Mark = std::variant<TextMark, StrokeMark, ImageMark>;

/// A pen, a font and a display list. What is printed becomes marks, in drawing order, which the
/// window, the printer and the tests replay at any scale. Knows nothing of mathematics.
/// Units are sheet pixels or the print surface's own; y grows downward.
class Surface {
  public:
    enum class LineEnd { Keep, Break };

    /// The metrics must outlive the surface.
    Surface(const TextMetrics& metrics, Font font);

    double CurrentX = 0;
    double CurrentY = 0;  ///< top of the text cell that the next print fills
    Color ForeColor = kBlack;
    double DrawWidth = 1;

    double FontSize() const { return font.size; }
    void SetFontSize(double points) { font.size = points; }
    const std::string& FontName() const { return font.name; }
    void SetFontName(std::string_view name) { font.name = name; }

    /// Prints at the pen, which moves right by the text's width; with a break it then goes to
    /// X 0, one line of the font in force lower. A text of blanks alone leaves no mark.
    void Print(std::string_view text, LineEnd end = LineEnd::Keep);

    double TextWidth(std::string_view text) const;

    /// The height of a line in the surface's face.
    double LineHeight(double points) const;

    /// A surface without a mark, with the same metrics, pen and font: to see what printing would
    /// do.
    Surface Blank() const;

    /// Draws a stroke of DrawWidth and leaves the pen at its end.
    void Line(double x1, double y1, double x2, double y2);

    /// Draws the picture of that key with its top left corner at (x, y); the pen stays.
    void PaintPicture(std::string_view key, double x, double y);

    /// Removes all marks and pages and puts the pen at (0, 0); font, colour and width stay.
    void Cls();

    /// How often it was cleared. Between two clearings marks are only added.
    int Clearings() const { return clearings; }

    /// Ends the page, for a surface that is printed: what follows is a page of its own. The pen
    /// goes to (0, 0); font, colour and width stay.
    void NewPage();

    /// The marks of all pages.
    const std::vector<Mark>& Marks() const { return marks; }

    /// At least 1.
    int PageCount() const { return static_cast<int>(pageStarts.size()); }

    /// The marks of one page, counted from 0; throws Failure(Format) beyond the last. Valid until
    /// the next mark.
    std::span<const Mark> PageMarks(int page) const;

  private:
    const TextMetrics* metrics;
    Font font;
    std::vector<Mark> marks;
    int clearings = 0;
    std::vector<std::size_t> pageStarts{0};  ///< index of each page's first mark
};

}  // namespace numerello
