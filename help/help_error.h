#pragma once

#include <stdexcept>

namespace numerello {

/// A help page that cannot be made; what() says which one and why.
class HelpError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace numerello
