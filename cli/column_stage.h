#pragma once

#include <optional>

#include "core/failure.h"
#include "core/learner.h"
#include "core/problem.h"
#include "core/stage.h"
#include "typeset/variants.h"

namespace numerello {

/// A page for column problems and nothing else, with plain metrics.
class ColumnStage : public Stage {
  public:
    /// Both must outlive the stage.
    ColumnStage(Problem& problem, Learner& learner);
    ColumnStage(const ColumnStage&) = delete;
    ColumnStage& operator=(const ColumnStage&) = delete;

    void DrawColumns() override;

    /// Whether a Next Step is left. A product that is never finished has its last one all the same.
    bool HasNext() const;

    /// Draws the next step; the failure that ended it, if any.
    std::optional<FailureKind> NextStep();

    /// What the last drawing left on the page, and whether it was the last of the work.
    const Surface& Page() const { return page; }
    bool Finished() const { return finished; }

  private:
    Problem& problem;
    Learner& learner;
    PlainMetrics metrics;
    Surface page{metrics, SheetFont()};
    int drawings = 0;
    bool finished = false;
};

}  // namespace numerello
