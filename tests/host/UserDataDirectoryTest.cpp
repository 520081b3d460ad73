// The per-user data directory: where it is, and that reading never creates it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "host/UserDataDirectory.h"

namespace {

class UserDataDirectoryTest : public ::testing::Test {
protected:
    void SetUp() override {
        Save("XDG_DATA_HOME", m_xdg, m_bXdg);
        Save("HOME", m_home, m_bHome);
        m_root = std::filesystem::temp_directory_path() /
                 ("textzone-data-" + std::to_string(::getpid()));
        std::filesystem::remove_all(m_root);
    }
    void TearDown() override {
        Restore("XDG_DATA_HOME", m_xdg, m_bXdg);
        Restore("HOME", m_home, m_bHome);
        std::filesystem::remove_all(m_root);
    }
    static void Save(const char* name, std::string& value, bool& bSet) {
        const char* p = std::getenv(name);
        bSet = p != nullptr;
        value = p ? p : "";
    }
    static void Restore(const char* name, const std::string& value, bool bSet) {
        if (bSet)
            ::setenv(name, value.c_str(), 1);
        else
            ::unsetenv(name);
    }

    std::string m_xdg, m_home;
    bool m_bXdg = false, m_bHome = false;
    std::filesystem::path m_root;
};

}  // namespace

TEST_F(UserDataDirectoryTest, FollowsXdgDataHomeElseTheHomeDirectory) {
    ::setenv("XDG_DATA_HOME", "/data/me", 1);
    ::setenv("HOME", "/home/me", 1);
    EXPECT_EQ(CUserDataDirectory::Path(), "/data/me/textzone");
    // A relative value is invalid and ignored; so is an empty one.
    ::setenv("XDG_DATA_HOME", "rel/data", 1);
    EXPECT_EQ(CUserDataDirectory::Path(), "/home/me/.local/share/textzone");
    ::setenv("XDG_DATA_HOME", "", 1);
    EXPECT_EQ(CUserDataDirectory::Path(), "/home/me/.local/share/textzone");
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(CUserDataDirectory::Path(), "/home/me/.local/share/textzone");
    ::unsetenv("HOME");
    EXPECT_EQ(CUserDataDirectory::Path(), "");

    CUserDataDirectory directory;
    char buffer[1024];
    EXPECT_EQ(directory.GetDataDirectory(buffer, sizeof buffer, '\\'), 0);
    ::setenv("HOME", "/home/me", 1);
    EXPECT_GT(directory.GetDataDirectory(buffer, sizeof buffer, '\\'), 0);
    EXPECT_STREQ(buffer, "/home/me/.local/share/textzone/");
}

TEST_F(UserDataDirectoryTest, CreatedOnFirstWriteNeverOnRead) {
    ::setenv("XDG_DATA_HOME", (m_root / "share").c_str(), 1);
    CUserDataDirectory directory;
    char buffer[1024];
    ASSERT_GT(directory.GetDataDirectory(buffer, sizeof buffer, '\\'), 0);
    EXPECT_FALSE(std::filesystem::exists(m_root));
    EXPECT_TRUE(CUserDataDirectory::CreateForWrite());
    EXPECT_TRUE(std::filesystem::is_directory(m_root / "share" / "textzone"));
    // Again is fine.
    EXPECT_TRUE(CUserDataDirectory::CreateForWrite());
}
