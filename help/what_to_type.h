#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/topics.h"

namespace numerello {

/// What a learner may enter for a topic, as sentences in HTML: the catalogue's instruction, then
/// which keys there are, how long a number may be, which boxes and lists have to be filled. All of
/// it is read off the catalogue, or found out by trying keys in an example of a typed line.
std::vector<std::string> WhatToType(const Topic& topic, std::string_view example);

}  // namespace numerello
