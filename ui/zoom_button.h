#pragma once

#include "ui/desk_button.h"

namespace numerello {

/// A button that is nothing but a picture of the toolbar's.
class ZoomButton : public DeskButton {
  public:
    /// The picture is that of this key.
    ZoomButton(const QString& picture, const QString& toolTip, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace numerello
