#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "typeset/sheets.h"

namespace numerello {

/// One sheet of paper. Lengths are sheet pixels.
struct Sheet {
    Surface surface;    ///< what is drawn on it
    int newSheets = 0;  ///< how often an empty sheet took its place
    std::string title;
    double left = 0;  ///< on the desk, whose origin is the top left corner of the view
    double top = 0;
    double width = 0;  ///< 0 until the sheet is first turned to
    double height = 0;
    bool visible = false;
    std::vector<std::string> lines;  ///< what stands on it in math text, in order
    bool arrowVisible = false;
    double arrowLeft = 0;  ///< on the sheet
    double arrowTop = 0;
};

/// The ten sheets on the desk, numbered from 0. The first is always there; the others are hidden
/// until they are turned to. A number outside 0 to 9 throws Failure(Format).
class SheetStack {
  public:
    static constexpr int kCount = PaperSheets::kCount;
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 657;

    /// The metrics must outlive the stack.
    explicit SheetStack(const TextMetrics& metrics);

    /// References stay valid as long as the stack.
    Sheet& operator[](int index);
    const Sheet& operator[](int index) const;

    /// The visible sheets, the lowest first.
    const std::vector<int>& Order() const { return order; }

    /// Entitles all sheets; each but the first also gets its page number.
    void Entitle(std::string_view topicTitle);

    /// Lays the sheet `page` + 1, empty, over all others, a little right of the sheet `page` and
    /// below it. An arrow does not stay behind on the sheet that was left.
    void Turn(int page);

    /// Makes a sheet longer, by whole rows of its ruling, until it reaches down to this Y. It keeps
    /// its length until it is blanked or turned to.
    void Lengthen(int index, double bottom);

    /// Lays a sheet over all others. Nothing for a hidden one.
    void Raise(int index);

    /// Lays a sheet below all others. Nothing for a hidden one.
    void SendToBack(int index);

    /// Blanks the sheets 0 to `last` and hides them, their arrows too; the first sheet stays.
    void Blank(int last);

    /// Moves all visible sheets together, so that the first has this left edge.
    void MoveTo(double left);

  private:
    Surface EmptySurface() const;
    void Replace(Sheet& sheet) const;

    const TextMetrics& metrics;
    std::vector<Sheet> sheets;
    std::vector<int> order{0};
};

}  // namespace numerello
