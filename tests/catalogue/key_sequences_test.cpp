#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "catalogue/complete_line.h"
#include "catalogue/topics.h"
#include "typing.h"

/// Plays the files of key_sequences/. A file names its topic, and others that share its rules; its
/// sequences are separated by empty lines. A line of a sequence is the key (\b a Backspace, \s a
/// blank), two blanks, the display line behind it, and for a refused key "refused: " and the reason
/// (a ␣ at its end is a blank). The last line gives the problem, and whether it is complete.
namespace numerello {
namespace {

constexpr std::string_view kRefused = "refused: ";

struct Step {
    std::string key;
    std::string line;
    std::string why;
};

struct Sequence {
    std::vector<Step> steps;
    std::string problem;
    bool complete = false;
};

struct Family {
    std::vector<std::string> topics;
    std::vector<Sequence> sequences;
};

std::string Trimmed(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    text.erase(0, text.find_first_not_of(' '));
    return text;
}

Step ReadStep(const std::string& text) {
    Step step;
    const std::size_t keyEnd = text.front() == '\\' ? 2 : Characters(text).front().size();
    const std::string key = text.substr(0, keyEnd);
    step.key = key == "\\b" ? "\b" : key == "\\s" ? " " : key;
    std::string rest = text.substr(keyEnd);
    const std::size_t refusal = rest.find(kRefused);
    if (refusal != std::string::npos) {
        step.why = Replace(rest.substr(refusal + kRefused.size()), "␣", " ");
        rest.erase(refusal);
    }
    step.line = Trimmed(rest);
    return step;
}

void ReadEnd(const std::string& text, Sequence& sequence) {
    const std::string rest = Trimmed(text.substr(text.find(' ')));
    const std::size_t gap = rest.rfind(' ');
    const std::string problem = Trimmed(rest.substr(0, gap));
    sequence.problem = problem == "(empty)" ? "" : problem;
    const std::string verdict = rest.substr(gap + 1);
    EXPECT_TRUE(verdict == "complete" || verdict == "incomplete") << text;
    sequence.complete = verdict == "complete";
}

std::vector<std::string> ReadCaptions(const std::string& line) {
    std::vector<std::string> captions;
    std::size_t start = line.find(' ') + 1;
    while (start != std::string::npos + 1) {
        const std::size_t end = line.find(", ", start);
        captions.push_back(line.substr(start, end - start));
        start = end == std::string::npos ? std::string::npos + 1 : end + 2;
    }
    return captions;
}

Family ReadFamily(const std::filesystem::path& path) {
    Family family;
    std::ifstream file(path);
    Sequence sequence;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("topic ") && family.topics.empty()) {
            family.topics.push_back(line.substr(6));
        } else if (line.starts_with("also ") && family.sequences.empty()) {
            for (const std::string& caption : ReadCaptions(line)) {
                family.topics.push_back(caption);
            }
        } else if (line.starts_with("problem ")) {
            ReadEnd(line, sequence);
            family.sequences.push_back(std::exchange(sequence, {}));
        } else if (!line.empty()) {
            sequence.steps.push_back(ReadStep(line));
        }
    }
    EXPECT_TRUE(sequence.steps.empty()) << path << " ends in the middle of a sequence";
    return family;
}

void Play(const Family& family, const Sequence& sequence, const std::string& topic) {
    const std::string name = "'" + family.topics.front() + "'";
    Problem problem = Opened(topic);
    std::string typed;
    for (const Step& step : sequence.steps) {
        typed += step.key;
        Form_KeyPress(problem, step.key);
        EXPECT_EQ(problem.input.InputError, Replace(step.why, name, "'" + topic + "'"))
            << topic << ": " << typed;
        EXPECT_EQ(problem.input.KeyAccepted, step.why.empty()) << topic << ": " << typed;
        EXPECT_EQ(problem.typed.DisplayLine, step.line) << topic << ": " << typed;
    }
    EXPECT_EQ(problem.typed.ProblemText, sequence.problem) << topic << ": " << typed;
    EXPECT_EQ(LineIsComplete(problem), sequence.complete) << topic << ": " << typed;
    EXPECT_EQ(problem.controls.SolveEnabled, !sequence.problem.empty()) << topic << ": " << typed;
}

class KeySequences : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(KeySequences, AreJudgedAsWritten) {
    const Family family = ReadFamily(GetParam());
    ASSERT_FALSE(family.topics.empty());
    EXPECT_GE(family.sequences.size(), 12U);
    for (const std::string& topic : family.topics) {
        for (const Sequence& sequence : family.sequences) {
            Play(family, sequence, topic);
        }
    }
}

std::vector<std::filesystem::path> SequenceFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(NUMERELLO_KEY_SEQUENCES)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

INSTANTIATE_TEST_SUITE_P(Families, KeySequences, testing::ValuesIn(SequenceFiles()),
                         [](const auto& test) { return test.param.stem().string(); });

TEST(KeySequences, ReachEveryTopicOfTheTypingLine) {
    std::map<int, int> played;
    for (const auto& file : SequenceFiles()) {
        for (const std::string& topic : ReadFamily(file).topics) {
            ++played[Opened(topic).topic.ProblemType];
        }
    }
    for (int code = 28; code < 200; ++code) {
        const bool exists = FindTopicByCode(code) != nullptr;
        EXPECT_EQ(played.count(code), exists ? 1U : 0U) << code;
    }
}

}  // namespace
}  // namespace numerello
