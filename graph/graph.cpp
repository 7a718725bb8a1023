#include "graph/graph.h"

#include "core/failure.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

std::optional<GraphTerms> TermsOf(const TypedProblem& typed) {
    try {
        return ReadGraphTerms(EquationText(typed));
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}  // namespace

Graph::Graph(const Problem& problem, const GraphSettings& settings)
    : settings(settings), showsQuadrants(problem.topic.ProblemType == kPointsQuadrant) {
    TakeRequest(problem);
    Redraw();
}

void Graph::TakeRequest(const Problem& problem) {
    title = problem.topic.TopicTitle;
    request = problem.graph;
    terms = TermsOf(problem.typed);
}

void Graph::Command1_Click() {
    range.ZoomIn();
}

void Graph::Command2_Click() {
    range.ZoomOut();
}

void Graph::Redraw() {
    plot = PlotOf(request, terms, range, GraphStep());
    picture = PictureOf(plot, range, settings, showsQuadrants);
}

}  // namespace numerello
