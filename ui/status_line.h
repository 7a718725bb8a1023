#pragma once

#include <QStatusBar>
#include <chrono>

namespace numerello {

/// The line at the foot of the frame. It is there only while it has something to say.
class StatusLine : public QStatusBar {
  public:
    explicit StatusLine(QWidget* parent = nullptr);

    void Tell(const QString& text, std::chrono::milliseconds time);
};

}  // namespace numerello
