// The per-user data directory: where it is, and that reading never creates it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "host/UserDataDirectory.h"
#include "support/ScopedEnv.h"

namespace {

class UserDataDirectoryTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_root = std::filesystem::temp_directory_path() /
                 ("textzone-data-" + std::to_string(::getpid()));
        std::filesystem::remove_all(m_root);
    }
    void TearDown() override { std::filesystem::remove_all(m_root); }

    CScopedEnv m_env;
    std::filesystem::path m_root;
};

}  // namespace

TEST_F(UserDataDirectoryTest, FollowsXdgDataHomeElseTheHomeDirectory) {
    m_env.Set("XDG_DATA_HOME", "/data/me");
    m_env.Set("HOME", "/home/me");
    EXPECT_EQ(CUserDataDirectory::Path(), "/data/me/textzone");
    // A relative value is invalid and ignored; so is an empty one.
    m_env.Set("XDG_DATA_HOME", "rel/data");
    EXPECT_EQ(CUserDataDirectory::Path(), "/home/me/.local/share/textzone");
    m_env.Set("XDG_DATA_HOME", "");
    EXPECT_EQ(CUserDataDirectory::Path(), "/home/me/.local/share/textzone");
    m_env.Set("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(CUserDataDirectory::Path(), "/home/me/.local/share/textzone");
    m_env.Set("HOME", nullptr);
    EXPECT_EQ(CUserDataDirectory::Path(), "");

    CUserDataDirectory directory;
    char buffer[1024];
    EXPECT_EQ(directory.GetDataDirectory(buffer, sizeof buffer, '\\'), 0);
    m_env.Set("HOME", "/home/me");
    EXPECT_GT(directory.GetDataDirectory(buffer, sizeof buffer, '\\'), 0);
    EXPECT_STREQ(buffer, "/home/me/.local/share/textzone/");
}

TEST_F(UserDataDirectoryTest, CreatedOnFirstWriteNeverOnRead) {
    m_env.Set("XDG_DATA_HOME", (m_root / "share").c_str());
    CUserDataDirectory directory;
    char buffer[1024];
    ASSERT_GT(directory.GetDataDirectory(buffer, sizeof buffer, '\\'), 0);
    EXPECT_FALSE(std::filesystem::exists(m_root));
    EXPECT_TRUE(CUserDataDirectory::CreateForWrite());
    EXPECT_TRUE(std::filesystem::is_directory(m_root / "share" / "textzone"));
    // Again is fine.
    EXPECT_TRUE(CUserDataDirectory::CreateForWrite());
}
