#pragma once

#include <vector>

#include "typeset/surface.h"

namespace numerello {

/// Texts drawn in columns, row by row from the top, in the order in which they were drawn but for
/// their heights. What lies a little lower than the highest text of a row still belongs to it: the
/// bracket of a division stands a little above its row.
std::vector<std::vector<TextMark>> RowsOfTexts(std::vector<TextMark> texts);

}  // namespace numerello
