#include "log_numbers.h"

#include "core/text.h"

namespace numerello {

namespace {

bool HoldsDecimals(const SolvedProblem& worked) {
    return worked.typed.find('.') != std::string::npos;
}

}  // namespace

std::vector<std::string> NumbersOf(std::string_view line, Place place) {
    std::vector<std::string> numbers;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const std::size_t begin = at;
        while (at < line.size() && (IsDigit(line[at]) || line[at] == '.')) {
            ++at;
        }
        const bool wanted = place == Place::Anywhere || (begin > 0 && (line[begin - 1] == '/'));
        if (at > begin && wanted) {
            numbers.emplace_back(line.substr(begin, at - begin));
        }
    }
    return numbers;
}

long long GreatestIn(const SolvedProblem& worked, Place place) {
    long long greatest = 1;
    for (const std::string& line : worked.lines) {
        for (std::string number : NumbersOf(line, place)) {
            std::erase(number, '.');
            constexpr std::size_t kManyDigits = 12;
            greatest = std::max(greatest,
                                number.size() > kManyDigits ? kSinglesLimit : std::stoll(number));
        }
    }
    return greatest;
}

bool IsBeyondSingles(const SolvedProblem& worked) {
    const long long greatest = GreatestIn(worked, Place::Anywhere);
    const long long denominator = GreatestIn(worked, Place::Denominator);
    if (greatest >= kSinglesLimit || greatest * denominator >= kSinglesLimit) {
        return true;
    }
    // Decimal numbers become fractions by trying denominators, whose products are singles too.
    return HoldsDecimals(worked) && greatest * greatest >= kSinglesLimit;
}

}  // namespace numerello
