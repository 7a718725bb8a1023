#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace numerello {

/// Keeps the order in which fields are added.
using Json = nlohmann::ordered_json;

/// One line of JSON; bytes that are no UTF-8 are replaced.
std::string JsonLine(const Json& json);

}  // namespace numerello
