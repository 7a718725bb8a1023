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

Mark ReadMark(const Json& mark) {
    const auto number = [](const Json& value) { return value.get<double>(); };
    const auto color = mark.at("color").get<Color>();
    if (mark.contains("text")) {
        return TextMark{mark.at("text").get<std::string>(),
                        number(mark.at("x")),
                        number(mark.at("y")),
                        {std::string(kSheetFace), number(mark.at("size"))},
                        color};
    }
    const Json& line = mark.at("line");
    return StrokeMark{number(line.at(0)), number(line.at(1)),       number(line.at(2)),
                      number(line.at(3)), number(mark.at("width")), color};
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

std::vector<Mark> ReadMarks(const Json& marks) {
    std::vector<Mark> read;
    for (const Json& mark : marks) {
        if (!mark.is_null()) {
            read.push_back(ReadMark(mark));
        }
    }
    return read;
}

}  // namespace numerello
