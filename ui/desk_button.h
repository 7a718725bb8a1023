#pragma once

#include <QAbstractButton>
#include <QPainter>

namespace numerello {

/// A button that stands on the desk. Space clicks it; Enter and the arrow keys go on to the form,
/// where they solve, step and scroll.
class DeskButton : public QAbstractButton {
  public:
    using QAbstractButton::QAbstractButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

    /// Rings the button while keys go to it; its corners have this radius.
    void PaintFocus(QPainter& painter, qreal radius) const;
};

/// One with a pop-up.
class MenuButton : public DeskButton {
    Q_OBJECT

  public:
    using DeskButton::DeskButton;

  signals:
    /// The right button or the menu key asks for the pop-up, at this place of the screen.
    void MenuAsked(QPoint place);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace numerello
