#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace numerello {

/// A chapter of the topic tree.
struct Folder {
    std::string_view key;
    std::string_view parent;  ///< key of the folder that holds it, empty for a root
    std::string_view caption;
};

/// What a caption stands for. The caption is the only identity of a topic.
struct Topic {
    std::string_view caption;
    std::string_view parent;   ///< key of the folder that holds it, empty when no tree shows it
    int code;                  ///< ProblemType
    std::string_view mask;     ///< 14 characters "0" or "1", or kUnchanged
    int digits;                ///< MaxDigits
    int variables = 0;         ///< MaxVariables
    bool linearGraph = false;  ///< choosing it sets LinearGraphTopic
};

/// The mask of a topic that leaves InputMask as it was: its keys go into boxes.
inline constexpr std::string_view kUnchanged = "unchanged";

/// The 26 folders; a parent stands before its children.
std::span<const Folder> Folders();

/// All 105 topics: those of the tree in catalogue order, then the hidden ones.
std::span<const Topic> Topics();

/// The 97 topics that tree and index show, in catalogue order.
std::span<const Topic> TreeTopics();

/// The 8 topics that only a problem file can name.
std::span<const Topic> HiddenTopics();

/// The topic with exactly this caption, null when there is none.
const Topic* FindTopic(std::string_view caption);

/// The first topic with this code in the order of Topics(), null when there is none.
const Topic* FindTopicByCode(int code);

/// The number that a mask string spells in binary: its last character is bit 0. Any character but
/// "1" counts as "0". Throws Failure(Overflow) beyond 16 bits.
std::int16_t BinaryFlagValue(std::string_view mask);

/// The captions of TreeTopics() in alphabetic order, without regard to case.
std::span<const std::string_view> IndexRows();

/// The first row of IndexRows(), from 0, that begins with this text without regard to case.
std::optional<int> FindIndexRow(std::string_view start);

}  // namespace numerello
