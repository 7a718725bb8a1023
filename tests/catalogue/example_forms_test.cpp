#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

#include "catalogue/box_keys.h"
#include "catalogue/complete_line.h"
#include "catalogue/entry_layouts.h"
#include "catalogue/examples/example_click.h"
#include "tests/catalogue/examples.h"

/// What every example of a topic has to look like once it stands on the form.
namespace numerello {
namespace {

#ifdef NDEBUG
constexpr int kExamples = 500;
#else
constexpr int kExamples = 60;
#endif

/// The form without a window; counts how often it was solved.
class CountingForm : public FillingForm {
  public:
    explicit CountingForm(Problem& problem) : problem(problem) {}

    void ShowEntry() override {}
    void Form_KeyPress(std::string_view key) override { numerello::Form_KeyPress(problem, key); }
    void compute_Click() override { ++solved; }

    int solved = 0;

  private:
    Problem& problem;
};

struct Shape {
    std::vector<int> codes;
    std::string simple;
    std::string complex;
};

/// The typed line, whole. D is a digit 1 to 9, E a digit 2 to 9.
const std::vector<Shape>& LineShapes() {
    static const std::vector<Shape> kShapes{
        {{84, 85, 86, 89, 109, 110, 111}, "D{1,2}", "D{3,4}"},
        {{68, 69}, "D{1,2}%", "D{3,4}%"},
        {{70, 71}, R"(0\.D{1,2})", R"(0\.D{2})"},
        {{65}, "D{2,5}", "D{2,5}"},
        {{99}, "D{2,10}", "D{2,10}"},
        {{98}, R"(D{1,6}(\.D{1,2})?)", R"(D{3,8}(\.D{2})?)"},
        {{72, 73, 79, 80}, "D{1,2}/D{1,2}", "D{3,4}/D{3,4}"},
        {{75}, "D{2}/D", "D{3}/D{2}"},
        {{74}, R"(D\+D/D)", R"(DD\+DD/DD)"},
        {{76}, "D/D[-+*/]D/D", "D/D([-+*/]D/D){2,5}"},
        {{78}, "D{1,2}:D{1,2}", "D{3,4}:D{3,4}"},
        {{59, 60, 61, 62}, "D(,D){3,4}", "D(,D){5,6}"},
        {{87, 88}, "[12]?[0-9](,[12]?[0-9]){3,4}", "[12]?[0-9](,[12]?[0-9]){5,6}"},
        {{83}, R"((10|E)(\*\1){1,2})", R"((10|E)(\*\1){3,4})"},
        {{90}, "-?D{1,2},-?D{1,2}", "-?D{3,4},-?D{3,4}"},
        {{104}, "D{2}|1[0-7]D", "D{2}|1[0-7]D"},
        {{106}, R"(\(-?D,-?D\)-\(-?D,-?D\))", R"(\(-?DD,-?DD\)-\(-?DD,-?DD\))"},
        {{107, 108}, R"(\(-?D,-?D\))", R"(\(-?DD,-?DD\))"},
        {{150}, R"(Ex\^-E\+Ex\^-E)", R"(Ex\^-E/E\+Ex\^-E-Ex\^-E)"},
        {{81}, R"(E\^[23]([-+*]E\^[23])+)", R"(E\^[23]([-+*]E\^[23]){3,})"},
        {{82}, "E~E([-+*]E~E)+", "E~E([-+*]E~E){3,}"},
        {{91}, "E{1,5}([-+*]E{1,5})*", "E{1,5}([-+*]E{1,5})+"},
        {{120},
         R"(\|-?E{1,5}([-+*]E{1,5})*\|([-*]E{1,5})([-+*]E{1,5})*)",
         R"(\|-?E{1,5}([-+*]E{1,5})*\|([-*]E{1,5})([-+*]E{1,5})*)"},
        {{121}, "[-+*/()^2-9]{9,}", "[-+*/()^2-9]{13,}"},
        {{102},
         "([-+*/()^2-9x]|[-+*/()^2-9y]|[-+*/()^2-9z]){9,}",
         "([-+*/()^2-9x]|[-+*/()^2-9y]|[-+*/()^2-9z]){13,}"},
        {{103}, "[-+*/()^2-9xyz]{9,}", "[-+*/()^2-9xyz]{13,}"},
        {{101, 105}, "[-+*/2-9xy]+=[-*/2-9xy][-+*/2-9xy]*", "[-+*/2-9xy]+=[-*/2-9xy][-+*/2-9xy]*"},
    };
    return kShapes;
}

std::regex Compiled(const std::string& shape) {
    return std::regex(Replace(Replace(shape, "D", "[1-9]"), "E", "[2-9]"));
}

std::regex ShapeOf(int code, bool complex) {
    for (const Shape& shape : LineShapes()) {
        if (std::find(shape.codes.begin(), shape.codes.end(), code) != shape.codes.end()) {
            return Compiled(complex ? shape.complex : shape.simple);
        }
    }
    EXPECT_TRUE(code >= 28 && code <= 54) << code;
    return Compiled(complex ? "D{3,4}" : "D{1,2}");
}

int LeastLength(int code, bool complex) {
    switch (code) {
        case 81:
        case 82:
        case 91:
        case 120:
            return complex ? 15 : 5;
        case 101:
        case 102:
        case 103:
        case 105:
        case 121:
            return complex ? 13 : 9;
        default:
            return 1;
    }
}

void ExpectNumber(const std::string& text, bool complex) {
    const int number = std::stoi(text);
    EXPECT_EQ(std::to_string(number), text);
    // The largest side of a triangle and the larger number of two may be a little above.
    EXPECT_TRUE(complex ? number >= 11 && number <= 101 : number >= 1 && number <= 11) << text;
}

void ExpectBoxes(const Problem& problem, bool complex) {
    const int code = problem.topic.ProblemType;
    const EntryLayout& layout = *FindEntryLayout(code);
    std::set<std::size_t> shown;
    int empty = 0;
    for (const EntryBoxLayout& box : layout.boxes) {
        const std::size_t i = static_cast<std::size_t>(box.number) - 1;
        const std::string& text = problem.boxes.Text[i];
        shown.insert(i);
        empty += text.empty() ? 1 : 0;
        if (code >= 25 && code <= 27) {
            const bool mantissa = i % 2 == 0;
            const std::string shape =
                mantissa ? (complex ? R"(DD\.DD)" : R"(D\.DD)") : (code == 25 ? "-?D" : "D");
            EXPECT_TRUE(std::regex_match(text, Compiled(shape))) << text;
        } else if (!text.empty()) {
            ExpectNumber(text, complex);
        }
    }
    const bool oneAsked = code == 12 || code == 14 || (code >= 20 && code <= 22);
    EXPECT_EQ(empty, code == 11 ? 2 : oneAsked ? 1 : 0) << code;
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_TRUE(shown.count(i) == 1 || problem.boxes.Text[i].empty()) << code;
    }
    if (code >= 200) {
        EXPECT_GE(std::stoi(problem.boxes.Text[0]), std::stoi(problem.boxes.Text[1])) << code;
    }
    if (code == 12 && !problem.boxes.Text[0].empty()) {
        for (const std::size_t leg : {1U, 3U}) {
            const std::string& text = problem.boxes.Text[leg];
            EXPECT_GT(std::stoi(problem.boxes.Text[0]), text.empty() ? 0 : std::stoi(text));
        }
    }
    if (code == 23 || code == 24) {
        for (const std::size_t list : {0U, 1U}) {
            EXPECT_TRUE(problem.boxes.ListIndex[list] >= 0 && problem.boxes.ListIndex[list] < 7);
        }
    }
}

void ExpectLine(const Problem& problem, const std::regex& shape, bool complex) {
    const std::string& line = problem.typed.ProblemText;
    const int code = problem.topic.ProblemType;
    EXPECT_TRUE(std::regex_match(line, shape)) << code << ": " << line;
    EXPECT_GE(static_cast<int>(line.size()), LeastLength(code, complex)) << line;
    EXPECT_LE(line.size(), 50U) << line;
    EXPECT_TRUE(LineIsComplete(problem)) << line;
    if (code == 98) {
        const int row = problem.boxes.ListIndex[2];
        EXPECT_TRUE(row >= 0 && row < 7);
        EXPECT_EQ(line.find('.') != std::string::npos, row >= 3) << line;
    }
    if (code == 101) {
        EXPECT_TRUE(line.find('x') == std::string::npos || line.find('y') == std::string::npos);
    }
}

class ExampleForms : public ::testing::TestWithParam<std::string_view> {};

TEST_P(ExampleForms, OfEveryDraw) {
    const Problem opened = Opened(GetParam());
    const bool typed = IsTypedOnLine(opened.topic.ProblemType);
    Stage stage;
    for (const bool complex : {false, true}) {
        const std::regex shape = typed ? ShapeOf(opened.topic.ProblemType, complex) : std::regex();
        Problem problem = opened;
        problem.settings.ComplexEx = complex ? 2 : 0;
        CountingForm form(problem);
        for (int i = 0; i < kExamples; ++i) {
            MomentDraws draws(MomentAt(i * 7 % kMoments), static_cast<std::uint32_t>(i));
            example_Click(problem, stage, form, *draws);
            EXPECT_EQ(form.solved, i + 1) << GetParam();
            if (typed) {
                ExpectLine(problem, shape, complex);
                EXPECT_EQ(problem.boxes.Text, EntryBoxes().Text);
            } else {
                EXPECT_EQ(problem.typed.ProblemText, "");
                ExpectBoxes(problem, complex);
            }
        }
    }
}

std::vector<std::string_view> AllCaptions() {
    std::vector<std::string_view> captions;
    for (const Topic& topic : Topics()) {
        captions.push_back(topic.caption);
    }
    return captions;
}

INSTANTIATE_TEST_SUITE_P(Topics, ExampleForms, ::testing::ValuesIn(AllCaptions()));

TEST(ExampleDrawsOfAnHour, ReachEveryKindOfProblem) {
    // Every place of a proportion, both signs, every operator of two fractions.
    std::set<std::size_t> places;
    std::set<char> signs;
    std::set<char> operators;
    for (int second = 0; second < 200; ++second) {
        const auto made = [second](int code) {
            MomentDraws draws(MomentAt(second));
            return GenerateExample(Opened(FindTopicByCode(code)->caption).topic, false, 0, *draws);
        };
        const auto boxes = made(20).boxes.Text;
        places.insert(
            static_cast<std::size_t>(std::find(boxes.begin(), boxes.end(), "") - boxes.begin()));
        signs.insert(made(25).boxes.Text[1].front() == '-' ? '-' : '+');
        operators.insert(made(76).keys[5]);
    }
    EXPECT_EQ(places, (std::set<std::size_t>{0, 1, 2, 3}));
    EXPECT_EQ(signs, (std::set<char>{'+', '-'}));
    EXPECT_EQ(operators, (std::set<char>{'+', '-', '*', '/'}));
}

TEST(ExampleClick, ForgetsTheProblemBefore) {
    Problem problem = Typed("Arithmetic", "4+4+");
    Form_KeyPress(problem, "+");
    problem.log.Write("old", "old note");
    problem.playback.TypingEnabled = false;
    problem.boxes.Text[3] = "8";
    Stage stage;
    CountingForm form(problem);
    MomentDraws draws(1234);
    example_Click(problem, stage, form, *draws);
    const Problem fresh = [] {
        Problem problem = Opened("Arithmetic");
        Stage stage;
        CountingForm form(problem);
        MomentDraws draws(1234);
        example_Click(problem, stage, form, *draws);
        return problem;
    }();
    EXPECT_EQ(problem.typed.ProblemText, fresh.typed.ProblemText);
    EXPECT_EQ(problem.boxes.Text, fresh.boxes.Text);
    EXPECT_EQ(problem.log.StepCount, 1);
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_TRUE(problem.playback.TypingEnabled);
}

}  // namespace
}  // namespace numerello
