#pragma once

#include "core/problem.h"

/// The refusals that several topics share, each a line with its reason.
namespace numerello {

void RefuseDivisionByZero(StepLog& log);
void RefuseFractionOverZero(StepLog& log);

void RefuseSides(StepLog& log);
void RefuseTriangleSides(StepLog& log);
void RefuseRadius(StepLog& log);

}  // namespace numerello
