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
    // The reader drops a line end that would fill its buffer to the last byte.
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

TEST_F(InsertDeleteTest, SelectLeavesTheInsertedTextSelected) {
    ASSERT_TRUE(m_zone.SetText("abcdef"));
    Select(0, 3, 0, 3);
    Insert("X\nYZ", 1);
    EXPECT_EQ(m_zone.GetSelectedTextString(TF_CRLF), "X\r\nYZ");

    // Null and empty texts only take the selection away.
    for (const char* psz : {"", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(Insert(psz), 1);
        EXPECT_EQ(WholeText(TF_NO_FINAL_END), "abcdef");
        ExpectCaret(0, 3);
    }
}

TEST_F(InsertDeleteTest, LongSourceLinesAreCutOrDropped) {
    const std::string x(70000, 'x');
    Insert(x.c_str());
    EXPECT_EQ(WholeText(TF_NO_FINAL_END), std::string(65499, 'x') + "\r" + x.substr(65499));
    ExpectCaret(1, 70000 - 65499);

    // The limit counts what the line already holds.
    ASSERT_TRUE(m_zone.SetText("abc"));
    Select(0, 3, 0, 3);
    Insert((x + "\nz").c_str());
    EXPECT_EQ(WholeText(TF_NO_FINAL_END), "abc" + x.substr(4504) + "\r" + x.substr(65496) + "\rz");

    ASSERT_TRUE(m_zone.SetText(""));
    m_zone.SetStyle(ZS_CUTLONGLINES);
    Insert((x + "\r\nnext").c_str());
    EXPECT_EQ(WholeText(TF_NO_FINAL_END), std::string(65499, 'x') + "\rnext");
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

// Every line end is stored as one CR; the right part of a split line stays a
// line of its own; text behind an unended last line ends it first. A deletion
// ending behind a terminator (raw char 4 of "abc\r") joins unless the caret is
// free; a free caret beyond an unended line pads it first.
TEST_F(InsertDeleteTest, EditsSplitAndJoinLines) {
    const struct {
        bool freeCaret;
        const char *text, *insert;  // no insert: delete
        int l0, c0, l1, c1;
        const char* expected;
        int lines, caretLine, caretChar;
    } cases[] = {
        {false, "", "a\r\nb", 0, 0, 0, 0, "a\rb", 2, 1, 1},
        {false, "", "1\n2\r3\r\n4\n\r5", 0, 0, 0, 0, "1\r2\r3\r4\r\r5", 6, 5, 1},  // LF CR: two
        {false, "", "abc\n", 0, 0, 0, 0, "abc\r", 1, 1, 0},  // the caret on the phantom line
        {false, "abc\r\n", "d", 1, 0, 1, 0, "abc\rd", 2, 1, 1},
        {false, "abc\r\nxyz", "\r", 0, 1, 0, 1, "a\rbc\rxyz", 3, 1, 0},
        {false, "abcdef\r\nnext", "XY", 0, 3, 0, 3, "abcXYdef\rnext", 2, 0, 5},
        {false, "abcXY\r\nnext", "1\r\n2\n3", 0, 3, 0, 3, "abc1\r2\r3XY\rnext", 4, 2, 1},
        {false, "abc1\r\n2\r\n3XY\r\nnext", "Q", 0, 1, 2, 2, "aQY\rnext", 2, 0, 2},
        {false, "abc\r\ndef\r\nghi\r\njkl", nullptr, 0, 1, 2, 2, "ai\rjkl", 2, 0, 1},
        {false, "ai\r\njkl", nullptr, 0, 2, 1, 3, "ai", 1, 0, 2},
        {false, "abc\r\ndef", nullptr, 0, 1, 0, 4, "adef", 1, 0, 1},
        {true, "abc\r\ndef", nullptr, 0, 1, 0, 4, "a\rdef", 2, 0, 1},
        {true, "ab", nullptr, 0, 1, 0, 5, "a", 1, 0, 1},
        {false, "abc", "de", 1, 0, 1, 0, "abc\rde", 2, 1, 2},
    };
    const DWORD style = m_zone.GetStyle();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text + std::string(" + ") + (c.insert ? c.insert : "delete"));
        m_zone.SetStyle(c.freeCaret ? ZS_FREECARET : style);
        ASSERT_TRUE(m_zone.SetText(c.text));
        Select(c.l0, c.c0, c.l1, c.c1);
        if (c.insert)
            EXPECT_EQ(Insert(c.insert), 1);
        else
            m_zone.DeleteSelection(0);
        EXPECT_EQ(WholeText(TF_NO_FINAL_END), c.expected);
        EXPECT_EQ(m_zone.GetLineCount(), c.lines);
        ExpectCaret(c.caretLine, c.caretChar);
    }
    // Behind an unended last line the inserted range begins at the new line end.
    EXPECT_EQ(m_zone.GetSelRootLine(), 0);
    EXPECT_EQ(m_zone.GetSelRootChar(), 3);

    // Everything of a text ending in a line end leaves one empty line.
    ASSERT_TRUE(m_zone.SetText("abc\r\n"));
    m_zone.SetSelection(0, -1, 0, 0, 1, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.GetLineCount(), 1);
    EXPECT_TRUE(m_zone.IsEmpty());
    ExpectCaret(0, 0);

    // Beyond an ended line the padding goes in front of its line end.
    m_zone.SetStyle(ZS_FREECARET);
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd"));
    Select(0, 1, 0, 6);
    m_zone.DeleteSelection(0);
    Select(0, 4, 0, 4);
    Insert("x");
    EXPECT_EQ(Line(0), "a   x\r");
    Select(0, 7, 1, 1);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Line(0), "a   x  d");
}

TEST_F(InsertDeleteTest, BookmarksMoveOnAJoinOnlyBehindBlanks) {
    const struct {
        const char* text;
        int startChar;
        DWORD bookmarks;
    } cases[] = {{" \t\r\ndef", 2, 4}, {"\r\ndef", 0, 4}, {" b\r\ndef", 2, 1}};
    for (const auto& c : cases) {
        ASSERT_TRUE(m_zone.SetText(c.text));
        m_zone.GetLine(0)->m_dwBookmarks = 1;
        m_zone.GetLine(1)->m_dwBookmarks = 4;
        Select(0, c.startChar, 1, 0);
        m_zone.DeleteSelection(0);
        ASSERT_EQ(m_zone.GetLineCount(), 1);
        EXPECT_EQ(Bookmarks(0), c.bookmarks) << c.text;
    }
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
    Attach(zone);
    auto line = [&](int n) {
        return std::string(zone.GetLine(n) ? zone.GetLine(n)->c_str() : "-");
    };
    ASSERT_TRUE(zone.SetText("top"));
    zone.SetSelection(0, 0, 0, 0, 0, 0);

    // Two lines of room: the tail takes one, "a", "b" and "c" fill it up to the limit.
    zone.m_nPretended = TZ_MAX_LINES - 3;
    EXPECT_EQ(zone.InsertText("a\rb\rc\rd\re", 0, 1, 1), 0);
    EXPECT_EQ(zone.GetLineCount(), 4);
    EXPECT_EQ(line(2) + line(3), "c\rtop");

    // One line below the limit text for the caret's own line still goes in.
    ASSERT_TRUE(zone.SetText("top"));
    zone.SetSelection(0, 0, 1, 1, 0, 0);
    zone.m_nPretended = TZ_MAX_LINES - 1;
    EXPECT_EQ(zone.InsertText("x", 0, 1, 1), 1);
    EXPECT_EQ(zone.GetLineCount(), 1);
    EXPECT_EQ(line(0), "txop");
    EXPECT_EQ(zone.InsertText("y\rz", 0, 1, 1), 0);
    EXPECT_EQ(line(0) + line(1) + line(2), "txy\rop-");

    zone.m_nPretended = TZ_MAX_LINES;
    EXPECT_EQ(zone.InsertText("more\r", 0, 1, 1), 0);
    EXPECT_EQ(zone.GetLineCount(), 2);

    // A load stops at the limit the same way, the store sized or not: with
    // room for three lines, the first line, the tail and two more.
    zone.m_nPretended = TZ_MAX_LINES - 3;
    EXPECT_EQ(zone.SetText("a\rb\rc\rd\re"), 0);
    EXPECT_EQ(zone.GetLineCount(), 4);
    EXPECT_EQ(line(0) + line(1) + line(2) + line(3), "a\rb\rc\r");
    zone.m_nPretended = TZ_MAX_LINES + 1;
    EXPECT_EQ(zone.SetText("a\rb\r"), 0);
    EXPECT_EQ(zone.GetLineCount(), 0);
    zone.HideCaret();
}

// Random inserts and deletes against a string in which every line end is a CR.
TEST_F(InsertDeleteTest, RandomEditsMatchAStringModel) {
    std::mt19937 rng(20240611);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
    const char* pieces[] = {"a", "bc", " ", "\t", "\r", "\n", "\r\n", "\n\r", "xyz"};
    m_zone.SetMaxLength(1 << 20);
    std::string model;
    for (int step = 0; step < 600; ++step) {
        int a = pick(0, static_cast<int>(model.size()));
        int b = pick(0, 3) == 0 ? a : pick(0, static_cast<int>(model.size()));
        if (a > b) std::swap(a, b);
        m_zone.SetSelection(a, b, 0, 0, 1, 0);
        LONG start = -5, end = -5;
        m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
        ASSERT_EQ(start, a);
        ASSERT_EQ(end, b);
        LONG wantStart = a, wantEnd = a;
        if (pick(0, 2) == 0 && a != b) {
            ASSERT_EQ(m_zone.GetSelectedTextLength(0), b - a);
            m_zone.DeleteSelection(0);
            EXPECT_EQ(m_zone.m_nCurrentLength, m_zone.GetTextLength(0));
            model.erase(a, b - a);
        } else {
            std::string text, added;
            for (int k = pick(1, 4); k > 0; --k)
                text += pieces[pick(0, 8)];
            for (size_t i = 0; i < text.size(); ++i) {
                if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
                added += text[i] == '\n' ? '\r' : text[i];
            }
            const int bSelect = pick(0, 1);
            ASSERT_EQ(m_zone.InsertText(text.c_str(), bSelect, 1, 1), 1);
            model.replace(a, b - a, added);
            wantEnd = a + static_cast<LONG>(added.size());
            wantStart = bSelect ? a : wantEnd;
            EXPECT_EQ(m_zone.m_nCurrentLength, m_zone.GetTextLength(0));
        }
        m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
        EXPECT_EQ(start, wantStart);
        EXPECT_EQ(end, wantEnd);
        ASSERT_EQ(WholeText(TF_NO_FINAL_END), model) << "step " << step;
    }
}
