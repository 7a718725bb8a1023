#pragma once

#include <QWidget>

namespace numerello {

/// The wooden top that everything lies on, with a soft shadow under each sheet.
class Desk : public QWidget {
    Q_OBJECT

  public:
    explicit Desk(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace numerello
