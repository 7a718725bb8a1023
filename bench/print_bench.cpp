#include <benchmark/benchmark.h>

#include <QPixmap>
#include <vector>

#include "app/solvers.h"
#include "core/silent_learner.h"
#include "ui/frm_print_preview.h"
#include "ui/test_maker.h"

namespace numerello {
namespace {

constexpr Date kDay{.year = 2026, .month = 11, .day = 21};

/// As long as the outline allows.
std::vector<TestRow> LongestOutline() {
    std::vector<TestRow> rows;
    for (const char* topic : {"Addition", "Division", "Arithmetic", "Fraction Arithmetic",
                              "Calculating Roots", "Solving Equations", "Simplifying Polynomials",
                              "Means (Averages)", "Rounding", "Volume of a Cylinder"}) {
        rows.push_back({topic, kMostProblemsOfRow, true});
    }
    return rows;
}

struct Office {
    SystemClock clock;
    AnswerSettings settings;
    TestMaker makeTest = MakerOfTests(clock, settings);
    HeadingLines heading = HeadingAtOpening("Practice Test", kDay);
    PrintDevice device;
    SilentLearner learner;

    MadeTest Make() const { return makeTest(LongestOutline()); }

    qsizetype Pdf(const PrintJob& job) {
        const ComposedJob composed(job, kA4, learner);
        return PdfOf(composed, UsualLayout(), job.name).value().size();
    }
};

/// From the press of the button to the file: made up, previewed, shown and written.
void TestMadePreviewedAndWritten(benchmark::State& state) {
    Office office;
    for (auto _ : state) {
        Previewed preview = PreviewOfTest(office.heading, office.Make(), kDay);
        const PrintJob job = preview.job;
        FrmPrintPreview form(std::move(preview), office.device);
        benchmark::DoNotOptimize(form.grab());
        benchmark::DoNotOptimize(office.Pdf(job));
    }
}
BENCHMARK(TestMadePreviewedAndWritten)->Unit(benchmark::kMillisecond);

void KeyWorkedAndWritten(benchmark::State& state) {
    Office office;
    const MadeTest test = office.Make();
    for (auto _ : state) {
        const Previewed preview = PreviewOfKey(office.heading, test.AnswerKey(), kDay);
        benchmark::DoNotOptimize(office.Pdf(preview.job));
    }
}
BENCHMARK(KeyWorkedAndWritten)->Unit(benchmark::kMillisecond);

/// No problem prints more marks than a long division, and each is measured before it is printed.
void KeyOfDivisionsWritten(benchmark::State& state) {
    Office office;
    const std::vector<TestRow> divisions(kTestRows, {"Division", kMostProblemsOfRow, true});
    const MadeTest test = office.makeTest(divisions);
    for (auto _ : state) {
        const Previewed preview = PreviewOfKey(office.heading, test.AnswerKey(), kDay);
        benchmark::DoNotOptimize(office.Pdf(preview.job));
    }
}
BENCHMARK(KeyOfDivisionsWritten)->Unit(benchmark::kMillisecond);

/// A click on Next Page until the page is painted.
void PageTurned(benchmark::State& state) {
    Office office;
    FrmPrintPreview form(PreviewOfTest(office.heading, office.Make(), kDay), office.device);
    form.show();
    const auto pictures = form.findChildren<PreviewPicture*>();
    qsizetype page = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(pictures[page]->grab());
        page = (page + 1) % pictures.size();
    }
}
BENCHMARK(PageTurned)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace numerello
