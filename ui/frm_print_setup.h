#pragma once

#include <QDialog>

#include "core/clock.h"
#include "core/problem.h"
#include "ui/held_enter.h"
#include "ui/print_controls.h"
#include "ui/print_device.h"

class QCheckBox;
class QPushButton;

namespace numerello {

/// The print options: what of the worked problem to print, and under which heading. Closes when it
/// is printed.
class FrmPrintSetup : public QDialog {
  public:
    /// `graph` paints the open graph and is empty when none is open. Problem and device have to
    /// outlive the form.
    FrmPrintSetup(const Problem& problem, PrintDevice& device, const Clock& clock,
                  GraphPainter graph, QWidget* parent = nullptr);

  private:
    QLayout* MakeChoices();
    QLayout* MakeButtons();
    PrintJob Job() const;

    void Check_Click();
    void Command2_Click();
    void SavePdf_Click();
    void Command3_Click();

    const Problem& problem;
    PrintDevice& device;
    Date today;
    GraphPainter graph;
    HeldEnterGuard oneEnter;  ///< the key that opened the form must not print
    HeadingGroup heading;
    PrinterGroup printer;
    QCheckBox* check1 = nullptr;
    QCheckBox* check2 = nullptr;
    QCheckBox* check3 = nullptr;
    QPushButton* command2 = nullptr;
    QPushButton* savePdf = nullptr;
};

}  // namespace numerello
