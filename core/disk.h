#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

/// Whole files. Paths and messages are UTF-8.
namespace numerello {

/// A file that cannot be used; what() says why, without its name: "is longer than 1 MiB".
class FileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// All bytes of a file. Throws FileError when it cannot be read, is longer than `most` bytes, or is
/// a folder, a device or a pipe, which might keep the reader waiting for ever.
std::string ReadFile(const std::string& path, std::size_t most);

/// Gives a file this content, and makes it when there is none. Nobody ever sees half of it: on
/// FileError, and also when the computer stops, the old content is still there.
void WriteFile(const std::string& path, std::string_view content);

/// Whether anything has this name.
bool Exists(const std::string& path);

/// Makes a folder and those that it lies in. True when it is there afterwards.
bool MakeFolder(const std::string& path);

/// The folder of a path, "." when it names none; and its last name.
std::string FolderOf(std::string_view path);
std::string FileName(std::string_view path);

}  // namespace numerello
