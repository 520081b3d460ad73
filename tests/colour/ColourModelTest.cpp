// The colour model: syntax colours and where they come from, the general
// language switch, the continuation ending of a line, and the view state a
// host keeps.
#include <gtest/gtest.h>

#include "ColourZone.h"
#include "host/MemoryAppDataManager.h"

namespace {

TEST(ColourModel, ClassesOutsideOneToNineAreIgnored) {
    CTextZoneColor zone;
    EXPECT_EQ(zone.GetSyntaxColor(0), 0u);
    EXPECT_EQ(zone.GetSyntaxColor(10), 0u);
    zone.SetSyntaxColor(10, 0x123456);
    zone.SetSyntaxColor(0, 0x123456);
    for (unsigned int c = 1; c <= 9; ++c)
        EXPECT_NE(zone.GetSyntaxColor(c), 0x123456u) << c;
    zone.SetSyntaxColor(9, 0x123456);
    EXPECT_EQ(zone.GetSyntaxColor(9), 0x123456u);
}

TEST(ColourModel, StoredColoursAndTheirParsing) {
    CMemoryAppDataManager store;
    AppDataManager::InstallAppDataManager(&store);
    store.WriteString("Colors", "Comment", "10,20");       // one comma: the default
    store.WriteString("Colors", "String", "300,0,0");      // cut to 8 bits: red 44
    store.WriteString("Colors", "Variable", "1,2,3");
    store.WriteString("Colors", "KeyWord1", "");           // empty: the default
    store.WriteString("Colors", "KeyWord4", "7,x,9");      // atoi reads what it can
    store.WriteString("Colors", "KeyWord6", "0,0,0");
    store.WriteString("Editor", "KeyWord5", "1,1,1");      // another section: not ours
    CTextZoneColor zone;
    // Classes 1 to 9: comment, the six keyword classes, string, variable.
    auto colours = [&] {
        std::vector<COLORREF> all;
        for (unsigned int c = 1; c <= 9; ++c)
            all.push_back(zone.GetSyntaxColor(c));
        return all;
    };
    EXPECT_EQ(colours(), (std::vector<COLORREF>{0x008000, 0xFF0000, 0x808000, 0x800000, 0x090007,
                                                0xFF0000, 0, 44, 0x030201}));

    // Read again after the store changed; without settings all defaults.
    store.WriteString("Colors", "Comment", "1,0,0");
    zone.ReadColorValues();
    EXPECT_EQ(zone.GetSyntaxColor(1), 1u);
    const std::vector<COLORREF> defaults{0x008000, 0xFF0000, 0x808000, 0x800000, 0x000080,
                                         0xFF0000, 0xFF0000, 0xFF00FF, 0x0000FF};
    store.SetSettingsAvailable(false);
    zone.ReadColorValues();
    EXPECT_EQ(colours(), defaults);
    AppDataManager::InstallAppDataManager(nullptr);
    zone.ReadColorValues();
    EXPECT_EQ(colours(), defaults);
}

TEST(ColourModel, EnableSyntaxColorSetsAndClearsTheLanguageFlags) {
    CTextZoneColor zone;
    // A new zone colours as C: /*, //, backslash escapes.
    EXPECT_EQ(zone.IsSyntaxColorEnabled(), 1);
    EXPECT_EQ(zone.m_bSlashStarComment + zone.m_bSlashSlashComment + zone.m_bBackslashEscape, 3);
    EXPECT_EQ(zone.m_bSql + zone.m_bClientLanguage + zone.m_bQuoteComment, 0);

    zone.m_bPascalComment = zone.m_bCobolComment = zone.m_bHtml = 1;
    zone.m_bQuoteComment = zone.m_bTildeEscape = zone.m_bJcl = zone.m_bCaseSensitive = 1;
    zone.m_bClientLanguage = 1;
    zone.m_nClientLanguage = 77;
    zone.m_bSlashStarComment = 0;
    zone.m_nFirstDirtyLine = 12;
    zone.EnableSyntaxColor(1, 0, 1, 0, 1, 1, 65);
    EXPECT_EQ(zone.m_bSlashSlashComment, 0);
    EXPECT_EQ(zone.m_bDashDashComment, 1);
    EXPECT_EQ(zone.m_bNestedComment, 1);
    EXPECT_EQ(zone.m_nSqlVersion, 65);
    EXPECT_EQ(zone.m_bSlashStarComment, 1);
    EXPECT_EQ(zone.m_bQuoteComment + zone.m_bTildeEscape + zone.m_bJcl + zone.m_bCaseSensitive +
                  zone.m_bClientLanguage,
              0);
    // Left as they were.
    EXPECT_EQ(zone.m_bPascalComment + zone.m_bCobolComment + zone.m_bHtml, 3);
    EXPECT_EQ(zone.m_nClientLanguage, 77u);
    EXPECT_EQ(zone.m_bQuotedId, 0);
    EXPECT_EQ(zone.m_bProcCallNoParens, 1);
    EXPECT_EQ(zone.m_nFirstDirtyLine, 0);

    // Double quotes delimit identifiers in 70, 80, 90 and the negative dialects.
    for (int dialect : {70, 80, 90, -1, -1050}) {
        zone.EnableSyntaxColor(1, 0, 1, 0, 1, 0, dialect);
        EXPECT_EQ(zone.m_bQuotedId, 1) << dialect;
    }
    for (int dialect : {0, 4, 65, 125, 150}) {
        zone.EnableSyntaxColor(1, 0, 1, 0, 1, 0, dialect);
        EXPECT_EQ(zone.m_bQuotedId, 0) << dialect;
        EXPECT_EQ(zone.m_bProcCallNoParens, dialect > 0 ? 1 : 0) << dialect;
    }
    zone.SetQuotedId(1);
    EXPECT_EQ(zone.m_bQuotedId, 1);
    zone.EnableSyntaxColor(0, 0, 0, 0, 0, 0, -5);
    EXPECT_EQ(zone.IsSyntaxColorEnabled(), 0);
    EXPECT_EQ(zone.m_bProcCallNoParens, 0);
}

TEST(ColourModel, ContinuationEnding) {
    struct Case {
        const char* text;
        int expected;
    };
    const Case cases[] = {
        {"x = 1 _", 1}, {"x = 1\t_\r", 1}, {" _", 1}, {"\t_", 1},
        {"a_", 0},      {"_", 0},          {"", 0},   {"x _ y", 0},  {"x __", 0},
        {"x _ ", 0},    {"x _\t\r", 0},  // a blank behind the "_"
    };
    for (const Case& c : cases) {
        CStringExColor line(c.text);
        EXPECT_EQ(line.IsVBContinueEnding(), c.expected) << '"' << c.text << '"';
    }
}

TEST_F(ColourTest, SettingsRoundTrip) {
    CTextZoneColor& zone = m_zone;
    zone.SetText("l0\nl1\nl2\nl3\nl4\n");
    zone.SetLineBookmark(1, 0, 1);
    zone.SetLineBookmark(3, 0, 1);
    zone.SetLineBookmark(3, 2, 1);
    zone.SetLineBookmark(4, 2, 1);  // not bookmark 0: not saved
    zone.SetSelectionMode(1);
    zone.SetSelection(1, 3, 1, 2, 1, 0);
    zone.m_nVScrollPos = 2;
    zone.m_nHScrollPos = 1;

    CTextZoneColorSettings saved;
    zone.GetSettings(&saved);
    EXPECT_EQ(saved.m_wSelectionMode, 1);
    EXPECT_EQ(saved.m_bookmarkedLines, (std::vector<unsigned int>{1, 3}));
    EXPECT_EQ(saved.m_nVScrollPos, 2);
    EXPECT_EQ(saved.m_nHScrollPos, 1);

    CTextZoneColor rebuilt;
    Attach(rebuilt);
    rebuilt.SetText("l0\nl1\nl2\nl3\nl4\n");
    rebuilt.SetLineBookmark(3, 5, 1);
    rebuilt.SetLineBookmark(4, 5, 1);
    saved.m_bookmarkedLines.push_back(99);  // no such line: nothing
    rebuilt.SetSettings(&saved);
    EXPECT_EQ(rebuilt.m_nSelStartLine, zone.m_nSelStartLine);
    EXPECT_EQ(rebuilt.m_nSelEndLine, zone.m_nSelEndLine);
    EXPECT_EQ(rebuilt.m_nSelStartChar, zone.m_nSelStartChar);
    EXPECT_EQ(rebuilt.m_nSelEndChar, zone.m_nSelEndChar);
    EXPECT_EQ(rebuilt.m_nVScrollPos, 2);
    EXPECT_EQ(rebuilt.m_nHScrollPos, 1);
    // A listed line gets exactly bookmark 0; an unlisted one keeps its own.
    EXPECT_EQ(rebuilt.GetLine(1)->m_dwBookmarks, 1u);
    EXPECT_EQ(rebuilt.GetLine(3)->m_dwBookmarks, 1u);
    EXPECT_EQ(rebuilt.GetLine(4)->m_dwBookmarks, 1u << 5);

    rebuilt.SetSettings(nullptr);
    EXPECT_EQ(rebuilt.GetSelectionMode(), 1);
    EXPECT_EQ(rebuilt.TestSelection(), 0);
}

}  // namespace
