#include "core/clock.h"

#include <ctime>

namespace numerello {

int SystemClock::MinutesAndSeconds() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local.tm_min * 100 + local.tm_sec % 60;
}

}  // namespace numerello
