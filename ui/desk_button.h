#pragma once

#include <QAbstractButton>

namespace numerello {

/// A button that stands on the desk. Space clicks it; Enter and the arrow keys go on to the form,
/// where they solve, step and scroll.
class DeskButton : public QAbstractButton {
  public:
    using QAbstractButton::QAbstractButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace numerello
