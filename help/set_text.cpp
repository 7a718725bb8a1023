#include "help/set_text.h"

#include <algorithm>
#include <vector>

#include "core/text.h"
#include "help/help_error.h"
#include "typeset/shown_sign.h"
#include "worksheet/spoken_line.h"

namespace numerello {

namespace {

constexpr std::string_view kRedBegins = "<span class=\"red\">";
constexpr std::string_view kRedEnds = "</span>";

bool IsConstruct(std::string_view character) {
    return character == "#" || character == "^" || character == "~";
}

std::string_view NameOf(Ink ink) {
    switch (ink) {
        case Ink::Black:
            return "black";
        case Ink::Blue:
            return "blue";
        case Ink::Page:
            break;
    }
    return "page";
}

std::string PercentEncoded(std::string_view text) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (IsDigit(c) || IsLetter(c)) {
            encoded += c;
        } else {
            encoded += '%';
            encoded += kHex[byte / 16];
            encoded += kHex[byte % 16];
        }
    }
    return encoded;
}

using Word = std::vector<std::string>;

/// Cuts at the blanks, but not at those within a construct. A mark without partner is a character
/// like any other.
std::vector<Word> WordsOf(const std::vector<std::string>& characters) {
    std::vector<Word> words(1);
    for (auto at = characters.begin(); at != characters.end(); ++at) {
        if (*at == " ") {
            words.emplace_back();
            continue;
        }
        auto last = at;
        if (IsConstruct(*at)) {
            const auto partner = std::find(at + 1, characters.end(), *at);
            last = partner != characters.end() ? partner : at;
        }
        words.back().insert(words.back().end(), at, last + 1);
        at = last;
    }
    return words;
}

bool HasConstruct(const Word& word) {
    return std::any_of(word.begin(), word.end(), [&word](const std::string& each) {
        return IsConstruct(each) && std::count(word.begin(), word.end(), each) > 1;
    });
}

std::string Joined(const Word& word) {
    std::string text;
    for (const std::string& character : word) {
        text += character;
    }
    return text;
}

/// Whether what follows the word is emphasised.
bool RedBehind(const Word& word, bool red) {
    for (const std::string& character : word) {
        red = character == "[" || (red && character != "]");
    }
    return red;
}

std::string AsText(const Word& word, bool red) {
    std::string text;
    text += red ? kRedBegins : "";
    for (const std::string& character : word) {
        if (character == "[" || character == "]") {
            text += character == "[" ? kRedBegins : kRedEnds;
        } else {
            text += Escaped(ShownSign(character));
        }
    }
    return text + std::string(RedBehind(word, red) ? kRedEnds : "");
}

std::string PictureOf(std::string_view line, std::string_view words, Ink ink) {
    return Text("<img class=\"math\" src=\"math:", NameOf(ink), "/", PercentEncoded(line),
                "\" alt=\"", Escaped(words), "\">");
}

/// The place of a ")" whose "(" is not in the word; npos when there is none.
std::size_t LoneParenthesis(const Word& word) {
    int depth = 0;
    for (std::size_t i = 0; i < word.size(); ++i) {
        depth += word[i] == "(" ? 1 : word[i] == ")" ? -1 : 0;
        if (depth < 0) {
            return i;
        }
    }
    return std::string::npos;
}

Word Mirrored(const Word& word) {
    Word mirrored(word.rbegin(), word.rend());
    for (std::string& each : mirrored) {
        each = each == "(" ? ")" : each == ")" ? "(" : each;
    }
    return mirrored;
}

/// A parenthesis whose partner is another word of the sentence is its punctuation, and no sign of
/// the mathematics that it touches.
std::string SpokenWord(const Word& word) {
    if (const std::size_t closes = LoneParenthesis(word); closes != std::string::npos) {
        const auto at = word.begin() + static_cast<std::ptrdiff_t>(closes);
        return Text(SpokenWord({word.begin(), at}), Joined({at, word.end()}));
    }
    const Word mirrored = Mirrored(word);
    if (const std::size_t opens = LoneParenthesis(mirrored); opens != std::string::npos) {
        const auto behind = word.end() - static_cast<std::ptrdiff_t>(opens);
        return Text(Joined({word.begin(), behind}), SpokenWord({behind, word.end()}));
    }
    return SpokenLine(Joined(word));
}

std::string AsPicture(const Word& word, bool red, Ink ink) {
    return PictureOf(Text(red ? "[" : "", Joined(word), RedBehind(word, red) ? "]" : ""),
                     SpokenWord(word), ink);
}

bool IsSigns(const Word& word) {
    return !word.empty() && std::none_of(word.begin(), word.end(), [](const std::string& each) {
        return IsLetter(each) || IsDigit(each) || IsConstruct(each);
    });
}

/// Signs that are told of one after the other, as in "( + - )", stay in one row.
std::string_view BlankBetween(const Word& word, const Word& next) {
    return IsSigns(word) && IsSigns(next) ? "&nbsp;" : " ";
}

}  // namespace

std::string Escaped(std::string_view text) {
    return Replace(Replace(Replace(Replace(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;"), "\"",
                   "&quot;");
}

std::string MathPicture(std::string_view line, Ink ink) {
    return PictureOf(line, SpokenLine(line), ink);
}

std::string MathSentence(std::string_view sentence, Ink ink) {
    std::string html;
    bool red = false;
    const Word* before = nullptr;
    const std::vector<Word> words = WordsOf(Characters(sentence));
    for (const Word& word : words) {
        html += before == nullptr ? "" : BlankBetween(*before, word);
        html += HasConstruct(word) ? AsPicture(word, red, ink) : AsText(word, red);
        red = RedBehind(word, red);
        before = &word;
    }
    return html;
}

std::string MathLine(std::string_view line, Ink ink) {
    return HasWords(line) ? MathSentence(line, ink) : MathPicture(line, ink);
}

std::string WithMath(std::string_view html) {
    constexpr std::string_view kBegins = "<m>";
    constexpr std::string_view kEnds = "</m>";
    std::string whole;
    while (true) {
        const std::size_t begin = html.find(kBegins);
        whole += html.substr(0, begin);
        if (begin == std::string_view::npos) {
            return whole;
        }
        html.remove_prefix(begin + kBegins.size());
        const std::size_t end = html.find(kEnds);
        if (end == std::string_view::npos) {
            throw HelpError(Text("<m> without its end before: ", html));
        }
        whole += MathPicture(html.substr(0, end), Ink::Page);
        html.remove_prefix(end + kEnds.size());
    }
}

}  // namespace numerello
