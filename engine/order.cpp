#include <algorithm>
#include <string>

#include "core/text.h"
#include "core/topic_codes.h"
#include "engine/engine.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

/// The order of operations: brackets from the deepest level outward; inside a group powers, then
/// products, then sums.
namespace numerello {

namespace {

constexpr int kMostPasses = 10;
constexpr int kMostCombinings = 30;

}  // namespace

void Engine::SimplifyExpression() {
    problem.log.StepLevel = kOpeningStep;
    RecordStep();
    OpenLetterProducts();
    std::string last;
    for (int pass = 0; pass < kMostPasses; ++pass) {
        std::string text = ExprToText();
        if (text == last) {
            break;
        }
        last = std::move(text);
        FirstWalk();
        SecondWalk();
    }
    CombineUntilStable(0);
}

/// A letter behind a bracket multiplies it: the bracket is to be worked before.
void Engine::OpenLetterProducts() {
    const bool any = std::adjacent_find(tokens.begin(), tokens.end(),
                                        [](const std::string& one, const std::string& next) {
                                            return one == ")" && IsLetter(next);
                                        }) != tokens.end();
    if (!any) {
        return;
    }
    Tokens opened;
    for (const std::string& token : tokens) {
        if (!opened.empty() && opened.back() == ")" && IsLetter(token)) {
            opened.emplace_back("*");
        }
        opened.push_back(token);
    }
    SetText(TokensToText(opened));
    RecordStep(Record::Refresh);
}

bool Engine::RemoveAndRecord() {
    const bool removed = RemoveParens();
    if (removed) {
        RecordStep();
    }
    return removed;
}

void Engine::FirstWalk() {
    for (std::size_t i = 0; HasGroup(i); ++i) {
        RemoveAndRecord();
        if (!HasGroup(i)) {
            return;
        }
        WorkGroup(i);
    }
}

/// A group's powers, products and sums, then its own power.
void Engine::WorkGroup(std::size_t group) {
    ExpandPowers(group);
    CheckProducts(group);
    ExpandPowers(group);
    ExpandFrontPower(group);
    CombineUntilStable(group);
    ExpandFrontPower(group);
    if (HasGroup(group) && GroupAt(group).Power > 1 && ExpandPower(group)) {
        RecordStep();
        if (MultiplyGroups(group)) {
            RecordStep();
        }
        RemoveAndRecord();
    }
    RemoveAndRecord();
}

/// Works written products inside the group, or makes a bracket of the factor behind it.
void Engine::CheckProducts(std::size_t group) {
    if (!HasGroup(group)) {
        return;
    }
    const Group& all = GroupAt(group);
    if (all.ProductMark) {
        MultiplyPass(group);
    } else if (all.Coef() == 1) {
        ReorderFactor(group);
    }
}

/// Each change starts the walk anew, without the last group then.
void Engine::SecondWalk() {
    std::size_t limit = tables.groups.size();
    int changes = 0;
    std::size_t i = 0;
    while (i < limit && HasGroup(i)) {
        if (!WorkAgain(i)) {
            ++i;
            continue;
        }
        if (++changes > kMostPasses) {
            return;
        }
        RecordStep();
        CheckProducts(i);
        ExpandPowers(i);
        CombineUntilStable(i);
        i = 0;
        limit = tables.groups.size() - 1;
    }
}

/// True when the walk is to begin anew.
bool Engine::WorkAgain(std::size_t group) {
    CheckProducts(group);
    ExpandPowers(group);
    ExpandFrontPower(group);
    bool changed = false;
    if (HasGroup(group) && GroupAt(group).Power != 1) {
        changed = ExpandGroupPower(group);
    } else if (tables.Depth > 0) {
        RemoveAndRecord();
        CheckProducts(group);
    }
    if (HasGroup(group) && GroupAt(group).NextGroup >= 0 && MultiplyGroups(group)) {
        RecordStep();
        CombineUntilStable(group);
        changed = true;
    }
    if (HasGroup(group) && GroupAt(group).IsAbsolute && !RemoveAbsolute(group)) {
        CombineUntilStable(group);
    }
    return (tables.Depth > 0 && WorkBrackets(group)) || changed;
}

bool Engine::ExpandGroupPower(std::size_t group) {
    const float power = GroupAt(group).Power;
    if (!ExpandPower(group)) {
        return false;
    }
    RecordStep();
    if (power == 0) {
        RemoveAndRecord();
    }
    for (int k = 2; k <= static_cast<int>(power); ++k) {
        if (MultiplyGroups(group)) {
            RecordStep();
        }
        ExpandPowers(group);
        CombineUntilStable(group);
    }
    return true;
}

/// Multiplies the factor in front into the brackets and takes away what can go.
bool Engine::WorkBrackets(std::size_t group) {
    const std::string before = ExprToText();
    ExpandFrontPower(group);
    if (Holds("(") && DistributeFront(group)) {
        RecordStep();
    }
    RemoveAndRecord();
    CheckProducts(group);
    RemoveAndRecord();
    CheckProducts(group);
    ExpandPowers(group);
    CombineUntilStable(group);
    return ExprToText() != before;
}

void Engine::SimplifyLight() {
    problem.log.StepLevel = kLightStep;
    RecordStep();
    for (std::size_t i = 0; HasGroup(i); ++i) {
        if (GroupAt(i).ProductMark) {
            ReorderFactor(i);
        }
        CombineUntilStable(i);
    }
    const std::size_t pairs = tables.groups.size();
    for (std::size_t i = 0; i < pairs && tables.Depth > 0; ++i) {
        if (GroupAt(0).IsAbsolute) {
            RemoveAbsolute(0);
        } else {
            RemoveAndRecord();
        }
    }
    CombineUntilStable(0);
}

void Engine::CombineUntilStable(std::size_t group, NegativeExponents negatives) {
    StepLog& log = problem.log;
    const bool roots = problem.topic.ProblemType == kCalculatingRoots;
    if (IsSettled(group, negatives)) {
        Because(CombiningReason(), kLightStep);
        log.StepUnchanged = true;
        return;
    }
    log.StepUnchanged = false;
    log.StepLevel = kOrdinaryStep;
    for (int pass = 0; pass < kMostCombinings && !log.StepUnchanged; ++pass) {
        const std::string text = ExprToText();
        if (!Holds("|") && tables.Depth >= 1) {
            RemoveAndRecord();
        }
        if (HasGroup(group) && GroupAt(group).ProductMark && !HoldsRoot()) {
            MultiplyPass(group);
        }
        CombineTerms(group, negatives, roots ? Record::OnlyIfChanged : Record::Line);
        if (IsSumOfFractions(group)) {
            FractionArithmetic(group);
            break;
        }
        if (ExprToText() == text) {
            settled = {text, currentSide, group, negatives};
            break;
        }
    }
    log.StepLevel = kLightStep;
    if (!roots) {
        RecordStep();
    }
}

/// Whether the group was left as it is by the last combining, and nothing has happened since.
bool Engine::IsSettled(std::size_t group, NegativeExponents negatives) const {
    return isRead && settled.group == group && settled.side == currentSide &&
           settled.negatives == negatives && settled.text == lineText;
}

/// A sum of numbers, nearly all of them fractions, outside brackets or in bars. Powers and decimals
/// are combined away before it is asked.
bool Engine::IsSumOfFractions(std::size_t group) const {
    if (!HasGroup(group)) {
        return false;
    }
    const Group& all = GroupAt(group);
    if (all.terms.size() < 2 || all.ProductMark || !KeepsFractions(all)) {
        return false;
    }
    const auto fractions = static_cast<std::size_t>(std::count_if(
        all.terms.begin(), all.terms.end(),
        [](const Term& term) { return !term.FractionText.empty() || term.DivideMark; }));
    return fractions > 0 && (all.IsAbsolute || fractions + 1 >= all.terms.size());
}

}  // namespace numerello
