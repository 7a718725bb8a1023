#include "ui/print_job.h"

#include <QBuffer>
#include <QLocale>
#include <QPdfWriter>
#include <algorithm>

#include "output/print_solution.h"
#include "typeset/variants.h"
#include "ui/surface_painter.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr double kPixelsPerInch = 96;

}  // namespace

void PaintPage(QPainter& painter, const std::vector<Mark>& marks, const PrintScale& scale,
               const FontMetrics& faces, const GraphPainter& graph) {
    PaintMarks(painter, marks, faces, [&](QPainter& at, const std::string& key, QPointF corner) {
        if (key == kGraphPicture && graph) {
            const double side = scale.SquareAt(corner.x(), corner.y());
            graph(at, {corner, QSizeF(side, side)});
        }
    });
}

ComposedJob::ComposedJob(const PrintJob& job, PaperSize paper, Learner& learner)
    : scale(ScaleOfPrint(paper)), surface(metrics, SheetFont()), graph(job.graph) {
    job.compose(surface, learner);
}

int ComposedJob::PageCount() const {
    return std::max(1, static_cast<int>(PrintedPages(surface).size()));
}

void ComposedJob::Paint(QPainter& painter, int page) const {
    const auto pages = PrintedPages(surface);
    if (page < static_cast<int>(pages.size())) {
        PaintPage(painter, MarksInPixels(pages[static_cast<std::size_t>(page)], scale), scale,
                  faces, graph);
    }
}

bool SendPages(const ComposedJob& job, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    painter.scale(device.logicalDpiX() / kPixelsPerInch, device.logicalDpiY() / kPixelsPerInch);
    for (int page = 0; page < job.PageCount(); ++page) {
        if (page > 0 && !device.newPage()) {
            return false;
        }
        job.Paint(painter, page);
    }
    return painter.end();
}

std::optional<QByteArray> PdfOf(const ComposedJob& job, const QPageLayout& layout,
                                const std::string& title) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPageLayout fullPage = layout;
    fullPage.setMode(QPageLayout::FullPageMode);
    writer.setPageLayout(fullPage);
    writer.setTitle(ToQString(title));
    writer.setCreator(QStringLiteral("Numerello"));
    return SendPages(job, writer) ? std::optional(content) : std::nullopt;
}

PaperSize PaperOf(const QPageLayout& layout) {
    const QSizeF size = layout.fullRect(QPageLayout::Millimeter).size();
    return {size.width(), size.height()};
}

QPageLayout UsualLayout() {
    const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(inches ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait, {}};
}

}  // namespace numerello
