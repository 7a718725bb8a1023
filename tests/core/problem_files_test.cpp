#include "core/problem_files.h"

#include "core/disk.h"
#include "temporary_folder.h"
#include "tests/learners.h"

namespace numerello {
namespace {

/// Chooses from a list and keeps what it was opened with.
class ChoosingDialog : public FileDialog {
  public:
    std::optional<std::string> Show(const FileDialogSettings& settings) override {
        shown.push_back(settings);
        if (choices.empty()) {
            return std::nullopt;
        }
        std::string choice = choices.front();
        choices.erase(choices.begin());
        return choice;
    }

    std::vector<std::string> choices;
    std::vector<FileDialogSettings> shown;
};

class ProblemFilesTest : public TemporaryFolder {
  protected:
    ProblemFilesTest() {
        problem.topic.TopicTitle = "Work = Rate * Time";
        problem.topic.ProblemType = 21;
        problem.boxes.Text[1] = "8";
    }

    std::string Saved(const std::string& name = "") const {
        return Path("Numerello/Saved Problems") + (name.empty() ? "" : "/" + name);
    }

    Problem problem;
    ChoosingDialog dialog;
    NotingLearner learner;
    FixedClock clock{0, {2026, 11, 20}};
};

constexpr const char* kLine =
    "Work = Rate * Time BB  BB  BB 8 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 21\n";

TEST_F(ProblemFilesTest, TheFolderIsMadeAtTheStart) {
    const ProblemFiles files(folder, dialog);
    EXPECT_TRUE(std::filesystem::is_directory(Saved()));
}

TEST_F(ProblemFilesTest, TheFolderIsMadeAgainBeforeADialog) {
    ProblemFiles files(folder, dialog);
    std::filesystem::remove_all(Path("Numerello"));
    files.LoadProblemFile("");
    EXPECT_EQ(dialog.shown.at(0).folder, Saved());
    EXPECT_TRUE(std::filesystem::is_directory(Saved()));
}

TEST_F(ProblemFilesTest, WhereTheFolderCannotBeMadeThatOfDocumentsWillDo) {
    Put(Path("Numerello"), "in the way");
    ProblemFiles files(folder, dialog);
    EXPECT_EQ(files.Folder(), folder);
}

TEST_F(ProblemFilesTest, TheSaveDialogIsSetAsDocumented) {
    ProblemFiles files(folder, dialog);
    EXPECT_FALSE(mnuSave_Click(problem, files, clock, learner));
    const FileDialogSettings& shown = dialog.shown.at(0);
    EXPECT_TRUE(shown.saves);
    EXPECT_EQ(shown.title, "Save Problem As");
    EXPECT_EQ(shown.filter, "Numerello files (.nrl)|*.nrl");
    EXPECT_EQ(shown.defaultExtension, "nrl");
    EXPECT_EQ(shown.folder, Saved());
    EXPECT_EQ(shown.suggestedName, "Work = Rate x Time 11-20-26");
}

TEST_F(ProblemFilesTest, TheLoadDialogIsSetAsDocumented) {
    ProblemFiles files(folder, dialog);
    EXPECT_EQ(files.LoadProblemFile(""), "");
    const FileDialogSettings& shown = dialog.shown.at(0);
    EXPECT_FALSE(shown.saves);
    EXPECT_EQ(shown.title, "Load Problem");
    EXPECT_EQ(shown.filter, "Numerello files (.nrl)|*.nrl");
    EXPECT_EQ(shown.defaultExtension, "nrl");
    EXPECT_EQ(shown.folder, Saved());
    EXPECT_EQ(shown.suggestedName, "");
}

TEST_F(ProblemFilesTest, SavingWritesTheLineAndItsEnd) {
    ProblemFiles files(folder, dialog);
    dialog.choices = {Saved("a.nrl")};
    EXPECT_TRUE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(ContentOf(Saved("a.nrl")), kLine);
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(ProblemFilesTest, CancelSavesNothingAndSaysNothing) {
    ProblemFiles files(folder, dialog);
    EXPECT_FALSE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_TRUE(learner.messages.empty());
    EXPECT_TRUE(std::filesystem::is_empty(Saved()));
}

TEST_F(ProblemFilesTest, ANameWithoutTheExtensionGetsIt) {
    ProblemFiles files(folder, dialog);
    dialog.choices = {Saved("mine"), Saved("Test 21.11.26"), Saved("LOUD.NRL"), Saved("nrl"),
                      Path("Numerello/with.point/mine")};
    for (const char* name : {"mine.nrl", "Test 21.11.26.nrl", "LOUD.NRL", "nrl.nrl"}) {
        EXPECT_TRUE(mnuSave_Click(problem, files, clock, learner));
        EXPECT_EQ(ContentOf(Saved(name)), kLine) << name;
    }
    std::filesystem::create_directory(Path("Numerello/with.point"));
    EXPECT_TRUE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(ContentOf(Path("Numerello/with.point/mine.nrl")), kLine);
}

TEST_F(ProblemFilesTest, ANameThatBecomesThatOfAFileIsAskedAboutOnceMore) {
    ProblemFiles files(folder, dialog);
    Put(Saved("mine.nrl"), "old");
    dialog.choices = {Saved("mine")};
    EXPECT_FALSE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(ContentOf(Saved("mine.nrl")), "old");
    EXPECT_EQ(dialog.shown.at(1).suggestedName, "mine.nrl");
    EXPECT_EQ(dialog.shown.at(1).folder, Saved());

    dialog.choices = {Saved("mine"), Saved("mine.nrl")};
    EXPECT_TRUE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(ContentOf(Saved("mine.nrl")), kLine);

    Put(Saved("21.11.26.nrl"), "old");
    dialog.choices = {Saved("21.11.26")};
    EXPECT_FALSE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(ContentOf(Saved("21.11.26.nrl")), "old");
}

TEST_F(ProblemFilesTest, AFileThatCannotBeWrittenIsTold) {
    ProblemFiles files(folder, dialog);
    dialog.choices = {Path("none/a.nrl")};
    EXPECT_FALSE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(learner.messages, std::vector<std::string>{"The problem could not be saved."});
    EXPECT_FALSE(std::filesystem::exists(Path("none")));
}

TEST_F(ProblemFilesTest, TheNextDialogOpensWhereTheLastOneEnded) {
    ProblemFiles files(folder, dialog);
    dialog.choices = {Path("a.nrl")};
    EXPECT_TRUE(mnuSave_Click(problem, files, clock, learner));
    EXPECT_EQ(files.Folder(), folder);
    mnuSave_Click(problem, files, clock, learner);
    EXPECT_EQ(dialog.shown.at(1).folder, folder);
}

TEST_F(ProblemFilesTest, AFolderThatIsGoneIsNotOpenedAgain) {
    ProblemFiles files(folder, dialog);
    std::filesystem::create_directory(Path("gone"));
    dialog.choices = {Path("gone/a.nrl")};
    EXPECT_TRUE(mnuSave_Click(problem, files, clock, learner));
    std::filesystem::remove_all(Path("gone"));
    EXPECT_EQ(files.Folder(), Saved());
}

TEST_F(ProblemFilesTest, LoadingReadsTheWholeFile) {
    ProblemFiles files(folder, dialog);
    Put(Path("a.nrl"), "two\r\nlines\n");
    dialog.choices = {Path("a.nrl")};
    EXPECT_EQ(files.LoadProblemFile(""), "two\r\nlines\n");
}

TEST_F(ProblemFilesTest, ANamedFileIsReadWithoutADialog) {
    ProblemFiles files(folder, dialog);
    Put(Path("my problem.nrl"), "text");
    EXPECT_EQ(files.LoadProblemFile("\"" + Path("my problem.nrl") + "\""), "text");
    EXPECT_EQ(files.LoadProblemFile("file://" + Path("my%20problem.nrl")), "text");
    EXPECT_TRUE(dialog.shown.empty());
}

TEST_F(ProblemFilesTest, OnlyWithoutANameIsTheLearnerAsked) {
    ProblemFiles files(folder, dialog);
    EXPECT_EQ(files.LoadProblemFile("  "), "");
    EXPECT_EQ(dialog.shown.size(), 1U);
    EXPECT_THROW(files.LoadProblemFile("\"\""), FileError);
    EXPECT_EQ(dialog.shown.size(), 1U);
}

TEST_F(ProblemFilesTest, AFileThatCannotBeUsedThrows) {
    ProblemFiles files(folder, dialog);
    EXPECT_THROW(files.LoadProblemFile(Path("none.nrl")), FileError);
    EXPECT_THROW(files.LoadProblemFile(folder), FileError);
    Put(Path("empty.nrl"), "");
    EXPECT_THROW(files.LoadProblemFile(Path("empty.nrl")), FileError);
}

TEST_F(ProblemFilesTest, AtMostAMebibyteIsRead) {
    ProblemFiles files(folder, dialog);
    Put(Path("a.nrl"), std::string(1048576, 'a'));
    EXPECT_EQ(files.LoadProblemFile(Path("a.nrl")).size(), 1048576U);
    Put(Path("a.nrl"), std::string(1048577, 'a'));
    EXPECT_THROW(files.LoadProblemFile(Path("a.nrl")), FileError);
}

}  // namespace
}  // namespace numerello
