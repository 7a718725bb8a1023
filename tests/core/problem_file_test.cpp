#include "core/problem_file.h"

#include <gtest/gtest.h>

#include <random>

#include "core/text.h"

namespace numerello {
namespace {

constexpr std::string_view kFilled =
    "Proportions BB 4*3+2 BB 1 BB -2.5 BB 3 BB 4 BB 5 BB 6 BB 0 BB 6 BB -1 BB 20";

Problem FilledProblem() {
    Problem problem;
    problem.topic.TopicTitle = "Proportions";
    problem.topic.ProblemType = 20;
    problem.typed.ProblemText = "4*3+2";
    problem.boxes.Text = {"1", "-2.5", "3", "4", "5", "6"};
    problem.boxes.ListIndex = {0, 6, -1};
    return problem;
}

std::string WhyNotRead(std::string_view text) {
    try {
        ReadProblemLine(text);
        return "was read";
    } catch (const FileError& error) {
        return error.what();
    }
}

void ExpectFilled(const SavedProblem& saved) {
    EXPECT_EQ(saved.TopicTitle, "Proportions");
    EXPECT_EQ(saved.typed, "4*3+2");
    EXPECT_EQ(saved.boxes.Text, (std::array<std::string, 6>{"1", "-2.5", "3", "4", "5", "6"}));
    EXPECT_EQ(saved.boxes.ListIndex, (std::array<int, 3>{0, 6, -1}));
    EXPECT_EQ(saved.ProblemType, 20);
}

/// A line of these lists and this code, and of fields that do not matter.
std::string LineWith(std::string_view list, std::string_view code) {
    return Text("Addition BB  BB 1 BB 2 BB  BB  BB  BB  BB ", list, " BB ", list, " BB ", list,
                " BB ", code);
}

TEST(ProblemLine, HoldsTwelveFieldsInTheirOrder) {
    EXPECT_EQ(ProblemLine(FilledProblem()), kFilled);
}

TEST(ProblemLine, WritesWhatIsEmptyAndWhatIsNotChosen) {
    Problem problem;
    problem.topic.TopicTitle = "Arithmetic";
    problem.topic.ProblemType = 91;
    problem.typed.ProblemText = "4+3";
    EXPECT_EQ(ProblemLine(problem),
              "Arithmetic BB 4+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91");
}

TEST(ReadProblemLine, BringsTheFieldsBack) {
    ExpectFilled(ReadProblemLine(kFilled));
}

TEST(ReadProblemLine, TakesEveryLineEnd) {
    for (const char* end : {"", "\n", "\r\n", "\r", "\n\n", " \r\n", "\nanother line\n", "\x1A"}) {
        ExpectFilled(ReadProblemLine(Text(kFilled, end)));
    }
}

TEST(ReadProblemLine, SkipsAByteOrderMark) {
    ExpectFilled(ReadProblemLine(Text("\xEF\xBB\xBF", kFilled, "\n")));
    EXPECT_EQ(ReadProblemLine(Text("\xEF\xBB\xBF\xEF\xBB\xBF", kFilled)).TopicTitle,
              "\xEF\xBB\xBFProportions");
}

TEST(ReadProblemLine, IgnoresFurtherFields) {
    ExpectFilled(ReadProblemLine(Text(kFilled, " BB more BB  BB and more")));
}

TEST(ReadProblemLine, ASeparatorInAFieldShiftsTheRest) {
    const SavedProblem saved =
        ReadProblemLine("Add BB ition BB  BB 1 BB 2 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 200");
    EXPECT_EQ(saved.TopicTitle, "Add");
    EXPECT_EQ(saved.typed, "ition");
    EXPECT_EQ(saved.boxes.Text[1], "1");
    EXPECT_EQ(saved.boxes.ListIndex, (std::array<int, 3>{-1, -1, -1}));
    EXPECT_EQ(saved.ProblemType, 0);
}

TEST(ReadProblemLine, FieldsKeepTheirBlanksAndLineEnds) {
    const SavedProblem saved =
        ReadProblemLine(" Add  BB \n4 BB  1  BB \t BB BB BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 200");
    EXPECT_EQ(saved.TopicTitle, " Add ");
    EXPECT_EQ(saved.typed, "\n4");
    EXPECT_EQ(saved.boxes.Text[0], " 1 ");
    EXPECT_EQ(saved.boxes.Text[1], "\t");
    EXPECT_EQ(saved.boxes.Text[2], "BB");
}

TEST(ReadProblemLine, ATextCutAnywhereHasTooFewFieldsOrNoCode) {
    const std::size_t codeAt = kFilled.size() - 2;
    const std::size_t lastSeparator = kFilled.size() - 6;
    for (std::size_t length = 0; length < kFilled.size(); ++length) {
        const std::string_view cut = kFilled.substr(0, length);
        if (length <= codeAt) {
            EXPECT_EQ(WhyNotRead(cut), length < lastSeparator + 4
                                           ? "has fewer than twelve fields"
                                           : "has no topic code in its twelfth field")
                << cut;
        } else {
            EXPECT_EQ(ReadProblemLine(cut).ProblemType, 2) << cut;
        }
    }
}

TEST(ReadProblemLine, ANearSeparatorIsNone) {
    for (const char* separator : {" bb ", "BB", " BB", "BB ", "  BB", " B B ", "\tBB\t", " BB\n"}) {
        std::string line(kFilled);
        line = Replace(line, " BB ", separator);
        EXPECT_EQ(WhyNotRead(line), "has fewer than twelve fields") << line;
    }
}

TEST(ReadProblemLine, TheCodeIsTheLeadingInteger) {
    const std::pair<const char*, int> codes[] = {
        {"200", 200},     {"200\r\n", 200}, {" 200", 200},  {"+7", 7},         {"-3", -3},
        {"0", 0},         {"007", 7},       {"91x", 91},    {"91.9", 91},      {"9 1", 9},
        {"32767", 32767}, {"91\xFF", 91},   {"91,200", 91}, {"-32768", -32768}};
    for (const auto& [text, code] : codes) {
        EXPECT_EQ(ReadProblemLine(LineWith("0", text)).ProblemType, code) << text;
    }
}

TEST(ReadProblemLine, WithoutACodeTheFileIsNone) {
    for (const char* text : {"", "\n", " ", "x91", "-", "+-5", "--5", "\xFF", "32768", "-32769",
                             "99999999999999999999", "\n91"}) {
        EXPECT_EQ(WhyNotRead(LineWith("0", text)), "has no topic code in its twelfth field")
            << text;
    }
}

TEST(ReadProblemLine, AListWithoutANumberHasNoChoice) {
    for (const char* text : {"", " ", "x", "1x", "1.0", "-", "32768", "1\n", "\xFF"}) {
        EXPECT_EQ(ReadProblemLine(LineWith(text, "200")).boxes.ListIndex,
                  (std::array<int, 3>{-1, -1, -1}))
            << text;
    }
    EXPECT_EQ(ReadProblemLine(LineWith(" 6 ", "200")).boxes.ListIndex,
              (std::array<int, 3>{6, 6, 6}));
}

TEST(ReadProblemLine, BytesThatAreNoCharacterAreReplaced) {
    const SavedProblem saved = ReadProblemLine(
        "A\xFF BB 4\x80+\xC3 BB \xE2\x82 BB caf\xC3\xA9 BB  BB  BB  BB  BB 0 BB 0 BB 0 BB 1");
    EXPECT_EQ(saved.TopicTitle, "A\xEF\xBF\xBD");
    EXPECT_EQ(saved.typed, "4\xEF\xBF\xBD+\xEF\xBF\xBD");
    EXPECT_EQ(saved.boxes.Text[0], "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(saved.boxes.Text[1], "caf\xC3\xA9");
}

TEST(ReadProblemLine, AZeroByteEndsNothing) {
    std::string line(kFilled);
    line[2] = '\0';
    EXPECT_EQ(ReadProblemLine(line).TopicTitle, std::string("Pr\0portions", 11));
    EXPECT_EQ(ReadProblemLine(line).ProblemType, 20);
}

TEST(ReadProblemLine, RandomBytesAreNoProblem) {
    std::mt19937 draws(7);
    for (int i = 0; i < 2000; ++i) {
        std::string bytes(draws() % 500, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(draws());
        }
        EXPECT_EQ(WhyNotRead(bytes), "has fewer than twelve fields");
    }
}

TEST(ReadProblemLine, OneDamagedByteDamagesNothingElse) {
    for (std::size_t at = 0; at < kFilled.size(); ++at) {
        std::string line(kFilled);
        line[at] = '\xFF';
        try {
            const SavedProblem saved = ReadProblemLine(line);
            const bool titleStands = at >= std::string_view("Proportions").size();
            EXPECT_EQ(saved.TopicTitle == "Proportions", titleStands) << at;
        } catch (const FileError& error) {
            const bool inCode = at == kFilled.size() - 2;
            EXPECT_STREQ(error.what(), inCode ? "has no topic code in its twelfth field"
                                              : "has fewer than twelve fields");
            EXPECT_TRUE(inCode || kFilled.substr(at, 1).find_first_of(" B") == 0) << at;
        }
    }
}

TEST(SuggestedName, IsTheTitleWithTheDate) {
    EXPECT_EQ(SuggestedName("Addition", {2026, 3, 9}), "Addition 03-09-26");
    EXPECT_EQ(SuggestedName("Addition", {2000, 12, 31}), "Addition 12-31-00");
}

TEST(SuggestedName, HoldsNothingThatAFileNameMayNot) {
    EXPECT_EQ(SuggestedName("Work = Rate * Time", {2026, 11, 20}), "Work = Rate x Time 11-20-26");
    EXPECT_EQ(SuggestedName("Perimeter of a Square/Rectangle", {2026, 11, 20}),
              "Perimeter of a Square-Rectangle 11-20-26");
}

TEST(StartFilePath, LosesItsQuotesAndTheBlanksAround) {
    EXPECT_EQ(StartFilePath(""), "");
    EXPECT_EQ(StartFilePath("a.nrl"), "a.nrl");
    EXPECT_EQ(StartFilePath("\"/home/me/my problem.nrl\""), "/home/me/my problem.nrl");
    EXPECT_EQ(StartFilePath("  my problem.nrl "), "my problem.nrl");
    EXPECT_EQ(StartFilePath("a\"\"b"), "ab");
    EXPECT_EQ(StartFilePath("\"\""), "");
}

TEST(StartFilePath, AUrlOfAFileIsItsPath) {
    EXPECT_EQ(StartFilePath("file:///home/me/my%20problem.nrl"), "/home/me/my problem.nrl");
    EXPECT_EQ(StartFilePath("file://localhost/home/a.nrl"), "/home/a.nrl");
    EXPECT_EQ(StartFilePath("file:/home/a%2Fb%c3%A9.nrl"), "/home/a/bé.nrl");
    EXPECT_EQ(StartFilePath("file:///a%2"), "/a%2");
    EXPECT_EQ(StartFilePath("file:///a%zz%"), "/a%zz%");
    EXPECT_EQ(StartFilePath("file.nrl"), "file.nrl");
    EXPECT_EQ(StartFilePath("100%20.nrl"), "100%20.nrl");
}

}  // namespace
}  // namespace numerello
