#include "typeset/variants.h"

namespace numerello {

namespace {

constexpr Measure Fixed(double units) {
    return {.fixed = units};
}

constexpr Measure PerPoint(double units) {
    return {.perPoint = units};
}

constexpr WrapRule kPrintWrap{.limit = 765, .x = 15, .baseStep = 12, .movesPen = false};
constexpr PageRule kPrintPage{
    .test = PageRule::Test::BeforeCharacter, .limit = 560, .x = 12, .baseY = 24, .penY = 24};

}  // namespace

constinit const TypesetVariant kPaperVariant{
    .face = kSheetFace,
    .fontSize = kSheetPoints,
    .freshPage = TypesetVariant::FreshPage{.limit = 589, .penY = 81},
    .marginBlanks = 17,
    .startShift = 0,
    .startDrop = PerPoint(2.4),
    .fractionDrop = PerPoint(2.4),
    .wrap = WrapRule{.limit = 750, .x = 67, .baseStep = 46, .movesPen = true},
    .page = PageRule{.test = PageRule::Test::AfterWrap,
                     .limit = 589,
                     .x = 67,
                     .baseY = 88,
                     .penY = std::nullopt},
    .base = kBlack,
    .exponentSize = Fixed(8),
    .exponentRise = PerPoint(0.2),
    .numeratorRise = PerPoint(0.6),
    .denominatorStep = PerPoint(1.7),
    .vinculumRise = PerPoint(1.5),
    .vinculumStart = PerPoint(0.5),
    .tallRoot = {.rise = 9, .shift = 2, .signDrop = 16, .signBack = 14},
    .plainRoot = {.back = 2, .rise = 2, .changesFace = false},
};

constinit const TypesetVariant kExplanationVariant{
    .face = kExplanationFace,
    .fontSize = kSheetPoints,
    .freshPage = std::nullopt,
    .marginBlanks = 0,
    .startShift = 0,
    .startDrop = Fixed(3),
    .fractionDrop = PerPoint(1),
    .wrap = std::nullopt,
    .page = std::nullopt,
    .base = kBlue,
    .exponentSize = Fixed(8),
    .exponentRise = PerPoint(0.2),
    .numeratorRise = PerPoint(0.6),
    .denominatorStep = PerPoint(1.7),
    .vinculumRise = PerPoint(1.5),
    .vinculumStart = PerPoint(0.5),
    .tallRoot = {.rise = 9, .shift = 2, .signDrop = 16, .signBack = 14},
    .plainRoot = {.back = 2, .rise = 0, .changesFace = true},
};

constinit const TypesetVariant kPrintVariant{
    .face = kSheetFace,
    .fontSize = kSheetPoints,
    .freshPage = std::nullopt,
    .marginBlanks = 0,
    .startShift = 12,
    .startDrop = Fixed(12),
    .fractionDrop = Fixed(12),
    .wrap = kPrintWrap,
    .page = kPrintPage,
    .base = kBlack,
    .exponentSize = Fixed(8),
    .exponentRise = Fixed(1),
    .numeratorRise = Fixed(5),
    .denominatorStep = Fixed(14),
    .vinculumRise = Fixed(12),
    .vinculumStart = Fixed(6),
    .tallRoot = {.rise = 7, .shift = 1, .signDrop = 10, .signBack = 14},
    .plainRoot = {.back = 2, .rise = 2, .changesFace = false},
};

constinit const TypesetVariant kPreviewVariant{
    .face = kSheetFace,
    .fontSize = kPreviewPoints,
    .freshPage = std::nullopt,
    .marginBlanks = 0,
    .startShift = 12,
    .startDrop = Fixed(12),
    .fractionDrop = Fixed(12),
    .wrap = kPrintWrap,
    .page = kPrintPage,
    .base = kBlack,
    .exponentSize = {.fixed = -2, .perPoint = 1},
    .exponentRise = Fixed(1),
    .numeratorRise = Fixed(5),
    .denominatorStep = Fixed(14),
    .vinculumRise = Fixed(12),
    .vinculumStart = Fixed(6),
    .tallRoot = {.rise = 7, .shift = 1, .signDrop = 10, .signBack = 14},
    .plainRoot = {.back = 2, .rise = 2, .changesFace = false},
};

}  // namespace numerello
