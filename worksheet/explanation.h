#pragma once

#include <string>

#include "core/learner.h"
#include "core/problem.h"
#include "typeset/surface.h"
#include "worksheet/sheet_stack.h"

namespace numerello {

/// What frmExplain says: the reason of the shown step, or why the last key was refused. Chooses the
/// text, sets it out in rows and finds the window's size and place; lengths are sheet pixels.
class Explanation {
  public:
    static constexpr double kTextWidth = 380;

    /// All three must outlive the explanation.
    Explanation(const Problem& problem, const TextMetrics& metrics, Learner& learner);

    /// The light was clicked. True when it is red and tells why: the next explanation is the
    /// refusal's.
    bool Light_Click();

    /// Whether the shown step has a note; one that the detail setting silences counts.
    bool HasNote() const;

    /// Sets out what is to be said now. What cannot be drawn is told the learner once.
    void ShowExplanation();

    /// The text that was set out last, before it was cut into rows.
    const std::string& Text() const { return text; }

    /// As it is read aloud. A refusal speaks of the marks themselves and is left as it is.
    std::string SpokenText() const;

    /// Its rows, from the pen's (0, 0).
    const Surface& Rows() const { return rows; }

    /// How far the rows reach to the right: kTextWidth, or more where a row could not be cut.
    double RowsWidth() const;

    /// How far they reach down, what hangs below the last row included.
    double RowsHeight() const;

    /// The window's height, with its caption.
    double Height() const;

    struct Corner {
        double left;
        double top;
    };

    /// The window's upper left corner, on the desk that this sheet lies on: beside the last line,
    /// or for a text of no step at a place of its own.
    Corner Place(const Sheet& current) const;

  private:
    std::string TakeText();
    bool BelongsToStep() const;

    const Problem& problem;
    const TextMetrics& metrics;
    Learner& learner;
    Surface rows;
    std::string text;
    bool explainError = false;  ///< the next explanation is to show InputError
    bool isRefusal = false;     ///< the last one did
};

}  // namespace numerello
