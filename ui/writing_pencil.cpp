#include "ui/writing_pencil.h"

#include <algorithm>
#include <chrono>

#include "ui/artwork.h"
#include "ui/keep_running.h"
#include "ui/motion.h"
#include "ui/sheet_widget.h"

namespace numerello {

namespace {

constexpr std::chrono::milliseconds kTick(10);
constexpr QSize kSize(Pencil::kWidth, Pencil::kHeight);

constexpr int kDeskLeft = 68;
constexpr int kAboveBottom = 24;
constexpr int kNarrowestDesk = 40;

QLabel* MakePicture(const QString& name, QWidget* desk) {
    auto* picture = new QLabel(desk);
    picture->setObjectName(name);
    picture->setFixedSize(kSize);
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    return picture;
}

}  // namespace

WritingPencil::WritingPencil(const Problem& problem, Worksheet& worksheet, QWidget* desk)
    : QObject(desk),
      problem(problem),
      worksheet(worksheet),
      desk(desk),
      pencil(MakePicture(QStringLiteral("Pencil"), desk)),
      deskPencil(MakePicture(QStringLiteral("deskPencil"), desk)),
      timer1(this) {
    deskPencil->lower();
    timer1.setObjectName(QStringLiteral("Timer1"));
    timer1.setTimerType(Qt::PreciseTimer);
    timer1.setInterval(kTick);
    connect(&timer1, &QTimer::timeout, this, [this] {
        this->worksheet.Timer1_Timer();
        Place();
    });
}

void WritingPencil::Use(bool inUse) {
    used = inUse;
}

void WritingPencil::KeyTyped() {
    worksheet.MovePencil(MotionWanted());
}

void WritingPencil::Show(QSize view) {
    using Picture = EntryControls::PencilPicture;
    const qreal ratio = desk->devicePixelRatioF();
    const bool erases = problem.controls.Pencil == Picture::Eraser;
    const QString key = erases ? QStringLiteral("pencil2") : QStringLiteral("pencil1");
    pencil->setPixmap(Artwork(key, kSize, ratio));
    deskPencil->setPixmap(Artwork(QStringLiteral("pencil1"), kSize, ratio));

    const int deskWidth = Worksheet::CentredLeft(view.width());
    const bool roomAtItsPlace = deskWidth >= kDeskLeft + kSize.width();
    deskPencil->move(roomAtItsPlace ? kDeskLeft : (deskWidth - kSize.width()) / 2,
                     view.height() - kAboveBottom - kSize.height());
    pencil->setVisible(used);
    deskPencil->setVisible(!used && deskWidth >= kNarrowestDesk);
    Place();
}

void WritingPencil::Place() {
    const Sheet& sheet = worksheet.SheetAt(0);
    const Pencil& model = worksheet.ThePencil();
    pencil->move(qRound(sheet.left + model.Left()), qRound(sheet.top + model.Top()));
    KeepRunning(timer1, model.Timer1Enabled());
}

bool WritingPencil::IsAt(QPoint place) const {
    const std::vector<int>& order = worksheet.StackingOrder();
    const auto first = std::find(order.begin(), order.end(), 0);
    const auto covers = [this, place](int index) {
        const Sheet& sheet = worksheet.SheetAt(index);
        return QRectF(sheet.left, sheet.top, sheet.width, sheet.height).contains(place);
    };
    const QLabel* shown = used ? pencil : deskPencil;
    return shown->isVisible() && shown->geometry().contains(place) &&
           std::none_of(used ? first + 1 : order.begin(), order.end(), covers);
}

}  // namespace numerello
