#pragma once

#include <QGuiApplication>

namespace numerello {

/// Shows a pointer for the life of the guard; guards may stand inside each other.
class PointerGuard {
  public:
    explicit PointerGuard(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
    ~PointerGuard() { QGuiApplication::restoreOverrideCursor(); }

    PointerGuard(const PointerGuard&) = delete;
    PointerGuard& operator=(const PointerGuard&) = delete;
};

}  // namespace numerello
