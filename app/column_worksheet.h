#pragma once

#include "worksheet/worksheet.h"

namespace numerello {

/// A worksheet that also works column problems.
class ColumnWorksheet : public Worksheet {
  public:
    /// All three must outlive the worksheet.
    ColumnWorksheet(Problem& problem, const TextMetrics& metrics, Learner& learner);

  protected:
    void StepColumns() override;

  private:
    Problem& problem;
    Learner& learner;
};

}  // namespace numerello
