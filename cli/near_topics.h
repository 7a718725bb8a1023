#pragma once

#include <string_view>
#include <vector>

namespace numerello {

/// The captions that somebody may have meant who wrote this one: those that differ by their case
/// alone, else those that begin so, else those that contain it, in the order of the catalogue.
std::vector<std::string_view> NearTopics(std::string_view caption);

}  // namespace numerello
