#pragma once

#include <QWidget>
#include <string>

#include "ui/desk_button.h"
#include "ui/font_metrics.h"
#include "worksheet/worksheet.h"

namespace numerello {

/// The flashing arrow behind the last line of a sheet.
class ArrowButton : public DeskButton {
    Q_OBJECT

  public:
    explicit ArrowButton(QWidget* parent);

    /// The second of the two frames, the darker one.
    void SetFrame(bool second);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool secondFrame = false;
};

/// One sheet of paper as it lies on the desk: ruled paper, title and drawing.
class SheetWidget : public QWidget {
    Q_OBJECT

  public:
    SheetWidget(int index, const FontMetrics& metrics, QWidget* desk);

    /// Takes on what the model's sheet shows; it has to outlive this widget.
    void Show(const Sheet& sheet);

    ArrowButton& Arrow() { return *arrow; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const FontMetrics& metrics;
    const Sheet* shown = nullptr;
    ArrowButton* arrow;
};

}  // namespace numerello
