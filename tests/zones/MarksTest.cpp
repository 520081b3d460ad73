// Marks on lines: highlights merged and ordered, links kept in step across
// their five lists, help text as a bookmark, and addresses by line and
// column or by offset converted and clamped.
#include <string>

#include "ReadOnlyZone.h"

namespace {

std::string Ranges(const std::vector<std::uint32_t>& ranges) {
    std::string out;
    for (std::uint32_t r : ranges) {
        if (!out.empty()) out += " ";
        out += std::to_string(CStringExReadOnly::Start(r)) + "-" +
               std::to_string(CStringExReadOnly::End(r));
    }
    return out;
}

}  // namespace

TEST(StringExReadOnlyTest, HighlightsMergeInOrder) {
    CStringExReadOnly line("    indented text that is long enough\r");
    const struct {
        int nStart, nEnd;
        const char* ranges;
    } steps[] = {
        {8, 10, "8-10"},
        {2, 4, "2-4 8-10"},
        {3, 9, "2-10"},  // bridges both
        {5, 6, "2-10"},  // inside
        {12, 14, "2-10 12-14"},
        {16, 18, "2-10 12-14 16-18"},
        {20, 22, "2-10 12-14 16-18 20-22"},
        {11, 17, "2-10 11-18 20-22"},  // swallows 12-14, merges 16-18, stops before 20
        {1, 30, "1-30"},
        {0, 3, "1-30"},  // starts behind the indentation: within 1-30
        {40, 40, "1-30"},
        {45, 41, "1-30"},
        {35, 65535, "1-30 35-65535"},
    };
    for (const auto& st : steps) {
        line.AddHilight(st.nStart, st.nEnd);
        EXPECT_EQ(Ranges(line.m_hilights), st.ranges) << st.nStart << "-" << st.nEnd;
    }

    CStringExReadOnly blanks("          ");
    blanks.AddHilight(0, 10);  // all indentation
    blanks.AddHilight(0, 0);
    EXPECT_TRUE(blanks.m_hilights.empty());
    blanks.AddHilight(0, 12);  // reaches past the blanks
    EXPECT_EQ(Ranges(blanks.m_hilights), "10-12");
}

TEST(StringExReadOnlyTest, LinksKeepTheirListsInStep) {
    CStringExReadOnly line("  see a.c and b.c and c.c\r");
    line.AddHyperlink(14, 17, "b", 2, 20, 1);
    line.AddHyperlink(0, 5, "a", 1, 10, 0);  // starts behind the two blanks
    line.AddHyperlink(22, 25, "c", 3, 30, 2);
    line.AddHyperlink(15, 24, "overlap", 4, 40, 3);  // kept, not merged
    line.AddHyperlink(9, 9, "empty", 5, 50, 0);
    // A link goes in front of the first one that starts at or behind its
    // end, so one that overlaps its neighbours goes to the tail.
    ASSERT_EQ(Ranges(line.m_linkBounds), "2-5 14-17 22-25 15-24");
    const char* texts[] = {"a", "b", "c", "overlap"};
    const std::int64_t ids[] = {1, 2, 3, 4};
    const unsigned long data[] = {10, 20, 30, 40};
    const unsigned int kinds[] = {0, 1, 2, 3};
    ASSERT_EQ(line.m_linkTexts.size(), 4u);
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_STREQ(line.m_linkTexts[i].c_str(), texts[i]);
        EXPECT_EQ(line.m_linkIds[i], ids[i]);
        EXPECT_EQ(line.m_linkData[i], data[i]);
        EXPECT_EQ(line.m_linkKinds[i], kinds[i]);
    }
}

TEST(StringExReadOnlyTest, HelpIsBookmarkFive) {
    CStringExReadOnly line;
    line.m_dwBookmarks = 1;
    line.SetHelp("what this line means");
    EXPECT_EQ(line.m_dwBookmarks, 33u);
    EXPECT_STREQ(line.GetHelp().c_str(), "what this line means");
    line.SetHelp("");
    EXPECT_EQ(line.m_dwBookmarks, 1u);
    line.SetHelp(nullptr);
    EXPECT_TRUE(line.GetHelp().IsEmpty());
}

using MarksTest = ReadOnlyTest;

TEST_F(MarksTest, LineAndColumnAddresses) {
    m_zone.SetText("line zero\r\nline one\r\nline two\r\nline three\r\nline four");
    m_zone.SetHilighted(1, 3, 4, 2, 0);
    EXPECT_TRUE(m_zone.GetReadOnlyLine(0)->m_hilights.empty());
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(1)->m_hilights), "4-65535");
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(2)->m_hilights), "0-65535");
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(3)->m_hilights), "0-2");
    EXPECT_TRUE(m_zone.GetReadOnlyLine(4)->m_hilights.empty());

    // Out of the text: the first line clamps to the last, an open end to
    // the end of the text; an inverted range on one line adds nothing.
    m_zone.SetHilighted(99, -1, -5, 0, 0);
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(4)->m_hilights), "0-65535");
    m_zone.SetHilighted(0, 0, 6, 3, 0);
    EXPECT_TRUE(m_zone.GetReadOnlyLine(0)->m_hilights.empty());

    m_zone.SetLineColor(2, 0x0000FF);
    m_zone.SetLineColor(40, 0x0000FF);  // no such line
    EXPECT_EQ(m_zone.GetReadOnlyLine(2)->m_crLineColor, 0x0000FFu);
}

TEST_F(MarksTest, OffsetAddresses) {
    // A line keeps its line end as one CR: "ab" is 0-1 and its end 2,
    // "cdef" 3-6 and its end 7, "gh" 8-9.
    m_zone.SetText("ab\r\ncdef\r\ngh");
    m_zone.SetHilighted(1, 5, 0, 0, 1);
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(0)->m_hilights), "1-65535");
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(1)->m_hilights), "0-2");
    // An offset on a terminator counts as its line's end.
    m_zone.SetHyperlink(2, 2, 0, 0, 1, "x", 1, 0, 0);
    EXPECT_TRUE(m_zone.GetReadOnlyLine(0)->m_linkBounds.empty());
    m_zone.SetHyperlink(0, 2, 0, 0, 1, "x", 1, 0, 0);
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(0)->m_linkBounds), "0-2");
    m_zone.SetHyperlink(3, 7, 0, 0, 1, "y", 2, 0, 0);
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(1)->m_linkBounds), "0-4");
    // An open end reaches the end of the text; a start past it marks nothing.
    m_zone.SetHilighted(8, -1, 0, 0, 1);
    EXPECT_EQ(Ranges(m_zone.GetReadOnlyLine(2)->m_hilights), "0-2");
    m_zone.SetPastel(50, 60, 0, 0, 1);
    EXPECT_EQ(m_zone.GetReadOnlyLine(2)->m_nPastelEnd, 0);
}

TEST_F(MarksTest, PastelRangesWiden) {
    m_zone.SetText("0123456789ab\r\nsecond line\r\nthird line\r\nfourth");
    auto pastel = [&] {
        std::string s;
        for (int n = 0; n < 3; ++n) {
            const CStringExReadOnly* p = m_zone.GetReadOnlyLine(n);
            s += std::to_string(p->m_nPastelStart) + "-" + std::to_string(p->m_nPastelEnd) + " ";
        }
        return s;
    };
    m_zone.SetPastel(0, 0, 2, 3, 0);
    m_zone.SetPastel(0, 0, 8, 9, 0);
    EXPECT_EQ(pastel(), "2-9 0-0 0-0 ");
    m_zone.SetPastel(0, 2, 5, 4, 0);
    EXPECT_EQ(pastel(), "2-2147483647 0-2147483647 0-4 ");
}

TEST(PastelRuleTest, ChannelsLightenByHowDarkTheyAre) {
    EXPECT_EQ(CTextZoneReadOnly::Pastel(RGB(0, 63, 64)), RGB(144, 207, 176));
    EXPECT_EQ(CTextZoneReadOnly::Pastel(RGB(127, 128, 191)), RGB(239, 184, 247));
    EXPECT_EQ(CTextZoneReadOnly::Pastel(RGB(192, 239, 240)), RGB(224, 255, 240));  // no spill
    EXPECT_EQ(CTextZoneReadOnly::Pastel(RGB(255, 255, 255)), RGB(255, 255, 255));
}
