#include "core/clock.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>

namespace numerello {
namespace {

std::string Local(const char* format) {
    const std::time_t now = std::time(nullptr);
    char text[32];
    return {text, std::strftime(text, sizeof text, format, std::localtime(&now))};
}

std::string Padded(int number, std::size_t length) {
    std::string text = std::to_string(number);
    return text.insert(0, length - text.size(), '0');
}

TEST(SystemClock, KnowsTheDay) {
    // Midnight may pass in between.
    const std::string before = Local("%Y-%m-%d");
    const Date day = SystemClock().Today();
    const std::string told =
        Padded(day.year, 4) + "-" + Padded(day.month, 2) + "-" + Padded(day.day, 2);
    EXPECT_TRUE(told == before || told == Local("%Y-%m-%d")) << told;
}

TEST(SystemClock, KnowsMinutesAndSeconds) {
    const std::string before = Local("%M%S");
    const std::string told = Padded(SystemClock().MinutesAndSeconds(), 4);
    const std::string after = Local("%M%S");
    // The hour may end in between.
    EXPECT_TRUE(before > after || (before <= told && told <= after)) << told;
}

}  // namespace
}  // namespace numerello
