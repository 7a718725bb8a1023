#include "ui/frm_explain.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>
#include <QtMath>
#include <algorithm>

#include "ui/colors.h"
#include "ui/screen_room.h"
#include "ui/surface_painter.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kSideMargin = 10;
constexpr int kBorder = 1;
constexpr int kCaption = 27;  ///< part of the height that the model gives
constexpr int kAwayFromArrow = 8;

/// The rows, in the middle of their window.
class Page : public QWidget {
  public:
    Page(const Explanation& model, const FontMetrics& metrics, QWidget* parent)
        : QWidget(parent), model(model), metrics(metrics) {}

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.fillRect(event->rect(), Qt::white);
        painter.translate(kSideMargin - kBorder, qRound((height() - model.RowsHeight()) / 2));
        PaintMarks(painter, model.Rows().Marks(), metrics);
    }

  private:
    const Explanation& model;
    const FontMetrics& metrics;
};

bool IsModifier(int key) {
    switch (key) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
            return true;
        default:
            return false;
    }
}

}  // namespace

FrmExplain::FrmExplain(const Problem& problem, Learner& learner, QWidget* form)
    : QWidget(form, Qt::ToolTip),
      model(problem, metrics, learner),
      caption(new QLabel(QStringLiteral("Assistant Wiz"), this)),
      view(new QScrollArea(this)) {
    setObjectName(QStringLiteral("frmExplain"));
    setWindowTitle(caption->text());
    setAccessibleName(caption->text());

    caption->setObjectName(QStringLiteral("Caption"));
    caption->setAlignment(Qt::AlignCenter);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    QPalette colors = caption->palette();
    colors.setColor(QPalette::WindowText, kPaperColor);
    caption->setPalette(colors);

    view->setObjectName(QStringLiteral("Text"));
    view->setFrameShape(QFrame::NoFrame);
    view->setFocusPolicy(Qt::NoFocus);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setWidget(new Page(model, metrics, view));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kBorder, 0, kBorder, kBorder);
    column->setSpacing(0);
    column->addWidget(caption);
    column->addWidget(view);
}

void FrmExplain::Open(const Sheet& current, const QWidget& desk, const QRect& arrow) {
    hide();
    model.ShowExplanation();
    setAccessibleDescription(ToQString(model.SpokenText()));
    const QRect screen = desk.screen()->availableGeometry();
    FitText(screen);

    const Explanation::Corner corner = model.Place(current);
    const QPoint place = desk.mapToGlobal(QPoint(qRound(corner.left), qRound(corner.top)));
    move(PlaceOfExplanation({place, size()}, screen, arrow));
    show();
    QAccessibleEvent told(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

/// As large as the text; a text that is higher than the screen scrolls.
void FrmExplain::FitText(const QRect& screen) {
    caption->setFixedHeight(std::max(kCaption, caption->sizeHint().height()));
    const int around = caption->height() + kBorder;
    const QSize page(qCeil(model.RowsWidth()) + 2 * (kSideMargin - kBorder),
                     qCeil(model.Height()) - kCaption - kBorder);
    const int height = std::min(page.height(), screen.height() - around);
    const int bar = page.height() > height ? view->verticalScrollBar()->sizeHint().width() : 0;
    view->widget()->resize(page);
    view->verticalScrollBar()->setValue(0);
    setFixedSize(page.width() + bar + 2 * kBorder, height + around);
}

void FrmExplain::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &FrmExplain::CloseUnlessHere);
}

void FrmExplain::hideEvent(QHideEvent* event) {
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    QWidget::hideEvent(event);
}

void FrmExplain::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), kInkColor);
}

bool FrmExplain::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            return FilterKey(watched, static_cast<QKeyEvent&>(*event));
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (!IsMine(watched)) {
                hide();
            }
            return false;
        case QEvent::Move:
        case QEvent::Resize:
            // The sheet goes away under the window.
            if (watched == parentWidget()->window()) {
                hide();
            }
            return false;
        default:
            return QWidget::eventFilter(watched, event);
    }
}

bool FrmExplain::IsMine(const QObject* object) const {
    const auto* part = qobject_cast<const QWidget*>(object);
    return part != nullptr ? part->window() == this : object == windowHandle();
}

/// Whether the key ends here.
bool FrmExplain::FilterKey(const QObject* watched, QKeyEvent& key) {
    const bool pressed = key.type() == QEvent::KeyPress;
    const bool astray = IsMine(watched);
    const bool waits = !pressed && (astray || key.key() == Qt::Key_Escape);
    if (waits || IsModifier(key.key()) || key.isAutoRepeat()) {
        return false;
    }
    hide();
    if (key.key() == Qt::Key_Escape) {
        return true;
    }
    if (astray) {
        // A desktop that gives every window the focus: the key is still meant for the sheet.
        QWidget* focused = parentWidget()->window()->focusWidget();
        QCoreApplication::sendEvent(focused != nullptr ? focused : parentWidget(), &key);
    }
    return astray;
}

void FrmExplain::CloseUnlessHere(const QWindow* focused) {
    if (focused != windowHandle() && focused != parentWidget()->window()->windowHandle()) {
        hide();
    }
}

QPoint PlaceOfExplanation(QRect wanted, const QRect& screen, const QRect& arrow) {
    wanted = Within(wanted, screen);
    if (!wanted.intersects(arrow)) {
        return wanted.topLeft();
    }
    const int below = arrow.bottom() + kAwayFromArrow;
    const int above = arrow.top() - kAwayFromArrow - wanted.height();
    if (below + wanted.height() <= screen.bottom()) {
        wanted.moveTop(below);
    } else if (above >= screen.top()) {
        wanted.moveTop(above);
    }
    return wanted.topLeft();
}

}  // namespace numerello
