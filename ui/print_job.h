#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <functional>
#include <optional>
#include <string>

#include "core/learner.h"
#include "output/print_scale.h"
#include "ui/font_metrics.h"

namespace numerello {

/// Paints the open graph into a square. Empty when no graph is open.
using GraphPainter = std::function<void(QPainter& painter, QRectF square)>;

/// Something to be printed.
struct PrintJob {
    std::string name;  ///< of the document, and suggested for its file
    /// Prints all pages on an empty surface of 800 by 600, in the sheets' face at 12 points.
    std::function<void(Surface& Printer, Learner& learner)> compose;
    GraphPainter graph = {};
};

/// Paints marks whose places are pixels from the paper's corner.
void PaintPage(QPainter& painter, const std::vector<Mark>& marks, const PrintScale& scale,
               const FontMetrics& faces, const GraphPainter& graph = {});

/// A job's pages, composed for a sheet of paper.
class ComposedJob {
  public:
    ComposedJob(const PrintJob& job, PaperSize paper, Learner& learner);
    ComposedJob(const ComposedJob&) = delete;
    ComposedJob& operator=(const ComposedJob&) = delete;

    /// At least 1: a job without a mark is an empty page.
    int PageCount() const;

    /// From 0. The painter's unit is 1/96 inch, its origin the paper's corner.
    void Paint(QPainter& painter, int page) const;

  private:
    FontMetrics faces{FontMetrics::Medium::Print};
    PrintScale scale;
    ScaledMetrics metrics{faces, scale};
    Surface surface;
    GraphPainter graph;
};

/// Sends the pages to a device whose origin is the paper's corner. False when it does not take
/// them.
bool SendPages(const ComposedJob& job, QPagedPaintDevice& device);

/// The pages as a PDF file's content; none when they could not be painted to their end. Paper and
/// orientation are those of the layout.
std::optional<QByteArray> PdfOf(const ComposedJob& job, const QPageLayout& layout,
                                const std::string& title);

/// The paper of a layout, as it is turned.
PaperSize PaperOf(const QPageLayout& layout);

/// The usual paper of the learner's country, upright.
QPageLayout UsualLayout();

}  // namespace numerello
