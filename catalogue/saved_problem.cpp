#include "catalogue/saved_problem.h"

#include <algorithm>
#include <optional>

#include "catalogue/entry_text.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr std::size_t kMostKeys = 10 * static_cast<std::size_t>(kLongestLine);

/// Nothing when the learner cancels.
std::optional<SavedProblem> Read(std::string_view StartFile, ProblemFiles& files) {
    const std::string text = files.LoadProblemFile(StartFile);
    return text.empty() ? std::nullopt : std::optional(ReadSavedProblem(text));
}

}  // namespace

SavedProblem ReadSavedProblem(std::string_view text) {
    SavedProblem saved = ReadProblemLine(text);
    if (FindTopic(saved.TopicTitle) == nullptr) {
        throw FileError("names no topic of the catalogue");
    }
    return saved;
}

void ChooseSavedTopic(const SavedProblem& saved, TopicChoice& topic, const Clock& clock,
                      RandomSource& random) {
    topic.ClickedOnly = true;
    topic.ProblemType = saved.ProblemType;
    TreeViewSelect(saved.TopicTitle, topic, clock, random);
}

EntryBoxes SavedBoxes(const SavedProblem& saved, int ProblemType) {
    EntryBoxes boxes;
    const EntryLayout* layout = FindEntryLayout(ProblemType);
    if (layout == nullptr) {
        return boxes;
    }
    for (const EntryBoxLayout& box : layout->boxes) {
        boxes.Box(box.number) = saved.boxes.Box(box.number);
    }
    for (const EntryListRows& list : ListsOf(ProblemType)) {
        const int row = saved.boxes.List(list.number);
        const bool isThere = row >= 0 && row < static_cast<int>(list.rows.size());
        boxes.List(list.number) = isThere ? row : EntryBoxes::kNoChoice;
    }
    return boxes;
}

std::vector<std::string> SavedKeys(const SavedProblem& saved) {
    std::vector<std::string> keys = Characters(saved.typed);
    keys.erase(std::remove(keys.begin(), keys.end(), kBackspace), keys.end());
    keys.resize(std::min(keys.size(), kMostKeys));
    return keys;
}

void LoadSavedProblem(const SavedProblem& saved, Problem& problem, LoadingForm& form,
                      const Clock& clock, RandomSource& random) {
    ResetProblem(problem, true);
    ChooseSavedTopic(saved, problem.topic, clock, random);
    form.Open();
    EnterAndSolve({SavedKeys(saved), SavedBoxes(saved, problem.topic.ProblemType)}, problem, form);
}

bool mnuLoad_Click(std::string_view StartFile, ProblemFiles& files, Problem& problem,
                   LoadingForm& form, const Clock& clock, RandomSource& random) {
    try {
        // Looked at as a whole before anything is erased: what stands on the sheet is not lost to a
        // file that is none.
        const std::optional<SavedProblem> saved = Read(StartFile, files);
        if (saved) {
            LoadSavedProblem(*saved, problem, form, clock, random);
        }
        return saved.has_value();
    } catch (const FileError&) {
        form.TellStatus("The problem file could not be read.");
        return false;
    }
}

}  // namespace numerello
