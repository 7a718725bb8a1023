#include <benchmark/benchmark.h>

#include <vector>

#include "app/solvers.h"
#include "bench/typed_problem.h"
#include "engine/number_forms.h"

namespace numerello {
namespace {

/// Solves the typed problems in turn, each time a fresh one.
void SolveInTurn(benchmark::State& state, const std::vector<Problem>& typed) {
    SilentLearner learner;
    Stage stage;
    std::size_t next = 0;
    for (auto _ : state) {
        Problem problem = typed[next];
        compute_Click(problem, AllSolvers(), learner, stage);
        benchmark::DoNotOptimize(problem.log.StepCount);
        next = (next + 1) % typed.size();
    }
    state.SetItemsProcessed(state.iterations());
}

void Solve(benchmark::State& state, const char* caption, const char* line) {
    SolveInTurn(state, {TypedProblemOf(caption, line)});
}
BENCHMARK_CAPTURE(Solve, Powers, "Complex Arithmetic Expressions", "2^3*(5-3)^2");
BENCHMARK_CAPTURE(Solve, Equation, "Arithmetic Principles", "3x-4=2x+5");
BENCHMARK_CAPTURE(Solve, Decimals, "Arithmetic", "3.1415+2.7182-1.4142");

/// Problems as a school book has them.
void SchoolProblems(benchmark::State& state) {
    constexpr const char* kEquations = "Arithmetic Principles";
    constexpr const char* kPolynomials = "Simplifying Polynomials";
    constexpr const char* kComplex = "Complex Arithmetic Expressions";
    constexpr const char* kFractions = "Fraction Arithmetic";
    SolveInTurn(
        state,
        {TypedProblemOf(kEquations, "2x+3=7"), TypedProblemOf(kEquations, "3x-4=2x+5"),
         TypedProblemOf(kEquations, "-x=4"), TypedProblemOf(kEquations, "2x+3=4x-5"),
         TypedProblemOf(kPolynomials, "3x+2x"), TypedProblemOf(kPolynomials, "2(x+3)"),
         TypedProblemOf(kPolynomials, "(x+1)*(x-1)"), TypedProblemOf("Arithmetic", "4+2*3-5"),
         TypedProblemOf(kComplex, "2*(3+4)*5"), TypedProblemOf(kFractions, "1/2+1/3"),
         TypedProblemOf(kFractions, "5/6+1/4-1/2"), TypedProblemOf(kComplex, "2^3*(5-3)^2"),
         TypedProblemOf("Absolute Values", "|-5|+3")});
}
BENCHMARK(SchoolProblems);

/// As many terms, products and brackets as the line takes.
void LongestLine(benchmark::State& state, const char* caption, const std::string& piece) {
    constexpr std::size_t kLongestLine = 480;
    std::string line = piece;
    while (line.size() + 1 + piece.size() <= kLongestLine) {
        line += "+" + piece;
    }
    Solve(state, caption, line.c_str());
}
BENCHMARK_CAPTURE(LongestLine, Numbers, "Arithmetic", "12345*2");
BENCHMARK_CAPTURE(LongestLine, Brackets, "Complex Arithmetic Expressions", "(2+3)*4^2");
BENCHMARK_CAPTURE(LongestLine, Letters, "Simplifying Polynomials", "3(x^2+2x)");
BENCHMARK_CAPTURE(LongestLine, Roots, "Calculating Roots", "99~99856~");

void LargestPrime(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(PrimeFactorList(2147483647));
    }
}
BENCHMARK(LargestPrime);

void LateDenominator(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(FirstDenominator(3.14159274F));
    }
}
BENCHMARK(LateDenominator);

}  // namespace
}  // namespace numerello
