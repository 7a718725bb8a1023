#include "ui/print_device.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPushButton>
#include <QStandardPaths>

#include "core/disk.h"
#include "ui/held_enter.h"
#include "ui/pointer.h"
#include "ui/text.h"
#include "ui/window_file_dialog.h"
#include "ui/window_learner.h"

namespace numerello {

namespace {

QString DocumentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// What the printer dialog shows as its file until another one is named there.
QString OfferedFile() {
    return DocumentsFolder() + QStringLiteral("/Numerello.pdf");
}

bool WritePdf(const std::string& path, const ComposedJob& job, const QPageLayout& layout,
              const std::string& title) {
    const auto pdf = PdfOf(job, layout, title);
    try {
        if (pdf) {
            WriteFile(path, {pdf->constData(), static_cast<std::size_t>(pdf->size())});
        }
    } catch (const FileError&) {
        return false;
    }
    return pdf.has_value();
}

}  // namespace

PrintDevice::PrintDevice() = default;
PrintDevice::~PrintDevice() = default;

QPrinter& PrintDevice::Printer() const {
    if (!printer) {
        printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (printer->outputFormat() != QPrinter::NativeFormat) {
            printer->setPageLayout(UsualLayout());
        }
        printer->setPageOrientation(QPageLayout::Portrait);
        printer->setFullPage(true);
        printer->setCreator(QStringLiteral("Numerello"));
    }
    return *printer;
}

bool PrintDevice::PrintsOnPaper() const {
    return Printer().outputFormat() == QPrinter::NativeFormat && !Printer().printerName().isEmpty();
}

bool PrintDevice::ChosenAsFile() const {
    return chosen && Printer().outputFormat() == QPrinter::PdfFormat;
}

QString PrintDevice::Name() const {
    if (ChosenAsFile()) {
        return QPrintDialog::tr("Print to File (PDF)");
    }
    return PrintsOnPaper() ? Printer().printerName() : QString();
}

void PrintDevice::mnuPrintSetup_Click(QWidget* window) {
    const PointerGuard notBusy(Qt::ArrowCursor);
    const HeldEnterGuard oneEnter;
    // Of a file without a name the dialog would only say that it cannot be written.
    Printer().setDocName(QStringLiteral("Numerello"));
    if (!PrintsOnPaper() && Printer().outputFileName().isEmpty()) {
        Printer().setOutputFileName(OfferedFile());
    }
    QPrintDialog dialog(&Printer(), window);
    dialog.setObjectName(QStringLiteral("PrinterDialog"));
    dialog.setWindowTitle(QStringLiteral("Print Setup"));
    // All pages of a job are printed.
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    // It chooses a printer and prints nothing yet, whatever its button says.
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (QPushButton* accept = buttons->button(QDialogButtonBox::Ok)) {
            accept->setText(QStringLiteral("OK"));
        }
    }
    if (dialog.exec() == QDialog::Accepted) {
        chosen = true;
        Printer().setFullPage(true);
    }
}

PaperSize PrintDevice::Paper() const {
    return PaperOf(Printer().pageLayout());
}

bool PrintDevice::Print(const PrintJob& job, QWidget* window) {
    if (!PrintsOnPaper()) {
        return SavePdf(job, window);
    }
    const PointerGuard busy(Qt::WaitCursor);
    WindowLearner learner(window);
    const ComposedJob composed(job, Paper(), learner);
    Printer().setDocName(ToQString(job.name));
    if (!SendPages(composed, Printer()) || Printer().printerState() == QPrinter::Error) {
        learner.MessageBox("", "The pages could not be printed.");
        return false;
    }
    return true;
}

bool PrintDevice::SavePdf(const PrintJob& job, QWidget* window) {
    QString folder = lastFolder.isEmpty() ? DocumentsFolder() : lastFolder;
    QString name = ToQString(job.name) + QStringLiteral(".pdf");
    const QFileInfo file(Printer().outputFileName());
    if (ChosenAsFile() && file.filePath() != OfferedFile()) {
        folder = file.absolutePath();
        name = file.fileName();
    }
    WindowFileDialog dialog(window);
    const auto path = dialog.Show({.saves = true,
                                   .title = "Print to File",
                                   .filter = "PDF Files|*.pdf",
                                   .defaultExtension = "pdf",
                                   .folder = folder.toStdString(),
                                   .suggestedName = name.toStdString()});
    if (!path) {
        return false;
    }
    lastFolder = QFileInfo(ToQString(*path)).absolutePath();
    const PointerGuard busy(Qt::WaitCursor);
    WindowLearner learner(window);
    const ComposedJob composed(job, Paper(), learner);
    if (!WritePdf(*path, composed, Printer().pageLayout(), job.name)) {
        learner.MessageBox("", "The file could not be saved.");
        return false;
    }
    return true;
}

}  // namespace numerello
