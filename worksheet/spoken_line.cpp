#include "worksheet/spoken_line.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/text.h"
#include "typeset/fraction_parts.h"

namespace numerello {

namespace {

struct SpokenSign {
    std::string_view sign;
    std::string_view words;
    bool inSentences;  ///< whether a sentence has it spoken too, not as punctuation
};

constexpr std::array kSigns{
    SpokenSign{"+", "plus", true},
    SpokenSign{"-", "minus", true},
    SpokenSign{"*", "times", true},
    SpokenSign{"{", "divided by", true},
    SpokenSign{"/", "over", true},
    SpokenSign{"=", "equals", true},
    SpokenSign{"<", "is less than", true},
    SpokenSign{">", "is greater than", true},
    SpokenSign{"$", "is not equal to", true},
    SpokenSign{"\\", "plus or minus", true},
    SpokenSign{"`", "pi", true},
    SpokenSign{"(", "open parenthesis", false},
    SpokenSign{")", "close parenthesis", false},
    SpokenSign{"|", "absolute value bar", false},
};

/// Units that stand close behind their number in a line such as "5000lb = 2.5 T".
constexpr std::array<std::string_view, 2> kCloseUnits{"lb", "oz"};

constexpr std::array<std::string_view, 10> kCounts{"",     "one", "two",   "three", "four",
                                                   "five", "six", "seven", "eight", "nine"};
constexpr std::array<std::string_view, 11> kParts{
    "", "", "half", "third", "fourth", "fifth", "sixth", "seventh", "eighth", "ninth", "tenth"};

bool IsWholeNumber(std::string_view text) {
    return !text.empty() && text.size() < 10 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Whether a part is one number or letter, so that no end has to be told.
bool IsSingle(std::string_view part) {
    const std::string bare = Replace(Replace(part, "[", ""), "]", "");
    return IsWholeNumber(bare) || Characters(bare).size() == 1;
}

/// One blank between words, none before what closes a sentence or a parenthesis.
std::string Tidied(std::string_view text) {
    std::string tidy;
    for (const char character : text) {
        const bool follows = !tidy.empty() && tidy.back() == ' ';
        if (character == ' ' && (tidy.empty() || follows)) {
            continue;
        }
        if (follows && std::string_view(".,;:)!").find(character) != std::string_view::npos) {
            tidy.pop_back();
        }
        tidy += character;
    }
    if (!tidy.empty() && tidy.back() == ' ') {
        tidy.pop_back();
    }
    return tidy;
}

/// "three fourths"; empty where the numbers have no such name.
std::string NamedFraction(const FractionParts& parts) {
    if (!IsWholeNumber(parts.numerator) || !IsWholeNumber(parts.denominator)) {
        return "";
    }
    const auto count = std::stoul(std::string(parts.numerator));
    const auto part = std::stoul(std::string(parts.denominator));
    if (count == 0 || count >= kCounts.size() || part < 2 || part >= kParts.size()) {
        return "";
    }
    if (count == 1) {
        return Text("one ", kParts[part]);
    }
    return Text(kCounts[count], " ", part == 2 ? "halves" : Text(kParts[part], "s"));
}

std::string SpokenFraction(std::string_view body) {
    const FractionParts parts = SplitFraction(body);
    if (std::string named = NamedFraction(parts); !named.empty()) {
        return named;
    }
    const std::string both =
        Text(SpokenLine(parts.numerator), " over ", SpokenLine(parts.denominator));
    return IsSingle(parts.numerator) && IsSingle(parts.denominator)
               ? both
               : Text("fraction ", both, " end fraction");
}

/// The raised o is the sign for degrees; no exponent is a letter.
constexpr std::string_view kDegrees = "o";

std::string SpokenPower(std::string_view body) {
    if (body == "2") {
        return "squared";
    }
    return body == "3" ? "cubed" : Text("to the power of ", SpokenLine(body));
}

std::string SpokenRoot(std::string_view body) {
    return Text("square root of ", SpokenLine(body), IsSingle(body) ? "" : " end root");
}

/// Goes through a line and puts words in the place of signs and constructs.
class Speaker {
  public:
    explicit Speaker(std::string_view line)
        : characters(Characters(line)), sentence(HasWords(line)) {}

    std::string Speak() {
        while (at < characters.size()) {
            SpeakHere();
        }
        return Tidied(spoken);
    }

  private:
    const std::string& At(std::size_t place) const {
        static const std::string none;
        return place < characters.size() ? characters[place] : none;
    }

    void SpeakHere() {
        const std::string& here = At(at);
        if (!IsQuoted() && (here == "#" || here == "^" || here == "~")) {
            SpeakConstruct(here);
            return;
        }
        if (const std::string_view unit = CloseUnitHere(); !unit.empty()) {
            spoken += Text(" ", unit);
            at += unit.size();
            return;
        }
        if (IsDash()) {
            spoken += ", ";
        } else if (JoinsPoints()) {
            spoken += " to ";
        } else if (const SpokenSign* sign = SignHere()) {
            spoken += Text(" ", sign->words, " ");
        } else if (here != "[" && here != "]") {
            spoken += StandsAlone() ? Text(" ", here, " ") : here;
        }
        ++at;
    }

    /// A unit close behind its number, and before a blank; 2lb+3 has letters that are factors.
    std::string_view CloseUnitHere() const {
        if (at == 0 || !IsDigit(At(at - 1))) {
            return "";
        }
        const auto* const unit =
            std::find_if(kCloseUnits.begin(), kCloseUnits.end(), [this](std::string_view each) {
                return At(at) == each.substr(0, 1) && At(at + 1) == each.substr(1) &&
                       At(at + 2) == " ";
            });
        return unit == kCloseUnits.end() ? "" : *unit;
    }

    const SpokenSign* SignHere() const {
        if (IsQuoted() || IsHyphen()) {
            return nullptr;
        }
        const auto* const row =
            std::find_if(kSigns.begin(), kSigns.end(),
                         [this](const SpokenSign& each) { return each.sign == At(at); });
        return row == kSigns.end() || (sentence && !row->inSentences) ? nullptr : row;
    }

    /// A sentence that speaks of a sign has it in quotes or parentheses.
    bool IsQuoted() const {
        const std::string& before = at > 0 ? At(at - 1) : At(characters.size());
        const std::string& behind = At(at + 1);
        return sentence && ((before == "(" && behind == ")") || (before == "'" && behind == "'"));
    }

    /// Between two words, as in forty-two.
    bool IsHyphen() const {
        return sentence && at > 0 && IsLetter(At(at - 1)) && IsLetter(At(at + 1));
    }

    bool IsWord(std::size_t from, std::size_t length) const {
        std::size_t letters = 0;
        while (letters < length && IsLetter(At(from + letters))) {
            ++letters;
        }
        return letters == length;
    }

    /// Between blanks and beside a word of three letters or more, which is nothing to subtract.
    bool IsDash() const {
        constexpr std::size_t kWord = 3;
        if (!sentence || At(at) != "-" || at == 0 || At(at - 1) != " " || At(at + 1) != " ") {
            return false;
        }
        return IsWord(at + 2, kWord) || (at > kWord && IsWord(at - 1 - kWord, kWord));
    }

    /// Behind a point such as (1,2), where the line through it and the next one is meant.
    bool JoinsPoints() const {
        if (At(at) != "-" || at == 0 || At(at - 1) != ")") {
            return false;
        }
        std::size_t open = at - 1;
        bool hasComma = false;
        while (open > 0 && At(open) != "(") {
            --open;
            hasComma = hasComma || At(open) == ",";
        }
        return hasComma && At(open) == "(";
    }

    /// A letter of mathematics; in a sentence one behind a number, but not the "nd" of 2nd.
    bool StandsAlone() const {
        if (!IsLetter(At(at)) || InUnit()) {
            return false;
        }
        return !sentence || (at > 0 && IsDigit(At(at - 1)) && !IsLetter(At(at + 1)));
    }

    /// Letters behind a blank are a unit, as in 5 km; the factors of a product stand close.
    bool InUnit() const {
        std::size_t first = at;
        while (first > 0 && IsLetter(At(first - 1))) {
            --first;
        }
        return first > 0 && At(first - 1) == " ";
    }

    void SpeakConstruct(const std::string& mark) {
        const auto first = characters.begin() + static_cast<std::ptrdiff_t>(at) + 1;
        const auto partner = std::find(first, characters.end(), mark);
        if (partner == characters.end()) {
            spoken += mark;
            ++at;
            return;
        }
        std::string body;
        std::for_each(first, partner, [&body](const std::string& each) { body += each; });
        if (mark == "#") {
            const bool isMixed = at > 0 && IsDigit(At(at - 1));
            spoken += Text(isMixed ? " and " : " ", SpokenFraction(body), " ");
        } else if (mark == "^" && body == kDegrees) {
            spoken += BehindOne() ? " degree " : " degrees ";
        } else {
            spoken += Text(" ", mark == "^" ? SpokenPower(body) : SpokenRoot(body), " ");
        }
        at = static_cast<std::size_t>(partner - characters.begin()) + 1;
    }

    /// Whether the number just before is 1.
    bool BehindOne() const {
        if (at == 0 || At(at - 1) != "1") {
            return false;
        }
        return at == 1 || (!IsDigit(At(at - 2)) && At(at - 2) != "." && At(at - 2) != "-");
    }

    std::vector<std::string> characters;
    bool sentence;
    std::size_t at = 0;
    std::string spoken;
};

}  // namespace

bool HasWords(std::string_view line) {
    int letters = 0;
    for (const std::string& character : Characters(line)) {
        letters = IsLetter(character) ? letters + 1 : 0;
        if (letters == 3) {
            return true;
        }
    }
    return false;
}

std::string SpokenLine(std::string_view line) {
    return Speaker(line).Speak();
}

}  // namespace numerello
