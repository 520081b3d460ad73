// The language switches and the keyword tables each language chooses.
#include <gtest/gtest.h>

#include <string>

#include "ColourZone.h"
#include "keywords/KeywordTables.h"

namespace {

struct Lists {
    const char** t[6];
};

Lists ListsOf(CTextZoneColor& zone) {
    Lists lists;
    for (auto& t : lists.t)
        t = szKeyWordEmpty;
    zone.DefineKeywordList(lists.t);
    return lists;
}

TEST(Languages, SqlIds) {
    struct Row {
        unsigned int id;
        int enabled, dashDash, nested, dialect;
    };
    const Row rows[] = {
        {1, 1, 0, 1, 4},      {51, 1, 0, 1, 4},     {3, 1, 1, 1, 6},     {52, 1, 1, 1, 65},
        {53, 1, 1, 1, 10},    {7, 1, 1, 1, 115},    {55, 1, 1, 1, 70},   {9, 1, 1, 1, 119},
        {57, 1, 1, 1, 80},    {11, 1, 1, 1, 12},    {12, 1, 1, 1, 125},  {61, 1, 1, 1, 90},
        {15, 1, 1, 1, 150},   {181, 1, 1, 0, -73},  {1160, 1, 1, 0, -80}, {182, 1, 1, 0, -81},
        {183, 1, 1, 0, -90},  {1165, 1, 1, 0, -92}, {214, 1, 1, 0, -1050}, {226, 1, 1, 0, -1050},
        {296, 1, 1, 0, -1050}, {13, 0, 0, 0, 4},    {56, 0, 0, 0, 4},    {59, 0, 0, 0, 4},
        {100, 0, 0, 0, 4},    {0, 0, 0, 0, 4},      {213, 0, 0, 0, 4},   {297, 0, 0, 0, 4},
    };
    CTextZoneColor zone;
    for (const Row& r : rows) {
        zone.SetSQLSyntaxColor(r.id);
        EXPECT_EQ(zone.m_bSyntaxColor, r.enabled) << r.id;
        EXPECT_EQ(zone.m_bSql, r.enabled) << r.id;
        EXPECT_EQ(zone.m_bDashDashComment, r.dashDash) << r.id;
        EXPECT_EQ(zone.m_bNestedComment, r.nested) << r.id;
        EXPECT_EQ(zone.m_nSqlVersion, r.dialect) << r.id;
        EXPECT_EQ(zone.m_bSlashSlashComment + zone.m_bBackslashEscape, 0) << r.id;
    }
}

TEST(Languages, TablesByDialect) {
    CTextZoneColor zone;
    zone.SetSQLSyntaxColor(14);
    Lists l = ListsOf(zone);
    EXPECT_EQ(l.t[0], szKeyWordSQL1);
    EXPECT_EQ(l.t[1], szKeyWordSQL2_90);
    EXPECT_EQ(l.t[2], szKeyWordSQL3_70);
    EXPECT_EQ(l.t[3], szKeyWordSQL4_70);
    EXPECT_EQ(l.t[4], szKeyWordSQL5_90);
    EXPECT_EQ(l.t[5], szKeyWordSQL6);
    zone.SetSQLSyntaxColor(1165);  // -92 shares the row of -90
    l = ListsOf(zone);
    EXPECT_EQ(l.t[0], szKeyWordORA81_1);
    EXPECT_EQ(l.t[3], szKeyWordORA90_4);
    EXPECT_EQ(l.t[5], szKeyWordORA90_6);
    zone.SetSQLSyntaxColor(220);
    l = ListsOf(zone);
    EXPECT_EQ(l.t[0], szKeyWordUDB_1);
    EXPECT_EQ(l.t[2], szKeyWordUDB_3);
    EXPECT_EQ(l.t[5], szKeyWordEmpty);
    // A dialect without a row gets positions 0 and 5 only.
    zone.EnableSyntaxColor(1, 0, 1, 0, 1, 0, 5);
    const char** marked[6];
    for (auto& t : marked)
        t = szKeyWordCPP1;
    zone.DefineKeywordList(marked);
    EXPECT_EQ(marked[0], szKeyWordSQL1);
    EXPECT_EQ(marked[5], szKeyWordSQL6);
    for (int i = 1; i < 5; ++i)
        EXPECT_EQ(marked[i], szKeyWordCPP1) << i;
}

TEST(Languages, ClientIds) {
    CTextZoneColor zone;
    zone.SetClientLanguageSyntaxColor(35);
    EXPECT_EQ(zone.m_bTildeEscape + zone.m_bNestedComment + zone.m_bSlashSlashComment, 3);
    EXPECT_EQ(zone.m_bBackslashEscape, 0);
    EXPECT_EQ(ListsOf(zone).t[5], szKeyWordPB4);
    zone.SetClientLanguageSyntaxColor(53);
    EXPECT_EQ(ListsOf(zone).t[5], szKeyWordPB567);

    zone.SetClientLanguageSyntaxColor(510);
    EXPECT_EQ(zone.m_bQuoteComment, 1);
    EXPECT_EQ(zone.m_bSlashStarComment + zone.m_bSlashSlashComment, 0);
    EXPECT_EQ(ListsOf(zone).t[0], szKeyWordVB_1);

    zone.SetClientLanguageSyntaxColor(92);
    EXPECT_EQ(zone.m_bPascalComment, 1);
    EXPECT_EQ(zone.m_bQuoteComment, 0);
    EXPECT_EQ(ListsOf(zone).t[2], szKeyWordEmpty);
    EXPECT_EQ(ListsOf(zone).t[3], szKeyWordDP_4);

    zone.SetClientLanguageSyntaxColor(1020);
    EXPECT_EQ(zone.m_bJcl + zone.m_bCaseSensitive + zone.m_bClientLanguage, 3);
    EXPECT_EQ(zone.m_bSlashStarComment, 0);
    EXPECT_EQ(ListsOf(zone).t[3], szKeyWordJCL_4);

    // C and C++ are the zone's default, not a client language; step 1 of the
    // switch has cleared COBOL's rule.
    zone.SetClientLanguageSyntaxColor(1010);
    EXPECT_EQ(zone.m_bCobolComment, 1);
    zone.m_nFirstDirtyLine = 5;
    zone.SetClientLanguageSyntaxColor(1300);
    EXPECT_EQ(zone.m_bCobolComment + zone.m_bClientLanguage + zone.m_bSql, 0);
    EXPECT_EQ(zone.m_nClientLanguage, 0u);
    EXPECT_EQ(zone.m_bBackslashEscape + zone.m_bSlashSlashComment, 2);
    EXPECT_EQ(zone.m_nFirstDirtyLine, 0);
    EXPECT_EQ(ListsOf(zone).t[0], szKeyWordCPP1);
    EXPECT_EQ(ListsOf(zone).t[5], szKeyWordCPP6);

    // Rows that name no tables leave the caller's array alone.
    zone.SetClientLanguageSyntaxColor(631);
    EXPECT_EQ(zone.m_bHtml + zone.m_bServerPage + zone.m_bServerScriptJava, 3);
    EXPECT_EQ(ListsOf(zone).t[0], szKeyWordEmpty);
    zone.SetClientLanguageSyntaxColor(620);
    EXPECT_EQ(ListsOf(zone).t[0], szKeyWordJV_1);
    zone.SetClientLanguageSyntaxColor(1090);
    EXPECT_EQ(zone.m_bHtml + zone.m_bXml, 2);

    zone.SetClientLanguageSyntaxColor(999);
    EXPECT_EQ(zone.IsSyntaxColorEnabled(), 0);
    EXPECT_EQ(zone.m_bClientLanguage, 0);
    EXPECT_EQ(zone.m_nClientLanguage, 0u);
}

}  // namespace
