#pragma once

namespace numerello {

/// Whether things may move by themselves: false where the desktop asks for less motion.
bool MotionWanted();

}  // namespace numerello
