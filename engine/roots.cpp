#include <cmath>
#include <map>
#include <string>

#include "core/bounds.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/number_forms.h"
#include "engine/step_levels.h"

namespace numerello {

namespace {

/// outside * root of inside.
struct RootParts {
    double outside = 1;
    double inside = 1;
};

/// Takes the squares out of a whole radicand.
RootParts SimplifyRootValue(double radicand) {
    const double root = std::sqrt(radicand);
    if (IsWhole(root)) {
        return {root, 1};
    }
    // The factors are counted in a table; a larger one fails. Kept as it is.
    constexpr int kTopPrime = 200000;
    std::map<int, int> counts;
    std::string list = PrimeFactorList(radicand) + "*";
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = list.find('*', at);
        const int prime = ToInteger32(ToNumber(list.substr(at, end - at)));
        CheckIndex(prime, kTopPrime);
        ++counts[prime];
        at = end + 1;
    }
    RootParts parts;
    for (const auto& [prime, count] : counts) {
        parts.outside *= std::pow(prime, count / 2);
    }
    parts.inside = radicand / (parts.outside * parts.outside);
    return parts;
}

std::string RootReason(const std::string& r, const RootParts& parts) {
    const std::string outside = NumberText(parts.outside);
    if (parts.inside == 1) {
        return Text(
            "Simplify the square root by removing any perfect squares from under the radical (~", r,
            "~=", outside, ").");
    }
    const std::string square = NumberText(parts.outside * parts.outside);
    return Text(
        "Simplify the square root by removing any perfect square factors from under the radical.  "
        "In this problem (",
        r, ") there is a perfect square factor (", square,
        ") that can be moved outside the radical (~", square, "~ = ", outside, ").");
}

}  // namespace

void Engine::RootSequence() {
    SimplifyRoots();
    MultiplyPass(0);
    SimplifyRoots();
    const std::size_t count = GroupAt(0).terms.size();
    CombineUntilStable(0);
    if (GroupAt(0).terms.size() < count) {
        RecordStep();
    }
}

void Engine::SimplifyRoots() {
    bool found = true;
    while (found) {
        found = false;
        for (const Term& term : GroupAt(0).terms) {
            if (term.NumText.starts_with('~') && SimplifyRoot(term)) {
                found = true;
                break;
            }
        }
    }
}

/// Takes the squares out of one root; false when there are none.
bool Engine::SimplifyRoot(const Term& root) {
    const Term term = root;  // the tables are read anew on the way
    const std::string r = term.NumText.substr(1);
    if (term.numOver == 0) {
        Because(Text("Multiply the 0 by the ~", r, "~ using the order of operations."),
                kOrdinaryStep);
        ReplaceBetween(term.begin, term.end, Text(term.OpMark, "0"));
        RecordStep();
        return true;
    }
    const double radicand = ToNumber(r);
    if (!IsWhole(radicand)) {
        return false;
    }
    const RootParts parts = SimplifyRootValue(radicand);
    if (parts.outside == 1 && parts.inside != 1) {
        return false;
    }
    Because(RootReason(r, parts), kOrdinaryStep);
    const std::string outside = NumberText(parts.outside);
    const std::string inside = parts.inside == 1 ? "" : "~" + NumberText(parts.inside);
    if (term.numOver == 1) {
        ReplaceBetween(term.begin, term.end, Text(term.OpMark, outside, inside));
        RecordStep();
        return true;
    }
    const std::string number = NumberText(term.numOver);
    ReplaceBetween(term.begin, term.end, Text(term.OpMark, number, "*", outside, inside));
    RecordStep();
    Because(Text("Multiply ", number, " by ", outside, " using the order of operations."),
            kOrdinaryStep);
    constexpr std::size_t kProductTokens = 4;  // the sign, two numbers, the "*" between them
    const std::string product = NumberText(Checked(term.numOver * parts.outside));
    ReplaceBetween(term.begin, term.begin + kProductTokens, Text(term.OpMark, product, inside));
    RecordStep();
    return true;
}

}  // namespace numerello
