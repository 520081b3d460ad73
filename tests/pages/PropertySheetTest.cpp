#include "pages/EditorFontPage.h"
#include "pages/EditorOptionPage.h"
#include "pages/PagesFixture.h"
#include "platform/Edit.h"

namespace {

class PropertySheetTest : public PagesTest {
protected:
    void SetUp() override {
        PagesTest::SetUp();
        m_sheet.AddPage(&m_options);
        m_sheet.AddPage(&m_font);
    }
    CEdit& TabSize() { return *dynamic_cast<CEdit*>(m_options.GetDlgItem(1017)); }

    CEditorOptionPage m_options;
    CEditorFontPage m_font;
    CPropertySheet m_sheet;
};

TEST_F(PropertySheetTest, PagesComeUpWhenFirstShownAndOnlyThoseAreApplied) {
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_TRUE(m_options.IsCreated());
    EXPECT_FALSE(m_font.IsCreated());
    EXPECT_EQ(m_font.GetDlgItem(1001), nullptr);
    TabSize().UserSetText("5");
    TakeWrites();
    ASSERT_TRUE(m_sheet.PressApply());
    for (const std::string& write : TakeWrites())
        EXPECT_EQ(write.find("Editor/Font"), std::string::npos) << write;

    ASSERT_TRUE(m_sheet.SetActivePage(1));
    EXPECT_TRUE(m_font.IsCreated());
    EXPECT_EQ(m_sheet.GetActiveIndex(), 1);
    // Both created pages write on OK, whether changed or not.
    ASSERT_TRUE(m_sheet.PressOK());
    const std::vector<std::string> writes = TakeWrites();
    EXPECT_EQ(writes.size(), 21u + 10u);
}

TEST_F(PropertySheetTest, APageThatDoesNotValidateKeepsTheSheetOnIt) {
    m_sheet.Create();
    TabSize().UserSetText("");
    const int nBeeps = m_platform.GetBeepCount();
    EXPECT_FALSE(m_sheet.SetActivePage(1));
    EXPECT_EQ(m_sheet.GetActiveIndex(), 0);
    EXPECT_FALSE(m_font.IsCreated());
    EXPECT_FALSE(m_sheet.PressOK());
    EXPECT_EQ(m_sheet.GetResult(), 0);
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 2);
    // Apply is offered while a page is modified, and only then works.
    TabSize().UserSetText("4");
    m_options.SetModified(FALSE);
    EXPECT_FALSE(m_sheet.IsApplyEnabled());
    TakeWrites();
    EXPECT_FALSE(m_sheet.PressApply());
    EXPECT_TRUE(TakeWrites().empty());
}

TEST_F(PropertySheetTest, ListsSortAndFindWhateverTheCase) {
    m_sheet.Create();
    m_sheet.SetActivePage(1);
    CListBox& faces = m_font.m_listFont;
    faces.ResetContent();
    faces.AddString("beta");
    faces.AddString("Alpha");
    faces.AddString("gamma");
    faces.AddString("ALPHA");
    EXPECT_EQ(faces.Items(), (std::vector<std::string>{"Alpha", "ALPHA", "beta", "gamma"}));
    EXPECT_EQ(faces.FindStringExact(-1, "alpha"), 0);
    EXPECT_EQ(faces.FindStringExact(0, "alpha"), 1);
    EXPECT_EQ(faces.FindStringExact(1, "alpha"), 0);  // searching round
    EXPECT_EQ(faces.FindStringExact(-1, "alp"), LB_ERR);
    EXPECT_EQ(faces.SetCurSel(9), LB_ERR);
    EXPECT_EQ(faces.GetCurSel(), -1);
}

}  // namespace
