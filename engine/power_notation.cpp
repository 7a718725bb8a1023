#include <algorithm>
#include <string>
#include <vector>

#include "core/bounds.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/number_forms.h"
#include "engine/step_levels.h"

namespace numerello {

namespace {

struct CountedFactor {
    std::string factor;
    int count = 0;
};

/// The factors of a product, each with its number of appearances, in the order first found.
std::vector<CountedFactor> CountFactors(std::string_view product) {
    constexpr int kTopFactor = 50;
    std::vector<CountedFactor> counts;
    for (std::size_t at = 0; at <= product.size();) {
        const std::size_t end = std::min(product.find('*', at), product.size());
        const std::string factor(product.substr(at, end - at));
        const auto known =
            std::find_if(counts.begin(), counts.end(),
                         [&factor](const CountedFactor& each) { return each.factor == factor; });
        if (known == counts.end()) {
            CheckIndex(static_cast<int>(counts.size()), kTopFactor);
            counts.push_back({factor, 1});
        } else {
            ++known->count;
        }
        at = end + 1;
    }
    return counts;
}

}  // namespace

void Engine::PowerNotationTopic() {
    SimplifyExpression();
    const double value = GroupAt(0).terms.front().numOver;
    const std::string factors = value == 0 ? "0" : PrimeFactorList(value);
    std::string text;
    for (const CountedFactor& each : CountFactors(factors)) {
        text += Text(text.empty() ? "+" : "*", each.factor, "^", WholeText(each.count));
    }
    Because(
        "Count the number of times each factor appears in the expression and raise the term to "
        "that power.",
        kOrdinaryStep);
    SetText(value == 0 ? "+0" : text);
    RecordStep();
}

}  // namespace numerello
