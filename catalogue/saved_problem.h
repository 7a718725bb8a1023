#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/entering.h"
#include "core/clock.h"
#include "core/problem_file.h"
#include "core/problem_files.h"
#include "core/random_source.h"

/// Putting a saved problem back on the entry form.
namespace numerello {

/// The fields of a problem file's text, if they can be loaded. Throws FileError, as ReadProblemLine
/// does, and also when no topic has the caption.
SavedProblem ReadSavedProblem(std::string_view text);

/// Chooses the topic of the caption, whatever the saved code; an unknown caption leaves code 0.
void ChooseSavedTopic(const SavedProblem& saved, TopicChoice& topic, const Clock& clock,
                      RandomSource& random);

/// Boxes and lists as the form of this topic shows them with what was saved: boxes as they stand,
/// lists without a choice where the saved row is none of theirs. What the form does not show stays
/// as it opens.
EntryBoxes SavedBoxes(const SavedProblem& saved, int ProblemType);

/// The keys that type the saved line, one string each; some may be refused. A Backspace is no key
/// of a line, and a damaged file holds no more keys than anybody would type.
std::vector<std::string> SavedKeys(const SavedProblem& saved);

/// The entry form while a problem is loaded into it.
class LoadingForm : public FillingForm {
  public:
    /// Unloads the form that stands, and loads and shows that of the chosen topic, erased.
    virtual void Open() = 0;

    /// A short word to the learner that needs no answer.
    virtual void TellStatus(std::string_view text) = 0;
};

/// Enters a problem that can be loaded in place of the present one, and solves it if it is ready.
void LoadSavedProblem(const SavedProblem& saved, Problem& problem, LoadingForm& form,
                      const Clock& clock, RandomSource& random);

/// Load Problem: the file that `StartFile` names, or without one the learner's choice. True after
/// loading. A file that cannot be used changes nothing.
bool mnuLoad_Click(std::string_view StartFile, ProblemFiles& files, Problem& problem,
                   LoadingForm& form, const Clock& clock, RandomSource& random);

}  // namespace numerello
