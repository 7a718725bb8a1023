#include "engine/normalise.h"

#include <utility>

#include "core/text.h"

namespace numerello {

namespace {

/// The token before the parentheses that close at `close`; the first one when they open nowhere.
std::size_t BeforeLastParens(const Tokens& tokens, std::size_t close) {
    int depth = 0;
    for (std::size_t at = close; at > 0; --at) {
        depth += IsMark(tokens[at], ')') ? 1 : IsMark(tokens[at], '(') ? -1 : 0;
        if (depth == 0) {
            return at - 1;
        }
    }
    return 0;
}

class Normaliser {
  public:
    explicit Normaliser(const Tokens& tokens) : in(tokens) {}

    Tokens Read() {
        out.reserve(2 * in.size());  // a sign for each token at most
        for (at = 0; at < in.size(); ++at) {
            const std::string& token = in[at];
            if (IsMark(token, '^') && at + 1 < in.size() && IsMark(in[at + 1], '1')) {
                ++at;
                continue;
            }
            if (NeedsSign(token)) {
                out.emplace_back("+");
            }
            if (BeginsParens() && !out.empty() && IsMark(out.back(), '*')) {
                DropStar();
            }
            if (IsSign(token) && !out.empty() && IsOperator(out.back())) {
                MergeSign(token);
            } else {
                Take(token);
            }
        }
        return std::move(out);
    }

  private:
    /// At the start of the line, of a side, of parentheses and of bars.
    bool NeedsSign(const std::string& token) const {
        if (IsSign(token) || IsMark(token, '[') || IsMark(token, ')') || IsMark(token, '|')) {
            return IsMark(token, '|') && out.empty();
        }
        return out.empty() || IsMark(out.back(), '=') || IsMark(out.back(), '(') ||
               (IsMark(out.back(), '|') && barOpen);
    }

    void Take(const std::string& token) {
        if (IsMark(token, '|')) {
            barOpen = !barOpen;
        }
        out.push_back(token);
    }

    /// A sign behind a sign or an operator.
    void MergeSign(const std::string& token) {
        if (IsMark(token, '+')) {
            return;
        }
        if (IsSign(out.back())) {
            TurnSign(out.back());
            return;
        }
        for (std::size_t i = out.size(); i-- > 0;) {
            if (IsMark(out[i], ')')) {
                i = BeforeLastParens(out, i) + 1;
            } else if (IsMark(out[i], '|') && !barOpen) {
                do {
                    --i;
                } while (i > 0 && !IsMark(out[i], '|'));
            } else if (IsSign(out[i]) && !IsExponentSign(out, i)) {
                TurnSign(out[i]);
                return;
            }
        }
    }

    static void TurnSign(std::string& sign) { sign = IsMark(sign, '-') ? "+" : "-"; }

    /// Whether parentheses begin here, emphasised or not.
    bool BeginsParens() const {
        std::size_t next = at;
        while (next < in.size() && IsMark(in[next], '[')) {
            ++next;
        }
        return next < in.size() && IsMark(in[next], '(');
    }

    void DropStar() {
        out.pop_back();
        if (BindsParens()) {
            out.emplace_back("*");
        }
    }

    /// Whether the factor at the end of `out` would take parentheses behind it for its own: it ends
    /// in a power, is a fraction, stands under a "/", or ends in a bar.
    bool BindsParens() const {
        if (out.empty() || IsMark(out.back(), '|') || IsFraction(out.back())) {
            return true;
        }
        std::size_t before = out.size() - 1;
        if (IsMark(out.back(), ')')) {
            before = BeforeLastParens(out, before);
        } else {
            while (before > 0 && IsLetter(out[before])) {
                --before;
            }
            if (IsNumberToken(out[before]) && before > 0) {
                --before;
            }
        }
        return IsMark(out[before], '^') || IsMark(out[before], '/') || IsExponentSign(out, before);
    }

    const Tokens& in;
    Tokens out;
    std::size_t at = 0;
    bool barOpen = false;
};

}  // namespace

Tokens NormaliseTokens(const Tokens& tokens) {
    return Normaliser(tokens).Read();
}

}  // namespace numerello
