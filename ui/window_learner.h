#pragma once

#include <QPointer>
#include <QWidget>

#include "core/learner.h"

namespace numerello {

/// Asks and tells in modal boxes over a window. While a box stands, the pointer is never busy.
class WindowLearner : public Learner {
  public:
    explicit WindowLearner(QWidget* window) : window(window) {}

    void MessageBox(std::string_view title, std::string_view text) override;
    bool Confirm(std::string_view title, std::string_view text) override;
    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override;

  private:
    QPointer<QWidget> window;
};

}  // namespace numerello
