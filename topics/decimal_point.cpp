#include "topics/decimal_point.h"

#include "core/number.h"

namespace numerello {

namespace {

/// The digits of a number without zeros around them, and how many of them stand before the point:
/// 0.05 has the digit 5 and -1 before the point.
struct Digits {
    std::string sign;
    std::string digits;
    int beforePoint = 0;
};

Digits DigitsOf(double value) {
    Digits result;
    std::string text = NumberText(value);
    if (text.starts_with('-')) {
        result.sign = "-";
        text.erase(0, 1);
    }
    int exponent = 0;
    if (const std::size_t mark = text.find('E'); mark != std::string::npos) {
        exponent = static_cast<int>(ToNumber(text.substr(mark + 1)));
        text.erase(mark);
    }
    const std::size_t point = text.find('.');
    result.beforePoint =
        exponent + static_cast<int>(point == std::string::npos ? text.size() : point);
    if (point != std::string::npos) {
        text.erase(point, 1);
    }
    while (text.size() > 1 && text.starts_with('0')) {
        text.erase(0, 1);
        --result.beforePoint;
    }
    while (text.size() > 1 && text.ends_with('0')) {
        text.pop_back();
    }
    result.digits = text;
    return result;
}

}  // namespace

MovedPoint MoveToWhole(double value) {
    const Digits number = DigitsOf(value);
    const int behindPoint = static_cast<int>(number.digits.size()) - number.beforePoint;
    if (behindPoint <= 0) {
        return {NumberText(value), 0};
    }
    return {number.sign + number.digits, behindPoint};
}

MovedPoint MoveBehindFirstDigit(double value) {
    if (value == 0) {
        return {"0", 0};
    }
    const Digits number = DigitsOf(value);
    std::string text = number.sign + number.digits.substr(0, 1);
    if (number.digits.size() > 1) {
        text += "." + number.digits.substr(1);
    }
    return {text, 1 - number.beforePoint};
}

}  // namespace numerello
