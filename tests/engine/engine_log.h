#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "engine/engine.h"

namespace numerello {

/// A problem of the code whose letters are those of the text.
inline Problem ProblemWith(std::string_view text, int code) {
    Problem problem;
    problem.topic.ProblemType = code;
    for (const std::string& character : Characters(text)) {
        problem.typed.ExprChars[problem.typed.ExprCharCount++] = character;
    }
    CollectVariables(problem.typed);
    return problem;
}

/// The recorded lines, each with its reason behind " | ".
inline std::vector<std::string> LinesOf(const Problem& problem) {
    std::vector<std::string> lines;
    for (int i = 1; i < problem.log.StepCount; ++i) {
        lines.push_back(problem.log.StepText[i] + " | " + problem.log.StepNote[i]);
    }
    return lines;
}

}  // namespace numerello
