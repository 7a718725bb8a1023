#include <benchmark/benchmark.h>

#include "bench/typed_problem.h"
#include "catalogue/bare_form.h"
#include "catalogue/examples/example_click.h"

namespace numerello {
namespace {

/// A complex example made up and entered, at one moment of the hour after the other.
void ExampleOf(benchmark::State& state, std::string_view caption) {
    Problem problem = TypedProblemOf(caption, "");
    problem.settings.ComplexEx = 2;
    BareForm form(problem);
    Stage stage;
    MersenneSource digits;
    MersenneSource direct;
    int second = 0;
    for (auto _ : state) {
        const FixedClock clock(second / 60 * 100 + second % 60);
        second = (second + 1) % 3600;
        ExampleDraws draws(clock, digits, direct);
        example_Click(problem, stage, form, draws);
        benchmark::DoNotOptimize(problem.typed.ExprCharCount);
    }
}
BENCHMARK_CAPTURE(ExampleOf, column, "Addition");
BENCHMARK_CAPTURE(ExampleOf, similar_triangles, "Similar Triangles");
BENCHMARK_CAPTURE(ExampleOf, rounding, "Rounding");
BENCHMARK_CAPTURE(ExampleOf, fraction_arithmetic, "Fraction Arithmetic");
BENCHMARK_CAPTURE(ExampleOf, from_a_template, "Negative Exponents");
BENCHMARK_CAPTURE(ExampleOf, arithmetic, "Arithmetic");
BENCHMARK_CAPTURE(ExampleOf, exponents, "Calculating With Exponents");
BENCHMARK_CAPTURE(ExampleOf, roots, "Calculating Roots");
BENCHMARK_CAPTURE(ExampleOf, absolute_values, "Absolute Values");
BENCHMARK_CAPTURE(ExampleOf, brackets, "Complex Arithmetic Expressions");
BENCHMARK_CAPTURE(ExampleOf, polynomials, "Simplifying Polynomials");
BENCHMARK_CAPTURE(ExampleOf, many_letters, "Evaluating Polynomials");
BENCHMARK_CAPTURE(ExampleOf, equations, "Solving Equations");
BENCHMARK_CAPTURE(ExampleOf, linear_equations, "Graphing A Linear Equation");

}  // namespace
}  // namespace numerello
