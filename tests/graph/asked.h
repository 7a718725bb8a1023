#pragma once

#include <string>

#include "core/topic_codes.h"
#include "graph/graph.h"

namespace numerello {

/// A problem that asks for the graph of this equation, a character a cell.
inline Problem AskedEquation(const std::string& equation) {
    Problem problem;
    problem.topic.ProblemType = kGraphingAnEquation;
    problem.topic.TopicTitle = "Graphing A Linear Equation";
    problem.graph.GraphMode = kEquationGraph;
    for (std::size_t i = 0; i < equation.size(); ++i) {
        problem.typed.ExprVariants[static_cast<int>(i)] = equation.substr(i, 1);
    }
    return problem;
}

inline Problem AskedPoint(double x, double y) {
    Problem problem;
    problem.topic.ProblemType = kPlottingAPoint;
    problem.topic.TopicTitle = "Plotting A Point";
    problem.graph = {kOnePointGraph, x, y, 0, 0};
    return problem;
}

inline Problem AskedLine(double x1, double y1, double x2, double y2) {
    Problem problem;
    problem.topic.ProblemType = kLineThroughTwoPoints;
    problem.topic.TopicTitle = "Graphing A Line Using Two Points";
    problem.graph = {kTwoPointsGraph, x1, y1, x2, y2};
    return problem;
}

/// The graph of an equation in the range of a new window, zoomed out so many times.
inline Graph Drawn(const Problem& problem, const GraphSettings& settings, int zoomedOut = 0) {
    Graph graph(problem, settings);
    for (int i = 0; i < zoomedOut; ++i) {
        graph.Command2_Click();
    }
    for (int i = 0; i > zoomedOut; --i) {
        graph.Command1_Click();
    }
    graph.Redraw();
    return graph;
}

}  // namespace numerello
