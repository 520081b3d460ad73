#include <string>
#include <utility>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class SelectionTest : public ZoneTest {
protected:
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
    void SelectOffsets(LONG lStart, LONG lEnd) { m_zone.SetSelection(lStart, lEnd, 0, 0, 1, 0); }
    void ExpectSelection(int l0, int c0, int l1, int c1) {
        EXPECT_EQ(m_zone.m_nSelStartLine, l0);
        EXPECT_EQ(m_zone.m_nSelStartChar, c0);
        EXPECT_EQ(m_zone.m_nSelEndLine, l1);
        EXPECT_EQ(m_zone.m_nSelEndChar, c1);
    }
    std::string Selected(WORD wFlags, LONG lSize = 256) {
        std::vector<char> buffer(static_cast<size_t>(lSize) + 1, '#');
        m_zone.GetSelectedText(buffer.data(), lSize, wFlags);
        return buffer.data();
    }
};

// Notes the redraw requests instead of drawing.
class CRedrawRecordingZone : public CTestZone {
public:
    void RedrawLines(int nFirst, int nLast, int) override { m_redraws.push_back({nFirst, nLast}); }
    void DrawCaret(int bScroll, int bHorizontal) override {
        m_carets.push_back({bScroll, bHorizontal});
    }
    std::vector<std::pair<int, int>> m_redraws;
    std::vector<std::pair<int, int>> m_carets;
};

}  // namespace

TEST_F(SelectionTest, RawFormBringsLinesToTheTextAndRaisesTheEnd) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.m_nSelectionMode = 0;

    // Lines outside the text go behind it, at character 0.
    Select(5, 3, 7, 3);
    ExpectSelection(2, 0, 2, 0);
    Select(-1, 2, 1, 1);
    ExpectSelection(2, 0, 2, 1);

    // An end before the start is raised to it, not swapped.
    Select(1, 2, 0, 1);
    ExpectSelection(1, 2, 1, 2);
    Select(0, 2, 0, 1);
    ExpectSelection(0, 2, 0, 2);

    // Characters are not checked against the line: a free caret may stand anywhere.
    Select(0, 1, 1, 9);
    ExpectSelection(0, 1, 1, 9);
    EXPECT_EQ(m_zone.GetSelRootLine(), 0);
    EXPECT_EQ(m_zone.GetSelRootChar(), 1);
    EXPECT_EQ(m_zone.GetSelectionMode(), 0);  // the raw form keeps the mode
    EXPECT_TRUE(m_zone.TestSelection());
    Select(1, 2, 1, 2);
    EXPECT_FALSE(m_zone.TestSelection());

    // The box form sets box mode and keeps its columns also behind the text.
    m_zone.SetSelection(0, 9, 4, 2, 2, 0);
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
    ExpectSelection(0, 4, 2, 2);

    // Behind a text that ends in a line end is the phantom line, at character 0.
    ASSERT_TRUE(m_zone.SetText("abc\r\n"));
    Select(2, 4, 2, 4);
    ExpectSelection(1, 0, 1, 0);
    Select(1, 4, 1, 4);
    ExpectSelection(1, 0, 1, 0);
}

TEST_F(SelectionTest, OffsetFormAndItsSpecialValues) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.m_nSelectionMode = 0;
    SelectOffsets(0, -1);
    ExpectSelection(0, 0, 1, 3);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);

    // Just behind a line's text is still that line; one further is the next.
    SelectOffsets(3, 4);
    ExpectSelection(0, 3, 1, 0);
    SelectOffsets(-1, -1);
    ExpectSelection(1, 3, 1, 3);
    SelectOffsets(-2, -2);
    ExpectSelection(2, 0, 2, 0);
    SelectOffsets(1, -2);
    ExpectSelection(0, 1, 2, 0);
    SelectOffsets(100, 200);
    ExpectSelection(1, 3, 1, 3);
    // An end before the start is found on the start's line and raised.
    SelectOffsets(5, 2);
    ExpectSelection(1, 1, 1, 1);

    ASSERT_TRUE(m_zone.SetText("abc\r\n"));
    SelectOffsets(0, -1);
    ExpectSelection(0, 0, 1, 0);
    SelectOffsets(4, 4);
    ExpectSelection(1, 0, 1, 0);
    SelectOffsets(-1, -1);
    ExpectSelection(1, 0, 1, 0);

    CTestZone empty;
    empty.SetSelection(0, -1, 0, 0, 1, 0);
    EXPECT_EQ(empty.m_nSelStartLine, 0);
    EXPECT_EQ(empty.m_nSelEndLine, 0);
    EXPECT_EQ(empty.m_nSelEndChar, 0);
    EXPECT_FALSE(empty.TestSelection());
}

TEST_F(SelectionTest, GetSelectionInItsThreeForms) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef\r\n"));
    Select(0, 1, 1, 2);
    LONG start = -9, end = -9;
    int startChar = -9, endChar = -9;
    EXPECT_EQ(m_zone.GetSelection(&start, &end, &startChar, &endChar, 0), 1);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 1);
    EXPECT_EQ(startChar, 1);
    EXPECT_EQ(endChar, 2);

    EXPECT_EQ(m_zone.GetSelection(&start, &end, nullptr, nullptr, 1), 1);
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 6);
    start = end = -9;
    m_zone.GetSelection(&start, nullptr, nullptr, nullptr, 1);
    EXPECT_EQ(start, 1);
    m_zone.GetSelection(nullptr, &end, nullptr, nullptr, 1);
    EXPECT_EQ(end, 6);

    // A free caret's characters are limited to the line; the phantom line is the text's end.
    Select(0, 10, 2, 0);
    m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
    EXPECT_EQ(start, 3);
    EXPECT_EQ(end, 8);

    m_zone.GetSelection(&start, &end, &startChar, &endChar, 2);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 2);
    EXPECT_EQ(startChar, 0);
    EXPECT_EQ(endChar, 0x7FFFFFFF);

    m_zone.SetSelection(0, 1, 2, 3, 2, 0);
    EXPECT_EQ(m_zone.GetSelection(&start, &end, &startChar, &endChar, 2), 2);
    EXPECT_EQ(startChar, 2);
    EXPECT_EQ(endChar, 3);
    m_zone.GetSelection(nullptr, nullptr, nullptr, nullptr, 0);
}

TEST_F(SelectionTest, RedrawCoversOldAndNewLines) {
    CRedrawRecordingZone zone;
    zone.SetWindow(&m_wnd);
    RECT client;
    m_wnd.GetClientRect(&client);
    zone.SetRect(&client);
    zone.SetFont(m_font);
    ASSERT_TRUE(zone.SetText("0\r\n1\r\n2\r\n3\r\n4\r\n5"));

    zone.SetSelection(1, 2, 0, 0, 0, 0);
    zone.m_redraws.clear();
    zone.m_carets.clear();
    zone.SetSelection(4, 5, 0, 0, 0, 1);
    ASSERT_EQ(zone.m_redraws.size(), 1u);
    EXPECT_EQ(zone.m_redraws[0], std::make_pair(1, 5));
    ASSERT_EQ(zone.m_carets.size(), 1u);
    EXPECT_EQ(zone.m_carets[0], std::make_pair(1, 1));

    zone.SetSelection(0, 0, 0, 0, 0, 1);
    EXPECT_EQ(zone.m_redraws.back(), std::make_pair(0, 5));

    zone.m_redraws.clear();
    zone.SetSelection(2, 3, 0, 0, 0, 0);
    EXPECT_TRUE(zone.m_redraws.empty());
    zone.HideCaret();
}

TEST_F(SelectionTest, SelectedTextInStreamMode) {
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd\r\nef"));
    EXPECT_EQ(Selected(TF_CRLF), "");
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_CRLF), 0);

    Select(0, 1, 2, 1);
    EXPECT_EQ(Selected(0), "b\rcd\re");
    EXPECT_EQ(Selected(TF_LF), "b\ncd\ne");
    EXPECT_EQ(Selected(TF_CRLF), "b\r\ncd\r\ne");
    EXPECT_EQ(m_zone.GetSelectedTextLength(0), 6);
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_CRLF), 8);

    // Bit 4 ends the last line too; a short buffer drops what does not fit,
    // and a line end that does not fit whole.
    Select(0, 1, 0, 2);
    EXPECT_EQ(Selected(TF_CRLF | TF_WRAPPED_ENDS), "b\r\n");
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_CRLF | TF_WRAPPED_ENDS), 3);
    Select(0, 1, 2, 1);
    EXPECT_EQ(Selected(TF_CRLF, 4), "b\r\n");
    EXPECT_EQ(Selected(TF_CRLF, 3), "bc");
    EXPECT_EQ(Selected(TF_CRLF, 1), "");

    // Past the end of a line come spaces.
    Select(2, 1, 2, 4);
    EXPECT_EQ(Selected(0), "f  ");
    EXPECT_EQ(m_zone.GetSelectedTextLength(0), 3);

    // A wrapped paragraph comes out as one line unless bit 4 asks otherwise.
    m_zone.GetLine(0)->keepLeft(2);
    m_zone.m_dwStyle |= ZS_PARAGRAPH;
    Select(0, 0, 1, 2);
    EXPECT_EQ(Selected(0), "abcd");
    EXPECT_EQ(m_zone.GetSelectedTextLength(0), 4);
    EXPECT_EQ(Selected(TF_WRAPPED_ENDS), "ab\rcd\r");
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_WRAPPED_ENDS), 6);
    m_zone.m_dwStyle &= ~ZS_PARAGRAPH;
    EXPECT_EQ(Selected(0), "ab\rcd");
}

TEST_F(SelectionTest, SelectedTextInLineMode) {
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd\r\nef"));
    m_zone.m_nSelectionMode = 0;
    // Whole lines, the end line left out; characters play no part.
    Select(0, 1, 2, 1);
    EXPECT_EQ(Selected(TF_LF), "ab\ncd\n");
    // The length leaves out the last line end: it is a size, and its users add room.
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_LF), 5);
    Select(1, 0, 3, 0);
    EXPECT_EQ(Selected(TF_LF), "cd\nef");
    EXPECT_EQ(Selected(TF_LF | TF_WRAPPED_ENDS), "cd\nef\n");
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_LF), 5);
    // One line and two characters: a selection of no lines.
    Select(1, 0, 1, 2);
    EXPECT_EQ(Selected(TF_LF), "");
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_LF), 0);
}

TEST_F(SelectionTest, SelectedTextInBoxModeIsPaddedAndEndsEveryLine) {
    m_zone.SetTabWidth(-4);
    ASSERT_TRUE(m_zone.SetText("a\tb\r\nxy"));
    m_zone.SetSelection(0, 1, 1, 5, 2, 0);
    EXPECT_EQ(Selected(0), "   b\ry   \r");
    EXPECT_EQ(m_zone.GetSelectedTextLength(0), 10);
}
