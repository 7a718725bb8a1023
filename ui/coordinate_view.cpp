#include "ui/coordinate_view.h"

#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "graph/coordinate_list.h"
#include "ui/colors.h"
#include "ui/text.h"

namespace numerello {

namespace {

/// Paper stays paper, whatever the desktop's colors.
constexpr QColor kPaper(0xFF, 0xFF, 0xFF, 0xDC);

constexpr int kBesideText = 12;
constexpr int kAroundText = 4;

QPalette PaperColors(QPalette palette) {
    palette.setColor(QPalette::Base, kPaper);
    palette.setColor(QPalette::Text, kInkColor);
    palette.setColor(QPalette::Highlight, kFocusColor);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace

void CoordinateModel::Show(const Plot& shown, QSize size) {
    beginResetModel();
    plot = &shown;
    entrySize = size;
    endResetModel();
}

int CoordinateModel::rowCount(const QModelIndex& parent) const {
    return plot == nullptr || parent.isValid() ? 0 : static_cast<int>(plot->points.size());
}

QVariant CoordinateModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::SizeHintRole) {
        return entrySize;
    }
    const bool isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    return isText && index.row() < rowCount() ? ToQString(CoordinateEntry(*plot, index.row()))
                                              : QVariant();
}

CoordinateView::CoordinateView(QWidget* parent) : QListView(parent) {
    setAccessibleName(QStringLiteral("Coordinates"));
    setPalette(PaperColors(palette()));
    setFrameShape(QFrame::Box);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setModel(&entries);
}

void CoordinateView::Show(const Plot& plot) {
    entrySize = SizeOfEntries(plot);
    entries.Show(plot, entrySize);
    if (entries.rowCount() > 0) {
        setCurrentIndex(entries.index(0));
        clearSelection();
    }
}

/// Of the longest entry. Of entries equally long each is about as wide.
QSize CoordinateView::SizeOfEntries(const Plot& plot) const {
    std::string longest;
    for (std::size_t i = 0; i < plot.points.size(); ++i) {
        std::string entry = CoordinateEntry(plot, static_cast<int>(i));
        if (entry.size() > longest.size()) {
            longest = std::move(entry);
        }
    }
    return {fontMetrics().horizontalAdvance(ToQString(longest)) + kBesideText,
            fontMetrics().height() + kAroundText};
}

QSize CoordinateView::SizeWithin(QSize most) const {
    const QSize around(2 * frameWidth(), 2 * frameWidth());
    const int rows = std::max(1, entries.rowCount());
    const int rowsThatFit =
        std::max(1, (most.height() - around.height()) / std::max(1, entrySize.height()));
    QSize size =
        QSize(entrySize.width(), entrySize.height() * std::min(rows, rowsThatFit)) + around;
    if (rows > rowsThatFit) {
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    if (size.width() > most.width()) {
        size = {most.width(), size.height() + horizontalScrollBar()->sizeHint().height()};
    }
    return size;
}

}  // namespace numerello
