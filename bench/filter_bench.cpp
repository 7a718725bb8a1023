#include <benchmark/benchmark.h>

#include "bench/typed_problem.h"

namespace numerello {
namespace {

/// The 60th character of a full line goes in and is taken back: two keys.
void LastKeyOfAFullLine(benchmark::State& state, const char* caption, std::string_view line) {
    Problem problem = TypedProblemOf(caption, line);
    if (problem.typed.ExprCharCount != 59) {
        state.SkipWithError("the line has not 59 characters");
        return;
    }
    for (auto _ : state) {
        Form_KeyPress(problem, "2");
        Form_KeyPress(problem, kBackspace);
        benchmark::DoNotOptimize(problem.typed.DisplayLine);
    }
    state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK_CAPTURE(LastKeyOfAFullLine, numbers, "Arithmetic",
                  "12*34+56/78-90*12+34-56/78+90*12-34+56/78-90*12+34-56/78+90");
BENCHMARK_CAPTURE(LastKeyOfAFullLine, polynomial, "Simplifying Polynomials",
                  "9(3x^2+8^2)-3/4+4x-(x^2-7)/5+2(x+1)^2/3-x^3+12x/7+(x-4)/2+9");

void RefusedKey(benchmark::State& state) {
    Problem problem = TypedProblemOf("Simplifying Polynomials", "9(3x^2+8^2)-3/4+4x-(x^2-7)");
    for (auto _ : state) {
        Form_KeyPress(problem, ")");
        benchmark::DoNotOptimize(problem.input.InputError);
    }
}
BENCHMARK(RefusedKey);

}  // namespace
}  // namespace numerello
