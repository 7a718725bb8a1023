#include <utility>

#include "app/column_solvers.h"
#include "app/solvers.h"
#include "cli/answering_learner.h"
#include "cli/column_stage.h"
#include "cli/entry_fields.h"
#include "cli/mark_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"
#include "core/text.h"

namespace numerello {

namespace {

/// The first drawing, and one for each Next Step up to the check mark.
class FilmedColumns {
  public:
    FilmedColumns(Problem& problem, Learner& learner)
        : problem(problem), learner(learner), stage(problem, learner) {}

    std::optional<FailureKind> Play() {
        auto failure = compute_Click(problem, AllSolvers(), learner, stage);
        while (!failure) {
            frames.push_back(Frame());
            if (!stage.HasNext()) {
                break;
            }
            failure = stage.NextStep();
        }
        return failure;
    }

    Json TakeFrames() { return std::move(frames); }

  private:
    Json Frame() const {
        const Playback& playback = problem.playback;
        return {{"note", problem.log.StepNote.Get(playback.ShownStep)},
                {"marks", MarksOf(stage.Page())},
                {"end", {Rounded(playback.LineEndX), Rounded(playback.LineEndY)}},
                {"finished", stage.Finished()}};
    }

    Problem& problem;
    Learner& learner;
    ColumnStage stage;
    Json frames = Json::array();
};

void RequireColumns(const Problem& problem) {
    if (Solvers{ColumnSolvers(), nullptr}.Find(problem.topic.ProblemType) == nullptr) {
        throw BadRequest(Text("\"", problem.topic.TopicTitle, "\" is not worked in columns"));
    }
}

}  // namespace

void ColumnsRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    const Entry entry = ReadBoxes(fields);
    fields.RejectOthers();
    RequireColumns(problem);

    Json refused = Enter(problem, entry);
    const bool solvable = problem.controls.SolveEnabled;
    AnsweringLearner learner;
    FilmedColumns film(problem, learner);
    const std::optional<FailureKind> failure = solvable ? film.Play() : std::nullopt;
    answer["ok"] = true;
    answer["code"] = problem.topic.ProblemType;
    answer["refused"] = std::move(refused);
    answer["solvable"] = solvable;
    answer["frames"] = film.TakeFrames();
    answer["messages"] = learner.Messages();
    answer["failure"] = failure ? Json(FailureName(*failure)) : Json(nullptr);
}

}  // namespace numerello
