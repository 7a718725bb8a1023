#pragma once

#include <QString>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/clock.h"
#include "output/practice_test.h"
#include "output/print_key.h"
#include "ui/print_job.h"

namespace numerello {

/// A practice test that was made up: its lines, and how to work its problems.
struct MadeTest {
    std::vector<std::string> TestLines;
    std::function<std::vector<WorkedProblem>()> AnswerKey;
};

/// Makes a test up.
using TestMaker = std::function<MadeTest(std::span<const TestRow> rows)>;

/// A page as the preview shows it: its marks, in pixels from the paper's corner, and its lines in
/// words.
struct ShownPage {
    std::vector<Mark> marks;
    QString words;
};

/// The pages of a preview, and the size that they have at 96 pixels to the inch.
struct ShownPages {
    PrintScale scale;
    double zoom = 1;  ///< from the unit of marks and scale to the preview's pixels
    std::vector<ShownPage> pages;
};

/// What a preview is of: how its pages look, and how they are printed.
struct Previewed {
    QString caption;
    std::function<ShownPages(PaperSize paper, const TextMetrics& faces, Learner& learner)> show;
    PrintJob job;
    std::function<Previewed()> answerKey = {};  ///< empty when there is none
};

/// A practice test under its heading, with its key.
Previewed PreviewOfTest(const HeadingLines& heading, MadeTest test, const Date& today);

/// The key alone. It is shown as it is printed.
Previewed PreviewOfKey(const HeadingLines& heading, std::vector<WorkedProblem> problems,
                       const Date& today);

}  // namespace numerello
