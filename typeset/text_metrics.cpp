#include "typeset/text_metrics.h"

#include <algorithm>

#include "core/text.h"

namespace numerello {

namespace {

std::size_t CountCharacters(std::string_view text) {
    const bool plain = std::all_of(text.begin(), text.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return plain ? text.size() : Characters(text).size();
}

}  // namespace

double PlainMetrics::Width(std::string_view text, const Font& font) const {
    const auto blanks = static_cast<double>(std::count(text.begin(), text.end(), ' '));
    const double others = static_cast<double>(CountCharacters(text)) - blanks;
    return (blanks * kBlankPerPoint + others * kCharacterPerPoint) * font.size;
}

double PlainMetrics::LineHeight(const Font& font) const {
    return kLinePerPoint * font.size;
}

}  // namespace numerello
