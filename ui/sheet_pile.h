#pragma once

#include <QRect>
#include <array>

#include "ui/sheet_widget.h"
#include "ui/writing_pencil.h"
#include "worksheet/worksheet.h"

namespace numerello {

/// The ten sheets on the desk. Hands what the mouse does with them to the worksheet, and lays them
/// as it says.
class SheetPile : public QObject {
    Q_OBJECT

  public:
    /// All must outlive the pile.
    SheetPile(Worksheet& worksheet, const FontMetrics& metrics, QWidget* desk);

    SheetWidget& At(int index) { return *papers[static_cast<std::size_t>(index)]; }

    /// A press here, on the first sheet, is one on its picture.
    void SetPicture(const QRect& place) { picture = place; }

    /// Shows drawings, places and order; the pencil lies directly above the first sheet.
    void Show(WritingPencil& pencil);

    /// The Tab key comes from this control to the arrows.
    void PutArrowsBehind(QWidget* control);

    /// What an ear is told about all sheets.
    void Describe(const QString& reason);

  signals:
    /// An arrow was clicked.
    void NextStepAsked();

    /// A sheet was brought to the front, or let go after a drag.
    void Changed();

    /// A sheet, and what lies on it, moved with the mouse.
    void Dragged();

    /// The left button came up over this sheet.
    void Released(int index);

  private:
    void Connect(int index);
    void Press(int index, bool leftButton, QPoint place);
    void Move(int index, bool leftButton, QPoint place);

    Worksheet& worksheet;
    std::array<SheetWidget*, Worksheet::kSheetCount> papers{};
    QRect picture;
};

}  // namespace numerello
