#pragma once

#include <QPainter>
#include <QWidget>

namespace numerello {

/// The wooden top that everything lies on, with a soft shadow of each sheet.
class Desk : public QWidget {
    Q_OBJECT

  public:
    explicit Desk(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The soft shadow that a sheet at this place throws on what lies below it.
void PaintShadow(QPainter& painter, const QRect& sheet);

}  // namespace numerello
