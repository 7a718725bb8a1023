#include "app/engine_solvers.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/graph_equation.h"
#include "engine/engine.h"

namespace numerello {

namespace {

void Simplify(SolveRun& run) {
    Engine engine(run.problem);
    engine.Open();
    engine.SimplifyExpression();
}

void SimplifyNegativeExponents(SolveRun& run) {
    Engine engine(run.problem);
    engine.Open();
    engine.CombineUntilStable(0);
    engine.SimplifyExpression();
}

void NotePowers(SolveRun& run) {
    Engine engine(run.problem);
    engine.Open();
    engine.PowerNotationTopic();
}

void CalculateRoots(SolveRun& run) {
    Engine engine(run.problem);
    engine.Open();
    engine.RootSequence();
}

/// Fractions for one solve, whatever the learner's setting.
class WithFractions {
  public:
    explicit WithFractions(AnswerSettings& settings)
        : settings(settings), before(std::exchange(settings.UseFractions, true)) {}
    ~WithFractions() { settings.UseFractions = before; }
    WithFractions(const WithFractions&) = delete;
    WithFractions& operator=(const WithFractions&) = delete;

  private:
    AnswerSettings& settings;
    bool before;
};

/// A fraction alone is left as it stands: kept as it is.
void CalculateFractions(SolveRun& run) {
    const WithFractions fractions(run.problem.settings);
    Engine engine(run.problem);
    engine.Open();
    const auto count = std::count_if(
        engine.Line().begin(), engine.Line().end(),
        [](const std::string& token) { return token.find('/') != std::string::npos; });
    if (engine.Tables().groups.front().terms.size() > 1 || count >= 2) {
        engine.FractionArithmetic(0);
    }
}

/// Both sides are simplified, then solved for the first letter.
void SolveEquation(SolveRun& run) {
    Engine engine(run.problem);
    engine.Open();
    engine.SimplifyBothSides();
    engine.SolveFor(run.problem.typed.VarNames.Get(1));
}

void Evaluate(SolveRun& run) {
    Engine engine(run.problem);
    engine.Open();
    engine.EvaluateTopic(run.learner);
}

constexpr auto kRows = std::to_array<SolverRow>({
    {150, SimplifyNegativeExponents},
    {122, SolveEquation},  // of no topic of the catalogue; kept
    {121, Simplify},
    {120, Simplify},
    {105, GraphEquation},
    {103, Evaluate},
    {102, Simplify},
    {101, SolveEquation},
    {91, Simplify},
    {83, NotePowers},
    {82, CalculateRoots},
    {81, Simplify},
    {76, CalculateFractions},
});

}  // namespace

std::span<const SolverRow> EngineSolvers() {
    return kRows;
}

}  // namespace numerello
