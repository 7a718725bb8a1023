#pragma once

#include <QRect>

namespace numerello {

/// Where the window of a graph opens: at its usual place if that leaves free what is written, else
/// right of it, below it or above it, where the drawing can be largest, and smaller if it has to
/// be. Where no drawing of any use would fit, the usual place all the same. Places are those of the
/// screen; the window's hold a menu above a square drawing, but not the caption.
QRect PlaceOfGraph(QRect usual, const QRect& written, const QRect& screen);

}  // namespace numerello
