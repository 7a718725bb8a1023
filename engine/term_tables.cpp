#include "engine/term_tables.h"

#include <algorithm>
#include <utility>

#include "core/bounds.h"
#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

/// A "+", "-" or "*" that begins a term.
bool BeginsTerm(const Tokens& tokens, std::size_t at) {
    return (IsSign(tokens[at]) && !IsExponentSign(tokens, at)) || IsMark(tokens[at], '*');
}

/// Reads the tokens of a term into its place; emphasis is passed over.
class TermReader {
  public:
    TermReader(const Tokens& tokens, std::size_t begin, std::size_t end, Term& term)
        : tokens(tokens), at(begin), end(end), term(term) {
        term.begin = begin;
        term.end = end;
    }

    void Read() {
        if (at < end && BeginsTerm(tokens, at)) {
            term.OpMark = tokens[at];
            sign = IsMark(tokens[at], '-') ? -1.0F : 1.0F;
            ++at;
        }
        for (; at < end; ++at) {
            TakeToken(tokens[at]);
        }
        term.Num *= sign;
    }

  private:
    void TakeToken(const std::string& token) {
        if (IsMark(token, '/')) {
            under = true;
            term.DivideMark = true;
        } else if (IsMark(token, '^')) {
            TakeExponent();
        } else if (IsLetter(token)) {
            LetterText() += token;
            if (!under && ++lettersOver == 1) {
                term.Degree = 1;
            }
            behindNumber = false;
        } else if (IsNumberToken(token)) {
            TakeNumber(token);
            behindNumber = true;
        }
    }

    void TakeNumber(std::string_view token) {
        if (const std::size_t root = token.find('~'); root != std::string_view::npos) {
            MultiplyNumber(true, root == 0 ? "1" : token.substr(0, root));
            term.NumText += token.substr(root);
            return;
        }
        const std::size_t slash = token.find('/');
        if (slash != std::string_view::npos || token.find('.') != std::string_view::npos) {
            term.FractionText = token;
        }
        MultiplyNumber(!under, token.substr(0, slash));
        if (slash != std::string_view::npos) {
            MultiplyNumber(under, token.substr(slash + 1));
        }
    }

    void MultiplyNumber(bool over, std::string_view factor) {
        const double value = ToNumber(factor);
        double& exact = over ? term.numOver : term.numUnder;
        exact = Checked(exact * value);
        float& single = over ? term.Num : term.Den;
        single = ToSingle(static_cast<double>(single) * value);
    }

    /// The exponent's number, with its sign, goes to the number or the letter before it.
    void TakeExponent() {
        std::string exponent;
        if (at + 1 < end && IsMark(tokens[at + 1], '-')) {
            exponent = "-";
            ++at;
        }
        if (at + 1 < end && IsNumberToken(tokens[at + 1])) {
            exponent += tokens[++at];
        }
        const float value = ToSingle(ToNumber(exponent));
        LetterText() += "^" + exponent;
        if (behindNumber) {
            (under ? term.DenPower : term.NumPower) = value;
        } else if (!under && lettersOver == 1) {
            term.Degree = value;
        }
    }

    std::string& LetterText() { return under ? term.DenText : term.NumText; }

    const Tokens& tokens;
    std::size_t at;
    std::size_t end;
    Term& term;
    float sign = 1;
    bool under = false;         ///< under the line
    bool behindNumber = false;  ///< the last factor is a number
    int lettersOver = 0;
};

/// Walks a side and finds its groups at the deepest level.
class TableReader {
  public:
    TableReader(const Tokens& tokens, SideRange side) : tokens(tokens), side(side) {}

    TermTables Read() {
        tables.Depth = DeepestLevel();
        if (tables.Depth == 0) {
            Group& whole = tables.groups.emplace_back();
            whole.begin = side.begin;
            whole.end = whole.tail = side.end;
        } else {
            FindGroups();
        }
        for (Group& group : tables.groups) {
            ReadTerms(group);
        }
        return std::move(tables);
    }

  private:
    /// Calls `visit` with each opening and closing token: its index, the level inside the pair, and
    /// whether it opens.
    template <class Visit>
    void ForBrackets(Visit visit) const {
        int level = 0;
        bool barOpen = false;
        for (std::size_t at = side.begin; at < side.end; ++at) {
            const bool bar = IsMark(tokens[at], '|');
            if (IsMark(tokens[at], '(') || (bar && !barOpen)) {
                visit(at, ++level, true);
            } else if (IsMark(tokens[at], ')') || bar) {
                visit(at, level--, false);
            }
            barOpen = bar ? !barOpen : barOpen;
        }
    }

    int DeepestLevel() const {
        int deepest = 0;
        ForBrackets([&deepest](std::size_t, int level, bool) {
            deepest = std::max(deepest, level);
            CheckIndex(level, TermTables::kTopLevel);
        });
        return deepest;
    }

    void FindGroups() {
        ForBrackets([this](std::size_t at, int level, bool opens) {
            if (level != tables.Depth) {
                return;
            }
            if (opens) {
                CheckIndex(static_cast<int>(tables.groups.size()), TermTables::kTopGroup);
                Open(at);
            } else {
                Close(at);
            }
        });
    }

    void Open(std::size_t at) {
        Group& group = tables.groups.emplace_back();
        group.begin = at + 1;
        group.IsAbsolute = IsMark(tokens[at], '|');
        const std::size_t start = FrontStart(at);
        // A bare minus is a factor of -1.
        const bool bare =
            start + 1 == at && (IsMark(tokens[start], '+') || IsMark(tokens[start], '*'));
        if (start < at && !bare) {
            TermReader(tokens, start, at, group.front.emplace()).Read();
        }
    }

    void Close(std::size_t at) {
        Group& group = tables.groups.back();
        group.end = at;
        group.tail = at + 1;
        if (group.tail < side.end && IsMark(tokens[group.tail], '^')) {
            ReadPower(group);
        }
        if (group.tail == at + 1 && group.tail < side.end && IsMark(tokens[group.tail], '(')) {
            group.NextGroup = static_cast<int>(tables.groups.size());
        }
    }

    void ReadPower(Group& group) {
        ++group.tail;
        std::string power;
        if (IsMark(ExponentAt(group.tail), '-')) {
            power = "-";
            ++group.tail;
        }
        power += ExponentAt(group.tail++);
        group.Power = ToSingle(ToNumber(power));
    }

    const std::string& ExponentAt(std::size_t at) const {
        if (at >= side.end) {
            throw Failure(FailureKind::Format);
        }
        return tokens[at];
    }

    /// Back from the bracket over the factor before it, to the sign or "*" that begins it.
    std::size_t FrontStart(std::size_t open) const {
        constexpr std::string_view kStops = "()|=";
        std::size_t at = open;
        while (at > side.begin) {
            const std::string& before = tokens[at - 1];
            const bool divides = IsMark(before, '/') && at == open;
            if (divides || kStops.find(before) != std::string_view::npos) {
                return BehindExponent(at, open);
            }
            --at;
            if (BeginsTerm(tokens, at)) {
                return at;
            }
        }
        return at;
    }

    /// The exponent of the pair before is no factor.
    std::size_t BehindExponent(std::size_t at, std::size_t open) const {
        if (at >= open || !IsMark(tokens[at], '^')) {
            return at;
        }
        at += IsMark(tokens[at + 1], '-') ? 3 : 2;
        return std::min(at, open);
    }

    void ReadTerms(Group& group) {
        constexpr std::size_t kMostHaveNoMore = 4;
        group.terms.reserve(kMostHaveNoMore);
        std::size_t at = group.begin;
        while (at < group.end) {
            const std::size_t start = at++;
            while (at < group.end && !BeginsTerm(tokens, at)) {
                ++at;
            }
            CheckIndex(static_cast<int>(group.terms.size()), TermTables::kTopTerm - 1);
            TermReader(tokens, start, at, group.terms.emplace_back()).Read();
            group.ProductMark = group.ProductMark || IsMark(tokens[start], '*');
        }
    }

    const Tokens& tokens;
    SideRange side;
    TermTables tables;
};

}  // namespace

float Term::Value() const {
    return ToSingle(Divide(static_cast<double>(Num), static_cast<double>(Den)));
}

bool HasNumberPower(const Term& term) {
    return term.NumText.starts_with('^') || term.DenText.starts_with('^');
}

SideRange RangeOfSide(const Tokens& tokens, int Side) {
    const auto equals = std::find(tokens.begin(), tokens.end(), "=");
    const auto at = static_cast<std::size_t>(equals - tokens.begin());
    if (Side == 0) {
        return {0, at};
    }
    return {std::min(at + 1, tokens.size()), tokens.size()};
}

void TellFirstExponents(TermTables& tables) {
    for (Group& group : tables.groups) {
        for (Term& term : group.terms) {
            term.FirstExponent = term.Degree;
        }
    }
}

TermTables BreakIntoTerms(const Tokens& tokens, int Side) {
    return TableReader(tokens, RangeOfSide(tokens, Side)).Read();
}

}  // namespace numerello
