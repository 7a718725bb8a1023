#pragma once

#include <QObject>

namespace numerello {

/// While it stands, a held Enter counts once: the key that opened a box must not answer it.
class HeldEnterGuard : public QObject {
  public:
    HeldEnterGuard();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace numerello
