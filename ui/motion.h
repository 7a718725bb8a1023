#pragma once

namespace numerello {

/// Whether things may move by themselves: false where the desktop asks for less motion, by its
/// style or, once it is watched, by its settings.
bool MotionWanted();

/// From now on the desktop's settings are heard. For the program, while its application object
/// stands; calling it again does no harm.
void WatchDesktopMotion();

}  // namespace numerello
