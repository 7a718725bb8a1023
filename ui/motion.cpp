#include "ui/motion.h"

#include <QApplication>
#include <QStyle>

namespace numerello {

bool MotionWanted() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

}  // namespace numerello
