// Shortcuts: reading the file from the settings store's data directory, and
// the expansion when a blank is typed behind a stored word.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "ParamZone.h"
#include "host/MemoryAppDataManager.h"

namespace {

class ShortcutTest : public ParamTest {
protected:
    void SetUp() override {
        ParamTest::SetUp();
        m_dir = std::filesystem::temp_directory_path() /
                ("textzone-shortcuts-" + std::to_string(::getpid()));
        std::filesystem::create_directories(m_dir);
        m_store.SetDataDirectory(m_dir.string());
        AppDataManager::InstallAppDataManager(&m_store);
        m_zone.SetKeywordMode(KM_NONE, 0);
    }
    void TearDown() override {
        AppDataManager::InstallAppDataManager(nullptr);
        std::filesystem::permissions(m_dir / kShortcutFileName, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, m_error);
        std::filesystem::remove_all(m_dir, m_error);
        ParamTest::TearDown();
    }
    void WriteFile(const std::string& bytes) {
        std::ofstream(m_dir / kShortcutFileName, std::ios::binary) << bytes;
    }
    std::vector<std::pair<std::string, std::string>> Loaded() {
        std::vector<std::pair<std::string, std::string>> table;
        for (const auto& p : m_zone.GetShortcuts())
            table.emplace_back(p->m_strKey.c_str(), p->m_strText.c_str());
        return table;
    }

    std::filesystem::path m_dir;
    std::error_code m_error;
    CMemoryAppDataManager m_store;
};

using Pairs = std::vector<std::pair<std::string, std::string>>;

}  // namespace

TEST_F(ShortcutTest, TheFileIsReadLineByLineSkippingWhatCannotExpand) {
    WriteFile(
        "sel\tSELECT * FROM\r\n"
        "no tab here\r\n"
        "\tno key\n"
        "nokey\t\r"
        "ins\tINSERT INTO\tt\n"
        "sel\tsecond wins nothing\r\n"
        "\r\n" +
        std::string(1100, 'k') + "\tlong\r\n"
        "last\tno line end");
    m_zone.EnableShortcuts(1);
    EXPECT_EQ(Loaded(), (Pairs{{"sel", "SELECT * FROM"},
                              {"ins", "INSERT INTO\tt"},
                              {"sel", "second wins nothing"},
                              {"last", "no line end"}}));
    // Each enabling reads the file again.
    WriteFile("a\tb");
    m_zone.EnableShortcuts(1);
    EXPECT_EQ(Loaded(), (Pairs{{"a", "b"}}));
    // Any other value empties the table.
    m_zone.EnableShortcuts(2);
    EXPECT_TRUE(Loaded().empty());
}

TEST_F(ShortcutTest, AMissingOrUnreadableFileGivesNoShortcuts) {
    m_zone.EnableShortcuts(1);
    EXPECT_TRUE(Loaded().empty());
    EXPECT_FALSE(std::filesystem::exists(m_dir / kShortcutFileName));

    WriteFile("a\tb\r\n");
    std::filesystem::permissions(m_dir / kShortcutFileName, std::filesystem::perms::none);
    m_zone.EnableShortcuts(1);
    if (::geteuid() != 0) {  // root reads it anyway
        EXPECT_TRUE(Loaded().empty());
    }

    // Without a directory the file is looked for by its bare name.
    m_store.SetDirectoryAvailable(false);
    m_zone.EnableShortcuts(1);
    EXPECT_TRUE(Loaded().empty());
}

TEST_F(ShortcutTest, ABlankBehindAStoredWordExpandsItAsOneUndoStep) {
    WriteFile("sel\tSELECT * FROM\r\nsel\tlater\r\nw\tWHERE\r\n");
    m_zone.EnableShortcuts(1);
    Start("", 0, 0);
    Type("sel ");
    EXPECT_EQ(Line(), "SELECT * FROM ");
    EXPECT_EQ(m_zone.m_nSelStartChar, 14);
    EXPECT_FALSE(m_zone.TestSelection());
    EXPECT_EQ(m_zone.GetUndoType(), TZ_EDIT_REPLACE);
    m_zone.Undo();
    EXPECT_EQ(Line(), "sel ");

    const struct {
        const char* pszTyped;
        const char* pszResult;
    } cases[] = {
        {"xsel ", "xsel "},      // the word is xsel
        {"(sel ", "(SELECT * FROM "},
        {"w ", "WHERE "},        // a one-letter word at the line's start
        {" ", " "},
        {"Sel ", "Sel "},        // keys compare exactly
    };
    for (const auto& c : cases) {
        Start("", 0, 0);
        Type(c.pszTyped);
        EXPECT_EQ(Line(), c.pszResult) << c.pszTyped;
    }

    // A blank typed over a selection never expands.
    Start("sel", 0, 3);
    m_zone.SetSelection(0, 0, 2, 3, 0, 1);
    ASSERT_TRUE(m_zone.TestSelection());
    Type(" ");
    EXPECT_EQ(Line(), "se ");
}

TEST_F(ShortcutTest, ExpansionNeedsAWritableSqlZoneAndGetsTheKeywordCase) {
    WriteFile("s\tselect a from\r\n");
    m_zone.EnableShortcuts(1);
    m_zone.SetKeywordMode(KM_UPPER, 0);
    Start("", 0, 0);
    Type("s ");
    EXPECT_EQ(Line(), "SELECT a FROM ");

    m_zone.SetReadOnly(1);
    Start("s", 0, 1);
    Type(" ");
    EXPECT_EQ(Line(), "s");
    m_zone.SetReadOnly(0);

    m_zone.SetClientLanguageSyntaxColor(1);
    Start("", 0, 0);
    Type("s ");
    EXPECT_EQ(Line(), "s ");
}
