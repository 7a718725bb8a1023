#pragma once

#include <span>
#include <vector>

#include "typeset/surface.h"

namespace numerello {

/// A sheet of paper as it is printed on, in millimetres.
struct PaperSize {
    double width;
    double height;
};

inline constexpr PaperSize kA4{210, 297};
inline constexpr PaperSize kLetter{215.9, 279.4};

/// Every print surface is 800 units wide and 600 high, whatever the shape of its paper, so that a
/// unit across and a unit down differ. Letters keep their size and are never stretched: their
/// widths and heights are handed to the surface in units of each axis.
///
/// A pixel is 1/96 inch, as on the sheets: 12 points are 16 of them.
struct PrintScale {
    static constexpr double kWidth = 800;
    static constexpr double kHeight = 600;

    double pageWidth;   ///< of the whole paper, in pixels
    double pageHeight;  ///< likewise
    double margin;      ///< at all four sides, in pixels; the surface lies within
    double across;      ///< units to a pixel
    double down;        ///< likewise

    /// How large a square may be whose top left corner, in pixels from that of the paper, is here.
    double SquareAt(double x, double y) const;
};

/// Paper with margins of 10 mm.
PrintScale ScaleOfPrint(PaperSize paper);

/// The same paper at two thirds: 8 points stand for 12, so that lines break where they do in print.
PrintScale ScaleOfPreview(PaperSize paper);

/// What a print surface measures with: other metrics, whose unit is the pixel, in its own units.
class ScaledMetrics : public TextMetrics {
  public:
    /// The metrics must outlive this.
    ScaledMetrics(const TextMetrics& pixels, const PrintScale& scale)
        : pixels(pixels), scale(scale) {}

    double Width(std::string_view text, const Font& font) const override {
        return pixels.Width(text, font) * scale.across;
    }
    double LineHeight(const Font& font) const override {
        return pixels.LineHeight(font) * scale.down;
    }

  private:
    const TextMetrics& pixels;
    PrintScale scale;
};

/// The marks of a print surface with their places in pixels from the paper's top left corner. Root
/// signs are taken from the sheets' face: that of the reasons has none.
std::vector<Mark> MarksInPixels(std::span<const Mark> marks, const PrintScale& scale);

/// The marks of each page that has any, in order.
std::vector<std::span<const Mark>> PrintedPages(const Surface& Printer);

}  // namespace numerello
