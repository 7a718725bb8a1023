#include "ui/coordinate_view.h"

#include <QFontMetricsF>
#include <QMap>
#include <QScrollBar>
#include <algorithm>

#include "graph/coordinate_list.h"
#include "ui/colors.h"
#include "ui/text.h"

namespace numerello {

namespace {

/// Paper stays paper, whatever the desktop's colors.
constexpr QColor kPaper(0xFF, 0xFF, 0xFF, 0xDC);

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
        return entrySize.isValid() ? entrySize : QVariant();
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
    // Without a size the delegate says what an entry needs.
    entries.Show(plot, {});
    entrySize = SizeOfEntries();
    entries.Show(plot, entrySize);
    if (entries.rowCount() > 0) {
        setCurrentIndex(entries.index(0));
        clearSelection();
    }
}

/// What the delegate wants for the widest entry. Measuring each of thousands as a whole would take
/// longer than drawing the graph, so the widest is found by the widths of its characters.
QSize CoordinateView::SizeOfEntries() const {
    QMap<QChar, double> widths;
    const QFontMetricsF metrics(font());
    int widest = 0;
    double most = 0;
    for (int row = 0; row < entries.rowCount(); ++row) {
        double width = 0;
        for (const QChar character : entries.index(row).data().toString()) {
            auto known = widths.find(character);
            if (known == widths.end()) {
                known = widths.insert(character, metrics.horizontalAdvance(character));
            }
            width += *known;
        }
        if (width > most) {
            most = width;
            widest = row;
        }
    }
    return sizeHintForIndex(entries.index(widest));
}

void CoordinateView::FitInto(QSize most) {
    const QSize around(2 * frameWidth(), 2 * frameWidth());
    const int rows = std::max(1, entries.rowCount());
    const int rowsThatFit =
        std::max(1, (most.height() - around.height()) / std::max(1, entrySize.height()));
    QSize size =
        QSize(entrySize.width(), entrySize.height() * std::min(rows, rowsThatFit)) + around;
    const bool isTooLong = rows > rowsThatFit;
    if (isTooLong) {
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    const bool isTooWide = size.width() > most.width();
    if (isTooWide) {
        size = {most.width(), size.height() + horizontalScrollBar()->sizeHint().height()};
    }
    // By itself either bar would stay for the room that the other one takes.
    setVerticalScrollBarPolicy(isTooLong ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(isTooWide ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    resize(size);
}

}  // namespace numerello
