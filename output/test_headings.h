#pragma once

#include <span>
#include <string_view>

namespace numerello {

/// What a practice test says for a topic.
struct TestTopic {
    std::string_view caption;
    int code = 0;
    std::string_view heading;   ///< the line over its problems
    std::string_view suffix{};  ///< behind each of its problems
    std::string_view mask{};    ///< 14 characters "0" or "1"; empty leaves InputMask as it is
};

/// All topics that a practice test may hold.
std::span<const TestTopic> TestTopics();

/// The one with exactly this caption, null when there is none.
const TestTopic* FindTestTopic(std::string_view caption);

}  // namespace numerello
