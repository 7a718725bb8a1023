#pragma once

#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/disk.h"
#include "core/problem.h"

/// A problem file is one line of twelve fields: what was entered, none of the working.
namespace numerello {

/// A longer file is no problem file.
inline constexpr std::size_t kLongestProblemFile = 1048576;

/// The fields of a problem file. Nothing is known yet of the topic and of what it allows.
struct SavedProblem {
    std::string TopicTitle;
    std::string typed;  ///< the problem as typed on the line
    EntryBoxes boxes;
    int ProblemType = 0;
};

/// The line that a problem is saved as, without its end.
std::string ProblemLine(const Problem& problem);

/// The fields of a file's whole text. A byte order mark is skipped, what follows the twelfth field
/// is not looked at, and bytes that are no character become the replacement character. Throws
/// FileError for a text of fewer than twelve fields or whose last one does not begin with a number.
SavedProblem ReadProblemLine(std::string_view text);

/// The name to suggest for a problem's file, without an extension: "Addition 03-09-26".
std::string SuggestedName(std::string_view TopicTitle, const Date& today);

/// The path that a command line names, its arguments joined by blanks: without blanks around it and
/// without double quotes; a "file:" URL becomes the path that it stands for.
std::string StartFilePath(std::string_view StartFile);

}  // namespace numerello
