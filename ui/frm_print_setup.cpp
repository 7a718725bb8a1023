#include "ui/frm_print_setup.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "core/problem_file.h"
#include "output/print_choices.h"
#include "output/print_solution.h"
#include "ui/dialog_help.h"

namespace numerello {

namespace {

constexpr int kSmallestWidth = 420;

QCheckBox* MakeCheck(const char* name, const char* caption, const char* toolTip,
                     PrintChoice choice) {
    auto* check = new QCheckBox(QString::fromLatin1(caption));
    check->setObjectName(QString::fromLatin1(name));
    check->setToolTip(QString::fromLatin1(toolTip));
    check->setEnabled(choice.enabled);
    check->setChecked(choice.ticked);
    return check;
}

}  // namespace

FrmPrintSetup::FrmPrintSetup(const Problem& problem, PrintDevice& device, const Clock& clock,
                             GraphPainter graph, QWidget* parent)
    : QDialog(parent),
      problem(problem),
      device(device),
      today(clock.Today()),
      graph(std::move(graph)),
      heading(MakeHeadingGroup(HeadingAtOpening(problem.topic.TopicTitle, today), this)),
      printer(MakePrinterGroup(this)) {
    setObjectName(QStringLiteral("frmPrintSetup"));
    setWindowTitle(QStringLiteral("Print Options"));
    setModal(true);
    OfferHelp(*this, QStringLiteral("printing"));

    auto* column = new QVBoxLayout(this);
    column->addWidget(heading.group);
    column->addLayout(MakeChoices());
    column->addWidget(printer.group);
    column->addStretch();
    column->addLayout(MakeButtons());
    setMinimumWidth(kSmallestWidth);

    printer.label1->setText(device.Name());
    Check_Click();
    command2->setFocus();
}

QLayout* FrmPrintSetup::MakeChoices() {
    const PrintChoices choices =
        ChoicesAtOpening(problem.topic.ProblemType, static_cast<bool>(graph));
    check2 = MakeCheck("Check2", "Problem", "Print the worked steps", choices.Problem);
    check3 =
        MakeCheck("Check3", "Explanation", "Print the reason under each step", choices.Explanation);
    check1 = MakeCheck("Check1", "Graph", "Print the graph on a page of its own", choices.Graph);
    auto* row = new QHBoxLayout;
    for (QCheckBox* check : {check2, check3, check1}) {
        row->addWidget(check);
        connect(check, &QCheckBox::toggled, this, &FrmPrintSetup::Check_Click);
    }
    return row;
}

QLayout* FrmPrintSetup::MakeButtons() {
    auto* command3 = MakeButton(QStringLiteral("Command3"), QStringLiteral("Setup..."),
                                QStringLiteral("Choose printer and paper"), this);
    savePdf = MakeButton(QStringLiteral("SavePdf"), QStringLiteral("Save as PDF..."),
                         QStringLiteral("Write the pages into a file"), this);
    command2 = MakeButton(QStringLiteral("Command2"), QStringLiteral("Print"),
                          QStringLiteral("Print what is ticked"), this);
    command2->setDefault(true);
    auto* command1 = MakeButton(QStringLiteral("Command1"), QStringLiteral("Cancel"),
                                QStringLiteral("Close without printing"), this);
    connect(command2, &QPushButton::clicked, this, &FrmPrintSetup::Command2_Click);
    connect(savePdf, &QPushButton::clicked, this, &FrmPrintSetup::SavePdf_Click);
    connect(command3, &QPushButton::clicked, this, &FrmPrintSetup::Command3_Click);
    connect(command1, &QPushButton::clicked, this, &FrmPrintSetup::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(command3);
    row->addStretch();
    row->addWidget(savePdf);
    row->addWidget(command2);
    row->addWidget(command1);
    return row;
}

PrintJob FrmPrintSetup::Job() const {
    const PrintOrder order{heading.Texts(), check2->isChecked(), check3->isChecked(),
                           check1->isChecked()};
    return {.name = SuggestedName(problem.topic.TopicTitle, today),
            .compose = [this, order](
                           Surface& Printer,
                           Learner& learner) { PrintSolution(problem, order, Printer, learner); },
            .graph = graph};
}

void FrmPrintSetup::Check_Click() {
    const bool any = CanPrint(check2->isChecked(), check1->isChecked());
    command2->setEnabled(any);
    savePdf->setEnabled(any);
}

void FrmPrintSetup::Command2_Click() {
    if (device.Print(Job(), this)) {
        accept();
    }
}

void FrmPrintSetup::SavePdf_Click() {
    if (device.SavePdf(Job(), this)) {
        accept();
    }
}

void FrmPrintSetup::Command3_Click() {
    device.mnuPrintSetup_Click(this);
    printer.label1->setText(device.Name());
}

}  // namespace numerello
