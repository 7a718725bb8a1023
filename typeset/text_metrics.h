#pragma once

#include <string>
#include <string_view>

namespace numerello {

/// A face and its size in points. 12 points are 16 units of letter height on every surface,
/// whatever the screen says.
struct Font {
    std::string name;
    double size;
};

/// What the sheets are ruled by, for each point of the size.
inline constexpr double kBlankPerPoint = 67.0 / 204;
inline constexpr double kCharacterPerPoint = 134.0 / 204;
inline constexpr double kLinePerPoint = 43.0 / 30;

/// How wide a text is and how high a line: in the surface's units.
class TextMetrics {
  public:
    virtual ~TextMetrics() = default;

    /// The advance of the whole UTF-8 text; above 0 for "_".
    virtual double Width(std::string_view text, const Font& font) const = 0;

    virtual double LineHeight(const Font& font) const = 0;
};

/// Metrics that depend on no font file: at size s every character but the blank advances
/// 134/204 s, a blank 67/204 s, and a line is 43/30 s high.
class PlainMetrics : public TextMetrics {
  public:
    double Width(std::string_view text, const Font& font) const override;
    double LineHeight(const Font& font) const override;
};

}  // namespace numerello
