#include <benchmark/benchmark.h>

#include <string>

#include "app/solvers.h"
#include "bench/typed_problem.h"

namespace numerello {
namespace {

/// The line is full with 480 characters.
constexpr std::size_t kLongestList = 480;

/// The entries over and over, as many as the line takes.
std::string LongList(std::string_view entries) {
    std::string list(entries);
    while (list.size() + 1 + entries.size() <= kLongestList) {
        list.append(",").append(entries);
    }
    return list;
}

/// All numbers of two digits, none beside its neighbour.
std::string TwoDigitNumbers() {
    std::string list;
    for (int i = 0; list.size() + 3 <= kLongestList; ++i) {
        const int number = i * 37 % 100;
        list += list.empty() ? "" : ",";
        list += static_cast<char>('0' + number / 10);
        list += static_cast<char>('0' + number % 10);
    }
    return list;
}

/// Solves a problem that takes longer than any other of its kind that the topic's filter lets in;
/// `place` is the row of the rounding list.
void Slowest(benchmark::State& state, const char* caption, const std::string& line, int place = 0) {
    Problem problem = TypedProblemOf(caption, line);
    if (problem.typed.ProblemText != line) {
        state.SkipWithError("the filter refuses a key");
        return;
    }
    problem.boxes.ListIndex[2] = place;
    SilentLearner learner;
    Stage stage;
    for (auto _ : state) {
        compute_Click(problem, AllSolvers(), learner, stage);
        benchmark::DoNotOptimize(problem.log.StepCount);
    }
}

BENCHMARK_CAPTURE(Slowest, ten_digits_in_words, "Expanded Notation", "2222222222");
BENCHMARK_CAPTURE(Slowest, rounding_to_tens, "Rounding", "12345678.99", 2);
BENCHMARK_CAPTURE(Slowest, rounding_to_hundredths, "Rounding", "99999999.99", 5);
BENCHMARK_CAPTURE(Slowest, rounding_bars_that_fail, "Rounding", "|99999999.99|", 5);
BENCHMARK_CAPTURE(Slowest, comparing_eight_digits, "Comparing Values", "-99999999,-99999998");
BENCHMARK_CAPTURE(Slowest, multiples_of_eight_digits, "Multiples", "98765432");
BENCHMARK_CAPTURE(Slowest, factors_128_of_them, "Factoring", "83160");
BENCHMARK_CAPTURE(Slowest, composite_with_128_factors, "Prime/Composite", "83160");
BENCHMARK_CAPTURE(Slowest, largest_prime_of_five_digits, "Prime/Composite", "99991");
BENCHMARK_CAPTURE(Slowest, factorization_of_the_largest_prime, "Prime Factorization", "99991");
BENCHMARK_CAPTURE(Slowest, factorization_in_15_lines, "Prime Factorization", "65536");
BENCHMARK_CAPTURE(Slowest, reciprocal_of_ten_digits, "Reciprocals", "99999/99998");
BENCHMARK_CAPTURE(Slowest, gcf_of_240_numbers, "Greatest Common Factors",
                  LongList("2,3,4,5,6,7,8,9"));
BENCHMARK_CAPTURE(Slowest, gcf_of_80_numbers, "Greatest Common Factors", LongList("32760"));
BENCHMARK_CAPTURE(Slowest, lcm_of_240_numbers, "Least Common Multiples",
                  LongList("7,1,5,4,9,8,2,6,3,5"));
BENCHMARK_CAPTURE(Slowest, lcm_of_80_numbers, "Least Common Multiples", LongList("46340,46341"));
BENCHMARK_CAPTURE(Slowest, mean_of_240_numbers, "Means (Averages)", LongList("3"));
BENCHMARK_CAPTURE(Slowest, median_of_240_numbers, "Medians", LongList("8,4,2,5,1,0,7,9,3,6"));
BENCHMARK_CAPTURE(Slowest, mode_of_160_numbers, "Modes", TwoDigitNumbers());
BENCHMARK_CAPTURE(Slowest, range_of_240_numbers, "Ranges", LongList("8,4,2,5,1,0,7,9,3,6"));
BENCHMARK_CAPTURE(Slowest, quadrant_of_a_far_point, "Calculating A Point's Quadrant",
                  "(-99999,-99999)");
BENCHMARK_CAPTURE(Slowest, plotting_a_far_point, "Plotting A Point", "(-99999,-99999)");
BENCHMARK_CAPTURE(Slowest, line_through_far_points, "Graphing A Line Using Two Points",
                  "(-99999,-99999)-(-99999,-99998)");

}  // namespace
}  // namespace numerello
