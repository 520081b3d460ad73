#include <random>
#include <string>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class InsertDeleteTest : public ZoneTest {
protected:
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
    int Insert(const char* psz, int bSelect = 0) { return m_zone.InsertText(psz, bSelect, 1, 1); }
    DWORD Bookmarks(int nLine) { return m_zone.GetLine(nLine)->m_dwBookmarks; }
    // The whole text. The reader drops a line end that would fill its buffer
    // to the last byte, so the buffer has one byte to spare.
    std::string WholeText(WORD wFlags) {
        std::vector<char> buffer(static_cast<size_t>(m_zone.GetTextLength(wFlags)) + 2);
        m_zone.GetText(buffer.data(), static_cast<LONG>(buffer.size()), wFlags);
        return buffer.data();
    }
};

// A zone that pretends to hold far more lines than it does, to reach the line limit cheaply.
class CCrowdedZone : public CTestZone {
public:
    int GetLastLineIndex() override { return CTextZone::GetLastLineIndex() + m_nPretended; }
    int m_nPretended = 0;
};

}  // namespace

TEST_F(InsertDeleteTest, LineEndsOfAllKindsBecomeOneTerminator) {
    EXPECT_EQ(Insert("a\r\nb"), 1);
    EXPECT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_EQ(Line(0), "a\r");
    EXPECT_EQ(Line(1), "b");
    ExpectCaret(1, 1);

    ASSERT_TRUE(m_zone.SetText("1\n2\r3\r\n4\n\r5"));
    // LF CR is two line ends, so an empty line stands between 4 and 5.
    EXPECT_EQ(m_zone.GetLineCount(), 6);
    EXPECT_EQ(Line(3), "4\r");
    EXPECT_EQ(Line(4), "\r");
    EXPECT_EQ(Line(5), "5");
    EXPECT_EQ(WholeText(TF_LF), "1\n2\n3\n4\n\n5\n");
}

TEST_F(InsertDeleteTest, TextEndingInALineEndLeavesTheCaretOnThePhantomLine) {
    Insert("abc\n");
    EXPECT_EQ(m_zone.GetLineCount(), 1);
    EXPECT_EQ(Line(0), "abc\r");
    EXPECT_EQ(m_zone.GetLine(1), nullptr);
    ExpectCaret(1, 0);

    // Typing on there makes the line.
    Insert("d");
    EXPECT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_EQ(Line(1), "d");
    ExpectCaret(1, 1);

    // A line end in the middle of a line keeps the right part as a line of its own.
    ASSERT_TRUE(m_zone.SetText("abc\r\nxyz"));
    Select(0, 1, 0, 1);
    Insert("\r");
    EXPECT_EQ(Line(0), "a\r");
    EXPECT_EQ(Line(1), "bc\r");
    EXPECT_EQ(Line(2), "xyz");
    ExpectCaret(1, 0);
}

TEST_F(InsertDeleteTest, InsertingBehindAnUnendedLastLineEndsItFirst) {
    ASSERT_TRUE(m_zone.SetText("abc"));
    Select(1, 0, 1, 0);  // the place behind the text
    ExpectCaret(1, 0);
    Insert("de");
    EXPECT_EQ(Line(0), "abc\r");
    EXPECT_EQ(Line(1), "de");
    ExpectCaret(1, 2);
    // The inserted range begins at the new line end.
    EXPECT_EQ(m_zone.GetSelRootLine(), 0);
    EXPECT_EQ(m_zone.GetSelRootChar(), 3);
}

TEST_F(InsertDeleteTest, InsertingInsideALineMergesTheTail) {
    ASSERT_TRUE(m_zone.SetText("abcdef\r\nnext"));
    Select(0, 3, 0, 3);
    Insert("XY");
    EXPECT_EQ(Line(0), "abcXYdef\r");
    ExpectCaret(0, 5);

    Insert("1\r\n2\n3");
    EXPECT_EQ(Line(0), "abcXY1\r");
    EXPECT_EQ(Line(1), "2\r");
    EXPECT_EQ(Line(2), "3def\r");
    EXPECT_EQ(Line(3), "next");
    ExpectCaret(2, 1);

    // A selection is replaced.
    Select(0, 1, 2, 2);
    Insert("Q");
    EXPECT_EQ(Line(0), "aQef\r");
    EXPECT_EQ(m_zone.GetLineCount(), 2);
    ExpectCaret(0, 2);
}

TEST_F(InsertDeleteTest, SelectLeavesTheInsertedTextSelected) {
    ASSERT_TRUE(m_zone.SetText("abcdef"));
    Select(0, 3, 0, 3);
    Insert("X\nYZ", 1);
    EXPECT_EQ(m_zone.m_nSelStartLine, 0);
    EXPECT_EQ(m_zone.m_nSelStartChar, 3);
    EXPECT_EQ(m_zone.m_nSelEndLine, 1);
    EXPECT_EQ(m_zone.m_nSelEndChar, 2);
    char buffer[32];
    m_zone.GetSelectedText(buffer, sizeof buffer, TF_CRLF);
    EXPECT_STREQ(buffer, "X\r\nYZ");

    // Null and empty texts only take the selection away.
    EXPECT_EQ(Insert(""), 1);
    EXPECT_EQ(WholeText(TF_LF | TF_NO_FINAL_END), "abcdef");
    ExpectCaret(0, 3);
    EXPECT_EQ(Insert(nullptr), 1);
    EXPECT_EQ(WholeText(TF_LF | TF_NO_FINAL_END), "abcdef");
}

TEST_F(InsertDeleteTest, LongSourceLinesAreCutOrDropped) {
    std::string longLine(70000, 'x');
    Insert(longLine.c_str());
    ASSERT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_EQ(Line(0), std::string(65499, 'x') + "\r");
    EXPECT_EQ(Line(1), std::string(70000 - 65499, 'x'));
    ExpectCaret(1, 70000 - 65499);

    // The limit counts what the line already holds.
    ASSERT_TRUE(m_zone.SetText("abc"));
    Select(0, 3, 0, 3);
    Insert((longLine + "\nz").c_str());
    ASSERT_EQ(m_zone.GetLineCount(), 3);
    EXPECT_EQ(Line(0).size(), 65500u);
    EXPECT_EQ(Line(1), std::string(70000 - 65496, 'x') + "\r");
    EXPECT_EQ(Line(2), "z");

    ASSERT_TRUE(m_zone.SetText(""));
    m_zone.SetStyle(ZS_CUTLONGLINES);
    Insert((longLine + "\r\nnext").c_str());
    ASSERT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_EQ(Line(0), std::string(65499, 'x') + "\r");
    EXPECT_EQ(Line(1), "next");
    ExpectCaret(1, 4);
}

TEST_F(InsertDeleteTest, TabConversionAppliesToTheLinesWrittenAndDropsTheirBookmarks) {
    m_zone.SetTabWidth(-4);
    ASSERT_TRUE(m_zone.SetText("xy\r\nkeep\tme"));
    m_zone.GetLine(0)->m_dwBookmarks = 1;
    m_zone.GetLine(1)->m_dwBookmarks = 2;
    m_zone.m_bTabConvert = 1;
    Select(0, 2, 0, 2);
    Insert("\tz");
    EXPECT_EQ(Line(0), "xy  z\r");
    EXPECT_EQ(Bookmarks(0), 0u);
    // The tail is not converted and the other line keeps its mark.
    EXPECT_EQ(Line(1), "keep\tme");
    EXPECT_EQ(Bookmarks(1), 2u);
}

TEST_F(InsertDeleteTest, DeletingAcrossLines) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef\r\nghi\r\njkl"));
    Select(0, 1, 2, 2);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_EQ(Line(0), "ai\r");
    EXPECT_EQ(Line(1), "jkl");
    ExpectCaret(0, 1);

    // Over the end of the unended last line.
    Select(0, 2, 1, 3);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.GetLineCount(), 1);
    EXPECT_EQ(Line(0), "ai");
    ExpectCaret(0, 2);

    // Everything of a text ending in a line end leaves one empty line.
    ASSERT_TRUE(m_zone.SetText("abc\r\n"));
    m_zone.SetSelection(0, -1, 0, 0, 1, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.GetLineCount(), 1);
    EXPECT_EQ(Line(0), "");
    EXPECT_TRUE(m_zone.IsEmpty());
    ExpectCaret(0, 0);
}

TEST_F(InsertDeleteTest, ASelectionEndingBehindTheTerminatorJoinsUnlessTheCaretIsFree) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    Select(0, 1, 0, 4);  // 4 is the raw length of "abc" and its terminator
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.GetLineCount(), 1);
    EXPECT_EQ(Line(0), "adef");

    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.SetStyle(ZS_FREECARET);
    Select(0, 1, 0, 4);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.GetLineCount(), 2);
    EXPECT_EQ(Line(0), "a\r");
    EXPECT_EQ(Line(1), "def");

    // A free caret beyond an unended line's end: the line is padded first.
    ASSERT_TRUE(m_zone.SetText("ab"));
    Select(0, 1, 0, 5);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Line(0), "a");

    // Beyond an ended line the padding goes in front of its line end, so
    // no 13 is left inside the text.
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd"));
    Select(0, 1, 0, 6);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Line(0), "a\r");
    Select(0, 4, 0, 4);
    m_zone.InsertText("x", 0, 1, 1);
    EXPECT_EQ(Line(0), "a   x\r");
    Select(0, 7, 1, 1);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Line(0), "a   x  d");
}

TEST_F(InsertDeleteTest, BookmarksMoveOnAJoinOnlyBehindBlanks) {
    auto joinAt = [&](const char* text, int nStartChar) {
        ASSERT_TRUE(m_zone.SetText(text));
        m_zone.GetLine(0)->m_dwBookmarks = 1;
        m_zone.GetLine(1)->m_dwBookmarks = 4;
        Select(0, nStartChar, 1, 0);
        m_zone.DeleteSelection(0);
        ASSERT_EQ(m_zone.GetLineCount(), 1);
    };
    joinAt(" \t\r\ndef", 2);
    EXPECT_EQ(Line(0), " \tdef");
    EXPECT_EQ(Bookmarks(0), 4u);
    joinAt("\r\ndef", 0);
    EXPECT_EQ(Bookmarks(0), 4u);
    joinAt(" b\r\ndef", 2);
    EXPECT_EQ(Line(0), " bdef");
    EXPECT_EQ(Bookmarks(0), 1u);

    // With no second line the joined line has none.
    ASSERT_TRUE(m_zone.SetText("abc\r\n"));
    m_zone.GetLine(0)->m_dwBookmarks = 2;
    Select(0, 0, 1, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Bookmarks(0), 0u);
}

TEST_F(InsertDeleteTest, LineModeNeitherInsertsNorDeletes) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    m_zone.m_nSelectionMode = 0;
    Select(0, 0, 1, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(WholeText(TF_LF), "abc\ndef\n");
    Select(0, 1, 0, 1);
    EXPECT_EQ(Insert("xyz\n"), 1);
    EXPECT_EQ(WholeText(TF_LF), "abc\ndef\n");
}

TEST_F(InsertDeleteTest, TheLineLimitStopsTheInsertion) {
    CCrowdedZone zone;
    zone.SetWindow(&m_wnd);
    RECT client;
    m_wnd.GetClientRect(&client);
    zone.SetRect(&client);
    zone.SetFont(m_font);
    ASSERT_TRUE(zone.SetText("top"));
    zone.SetSelection(0, 0, 0, 0, 0, 0);

    // Two lines of room: the tail takes one, "a", "b" and "c" fill it up to the limit.
    zone.m_nPretended = TZ_MAX_LINES - 3;
    EXPECT_EQ(zone.InsertText("a\rb\rc\rd\re", 0, 1, 1), 0);
    ASSERT_EQ(zone.GetLineCount(), 4);
    EXPECT_STREQ(zone.GetLine(0)->c_str(), "a\r");
    EXPECT_STREQ(zone.GetLine(2)->c_str(), "c\r");
    EXPECT_STREQ(zone.GetLine(3)->c_str(), "top");

    // One line below the limit: the tail reaches it, yet text for the
    // caret's own line still goes in, and the line is whole again.
    ASSERT_TRUE(zone.SetText("top"));
    zone.SetSelection(0, 0, 1, 1, 0, 0);
    zone.m_nPretended = TZ_MAX_LINES - 1;
    EXPECT_EQ(zone.InsertText("x", 0, 1, 1), 1);
    ASSERT_EQ(zone.GetLineCount(), 1);
    EXPECT_STREQ(zone.GetLine(0)->c_str(), "txop");
    EXPECT_EQ(zone.InsertText("y\rz", 0, 1, 1), 0);
    ASSERT_EQ(zone.GetLineCount(), 2);
    EXPECT_STREQ(zone.GetLine(0)->c_str(), "txy\r");
    EXPECT_STREQ(zone.GetLine(1)->c_str(), "op");

    zone.m_nPretended = TZ_MAX_LINES;
    int before = zone.GetLineCount();
    EXPECT_EQ(zone.InsertText("more\r", 0, 1, 1), 0);
    EXPECT_EQ(zone.GetLineCount(), before);
    zone.HideCaret();
}

// Random inserts and deletes at random places, against a plain string in
// which every line end is a CR.
TEST_F(InsertDeleteTest, RandomEditsMatchAStringModel) {
    std::mt19937 rng(20240611);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
    const char* pieces[] = {"a", "bc", " ", "\t", "\r", "\n", "\r\n", "\n\r", "xyz"};
    auto normalise = [](const std::string& s) {
        std::string out;
        for (size_t i = 0; i < s.size(); ++i) {
            if (s[i] == '\r' && i + 1 < s.size() && s[i + 1] == '\n') ++i;
            out += s[i] == '\n' ? '\r' : s[i];
        }
        return out;
    };

    m_zone.SetMaxLength(1 << 20);
    std::string model;
    for (int step = 0; step < 600; ++step) {
        int size = static_cast<int>(model.size());
        int a = pick(0, size);
        int b = pick(0, 3) == 0 ? a : pick(0, size);
        if (a > b) std::swap(a, b);
        m_zone.SetSelection(a, b, 0, 0, 1, 0);
        LONG start = -5, end = -5;
        m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
        ASSERT_EQ(start, a);
        ASSERT_EQ(end, b);

        if (pick(0, 2) == 0 && a != b) {
            ASSERT_EQ(m_zone.GetSelectedTextLength(0), b - a);
            LONG before = m_zone.m_nCurrentLength;
            m_zone.DeleteSelection(0);
            // Kept by subtraction, not rebuilt.
            EXPECT_EQ(m_zone.m_nCurrentLength, before - (b - a));
            model.erase(a, b - a);
            m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
            EXPECT_EQ(start, a);
            EXPECT_EQ(end, a);
        } else {
            std::string text;
            for (int k = pick(1, 4); k > 0; --k)
                text += pieces[pick(0, 8)];
            int bSelect = pick(0, 1);
            ASSERT_EQ(m_zone.InsertText(text.c_str(), bSelect, 1, 1), 1);
            std::string added = normalise(text);
            model.replace(a, b - a, added);
            m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
            EXPECT_EQ(start, bSelect ? a : a + static_cast<LONG>(added.size()));
            EXPECT_EQ(end, a + static_cast<LONG>(added.size()));
            EXPECT_EQ(m_zone.m_nCurrentLength, m_zone.GetTextLength(0));
        }
        ASSERT_EQ(WholeText(TF_NO_FINAL_END), model) << "step " << step;
    }
}
