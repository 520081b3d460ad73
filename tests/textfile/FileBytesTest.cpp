// Reading and writing whole files: failures are reported, and a save that
// fails leaves the old file as it was.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "apps/demo/FileBytes.h"

namespace fs = std::filesystem;

namespace {

class FileBytesTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_dir = fs::temp_directory_path() / ("textzone-files-" + std::to_string(::getpid()));
        fs::remove_all(m_dir);
        fs::create_directories(m_dir);
    }
    void TearDown() override {
        std::error_code error;
        fs::permissions(m_dir, fs::perms::owner_all, fs::perm_options::add, error);
        fs::remove_all(m_dir, error);
    }
    std::string Path(const char* name) const { return (m_dir / name).string(); }
    static std::string Contents(const std::string& path) {
        std::string bytes, error;
        EXPECT_TRUE(CFileBytes::Read(path, &bytes, &error)) << error;
        return bytes;
    }
    // The names in the folder: a save leaves no stray files behind.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_dir)) names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    fs::path m_dir;
};

}  // namespace

TEST_F(FileBytesTest, WritesAndReadsEveryByte) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    bytes += std::string(200000, 'x') + "\r\n\0\r";
    std::string error;
    ASSERT_TRUE(CFileBytes::Write(Path("all.bin"), bytes, &error)) << error;
    EXPECT_EQ(Contents(Path("all.bin")), bytes);
    // Replacing: shorter, then empty.
    ASSERT_TRUE(CFileBytes::Write(Path("all.bin"), "short", &error)) << error;
    EXPECT_EQ(Contents(Path("all.bin")), "short");
    ASSERT_TRUE(CFileBytes::Write(Path("all.bin"), "", &error)) << error;
    EXPECT_EQ(Contents(Path("all.bin")), "");
    EXPECT_EQ(Names(), std::vector<std::string>{"all.bin"});
}

TEST_F(FileBytesTest, AReplacedFileKeepsItsPermissionsAndItsLinks) {
    const std::string path = Path("script.sh");
    ASSERT_TRUE(CFileBytes::Write(path, "old", nullptr));
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write | fs::perms::owner_exec |
                              fs::perms::group_read);
    ASSERT_TRUE(CFileBytes::Write(path, "new", nullptr));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write |
                                                  fs::perms::owner_exec | fs::perms::group_read);

    // Through a link the file it names changes; the link stays a link.
    fs::create_symlink("script.sh", Path("link.sh"));
    ASSERT_TRUE(CFileBytes::Write(Path("link.sh"), "through the link", nullptr));
    EXPECT_TRUE(fs::is_symlink(Path("link.sh")));
    EXPECT_EQ(Contents(path), "through the link");
    EXPECT_EQ(Names(), (std::vector<std::string>{"link.sh", "script.sh"}));
}

TEST_F(FileBytesTest, FailuresAreReportedAndLeaveTheOldFileIntact) {
    std::string bytes = "untouched", error;
    // Reading: a missing file and a folder.
    EXPECT_FALSE(CFileBytes::Read(Path("missing.sql"), &bytes, &error));
    EXPECT_EQ(error, "Cannot open \"" + Path("missing.sql") + "\": there is no such file.");
    EXPECT_EQ(bytes, "untouched");
    EXPECT_FALSE(CFileBytes::Read(m_dir.string(), &bytes, &error));
    EXPECT_NE(error.find("it is a folder"), std::string::npos) << error;

    // Writing into a folder that is not there, or over a folder.
    EXPECT_FALSE(CFileBytes::Write(Path("no/such/folder.sql"), "x", &error));
    EXPECT_NE(error.find("does not exist"), std::string::npos) << error;
    fs::create_directory(Path("sub"));
    EXPECT_FALSE(CFileBytes::Write(Path("sub"), "x", &error));
    EXPECT_NE(error.find("it is a folder"), std::string::npos) << error;
    EXPECT_FALSE(CFileBytes::Write("", "x", &error));

    // A file whose folder takes no new file, even for the superuser: the
    // old file reads as before, and the reason is given.
    const std::string before = Contents("/proc/version");
    ASSERT_FALSE(before.empty());
    EXPECT_FALSE(CFileBytes::Write("/proc/version", "lost", &error));
    EXPECT_NE(error.find("Cannot save \"/proc/version\": "), std::string::npos) << error;
    EXPECT_EQ(Contents("/proc/version"), before);

    // A folder without write permission, where permissions hold.
    if (::geteuid() != 0) {
        const std::string path = Path("kept.sql");
        ASSERT_TRUE(CFileBytes::Write(path, "kept", nullptr));
        fs::permissions(m_dir, fs::perms::owner_write, fs::perm_options::remove);
        EXPECT_FALSE(CFileBytes::Write(path, "lost", &error));
        EXPECT_NE(error.find("Permission denied"), std::string::npos) << error;
        EXPECT_EQ(Contents(path), "kept");
        fs::permissions(m_dir, fs::perms::owner_write, fs::perm_options::add);
        fs::permissions(path, fs::perms::none);
        EXPECT_FALSE(CFileBytes::Read(path, &bytes, &error));
        EXPECT_NE(error.find("Permission denied"), std::string::npos) << error;
    }
    // No half-written copies are left behind.
    std::vector<std::string> expected{"sub"};
    if (::geteuid() != 0) expected.insert(expected.begin(), "kept.sql");
    EXPECT_EQ(Names(), expected);
}
