#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace numerello {

/// The classes of input that a topic's mask lets in, one bit each.
enum InputClass : int {
    kNumbers = 1,
    kSigns = 2,
    kMultiplication = 4,
    kDivision = 8,
    kExponents = 16,
    kParentheses = 32,
    kEqualSign = 64,
    kVariables = 128,
    kSquareRoots = 256,
    kAbsoluteValues = 512,
    kDecimalPoint = 1024,
    kComma = 2048,
    kRatioColon = 4096,
    kPercent = 8192,
};

/// Why the mask keeps a character out, in the learner's words; nothing when it lets it in.
std::optional<std::string> ClassRefusal(std::string_view character, int InputMask,
                                        std::string_view TopicTitle);

}  // namespace numerello
