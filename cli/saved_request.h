#pragma once

#include <string>

#include "cli/json.h"
#include "core/disk.h"

namespace numerello {

/// The request that enters and solves what a problem file holds, as the window would load it.
/// Throws FileError for a file that cannot be used.
Json SavedRequest(const std::string& path);

}  // namespace numerello
