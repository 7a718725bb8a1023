#include "ui/double_click.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimer>

namespace numerello {

namespace {

/// Takes presses alone: a release whose press no widget got is given to none.
class SecondClickFilter : public QObject {
  public:
    explicit SecondClickFilter(QPointF place) : QObject(qApp), place(place) {
        qApp->installEventFilter(this);
        QTimer::singleShot(QApplication::doubleClickInterval(), this, &QObject::deleteLater);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress &&
            event->type() != QEvent::MouseButtonDblClick) {
            return false;
        }
        const auto& press = static_cast<const QMouseEvent&>(*event);
        return press.button() == Qt::LeftButton && IsNear(press.globalPosition());
    }

  private:
    bool IsNear(QPointF other) const {
        // Wayland does not say where on the screen its windows are.
        if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
            return true;
        }
        return (other - place).manhattanLength() <=
               2 * QGuiApplication::styleHints()->mouseDoubleClickDistance();
    }

    QPointF place;
};

}  // namespace

void SwallowSecondClick(QPointF place) {
    new SecondClickFilter(place);
}

}  // namespace numerello
