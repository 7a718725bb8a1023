#pragma once

/// The codes of topics that are typed or worked unlike others.
namespace numerello {

inline constexpr int kPythagoreanTheorem = 12;
inline constexpr int kPerimeterOfRectangle = 13;
inline constexpr int kPerimeterOfTriangle = 19;
inline constexpr int kMeterConversions = 23;
inline constexpr int kScientificToRegular = 25;
inline constexpr int kDividingScientific = 27;
inline constexpr int kLastBoxTopic = 27;  ///< up to here a problem stands in boxes
inline constexpr int kRanges = 59;
inline constexpr int kMeans = 62;
inline constexpr int kRegularToScientific = 65;
inline constexpr int kFractionToPercent = 72;
inline constexpr int kMixedToFraction = 74;
inline constexpr int kFractionToMixed = 75;
inline constexpr int kFractionArithmetic = 76;  ///< a "/" behind a fraction divides it
inline constexpr int kRatios = 78;
inline constexpr int kSimplifyingFractions = 80;
inline constexpr int kCalculatingWithExponents = 81;
inline constexpr int kCalculatingRoots = 82;
inline constexpr int kGreatestCommonFactors = 87;
inline constexpr int kLeastCommonMultiples = 88;
inline constexpr int kComparingValues = 90;
inline constexpr int kRounding = 98;
inline constexpr int kSolvingEquations = 101;
inline constexpr int kSimplifyingPolynomials = 102;
inline constexpr int kEvaluatingPolynomials = 103;
inline constexpr int kGraphingAnEquation = 105;
inline constexpr int kLineThroughTwoPoints = 106;
inline constexpr int kPointsQuadrant = 107;
inline constexpr int kPlottingAPoint = 108;
inline constexpr int kAbsoluteValues = 120;
inline constexpr int kComplexExpressions = 121;
inline constexpr int kNegativeExponents = 150;
inline constexpr int kFirstColumnTopic = 200;
inline constexpr int kAddition = 200;
inline constexpr int kSubtraction = 201;
inline constexpr int kMultiplication = 202;
inline constexpr int kDivision = 203;

/// Two whole numbers in boxes, whose working is drawn and not logged.
constexpr bool IsColumnTopic(int code) {
    return code >= kFirstColumnTopic;
}

/// Numbers times powers of ten, in boxes.
constexpr bool IsScientificBoxTopic(int code) {
    return code >= kScientificToRegular && code <= kDividingScientific;
}

}  // namespace numerello
