#pragma once

namespace numerello {

/// What the driver asks of the sheets and windows around the problem. The command line has none.
class Stage {
  public:
    virtual ~Stage() = default;

    virtual void CloseGraph() {}
    virtual void CloseExplanation() {}

    /// Shows the line that ShownStep points at, or all lines.
    virtual void ShowNextStep() {}

    /// Draws the next step of the column request.
    virtual void DrawColumns() {}

    /// Blanks the sheets 0 to CurrentPage, leaves the first alone and puts the pencil beside it.
    virtual void BlankSheets() {}
};

}  // namespace numerello
