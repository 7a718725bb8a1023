#include "ui/frm_logo.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <chrono>

#include "typeset/surface.h"
#include "ui/artwork.h"
#include "ui/colors.h"
#include "ui/font_metrics.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr QSize kSize(480, 300);
constexpr std::chrono::milliseconds kShown(1000);

}  // namespace

// Window managers give no focus to a window of the splash type, and a key could not close it.
FrmLogo::FrmLogo() : QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmLogo"));
    setWindowTitle(QStringLiteral("Vantrel - Numerello"));
    setAccessibleName(QStringLiteral("Numerello"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(kSize);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center() - rect().center());
    logotime.setObjectName(QStringLiteral("logotime"));
    logotime.setSingleShot(true);
    connect(&logotime, &QTimer::timeout, this, &QWidget::close);
    logotime.start(kShown);
}

void FrmLogo::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(QStringLiteral("splash"), kSize, devicePixelRatioF()));
    QFont face(ToQString(kSheetFace));
    face.setPixelSize(52);
    painter.setFont(face);
    painter.setPen(kInkColor);
    painter.drawText(QRect(76, 200, 380, 64), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Numerello"));
    face.setPixelSize(17);
    painter.setFont(face);
    painter.drawText(QRect(78, 258, 380, 26), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Mathematics, line by line"));
}

void FrmLogo::keyPressEvent(QKeyEvent* /*event*/) {
    close();
}

void FrmLogo::mousePressEvent(QMouseEvent* /*event*/) {
    close();
}

void FrmLogo::closeEvent(QCloseEvent* event) {
    logotime.stop();
    event->accept();
    emit Closed();
}

}  // namespace numerello
