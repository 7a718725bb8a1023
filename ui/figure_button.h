#pragma once

#include <QAbstractButton>

namespace numerello {

/// One of several figures to choose from: its picture with its name below, framed when chosen. The
/// figures of one parent go together; arrow keys choose among them.
class FigureButton : public QAbstractButton {
    Q_OBJECT

  public:
    /// `key` is that of the drawing, and the object name.
    FigureButton(const QString& key, const QString& name, QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString key;
};

}  // namespace numerello
