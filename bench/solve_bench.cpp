#include <benchmark/benchmark.h>

#include "app/solvers.h"
#include "catalogue/chooser.h"
#include "catalogue/guided_input.h"

namespace numerello {
namespace {

class SilentLearner : public Learner {
  public:
    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view) override { return std::nullopt; }
};

Problem TypedProblemOf(std::string_view caption, std::string_view keys) {
    Problem problem;
    MersenneSource random;
    Stage stage;
    TreeViewSelect(caption, problem.topic, SystemClock(), random);
    EraseProblem(problem, stage);
    for (const char key : keys) {
        Form_KeyPress(problem, std::string_view(&key, 1));
    }
    return problem;
}

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
