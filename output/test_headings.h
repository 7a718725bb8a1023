#pragma once

#include <span>
#include <string_view>

namespace numerello {

/// What a practice test says for a topic. Code and numbers are those of the catalogue.
struct TestTopic {
    std::string_view caption;
    std::string_view heading;   ///< the line over its problems
    std::string_view suffix{};  ///< behind each of its problems
    bool walks = false;         ///< whether its problems are made of the keys that a mask allows
    std::string_view mask{};    ///< of a walk, where it is not the catalogue's

    /// 14 characters "0" or "1"; empty for a topic that leaves InputMask as it is.
    std::string_view Mask() const;
};

/// All topics that a practice test may hold.
std::span<const TestTopic> TestTopics();

/// The one with exactly this caption, null when there is none.
const TestTopic* FindTestTopic(std::string_view caption);

}  // namespace numerello
