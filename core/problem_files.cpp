#include "core/problem_files.h"

#include <algorithm>
#include <utility>

#include "core/problem_file.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr std::string_view kFolder = "/Numerello/Saved Problems";
constexpr std::string_view kFilter = "Numerello files (.nrl)|*.nrl";
constexpr std::string_view kExtension = "nrl";
constexpr std::string_view kSaveTitle = "Save Problem As";
constexpr std::string_view kLoadTitle = "Load Problem";

}  // namespace

bool HasExtension(std::string_view path, std::string_view extension) {
    const std::string end = Text(".", extension);
    return path.size() >= end.size() &&
           std::equal(end.rbegin(), end.rend(), path.rbegin(),
                      [](char one, char other) { return LowerCase(one) == LowerCase(other); });
}

ProblemFiles::ProblemFiles(std::string documents, FileDialog& dialog)
    : documents(std::move(documents)), dialog(dialog) {
    Folder();
}

bool ProblemFiles::SaveProblemFile(std::string_view line, std::string_view suggestedName) {
    FileDialogSettings settings{true,       kSaveTitle, kFilter,
                                kExtension, Folder(),   std::string(suggestedName)};
    for (;;) {
        const std::optional<std::string> chosen = Ask(settings);
        if (!chosen) {
            return false;
        }
        const std::string path =
            HasExtension(*chosen, kExtension) ? *chosen : Text(*chosen, ".", kExtension);
        if (path == *chosen || !Exists(path)) {
            WriteFile(path, Text(line, "\n"));
            return true;
        }
        // The learner has not been asked about overwriting this one.
        settings.folder = FolderOf(path);
        settings.suggestedName = FileName(path);
    }
}

std::string ProblemFiles::LoadProblemFile(std::string_view StartFile) {
    std::string path = StartFilePath(StartFile);
    if (Trimmed(StartFile).empty()) {
        const auto chosen = Ask({false, kLoadTitle, kFilter, kExtension, Folder(), ""});
        if (!chosen) {
            return "";
        }
        path = *chosen;
    }
    std::string text = ReadFile(path, kLongestProblemFile);
    if (text.empty()) {
        throw FileError("is empty");
    }
    return text;
}

std::string ProblemFiles::Folder() {
    if (!lastFolder.empty() && Exists(lastFolder)) {
        return lastFolder;
    }
    const std::string saved = Text(documents, kFolder);
    return MakeFolder(saved) ? saved : documents;
}

std::optional<std::string> ProblemFiles::Ask(const FileDialogSettings& settings) {
    std::optional<std::string> chosen = dialog.Show(settings);
    if (chosen) {
        lastFolder = FolderOf(*chosen);
    }
    return chosen;
}

bool mnuSave_Click(const Problem& problem, ProblemFiles& files, const Clock& clock,
                   Learner& learner) {
    try {
        return files.SaveProblemFile(ProblemLine(problem),
                                     SuggestedName(problem.topic.TopicTitle, clock.Today()));
    } catch (const FileError&) {
        learner.MessageBox("", "The problem could not be saved.");
        return false;
    }
}

}  // namespace numerello
