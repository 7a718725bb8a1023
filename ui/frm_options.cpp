#include "ui/frm_options.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <span>

#include "core/options.h"
#include "ui/dialog_help.h"
#include "ui/figure_button.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;

struct Figure {
    const char* key;
    const char* name;
};

/// The first one is assistant 1.
constexpr std::array kFigures{Figure{"wiz1", "Owl"}, Figure{"wiz2", "Robot"},
                              Figure{"wiz3", "Wizard"}};

QComboBox* AddList(QFormLayout& form, const char* name, const QString& label,
                   std::span<const std::string_view> rows, int chosen) {
    auto* list = new QComboBox;
    list->setObjectName(QString::fromUtf8(name));
    list->setAccessibleName(label.chopped(1));
    for (const std::string_view row : rows) {
        list->addItem(ToQString(row));
    }
    list->setCurrentIndex(chosen);
    form.addRow(label, list);
    return list;
}

QCheckBox* MakeCheck(const char* name, const QString& caption, bool ticked) {
    auto* check = new QCheckBox(caption);
    check->setObjectName(QString::fromUtf8(name));
    check->setAccessibleName(caption);
    check->setChecked(ticked);
    return check;
}

void NameButton(QPushButton* button, const char* name, const QString& caption) {
    button->setObjectName(QString::fromUtf8(name));
    button->setText(caption);
}

}  // namespace

FrmOptions::FrmOptions(AnswerSettings& settings, QWidget* parent)
    : QDialog(parent), settings(settings) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Settings"));
    setModal(true);
    OfferHelp(*this, QStringLiteral("settings"));
    MakeControls();
}

void FrmOptions::MakeControls() {
    const OptionControls shown = ShownOptions(settings);
    auto* lists = new QFormLayout;
    lists->setSpacing(kSpacing);
    combo1 = AddList(*lists, "Combo1",
                     QStringLiteral("Number of digits after decimal to round numbers:"),
                     RoundDigitsRows(), shown.Combo1ListIndex);
    combo2 = AddList(*lists, "Combo2", QStringLiteral("Step-by-Step Detail:"), DetailRows(),
                     shown.Combo2ListIndex);
    check2 = MakeCheck("Check2", QStringLiteral("Click Notification Enabled"), shown.Check2);
    check3 = MakeCheck("Check3", QStringLiteral("Complex Examples"), shown.Check3);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    NameButton(buttons->button(QDialogButtonBox::Ok), "Command1", QStringLiteral("OK"));
    NameButton(buttons->button(QDialogButtonBox::Cancel), "Command2", QStringLiteral("Cancel"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Command1_Click(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(lists);
    column->addWidget(check2);
    column->addWidget(check3);
    column->addSpacing(kSpacing);
    column->addWidget(MakeFigures());
    column->addSpacing(kSpacing);
    column->addWidget(buttons);
}

QGroupBox* FrmOptions::MakeFigures() {
    auto* group = new QGroupBox(QStringLiteral("Choose Assistant Wiz:"));
    group->setObjectName(QStringLiteral("Frame1"));
    auto* row = new QHBoxLayout(group);
    row->setSpacing(kMargin);
    int number = 0;
    for (const Figure& figure : kFigures) {
        ++number;
        auto* button =
            new FigureButton(QString::fromUtf8(figure.key), QString::fromUtf8(figure.name));
        const bool chosen = settings.whichAssistant == number;
        button->setChecked(chosen);
        // The Tab key reaches the chosen one; from there the arrow keys go on.
        button->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
        // Kept on purpose: the click holds, also when the dialog is cancelled.
        connect(button, &QAbstractButton::clicked, this,
                [this, number] { settings.whichAssistant = number; });
        row->addWidget(button);
    }
    return group;
}

void FrmOptions::Command1_Click() {
    numerello::Command1_Click(
        {combo1->currentIndex(), combo2->currentIndex(), check2->isChecked(), check3->isChecked()},
        settings);
    accept();
}

}  // namespace numerello
