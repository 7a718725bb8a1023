#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/batch.h"
#include "cli/json.h"

namespace numerello {

/// What the batch answers to a whole input, line by line.
inline std::vector<std::string> AnswersTo(std::string_view input) {
    std::istringstream in{std::string(input)};
    std::ostringstream out;
    RunBatch(in, out, nullptr);
    std::vector<std::string> answers;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) {
        answers.push_back(line);
    }
    return answers;
}

/// The one answer to one request.
inline Json Ask(std::string_view request) {
    const std::vector<std::string> answers = AnswersTo(request);
    return answers.size() == 1 ? Json::parse(answers[0]) : Json("not one answer");
}

inline std::vector<std::string> FieldsOf(const Json& object) {
    std::vector<std::string> names;
    for (const auto& field : object.items()) {
        names.push_back(field.key());
    }
    return names;
}

}  // namespace numerello
