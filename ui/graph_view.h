#pragma once

#include <QPixmap>
#include <QWidget>

#include "graph/picture.h"
#include "ui/font_metrics.h"

namespace numerello {

/// Shows the picture of a graph over its whole area. To assistive technology it is a picture, whose
/// description says what is to be seen.
class GraphView : public QWidget {
    Q_OBJECT

  public:
    explicit GraphView(QWidget* parent);

    /// The picture must outlive the view, or the next call of Show.
    void Show(const GraphPicture& picture, const QString& description);

    /// Paints what is shown into another place, as on paper.
    void Paint(QPainter& painter, const QRectF& place) const;

  signals:
    void Resized();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QPixmap Painted() const;

    FontMetrics faces{FontMetrics::Medium::Print};
    const GraphPicture* shown = nullptr;
    QPixmap retained;  ///< null after a change
    bool ringed = false;
};

}  // namespace numerello
