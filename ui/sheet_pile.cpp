#include "ui/sheet_pile.h"

namespace numerello {

SheetPile::SheetPile(Worksheet& worksheet, const FontMetrics& metrics, QWidget* desk)
    : QObject(desk), worksheet(worksheet) {
    for (int i = 0; i < Worksheet::kSheetCount; ++i) {
        papers[static_cast<std::size_t>(i)] = new SheetWidget(i, metrics, desk);
        Connect(i);
    }
}

void SheetPile::Connect(int index) {
    SheetWidget& paper = At(index);
    connect(&paper.Arrow(), &QAbstractButton::clicked, this, &SheetPile::NextStepAsked);
    connect(&paper, &SheetWidget::Pressed, this,
            [this, index](bool leftButton, QPoint place) { Press(index, leftButton, place); });
    connect(&paper, &SheetWidget::Moved, this,
            [this, index](bool leftButton, QPoint place) { Move(index, leftButton, place); });
    connect(&paper, &SheetWidget::Released, this, [this, index] { emit Released(index); });
}

void SheetPile::Press(int index, bool leftButton, QPoint place) {
    if (index == 0 && leftButton && picture.contains(place)) {
        worksheet.Picture3_MouseDown(place.x(), place.y());
    } else {
        worksheet.Paper_MouseDown(index, leftButton, place.x(), place.y());
    }
    if (leftButton) {
        emit Changed();
    }
}

void SheetPile::Move(int index, bool leftButton, QPoint place) {
    worksheet.Paper_MouseMove(index, leftButton, place.x(), place.y());
    const QRect before = At(index).geometry();
    At(index).Place();
    if (At(index).geometry() != before) {
        At(index).setCursor(Qt::ClosedHandCursor);
        emit Dragged();
    }
}

void SheetPile::Show(WritingPencil& pencil) {
    for (int i = 0; i < Worksheet::kSheetCount; ++i) {
        At(i).Show(worksheet.SheetAt(i));
        At(i).Arrow().SetFrame(worksheet.ArrowFrame());
    }
    for (const int index : worksheet.StackingOrder()) {
        At(index).raise();
        if (index == 0) {
            pencil.Raise();
        }
    }
}

void SheetPile::PutArrowsBehind(QWidget* control) {
    for (SheetWidget* paper : papers) {
        QWidget::setTabOrder(control, &paper->Arrow());
        control = &paper->Arrow();
    }
}

void SheetPile::Describe(const QString& reason) {
    for (SheetWidget* paper : papers) {
        paper->setAccessibleDescription(reason);
    }
}

}  // namespace numerello
