#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/json.h"

namespace numerello {

/// Arguments of the command line that make no sense; what() says which one and why.
class BadArgument : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What "solve" is told.
struct SolveArguments {
    std::string topic;
    std::string problem;
    std::optional<std::string> file;
    std::vector<std::string> boxes;
    std::vector<std::string> lists;
    std::vector<std::string> answers;
    std::vector<std::string> settings;
    bool json = false;
};

/// The request that asks for it, in "do" that to solve. Throws BadArgument for arguments that make
/// no sense, and FileError for a file that is no saved problem.
Json SolveRequestOf(const SolveArguments& arguments);

/// What of such a request a problem in columns has.
Json ColumnsRequestOf(const Json& request);

}  // namespace numerello
