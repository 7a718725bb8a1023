#include "engine/display.h"

#include "core/text.h"
#include "notation/line_setter.h"

namespace numerello {

namespace {

/// The tokens without what the learner does not see.
class VisibleTokens {
  public:
    explicit VisibleTokens(const Tokens& tokens) : in(tokens) {}

    Tokens Read() {
        for (at = 0; at < in.size(); ++at) {
            const std::string& token = in[at];
            if (token == "|") {
                barOpen = !barOpen;
            }
            if (token == "1" && IsHiddenOne()) {
                continue;
            }
            if (token == "+" && IsHiddenPlus()) {
                continue;
            }
            if (const std::size_t root = token.find('~'); root != std::string::npos) {
                TakeRoot(token, root);
            } else if (!token.empty()) {
                out.push_back(token);
            }
        }
        return out;
    }

  private:
    std::string Last() const { return out.empty() ? "" : out.back(); }

    std::string Next() const { return at + 1 < in.size() ? in[at + 1] : ""; }

    /// An exponent of 1 goes with its caret; a coefficient of 1 stands before a letter.
    bool IsHiddenOne() {
        if (Last() == "^") {
            out.pop_back();
            return true;
        }
        return IsLetter(Next());
    }

    bool IsHiddenPlus() const {
        const std::string last = Last();
        return last.empty() || last == "=" || last == "(" || (last == "|" && barOpen);
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
    LineSetter setter(ProblemType);
    for (const std::string& token : VisibleTokens(tokens).Read()) {
        setter.Add(token);
    }
    setter.CloseAll();
    std::string text;
    for (const MarkedToken& token : setter.Line()) {
        text += token.before + token.text + token.after;
    }
    return text;
}

std::string ShownText(std::string_view text, int ProblemType) {
    return DisplayText(MergeNumberTokens(TextToTokens(text), ProblemType), ProblemType);
}

}  // namespace numerello
