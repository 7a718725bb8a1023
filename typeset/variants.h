#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "typeset/surface.h"

namespace numerello {

/// The size of a line on the sheets and in print, and in the preview, which is as much smaller.
inline constexpr double kSheetPoints = 12;
inline constexpr double kPreviewPoints = 8;
inline constexpr double kPreviewScale = kPreviewPoints / kSheetPoints;

/// What a line of the sheets is written in.
inline Font SheetFont() {
    return {std::string(kSheetFace), kSheetPoints};
}

/// A length in the surface's units, with a part that grows with the font size.
struct Measure {
    double fixed = 0;
    double perPoint = 0;

    constexpr double At(double fontSize) const { return fixed + perPoint * fontSize; }
};

/// What happens when a plain character ends beyond the limit: three dots, then a row lower.
struct WrapRule {
    double limit;     ///< largest X at which a row goes on
    double x;         ///< where the next row starts
    double baseStep;  ///< from row to row
    bool movesPen;    ///< whether the pen goes down at once, or with the next character
};

/// When a line goes over to the next page, and where it goes on there.
struct PageRule {
    enum class Test { AfterWrap, BeforeCharacter };

    Test test;
    double limit;  ///< lowest base Y that still fits the page
    double x;
    double baseY;
    std::optional<double> penY;  ///< unset: the next character moves the pen to the base
};

/// The radical over a fraction: its upper part, and the sign joined below.
struct TallRoot {
    double rise;
    double shift;
    double signDrop;
    double signBack;
};

/// The radical over anything else.
struct PlainRoot {
    double back;
    double rise;
    bool changesFace;  ///< whether the sign is taken from the sheets' face
};

/// All in which the four targets of a line of math text differ. Rises go up the page, drops and
/// steps down.
struct TypesetVariant {
    std::string_view face;
    double fontSize;  ///< in points, that of a new page

    /// Beginning a page because the last line left the pen below the limit, and where.
    struct FreshPage {
        double limit;
        double penY;
    };
    std::optional<FreshPage> freshPage;
    int marginBlanks;
    double startShift;     ///< added to X at the start of a line
    Measure startDrop;     ///< added to Y at the start of a line
    Measure fractionDrop;  ///< the same, for a text with a "/" anywhere
    std::optional<WrapRule> wrap;
    std::optional<PageRule> page;

    Color base;

    Measure exponentSize;  ///< in points, from the size around it
    Measure exponentRise;  ///< from the exponent's own size
    Measure numeratorRise;
    Measure denominatorStep;
    Measure vinculumRise;
    Measure vinculumStart;
    TallRoot tallRoot;
    PlainRoot plainRoot;

    Color BaseColor(bool blue) const { return blue ? kBlue : base; }
};

extern const TypesetVariant kPaperVariant;
extern const TypesetVariant kExplanationVariant;
extern const TypesetVariant kPrintVariant;
extern const TypesetVariant kPreviewVariant;

}  // namespace numerello
