#include <algorithm>

#include "pages/EditorFontPage.h"
#include "pages/PageFactories.h"
#include "pages/PagesFixture.h"
#include "platform/Button.h"
#include "platform/GdiObjects.h"

namespace {

class FontPageTest : public PagesTest {
protected:
    CEditorFontPage& Open(const char* pSection = nullptr) {
        EditEx32_AddFontPage(&m_sheet, pSection);
        m_sheet.Create();
        return Page();
    }
    CEditorFontPage& Page() { return *static_cast<CEditorFontPage*>(m_sheet.GetPage(0)); }
    CButton& Button(int nID) { return *dynamic_cast<CButton*>(Page().GetDlgItem(nID)); }
    static bool Lists(const CListBox& list, const char* psz) {
        return list.FindStringExact(-1, psz) != LB_ERR;
    }
    static LOGFONTA SampleFont(const CStatic& sample) {
        LOGFONTA lf{};
        GetObjectA(sample.GetFont(), sizeof lf, &lf);
        return lf;
    }
    static int Index(const CListBox& list, const char* psz) {
        return list.FindStringExact(-1, psz);
    }

    CPropertySheet m_sheet{"Options"};
};

TEST_F(FontPageTest, OpensOnTheStoredFontWithFixedPitchFacesOnly) {
    CEditorFontPage& page = Open();
    EXPECT_EQ(Button(1046).GetCheck(), 1);
    EXPECT_EQ(Button(1045).GetCheck(), 0);
    EXPECT_TRUE(Lists(page.m_listFont, "Courier New"));
    EXPECT_FALSE(Lists(page.m_listFont, "Arial"));
    EXPECT_EQ(page.m_listFont.GetText(page.m_listFont.GetCurSel()), "Courier New");
    EXPECT_EQ(page.m_listSize.GetText(page.m_listSize.GetCurSel()), "14");
    EXPECT_EQ(page.m_listSize.GetCount(), 43);
    EXPECT_EQ(page.m_listStyle.GetCurSel(), 0);
    // The face list is sorted.
    const auto& faces = page.m_listFont.Items();
    EXPECT_TRUE(std::is_sorted(faces.begin(), faces.end()));
    // "Default" follows the selection, so a stored -1 leaves the combo empty.
    EXPECT_EQ(page.m_comboNorText.GetCurSel(), -1);
    EXPECT_EQ(page.m_comboNorText.GetSelectedColor(), static_cast<COLORREF>(-1));
    EXPECT_EQ(page.m_comboNorText.GetCount(), 21);
    // The sample is in the stored font, in the system's colours.
    const LOGFONTA lf = SampleFont(page.m_sampleNor);
    EXPECT_STREQ(lf.lfFaceName, "Courier New");
    EXPECT_EQ(lf.lfHeight, -14);
    EXPECT_EQ(lf.lfWeight, FW_NORMAL);
    EXPECT_EQ(page.m_sampleSel.GetDrawColors().crBk, GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(page.m_sampleSel.GetDrawColors().crText, GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(page.m_sampleNor.GetDrawColors().crBk, GetSysColor(COLOR_WINDOW));
    EXPECT_FALSE(m_sheet.IsApplyEnabled());
}

TEST_F(FontPageTest, TheFiltersAreRulesOnTheEnumerationAndMarkNothing) {
    CEditorFontPage& page = Open();
    Button(1046).UserClick();
    EXPECT_TRUE(Lists(page.m_listFont, "Arial"));
    EXPECT_TRUE(Lists(page.m_listFont, "MS Sans Serif"));
    Button(1045).UserClick();
    EXPECT_TRUE(Lists(page.m_listFont, "Arial"));
    EXPECT_FALSE(Lists(page.m_listFont, "MS Sans Serif"));
    EXPECT_FALSE(Lists(page.m_listFont, "Fixedsys"));
    EXPECT_FALSE(page.IsModified());
    EXPECT_EQ(page.m_strFontName, "Courier New");
}

TEST_F(FontPageTest, EveryChoiceRebuildsTheSampleAndOkWritesTheKeysInOrder) {
    CEditorFontPage& page = Open();
    Button(1046).UserClick();
    page.m_listFont.UserSelect(Index(page.m_listFont, "Arial"));
    page.m_listStyle.UserSelect(3);
    EXPECT_EQ(page.m_bBold, 1);
    EXPECT_EQ(page.m_bItalic, 1);
    page.m_listSize.UserSelect(Index(page.m_listSize, "20"));
    Button(1044).UserClick();
    page.m_comboNorBack.UserSelect(IndexOfData(page.m_comboNorBack, 15));  // yellow
    page.m_comboSelText.UserSelect(IndexOfData(page.m_comboSelText, static_cast<DWORD_PTR>(-1)));
    EXPECT_TRUE(page.IsModified());

    const LOGFONTA lf = SampleFont(page.m_sampleSel);
    EXPECT_STREQ(lf.lfFaceName, "Arial");
    EXPECT_EQ(lf.lfHeight, -20);
    EXPECT_EQ(lf.lfWeight, FW_BOLD);
    EXPECT_EQ(lf.lfItalic, 1);
    EXPECT_EQ(lf.lfUnderline, 1);
    EXPECT_EQ(lf.lfStrikeOut, 0);
    EXPECT_EQ(page.m_sampleNor.GetDrawColors().crBk, RGB(255, 255, 0));

    TakeWrites();
    const int nHeard = ReloadsHeard();
    ASSERT_TRUE(m_sheet.PressOK());
    const std::vector<std::string> expected = {
        "Editor/FontName=Arial",     "Editor/FontSize=20",        "Editor/FontBold=1",
        "Editor/FontItalic=1",       "Editor/FontStrikeOut=0",    "Editor/FontUnderline=1",
        "Editor/FontSelBkgColor=-1", "Editor/FontSelFrgColor=-1", "Editor/FontNorBkgColor=65535",
        "Editor/FontNorFrgColor=-1"};
    EXPECT_EQ(TakeWrites(), expected);
    EXPECT_EQ(ReloadsHeard(), nHeard + 1);
}

TEST_F(FontPageTest, AHiddenFaceOrAnOddSizeSavesEmpty) {
    m_store.WriteString("Style", "FontName", "Arial");
    m_store.WriteInt("Style", "FontSize", 50);
    CEditorFontPage& page = Open("Style");
    EXPECT_EQ(page.m_listFont.GetCurSel(), -1);
    EXPECT_EQ(page.m_listSize.GetCurSel(), -1);
    EXPECT_EQ(page.m_strFontName, "");
    EXPECT_EQ(page.m_nFontSize, 0);
    TakeWrites();
    ASSERT_TRUE(m_sheet.PressApply() || m_sheet.PressOK());
    EXPECT_EQ(m_store.GetWriteLog().at(0), "Style/FontName=");
    EXPECT_EQ(m_store.GetWriteLog().at(1), "Style/FontSize=0");
}

}  // namespace
