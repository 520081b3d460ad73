#include <memory>

#include "pages/ColorComboBox2.h"
#include "pages/EditorOptionPage.h"
#include "pages/PagesFixture.h"
#include "platform/Palette.h"
#include "platform/headless/HeadlessDC.h"

namespace {

class ColorComboTest : public PagesTest {
protected:
    // The option page's colour combo, in a sheet.
    CColorComboBox2& Combo() {
        m_sheet.AddPage(&m_page);
        m_sheet.Create();
        return m_page.m_comboColor;
    }
    CEditorOptionPage m_page;
    CPropertySheet m_sheet;
};

DWORD Key(int h, int l, int s) {
    return static_cast<DWORD>(h) | static_cast<DWORD>(l) << 8 | static_cast<DWORD>(s) << 16;
}

TEST_F(ColorComboTest, SortKeyIsHueLuminanceSaturation) {
    // Worked by hand from the rule: greys have hue 170 and no saturation.
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(0, 0, 0)), Key(170, 0, 0));
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(128, 128, 128)), Key(170, 128, 0));
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(255, 255, 255)), Key(170, 255, 0));
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(255, 0, 0)), Key(0, 128, 255));
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(0, 255, 0)), Key(85, 128, 255));
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(0, 0, 128)), Key(170, 64, 255));
    // Magenta: red counts as the largest first, so hue = BD - GD = 0 - 42,
    // above 255 as unsigned, less 255: low byte 215.
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(255, 0, 255)), Key(215, 128, 255));
    // Red largest and blue above green: BD - GD = 21 - 42 is negative, which
    // as unsigned is above 255, less 255, low byte 236.
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(255, 0, 128)) & 0xFF, 236u);
    // A light, barely tinted grey: L above 127 takes the other saturation formula.
    EXPECT_EQ(CColorComboBox2::SortKey(RGB(160, 160, 164)), Key(170, 162, 5));
}

TEST_F(ColorComboTest, ItemsSortByTheirKeyWithDefaultAmongTheBlacks) {
    CColorComboBox2& combo = Combo();
    ASSERT_EQ(combo.GetCount(), 21);
    // Black and "Default" share the key of black; the later one goes after.
    const DWORD_PTR first[] = {0, static_cast<DWORD_PTR>(-1), 12, 7, 19};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(combo.GetItemData(i), first[i]) << i;
    for (int i = 1; i < combo.GetCount(); ++i)
        EXPECT_LE(CColorComboBox2::SortKey(CColorComboBox2::ColorOfData(combo.GetItemData(i - 1))),
                  CColorComboBox2::SortKey(CColorComboBox2::ColorOfData(combo.GetItemData(i))));
}

TEST_F(ColorComboTest, SelectsByNearestPaletteEntryAndReadsBack) {
    CColorComboBox2& combo = Combo();
    combo.SelectColor(RGB(250, 10, 5));
    EXPECT_EQ(combo.GetSelectedColor(), RGB(255, 0, 0));
    combo.SelectColor(RGB(0xD0, 0xD0, 0xD0));
    EXPECT_EQ(combo.GetSelectedColor(), RGB(192, 192, 192));
    combo.SelectColor(static_cast<COLORREF>(-1));
    EXPECT_EQ(combo.GetItemData(combo.GetCurSel()), static_cast<DWORD_PTR>(-1));
    EXPECT_EQ(combo.GetSelectedColor(), static_cast<COLORREF>(-1));
    combo.SetCurSel(-1);
    EXPECT_EQ(combo.GetSelectedColor(), static_cast<COLORREF>(-1));
    // A combo without "Default" keeps its selection when asked for -1.
    m_page.m_comboMargin.SelectColor(RGB(255, 255, 0));
    m_page.m_comboMargin.SelectColor(static_cast<COLORREF>(-1));
    EXPECT_EQ(m_page.m_comboMargin.GetSelectedColor(), RGB(255, 255, 0));
}

TEST_F(ColorComboTest, DrawsASwatchAndDefaultAsText) {
    CColorComboBox2& combo = Combo();
    DisplayList list;
    CHeadlessDC dc(&list, CRgn(RECT{0, 0, 200, 100}), false);
    const RECT rc = {0, 0, 80, 20};

    const int nRed = IndexOfData(combo, 13);
    const int nDefault = IndexOfData(combo, static_cast<DWORD_PTR>(-1));
    // The focus rectangle, then the swatch 2 pixels in: its inside in the
    // colour, its outline (four edges) in the pen's black.
    combo.DrawItemInto(&dc, nRed, rc, true);
    ASSERT_EQ(list.size(), 6u);
    EXPECT_EQ(list[0].kind, DrawRecord::FocusRect);
    EXPECT_EQ(list[1].kind, DrawRecord::Fill);
    EXPECT_EQ(list[1].crFill, RGB(255, 0, 0));
    EXPECT_EQ(list[1].rc.left, 3);
    EXPECT_EQ(list[1].rc.bottom, 17);
    EXPECT_EQ(list[2].crFill, RGB(0, 0, 0));
    EXPECT_EQ(list[2].rc.left, 2);

    // "Default": a window-coloured box over the text colour's, and the word.
    list.clear();
    combo.DrawItemInto(&dc, nDefault, rc, false);
    ASSERT_EQ(list.size(), 11u);
    EXPECT_EQ(list[0].crFill, GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(list[5].crFill, GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(list[10].kind, DrawRecord::Text);
    EXPECT_EQ(list[10].text, "Default");
    EXPECT_EQ(list[10].rc.left, 4);
    EXPECT_EQ(list[10].rc.top, 2);
    EXPECT_EQ(list[10].nBkMode, TRANSPARENT);
    EXPECT_EQ(list[10].crText, GetSysColor(COLOR_WINDOWTEXT));
}

TEST_F(ColorComboTest, NearestPaletteEntryKeepsGreysGrey) {
    EXPECT_EQ(GetNearestPaletteIndex(RGB(0xD0, 0xD0, 0xD0)), 7u);
    EXPECT_EQ(GetNearestPaletteIndex(RGB(0, 0, 0)), 0u);
    EXPECT_EQ(GetNearestPaletteIndex(RGB(255, 255, 255)), 19u);
    EXPECT_EQ(GetNearestPaletteIndex(RGB(190, 222, 190)), 8u);
    PALETTEENTRY entries[25];
    EXPECT_EQ(GetPaletteEntries(18, 5, entries), 2u);
    EXPECT_EQ(GetPaletteEntries(20, 1, entries), 0u);
}

}  // namespace
