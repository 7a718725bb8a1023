#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/learner.h"
#include "core/problem.h"
#include "typeset/sheets.h"

/// The typesetter's entries, one family for each target. A ...Line draws a line below the last one
/// and never throws a Failure; what it cannot draw it tells the learner. The others draw a single
/// construct at the pen, get the text between its markers, and throw Failure(Format) for one that
/// cannot be drawn. The program calls the lines alone; the constructs are the names by which each
/// can be drawn, and tested, apart from a line.
namespace numerello {

/// On the worksheet's paper. LineEndX is 4 left of the text's end; it and LineEndY stay when the
/// line had to be given up for want of a sheet, and then no arrow is placed.
void FPrintLine(std::string_view Text, bool ShowBlinker, PaperSheets& sheets, Playback& playback,
                Learner& learner);
void FPrintRoot(std::string_view Body, PaperSheets& sheets);
void FPrintExponent(std::string_view Body, PaperSheets& sheets);
void FPrintFraction(std::string_view Body, PaperSheets& sheets);

/// In the explanation window: blue, never wrapped.
void ExplainLine(std::string_view Text, Surface& window, Learner& learner);
/// As above, from the text's characters. A piece of several is printed as it stands.
void ExplainLine(std::vector<std::string> Characters, Surface& window, Learner& learner);
void ExplainRoot(std::string_view Body, Surface& window);
void ExplainExponent(std::string_view Body, Surface& window);
void ExplainFraction(std::string_view Body, Surface& window);

/// On a print surface of 800 by 600, whose pages are its own.
void PrintLine(std::string_view Text, Surface& Target, bool Blue, Learner& learner);
void PrintRoot(std::string_view Body, Surface& Target, bool Blue);
void PrintExponent(std::string_view Body, Surface& Target);
void PrintFraction(std::string_view Body, Surface& Target, bool Blue);

/// On the pictures of the print preview. A turned picture is a surface of its own, black.
void PreviewLine(std::string_view Text, Sheets& Pages, bool Blue, Learner& learner);
void PreviewRoot(std::string_view Body, Sheets& Pages, bool Blue);
void PreviewExponent(std::string_view Body, Sheets& Pages);
void PreviewFraction(std::string_view Body, Sheets& Pages, bool Blue);

}  // namespace numerello
