#include <benchmark/benchmark.h>

#include "columns/steps.h"
#include "core/silent_learner.h"

namespace numerello {
namespace {

/// One redraw from nothing that shows a whole problem: the longest that a step has to draw.
void Redraw(benchmark::State& state, bool ColumnRequest::*flag, const char* Text1,
            const char* Text2) {
    const PlainMetrics metrics;
    Surface page(metrics, {std::string(kSheetFace), 12});
    SilentLearner learner;
    Problem problem;
    problem.columns.*flag = true;
    problem.settings.mnuShowStep = false;
    problem.boxes.Text[0] = Text1;
    problem.boxes.Text[1] = Text2;
    for (auto _ : state) {
        problem.playback.ShowAllSteps = -1;
        StepColumns(problem, page, learner, [] {});
        benchmark::DoNotOptimize(page.Marks().data());
    }
    state.counters["marks"] = static_cast<double>(page.Marks().size());
}

BENCHMARK_CAPTURE(Redraw, addition, &ColumnRequest::ColumnAdd, "9999999999", "9999999999")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redraw, subtraction, &ColumnRequest::ColumnSubtract, "2111111110", "1222222222")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redraw, multiplication, &ColumnRequest::ColumnMultiply, "9999999999",
                  "9999999999")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redraw, division, &ColumnRequest::ColumnDivide, "2147483647", "1")
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace numerello
