#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>
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

    /// Takes on the sheet's place alone.
    void Place();

    ArrowButton& Arrow() { return *arrow; }

    /// What stands on it, line by line, as it is read aloud.
    QString Spoken() const;

  signals:
    /// What the mouse does, at this place of the sheet. What lies on the sheet and wants no mouse
    /// counts as the sheet.
    void Pressed(bool leftButton, QPoint place);
    void Moved(bool leftButton, QPoint place);
    void Released();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    /// Two equal states are equal drawings.
    struct DrawingState {
        int newSheets = -1;
        int clearings = 0;
        std::size_t marks = 0;
        std::size_t lines = 0;
        double height = 0;
        std::string title;

        bool operator==(const DrawingState&) const = default;
    };
    static DrawingState StateOf(const Sheet& sheet);

    QPixmap Painted() const;
    void PaintShadowsFromAbove(QPainter& painter) const;
    void TellChange();

    const FontMetrics& metrics;
    bool hasTitleStrip;
    const Sheet* shown = nullptr;
    ArrowButton* arrow;
    DrawingState state;                     ///< of what is retained
    QPixmap retained;                       ///< paper and drawing; null after a change
    mutable std::optional<QString> spoken;  ///< none after a change
    QString told;                           ///< what was last told to those who hear the sheet
};

}  // namespace numerello
