#include "equation_check.h"

#include "last_line.h"
#include "log_numbers.h"

namespace numerello {

namespace {

template <class SideValue>
LinearForm FormBy(std::string_view equation, SideValue valueOf) {
    const std::size_t equals = equation.find('=');
    if (equals == std::string_view::npos) {
        throw std::invalid_argument("no equation");
    }
    const std::string letters = LettersOf(equation);
    const auto valueAt = [&](char one) {
        Point point;
        for (const char letter : letters) {
            point.emplace(letter, letter == one ? 1 : 0);
        }
        return (valueOf(equation.substr(0, equals), point) +
                -valueOf(equation.substr(equals + 1), point))
            .Plain();
    };
    LinearForm form;
    form.constant = valueAt('\0');
    for (const char letter : letters) {
        const Rational count = valueAt(letter) - form.constant;
        if (!(count == 0)) {
            form.counts.emplace(letter, count);
        }
    }
    return form;
}

LinearForm Times(const Rational& factor, const LinearForm& form) {
    LinearForm product;
    product.constant = factor * form.constant;
    for (const auto& [letter, count] : form.counts) {
        product.counts.emplace(letter, factor * count);
    }
    return product;
}

/// Whether two equations have the same solutions.
bool SameSolutions(const LinearForm& one, const LinearForm& other) {
    if (one.counts.empty() || other.counts.empty()) {
        return one.counts.empty() && other.counts.empty() &&
               (one.constant == 0) == (other.constant == 0);
    }
    const auto& [letter, count] = *one.counts.begin();
    const auto match = other.counts.find(letter);
    return match != other.counts.end() && Times(match->second / count, one) == other;
}

/// The letter that stands alone on the left of the last line in the end.
char WantedLetter(const SolvedProblem& worked, const LinearForm& problem) {
    const std::string letters = LettersOf(worked.typed);
    char wanted = letters.front();
    if (worked.code == 105 && letters.size() == 2) {
        const bool named = letters == "xy" || letters == "yx";
        wanted = named ? 'y' : worked.answers.front().front();
    }
    return problem.counts.contains(wanted) ? wanted : problem.counts.begin()->first;
}

std::string WrongInStatement(const SolvedProblem& worked, const LinearForm& problem) {
    const std::string& note = worked.notes.back();
    if (problem.constant == 0) {
        return note.starts_with("Since ") && note.ends_with(" can be any real number.")
                   ? ""
                   : "any number solves it, which is not said";
    }
    const std::string& line = worked.lines.back();
    const std::size_t unequal = line.find('$');
    if (unequal == std::string::npos || !note.ends_with(", this equation has no solutions.")) {
        return "nothing solves it, which is not said";
    }
    const std::string left = line.substr(0, unequal);
    const std::string right = line.substr(unequal + 1);
    if (!LeftInNumber(left).empty() || !LeftInNumber(right).empty() ||
        ValueOf(left) == ValueOf(right)) {
        return "the statement's numbers";
    }
    return note == "Since " + left + " does not equal " + right +
                       ", this equation has no solutions."
               ? ""
               : "the sentence names other numbers than the line";
}

std::string WrongInEnd(const SolvedProblem& worked, const LinearForm& problem) {
    if (problem.counts.empty()) {
        return WrongInStatement(worked, problem);
    }
    const std::string& line = worked.lines.back();
    const char letter = WantedLetter(worked, problem);
    if (!line.starts_with(std::string(1, letter) + "=")) {
        return "not solved for the letter";
    }
    const std::string right = line.substr(2);
    if (right.find(letter) != std::string::npos) {
        return "the letter stands on both sides";
    }
    return problem.counts.size() == 1 ? LeftInNumber(right) : LeftInSum(right);
}

std::string WrongInLines(const SolvedProblem& worked, const LinearForm& problem) {
    for (std::size_t i = 0; i < worked.lines.size(); ++i) {
        const bool statement = worked.lines[i].find('$') != std::string::npos;
        if (statement && i + 1 == worked.lines.size()) {
            continue;
        }
        const LinearForm form = LineLinearForm(worked.lines[i]);
        if (i == 0 ? !(form == problem) : !SameSolutions(form, problem)) {
            return "other solutions than the problem: the line behind \"" +
                   worked.notes[i].substr(0, 24) + "\"";
        }
    }
    return "";
}

}  // namespace

LinearForm TypedLinearForm(int code, std::string_view typed) {
    return FormBy(typed, [code](std::string_view side, const Point& point) {
        return TypedValueOf(code, side, point);
    });
}

LinearForm LineLinearForm(std::string_view line) {
    return FormBy(line,
                  [](std::string_view side, const Point& point) { return ValueOf(side, point); });
}

Verdict JudgeEquation(const SolvedProblem& worked) {
    const std::string form = WrongInForm(worked);
    if (!form.empty() || worked.failure) {
        return {false, form + (worked.failure ? "a failure without a cause" : "")};
    }
    if (IsBeyondSingles(worked)) {
        return {true, ""};
    }
    try {
        const LinearForm problem = TypedLinearForm(worked.code, worked.typed);
        const std::string wrong = WrongInLines(worked, problem);
        return {false, wrong.empty() ? WrongInEnd(worked, problem) : wrong};
    } catch (const std::logic_error& unreadable) {
        return {false, "a line that is none of the notation"};
    }
}

}  // namespace numerello
