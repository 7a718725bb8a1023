#include "catalogue/saved_problem.h"

#include <gtest/gtest.h>

#include "catalogue/topics.h"
#include "core/erasing.h"
#include "core/text.h"
#include "tests/core/temporary_folder.h"
#include "typing.h"

namespace numerello {
namespace {

/// A form that does what the window's does, without showing it, and keeps what it was asked.
class PlainForm : public LoadingForm {
  public:
    explicit PlainForm(Problem& problem) : problem(problem) {}

    void Open() override {
        Stage stage;
        EraseProblem(problem, stage);
        calls.emplace_back("open");
    }
    void ShowEntry() override { calls.emplace_back("entry"); }
    void Form_KeyPress(std::string_view key) override {
        numerello::Form_KeyPress(problem, key);
        calls.emplace_back(key);
    }
    void compute_Click() override { calls.emplace_back("solve"); }
    void TellStatus(std::string_view text) override { calls.emplace_back(text); }

    std::vector<std::string> calls;

  private:
    Problem& problem;
};

using Calls = std::vector<std::string>;

class SavedProblemTest : public TemporaryFolder, public FileDialog {
  protected:
    std::optional<std::string> Show(const FileDialogSettings&) override { return chosen; }

    void Load(const std::string& text) {
        LoadSavedProblem(ReadSavedProblem(text), problem, form, clock, random);
    }

    std::string File(const std::string& text) {
        Put(Path("a.nrl"), text);
        return Path("a.nrl");
    }

    Problem problem;
    PlainForm form{problem};
    FixedClock clock{0};
    MersenneSource random;
    std::optional<std::string> chosen;
};

std::string LineOf(std::string_view caption, std::string_view typed, int code) {
    return Text(caption, " BB ", typed, " BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB ",
                std::to_string(code), "\n");
}

TEST_F(SavedProblemTest, ALineIsRetypedKeyByKeyAndSolved) {
    Load(LineOf("Arithmetic", "4+3", 91));
    EXPECT_EQ(form.calls, (Calls{"open", "entry", "4", "+", "3", "solve"}));
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
    EXPECT_EQ(problem.topic.ProblemType, 91);
    EXPECT_EQ(problem.topic.LastProblemType, 91);
    EXPECT_EQ(problem.topic.TopicTitle, "Arithmetic");
    EXPECT_TRUE(problem.topic.ClickedOnly);
    EXPECT_FALSE(problem.topic.ChooserCancelled);
}

TEST_F(SavedProblemTest, RefusedCharactersAreDroppedAndTheRestIsSolved) {
    Load(LineOf("Arithmetic", "x4)++\xFF\n3", 91));
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
    EXPECT_EQ(form.calls.back(), "solve");
}

TEST_F(SavedProblemTest, CapitalLettersBecomeSmall) {
    Load(LineOf("Solving Equations", "X+2=5", 101));
    EXPECT_EQ(problem.typed.ProblemText, "x+2=5");
}

TEST_F(SavedProblemTest, ABackspaceInTheLineTakesNothingBack) {
    Load(LineOf("Arithmetic", "4\b+\b\b3", 91));
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
}

TEST_F(SavedProblemTest, AnEmptyLineIsNotSolved) {
    Load(LineOf("Arithmetic", "", 91));
    EXPECT_EQ(form.calls, (Calls{"open", "entry"}));
    EXPECT_FALSE(problem.controls.SolveEnabled);
}

TEST_F(SavedProblemTest, WhatALongLineHasNoRoomForIsDropped) {
    std::string line = "1";
    while (line.size() < 600) {
        line += "+1";
    }
    Load(LineOf("Arithmetic", line, 91));
    EXPECT_EQ(problem.typed.ProblemText, line.substr(0, 480));
    EXPECT_EQ(form.calls.back(), "solve");
}

TEST_F(SavedProblemTest, AHugeLineIsNotTypedToItsEnd) {
    Load(LineOf("Arithmetic", std::string(1000000, ')'), 91));
    EXPECT_EQ(form.calls.size(), 2U + 4800U);
    EXPECT_EQ(problem.typed.ProblemText, "");
}

TEST_F(SavedProblemTest, BoxesStandAsTheyWereSaved) {
    Load("Proportions BB  BB 1234567890123 BB 2 BB 4.12 BB  BB  BB  BB -1 BB -1 BB 0 BB 20");
    EXPECT_EQ(problem.boxes.Text,
              (std::array<std::string, 6>{"1234567890123", "2", "4.12", "", "", ""}));
    EXPECT_EQ(form.calls, (Calls{"open", "entry", "solve"}));
}

TEST_F(SavedProblemTest, BoxesThatAreNotReadyStayUnsolved) {
    Load("Proportions BB  BB 1 BB zwei BB 3 BB  BB  BB  BB -1 BB -1 BB 0 BB 20");
    EXPECT_EQ(problem.boxes.Text[1], "zwei");
    EXPECT_EQ(form.calls, (Calls{"open", "entry"}));
}

TEST_F(SavedProblemTest, WhatTheFormDoesNotShowIsSkipped) {
    Load("Addition BB 4+3 BB 1 BB 2 BB 3 BB 4 BB 5 BB 6 BB 1 BB 2 BB 3 BB 200");
    EXPECT_EQ(problem.boxes.Text, (std::array<std::string, 6>{"1", "2", "", "", "", ""}));
    EXPECT_EQ(problem.boxes.ListIndex, (std::array<int, 3>{-1, -1, 0}));
    EXPECT_EQ(problem.typed.ProblemText, "");
    EXPECT_EQ(form.calls, (Calls{"open", "entry", "solve"}));

    Load("Arithmetic BB 4 BB 1 BB 2 BB 3 BB 4 BB 5 BB 6 BB 1 BB 2 BB 3 BB 91");
    EXPECT_EQ(problem.boxes.Text, (std::array<std::string, 6>{}));
    EXPECT_EQ(problem.boxes.ListIndex, (std::array<int, 3>{-1, -1, 0}));
}

std::string Meters(std::string_view lists) {
    return Text("Meter Conversions BB  BB  BB  BB  BB 5 BB  BB  BB ", lists, " BB 23");
}

TEST_F(SavedProblemTest, UnitListsTakeTheirSavedRows) {
    Load(Meters("0 BB 6 BB 3"));
    EXPECT_EQ(problem.boxes.ListIndex, (std::array<int, 3>{0, 6, 0}));
    EXPECT_EQ(form.calls.back(), "solve");
}

TEST_F(SavedProblemTest, ARowOutsideTheListIsNoChoice) {
    for (const char* lists : {"7 BB 6 BB 0", "-2 BB 6 BB 0", " BB 6 BB 0", "x BB 6 BB 0"}) {
        form.calls.clear();
        Load(Meters(lists));
        EXPECT_EQ(problem.boxes.ListIndex, (std::array<int, 3>{-1, 6, 0})) << lists;
        EXPECT_EQ(form.calls.back(), "entry");
    }
}

std::string Rounding(std::string_view row) {
    return Text("Rounding BB 1250.5 BB  BB  BB  BB  BB  BB  BB 4 BB 4 BB ", row, " BB 98");
}

TEST_F(SavedProblemTest, ThePlaceToRoundToIsTheThirdList) {
    const auto rowAfter = [&](std::string_view row) {
        Load(Rounding(row));
        EXPECT_EQ(problem.boxes.ListIndex[0], -1);
        EXPECT_EQ(problem.boxes.ListIndex[1], -1);
        EXPECT_EQ(form.calls.back(), "solve");
        return problem.boxes.ListIndex[2];
    };
    EXPECT_EQ(rowAfter("0"), 0);
    EXPECT_EQ(rowAfter("6"), 6);
    EXPECT_EQ(rowAfter("7"), -1);
    EXPECT_EQ(rowAfter("-1"), -1);
    EXPECT_EQ(rowAfter("?"), -1);
}

TEST_F(SavedProblemTest, TheCaptionWinsOverTheCode) {
    Load(LineOf("Arithmetic", "4+3", 200));
    EXPECT_EQ(problem.topic.ProblemType, 91);
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
}

TEST_F(SavedProblemTest, TheHiddenCaptionsLoadUnderTheirOwnNames) {
    ASSERT_EQ(HiddenTopics().size(), 8U);
    for (const Topic& topic : HiddenTopics()) {
        Load(LineOf(topic.caption, "", topic.code));
        EXPECT_EQ(problem.topic.TopicTitle, topic.caption);
        EXPECT_EQ(problem.topic.ProblemType, topic.code);
    }
    Load(LineOf("Means", "3,4", 62));
    EXPECT_EQ(problem.topic.TopicTitle, "Means");
    EXPECT_EQ(problem.topic.ProblemType, 62);
    EXPECT_EQ(problem.typed.ProblemText, "3,4");
}

TEST_F(SavedProblemTest, AnUnknownCaptionLosesTheSavedCode) {
    for (const std::string caption : {"Algebra", "", "arithmetic", "Arithmetic ", " Arithmetic"}) {
        const std::string line = LineOf(caption, "4+3", 91);
        const SavedProblem saved = ReadProblemLine(line);
        EXPECT_EQ(saved.ProblemType, 91);
        ChooseSavedTopic(saved, problem.topic, clock, random);
        EXPECT_EQ(problem.topic.ProblemType, 0) << caption;
        EXPECT_THROW(ReadSavedProblem(line), FileError) << caption;
    }
    for (const Folder& folder : Folders()) {
        EXPECT_THROW(ReadSavedProblem(LineOf(folder.caption, "4+3", 91)), FileError)
            << folder.caption;
    }
}

TEST_F(SavedProblemTest, NothingOfTheLastProblemIsLeft) {
    problem = Typed("Solving Equations", "x+2=5");
    problem.boxes.Text[3] = "7";
    problem.log.Write("x+2=5", "note");
    Load(LineOf("Arithmetic", "4", 91));
    EXPECT_EQ(problem.typed.ProblemText, "4");
    EXPECT_EQ(problem.boxes.Text[3], "");
    EXPECT_EQ(problem.log.StepCount, 1);
    EXPECT_EQ(problem.typed.VarNames[1], "");
}

TEST_F(SavedProblemTest, LoadProblemGoesByTheChosenFile) {
    ProblemFiles files(folder, *this);
    chosen = File(LineOf("Arithmetic", "4+3", 91));
    EXPECT_TRUE(mnuLoad_Click("", files, problem, form, clock, random));
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
}

TEST_F(SavedProblemTest, LoadProblemGoesByTheNamedFile) {
    ProblemFiles files(folder, *this);
    const std::string path = File(LineOf("Arithmetic", "4+3", 91));
    EXPECT_TRUE(mnuLoad_Click("\"" + path + "\"", files, problem, form, clock, random));
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
}

TEST_F(SavedProblemTest, CancelLoadsNothingInSilence) {
    ProblemFiles files(folder, *this);
    problem = Typed("Arithmetic", "4+3");
    EXPECT_FALSE(mnuLoad_Click("", files, problem, form, clock, random));
    EXPECT_TRUE(form.calls.empty());
    EXPECT_EQ(problem.typed.ProblemText, "4+3");
}

TEST_F(SavedProblemTest, AFileThatCannotBeUsedChangesNothing) {
    ProblemFiles files(folder, *this);
    const std::string good = LineOf("Arithmetic", "4+3", 91);
    const std::string bad[] = {"",
                               "\n",
                               good.substr(0, good.size() - 8),
                               LineOf("Algebra", "4+3", 91),
                               Replace(good, "BB 91", "BB x"),
                               good + std::string(1048576, ' '),
                               std::string("\x7F"
                                           "ELF\0\1\2",
                                           7)};
    for (const std::string& text : bad) {
        problem = Typed("Solving Equations", "x+2=5");
        form.calls.clear();
        EXPECT_FALSE(mnuLoad_Click(File(text), files, problem, form, clock, random));
        EXPECT_EQ(form.calls, Calls{"The problem file could not be read."});
        EXPECT_EQ(problem.typed.ProblemText, "x+2=5");
        EXPECT_EQ(problem.topic.ProblemType, 101);
        EXPECT_FALSE(problem.topic.ClickedOnly);
        EXPECT_TRUE(problem.controls.SolveEnabled);
    }
    form.calls.clear();
    EXPECT_FALSE(mnuLoad_Click(Path("none.nrl"), files, problem, form, clock, random));
    EXPECT_EQ(form.calls, Calls{"The problem file could not be read."});
}

}  // namespace
}  // namespace numerello
