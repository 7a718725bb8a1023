#include <gtest/gtest.h>

#include <utility>

#include "catalogue/topics.h"
#include "tests/app/solving_form.h"
#include "tests/core/temporary_folder.h"

namespace numerello {
namespace {

constexpr int kFiles = 10000;

/// Nobody is asked: the file is named.
class NoDialog : public FileDialog {
  public:
    std::optional<std::string> Show(const FileDialogSettings&) override { return std::nullopt; }
};

std::string WholeFile(Draws& draws) {
    const auto topics = Topics();
    const Topic& topic =
        topics[static_cast<std::size_t>(draws.Below(static_cast<int>(topics.size())))];
    const auto number = [&draws] { return std::to_string(draws.Below(1000)); };
    return Text(topic.caption, " BB ", number(), "+", number(), "*x^2=(", number(), ")/4 BB ",
                number(), " BB ", number(), " BB ", number(), " BB ", number(), " BB ", number(),
                " BB ", number(), " BB ", std::to_string(draws.Below(9) - 1), " BB ",
                std::to_string(draws.Below(9) - 1), " BB ", std::to_string(draws.Below(8)), " BB ",
                std::to_string(topic.code), "\n");
}

std::size_t Somewhere(const std::string& text, Draws& draws) {
    return static_cast<std::size_t>(draws.Below(static_cast<int>(text.size()) + 1));
}

std::string Bytes(int count, Draws& draws) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<char>(draws.Below(256)));
    }
    return bytes;
}

std::string WithZeros(const std::string& text) {
    std::string wide = "\xFF\xFE";
    for (const char byte : text) {
        wide.push_back(byte);
        wide.push_back('\0');
    }
    return wide;
}

std::string Times(std::string_view piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

std::string Damaged(std::string text, Draws& draws) {
    switch (draws.Below(10)) {
        case 0:  // cut off
            return text.substr(0, Somewhere(text, draws));
        case 1:  // shifted by a separator
            return text.insert(Somewhere(text, draws), " BB ");
        case 2:  // a piece is gone
            return text.erase(Somewhere(text, draws), 1 + draws.Below(20));
        case 3:  // foreign bytes in between
            return text.insert(Somewhere(text, draws), Bytes(1 + draws.Below(40), draws));
        case 4:  // nothing but bytes
            return Bytes(draws.Below(400), draws);
        case 5:  // another encoding
            return WithZeros(text);
        case 6:  // thousands of separators
            return text.insert(Somewhere(text, draws), Times(" BB ", 1 + draws.Below(4000)));
        case 7:  // twice the same, without a line end between them
            return text + text;
        case 8:  // huge
            return text.insert(Somewhere(text, draws), Times("9)~", 1 + draws.Below(300)));
        default:  // a byte is another
            text[Somewhere(text, draws) % text.size()] = static_cast<char>(draws.Below(256));
            return text;
    }
}

/// What stands on the sheet.
std::string OnSheet(const Problem& problem) {
    std::string text = ProblemLine(problem);
    for (int i = 1; i < problem.log.StepCount; ++i) {
        text += Text("\n", problem.log.StepText[i], " | ", problem.log.StepNote[i]);
    }
    return text;
}

class DamagedFiles : public TemporaryFolder {
  protected:
    DamagedFiles() {
        Put(Path("whole.nrl"),
            "Arithmetic BB 4+3*2 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91");
        EXPECT_TRUE(Load("whole.nrl"));
    }

    bool Load(const std::string& name) {
        form.opened = false;
        return mnuLoad_Click(Path(name), files, problem, form, FixedClock(0), random);
    }

    NoDialog dialog;
    ProblemFiles files{folder, dialog};
    Problem problem;
    SolvingForm form{problem};
    MersenneSource random;
};

TEST_F(DamagedFiles, AreLoadedAsFarAsTheyGoOrLeaveTheSheetAlone) {
    Draws draws(1);
    int loaded = 0;
    for (int i = 0; i < kFiles; ++i) {
        const std::string content = Damaged(WholeFile(draws), draws);
        SCOPED_TRACE(content.substr(0, 300));
        Put(Path("damaged.nrl"), content);
        const std::string before = OnSheet(problem);
        if (Load("damaged.nrl")) {
            ++loaded;
            ASSERT_TRUE(form.opened);
            const Topic* topic = FindTopic(problem.topic.TopicTitle);
            ASSERT_NE(topic, nullptr);
            ASSERT_EQ(topic->code, problem.topic.ProblemType);
        } else {
            ASSERT_FALSE(form.opened);
            ASSERT_EQ(OnSheet(problem), before);
        }
    }
    // Many a damage leaves all twelve fields, many a one does not.
    EXPECT_GT(loaded, kFiles / 5);
    EXPECT_LT(loaded, kFiles * 4 / 5);
}

TEST_F(DamagedFiles, BeyondTheLongestAreNone) {
    const std::string before = OnSheet(problem);
    Put(Path("huge.nrl"), Text("Arithmetic BB ", std::string(kLongestProblemFile, '4'),
                               " BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91"));
    EXPECT_FALSE(Load("huge.nrl"));
    EXPECT_FALSE(form.opened);
    EXPECT_EQ(OnSheet(problem), before);
}

}  // namespace
}  // namespace numerello
