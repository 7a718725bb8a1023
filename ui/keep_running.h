#pragma once

#include <QTimer>

namespace numerello {

/// Starts or stops a timer. One that runs already does not begin anew.
inline void KeepRunning(QTimer& timer, bool running) {
    if (running != timer.isActive()) {
        running ? timer.start() : timer.stop();
    }
}

}  // namespace numerello
