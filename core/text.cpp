#include "core/text.h"

#include <algorithm>

namespace numerello {

namespace {

std::size_t CharacterLength(std::string_view rest) {
    const auto lead = static_cast<unsigned char>(rest.front());
    const std::size_t length = lead < 0xC2   ? 1
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 1;
    if (length > rest.size()) {
        return 1;
    }
    const bool whole =
        std::all_of(rest.begin() + 1, rest.begin() + static_cast<long>(length),
                    [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; });
    return whole ? length : 1;
}

}  // namespace

std::vector<std::string> Characters(std::string_view text) {
    std::vector<std::string> characters;
    characters.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        characters.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return characters;
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
    std::string replaced;
    std::size_t start = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos;
         at = text.find(from, start)) {
        replaced.append(text.substr(start, at - start)).append(to);
        start = at + from.size();
    }
    return replaced.append(text.substr(start));
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& character : lower) {
        character = LowerCase(character);
    }
    return lower;
}

}  // namespace numerello
