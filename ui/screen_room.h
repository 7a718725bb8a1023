#pragma once

#include <QRect>
#include <QScreen>
#include <QWidget>
#include <algorithm>

/// What room a screen has for windows.
namespace numerello {

/// What the desktop adds above a window, at a guess.
inline constexpr int kCaptionHeight = 32;

/// No dialog opens larger than this part of its screen.
inline QSize RoomForDialog(const QWidget& dialog) {
    constexpr double kScreenShare = 0.9;
    return dialog.screen()->availableSize() * kScreenShare;
}

/// The place, moved into the screen as far as it must; a larger one keeps its upper left corner.
inline QRect Within(QRect place, const QRect& screen) {
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place;
}

}  // namespace numerello
