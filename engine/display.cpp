#include "engine/display.h"

#include <utility>

#include "core/text.h"
#include "notation/line_setter.h"

namespace numerello {

namespace {

/// The tokens without what the learner does not see.
class VisibleTokens {
  public:
    explicit VisibleTokens(const Tokens& tokens) : in(tokens) {}

    Tokens Read() {
        out.reserve(2 * in.size());  // a root and its coefficient are two
        for (at = 0; at < in.size(); ++at) {
            const std::string& token = in[at];
            if (IsMark(token, '|')) {
                barOpen = !barOpen;
            }
            if (IsMark(token, '1') && IsHiddenOne()) {
                continue;
            }
            if (IsMark(token, '+') && IsHiddenPlus()) {
                continue;
            }
            if (const std::size_t root = token.find('~'); root != std::string::npos) {
                TakeRoot(token, root);
            } else if (!token.empty()) {
                out.push_back(token);
            }
        }
        return std::move(out);
    }

  private:
    std::string_view Last() const {
        return out.empty() ? std::string_view() : std::string_view(out.back());
    }

    std::string_view Next() const {
        return at + 1 < in.size() ? std::string_view(in[at + 1]) : std::string_view();
    }

    /// An exponent of 1 goes with its caret; a coefficient of 1 stands before a letter.
    bool IsHiddenOne() {
        if (IsMark(Last(), '^')) {
            out.pop_back();
            return true;
        }
        return IsLetter(Next());
    }

    bool IsHiddenPlus() const {
        const std::string_view last = Last();
        return last.empty() || IsMark(last, '=') || IsMark(last, '(') ||
               (IsMark(last, '|') && barOpen);
    }

    void TakeRoot(const std::string& token, std::size_t root) {
        if (root > 0) {
            out.push_back(token.substr(0, root));
        }
        out.emplace_back("~");
        if (root + 1 < token.size()) {
            out.push_back(token.substr(root + 1));
        }
    }

    const Tokens& in;
    Tokens out;
    std::size_t at = 0;
    bool barOpen = false;
};

}  // namespace

std::string DisplayText(const Tokens& tokens, int ProblemType) {
    const Tokens visible = VisibleTokens(tokens).Read();
    LineSetter setter(ProblemType, visible.size());
    for (const std::string& token : visible) {
        setter.Add(token);
    }
    setter.CloseAll();
    std::string text;
    for (const MarkedToken& token : setter.Line()) {
        text.append(token.before).append(token.text).append(token.after);
    }
    return text;
}

std::string ShownText(std::string_view text, int ProblemType) {
    if (text.find_first_not_of("0123456789") == std::string_view::npos) {
        return std::string(text);
    }
    return DisplayText(MergeNumberTokens(TextToTokens(text), ProblemType), ProblemType);
}

}  // namespace numerello
