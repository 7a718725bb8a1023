#pragma once

#include "core/learner.h"
#include "core/problem.h"
#include "core/stage.h"
#include "typeset/surface.h"

namespace numerello {

/// A page for column problems and nothing else, with plain metrics.
class ColumnStage : public Stage {
  public:
    /// Both must outlive the stage.
    ColumnStage(Problem& problem, Learner& learner);

    void DrawColumns() override;

    /// What the last drawing left on the page, and whether it was the last of the work.
    const Surface& Page() const { return page; }
    bool Finished() const { return finished; }

  private:
    Problem& problem;
    Learner& learner;
    PlainMetrics metrics;
    Surface page{metrics, {std::string(kSheetFace), 12}};
    bool finished = false;
};

}  // namespace numerello
