#include "app/solvers.h"
#include "cli/answering_learner.h"
#include "cli/column_stage.h"
#include "cli/entry_fields.h"
#include "cli/mark_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"
#include "core/text.h"
#include "graph/graph_terms.h"
#include "typeset/variants.h"
#include "worksheet/number_line.h"

namespace numerello {

namespace {

Json Lines(const StepLog& log) {
    Json lines = Json::array();
    for (int i = 1; i < log.StepCount; ++i) {
        lines.push_back({{"text", log.StepText[i]}, {"note", log.StepNote[i]}});
    }
    return lines;
}

/// What the topic draws beside its lines.
Json Drawing(const Problem& problem) {
    const PlainMetrics metrics;
    Surface sheet(metrics, SheetFont());
    if (const auto& line = problem.playback.NumberLine) {
        DrawNumberLine(sheet, line->A, line->B);
    }
    return MarksOf(sheet);
}

/// The graph request as a playback to the end leaves it.
Json Graph(const Problem& problem) {
    const GraphRequest& graph = problem.graph;
    if (graph.GraphMode == 0) {
        return nullptr;
    }
    return {{"mode", graph.GraphMode},         {"x1", JsonNumber(graph.GraphX1)},
            {"y1", JsonNumber(graph.GraphY1)}, {"x2", JsonNumber(graph.GraphX2)},
            {"y2", JsonNumber(graph.GraphY2)}, {"equation", EquationText(problem.typed)}};
}

}  // namespace

void SolveRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    const Entry entry = ReadEntry(fields);
    AnsweringLearner learner(fields.Strings("answers", std::nullopt));
    fields.RejectOthers();

    Json refused = Enter(problem, entry);
    const bool solvable = problem.controls.SolveEnabled;
    std::optional<FailureKind> failure;
    if (solvable) {
        ColumnStage stage(problem, learner);
        failure = compute_Click(problem, AllSolvers(), learner, stage);
    }
    answer["ok"] = true;
    answer["code"] = problem.topic.ProblemType;
    answer["problem"] = problem.typed.ProblemText;
    answer["refused"] = std::move(refused);
    answer["solvable"] = solvable;
    answer["lines"] = Lines(problem.log);
    answer["messages"] = learner.Messages();
    answer["prompts"] = learner.Prompts();
    answer["failure"] = failure ? Json(FailureName(*failure)) : Json(nullptr);
    answer["drawing"] = Drawing(problem);
    answer["graph"] = Graph(problem);
}

}  // namespace numerello
