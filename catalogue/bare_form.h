#pragma once

#include <functional>
#include <utility>

#include "catalogue/guided_input.h"
#include "catalogue/saved_problem.h"
#include "core/erasing.h"
#include "core/problem.h"
#include "core/stage.h"

namespace numerello {

/// The entry form without a window: keys go through the filter, and Solve does what it is told to,
/// or nothing.
class BareForm : public LoadingForm {
  public:
    /// The problem must outlive the form.
    explicit BareForm(Problem& problem, std::function<void()> solve = {})
        : problem(problem), solve(std::move(solve)) {}

    void Open() override {
        Stage noStage;
        EraseProblem(problem, noStage);
    }
    void ShowEntry() override {}
    void Form_KeyPress(std::string_view key) override { numerello::Form_KeyPress(problem, key); }
    void compute_Click() override {
        if (solve) {
            solve();
        }
    }
    void TellStatus(std::string_view /*text*/) override {}

  private:
    Problem& problem;
    std::function<void()> solve;
};

}  // namespace numerello
