#include "ui/frm_about.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <QVBoxLayout>

#include "ui/artwork.h"

namespace numerello {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 8;
constexpr QSize kPicture(96, 96);
constexpr qreal kHeading = 1.8;  ///< of the interface font

QString Processor() {
    const int cores = QThread::idealThreadCount();
    return QStringLiteral("%1, %2").arg(
        QSysInfo::currentCpuArchitecture(),
        cores == 1 ? QStringLiteral("1 core") : QStringLiteral("%1 cores").arg(cores));
}

QString ScreenSize() {
    const QScreen& screen = *QGuiApplication::primaryScreen();
    return QStringLiteral("%1 x %2 at %3 %")
        .arg(qRound(screen.size().width() * screen.devicePixelRatio()))
        .arg(qRound(screen.size().height() * screen.devicePixelRatio()))
        .arg(qRound(screen.devicePixelRatio() * 100));
}

/// All of it, line by line.
QString AsText() {
    QStringList lines{QStringLiteral("Numerello")};
    for (const SystemFact& fact : SystemInformation()) {
        lines << fact.name + QStringLiteral(": ") + fact.value;
    }
    return lines.join(u'\n');
}

}  // namespace

std::vector<SystemFact> SystemInformation() {
    return {
        {QStringLiteral("Version"), QCoreApplication::applicationVersion()},
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion())},
        {QStringLiteral("Operating system"), QSysInfo::prettyProductName()},
        {QStringLiteral("Kernel"), QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()},
        {QStringLiteral("Processor"), Processor()},
        {QStringLiteral("Window system"), QGuiApplication::platformName()},
        {QStringLiteral("Screen"), ScreenSize()},
    };
}

FrmAbout::FrmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Numerello"));
    setModal(true);
    setAccessibleDescription(AsText());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(MakeHeading());
    column->addWidget(MakeFacts());
    column->addWidget(MakeButtons());
}

QWidget* FrmAbout::MakeHeading() {
    auto* picture = new QLabel;
    picture->setPixmap(Artwork(QStringLiteral("icon"), kPicture, devicePixelRatioF()));

    auto* name = new QLabel(QStringLiteral("Numerello"));
    QFont large = name->font();
    large.setPointSizeF(QFontInfo(large).pointSizeF() * kHeading);
    large.setBold(true);
    name->setFont(large);
    auto* words = new QLabel(QStringLiteral("Mathematics, line by line\nby Vantrel"));

    auto* heading = new QWidget;
    auto* row = new QHBoxLayout(heading);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kMargin);
    row->addWidget(picture);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(kSpacing);
    texts->addStretch();
    texts->addWidget(name);
    texts->addWidget(words);
    texts->addStretch();
    row->addLayout(texts, 1);
    return heading;
}

QWidget* FrmAbout::MakeFacts() {
    auto* group = new QGroupBox(QStringLiteral("System Information"));
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(2 * kMargin);
    grid->setVerticalSpacing(kSpacing / 2);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const SystemFact& fact : SystemInformation()) {
        auto* value = new QLabel(fact.value);
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(new QLabel(fact.name), row, 0);
        grid->addWidget(value, row, 1);
        ++row;
    }
    return group;
}

QWidget* FrmAbout::MakeButtons() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QPushButton* copy = buttons->addButton(QStringLiteral("&Copy"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("Copy"));
    copy->setToolTip(QStringLiteral("Copy the system information to the clipboard"));
    copy->setAccessibleDescription(copy->toolTip());
    connect(copy, &QAbstractButton::clicked, this,
            [] { QGuiApplication::clipboard()->setText(AsText()); });
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("OK"));
    ok->setText(QStringLiteral("OK"));
    ok->setDefault(true);
    ok->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    return buttons;
}

}  // namespace numerello
