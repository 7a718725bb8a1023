#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "typeset/surface.h"

namespace numerello {

/// The three free lines over whatever is printed.
using HeadingLines = std::array<std::string, 3>;

/// What stands there until somebody changes it: the program, the subject and the date.
HeadingLines HeadingAtOpening(std::string_view subject, const Date& today);

/// "11/21/2026".
std::string DateText(const Date& date);

/// Whether the line has characters that the sheets' face would draw as parts of mathematics. These
/// are printed in the face of the reasons.
bool NeedsOtherFace(std::string_view line);

/// Three empty lines and the heading's, in the size of the surface. A line too long for the paper
/// is set smaller.
void PrintHeading(const HeadingLines& heading, Surface& Printer);

/// Ends an empty line.
void PrintEmptyLine(Surface& Printer);

}  // namespace numerello
