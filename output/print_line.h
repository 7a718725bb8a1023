#pragma once

#include <string_view>

#include "core/learner.h"
#include "typeset/sheets.h"

namespace numerello {

/// PrintLine and PreviewLine, for lines of any content. Those turn a page only before a plain
/// character; a line that begins with a fraction, a root or an exponent below the page's last row
/// is begun on the next page instead, or it would be torn or run off the paper.
void PrintWholeLine(std::string_view Text, Surface& Printer, bool Blue, Learner& learner);
void PreviewWholeLine(std::string_view Text, Sheets& Pages, bool Blue, Learner& learner);

/// Moves the pen down where a line with a fraction is to follow right below another one: else the
/// numerators would touch the denominators above them.
void PartFractions(std::string_view above, std::string_view below, Surface& page);

}  // namespace numerello
