#include "core/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr mode_t kAnybody = 0666;  // less what the user's mask takes away
constexpr mode_t kPermissions = 07777;

[[noreturn]] void ThrowSystemError(int error) {
    throw FileError(Text("cannot be used: ", std::system_category().message(error)));
}

/// The result of a call that fails with a negative number. One that a signal interrupts is
/// repeated.
template <class Call>
auto Succeed(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    if (result < 0) {
        ThrowSystemError(errno);
    }
    return result;
}

/// An open file, closed when it goes.
class OpenFile {
  public:
    OpenFile(const std::string& path, int flags, mode_t mode = 0)
        : handle(Succeed([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); })) {}
    ~OpenFile() {
        if (handle >= 0) {
            close(handle);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Handle() const { return handle; }

    /// Closes now, so that a failure is noticed.
    void Close() {
        const int closing = handle;
        handle = -1;
        if (close(closing) != 0) {
            ThrowSystemError(errno);
        }
    }

  private:
    int handle;
};

void CheckName(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        ThrowSystemError(EINVAL);
    }
}

void CheckRegular(const struct stat& status) {
    if (S_ISDIR(status.st_mode)) {
        ThrowSystemError(EISDIR);
    }
    if (!S_ISREG(status.st_mode)) {
        throw FileError("is not a file on a disk");
    }
}

/// A file beside the one that is to be written. It goes again unless it takes that one's place.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& folder)
        : path(FreeName(folder)), file(path, O_WRONLY | O_CREAT | O_EXCL, kAnybody) {}
    ~TemporaryFile() {
        if (!path.empty()) {
            unlink(path.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void SetPermissions(mode_t mode) {
        Succeed([&] { return fchmod(file.Handle(), mode & kPermissions); });
    }

    void Write(std::string_view content) {
        while (!content.empty()) {
            const auto written =
                Succeed([&] { return write(file.Handle(), content.data(), content.size()); });
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        Succeed([&] { return fsync(file.Handle()); });
        file.Close();
    }

    void TakePlaceOf(const std::string& target) {
        Succeed([&] { return rename(path.c_str(), target.c_str()); });
        path.clear();
    }

  private:
    static std::string FreeName(const std::string& folder) {
        int number = 0;
        std::string name;
        do {
            name = Text(folder, "/.numerello-", WholeText(getpid()), "-", WholeText(++number));
        } while (Exists(name));
        return name;
    }

    std::string path;
    OpenFile file;
};

/// The file behind a link, so that writing does not replace the link.
std::string Resolved(const std::string& path) {
    std::error_code none;
    const std::string target = std::filesystem::canonical(path, none).string();
    return none ? path : target;
}

/// That the folder knows the new name survives a power cut too. The file itself is safe by now, so
/// a disk that cannot do this is no failure.
void SyncFolder(const std::string& folder) {
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
}

}  // namespace

std::string ReadFile(const std::string& path, std::size_t most) {
    CheckName(path);
    const OpenFile file(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    struct stat status {};
    Succeed([&] { return fstat(file.Handle(), &status); });
    CheckRegular(status);

    std::string content;
    std::array<char, 65536> piece;
    while (const auto count = static_cast<std::size_t>(
               Succeed([&] { return read(file.Handle(), piece.data(), piece.size()); }))) {
        content.append(piece.data(), count);
        if (content.size() > most) {
            throw FileError(Text("is longer than ", WholeText(static_cast<long>(most)), " bytes"));
        }
    }
    return content;
}

void WriteFile(const std::string& path, std::string_view content) {
    CheckName(path);
    const std::string target = Resolved(path);
    struct stat old {};
    const bool replaces = stat(target.c_str(), &old) == 0;
    if (replaces) {
        CheckRegular(old);
        // Replacing asks the folder alone, but a file that is protected is to stay.
        Succeed([&] { return faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS); });
    }

    TemporaryFile temporary(FolderOf(target));
    if (replaces) {
        temporary.SetPermissions(old.st_mode);
    }
    temporary.Write(content);
    temporary.TakePlaceOf(target);
    SyncFolder(FolderOf(target));
}

bool Exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

bool MakeFolder(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return std::filesystem::is_directory(path, error);
}

std::string FolderOf(std::string_view path) {
    const std::size_t end = path.find_last_of('/');
    if (end == std::string_view::npos) {
        return ".";
    }
    return std::string(end == 0 ? "/" : path.substr(0, end));
}

std::string FileName(std::string_view path) {
    return std::string(path.substr(path.find_last_of('/') + 1));
}

}  // namespace numerello
