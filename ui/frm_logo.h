#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace numerello {

/// The splash. Closes itself after a second, or at once on a key or a click.
class FrmLogo : public QWidget {
    Q_OBJECT

  public:
    FrmLogo();

  signals:
    void Closed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QTimer logotime;
};

}  // namespace numerello
