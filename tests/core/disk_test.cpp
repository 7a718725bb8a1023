#include "core/disk.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include "temporary_folder.h"
#include "tests/full_disk.h"

namespace numerello {
namespace {

constexpr std::size_t kMost = 1000;

class Disk : public TemporaryFolder {};

/// Somebody who may not write everywhere, even when the tests run as root.
class OrdinaryUser {
  public:
    OrdinaryUser() : before(geteuid()) {
        if (before == 0) {
            changed = seteuid(65534) == 0;
        }
    }
    ~OrdinaryUser() {
        if (changed && seteuid(before) != 0) {
            std::abort();
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    uid_t before;
    bool changed = false;
};

std::string WhyNotRead(const std::string& path, std::size_t most = kMost) {
    try {
        ReadFile(path, most);
        return "was read";
    } catch (const FileError& error) {
        return error.what();
    }
}

TEST_F(Disk, ReadsEveryByte) {
    std::string content("line\r\n\0\xFF\n", 9);
    Put(Path("a"), content);
    EXPECT_EQ(ReadFile(Path("a"), kMost), content);
    Put(Path("empty"), "");
    EXPECT_EQ(ReadFile(Path("empty"), kMost), "");
}

TEST_F(Disk, ReadsAFileOfTheGreatestLengthAndNoLongerOne) {
    Put(Path("a"), std::string(200000, 'a'));
    EXPECT_EQ(ReadFile(Path("a"), 200000).size(), 200000U);
    EXPECT_EQ(WhyNotRead(Path("a"), 199999), "is longer than 199999 bytes");
}

TEST_F(Disk, TellsWhyAFileCannotBeRead) {
    EXPECT_EQ(WhyNotRead(Path("none")), "cannot be used: No such file or directory");
    EXPECT_EQ(WhyNotRead(""), "cannot be used: No such file or directory");
    EXPECT_EQ(WhyNotRead(folder), "cannot be used: Is a directory");
    EXPECT_EQ(WhyNotRead(std::string("a\0b", 3)), "cannot be used: Invalid argument");
    EXPECT_EQ(WhyNotRead(Path(std::string(300, 'a'))), "cannot be used: File name too long");
    EXPECT_EQ(WhyNotRead("/dev/zero"), "is not a file on a disk");
}

TEST_F(Disk, APipeDoesNotKeepTheReaderWaiting) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(WhyNotRead(Path("pipe")), "is not a file on a disk");
    EXPECT_THROW(WriteFile(Path("pipe"), "text"), FileError);
}

TEST_F(Disk, WritesANewFile) {
    WriteFile(Path("a"), "first\n");
    EXPECT_EQ(ContentOf(Path("a")), "first\n");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Disk, TheNewFileIsAsOpenAsOthers) {
    const mode_t mask = umask(022);
    WriteFile(Path("a"), "first\n");
    umask(mask);
    struct stat status {};
    ASSERT_EQ(stat(Path("a").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0644U);
}

TEST_F(Disk, ReplacesAFileAndKeepsItsPermissions) {
    Put(Path("a"), "a longer first text\n");
    ASSERT_EQ(chmod(Path("a").c_str(), 0640), 0);
    WriteFile(Path("a"), "second\n");
    EXPECT_EQ(ContentOf(Path("a")), "second\n");
    EXPECT_EQ(FileCount(), 1U);
    struct stat status {};
    ASSERT_EQ(stat(Path("a").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(Disk, WritesBehindALink) {
    Put(Path("a"), "first\n");
    std::filesystem::create_symlink(Path("a"), Path("link"));
    WriteFile(Path("link"), "second\n");
    EXPECT_EQ(ContentOf(Path("a")), "second\n");
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
}

TEST_F(Disk, WritesANameAsLongAsNamesMayBe) {
    const std::string name(255, 'a');
    WriteFile(Path(name), "text");
    EXPECT_EQ(ContentOf(Path(name)), "text");
}

TEST_F(Disk, AFullDiskLeavesTheOldFile) {
    const std::string old(300, 'o');
    Put(Path("a"), old);
    {
        const FullDisk full(100);
        EXPECT_THROW(WriteFile(Path("a"), std::string(300, 'n')), FileError);
        EXPECT_THROW(WriteFile(Path("b"), std::string(300, 'n')), FileError);
    }
    EXPECT_EQ(ContentOf(Path("a")), old);
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Disk, AWriterThatIsKilledLeavesAWholeFile) {
    const std::string first(400000, '1');
    const std::string second(300000, '2');
    Put(Path("a"), first);
    for (int round = 0; round < 20; ++round) {
        const pid_t writer = fork();
        if (writer == 0) {
            for (;;) {
                WriteFile(Path("a"), second);
                WriteFile(Path("a"), first);
            }
        }
        ASSERT_GT(writer, 0);
        usleep(static_cast<useconds_t>(500 * round));
        ASSERT_EQ(kill(writer, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(writer, &status, 0), writer);
        ASSERT_TRUE(WIFSIGNALED(status)) << round;
        const std::string content = ContentOf(Path("a"));
        ASSERT_TRUE(content == first || content == second) << round << ' ' << content.size();
    }
    // What the killed ones left behind is in nobody's way.
    WriteFile(Path("a"), "third");
    EXPECT_EQ(ContentOf(Path("a")), "third");
}

TEST_F(Disk, AFolderThatMayNotBeWrittenKeepsItsFiles) {
    Put(Path("a"), "first\n");
    ASSERT_EQ(chmod(Path("a").c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
    {
        const OrdinaryUser user;
        EXPECT_THROW(WriteFile(Path("a"), "second\n"), FileError);
        EXPECT_THROW(WriteFile(Path("b"), "second\n"), FileError);
    }
    ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
    EXPECT_EQ(ContentOf(Path("a")), "first\n");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Disk, AProtectedFileIsNotReplaced) {
    Put(Path("a"), "first\n");
    ASSERT_EQ(chmod(Path("a").c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.c_str(), 0777), 0);
    {
        const OrdinaryUser user;
        EXPECT_THROW(WriteFile(Path("a"), "second\n"), FileError);
        WriteFile(Path("b"), "second\n");
    }
    EXPECT_EQ(ContentOf(Path("a")), "first\n");
    EXPECT_EQ(ContentOf(Path("b")), "second\n");
}

TEST_F(Disk, WhatIsNoFileIsNotReplaced) {
    std::filesystem::create_directory(Path("a"));
    EXPECT_THROW(WriteFile(Path("a"), "text"), FileError);
    EXPECT_TRUE(std::filesystem::is_directory(Path("a")));
    EXPECT_THROW(WriteFile("/dev/full", "text"), FileError);
    EXPECT_THROW(WriteFile(Path("none/a"), "text"), FileError);
    Put(Path("file"), "");
    EXPECT_THROW(WriteFile(Path("file/a"), "text"), FileError);
    EXPECT_THROW(WriteFile("", "text"), FileError);
    EXPECT_THROW(WriteFile(std::string("a\0b", 3), "text"), FileError);
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Disk, ATemporaryFileLeftBehindIsNotInTheWay) {
    Put(Path(".numerello-" + std::to_string(getpid()) + "-1"), "left");
    WriteFile(Path("a"), "text");
    EXPECT_EQ(ContentOf(Path("a")), "text");
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Disk, MakesFolders) {
    EXPECT_TRUE(MakeFolder(Path("a/b c/d")));
    EXPECT_TRUE(std::filesystem::is_directory(Path("a/b c/d")));
    EXPECT_TRUE(MakeFolder(Path("a/b c/d")));
    Put(Path("file"), "");
    EXPECT_FALSE(MakeFolder(Path("file")));
    EXPECT_FALSE(MakeFolder(Path("file/a")));
    EXPECT_FALSE(MakeFolder(""));
}

TEST_F(Disk, KnowsWhatExists) {
    EXPECT_FALSE(Exists(Path("a")));
    Put(Path("a"), "");
    EXPECT_TRUE(Exists(Path("a")));
    EXPECT_TRUE(Exists(folder));
}

TEST(DiskNames, APathIsAFolderAndAName) {
    EXPECT_EQ(FolderOf("/home/me/a.nrl"), "/home/me");
    EXPECT_EQ(FileName("/home/me/a.nrl"), "a.nrl");
    EXPECT_EQ(FolderOf("/a.nrl"), "/");
    EXPECT_EQ(FolderOf("a.nrl"), ".");
    EXPECT_EQ(FileName("a.nrl"), "a.nrl");
}

}  // namespace
}  // namespace numerello
