#pragma once

#include <deque>
#include <span>
#include <string>
#include <vector>

#include "core/learner.h"
#include "output/print_heading.h"
#include "typeset/sheets.h"

namespace numerello {

/// The pages of a print preview, made when they are turned to.
class PreviewPages : public Sheets {
  public:
    /// The metrics must outlive the pages.
    explicit PreviewPages(const TextMetrics& metrics);

    /// Draws a practice test from the first page on.
    void Build(const HeadingLines& heading, std::span<const std::string> TestLines,
               Learner& learner);

    /// The page being drawn.
    Surface& Current() override;
    void Turn() override;

    /// Index of the last page.
    int PreviewPageCount() const { return static_cast<int>(pages.size()) - 1; }

    /// Counted from 0; throws Failure(Format) beyond the last.
    const Surface& Page(int page) const;

    /// The lines of the test that begin on a page, in order.
    const std::vector<std::string>& LinesOn(int page) const;

  private:
    struct DrawnPage {
        Surface surface;
        std::vector<std::string> lines;
    };

    void AddPage();

    const TextMetrics& metrics;
    std::deque<DrawnPage> pages;  ///< the last one is being drawn
};

}  // namespace numerello
