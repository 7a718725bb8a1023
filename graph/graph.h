#pragma once

#include <optional>
#include <string>

#include "graph/graph_settings.h"
#include "graph/graph_terms.h"
#include "graph/picture.h"
#include "graph/plot.h"

namespace numerello {

/// One graph: what was asked for, the range that is shown of it, and what is to be drawn. It copies
/// the request, so that the problem may go on to the next one under it.
class Graph {
  public:
    /// The range is that of a new window; quadrants are numbered for the topic that asks for one.
    /// The settings must outlive the graph.
    Graph(const Problem& problem, const GraphSettings& settings);

    /// Asks for what the problem asks for now. Range and numerals stay.
    void TakeRequest(const Problem& problem);

    void Command1_Click();  ///< zooms in
    void Command2_Click();  ///< zooms out
    void ShowQuadrants(bool shown) { showsQuadrants = shown; }

    /// Computes and draws everything anew, by the settings as they are now. Called by the
    /// constructor; to be called after every change.
    void Redraw();

    const std::string& TopicTitle() const { return title; }
    const GraphRequest& Request() const { return request; }
    const std::optional<GraphTerms>& Terms() const { return terms; }
    const GraphRange& Range() const { return range; }
    double GraphStep() const { return range.Step(settings.GraphQuality); }
    bool ShowsQuadrants() const { return showsQuadrants; }

    const Plot& ThePlot() const { return plot; }
    const GraphPicture& Picture() const { return picture; }

  private:
    const GraphSettings& settings;
    std::string title;
    GraphRequest request;
    std::optional<GraphTerms> terms;  ///< nothing for an equation that cannot be read
    GraphRange range;
    bool showsQuadrants = false;
    Plot plot;
    GraphPicture picture;
};

}  // namespace numerello
