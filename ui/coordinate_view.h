#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "graph/plot.h"

namespace numerello {

/// The entries of a plot, each written when it is shown.
class CoordinateModel : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    /// The plot must outlive the model, or the next call. Every entry gets the same room; without
    /// a valid size each is asked what it needs.
    void Show(const Plot& plot, QSize entrySize);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    const Plot* plot = nullptr;
    QSize entrySize;
};

/// The coordinate list, which lies on the picture and lets it shine through.
class CoordinateView : public QListView {
    Q_OBJECT

  public:
    explicit CoordinateView(QWidget* parent);

    void Show(const Plot& plot);

    /// Becomes as large as its entries, but no larger than that; what has no room scrolls.
    void FitInto(QSize most);

  private:
    QSize SizeOfEntries() const;

    CoordinateModel entries;
    QSize entrySize;
};

}  // namespace numerello
