#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace numerello {

/// The words of a page without its marks: what the search looks through. Pictures count by what
/// they are read as.
std::string PlainText(std::string_view html);

/// What the first <h1> of a page says, as plain text; empty when there is none.
std::string TitleOf(std::string_view html);

/// Where the links of a page lead: the values of its href, in order.
std::vector<std::string> LinksOf(std::string_view html);

}  // namespace numerello
