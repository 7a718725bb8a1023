#include "ui/frm_print_preview.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedLayout>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <utility>

#include "ui/dialog_help.h"
#include "ui/pointer.h"
#include "ui/screen_room.h"
#include "ui/window_learner.h"

namespace numerello {

namespace {

constexpr int kAroundPage = 12;
constexpr double kLargestZoom = 2;

}  // namespace

FrmPrintPreview::FrmPrintPreview(Previewed preview, PrintDevice& device, QWidget* parent)
    : QDialog(parent),
      preview(std::move(preview)),
      device(device),
      printer(MakePrinterGroup(this)) {
    setObjectName(QStringLiteral("frmPrintPreview"));
    setWindowTitle(this->preview.caption);
    setModal(true);
    OfferHelp(*this, QStringLiteral("printing"));

    pages = new QScrollArea(this);
    pages->setObjectName(QStringLiteral("Pages"));
    pages->setAccessibleName(QStringLiteral("Pages"));
    pages->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    pages->setBackgroundRole(QPalette::Mid);
    pages->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    pages->viewport()->installEventFilter(this);

    auto* row = new QHBoxLayout(this);
    row->addWidget(pages, 1);
    row->addWidget(MakeSide());
    MakeShortcuts();

    ShowPrinter();
    ShowPages();
    resize(PreferredSize());
    pages->setFocus();
}

QWidget* FrmPrintPreview::MakePageButtons() {
    auto* group = new QGroupBox(QStringLiteral("Page"), this);
    auto* command4 =
        MakeButton(QStringLiteral("Command4"), QString(), QStringLiteral("Previous page"), group);
    command4->setAccessibleName(command4->toolTip());
    command4->setIcon(style()->standardIcon(QStyle::SP_ArrowLeft));
    auto* command5 =
        MakeButton(QStringLiteral("Command5"), QString(), QStringLiteral("Next page"), group);
    command5->setAccessibleName(command5->toolTip());
    command5->setIcon(style()->standardIcon(QStyle::SP_ArrowRight));
    connect(command4, &QPushButton::clicked, this, &FrmPrintPreview::Command4_Click);
    connect(command5, &QPushButton::clicked, this, &FrmPrintPreview::Command5_Click);

    label4 = new QLabel(group);
    label4->setObjectName(QStringLiteral("Label4"));
    label4->setAccessibleName(QStringLiteral("Page on show"));
    label3 = new QLabel(group);
    label3->setObjectName(QStringLiteral("Label3"));
    label3->setAccessibleName(QStringLiteral("Count of pages"));

    auto* numbers = new QHBoxLayout;
    numbers->addStretch();
    numbers->addWidget(label4);
    numbers->addWidget(new QLabel(QStringLiteral("of"), group));
    numbers->addWidget(label3);
    numbers->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(command4);
    buttons->addWidget(command5);
    auto* column = new QVBoxLayout(group);
    column->addLayout(numbers);
    column->addLayout(buttons);
    return group;
}

QWidget* FrmPrintPreview::MakeSide() {
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins({});
    column->addWidget(MakePageButtons());
    column->addWidget(printer.group);
    const auto addButton = [&](const char* name, const char* caption, const char* toolTip,
                               void (FrmPrintPreview::*procedure)()) {
        QPushButton* button = MakeButton(QString::fromLatin1(name), QString::fromLatin1(caption),
                                         QString::fromLatin1(toolTip), side);
        connect(button, &QPushButton::clicked, this, procedure);
        column->addWidget(button);
    };
    addButton("Command1", "Print", "Print all pages", &FrmPrintPreview::Command1_Click);
    addButton("SavePdf", "Save as PDF...", "Write the pages into a file",
              &FrmPrintPreview::SavePdf_Click);
    addButton("Command3", "Print Setup...", "Choose printer and paper",
              &FrmPrintPreview::Command3_Click);
    if (preview.answerKey) {
        addButton("AnswerKey", "Answer Key...", "Show the worked problems",
                  &FrmPrintPreview::AnswerKey_Click);
    }
    column->addStretch();
    addButton("Command2", "Exit", "Close the preview", &FrmPrintPreview::reject);
    return side;
}

void FrmPrintPreview::MakeShortcuts() {
    connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this,
            &FrmPrintPreview::Command4_Click);
    connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this,
            &FrmPrintPreview::Command5_Click);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
            &FrmPrintPreview::Command1_Click);
}

void FrmPrintPreview::ShowPrinter() {
    const QString name = device.Name();
    printer.label1->setText(name.isEmpty() ? QStringLiteral("Unknown") : name);
}

/// Draws all pages for the paper in the printer.
void FrmPrintPreview::ShowPages() {
    paper = device.Paper();
    WindowLearner learner(this);
    ShownPages shown = preview.show(paper, faces, learner);

    auto* stack = new QWidget;
    pictures.clear();
    for (ShownPage& page : shown.pages) {
        const auto index = static_cast<int>(pictures.size());
        pictures.push_back(
            new PreviewPicture(index, std::move(page), shown.scale, shown.zoom, faces, stack));
    }
    pages->setWidget(stack);
    label3->setText(QString::number(pictures.size()));
    FitPictures();
    ShowPage(std::min(previewPage, static_cast<int>(pictures.size()) - 1));
}

void FrmPrintPreview::ShowPage(int page) {
    previewPage = page;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        pictures[i]->setVisible(static_cast<int>(i) == page);
    }
    label4->setText(QString::number(page + 1));
    pages->verticalScrollBar()->setValue(0);
}

/// As wide as the window has room for.
void FrmPrintPreview::FitPictures() {
    const double natural = pictures.front()->NaturalSize().width();
    const double room = pages->viewport()->width() - 2 * kAroundPage;
    const int width = qRound(std::clamp(room, natural, natural * kLargestZoom));
    for (PreviewPicture* picture : pictures) {
        picture->SetWidth(width);
        picture->move(kAroundPage, kAroundPage);
    }
    pages->widget()->setFixedSize(pictures.front()->size() +
                                  QSize(2 * kAroundPage, 2 * kAroundPage));
}

/// The page a little larger than life, with the controls beside it.
QSize FrmPrintPreview::PreferredSize() const {
    constexpr double kComfortable = 1.25;
    const QSizeF page = pictures.front()->NaturalSize() * kComfortable;
    const int around = 4 * kAroundPage + pages->verticalScrollBar()->sizeHint().width();
    const QSize needed(
        qRound(page.width()) + around + printer.group->sizeHint().width() + 2 * kAroundPage,
        qRound(page.height()) + around);
    return needed.boundedTo(RoomForDialog(*this));
}

bool FrmPrintPreview::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pages->viewport() && event->type() == QEvent::Resize && !pictures.empty()) {
        FitPictures();
    }
    return QDialog::eventFilter(watched, event);
}

void FrmPrintPreview::Command1_Click() {
    device.Print(preview.job, this);
}

void FrmPrintPreview::SavePdf_Click() {
    device.SavePdf(preview.job, this);
}

void FrmPrintPreview::Command3_Click() {
    device.mnuPrintSetup_Click(this);
    ShowPrinter();
    const PaperSize now = device.Paper();
    if (now.width != paper.width || now.height != paper.height) {
        ShowPages();
    }
}

void FrmPrintPreview::Command4_Click() {
    if (previewPage > 0) {
        ShowPage(previewPage - 1);
    }
}

void FrmPrintPreview::Command5_Click() {
    if (previewPage + 1 < static_cast<int>(pictures.size())) {
        ShowPage(previewPage + 1);
    }
}

void FrmPrintPreview::AnswerKey_Click() {
    std::unique_ptr<FrmPrintPreview> key;
    {
        const PointerGuard busy(Qt::WaitCursor);
        key = std::make_unique<FrmPrintPreview>(preview.answerKey(), device, this);
    }
    key->exec();
}

}  // namespace numerello
