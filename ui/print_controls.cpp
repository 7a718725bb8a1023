#include "ui/print_controls.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "typeset/surface.h"
#include "ui/font_metrics.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kLongestHeading = 100;
constexpr int kHeadingSize = 12;
constexpr int kTextMargin = 3;
constexpr std::array kHeadingNames{"First heading line", "Second heading line",
                                   "Third heading line"};

/// Signs that the sheets' face draws otherwise let the field as a whole take the face that they are
/// printed in: the two are alike, and a field has one.
void ShowInReadableFace(QLineEdit& line) {
    const bool other = NeedsOtherFace(line.text().toStdString());
    QFont font = FontOfFace(other ? kExplanationFace : kSheetFace);
    font.setPointSize(std::max(kHeadingSize, line.parentWidget()->font().pointSize()));
    line.setFont(font);
}

}  // namespace

HeadingLines HeadingGroup::Texts() const {
    HeadingLines texts;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i] = lines[i]->text().toStdString();
    }
    return texts;
}

HeadingGroup MakeHeadingGroup(const HeadingLines& texts, QWidget* parent) {
    HeadingGroup heading{new QGroupBox(QStringLiteral("Print Heading"), parent), {}};
    auto* column = new QVBoxLayout(heading.group);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        auto* line = new QLineEdit(ToQString(texts[i]), heading.group);
        line->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        line->setAccessibleName(QString::fromLatin1(kHeadingNames[i]));
        line->setToolTip(QStringLiteral("Printed at the top of the first page"));
        QObject::connect(line, &QLineEdit::textChanged, line,
                         [line] { ShowInReadableFace(*line); });
        ShowInReadableFace(*line);
        line->setTextMargins(kTextMargin, kTextMargin, kTextMargin, 0);
        line->setMaxLength(kLongestHeading);
        column->addWidget(line);
        heading.lines[i] = line;
    }
    return heading;
}

PrinterGroup MakePrinterGroup(QWidget* parent) {
    PrinterGroup printer{new QGroupBox(QStringLiteral("Printer Device Name"), parent), nullptr};
    auto* row = new QVBoxLayout(printer.group);
    printer.label1 = new QLabel(printer.group);
    printer.label1->setObjectName(QStringLiteral("Label1"));
    printer.label1->setAccessibleName(QStringLiteral("Printer Device Name"));
    printer.label1->setTextFormat(Qt::PlainText);
    printer.label1->setWordWrap(true);
    row->addWidget(printer.label1);
    return printer;
}

QPushButton* MakeButton(const QString& name, const QString& caption, const QString& toolTip,
                        QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

}  // namespace numerello
