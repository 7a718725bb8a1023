#include "cli/mark_fields.h"

#include <cmath>

namespace numerello {

namespace {

Json Fields(const TextMark& mark) {
    return {{"text", mark.text},
            {"x", Rounded(mark.x)},
            {"y", Rounded(mark.y)},
            {"size", Rounded(mark.font.size)},
            {"color", mark.color}};
}

Json Fields(const StrokeMark& mark) {
    return {{"line", {Rounded(mark.x1), Rounded(mark.y1), Rounded(mark.x2), Rounded(mark.y2)}},
            {"width", Rounded(mark.width)},
            {"color", mark.color}};
}

Json Fields(const ImageMark& /*mark*/) {
    return nullptr;
}

}  // namespace

Json JsonNumber(double value) {
    constexpr double kWholeLimit = 1e15;
    const bool whole = value == std::floor(value) && std::fabs(value) < kWholeLimit;
    return whole ? Json(static_cast<long>(value)) : Json(value);
}

Json Rounded(double value) {
    return JsonNumber(std::round(value * 1000) / 1000);
}

Json MarkFields(const Mark& mark) {
    return std::visit([](const auto& each) { return Fields(each); }, mark);
}

Json MarksOf(const Surface& surface) {
    Json marks = Json::array();
    for (const Mark& mark : surface.Marks()) {
        marks.push_back(MarkFields(mark));
    }
    return marks;
}

}  // namespace numerello
