#pragma once

#include "core/learner.h"
#include "core/problem.h"
#include "core/stage.h"

namespace numerello {

/// Wipes problem and sheets: the state in which the topic's entry form opens.
void EraseProblem(Problem& problem, Stage& stage);

/// Asks, then erases. False when the learner did not agree.
bool clear_Click(Problem& problem, Learner& learner, Stage& stage);

}  // namespace numerello
