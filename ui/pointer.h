#pragma once

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>

namespace numerello {

/// Shows a pointer for the life of the guard; guards may stand inside each other.
class PointerGuard {
  public:
    explicit PointerGuard(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
    ~PointerGuard() { QGuiApplication::restoreOverrideCursor(); }

    PointerGuard(const PointerGuard&) = delete;
    PointerGuard& operator=(const PointerGuard&) = delete;
};

/// The place of an event on a widget as that stands now: it may tell one from before the last move.
inline QPoint PlaceOn(const QWidget& widget, const QMouseEvent& event) {
    return widget.mapFromGlobal(event.globalPosition()).toPoint();
}

}  // namespace numerello
