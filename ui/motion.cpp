#include "ui/motion.h"

#include <QApplication>
#include <QPointer>
#include <QStyle>

#include "ui/desktop_motion.h"

namespace numerello {

namespace {

QPointer<DesktopMotion>& Watched() {
    static QPointer<DesktopMotion> watched;
    return watched;
}

}  // namespace

bool MotionWanted() {
    const bool styleMoves =
        QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
    return styleMoves && !(Watched() && Watched()->AsksForStillness());
}

void WatchDesktopMotion() {
    if (!Watched()) {
        Watched() = new DesktopMotion(qApp);
    }
}

}  // namespace numerello
