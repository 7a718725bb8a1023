#pragma once

#include <QDialog>
#include <QString>
#include <vector>

namespace numerello {

/// A line of what is known about program and computer.
struct SystemFact {
    QString name;
    QString value;
};

std::vector<SystemFact> SystemInformation();

/// Who made the program, and what it runs on: to be copied into a question to the support.
class FrmAbout : public QDialog {
  public:
    explicit FrmAbout(QWidget* parent = nullptr);

  private:
    QWidget* MakeHeading();
    QWidget* MakeFacts();
    QWidget* MakeButtons();
};

}  // namespace numerello
