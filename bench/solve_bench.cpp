#include <benchmark/benchmark.h>

#include "app/solvers.h"
#include "bench/typed_problem.h"

namespace numerello {
namespace {

void SolveConversion(benchmark::State& state) {
    Problem problem = TypedProblemOf("Converting Inches To Yards", "40");
    SilentLearner learner;
    Stage stage;
    for (auto _ : state) {
        compute_Click(problem, AllSolvers(), learner, stage);
        benchmark::DoNotOptimize(problem.log.StepCount);
    }
}
BENCHMARK(SolveConversion);

void ChooseTypeAndSolve(benchmark::State& state) {
    SilentLearner learner;
    Stage stage;
    for (auto _ : state) {
        Problem problem = TypedProblemOf("Converting Inches To Yards", "40");
        compute_Click(problem, AllSolvers(), learner, stage);
        benchmark::DoNotOptimize(problem.log.StepCount);
    }
}
BENCHMARK(ChooseTypeAndSolve);

}  // namespace
}  // namespace numerello
