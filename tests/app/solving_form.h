#pragma once

#include "app/solvers.h"
#include "catalogue/guided_input.h"
#include "catalogue/saved_problem.h"
#include "core/erasing.h"
#include "core/solve_driver.h"
#include "tests/topics/typed_topic.h"

namespace numerello {

inline void Solve(Problem& problem) {
    SilentLearner learner;
    Stage stage;
    compute_Click(problem, AllSolvers(), learner, stage);
}

/// The entry form without its window.
class SolvingForm : public LoadingForm {
  public:
    explicit SolvingForm(Problem& problem) : problem(problem) {}

    void Open() override {
        opened = true;
        Stage stage;
        EraseProblem(problem, stage);
    }
    void ShowEntry() override {}
    void Form_KeyPress(std::string_view key) override { numerello::Form_KeyPress(problem, key); }
    void compute_Click() override { Solve(problem); }
    void TellStatus(std::string_view) override {}

    bool opened = false;

  private:
    Problem& problem;
};

}  // namespace numerello
