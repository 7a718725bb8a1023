#pragma once

#include <QString>
#include <array>

#include "output/print_heading.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

/// What the windows around printing have in common.
namespace numerello {

/// The group "Print Heading": Text1 to Text3.
struct HeadingGroup {
    QGroupBox* group;
    std::array<QLineEdit*, 3> lines;

    HeadingLines Texts() const;
};
HeadingGroup MakeHeadingGroup(const HeadingLines& texts, QWidget* parent);

/// The group "Printer Device Name" with Label1.
struct PrinterGroup {
    QGroupBox* group;
    QLabel* label1;
};
PrinterGroup MakePrinterGroup(QWidget* parent);

/// A button that no Enter presses but one on itself.
QPushButton* MakeButton(const QString& name, const QString& caption, const QString& toolTip,
                        QWidget* parent);

}  // namespace numerello
