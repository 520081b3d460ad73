#include "pages/EditorShortcutPage.h"
#include "pages/ListCtrlEx.h"
#include "pages/PagesFixture.h"

namespace {

class ListCtrlExTest : public PagesTest {
protected:
    void SetUp() override {
        PagesTest::SetUp();
        m_sheet.AddPage(&m_page);
        m_sheet.Create();
    }
    CListCtrlEx& List() { return m_page.m_list; }
    void Resize(int cx) {
        RECT rc;
        List().GetWindowRect(&rc);
        rc.right = rc.left + cx;
        List().MoveWindow(rc);
    }
    std::vector<int> Widths() { return {List().GetColumnWidth(0), List().GetColumnWidth(1)}; }

    CEditorShortcutPage m_page;
    CPropertySheet m_sheet;
};

TEST_F(ListCtrlExTest, ColumnsComeFromTheHeaderInDialogUnits) {
    ASSERT_EQ(List().GetColumnCount(), 2);
    EXPECT_EQ(List().GetColumn(0).strTitle, "Shortcut");
    EXPECT_EQ(List().GetColumn(1).strTitle, "Text");
    // 90 and 220 horizontal dialog units at 6 pixels per 4 units.
    EXPECT_EQ(Widths(), (std::vector<int>{135, 330}));
    // The list spans units 7 to 333, pixels 10 to 499; less the borders and a bar.
    EXPECT_EQ(List().m_nClientWidth, 489 - 2 - 17);
    List().SetColumns("Other;10");
    EXPECT_EQ(List().GetColumnCount(), 2);
}

TEST_F(ListCtrlExTest, ProportionalColumnsShareTheWidthAndKeepADraggedRatio) {
    // The columns (465) are narrower than the list (470): wider, they grow
    // in proportion and keep the gap they had (case 1).
    Resize(600);
    EXPECT_EQ(Widths(), (std::vector<int>{167, 406}));
    Resize(400);
    EXPECT_EQ(Widths(), (std::vector<int>{108, 265}));
    // The user drags the divider; the columns now fill more than the list,
    // so the next, wider size takes them in the new ratio, filling it less 2
    // (case 2).
    List().UserSetColumnWidth(0, 200);
    Resize(600);
    EXPECT_EQ(Widths(), (std::vector<int>{247, 329}));
    // Columns dragged wider than both the old and the new width: left alone.
    List().UserSetColumnWidth(0, 400);
    Resize(500);
    EXPECT_EQ(Widths(), (std::vector<int>{400, 329}));
}

TEST_F(ListCtrlExTest, RowsAreTabSeparatedWithHiddenExtraParts) {
    EXPECT_EQ(List().AddRow("sel\tSELECT *"), 0);
    EXPECT_EQ(List().AddRow("ins\tINSERT INTO\tt\tVALUES"), 1);
    EXPECT_EQ(List().InsertRow(0, "only"), 0);
    EXPECT_EQ(List().GetRowCount(), 3);
    EXPECT_EQ(List().GetItemText(2, 1), "INSERT INTO");
    EXPECT_EQ(List().GetRowText(2), "ins\tINSERT INTO\tt\tVALUES");
    EXPECT_EQ(List().GetRowText(1), "sel\tSELECT *");
    // Columns are joined with tabs and the last one dropped: a row without
    // its second part comes back with one tab.
    EXPECT_EQ(List().GetRowText(0), "only\t");
    char buffer[600];
    EXPECT_EQ(List().GetRowText(1, buffer), 12);
    EXPECT_STREQ(buffer, "sel\tSELECT *");

    // A visible part is cut at 255 bytes; the extra part is not.
    const std::string longText(300, 'x');
    List().SetRow(1, ("k\t" + longText + "\t" + longText).c_str());
    EXPECT_EQ(List().GetRowText(1), "k\t" + std::string(255, 'x') + "\t" + longText);
    EXPECT_EQ(List().m_extraList.size(), 2u);
    List().SetRow(1, "k\tshort");
    EXPECT_EQ(List().m_extraList.size(), 1u);
    List().DeleteRow(2);
    EXPECT_TRUE(List().m_extraList.empty());

    List().SelectRow(1);
    EXPECT_EQ(List().GetSelectedRow(), 1);
    List().SelectRow(-1);
    EXPECT_EQ(List().GetSelectedRow(), -1);
}

}  // namespace
