// Marks as colour runs and on the screen: highlights, link kinds, line
// colours, the pastel range, selection over marks and help lines.
#include <cstdio>

#include "ReadOnlyZone.h"

using RunsTest = ReadOnlyTest;

TEST_F(RunsTest, MarksBecomeRunWords) {
    m_zone.SetText("error in file.c at 12\r\nplain\r\n  indented link");
    m_zone.SetHilighted(0, 0, 0, 5, 0);
    m_zone.SetHyperlink(0, 0, 9, 15, 0, "open file.c", 7, 0, 1);
    EXPECT_EQ(Runs(0), "0 Text+H, 5 Text, 9 Text+LY, 15 Text");
    EXPECT_EQ(Runs(1), "");
    // A link that starts at the line's start starts behind its blanks.
    m_zone.SetHyperlink(2, 2, 0, 6, 0, "", 8, 0, 4);
    EXPECT_EQ(Runs(2), "0 Text, 2 Text+P, 6 Text");

    // Overlapping marks: a highlight inside a link keeps the link's marks on
    // both sides, and the link closes where it ends.
    m_zone.SetText("abcdefghijklmnop");
    m_zone.SetHyperlink(0, 0, 2, 12, 0, "l", 1, 0, 2);
    m_zone.SetHilighted(0, 0, 4, 8, 0);
    EXPECT_EQ(Runs(0), "0 Text, 2 Text+LP, 4 Text+HLP, 8 Text+LP, 12 Text");
    // A link running to the line end adds no closing run.
    m_zone.SetText("abc\r\ndef");
    m_zone.SetHyperlink(0, 1, 1, 2, 0, "l", 1, 0, 0);
    EXPECT_EQ(Runs(0), "0 Text, 1 Text+L");
    EXPECT_EQ(Runs(1), "0 Text+L, 2 Text");
}

TEST_F(RunsTest, LineColourStopsHighlightsAndPastelButNotLinks) {
    m_zone.SetText("abcdefghijkl");
    m_zone.SetHilighted(0, 0, 1, 3, 0);
    m_zone.SetPastel(0, 0, 5, 7, 0);
    m_zone.SetHyperlink(0, 0, 8, 10, 0, "l", 1, 0, 3);
    EXPECT_EQ(Runs(0), "0 Text, 1 Text+H, 3 Text, 5 Text+S, 7 Text, 8 Text+Y, 10 Text");
    m_zone.SetLineColor(0, 0x0000FF);
    EXPECT_EQ(Runs(0), "0 Text, 8 Text+Y, 10 Text");
    // A pastel range to the line end may start at the end of the text.
    m_zone.SetText("abc\r\nd");
    m_zone.SetPastel(0, 1, 3, 0, 0);
    EXPECT_EQ(Runs(0), "0 Text, 3 Text+S");
}

TEST_F(RunsTest, MarksOverSyntaxColours) {
    m_zone.SetSQLSyntaxColor(1);
    m_zone.SetSyntaxColor(2, 0x0000FF);
    m_zone.SetText("select x from t");
    const std::string plain = Runs(0);
    ASSERT_EQ(plain.rfind("0 #0000FF", 0), 0u) << plain;
    // A highlight over the keyword and beyond keeps each run's own colour.
    m_zone.SetHilighted(0, 0, 3, 8, 0);
    const std::string marked = Runs(0);
    EXPECT_NE(marked.find("3 #0000FF+H"), std::string::npos) << marked;
    EXPECT_NE(marked.find("8 Text"), std::string::npos) << marked;
}

using DrawTest = ReadOnlyTest;

TEST_F(DrawTest, FontsAndBackgroundsOfMarks) {
    m_zone.SetText("see file.c now\r\nhelp line\r\nred line");
    m_zone.SetHilighted(0, 0, 0, 3, 0);
    m_zone.SetHyperlink(0, 0, 4, 10, 0, "f", 1, 0, 1);
    EXPECT_EQ(Row(0),
              "see:#000042/#FFFFFF!b!u  :#000042/#FFFFFF file.c:#000042/#80FFFF!u "
              " now:#000042/#FFFFFF");
    // A line with help shows bookmark 5's green, unmarked.
    m_zone.GetReadOnlyLine(1)->SetHelp("about it");
    m_zone.SetHilighted(1, 1, 0, 4, 0);
    EXPECT_EQ(Row(1), "help line:#000042/#00FF00");
    // A line colour takes the text, links included; the highlight goes,
    // the link's underline stays.
    m_zone.SetLineColor(2, 0x0000FF);
    m_zone.SetHilighted(2, 2, 0, 3, 0);
    m_zone.SetHyperlink(2, 2, 4, 8, 0, "", 2, 0, 0);
    EXPECT_EQ(Row(2), "red :#0000FF/#FFFFFF line:#0000FF/#FFFFFF!u");
}

TEST_F(DrawTest, SelectionOverMarks) {
    m_zone.SetText("ab link cd");
    m_zone.SetHyperlink(0, 0, 3, 7, 0, "l", 1, 0, 1);
    m_zone.SetSelection(0, 0, 0, 5, 0, 0);
    // The selected part of a link stays underlined in the selection's
    // colours; its yellow shows only outside the selection.
    EXPECT_EQ(Row(0),
              "ab :#FFFFFF/#800000 li:#FFFFFF/#800000!u nk:#000042/#80FFFF!u"
              "  cd:#000042/#FFFFFF");
    // In a box selection the marks give way.
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 0, 0, 2, 2, 0);
    const std::string box = Row(0);
    EXPECT_EQ(box.find("!u"), std::string::npos) << box;
}

TEST_F(DrawTest, PastelPalesTheLinesTextColour) {
    m_zone.SetText("abcdef");
    m_zone.SetPastel(0, 0, 2, 4, 0);
    const COLORREF pale = CTextZoneReadOnly::Pastel(kText);
    char expected[128];
    std::snprintf(expected, sizeof expected, "ab:#%06X/#FFFFFF cd:#%06X/#FFFFFF ef:#%06X/#FFFFFF",
                  pale, pale, pale);
    EXPECT_EQ(Row(0), expected);
}

TEST_F(DrawTest, FontsRefittedToTallerLinesAndTheStripUnderShorterText) {
    m_zone.SetText("plain link");
    m_zone.SetHyperlink(0, 0, 6, 10, 0, "", 1, 0, 0);
    // Lines taller than the bold face: both fonts are made at the line
    // height, the normal one too, which is then the zone's own.
    m_zone.m_nLineHeight = 20;
    m_zone.BuildHilighFont(1);
    LOGFONTA lf{};
    GetObjectA(m_zone.m_hHilightFont, sizeof lf, &lf);
    EXPECT_EQ(lf.lfHeight, 19);
    EXPECT_EQ(lf.lfWeight, 700);
    EXPECT_EQ(lf.lfUnderline, 1);
    EXPECT_EQ(m_zone.m_nNormalHeight, 19);
    EXPECT_EQ(m_zone.m_nHilightHeight, 20);  // an underline counts one more
    EXPECT_EQ(m_zone.m_nLinkHeight, 20);
    ASSERT_NE(m_zone.GetFont(), m_font.GetSafeHandle());

    // Plain text, a pixel shorter than the line, leaves a strip filled
    // with the background under it; the link is as tall as the line.
    Row(0);
    int strips = 0;
    for (const DrawRecord& r : CHeadlessPlatform::Peer(&m_wnd)->GetDisplayList()) {
        if (r.kind != DrawRecord::Fill || r.rc.top != 19 || r.rc.bottom != 20) continue;
        ++strips;
        EXPECT_EQ(r.crFill, kBack);
        EXPECT_EQ(r.rc.left, 0);
        EXPECT_EQ(r.rc.right, 54);  // "plain " at 9 pixels a byte in the 19-pixel face
    }
    EXPECT_EQ(strips, 1);

    // The host's font back: the refitted one goes, the host's stays.
    m_zone.SetFont(m_font);
    EXPECT_EQ(m_zone.GetFont(), m_font.GetSafeHandle());
    EXPECT_EQ(m_zone.m_nNormalHeight, -1);
}
