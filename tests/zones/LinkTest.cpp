// Resolving a point to links: the edges of a range, links over line ends,
// overlapping links, and the clicks that activate them.
#include <cstring>

#include "ReadOnlyZone.h"

using LinkTest = ReadOnlyTest;

namespace {

struct Hit {
    int found = 0;
    int line1 = -1, line2 = -1, char1 = -1, char2 = -1;
    char text[256] = {};
    char link[256] = {};
    LinkIdList ids;
    LinkDataList data;
    LinkKindList kinds;
};

Hit HitAt(CTextZoneReadOnly& zone, POINT pt, bool bAll) {
    Hit h;
    h.found = zone.IsOnHyperlink(&pt, &h.line1, &h.line2, &h.char1, &h.char2, h.text, sizeof h.text,
                                 2, h.link, sizeof h.link, bAll ? &h.ids : nullptr,
                                 bAll ? &h.data : nullptr, bAll ? &h.kinds : nullptr);
    return h;
}

// "line1,char1-line2,char2 text|link" and the first id, data and kind.
std::string Where(const Hit& h) {
    std::string s = std::to_string(h.line1) + "," + std::to_string(h.char1) + "-" +
                    std::to_string(h.line2) + "," + std::to_string(h.char2) + " " + h.text + "|" +
                    h.link;
    if (!h.ids.empty()) s += " " + std::to_string(h.ids.front());
    if (!h.data.empty()) s += " " + std::to_string(h.data.front());
    if (!h.kinds.empty()) s += " " + std::to_string(h.kinds.front());
    return s;
}

}  // namespace

TEST_F(LinkTest, EdgesOfARange) {
    m_zone.SetText("at file.c here\r\nnothing");
    m_zone.SetHyperlink(0, 0, 3, 9, 0, "open it", 5, 6, 7);
    EXPECT_EQ(HitAt(m_zone, At(0, 2), true).found, 0);
    EXPECT_EQ(HitAt(m_zone, At(0, 9), true).found, 0);  // the end is outside
    EXPECT_EQ(HitAt(m_zone, At(1, 3), true).found, 0);
    EXPECT_EQ(HitAt(m_zone, At(9, 3), true).found, 0);  // below the text
    for (int c : {3, 8}) {
        Hit h = HitAt(m_zone, At(0, c), true);
        EXPECT_EQ(h.found, 1) << c;
        EXPECT_EQ(h.ids.size() + h.data.size() + h.kinds.size(), 3u);
        EXPECT_EQ(Where(h), "0,3-0,9 file.c|open it 5 6 7");
    }
    // Every out-pointer may be null; a short link buffer is cut.
    POINT pt = At(0, 4);
    EXPECT_EQ(m_zone.IsOnHyperlink(&pt, nullptr, nullptr, nullptr, nullptr, nullptr, 0, 0, nullptr,
                                   0, nullptr, nullptr, nullptr),
              1);
    char small[5];
    m_zone.IsOnHyperlink(&pt, nullptr, nullptr, nullptr, nullptr, nullptr, 0, 0, small,
                         sizeof small, nullptr, nullptr, nullptr);
    EXPECT_STREQ(small, "open");
}

TEST_F(LinkTest, LinksOverLineEnds) {
    m_zone.SetText("first part\r\nsecond part\r\nthird part");
    m_zone.SetHyperlink(0, 2, 6, 5, 0, "whole", 9, 0, 0);
    for (int line = 0; line <= 2; ++line) {
        Hit h = HitAt(m_zone, At(line, line == 0 ? 7 : 1), true);
        EXPECT_EQ(Where(h), "0,6-2,5 part\r\nsecond part\r\nthird|whole 9 0 0") << line;
    }
    // A continuation line that starts with blanks starts its link behind
    // them: the link then reads as two.
    m_zone.SetText("first part\r\n  second\r\n");
    m_zone.SetHyperlink(0, 1, 6, 5, 0, "two", 3, 0, 0);
    EXPECT_EQ(Where(HitAt(m_zone, At(0, 7), false)).substr(0, 11),
              "0,6-0," + std::to_string(CStringExReadOnly::kThroughEnd));
    EXPECT_EQ(Where(HitAt(m_zone, At(1, 3), false)).substr(0, 3), "1,2");
}

TEST_F(LinkTest, ColumnZeroLinkTakesWhatTheLineAboveEndsWith) {
    // The walk up takes the last link above before it knows whether that
    // one continues: a link at column 0 under an unrelated one reports the
    // unrelated link's data, but keeps its own place.
    m_zone.SetText("see this\r\nthat one");
    m_zone.SetHyperlink(0, 0, 4, 8, 0, "above", 1, 10, 0);
    m_zone.SetHyperlink(1, 1, 0, 4, 0, "below", 2, 20, 0);
    EXPECT_EQ(Where(HitAt(m_zone, At(1, 1), true)), "1,0-1,4 that|above 1 10 0");
}

TEST_F(LinkTest, OverlappingLinks) {
    m_zone.SetText("one two three");
    m_zone.SetHyperlink(0, 0, 0, 7, 0, "first", 1, 0, 0);
    m_zone.SetHyperlink(0, 0, 4, 13, 0, "second", 2, 0, 3);
    Hit all = HitAt(m_zone, At(0, 5), true);
    EXPECT_EQ(all.ids, (LinkIdList{1, 2}));
    EXPECT_EQ(all.kinds, (LinkKindList{0, 3}));
    EXPECT_EQ(Where(all).substr(0, 3) + all.link, "0,4second");  // the last one's link
    EXPECT_EQ(Where(HitAt(m_zone, At(0, 5), false)), "0,0-0,7 one two|first");
}

TEST_F(LinkTest, PressAndReleaseOnOneLinkOpenIt) {
    m_zone.SetText("go to file.c now\r\nplain text\r\nacross\r\nlines");
    m_zone.SetHyperlink(0, 0, 6, 12, 0, "", 4, 44, 1);
    m_zone.SetHyperlink(2, 3, 0, 5, 0, "two lines", 8, 88, 0);

    Press(At(0, 7));
    Release(At(0, 10));
    ASSERT_EQ(m_zone.m_opened.size(), 1u);  // an empty text is still a link
    const auto& o = m_zone.m_opened[0];
    EXPECT_EQ(o.text, "file.c");
    EXPECT_EQ(o.ids, LinkIdList{4});
    EXPECT_EQ(o.data, LinkDataList{44});
    EXPECT_EQ(o.point.x, At(0, 10).x);

    // Dragged off to plain text, or from one link to another: nothing.
    Press(At(0, 7));
    Release(At(1, 2));
    Press(At(0, 7));
    Release(At(2, 2));
    EXPECT_EQ(m_zone.m_opened.size(), 1u);

    // Pressed on one stretch, released on another of the same link.
    Press(At(3, 1));
    Release(At(2, 3));
    ASSERT_EQ(m_zone.m_opened.size(), 2u);
    EXPECT_EQ(m_zone.m_opened[1].nLine1, 2);
    EXPECT_EQ(m_zone.m_opened[1].nLine2, 3);
    EXPECT_EQ(m_zone.m_opened[1].text, "across\rlines");
}

TEST_F(LinkTest, HandCursorOverEveryKindOfLink) {
    m_zone.SetText("plain yellow");
    m_zone.SetHyperlink(0, 0, 6, 12, 0, "", 1, 0, 3);  // no underline, still a link
    Move(At(0, 8));
    EXPECT_EQ(m_platform.GetCurrentCursorId(), IDC_HAND);
    EXPECT_EQ(m_zone.m_pBubble, nullptr);  // no text, no bubble
    Move(At(0, 2));
    EXPECT_EQ(m_platform.GetCurrentCursorId(), IDC_IBEAM);
}
