#include "graph/graph_terms.h"

#include "core/bounds.h"
#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr std::string_view kPassedOver = " []#";

bool IsSign(char c) {
    return c == '+' || c == '-';
}

bool IsNumberPart(char c) {
    return IsDigit(c) || c == '.';
}

/// Reads one side from left to right.
class SideReader {
  public:
    explicit SideReader(std::string_view side) : rest(side) {}

    std::vector<GraphTerm> Terms() {
        std::vector<GraphTerm> terms;
        while (!rest.empty()) {
            terms.push_back(Term());
            CheckIndex(static_cast<int>(terms.size()), GraphTerms::kMostTerms);
        }
        return terms;
    }

  private:
    char Next() const { return rest.empty() ? '\0' : rest.front(); }

    double Signs() {
        double sign = 1;
        while (IsSign(Next())) {
            sign = Next() == '-' ? -sign : sign;
            rest.remove_prefix(1);
        }
        return sign;
    }

    double WholeOrDecimal() {
        std::size_t length = 0;
        while (length < rest.size() && IsNumberPart(rest[length])) {
            ++length;
        }
        if (length == 0) {
            throw Failure(FailureKind::Format);
        }
        const double value = ToNumber(rest.substr(0, length));
        rest.remove_prefix(length);
        return value;
    }

    double Number() {
        const double value = WholeOrDecimal();
        if (Next() != '/') {
            return value;
        }
        rest.remove_prefix(1);
        return Divide(value, WholeOrDecimal());
    }

    void Letter(GraphTerm& term) {
        if ((Next() != 'x' && Next() != 'y') || term.letter != '\0') {
            throw Failure(FailureKind::Format);
        }
        term.letter = Next();
        rest.remove_prefix(1);
        if (Next() == '^') {
            rest.remove_prefix(1);
            const double sign = Signs();
            term.power = sign * Number();
        }
    }

    GraphTerm Term() {
        GraphTerm term;
        term.coefficient = Signs();
        if (rest.empty()) {
            throw Failure(FailureKind::Format);
        }
        while (!rest.empty() && !IsSign(Next())) {
            if (IsNumberPart(Next())) {
                term.coefficient = Checked(term.coefficient * Number());
            } else {
                Letter(term);
            }
        }
        return term;
    }

    std::string_view rest;
};

}  // namespace

std::string EquationText(const TypedProblem& typed) {
    std::string text;
    for (int i = 0; i <= TypedProblem::kTopCell && !typed.ExprVariants[i].empty(); ++i) {
        text += typed.ExprVariants[i];
    }
    return text;
}

GraphTerms ReadGraphTerms(std::string_view text) {
    std::string bare;
    for (const char c : text) {
        if (kPassedOver.find(c) == std::string_view::npos) {
            bare += c;
        }
    }
    const std::size_t equals = bare.find('=');
    if (equals == std::string::npos) {
        throw Failure(FailureKind::Format);
    }
    const std::string_view equation = bare;
    return {SideReader(equation.substr(0, equals)).Terms(),
            SideReader(equation.substr(equals + 1)).Terms()};
}

}  // namespace numerello
