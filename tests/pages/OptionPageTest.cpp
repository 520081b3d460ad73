#include <memory>

#include "pages/EditorOptionPage.h"
#include "pages/PageFactories.h"
#include "pages/PagesFixture.h"
#include "platform/Button.h"
#include "platform/Edit.h"
#include "platform/SpinButtonCtrl.h"

namespace {

class OptionPageTest : public PagesTest {
protected:
    CEditorOptionPage& Open(bool bTSQL = false, const char* pSection = nullptr) {
        if (bTSQL)
            EditEx32_AddOptionPageTSQL(&m_sheet, pSection);
        else
            EditEx32_AddOptionPage(&m_sheet, pSection);
        m_sheet.Create();
        return *static_cast<CEditorOptionPage*>(m_sheet.GetPage(0));
    }
    CButton& Button(int nID) { return *dynamic_cast<CButton*>(Page().GetDlgItem(nID)); }
    CEdit& Edit(int nID) { return *dynamic_cast<CEdit*>(Page().GetDlgItem(nID)); }
    CEditorOptionPage& Page() { return *static_cast<CEditorOptionPage*>(m_sheet.GetPage(0)); }

    CPropertySheet m_sheet{"Options"};
};

TEST_F(OptionPageTest, ReadsTheDefaultsOfAnEmptyStoreAndShowsThem) {
    // The values read are those the controls show; the keys applying
    // writes show the rest (the page's colours have 127 where the zones
    // have 128).
    CEditorOptionPage& page = Open();
    EXPECT_EQ(Edit(1017).GetText(), "4");
    EXPECT_EQ(Button(1030).GetCheck(), 1);
    EXPECT_EQ(Button(1031).GetCheck(), 0);
    EXPECT_EQ(Button(1035).GetCheck(), 1);
    EXPECT_FALSE(Button(1020).IsWindowEnabled());
    EXPECT_FALSE(Button(1021).IsWindowEnabled());
    ASSERT_EQ(page.m_listItems.GetCount(), 8);
    EXPECT_EQ(page.m_listItems.GetText(1), "PL/SQL keywords");
    EXPECT_EQ(page.m_listItems.GetText(7), "Strings");
    EXPECT_EQ(page.m_listItems.GetCurSel(), 0);
    // The margin grey is shown as the nearest palette entry, the bookmark navy exactly.
    EXPECT_EQ(page.m_comboMargin.GetSelectedColor(), RGB(192, 192, 192));
    EXPECT_EQ(page.m_comboBookmark.GetSelectedColor(), RGB(0, 0, 128));
    EXPECT_EQ(page.m_comboMargin.GetCount(), 20);
    EXPECT_EQ(page.m_comboColor.GetCount(), 21);
    EXPECT_EQ(page.m_comboColor.GetSelectedColor(), RGB(0, 128, 0));
    EXPECT_FALSE(page.IsModified());
    EXPECT_FALSE(m_sheet.IsApplyEnabled());
}

TEST_F(OptionPageTest, TheTsqlVariantHasANinthItemAndASectionOfItsOwn) {
    m_store.WriteInt("Mine", "TabSize", 7);
    CEditorOptionPage& page = Open(true, "Mine");
    ASSERT_EQ(page.m_listItems.GetCount(), 9);
    EXPECT_EQ(page.m_listItems.GetText(1), "T-SQL keywords");
    EXPECT_EQ(page.m_listItems.GetText(8), "Identifier");
    EXPECT_EQ(page.m_nTabSize, 7);
    EXPECT_EQ(page.m_strSection, "Mine");
    CEditorOptionPage plain;
    EXPECT_EQ(plain.m_strSection, "Editor");
}

TEST_F(OptionPageTest, ApplyWritesEveryKeyInOrderThenTellsTheEditors) {
    Open();
    Edit(1017).UserSetText("8");
    EXPECT_TRUE(m_sheet.IsApplyEnabled());
    Button(1032).UserClick();
    EXPECT_EQ(Button(1030).GetCheck(), 0);
    EXPECT_EQ(Button(1032).GetCheck(), 1);
    Page().m_listItems.UserSelect(2);
    EXPECT_EQ(Page().m_comboColor.GetSelectedColor(), RGB(0, 128, 128));
    Page().m_comboColor.UserSelect(IndexOfData(Page().m_comboColor, 13));  // red
    Page().m_listItems.UserSelect(3);
    Page().m_comboColor.UserSelect(IndexOfData(Page().m_comboColor, static_cast<DWORD_PTR>(-1)));
    TakeWrites();
    const int nHeard = ReloadsHeard();

    ASSERT_TRUE(m_sheet.PressApply());
    const std::vector<std::string> expected = {
        "Editor/MarginMode=0",          "Editor/BlockMode=0",
        "Editor/DragDropEdit=1",        "Editor/MarginBkgColor=12632256",
        "Editor/BookmarkColor=8388608", "Editor/KeywordMode=2",
        "Editor/ConvertTabs=0",         "Editor/TabSize=8",
        "Editor/ConvertLeadingSpace=0", "Editor/RemoveTailingSpace=0",
        "Editor/WordCompletion=1",      "Editor/UseSyntaxColor=1",
        "Editor/Comment=0,127,0",       "Editor/KeyWord1=0,0,255",
        "Editor/KeyWord2=255,0,0",      "Editor/KeyWord3=255,255,255",
        "Editor/KeyWord4=127,0,0",      "Editor/KeyWord5=0,0,255",
        "Editor/KeyWord6=0,0,255",      "Editor/String=255,0,255",
        "Editor/Variable=255,0,0"};
    EXPECT_EQ(TakeWrites(), expected);
    EXPECT_EQ(ReloadsHeard(), nHeard + 1);
    EXPECT_FALSE(Page().IsModified());
    EXPECT_FALSE(m_sheet.IsApplyEnabled());
    EXPECT_EQ(m_sheet.GetOKText(), "Close");
    EXPECT_FALSE(m_sheet.IsCancelEnabled());

    // "Default" was stored as three times 255: a new page reads white.
    CEditorOptionPage again;
    EXPECT_EQ(again.m_crSyntax[3], RGB(255, 255, 255));
    EXPECT_EQ(again.m_crMargin, RGB(192, 192, 192));
}

TEST_F(OptionPageTest, TheSampleShowsTheCurrentItemsColour) {
    CEditorOptionPage& page = Open();
    EXPECT_EQ(page.m_sample.GetDrawColors().crText, RGB(0, 127, 0));
    page.m_listItems.UserSelect(4);
    EXPECT_EQ(page.m_sample.GetDrawColors().crText, RGB(127, 0, 0));
    EXPECT_EQ(page.m_sample.GetDrawColors().nBkMode, OPAQUE);
    page.m_comboColor.UserSelect(IndexOfData(page.m_comboColor, static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(page.m_crSyntax[4], static_cast<COLORREF>(-1));
    EXPECT_EQ(page.m_sample.GetDrawColors().crText, GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_TRUE(page.IsModified());
}

TEST_F(OptionPageTest, OddStoredValuesSurviveARoundTrip) {
    m_store.WriteInt("Editor", "KeywordMode", 9);
    m_store.WriteInt("Editor", "ConvertLeadingSpace", 1);
    m_store.WriteInt("Editor", "RemoveTailingSpace", 1);
    Open();
    for (int nID = 1030; nID <= 1033; ++nID)
        EXPECT_EQ(Button(nID).GetCheck(), 0) << nID;
    // The user can't change the two disabled checks.
    Button(1020).UserClick();
    EXPECT_EQ(Button(1020).GetCheck(), 1);
    EXPECT_FALSE(Page().IsModified());

    TakeWrites();
    ASSERT_TRUE(m_sheet.PressOK());
    EXPECT_EQ(m_sheet.GetResult(), IDOK);
    EXPECT_EQ(m_store.ReadInt("Editor", "KeywordMode", 0, 0), 9);
    EXPECT_EQ(m_store.ReadInt("Editor", "ConvertLeadingSpace", 0, 0), 1);
    EXPECT_EQ(m_store.ReadInt("Editor", "RemoveTailingSpace", 0, 0), 1);
    EXPECT_EQ(TakeWrites().size(), 21u);
}

TEST_F(OptionPageTest, TheSpinStepsTheTabSizeAndATabSizeThatIsNoNumberStopsApply) {
    Open();
    auto& spin = *dynamic_cast<CSpinButtonCtrl*>(Page().GetDlgItem(1018));
    spin.UserStep(1);
    spin.UserStep(1);
    EXPECT_EQ(Edit(1017).GetText(), "6");
    EXPECT_TRUE(m_sheet.IsApplyEnabled());
    // Digits only: letters are refused with a beep.
    const int nBeeps = m_platform.GetBeepCount();
    Edit(1017).UserSetText("1x2");
    EXPECT_EQ(Edit(1017).GetText(), "12");
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 1);

    Edit(1017).UserSetText("");
    TakeWrites();
    EXPECT_FALSE(m_sheet.PressApply());
    EXPECT_TRUE(TakeWrites().empty());
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 2);
    Edit(1017).UserSetText("3");
    EXPECT_TRUE(m_sheet.PressApply());
    EXPECT_EQ(m_store.ReadInt("Editor", "TabSize", 0, 0), 3);
}

TEST_F(OptionPageTest, WithoutAStoreIntegersReadZeroAndColoursBlack) {
    AppDataManager::InstallAppDataManager(nullptr);
    CEditorOptionPage page;
    EXPECT_EQ(page.m_nTabSize, 0);
    EXPECT_EQ(page.m_bDragDrop, 0);
    EXPECT_EQ(page.m_crMargin, 0u);
    for (COLORREF cr : page.m_crSyntax)
        EXPECT_EQ(cr, RGB(0, 0, 0));
}

TEST_F(OptionPageTest, CancelLeavesTheStoreAlone) {
    Open();
    Edit(1017).UserSetText("9");
    TakeWrites();
    m_sheet.PressCancel();
    EXPECT_EQ(m_sheet.GetResult(), IDCANCEL);
    EXPECT_TRUE(TakeWrites().empty());
}

}  // namespace
