#include "ui/wizard_figure.h"

#include <QMouseEvent>
#include <algorithm>

#include "ui/artwork.h"
#include "ui/colors.h"
#include "ui/keep_running.h"
#include "ui/motion.h"
#include "ui/pointer.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kTick = 10;
constexpr int kFlash = 800;

constexpr int kGap = 4;  ///< between figure and notice

/// Where the words stand in the bubble.
constexpr QRect kWords(8, 12, 88, 30);
constexpr int kWordsHeight = 15;

}  // namespace

WizardButton::WizardButton(Assistant& model, QWidget* form) : MenuButton(form), model(model) {
    setObjectName(QStringLiteral("Wizard"));
    setAccessibleName(QStringLiteral("Wiz Assistant"));
    setToolTip(QStringLiteral("Click me for an explanation!"));
    setAccessibleDescription(toolTip());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    hide();
}

void WizardButton::Show() {
    setGeometry(qRound(model.Left()), qRound(model.Top()), qRound(model.Width()),
                qRound(model.Height()));
    setVisible(model.Visible());
    update();
}

void WizardButton::paintEvent(QPaintEvent* /*event*/) {
    if (!model.Painted()) {
        return;
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(ToQString(model.WizImage()), size(), devicePixelRatioF()));
    PaintFocus(painter, 10);
}

void WizardButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        const QPoint place = PlaceOn(*this, *event);
        model.Wizard_MouseDown(place.x(), place.y());
    }
}

void WizardButton::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        const QPoint place = PlaceOn(*this, *event);
        model.Wizard_MouseMove(place.x(), place.y());
        setCursor(Qt::ClosedHandCursor);
        emit Moved();
    }
}

void WizardButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        MenuButton::mouseReleaseEvent(event);
        return;
    }
    setCursor(Qt::PointingHandCursor);
    const bool clickedOn = model.Wizard_MouseUp();
    emit Moved();
    if (clickedOn) {
        emit clicked();
    }
}

ClickNotice::ClickNotice(QWidget* form) : MenuButton(form) {
    setObjectName(QStringLiteral("Click"));
    setText(QStringLiteral("Click me!"));
    setAccessibleName(text());
    setFixedSize(kSize);
    setCursor(Qt::PointingHandCursor);
    // The figure takes the keys.
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void ClickNotice::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(QStringLiteral("click"), kSize, devicePixelRatioF()));
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(kWordsHeight);
    painter.setFont(bold);
    painter.setPen(kInkColor);
    painter.drawText(kWords, Qt::AlignCenter, text());
}

WizardFigure::WizardFigure(Assistant& model, QWidget* form)
    : QObject(form),
      model(model),
      wizard(new WizardButton(model, form)),
      click(new ClickNotice(form)) {
    MakeTimer(wizIn, "wizIn", kTick, &Assistant::wizIn_Timer);
    MakeTimer(wizOut, "WizOut", kTick, &Assistant::WizOut_Timer);
    MakeTimer(clickMe, "clickMe", kFlash, &Assistant::clickMe_Timer);
    for (MenuButton* button : {static_cast<MenuButton*>(wizard), static_cast<MenuButton*>(click)}) {
        connect(button, &QAbstractButton::clicked, this, &WizardFigure::ExplanationAsked);
        connect(button, &MenuButton::MenuAsked, this, &WizardFigure::MenuAsked);
    }
    connect(wizard, &WizardButton::Moved, this, [this] { Show(flashing); });
}

void WizardFigure::MakeTimer(QTimer& timer, const char* name, int milliseconds,
                             void (Assistant::*tick)()) {
    timer.setObjectName(QLatin1String(name));
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(milliseconds);
    connect(&timer, &QTimer::timeout, this, [this, tick] {
        (model.*tick)();
        Show(flashing);
    });
}

void WizardFigure::Use(bool shown) {
    model.mnuHideWiz_Click(shown);
    if (!MotionWanted()) {
        model.EndMotion();
    }
    Show(flashing);
}

void WizardFigure::Show(bool onScreen) {
    flashing = onScreen;
    wizard->Show();
    ShowNotice();
    KeepRunning(wizIn, model.WizInEnabled());
    KeepRunning(wizOut, model.WizOutEnabled());
    KeepRunning(clickMe, model.ClickMeEnabled() && flashing && MotionWanted());
}

/// Below the figure, as far as the form reaches. Without motion it stands there and does not flash.
void WizardFigure::ShowNotice() {
    const int left = qRound(model.Left()) + (Assistant::kWidth - click->width()) / 2;
    const int top = qRound(model.Top()) + Assistant::kHeight + kGap;
    click->move(left, std::min(top, click->parentWidget()->height() - click->height()));
    click->setVisible(model.ClickVisible() || (model.ClickMeEnabled() && !MotionWanted()));
}

}  // namespace numerello
