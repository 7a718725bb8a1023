#include "ui/double_click.h"

#include <QApplication>
#include <QStyleHints>
#include <QTimer>
#include <utility>

namespace numerello {

namespace {

class RestOfDoubleClick : public QObject {
  public:
    explicit RestOfDoubleClick(const QMouseEvent& last)
        : QObject(qApp),
          place(last.globalPosition()),
          held(last.type() != QEvent::MouseButtonRelease) {
        qApp->installEventFilter(this);
        QTimer::singleShot(QApplication::doubleClickInterval(), this, [this] {
            late = true;
            EndWhenDone();
        });
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (!IsMouse(*event)) {
            return false;
        }
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        if (mouse.button() == Qt::LeftButton && event->type() == QEvent::MouseButtonRelease) {
            const bool rest = std::exchange(held, false);
            EndWhenDone();
            return rest;
        }
        if (mouse.button() == Qt::LeftButton) {
            held = !late && IsNear(mouse);
            EndWhenDone();
        }
        return held;
    }

  private:
    bool IsNear(const QMouseEvent& mouse) const {
        // Wayland does not say where on the screen its windows are.
        if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
            return true;
        }
        const QPointF way = mouse.globalPosition() - place;
        return way.manhattanLength() <=
               2 * QGuiApplication::styleHints()->mouseDoubleClickDistance();
    }

    void EndWhenDone() {
        if (late && !held) {
            qApp->removeEventFilter(this);
            deleteLater();
        }
    }

    QPointF place;
    bool held;
    bool late = false;
};

}  // namespace

bool IsMouse(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseMove ||
           event.type() == QEvent::MouseButtonDblClick ||
           event.type() == QEvent::MouseButtonRelease;
}

void SwallowRestOfDoubleClick(const QMouseEvent& last) {
    new RestOfDoubleClick(last);
}

}  // namespace numerello
