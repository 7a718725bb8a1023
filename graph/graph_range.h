#pragma once

namespace numerello {

/// The part of the plane that is shown.
struct GraphRange {
    double GraphXMin = -20;
    double GraphXMax = 20;
    double GraphYMin = -20;
    double GraphYMax = 20;

    /// All four bounds are halved or doubled, between 5 and 81920; beyond that nothing happens.
    void ZoomIn();
    void ZoomOut();
    bool CanZoomIn() const;
    bool CanZoomOut() const;

    /// Whether a line at every whole number can still be told from its neighbours.
    bool HasGrid() const;

    /// The distance between two computed x values, for a GraphQuality of 1 or 20.
    double Step(int GraphQuality) const;

    bool operator==(const GraphRange&) const = default;
};

}  // namespace numerello
