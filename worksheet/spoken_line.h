#pragma once

#include <string>
#include <string_view>

namespace numerello {

/// A line of math text as it is read aloud: "#1/2#+x^2^" is "one half plus x squared". Colours are
/// left out. Sentences keep their words and punctuation. A mark without partner reads what follows
/// it as it stands.
std::string SpokenLine(std::string_view line);

/// Whether the line is a sentence rather than mathematics alone. Three letters side by side make a
/// word; mathematics has single letters.
bool HasWords(std::string_view line);

}  // namespace numerello
