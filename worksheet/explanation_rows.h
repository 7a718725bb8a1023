#pragma once

#include <string>
#include <vector>

#include "typeset/text_metrics.h"

namespace numerello {

/// The characters of one row, as the typesetter takes them.
using TextRow = std::vector<std::string>;

/// Cuts a text into rows that measure no more than `width`, at the last blank that lies before it;
/// the blanks at a cut are dropped. A word that is too long is cut by characters. A fraction, root
/// or exponent is never cut, however long.
///
/// Characters are measured as they are, marks included, but a fraction as so many "i" as its longer
/// part has characters, and a root's sign as three.
std::vector<TextRow> ExplanationRows(const std::vector<std::string>& characters, double width,
                                     const TextMetrics& metrics, const Font& font);

}  // namespace numerello
