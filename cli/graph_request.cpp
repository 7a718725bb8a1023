#include "app/solvers.h"
#include "cli/answering_learner.h"
#include "cli/entry_fields.h"
#include "cli/mark_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "graph/coordinate_list.h"
#include "graph/graph.h"

namespace numerello {

namespace {

/// Presses past the limits change nothing, so that a request may ask for any number of them.
constexpr long kMostPresses = 1'000'000'000;

/// What the learner does to the window of the graph.
struct View {
    long zoom;  ///< presses of the button that zooms out; of the other one when negative
    int quality;
};

View ReadView(Fields& fields) {
    const View view{
        fields.Integer("zoom", {-kMostPresses, kMostPresses}, 0),
        static_cast<int>(fields.Integer("quality", {kHighQuality, kHighSpeed}, kHighSpeed))};
    if (view.quality != kHighQuality && view.quality != kHighSpeed) {
        throw BadRequest("\"quality\" must be 1 or 20");
    }
    return view;
}

void RequireGraph(const Problem& problem) {
    const int code = problem.topic.ProblemType;
    if (code < kGraphingAnEquation || code > kPlottingAPoint) {
        throw BadRequest(Text("\"", problem.topic.TopicTitle, "\" has no graph"));
    }
}

void Zoom(Graph& graph, long presses) {
    for (; presses > 0 && graph.Range().CanZoomOut(); --presses) {
        graph.Command2_Click();
    }
    for (; presses < 0 && graph.Range().CanZoomIn(); ++presses) {
        graph.Command1_Click();
    }
}

void AddGraph(Json& answer, const Graph& graph) {
    const GraphRange& range = graph.Range();
    answer["range"] = {JsonNumber(range.GraphXMin), JsonNumber(range.GraphXMax),
                       JsonNumber(range.GraphYMin), JsonNumber(range.GraphYMax)};
    answer["step"] = JsonNumber(graph.GraphStep());
    answer["grid"] = range.HasGrid();
    answer["mode"] = graph.Request().GraphMode;
    Json points = Json::array();
    Json list = Json::array();
    const Plot& plot = graph.ThePlot();
    for (std::size_t i = 0; i < plot.points.size(); ++i) {
        points.push_back({JsonNumber(plot.points[i].x), JsonNumber(plot.points[i].y)});
        list.push_back(CoordinateEntry(plot, static_cast<int>(i)));
    }
    answer["points"] = std::move(points);
    answer["list"] = std::move(list);
}

}  // namespace

void GraphingRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    const Entry entry = ReadEntry(fields);
    AnsweringLearner learner(fields.Strings("answers", std::nullopt));
    const View view = ReadView(fields);
    fields.RejectOthers();
    RequireGraph(problem);

    Enter(problem, entry);
    const bool solvable = problem.controls.SolveEnabled;
    std::optional<FailureKind> failure;
    if (solvable) {
        Stage stage;
        failure = compute_Click(problem, AllSolvers(), learner, stage);
    }
    answer["ok"] = true;
    answer["code"] = problem.topic.ProblemType;
    answer["solvable"] = solvable;
    answer["failure"] = failure ? Json(FailureName(*failure)) : Json(nullptr);
    answer["messages"] = learner.Messages();
    if (solvable && !failure) {
        const GraphSettings settings{.GraphQuality = view.quality};
        Graph graph(problem, settings);
        Zoom(graph, view.zoom);
        graph.Redraw();
        AddGraph(answer, graph);
    }
}

}  // namespace numerello
