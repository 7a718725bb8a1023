#pragma once

#include <string>

namespace numerello {

/// A file of the help that travels inside the program, such as "contents.txt". Throws HelpError
/// where there is none.
std::string ReadHelpFile(const std::string& name);

}  // namespace numerello
