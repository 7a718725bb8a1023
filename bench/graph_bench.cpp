#include <benchmark/benchmark.h>

#include <QAction>
#include <QPixmap>

#include "core/topic_codes.h"
#include "ui/frm_graph.h"

namespace numerello {
namespace {

Problem Asked(const std::string& equation) {
    Problem problem;
    problem.topic.ProblemType = kGraphingAnEquation;
    problem.graph.GraphMode = kEquationGraph;
    problem.typed.ExprVariants[0] = equation;
    return problem;
}

/// Points and display list of the finest curve in the first range: 4000 of them.
void RedrawnFinest(benchmark::State& state, const char* equation) {
    GraphSettings settings;
    settings.GraphQuality = kHighQuality;
    Graph graph(Asked(equation), settings);
    for (auto _ : state) {
        graph.Redraw();
        benchmark::DoNotOptimize(graph.Picture().marks.data());
    }
    state.counters["points"] = static_cast<double>(graph.ThePlot().points.size());
}
BENCHMARK_CAPTURE(RedrawnFinest, line, "+1/1y^+1=+2/3x+3/1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RedrawnFinest, branches, "+1/1y^+2=+1/1x")->Unit(benchmark::kMillisecond);

/// "Highest Quality" until the window is painted anew, the coordinate list included.
void WindowRedrawnFinest(benchmark::State& state, const char* equation) {
    GraphSettings settings;
    FrmGraph form(Asked(equation), settings, nullptr);
    form.setAttribute(Qt::WA_DeleteOnClose, false);
    form.Open();
    auto* finest = form.findChild<QAction*>(QStringLiteral("mnuGraphHighQuality"));
    for (auto _ : state) {
        finest->trigger();
        benchmark::DoNotOptimize(form.grab());
    }
    state.counters["points"] = static_cast<double>(form.Shown().ThePlot().points.size());
}
BENCHMARK_CAPTURE(WindowRedrawnFinest, line, "+1/1y^+1=+2/3x+3/1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WindowRedrawnFinest, branches, "+1/1y^+2=+1/1x")->Unit(benchmark::kMillisecond);

/// The same where the grid is closest.
void WindowRedrawnAt160(benchmark::State& state) {
    GraphSettings settings;
    FrmGraph form(Asked("+1/1y^+1=+2/3x+3/1"), settings, nullptr);
    form.setAttribute(Qt::WA_DeleteOnClose, false);
    form.Open();
    auto* zoomOut = form.findChild<QAction*>(QStringLiteral("mnuGraphZoomOut"));
    for (int i = 0; i < 3; ++i) {
        zoomOut->trigger();
    }
    auto* finest = form.findChild<QAction*>(QStringLiteral("mnuGraphHighQuality"));
    for (auto _ : state) {
        finest->trigger();
        benchmark::DoNotOptimize(form.grab());
    }
}
BENCHMARK(WindowRedrawnAt160)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace numerello
