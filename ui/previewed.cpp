#include "ui/previewed.h"

#include <memory>
#include <utility>

#include "core/problem_file.h"
#include "core/text.h"
#include "output/preview_pages.h"
#include "output/print_test.h"
#include "typeset/variants.h"
#include "ui/text.h"
#include "worksheet/spoken_line.h"

namespace numerello {

namespace {

/// The number of a problem is no mathematics.
QString InWords(const std::string& line) {
    const std::size_t digits = line.find_first_not_of("0123456789");
    const bool numbered =
        digits != 0 && digits != std::string::npos && line.compare(digits, 2, ") ") == 0;
    const std::size_t start = numbered ? digits + 2 : 0;
    return ToQString(Text(line.substr(0, start), SpokenLine(line.substr(start))));
}

/// What is read of a page: its lines in words, on the first one below the heading.
class Words {
  public:
    Words(const HeadingLines& heading, int page) {
        if (page == 0) {
            for (const std::string& line : heading) {
                Add(ToQString(line));
            }
        }
    }

    void Add(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) {
            Add(InWords(line));
        }
    }

    QString Joined() const { return words.join(u'\n'); }

  private:
    void Add(const QString& line) {
        if (!line.isEmpty()) {
            words.append(line);
        }
    }

    QStringList words;
};

ShownPages TestPages(const HeadingLines& heading, const std::vector<std::string>& TestLines,
                     PaperSize paper, const TextMetrics& faces, Learner& learner) {
    ShownPages shown{.scale = ScaleOfPreview(paper), .pages = {}};
    const ScaledMetrics metrics(faces, shown.scale);
    PreviewPages pages(metrics);
    pages.Build(heading, TestLines, learner);
    for (int page = 0; page <= pages.PreviewPageCount(); ++page) {
        Words words(heading, page);
        words.Add(pages.LinesOn(page));
        shown.pages.push_back(
            {MarksInPixels(pages.Page(page).Marks(), shown.scale), words.Joined()});
    }
    return shown;
}

ShownPages KeyPages(const HeadingLines& heading, const std::vector<WorkedProblem>& problems,
                    PaperSize paper, const TextMetrics& faces, Learner& learner) {
    ShownPages shown{.scale = ScaleOfPrint(paper), .zoom = kPreviewScale, .pages = {}};
    const ScaledMetrics metrics(faces, shown.scale);
    Surface printer(metrics, SheetFont());
    const std::vector<int> places = PrintAnswerKey(heading, problems, printer, learner);
    for (int page = 0; page < printer.PageCount(); ++page) {
        Words words(heading, page);
        for (std::size_t i = 0; i < problems.size(); ++i) {
            if (places[i] == page) {
                words.Add({problems[i].line});
                words.Add(KeyLines(problems[i]));
            }
        }
        shown.pages.push_back(
            {MarksInPixels(printer.PageMarks(page), shown.scale), words.Joined()});
    }
    return shown;
}

}  // namespace

Previewed PreviewOfTest(const HeadingLines& heading, MadeTest test, const Date& today) {
    const auto lines = std::make_shared<const std::vector<std::string>>(std::move(test.TestLines));
    Previewed preview{
        .caption = QStringLiteral("Print Preview"),
        .show = [heading, lines](
                    PaperSize paper, const TextMetrics& faces,
                    Learner& learner) { return TestPages(heading, *lines, paper, faces, learner); },
        .job = {.name = SuggestedName("Practice Test", today),
                .compose = [heading, lines](Surface& Printer, Learner& learner) {
                    PrintPracticeTest(heading, *lines, Printer, learner);
                }}};
    if (test.AnswerKey) {
        preview.answerKey = [heading, today, key = std::move(test.AnswerKey)] {
            return PreviewOfKey(heading, key(), today);
        };
    }
    return preview;
}

Previewed PreviewOfKey(const HeadingLines& heading, std::vector<WorkedProblem> problems,
                       const Date& today) {
    const auto worked = std::make_shared<const std::vector<WorkedProblem>>(std::move(problems));
    return {.caption = QStringLiteral("Answer Key"),
            .show =
                [heading, worked](PaperSize paper, const TextMetrics& faces, Learner& learner) {
                    return KeyPages(heading, *worked, paper, faces, learner);
                },
            .job = {.name = SuggestedName("Answer Key", today),
                    .compose = [heading, worked](Surface& Printer, Learner& learner) {
                        PrintAnswerKey(heading, *worked, Printer, learner);
                    }}};
}

}  // namespace numerello
