#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/learner.h"
#include "core/problem.h"

namespace numerello {

/// What a file dialog opens with.
struct FileDialogSettings {
    /// A save dialog wants a folder that exists and asks before a file is overwritten; the other
    /// one wants a file that exists. Neither speaks of read-only files.
    bool saves = false;
    std::string_view title;
    std::string_view filter;            ///< its name and, behind a "|", the pattern
    std::string_view defaultExtension;  ///< for a saved name that does not end in it
    std::string folder;
    std::string suggestedName;
};

class FileDialog {
  public:
    virtual ~FileDialog() = default;

    /// The path chosen, nothing when the learner cancels.
    virtual std::optional<std::string> Show(const FileDialogSettings& settings) = 0;
};

/// Whether a path ends in a point and the extension, in whatever case.
bool HasExtension(std::string_view path, std::string_view extension);

/// Saving and loading the texts of problem files. Knows in which folder the next dialog opens: that
/// of saved problems, which is made when it is missing, or the folder used last.
class ProblemFiles {
  public:
    /// `documents` is the learner's folder of documents, `dialog` has to outlive this. Makes the
    /// folder of saved problems.
    ProblemFiles(std::string documents, FileDialog& dialog);

    /// Writes the line to the file that the learner chooses. True after writing, false when the
    /// learner cancels; throws FileError when it cannot be written.
    bool SaveProblemFile(std::string_view line, std::string_view suggestedName);

    /// The text of the file that `StartFile` names; without one, of the file that the learner
    /// chooses. Empty when the learner cancels; throws FileError when it cannot be read or is
    /// empty.
    std::string LoadProblemFile(std::string_view StartFile);

    /// Where the next dialog opens.
    std::string Folder();

  private:
    std::optional<std::string> Ask(const FileDialogSettings& settings);

    std::string documents;
    std::string lastFolder;
    FileDialog& dialog;
};

/// Save Problem. A file that cannot be written is told the learner. True after writing.
bool mnuSave_Click(const Problem& problem, ProblemFiles& files, const Clock& clock,
                   Learner& learner);

}  // namespace numerello
