#include <string>
#include <utility>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class SelectionTest : public ZoneTest {
protected:
    // Sets a selection in raw (line, char) or offset form and checks where it lands.
    struct Case {
        int a, b, c, d, l0, c0, l1, c1;
    };
    void Check(bool bOffsets, std::initializer_list<Case> cases) {
        for (const Case& s : cases) {
            SCOPED_TRACE(testing::Message() << s.a << ',' << s.b << ',' << s.c << ',' << s.d);
            if (bOffsets)
                m_zone.SetSelection(s.a, s.b, 0, 0, 1, 0);
            else
                m_zone.SetSelection(s.a, s.c, s.b, s.d, 0, 0);
            ExpectSelection(s.l0, s.c0, s.l1, s.c1);
        }
    }
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
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
    std::vector<std::pair<int, int>> m_redraws, m_carets;
};

}  // namespace

TEST_F(SelectionTest, RawFormBringsLinesToTheTextAndRaisesTheEnd) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.m_nSelectionMode = 0;
    // Outside lines go behind the text at char 0; an early end is raised, not
    // swapped; characters are not checked against the line (free caret).
    Check(false, {{5, 3, 7, 3, 2, 0, 2, 0}, {-1, 2, 1, 1, 2, 0, 2, 1}, {1, 2, 0, 1, 1, 2, 1, 2},
                  {0, 2, 0, 1, 0, 2, 0, 2}, {0, 1, 1, 9, 0, 1, 1, 9}});
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

    ASSERT_TRUE(m_zone.SetText("abc\r\n"));  // behind it: the phantom line
    Check(false, {{2, 4, 2, 4, 1, 0, 1, 0}, {1, 4, 1, 4, 1, 0, 1, 0}});
}

TEST_F(SelectionTest, OffsetFormAndItsSpecialValues) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.m_nSelectionMode = 0;
    Check(true, {{0, -1, 0, 0, 0, 0, 1, 3}});
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    Check(true, {{3, 4, 0, 0, 0, 3, 1, 0},
                 {-1, -1, 0, 0, 1, 3, 1, 3},
                 {-2, -2, 0, 0, 2, 0, 2, 0},
                 {1, -2, 0, 0, 0, 1, 2, 0},
                 {100, 200, 0, 0, 1, 3, 1, 3},
                 {5, 2, 0, 0, 1, 1, 1, 1}});
    ASSERT_TRUE(m_zone.SetText("abc\r\n"));
    Check(true, {{0, -1, 0, 0, 0, 0, 1, 0}, {4, 4, 0, 0, 1, 0, 1, 0}, {-1, -1, 0, 0, 1, 0, 1, 0}});

    CTestZone empty;  // no lines at all
    empty.SetSelection(0, -1, 0, 0, 1, 0);
    EXPECT_EQ(std::make_pair(empty.m_nSelEndLine, empty.m_nSelEndChar), std::make_pair(0, 0));
}

TEST_F(SelectionTest, GetSelectionInItsThreeForms) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef\r\n"));
    Select(0, 1, 1, 2);
    LONG start = -9, end = -9;
    int startChar = -9, endChar = -9;
    EXPECT_EQ(m_zone.GetSelection(&start, &end, &startChar, &endChar, 0), 1);
    EXPECT_EQ(std::vector<LONG>({start, end, startChar, endChar}), std::vector<LONG>({0, 1, 1, 2}));
    start = end = -9;
    m_zone.GetSelection(&start, nullptr, nullptr, nullptr, 1);
    m_zone.GetSelection(nullptr, &end, nullptr, nullptr, 1);
    EXPECT_EQ(std::make_pair(start, end), std::make_pair(LONG(1), LONG(6)));

    // A free caret's characters are limited to the line; the phantom line is the text's end.
    Select(0, 10, 2, 0);
    EXPECT_EQ(m_zone.GetSelection(&start, &end, nullptr, nullptr, 1), 1);
    EXPECT_EQ(std::make_pair(start, end), std::make_pair(LONG(3), LONG(8)));
    m_zone.GetSelection(&start, &end, &startChar, &endChar, 2);
    EXPECT_EQ(std::vector<LONG>({start, end, startChar, endChar}),
              std::vector<LONG>({0, 2, 0, 0x7FFFFFFF}));

    m_zone.SetSelection(0, 1, 2, 3, 2, 0);
    EXPECT_EQ(m_zone.GetSelection(&start, &end, &startChar, &endChar, 2), 2);
    EXPECT_EQ(std::make_pair(startChar, endChar), std::make_pair(2, 3));
    m_zone.GetSelection(nullptr, nullptr, nullptr, nullptr, 0);
}

TEST_F(SelectionTest, RedrawCoversOldAndNewLines) {
    CRedrawRecordingZone zone;
    Attach(zone);
    ASSERT_TRUE(zone.SetText("0\r\n1\r\n2\r\n3\r\n4\r\n5"));
    zone.SetSelection(1, 2, 0, 0, 0, 0);
    zone.m_redraws.clear();
    zone.m_carets.clear();
    zone.SetSelection(4, 5, 0, 0, 0, 1);
    zone.SetSelection(0, 0, 0, 0, 0, 1);
    EXPECT_EQ(zone.m_redraws, (std::vector<std::pair<int, int>>{{1, 5}, {0, 5}}));
    ASSERT_FALSE(zone.m_carets.empty());
    EXPECT_EQ(zone.m_carets[0], std::make_pair(1, 1));
    zone.m_redraws.clear();
    zone.SetSelection(2, 3, 0, 0, 0, 0);
    EXPECT_TRUE(zone.m_redraws.empty());
    zone.HideCaret();
}

TEST_F(SelectionTest, SelectedTextInStreamMode) {
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd\r\nef"));
    // Text, length; TF_WRAPPED_ENDS ends the last line too; past a line's end come spaces.
    const struct {
        int l0, c0, l1, c1;
        WORD wFlags;
        const char* psz;
    } cases[] = {
        {0, 1, 2, 1, 0, "b\rcd\re"},       {0, 1, 2, 1, TF_LF, "b\ncd\ne"},
        {0, 1, 2, 1, TF_CRLF, "b\r\ncd\r\ne"}, {0, 1, 0, 2, TF_CRLF | TF_WRAPPED_ENDS, "b\r\n"},
        {2, 1, 2, 4, 0, "f  "},            {1, 0, 1, 0, TF_CRLF, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.psz);
        Select(c.l0, c.c0, c.l1, c.c1);
        EXPECT_EQ(Selected(c.wFlags), c.psz);
        EXPECT_EQ(m_zone.GetSelectedTextLength(c.wFlags), LONG(std::string(c.psz).size()));
    }
    // A short buffer drops what does not fit, and a line end that does not fit whole.
    Select(0, 1, 2, 1);
    EXPECT_EQ(Selected(TF_CRLF, 4), "b\r\n");
    EXPECT_EQ(Selected(TF_CRLF, 3), "bc");
    EXPECT_EQ(Selected(TF_CRLF, 1), "");

    // A wrapped paragraph comes out as one line unless TF_WRAPPED_ENDS asks otherwise.
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

TEST_F(SelectionTest, SelectedTextInLineAndBoxMode) {
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd\r\nef"));
    m_zone.m_nSelectionMode = 0;
    // Whole lines, the end line left out; the length leaves out the last line end.
    Select(0, 1, 2, 1);
    EXPECT_EQ(Selected(TF_LF), "ab\ncd\n");
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_LF), 5);
    Select(1, 0, 3, 0);
    EXPECT_EQ(Selected(TF_LF), "cd\nef");
    EXPECT_EQ(Selected(TF_LF | TF_WRAPPED_ENDS), "cd\nef\n");
    Select(1, 0, 1, 2);  // one line: no lines
    EXPECT_EQ(m_zone.GetSelectedTextLength(TF_LF), 0);

    m_zone.SetTabWidth(-4);  // box: padded, every line ended
    ASSERT_TRUE(m_zone.SetText("a\tb\r\nxy"));
    m_zone.SetSelection(0, 1, 1, 5, 2, 0);
    EXPECT_EQ(Selected(0), "   b\ry   \r");
    EXPECT_EQ(m_zone.GetSelectedTextLength(0), 10);
}
