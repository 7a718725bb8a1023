#pragma once

#include <QPrinter>
#include <QString>
#include <memory>

#include "ui/print_job.h"

class QWidget;

namespace numerello {

/// The program's printer: what the printer dialog chose, and the way of a job to paper or into a
/// file. Dialogs and messages stand over the window that is given.
class PrintDevice {
  public:
    PrintDevice();
    ~PrintDevice();

    /// Of the current printer, as the printer dialog calls it. Empty when there is none.
    QString Name() const;

    /// The printer dialog. Cancel changes nothing.
    void mnuPrintSetup_Click(QWidget* window);

    PaperSize Paper() const;

    /// Prints, or asks for a file when there is no printer. True when the job is done, false when
    /// the learner cancels or was told of a failure.
    bool Print(const PrintJob& job, QWidget* window);

    /// Asks for a file and writes the job into it, as above.
    bool SavePdf(const PrintJob& job, QWidget* window);

  private:
    QPrinter& Printer() const;
    bool PrintsOnPaper() const;
    bool ChosenAsFile() const;

    /// Made when it is first asked for: finding the printers may take its time.
    mutable std::unique_ptr<QPrinter> printer;
    bool chosen = false;  ///< by the printer dialog
    QString lastFolder;
};

}  // namespace numerello
