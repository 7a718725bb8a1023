#pragma once

#include <QLabel>
#include <QTimer>

#include "core/problem.h"
#include "worksheet/worksheet.h"

namespace numerello {

/// The pencil in its two pictures: over the first sheet while it is in use, else lying on the desk.
/// Neither takes a press of the mouse from what lies below.
class WritingPencil : public QObject {
    Q_OBJECT

  public:
    /// Problem and worksheet must outlive the pencil; it belongs to the desk.
    WritingPencil(const Problem& problem, Worksheet& worksheet, QWidget* desk);

    /// "Use Pencil" was ticked or unticked.
    void Use(bool inUse);

    /// After each key of the typed line.
    void KeyTyped();

    /// Shows pictures and places in a view of this size.
    void Show(QSize view);

    /// Puts it where the model has it.
    void Place();

    /// Lays the writing pencil above all that was raised before.
    void Raise() { pencil->raise(); }

    /// Whether a pencil is to be seen at this place of the desk, not covered by a sheet.
    bool IsAt(QPoint place) const;

  private:
    const Problem& problem;
    Worksheet& worksheet;
    QWidget* desk;
    QLabel* pencil;
    QLabel* deskPencil;
    QTimer timer1;
    bool used = true;
};

}  // namespace numerello
