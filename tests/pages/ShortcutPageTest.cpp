#include "pages/EditorShortcutPage.h"
#include "pages/PageFactories.h"
#include "pages/PagesFixture.h"
#include "zones/TextZoneParam.h"

namespace {

class ShortcutPageTest : public PagesTest {
protected:
    CEditorShortcutPage& Open(const char* pSection = nullptr) {
        EditEx32_AddShortcutPage(&m_sheet, pSection);
        m_sheet.Create();
        return Page();
    }
    CEditorShortcutPage& Page() { return *static_cast<CEditorShortcutPage*>(m_sheet.GetPage(0)); }
    std::string File() { return m_dir + "/ed_short.txt"; }
    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (int i = 0; i < Page().m_list.GetRowCount(); ++i)
            rows.push_back(Page().m_list.GetRowText(i));
        return rows;
    }
    void Set(const char* pszKey, const char* pszText) {
        Page().m_editKey.UserSetText(pszKey);
        Page().m_editText.UserSetText(pszText);
        Page().OnControlNotify(1012, BN_CLICKED);
    }

    CPropertySheet m_sheet;
};

TEST_F(ShortcutPageTest, ListsTheFileByTheZonesLineRulesButKeepsEmptyParts) {
    ASSERT_TRUE(WriteFileBytes(
        File(), "sel\tSELECT * FROM\r\nnotab\r\n\tempty key\r\nins\tINSERT INTO\tt\nupd\t\r\n"));
    Open();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"sel\tSELECT * FROM", "\tempty key",
                                                "ins\tINSERT INTO\tt", "upd\t"}));
    EXPECT_EQ(Page().m_checkEnable.GetCheck(), 1);
    EXPECT_EQ(Page().m_strSection, "Editor_Shortcuts");
}

TEST_F(ShortcutPageTest, AMissingFileShowsAnEmptyList) {
    Open();
    EXPECT_EQ(Page().m_list.GetRowCount(), 0);
}

TEST_F(ShortcutPageTest, SetAddsChangesAndMovesOnDeleteRemoves) {
    ASSERT_TRUE(WriteFileBytes(File(), "a\tone\r\nb\ttwo\r\n"));
    Open();
    // Nothing selected: added, fields emptied; trailing blanks are cut.
    Set("c  ", "three  ");
    EXPECT_EQ(Rows().back(), "c\tthree");
    EXPECT_EQ(Page().m_editKey.GetText(), "");
    EXPECT_EQ(Page().m_list.GetSelectedRow(), -1);

    // Selecting a row fills the fields from it.
    Page().m_list.UserSelectRow(0);
    EXPECT_EQ(Page().m_editKey.GetText(), "a");
    EXPECT_EQ(Page().m_editText.GetText(), "one");
    // Set changes it and moves on to the next row, which fills the fields.
    Set("a", "uno");
    EXPECT_EQ(Rows()[0], "a\tuno");
    EXPECT_EQ(Page().m_list.GetSelectedRow(), 1);
    EXPECT_EQ(Page().m_editKey.GetText(), "b");
    EXPECT_EQ(Page().m_editText.GetText(), "two");
    // On the last row nothing is selected afterwards and the fields keep their text.
    Page().m_list.UserSelectRow(2);
    Set("c", "tres");
    EXPECT_EQ(Rows()[2], "c\ttres");
    EXPECT_EQ(Page().m_list.GetSelectedRow(), -1);
    EXPECT_EQ(Page().m_editText.GetText(), "tres");
    EXPECT_FALSE(Page().IsModified());

    Page().m_list.UserSelectRow(1);
    Page().OnControlNotify(1011, BN_CLICKED);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"a\tuno", "c\ttres"}));
    EXPECT_EQ(Page().m_list.GetSelectedRow(), -1);
    EXPECT_EQ(Page().m_editKey.GetText(), "");
    // Delete without a selection does nothing.
    Page().OnControlNotify(1011, BN_CLICKED);
    EXPECT_EQ(Page().m_list.GetRowCount(), 2);
}

TEST_F(ShortcutPageTest, OkRewritesTheFileWithCrLfAndAZoneReadsIt) {
    ASSERT_TRUE(WriteFileBytes(File(), "sel\tSELECT\nnotab\n\tempty key\n"));
    Open();
    Set("ins", "INSERT INTO");
    const int nHeard = ReloadsHeard();
    TakeWrites();
    ASSERT_TRUE(m_sheet.PressOK());
    EXPECT_EQ(ReadFileBytes(File()), "sel\tSELECT\r\n\tempty key\r\nins\tINSERT INTO\r\n");
    EXPECT_EQ(TakeWrites(), (std::vector<std::string>{"Editor_Shortcuts/EnableShortcuts=1"}));
    EXPECT_EQ(ReloadsHeard(), nHeard + 1);

    CTextZoneParam zone;
    zone.LoadShortcuts();
    ASSERT_EQ(zone.GetShortcuts().size(), 2u);
    EXPECT_EQ(zone.GetShortcuts()[0]->m_strKey, "sel");
    EXPECT_EQ(zone.GetShortcuts()[1]->m_strText, "INSERT INTO");
}

TEST_F(ShortcutPageTest, UncheckingRemovesTheKeyAndAMissingDirectoryIsMade) {
    m_store.SetDataDirectory(m_dir + "/new/");
    Open("Editor");
    Page().m_checkEnable.UserClick();
    EXPECT_EQ(Page().m_bEnable, 0);
    Set("k", "text");
    TakeWrites();
    ASSERT_TRUE(m_sheet.PressOK());
    EXPECT_EQ(TakeWrites(), (std::vector<std::string>{"Editor/EnableShortcuts"}));
    EXPECT_EQ(ReadFileBytes(m_dir + "/new/ed_short.txt"), "k\ttext\r\n");
}

TEST_F(ShortcutPageTest, WithoutADataDirectoryNothingIsWrittenAndTheEditorsStillHear) {
    m_store.SetDirectoryAvailable(false);
    std::filesystem::remove("ed_short.txt");
    Open();
    Set("k", "text");
    const int nHeard = ReloadsHeard();
    ASSERT_TRUE(m_sheet.PressOK());
    EXPECT_FALSE(std::filesystem::exists("ed_short.txt"));
    EXPECT_EQ(ReloadsHeard(), nHeard + 1);
}

}  // namespace
