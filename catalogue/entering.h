#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/problem.h"

/// Entering a whole problem in the learner's place.
namespace numerello {

struct EnteredProblem {
    std::vector<std::string> keys;  ///< for the line; some may be refused
    EntryBoxes boxes;               ///< boxes as they stand, and lists
};

/// The entry form while it is filled.
class FillingForm {
  public:
    virtual ~FillingForm() = default;

    /// Boxes and lists have been filled.
    virtual void ShowEntry() = 0;

    virtual void Form_KeyPress(std::string_view key) = 0;
    virtual void compute_Click() = 0;
};

/// Fills the open form, types the line of a topic that has one, and solves a problem that is ready.
void EnterAndSolve(const EnteredProblem& entered, Problem& problem, FillingForm& form);

}  // namespace numerello
