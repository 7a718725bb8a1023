#include "ui/graph_view.h"

#include <QAccessibleWidget>
#include <QFocusEvent>

#include "ui/colors.h"
#include "ui/graph_painter.h"

namespace numerello {

namespace {

constexpr QSize kSmallest(160, 160);

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
    auto* view = qobject_cast<GraphView*>(object);
    return view != nullptr ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}

void TellViews() {
    static const bool told = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(told);
}

}  // namespace

GraphView::GraphView(QWidget* parent) : QWidget(parent) {
    TellViews();
    setAccessibleName(QStringLiteral("Graph"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus);
    setMinimumSize(kSmallest);
}

void GraphView::Show(const GraphPicture& picture, const QString& description) {
    shown = &picture;
    retained = {};
    setAccessibleDescription(description);
    update();
}

void GraphView::Paint(QPainter& painter, const QRectF& place) const {
    if (shown != nullptr) {
        PaintGraph(painter, place, *shown, faces);
    }
}

QPixmap GraphView::Painted() const {
    const qreal scale = devicePixelRatioF();
    QPixmap pixmap((QSizeF(size()) * scale).toSize());
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    Paint(painter, rect());
    return pixmap;
}

void GraphView::paintEvent(QPaintEvent* /*event*/) {
    if (retained.isNull() || retained.devicePixelRatio() != devicePixelRatioF()) {
        retained = Painted();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, retained);
    if (ringed) {
        painter.setPen(QPen(kFocusColor, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void GraphView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    retained = {};
    emit Resized();
}

/// A ring tells where the keys go to those who came by keys.
void GraphView::focusInEvent(QFocusEvent* event) {
    ringed = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
    update();
}

void GraphView::focusOutEvent(QFocusEvent* event) {
    ringed = false;
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace numerello
