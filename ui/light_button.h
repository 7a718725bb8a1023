#pragma once

#include "core/problem.h"
#include "ui/desk_button.h"

namespace numerello {

/// The light of the guided input.
class LightButton : public MenuButton {
    Q_OBJECT

  public:
    static constexpr QSize kSize{48, 120};

    explicit LightButton(QWidget* desk);

    /// Takes on picture and tool tip.
    void Show(const EntryControls& controls);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    EntryControls::LightPicture picture = EntryControls::LightPicture::Neutral;
};

}  // namespace numerello
