#pragma once

#include <QDialog>
#include <vector>

#include "ui/held_enter.h"
#include "ui/preview_picture.h"
#include "ui/previewed.h"
#include "ui/print_controls.h"
#include "ui/print_device.h"

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace numerello {

/// The print preview: the pages one by one, and their way to the printer. It stays open when they
/// are printed.
class FrmPrintPreview : public QDialog {
  public:
    /// The device has to outlive the form.
    FrmPrintPreview(Previewed preview, PrintDevice& device, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakePageButtons();
    QWidget* MakeSide();
    void MakeShortcuts();

    void ShowPrinter();
    void ShowPages();
    void ShowPage(int page);
    void FitPictures();
    QSize PreferredSize() const;

    void Command1_Click();
    void SavePdf_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void AnswerKey_Click();

    Previewed preview;
    PrintDevice& device;
    HeldEnterGuard oneEnter;  ///< the key that opened the form must not print
    FontMetrics faces{FontMetrics::Medium::Print};
    PrinterGroup printer;
    PaperSize paper{};
    std::vector<PreviewPicture*> pictures;
    int previewPage = 0;
    QScrollArea* pages = nullptr;
    QLabel* label4 = nullptr;
    QLabel* label3 = nullptr;
};

}  // namespace numerello
