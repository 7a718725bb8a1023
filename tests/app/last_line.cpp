#include "last_line.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <vector>

#include "notation_cursor.h"

namespace numerello {

namespace {

/// The letters of one side of a fraction line with their exponents, and the number with them.
struct Product {
    std::string digits;
    std::map<char, int> exponents;
    std::string wrong;
};

Product TakeProduct(NotationCursor& cursor) {
    Product product;
    product.digits = cursor.TakeDigits();
    while (cursor.AtLetter()) {
        const char letter = cursor.Next();
        int exponent = 1;
        if (cursor.Take('^')) {
            exponent = cursor.TakeExponent();
            cursor.Expect('^');
            product.wrong = exponent < 2 ? "an exponent below 2 is shown" : product.wrong;
        }
        if (!product.exponents.try_emplace(letter, exponent).second) {
            product.wrong = "a letter stands twice in a term";
        }
    }
    if (product.digits == "1" && !product.exponents.empty()) {
        product.wrong = "a coefficient 1 is shown";
    }
    return product;
}

struct ShownTerm {
    Product top;
    Product bottom;
    bool isFraction = false;
};

ShownTerm TakeTerm(NotationCursor& cursor) {
    ShownTerm term;
    term.isFraction = cursor.Take('#');
    term.top = TakeProduct(cursor);
    if (term.isFraction) {
        cursor.Expect('/');
        term.bottom = TakeProduct(cursor);
        cursor.Expect('#');
    }
    return term;
}

bool IsEmpty(const Product& product) {
    return product.digits.empty() && product.exponents.empty();
}

std::string LeftInTerm(const ShownTerm& term, Digits digits) {
    if (IsEmpty(term.top) || (term.isFraction && IsEmpty(term.bottom))) {
        return "something is left to work";
    }
    if (!term.top.wrong.empty() || !term.bottom.wrong.empty()) {
        return term.top.wrong + term.bottom.wrong;
    }
    if (term.bottom.digits == "1" && !term.top.exponents.empty()) {
        // Letters over 1 are no fraction to reduce.
        return "";
    }
    if (digits == Digits::Decimals) {
        return term.bottom.digits.empty() ? "" : "a fraction is left";
    }
    const std::string top = term.top.digits.empty() ? "1" : term.top.digits;
    const std::string bottom = term.bottom.digits.empty() ? "1" : term.bottom.digits;
    if ((top + bottom).find('.') != std::string::npos) {
        return "a decimal number is left";
    }
    const bool lowest = std::gcd(std::stoll(top), std::stoll(bottom)) == 1;
    const bool whole = !term.isFraction;
    return whole || (lowest && term.bottom.digits != "1") ? "" : "a fraction can be reduced";
}

/// The terms of a sum that holds nothing else; throws std::invalid_argument for any other line.
std::vector<ShownTerm> TermsOf(std::string_view line) {
    NotationCursor cursor(line);
    std::vector<ShownTerm> terms;
    do {
        if (cursor.IsAt("+-") && (cursor.Next() == '+') && terms.empty()) {
            cursor.Fail("a leading plus");
        }
        terms.push_back(TakeTerm(cursor));
    } while (cursor.IsAt("+-"));
    if (!cursor.AtEnd()) {
        cursor.Fail("something is left to work");
    }
    return terms;
}

bool IsZero(const ShownTerm& term) {
    return term.top.digits == "0";
}

int DegreeOf(const ShownTerm& term) {
    return term.top.exponents.empty() ? 0 : term.top.exponents.begin()->second;
}

std::string LeftInTerms(const std::vector<ShownTerm>& terms, Digits digits) {
    std::set<std::pair<std::map<char, int>, std::map<char, int>>> kinds;
    for (const ShownTerm& term : terms) {
        // A zero beside letters stays: the line without it is never shown.
        if (IsZero(term) && terms.size() > 1) {
            continue;
        }
        const std::string left = LeftInTerm(term, digits);
        if (!left.empty()) {
            return left;
        }
        if (!kinds.emplace(term.top.exponents, term.bottom.exponents).second) {
            return "like terms are left";
        }
    }
    return "";
}

/// The line without a zero is the sorted one, and is never shown.
bool IsInOrder(const std::vector<ShownTerm>& terms) {
    return std::any_of(terms.begin(), terms.end(), IsZero) ||
           std::is_sorted(terms.begin(), terms.end(), [](const ShownTerm& a, const ShownTerm& b) {
               return DegreeOf(a) > DegreeOf(b);
           });
}

bool HoldsSeveralTerms(std::string_view bracket) {
    return bracket.substr(1).find_first_of("+-", 1) != std::string_view::npos;
}

/// Whether a bracket of several terms stands where it cannot go. It keeps those around it.
bool SomeBracketMustStay(std::string_view line) {
    for (std::size_t begin = line.find('('); begin != std::string_view::npos;
         begin = line.find('(', begin + 1)) {
        std::size_t end = begin;
        for (int open = 1; open > 0 && end + 1 < line.size();) {
            ++end;
            open += line[end] == '(' ? 1 : line[end] == ')' ? -1 : 0;
        }
        const std::string_view before = line.substr(0, begin);
        const std::string_view behind = line.substr(end + 1);
        const std::size_t power = behind.starts_with("^") ? behind.find('^', 1) + 1 : 0;
        const bool bound = before.ends_with("/") || before.ends_with("/-") ||
                           behind.substr(power).starts_with("/") || behind.starts_with("^-");
        if (bound && HoldsSeveralTerms(line.substr(begin, end - begin))) {
            return true;
        }
    }
    return false;
}

bool IsPrime(long long number) {
    for (long long d = 2; d * d <= number; ++d) {
        if (number % d == 0) {
            return false;
        }
    }
    return number > 1;
}

template <class Check>
std::string Read(Check check) {
    try {
        return check();
    } catch (const std::invalid_argument& wrong) {
        return "not worked out";
    }
}

}  // namespace

std::string LeftInNumber(std::string_view line, Digits digits) {
    return Read([&]() -> std::string {
        const std::vector<ShownTerm> terms = TermsOf(line);
        if (terms.size() != 1 || !terms[0].top.exponents.empty() ||
            !terms[0].bottom.exponents.empty()) {
            return "more than a number is left";
        }
        return LeftInTerm(terms[0], digits);
    });
}

std::string LeftInPrimePowers(std::string_view line) {
    if (line == "0" || line == "1") {
        return "";
    }
    return Read([&]() -> std::string {
        NotationCursor cursor(line);
        long long last = 0;
        do {
            const long long prime = std::stoll(std::string(cursor.TakeDigits()));
            if (!IsPrime(prime) || prime <= last) {
                return "no prime, or not in order";
            }
            last = prime;
            if (cursor.Take('^')) {
                if (cursor.TakeExponent() < 2) {
                    return "an exponent below 2 is shown";
                }
                cursor.Expect('^');
            }
        } while (cursor.Take('*'));
        return cursor.AtEnd() ? "" : "more than a product is left";
    });
}

std::string LeftInRoots(std::string_view line) {
    return Read([&]() -> std::string {
        NotationCursor cursor(line);
        std::set<long long> radicands;
        do {
            cursor.TakeSigns();
            const std::string_view count = cursor.TakeDigits();
            long long radicand = 1;
            if (cursor.Take('~')) {
                radicand = std::stoll(std::string(cursor.TakeDigits()));
                cursor.Expect('~');
                if (radicand < 2 || SquareFactorsOf(radicand).outside != 1) {
                    return "a root can be simplified";
                }
                if (count == "0" || count == "1") {
                    return "a coefficient 0 or 1 is shown";
                }
            } else if (count.empty()) {
                return "no number";
            }
            // A zero beside a root stays, as beside letters.
            if (count != "0" && !radicands.insert(radicand).second) {
                return "like terms are left";
            }
        } while (cursor.IsAt("+-"));
        return cursor.AtEnd() ? "" : "more than a sum is left";
    });
}

std::string LeftInPolynomial(std::string_view line, Digits digits) {
    if (line.find('(') != std::string_view::npos) {
        return SomeBracketMustStay(line) ? "" : "a bracket is left";
    }
    return Read([&]() -> std::string {
        const std::vector<ShownTerm> terms = TermsOf(line);
        const std::string left = LeftInTerms(terms, digits);
        return left.empty() && !IsInOrder(terms) ? "not in decreasing order" : left;
    });
}

std::string LeftInSum(std::string_view line, Digits digits) {
    return Read([&] { return LeftInTerms(TermsOf(line), digits); });
}

}  // namespace numerello
