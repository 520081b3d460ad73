#include "host/AppDataManager.h"
#include "host/MemoryAppDataManager.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

// Installs a fresh in-memory manager for one test and always uninstalls it.
class AppDataManagerTest : public ::testing::Test {
protected:
    void SetUp() override { AppDataManager::InstallAppDataManager(&m_manager); }
    void TearDown() override { AppDataManager::InstallAppDataManager(nullptr); }
    CMemoryAppDataManager m_manager;
};

}  // namespace

TEST(AppDataManager, WithoutAManagerIntegersReadZeroAndStringsEmpty) {
    AppDataManager::InstallAppDataManager(nullptr);
    EXPECT_EQ(AppDataManager::LoadAppDataManager(), nullptr);
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 0);
    EXPECT_EQ(ReadSettingString("Editor", "FontName", "Courier New"), "");
    WriteSettingInt("Editor", "TabSize", 8);  // dropped, and harmless
    WriteSettingString("Editor", "FontName", "Mono");
}

TEST_F(AppDataManagerTest, ReadsComeFromTheManagerInstalledAtTheTimeOfTheCall) {
    EXPECT_EQ(AppDataManager::LoadAppDataManager(), &m_manager);
    // Nothing stored: the defaults.
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 4);
    EXPECT_EQ(ReadSettingString("Editor", "FontName", "Courier New"), "Courier New");
    EXPECT_EQ(ReadSettingString("Editor", "FontName", nullptr), "");

    WriteSettingInt("Editor", "TabSize", -12);
    WriteSettingString("Editor", "FontName", "DejaVu Sans Mono");
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), -12);
    EXPECT_EQ(ReadSettingString("Editor", "TabSize", ""), "-12");
    EXPECT_EQ(ReadSettingString("Editor", "FontName", "Courier New"), "DejaVu Sans Mono");
    // Sections keep keys apart.
    EXPECT_EQ(ReadSettingInt("Other", "TabSize", 3), 3);

    // Numbers parse like atoi: leading digits count, anything else reads 0.
    m_manager.WriteString("Editor", "A", "12abc");
    m_manager.WriteString("Editor", "B", "abc");
    m_manager.WriteString("Editor", "C", "");
    EXPECT_EQ(ReadSettingInt("Editor", "A", 7), 12);
    EXPECT_EQ(ReadSettingInt("Editor", "B", 7), 0);
    EXPECT_EQ(ReadSettingInt("Editor", "C", 7), 0);

    // A null string removes the key, so the default is back.
    m_manager.WriteString("Editor", "TabSize", nullptr);
    EXPECT_FALSE(m_manager.HasValue("Editor", "TabSize"));
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 4);

    // Uninstalling takes effect on the next read.
    AppDataManager::InstallAppDataManager(nullptr);
    EXPECT_EQ(ReadSettingString("Editor", "FontName", "Courier New"), "");
    AppDataManager::InstallAppDataManager(&m_manager);
    EXPECT_EQ(ReadSettingString("Editor", "FontName", "Courier New"), "DejaVu Sans Mono");
}

TEST_F(AppDataManagerTest, MissingSettingsObjectReadsZeroAndEmptyAndDropsWrites) {
    m_manager.WriteInt("Editor", "TabSize", 8);
    m_manager.ClearWriteLog();
    m_manager.SetSettingsAvailable(false);
    EXPECT_EQ(m_manager.GetSettings(), nullptr);
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 0);
    EXPECT_EQ(ReadSettingString("Editor", "FontName", "Courier New"), "");
    WriteSettingInt("Editor", "TabSize", 2);
    EXPECT_TRUE(m_manager.GetWriteLog().empty());

    m_manager.SetSettingsAvailable(true);
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 8);
}

TEST_F(AppDataManagerTest, ReadStringTruncatesToTheBufferAndAlwaysEndsIt) {
    m_manager.WriteString("S", "K", "abcdef");
    char buf[8];
    std::memset(buf, 'x', sizeof buf);
    m_manager.ReadString("S", "K", "", buf, 4, 0);
    EXPECT_STREQ(buf, "abc");
    EXPECT_EQ(buf[4], 'x');  // nothing written past size
    m_manager.ReadString("S", "K", "", buf, 1, 0);
    EXPECT_STREQ(buf, "");
    m_manager.ReadString("S", "missing", "0123456789", buf, 8, 0);
    EXPECT_STREQ(buf, "0123456");

    // The editor's own reads go through a 4096-byte buffer.
    std::string longValue(5000, 'q');
    m_manager.WriteString("S", "Long", longValue.c_str());
    EXPECT_EQ(ReadSettingString("S", "Long", ""), std::string(4095, 'q'));
}

TEST_F(AppDataManagerTest, DataDirectoryEndsInTheSeparator) {
    ASSERT_EQ(m_manager.GetDirectory(), static_cast<IAppDirectory*>(&m_manager));
    char buf[1024];
    IAppDirectory* pDir = m_manager.GetDirectory();

    // No directory set: nothing, so a file name alone stays relative.
    EXPECT_EQ(pDir->GetDataDirectory(buf, sizeof buf, '\\'), 0);
    EXPECT_STREQ(buf, "");

    // The desktop separator becomes '/', added only when missing.
    m_manager.SetDataDirectory("/home/u/.config/textzone");
    EXPECT_EQ(pDir->GetDataDirectory(buf, sizeof buf, '\\'), 25);
    EXPECT_STREQ(buf, "/home/u/.config/textzone/");
    m_manager.SetDataDirectory("/data/");
    EXPECT_EQ(pDir->GetDataDirectory(buf, sizeof buf, '\\'), 6);
    EXPECT_EQ(std::string(buf) + "ed_short.txt", "/data/ed_short.txt");

    // Exactly fitting (with its 0) works; one byte less gives 0 and empty.
    EXPECT_EQ(pDir->GetDataDirectory(buf, 7, '\\'), 6);
    std::memset(buf, 'x', sizeof buf);
    EXPECT_EQ(pDir->GetDataDirectory(buf, 6, '\\'), 0);
    EXPECT_STREQ(buf, "");

    m_manager.SetDirectoryAvailable(false);
    EXPECT_EQ(m_manager.GetDirectory(), nullptr);
    EXPECT_NE(m_manager.GetSettings(), nullptr);
}
