#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "app/solvers.h"
#include "bench/typed_problem.h"
#include "catalogue/box_keys.h"

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

void SolveOverAndOver(benchmark::State& state, Problem& problem) {
    SilentLearner learner;
    Stage stage;
    for (auto _ : state) {
        compute_Click(problem, AllSolvers(), learner, stage);
        benchmark::DoNotOptimize(problem.log.StepCount);
    }
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
    SolveOverAndOver(state, problem);
}

/// The same of a topic with boxes: what is typed into Text1, Text2 and so on.
void SlowestBoxes(benchmark::State& state, const char* caption,
                  const std::vector<std::string>& boxes) {
    Problem problem = TypedProblemOf(caption, "");
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (const char key : boxes[i]) {
            BoxKey(problem, static_cast<int>(i) + 1, std::string_view(&key, 1));
        }
        if (problem.boxes.Text[i] != boxes[i]) {
            state.SkipWithError("the rule of the boxes refuses a key");
            return;
        }
    }
    if (!problem.controls.SolveEnabled) {
        state.SkipWithError("the boxes make no problem");
        return;
    }
    SolveOverAndOver(state, problem);
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
BENCHMARK_CAPTURE(Slowest, simplifying_five_digits, "Simplifying Fractions", "77792/17258");
BENCHMARK_CAPTURE(Slowest, ratio_of_decimals, "Ratios", "99999.99:99999.98");
BENCHMARK_CAPTURE(Slowest, fraction_to_mixed, "Fraction To Mixed Notation", "75641/473");
BENCHMARK_CAPTURE(Slowest, mixed_to_fraction, "Mixed To Fraction Notation", "99999+75025/46368");
BENCHMARK_CAPTURE(Slowest, fraction_to_decimal, "Fraction To Decimal Notation", "03019/6994");
BENCHMARK_CAPTURE(Slowest, fraction_to_percent, "Fraction To Percent Notation", "82919.74/8845.01");
BENCHMARK_CAPTURE(Slowest, decimal_to_fraction, "Decimal To Fraction Notation", "99999.98");
BENCHMARK_CAPTURE(Slowest, fraction_for_a_decimal_that_fails, "Decimal To Fraction Notation",
                  "99999/99998");
BENCHMARK_CAPTURE(Slowest, decimal_to_percent, "Decimal To Percent Notation", "99999.99");
BENCHMARK_CAPTURE(Slowest, percent_to_decimal, "Percent To Decimal Notation", "99999.99%");
BENCHMARK_CAPTURE(Slowest, percent_to_fraction, "Percent To Fraction Notation", "99999.98%");
BENCHMARK_CAPTURE(Slowest, regular_to_scientific, "Converting Regular To Scientific Notation",
                  "-99999.99");
BENCHMARK_CAPTURE(Slowest, angle_of_five_digits, "Straight/Obtuse/Right/Acute Angles", "00179");

using Boxes = std::vector<std::string>;
BENCHMARK_CAPTURE(SlowestBoxes, proportion, "Proportions",
                  (Boxes{"", "1234567.89", "9876543210", "7.65432101"}));
BENCHMARK_CAPTURE(SlowestBoxes, amount_of_base, "Amount = N% of Base",
                  (Boxes{"9876543.21", "", "", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, work_rate_time, "Work = Rate * Time",
                  (Boxes{"9876543.21", "", "", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, distance_speed_time, "Distance = Speed * Time",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, power_that_overflows, "Converting Scientific To Regular Notation",
                  (Boxes{"9.87654321", "999999999"}));
BENCHMARK_CAPTURE(SlowestBoxes, multiplying_scientific, "Multiplying Scientific Notation",
                  (Boxes{"9.87654321", "-999999999", "1234567891", "-999999999"}));
BENCHMARK_CAPTURE(SlowestBoxes, dividing_scientific, "Dividing Scientific Notation",
                  (Boxes{"9.87654321", "-999999999", "1234567891", "-999999999"}));
BENCHMARK_CAPTURE(SlowestBoxes, similar_triangles, "Similar Triangles",
                  (Boxes{"9876543.21", "1234567.89", "9876543210", "76543.2101"}));
BENCHMARK_CAPTURE(SlowestBoxes, similar_triangles_that_fail, "Similar Triangles",
                  (Boxes{"45492115.1", "45492115.1", "1", "7439977.01"}));
BENCHMARK_CAPTURE(SlowestBoxes, right_triangle, "Pythagorean Theorem",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, triangle_perimeter, "Perimeter of a Triangle",
                  (Boxes{"9876543.21", "1234567.89", "9876543210"}));
BENCHMARK_CAPTURE(SlowestBoxes, rectangle_perimeter, "Perimeter of a Square/Rectangle",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, circumference_by_radius, "Calculating Circumference Using Radius",
                  (Boxes{"", "9876543.21"}));
BENCHMARK_CAPTURE(SlowestBoxes, circumference_by_diameter,
                  "Calculating Circumference Using Diameter", (Boxes{"", "9876543.21"}));
BENCHMARK_CAPTURE(SlowestBoxes, diameter, "Calculating Diameter Using Radius",
                  (Boxes{"", "9876543.21"}));
BENCHMARK_CAPTURE(SlowestBoxes, radius, "Calculating Radius Using Diameter",
                  (Boxes{"", "9876543.21"}));
BENCHMARK_CAPTURE(SlowestBoxes, rectangle_area, "Area of a Square/Rectangle",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, circle_area, "Area of a Circle", (Boxes{"", "9876543.21"}));
BENCHMARK_CAPTURE(SlowestBoxes, triangle_area, "Area of a Triangle",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, parallelogram_area, "Area of a Parallelogram",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, trapezoid_area, "Area of a Trapezoid",
                  (Boxes{"9876543.21", "1234567.89", "9876543210"}));
BENCHMARK_CAPTURE(SlowestBoxes, box_volume, "Volume of a Box/Cube",
                  (Boxes{"9876543.21", "1234567.89", "9876543210"}));
BENCHMARK_CAPTURE(SlowestBoxes, cylinder_volume, "Volume of a Cylinder",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, cone_volume, "Volume of a Cone",
                  (Boxes{"9876543.21", "1234567.89"}));
BENCHMARK_CAPTURE(SlowestBoxes, pyramid_volume, "Volume of a Pyramid",
                  (Boxes{"9876543.21", "1234567.89", "9876543210"}));
BENCHMARK_CAPTURE(SlowestBoxes, sphere_volume, "Volume of a Sphere", (Boxes{"", "9876543.21"}));

}  // namespace
}  // namespace numerello
