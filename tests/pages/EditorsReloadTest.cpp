#include "colour/TextZoneColor.h"
#include "editor/EditorEx.h"
#include "pages/EditorFontPage.h"
#include "pages/EditorOptionPage.h"
#include "pages/EditorShortcutPage.h"
#include "pages/PageFactories.h"
#include "pages/PagesFixture.h"
#include "platform/Button.h"
#include "platform/Edit.h"
#include "zones/TextZoneParam.h"

namespace {

// An open extended editor takes what the pages write the moment they apply.
class EditorsReloadTest : public PagesTest {
protected:
    void SetUp() override {
        PagesTest::SetUp();
        ASSERT_TRUE(
            m_editor.Create(WS_VISIBLE | WS_CHILD | WS_VSCROLL, RECT{0, 0, 300, 200}, &m_wnd, 40));
        EditEx32_AddOptionPage(&m_sheet, nullptr);
        EditEx32_AddFontPage(&m_sheet, nullptr);
        EditEx32_AddShortcutPage(&m_sheet, "Editor");
        m_sheet.Create();
    }
    void TearDown() override {
        m_editor.DestroyWindow();
        PagesTest::TearDown();
    }
    CTextZoneParam& Zone() { return *m_editor.GetTextZone(); }
    template <typename T>
    T& Page(int n) {
        return *static_cast<T*>(m_sheet.GetPage(n));
    }

    CEditorEx m_editor;
    CPropertySheet m_sheet;
};

TEST_F(EditorsReloadTest, OptionsFontAndShortcutsReachAnOpenEditor) {
    auto& options = Page<CEditorOptionPage>(0);
    dynamic_cast<CEdit*>(options.GetDlgItem(1017))->UserSetText("7");
    options.m_comboColor.UserSelect(IndexOfData(options.m_comboColor, 16));  // blue
    ASSERT_TRUE(m_sheet.PressApply());
    EXPECT_EQ(std::abs(Zone().GetTabWidth()), 7);
    EXPECT_EQ(Zone().GetSyntaxColor(SC_COMMENT), RGB(0, 0, 255));

    ASSERT_TRUE(m_sheet.SetActivePage(1));
    auto& font = Page<CEditorFontPage>(1);
    font.m_listSize.UserSelect(font.m_listSize.FindStringExact(-1, "20"));
    font.m_listStyle.UserSelect(2);
    ASSERT_TRUE(m_sheet.PressApply());
    LOGFONTA lf{};
    ASSERT_NE(m_editor.m_pDefFont, nullptr);
    m_editor.m_pDefFont->GetLogFont(&lf);
    EXPECT_EQ(lf.lfHeight, -20);
    EXPECT_EQ(lf.lfWeight, FW_BOLD);

    ASSERT_TRUE(m_sheet.SetActivePage(2));
    auto& shortcuts = Page<CEditorShortcutPage>(2);
    shortcuts.m_editKey.UserSetText("sf");
    shortcuts.m_editText.UserSetText("SELECT * FROM");
    shortcuts.OnControlNotify(1012, BN_CLICKED);
    EXPECT_TRUE(Zone().GetShortcuts().empty());
    ASSERT_TRUE(m_sheet.PressOK());
    ASSERT_EQ(Zone().GetShortcuts().size(), 1u);
    EXPECT_EQ(Zone().GetShortcuts()[0]->m_strText, "SELECT * FROM");
}

}  // namespace
