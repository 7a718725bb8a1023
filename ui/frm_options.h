#pragma once

#include <QDialog>

#include "core/problem.h"

class QCheckBox;
class QComboBox;
class QGroupBox;

namespace numerello {

/// The settings dialog. A click on a figure is stored at once, all else at OK.
class FrmOptions : public QDialog {
  public:
    /// The settings have to outlive the dialog.
    explicit FrmOptions(AnswerSettings& settings, QWidget* parent = nullptr);

  private:
    void MakeControls();
    QGroupBox* MakeFigures();
    void Command1_Click();

    AnswerSettings& settings;
    QComboBox* combo1 = nullptr;
    QComboBox* combo2 = nullptr;
    QCheckBox* check2 = nullptr;
    QCheckBox* check3 = nullptr;
};

}  // namespace numerello
