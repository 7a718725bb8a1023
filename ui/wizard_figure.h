#pragma once

#include <QTimer>

#include "ui/desk_button.h"
#include "worksheet/assistant.h"

namespace numerello {

/// The Wiz itself: a button that can be dragged.
class WizardButton : public MenuButton {
    Q_OBJECT

  public:
    WizardButton(Assistant& model, QWidget* form);

    /// Takes on place, size and picture.
    void Show();

  signals:
    /// Dragged by the mouse.
    void Moved();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Assistant& model;
};

/// The notice to click, a bubble below the figure.
class ClickNotice : public MenuButton {
  public:
    static constexpr QSize kSize{104, 44};

    explicit ClickNotice(QWidget* form);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The Wiz on the form, with its notice and the timers of both.
class WizardFigure : public QObject {
    Q_OBJECT

  public:
    /// The model must outlive the figure; its widgets belong to the form.
    WizardFigure(Assistant& model, QWidget* form);

    /// "Show Wiz Assistant" was ticked or unticked.
    void Use(bool shown);

    /// Takes on what the model shows. Nothing flashes in a window that is not on the screen.
    void Show(bool onScreen);

  signals:
    void ExplanationAsked();

    /// The right button or the menu key asks for the pop-up, at this place of the screen.
    void MenuAsked(QPoint place);

  private:
    void MakeTimer(QTimer& timer, const char* name, int milliseconds, void (Assistant::*tick)());
    void ShowNotice();

    Assistant& model;
    WizardButton* wizard;
    ClickNotice* click;
    QTimer wizIn{this};
    QTimer wizOut{this};
    QTimer clickMe{this};
    bool flashing = true;
};

}  // namespace numerello
