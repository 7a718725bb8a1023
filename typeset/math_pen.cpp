#include "typeset/math_pen.h"

#include <string>

#include "typeset/fraction_parts.h"
#include "typeset/slack.h"

namespace numerello {

bool MathPen::TakeMarker(NotationWalk& walk, std::string_view markers) {
    const std::string& here = walk.Here();
    if (here.size() != 1 || markers.find(here.front()) == std::string_view::npos) {
        return false;
    }
    switch (here.front()) {
        case '#':
            Fraction(walk.TakeBody());
            break;
        case '^':
            Exponent(walk.TakeBody());
            break;
        case '~':
            Root(walk.TakeBody());
            break;
        case '[':
            surface.ForeColor = kRed;
            walk.Step();
            break;
        default:
            surface.ForeColor = base;
            walk.Step();
            break;
    }
    return true;
}

void MathPen::Exponent(std::string_view body) {
    const double fontSize = surface.FontSize();
    const double y = surface.CurrentY;
    surface.SetFontSize(variant.exponentSize.At(fontSize));
    surface.CurrentY -= variant.exponentRise.At(surface.FontSize());
    surface.Print(body);
    surface.SetFontSize(fontSize);
    surface.CurrentY = y;
}

void MathPen::Root(std::string_view body) {
    const double x = surface.CurrentX;
    const double y = surface.CurrentY;
    surface.Print("  ");
    const bool tall = RootBody(body);

    // Behind a fraction the pen is still at its numerator, so the bar clears that too.
    const double bodyEnd = surface.CurrentX;
    surface.CurrentY -= variant.vinculumRise.At(surface.FontSize());
    surface.CurrentX = x + variant.vinculumStart.At(surface.FontSize());
    Bar(bodyEnd);
    const double barEnd = surface.CurrentX;

    surface.CurrentX = x;
    surface.CurrentY = y;
    RootSign(tall);
    surface.CurrentX = barEnd;
    surface.CurrentY = y;
}

/// Whether the body holds a fraction.
bool MathPen::RootBody(std::string_view body) {
    bool tall = false;
    for (NotationWalk walk = NotationWalk::Bounded(body, kBodyLimit); !walk.AtEnd();) {
        tall = tall || walk.Here() == "#";
        if (!TakeMarker(walk, "#^[]")) {
            surface.Print(walk.Here());
            walk.Step();
        }
    }
    return tall;
}

void MathPen::RootSign(bool tall) {
    if (tall) {
        surface.CurrentY -= variant.tallRoot.rise;
        surface.CurrentX += variant.tallRoot.shift;
        surface.Print("&");
        surface.CurrentY += variant.tallRoot.signDrop;
        surface.CurrentX -= variant.tallRoot.signBack;
        surface.Print("~");
        return;
    }
    surface.CurrentX -= variant.plainRoot.back;
    surface.CurrentY -= variant.plainRoot.rise;
    if (variant.plainRoot.changesFace) {
        surface.SetFontName(kSheetFace);
    }
    surface.Print("~");
    if (variant.plainRoot.changesFace) {
        surface.SetFontName(variant.face);
    }
}

void MathPen::Fraction(std::string_view body) {
    const FractionParts parts = SplitFraction(body);
    const FractionLayout layout = LayOutFraction(parts, kBodyLimit);
    const double x = surface.CurrentX;
    const double step = variant.denominatorStep.At(surface.FontSize());
    surface.CurrentY -= variant.numeratorRise.At(surface.FontSize());

    double barEnd = x;
    FractionPart(parts.numerator, layout.numeratorPadding);
    if (parts.numerator == layout.longest) {
        barEnd = surface.CurrentX;
    }
    surface.CurrentY += step;
    surface.CurrentX = x;
    FractionPart(parts.denominator, layout.denominatorPadding);
    if (parts.denominator == layout.longest) {
        barEnd = surface.CurrentX;
    }

    // The glyph of "_" lies below its cell's characters: from the numerator's height the bar
    // falls between the parts.
    surface.CurrentY -= step;
    surface.CurrentX = x;
    Bar(barEnd);
}

void MathPen::FractionPart(std::string_view part, int padding) {
    surface.Print(std::string(static_cast<std::size_t>(padding), ' '));
    for (NotationWalk walk = NotationWalk::Bounded(part, kBodyLimit); !walk.AtEnd();) {
        if (!TakeMarker(walk, "^~[]")) {
            if (walk.Here() != "#") {
                surface.Print(walk.Here());
            }
            walk.Step();
        }
    }
}

void MathPen::Bar(double end) {
    while (IsBefore(surface.CurrentX, end)) {
        surface.Print("_");
    }
}

}  // namespace numerello
