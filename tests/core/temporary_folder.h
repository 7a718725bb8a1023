#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace numerello {

/// A folder of a test's own that goes with it.
class TemporaryFolder : public testing::Test {
  protected:
    TemporaryFolder() {
        std::string name = testing::TempDir() + "/numerello-XXXXXX";
        folder = mkdtemp(name.data());
    }
    ~TemporaryFolder() override { std::filesystem::remove_all(folder); }

    std::string Path(const std::string& name) const { return folder + "/" + name; }

    static void Put(const std::string& path, const std::string& content) {
        std::ofstream(path, std::ios::binary) << content;
    }
    static std::string ContentOf(const std::string& path) {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }
    std::size_t FileCount() const {
        const std::filesystem::directory_iterator files(folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    std::string folder;
};

}  // namespace numerello
