#include "help/file_lines.h"

#include <algorithm>

namespace numerello {

std::vector<std::string_view> LinesOf(std::string_view file) {
    std::vector<std::string_view> lines;
    while (!file.empty()) {
        const std::size_t end = std::min(file.find('\n'), file.size());
        lines.push_back(file.substr(0, end));
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return lines;
}

}  // namespace numerello
