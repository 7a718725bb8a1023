#pragma once

#include <cstddef>
#include <string_view>

#include "typeset/notation_walk.h"
#include "typeset/surface.h"
#include "typeset/variants.h"

namespace numerello {

/// Draws exponents, roots and fractions at the pen of one surface. A body is the text between its
/// two markers. All throw Failure(Format) for a body over its limit or an inner marker without
/// partner, and leave what was drawn until then.
class MathPen {
  public:
    /// A root's body and each part of a fraction hold at most so many characters.
    static constexpr std::size_t kBodyLimit = 50;

    /// `base` is the colour that "]" goes back to. Surface and variant must outlive the pen.
    MathPen(Surface& surface, const TypesetVariant& variant, Color base)
        : surface(surface), variant(variant), base(base) {}

    void Exponent(std::string_view body);
    void Root(std::string_view body);

    /// Leaves the pen at the bar's end, at the numerator's height.
    void Fraction(std::string_view body);

    /// When the walk stands at one of `markers`, out of "#^~[]": draws what it opens or changes
    /// the colour, and goes on behind it.
    bool TakeMarker(NotationWalk& walk, std::string_view markers);

  private:
    bool RootBody(std::string_view body);
    void RootSign(bool tall);
    void FractionPart(std::string_view part, int padding);
    void Bar(double end);

    Surface& surface;
    const TypesetVariant& variant;
    Color base;
};

}  // namespace numerello
