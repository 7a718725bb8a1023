#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

#include "film.h"

/// Compares whole problems with the files of frames/, drawing by drawing. Problems are separated by
/// empty lines. One begins with "problem " and what is worked; a message follows as "message ". A
/// drawing is its note, the end of the drawing ("finished" where the work is), and its marks,
/// separated by two blanks; a "+" before them stands for those of the drawing before.
namespace numerello {
namespace {

struct WrittenFrame {
    std::string note;
    std::string end;
    std::vector<std::string> marks;
};

struct WrittenProblem {
    std::string title;
    std::vector<std::string> messages;
    std::vector<WrittenFrame> frames;
};

void AddMarks(std::string line, WrittenProblem& problem) {
    if (line.starts_with("+ ")) {
        problem.frames.back().marks = (problem.frames.rbegin() + 1)->marks;
        line.erase(0, 2);
    }
    for (std::size_t start = 0; start < line.size();) {
        const std::size_t end = std::min(line.find("  ", start), line.size());
        problem.frames.back().marks.push_back(line.substr(start, end - start));
        start = end + 2;
    }
}

std::vector<WrittenProblem> ReadProblems(const std::filesystem::path& path) {
    std::vector<WrittenProblem> problems;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("problem ")) {
            problems.push_back({line.substr(8), {}, {}});
        } else if (line.starts_with("message ")) {
            problems.back().messages.push_back(line.substr(8));
        } else if (line.starts_with("note ")) {
            problems.back().frames.push_back({line.substr(5), "", {}});
        } else if (line.starts_with("end ")) {
            problems.back().frames.back().end = line.substr(4);
        } else if (!line.empty()) {
            AddMarks(line, problems.back());
        }
    }
    return problems;
}

Film FilmOf(const std::string& title) {
    static const std::regex kTitle("(\\d+) ([-+x/]) (\\d+)(, all at once)?");
    std::smatch parts;
    EXPECT_TRUE(std::regex_match(title, parts, kTitle)) << title;
    const std::string signs = "+-x/";
    const int code = kAddition + static_cast<int>(signs.find(parts[2].str()));
    return {code, parts[1], parts[3], !parts[4].matched};
}

void Compare(const WrittenProblem& written) {
    SCOPED_TRACE(written.title);
    Film film = FilmOf(written.title);
    film.Play();
    EXPECT_EQ(film.learner.messages, written.messages);
    ASSERT_EQ(film.frames.size(), written.frames.size());
    for (std::size_t i = 0; i < film.frames.size(); ++i) {
        SCOPED_TRACE("drawing " + std::to_string(i + 1));
        const Frame& frame = film.frames[i];
        EXPECT_EQ(frame.note, written.frames[i].note);
        EXPECT_EQ(PlaceText(frame.endX) + "," + PlaceText(frame.endY) +
                      (frame.finished ? "  finished" : ""),
                  written.frames[i].end);
        EXPECT_EQ(frame.Texts(), written.frames[i].marks);
    }
}

class Frames : public testing::TestWithParam<const char*> {};

TEST_P(Frames, AreDrawnAsWritten) {
    const std::filesystem::path folder(NUMERELLO_COLUMN_FRAMES);
    const auto problems = ReadProblems(folder / (std::string(GetParam()) + ".txt"));
    ASSERT_GE(problems.size(), 3U);
    for (const WrittenProblem& problem : problems) {
        Compare(problem);
    }
}

INSTANTIATE_TEST_SUITE_P(AllFour, Frames,
                         testing::Values("addition", "subtraction", "multiplication", "division"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace numerello
