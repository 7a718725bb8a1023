#include "core/clock.h"

#include <ctime>

namespace numerello {

namespace {

std::tm LocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

}  // namespace

int SystemClock::MinutesAndSeconds() const {
    const std::tm local = LocalTime();
    return local.tm_min * 100 + local.tm_sec % 60;
}

Date SystemClock::Today() const {
    const std::tm local = LocalTime();
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

void SteppingClock::Step() {
    constexpr int kHour = 3600;
    const int second = (minutesAndSeconds / 100 * 60 + minutesAndSeconds % 100 + 1) % kHour;
    minutesAndSeconds = second / 60 * 100 + second % 60;
}

}  // namespace numerello
