#include "cli/terminal_text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "core/text.h"
#include "typeset/fraction_parts.h"
#include "typeset/notation_walk.h"
#include "typeset/shown_sign.h"

namespace numerello {

namespace {

using Glyph = std::pair<std::string_view, std::string_view>;

constexpr auto kRaised = std::to_array<Glyph>({
    {"0", "⁰"},
    {"1", "¹"},
    {"2", "²"},
    {"3", "³"},
    {"4", "⁴"},
    {"5", "⁵"},
    {"6", "⁶"},
    {"7", "⁷"},
    {"8", "⁸"},
    {"9", "⁹"},
    {"-", "⁻"},
    {"o", "°"},
    {"?", "^"},
});

constexpr std::string_view kOperators = "+-*/=<>,";

/// Null for a character that cannot be raised.
const Glyph* FindRaised(std::string_view character) {
    const auto* const found =
        std::find_if(kRaised.begin(), kRaised.end(),
                     [character](const Glyph& glyph) { return glyph.first == character; });
    return found == kRaised.end() ? nullptr : found;
}

/// The control characters have pictures from U+2400, Delete has one at U+2421. Those of the second
/// set, from U+0080, have none.
std::string VisibleCharacter(const std::string& character) {
    const auto first = static_cast<unsigned char>(character.front());
    const bool isByte = character.size() == 1;
    if (isByte && (first < ' ' || first == 0x7F)) {
        return {'\xE2', '\x90', static_cast<char>(first == 0x7F ? 0xA1 : 0x80 + first)};
    }
    const bool isControl =
        !isByte && first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
    return (isByte && first >= 0x80) || isControl ? "\uFFFD" : character;
}

bool HasOperator(std::string_view part) {
    return part.size() > 1 && part.find_first_of(kOperators, 1) != std::string_view::npos;
}

/// Whether one pair of parentheses goes around the whole part.
bool IsEnclosed(std::string_view part) {
    if (part.size() < 2 || part.front() != '(' || part.back() != ')') {
        return false;
    }
    return part.find(')') == part.size() - 1;
}

std::string Grouped(std::string_view part) {
    const std::string plain = TerminalText(part);
    return HasOperator(plain) && !IsEnclosed(plain) ? Text("(", plain, ")") : plain;
}

/// A product under the bar is one divisor.
std::string GroupedDivisor(std::string_view part) {
    const std::string grouped = Grouped(part);
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    const bool isProduct =
        grouped.size() > 1 && std::any_of(grouped.begin() + 1, grouped.end(), isLetter);
    return isProduct && !IsEnclosed(grouped) ? Text("(", grouped, ")") : grouped;
}

std::string RaisedText(std::string_view body) {
    std::string raised;
    for (const std::string& character : Characters(body)) {
        const Glyph* glyph = FindRaised(character);
        if (glyph == nullptr) {
            return Text("^(", TerminalText(body), ")");
        }
        raised += glyph->second;
    }
    return raised;
}

std::string RootText(std::string_view body) {
    return Text("√", Grouped(body));
}

bool EndsInDigit(std::string_view text) {
    return !text.empty() && text.back() >= '0' && text.back() <= '9';
}

/// Between operators a fraction needs nothing; behind a number it is the rest of a mixed one.
std::string FractionText(std::string_view before, std::string_view body, std::string_view behind) {
    const FractionParts parts = SplitFraction(body);
    if (parts.numerator.empty() && parts.denominator.empty()) {
        return TerminalText(body);
    }
    std::string both = Text(Grouped(parts.numerator), "/", GroupedDivisor(parts.denominator));
    constexpr std::string_view kApart = "+-=<>, ():;|[]";
    const bool apart = behind.empty() || kApart.find(behind) != std::string_view::npos;
    const bool first = before.empty() || kApart.find(before.back()) != std::string_view::npos;
    if (apart && first && behind != "(" && !before.ends_with(')')) {
        return both;
    }
    const bool isMixed =
        EndsInDigit(before) && both.find_first_not_of("0123456789/") == std::string::npos;
    return isMixed && apart ? Text(" ", both) : Text("(", both, ")");
}

std::string Plain(const std::vector<std::string>& pieces) {
    std::string plain;
    for (std::size_t at = 0; at < pieces.size(); ++at) {
        const std::string& here = pieces[at];
        const bool opens = here == "#" || here == "^" || here == "~";
        const auto first = pieces.begin() + static_cast<std::ptrdiff_t>(at) + 1;
        const auto partner = opens ? std::find(first, pieces.end(), here) : pieces.end();
        if (partner == pieces.end()) {
            plain += ShownSign(here);
            continue;
        }
        std::string body;
        std::for_each(first, partner, [&body](const std::string& each) { body += each; });
        if (here == "#") {
            plain += FractionText(plain, body, partner + 1 == pieces.end() ? "" : *(partner + 1));
        } else {
            plain += here == "^" ? RaisedText(body) : RootText(body);
        }
        at = static_cast<std::size_t>(partner - pieces.begin());
    }
    return plain;
}

}  // namespace

std::string TerminalText(std::string_view line) {
    return Plain(Characters(line));
}

std::string TerminalRefusal(std::string_view text) {
    return VisibleText(Plain(CharactersWithQuotedMarks(text)));
}

std::string VisibleText(std::string_view text) {
    std::string visible;
    for (const std::string& character : Characters(text)) {
        visible += VisibleCharacter(character);
    }
    return visible;
}

}  // namespace numerello
