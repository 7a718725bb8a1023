#include <array>

#include "core/random_source.h"
#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr std::array kTargets = {TypesetTarget::Paper, TypesetTarget::Explanation,
                                 TypesetTarget::Print, TypesetTarget::Preview};

class RandomLinesTest : public ::testing::TestWithParam<TypesetTarget> {
  protected:
    int Draw(int count) { return static_cast<int>(source.Rnd() * count); }

    /// Characters of every kind, markers closed or not.
    std::string AnyLine(int length) {
        constexpr std::string_view kAlphabet = "##^^~~[]/()12x+-. ";
        std::string line;
        for (int i = 0; i < length; ++i) {
            line += kAlphabet[static_cast<std::size_t>(Draw(static_cast<int>(kAlphabet.size())))];
        }
        return line;
    }

    /// One construct after the other, all closed and within their limits.
    std::string SoundLine(int pieces) {
        constexpr std::array<std::string_view, 10> kPieces = {
            "x", "[2]", "^12^", "~9~", "~b^2^-4~", "#1/2#", "#~3~/x^2^#", "~#1/25#+1~", " ", "()"};
        std::string line;
        for (int i = 0; i < pieces; ++i) {
            line += kPieces[static_cast<std::size_t>(Draw(static_cast<int>(kPieces.size())))];
        }
        return line;
    }

    MersenneSource source{7};
};

int CountOf(const std::string& line, std::string_view markers) {
    int count = 0;
    for (const char c : line) {
        count += markers.find(c) != std::string_view::npos ? 1 : 0;
    }
    return count;
}

TEST_P(RandomLinesTest, AnyLineEndsWithAtMostOneMessageForEachMarker) {
    for (int i = 0; i < 3000; ++i) {
        const std::string line = AnyLine(Draw(120));
        SCOPED_TRACE(line);
        SampleAnswer answer;
        ASSERT_NO_THROW(answer = Typeset({.target = GetParam(),
                                          .text = line,
                                          .x = Draw(1000) - 200.0,
                                          .y = Draw(1000) - 200.0,
                                          .size = 1 + Draw(40)}));
        EXPECT_LE(static_cast<int>(answer.messages.size()), CountOf(line, "#^~"));
        if (GetParam() != TypesetTarget::Paper) {
            EXPECT_EQ(answer.endX, 0);
        }
    }
}

TEST_P(RandomLinesTest, NothingInALineMovesTheNextOne) {
    for (int i = 0; i < 1000; ++i) {
        // Short enough for one row of each target.
        const std::string line = AnyLine(30);
        SCOPED_TRACE(line);
        const SampleAnswer answer = Typeset({.target = GetParam(), .text = line, .size = 12});
        const bool hasSlash = line.find('/') != std::string::npos;
        const double start = GetParam() == TypesetTarget::Paper         ? kBase
                             : GetParam() != TypesetTarget::Explanation ? 12
                             : hasSlash                                 ? 12
                                                                        : 3;
        const double lineEnd = GetParam() == TypesetTarget::Paper ? 0 : kLine;
        EXPECT_NEAR(answer.endY, start + lineEnd, 1e-6);
    }
}

TEST_P(RandomLinesTest, SoundLinesNeedNoMessage) {
    for (int i = 0; i < 1000; ++i) {
        const std::string line = SoundLine(Draw(40));
        SCOPED_TRACE(line);
        const SampleAnswer answer = Typeset({.target = GetParam(), .text = line});
        ExpectMessages(answer, 0);
    }
}

TEST_P(RandomLinesTest, FarPensEnd) {
    for (const double x : {-1e6, 1e6}) {
        for (const double y : {-1e6, 1e6}) {
            for (const double size : {1.0, 2.0, 100.0}) {
                const SampleAnswer answer = Typeset({.target = GetParam(),
                                                     .text = "~#x^2^/25#+1~a#~4~/3#^5^b",
                                                     .x = x,
                                                     .y = y,
                                                     .size = size});
                ExpectMessages(answer, 0);
                EXPECT_LE(answer.pagesTurned, 1);
            }
        }
    }
}

TEST_P(RandomLinesTest, EqualRequestsHaveEqualAnswers) {
    const std::string line = SoundLine(60);
    const SampleAnswer first = Typeset({.target = GetParam(), .text = line});
    const SampleAnswer second = Typeset({.target = GetParam(), .text = line});
    ASSERT_EQ(first.marks.size(), second.marks.size());
    for (std::size_t i = 0; i < first.marks.size(); ++i) {
        EXPECT_EQ(TextAt(first, i).text, TextAt(second, i).text);
        EXPECT_EQ(TextAt(first, i).x, TextAt(second, i).x);
        EXPECT_EQ(TextAt(first, i).y, TextAt(second, i).y);
    }
}

INSTANTIATE_TEST_SUITE_P(AllTargets, RandomLinesTest, ::testing::ValuesIn(kTargets));

}  // namespace
}  // namespace numerello
