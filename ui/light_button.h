#pragma once

#include "core/problem.h"
#include "ui/desk_button.h"

namespace numerello {

/// The light of the guided input.
class LightButton : public DeskButton {
    Q_OBJECT

  public:
    static constexpr QSize kSize{48, 120};

    explicit LightButton(QWidget* desk);

    /// Takes on picture and tool tip.
    void Show(const EntryControls& controls);

  signals:
    /// The right button or the menu key asks for the pop-up, at this place of the screen.
    void MenuAsked(QPoint place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    EntryControls::LightPicture picture = EntryControls::LightPicture::Neutral;
};

}  // namespace numerello
