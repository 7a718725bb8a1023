#include "engine/tokens.h"

#include <algorithm>
#include <utility>

#include "core/failure.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "notation/typing_point.h"

namespace numerello {

namespace {

constexpr int kCellPitch = TypedProblem::kCellPitch;

bool IsNumeric(std::string_view token) {
    return IsDigit(token) || IsMark(token, '.');
}

bool IsOneOf(std::string_view token, std::string_view set) {
    return token.size() == 1 &&
           std::any_of(set.begin(), set.end(), [&token](char each) { return each == token[0]; });
}

/// Reads numbers out of single characters.
class NumberMerger {
  public:
    NumberMerger(const Tokens& tokens, int ProblemType) : in(tokens), code(ProblemType) {}

    Tokens Merge() {
        out.reserve(in.size());
        while (at < in.size()) {
            if (IsNumeric(in[at]) || IsMark(in[at], '~')) {
                TakeNumber();
            } else {
                out.push_back(in[at++]);
            }
        }
        return std::move(out);
    }

  private:
    const std::string& Token(std::size_t index) const {
        static const std::string kNone;
        return index < in.size() ? in[index] : kNone;
    }

    std::string_view Behind(std::size_t back) const {
        return out.size() < back ? std::string_view() : out[out.size() - back];
    }

    bool IsExponent() const {
        return IsMark(Behind(1), '^') || (IsMark(Behind(1), '-') && IsMark(Behind(2), '^'));
    }

    /// Behind a lone "/" a number takes no other one, but between two fractions.
    bool TakesSlash(bool isExponent) const {
        const bool behindSlash = IsMark(Behind(1), '/') && code != kFractionArithmetic;
        return !isExponent && !behindSlash;
    }

    void TakeNumber() {
        const bool isExponent = IsExponent();
        bool joins = TakesSlash(isExponent);
        std::string number;
        while (at < in.size()) {
            const std::string& token = in[at];
            const bool digits = IsNumeric(token) || IsPowerOfTen(number);
            const bool root =
                IsMark(token, '~') && !isExponent && number.find('~') == std::string::npos;
            const bool slash = IsMark(token, '/') && joins && NumberFollows();
            if (!digits && !root && !slash) {
                break;
            }
            joins = joins && !root && !slash;
            number += token;
            ++at;
        }
        out.push_back(std::move(number));
    }

    /// The "E" of a power of ten and the sign behind it.
    bool IsPowerOfTen(const std::string& number) const {
        return (IsMark(Token(at), 'E') && !number.empty()) ||
               (IsSign(Token(at)) && number.ends_with('E'));
    }

    std::size_t EndOfDigits(std::size_t begin) const {
        while (IsNumeric(Token(begin))) {
            ++begin;
        }
        return begin;
    }

    /// A whole number stands behind the "/", and nothing that binds it more tightly.
    bool NumberFollows() const {
        std::size_t end = EndOfDigits(at + 1);
        if (IsMark(Token(end), 'E') && IsSign(Token(end + 1))) {
            end = EndOfDigits(end + 2);
        }
        const std::string& next = Token(end);
        return end > at + 1 && IsDigit(in[at - 1]) &&
               (next.empty() || IsOneOf(next, "+-*/()|=[],"));
    }

    const Tokens& in;
    int code;
    Tokens out;
    std::size_t at = 0;
};

/// "/0" at the end or before an operator but "/", and "/0.0" likewise; 1/0.00 is found out when it
/// is divided.
bool DividesByZero(const std::string& text) {
    for (const std::string_view zero : {"/0", "/0.0"}) {
        for (std::size_t at = text.find(zero); at != std::string::npos;
             at = text.find(zero, at + 1)) {
            const std::string next = text.substr(at + zero.size(), 1);
            if (next.empty() || IsOneOf(next, "-+*")) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool IsExponentSign(const Tokens& tokens, std::size_t at) {
    return at > 0 && IsMark(tokens[at - 1], '^');
}

bool IsFraction(std::string_view token) {
    for (std::size_t slash = token.find('/'); slash != std::string_view::npos;
         slash = token.find('/', slash + 1)) {
        if (slash > 0 && IsDigit(token.substr(slash - 1, 1))) {
            return true;
        }
    }
    return false;
}

bool IsNumberToken(std::string_view token) {
    return !token.empty() && (IsNumeric(token.substr(0, 1)) || token.front() == '~');
}

Tokens TextToTokens(std::string_view text) {
    Tokens tokens = Characters(text);
    tokens.erase(std::remove(tokens.begin(), tokens.end(), " "), tokens.end());
    return tokens;
}

std::string TokensToText(const Tokens& tokens) {
    return TextBetween(tokens, 0, tokens.size());
}

std::string TextBetween(const Tokens& tokens, std::size_t begin, std::size_t end) {
    std::size_t length = 0;
    for (std::size_t i = begin; i < end; ++i) {
        length += tokens[i].size();
    }
    std::string text;
    text.reserve(length);
    for (std::size_t i = begin; i < end; ++i) {
        text += tokens[i];
    }
    return text;
}

std::string WithoutEmphasis(std::string text) {
    text.erase(std::remove_if(text.begin(), text.end(),
                              [](char each) { return each == '[' || each == ']'; }),
               text.end());
    return text;
}

Tokens MergeNumberTokens(const Tokens& tokens, int ProblemType) {
    return NumberMerger(tokens, ProblemType).Merge();
}

Tokens CellsToTokens(TypedProblem& typed) {
    CollectVariables(typed);
    Tokens tokens;
    if (!IsMark(typed.ExprCells[kCellPitch], '-')) {
        tokens.emplace_back("+");
    }
    for (int cell = kCellPitch; cell <= typed.ExprCellCount; cell += kCellPitch) {
        const std::string& token = typed.ExprCells[cell];
        tokens.push_back(IsMark(token, '{') ? "/" : token);
    }
    if (DividesByZero(TokensToText(tokens))) {
        throw Failure(FailureKind::DivisionByZero);
    }
    return tokens;
}

}  // namespace numerello
