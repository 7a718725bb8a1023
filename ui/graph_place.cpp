#include "ui/graph_place.h"

#include <algorithm>
#include <array>

#include "ui/screen_room.h"

namespace numerello {

namespace {

constexpr int kGap = 8;
constexpr int kSmallestDrawing = 200;

QRect WithCaption(const QRect& place) {
    return place.adjusted(0, -kCaptionHeight, 0, 0);
}

}  // namespace

QRect PlaceOfGraph(QRect usual, const QRect& written, const QRect& screen) {
    usual = Within(usual, screen);
    if (!WithCaption(usual).intersects(written)) {
        return usual;
    }
    const QRect line = written.adjusted(-kGap, -kGap, kGap, kGap);
    const std::array rooms{
        QRect(QPoint(line.right() + 1, screen.top()), screen.bottomRight()),
        QRect(QPoint(screen.left(), line.bottom() + 1), screen.bottomRight()),
        QRect(screen.topLeft(), QPoint(screen.right(), line.top() - 1)),
    };
    const int menu = usual.height() - usual.width();
    QRect best;
    for (QRect room : rooms) {
        room.setTop(room.top() + kCaptionHeight);
        const int side = std::min({usual.width(), room.width(), room.height() - menu});
        if (side > best.width()) {
            best = QRect(0, 0, side, side + menu);
            best.moveCenter(usual.center());
            best.moveRight(usual.right());
            best = Within(best, room);
        }
    }
    return best.width() >= kSmallestDrawing ? best : usual;
}

}  // namespace numerello
