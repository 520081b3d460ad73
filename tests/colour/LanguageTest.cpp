// The language switches, the choice of keyword tables, and the tables
// themselves: word counts, terminators and the entries kept as they are.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "ColourZone.h"
#include "keywords/KeywordTables.h"

namespace {

int WordCount(const char* const* table) {
    int n = 0;
    while (table[n][0])
        ++n;
    return n;
}

TEST(KeywordTables, WordCounts) {
    struct Row {
        const char* name;
        const char* const* table;
        int count;
    };
#define T(name, count) {#name, szKeyWord##name, count}
    const Row rows[] = {
        T(CPP1, 32), T(CPP2, 29), T(CPP3, 13), T(CPP4, 16), T(CPP5, 3), T(CPP6, 5),
        T(SQL1, 105), T(SQL6, 3),
        T(SQL2_4, 24), T(SQL2_6, 26), T(SQL2_70, 30), T(SQL2_80, 32), T(SQL2_90, 33),
        T(SQL2_10, 28), T(SQL2_125, 30), T(SQL2_150, 30),
        T(SQL3_4, 32), T(SQL3_6, 31), T(SQL3_65, 33), T(SQL3_70, 34), T(SQL3_10, 38),
        T(SQL3_11, 42), T(SQL3_12, 51), T(SQL3_125, 64), T(SQL3_150, 99),
        T(SQL4_4, 68), T(SQL4_6, 73), T(SQL4_65, 72), T(SQL4_70, 111), T(SQL4_10, 68),
        T(SQL4_125, 70), T(SQL4_150, 133),
        T(SQL5_4, 18), T(SQL5_6, 55), T(SQL5_65, 73), T(SQL5_70, 85), T(SQL5_80, 94),
        T(SQL5_90, 98), T(SQL5_10, 66), T(SQL5_11, 70), T(SQL5_115, 84), T(SQL5_119, 84),
        T(SQL5_12, 88), T(SQL5_125, 114), T(SQL5_150, 128),
        T(ORA1, 81), T(ORA2, 26), T(ORA3, 107), T(ORA4, 76), T(ORA5, 18), T(ORA6, 132),
        T(ORA8_1, 81), T(ORA8_2, 26), T(ORA8_3, 109), T(ORA8_4, 76), T(ORA8_5, 18),
        T(ORA8_6, 155), T(ORA81_1, 81), T(ORA81_2, 29), T(ORA81_3, 109), T(ORA81_4, 80),
        T(ORA81_5, 21), T(ORA81_6, 178), T(ORA90_4, 119), T(ORA90_6, 191),
        T(UDB_1, 477), T(UDB_2, 27), T(UDB_3, 1),
        T(PB_1, 82), T(PB4, 1), T(PB567, 16),
        T(VB_1, 140), T(VBN_1, 116), T(VBN_2, 13), T(VBN_3, 13), T(VBN_4, 7),
        T(DP_1, 81), T(DP_2, 37), T(DP_4, 31), T(DP_5, 20), T(DP_6, 6),
        T(JV_1, 53), T(CS_1, 61), T(CS2_1, 71), T(CS_2, 18), T(CS_3, 12),
        T(Cbl_1, 51), T(Cbl_2, 20), T(Cbl_3, 119),
        T(JCL_1, 18), T(JCL_2, 14), T(JCL_3, 11), T(JCL_4, 13),
        T(CC_1, 43), T(CC_2, 11), T(CC_3, 4), T(Ims_1, 13), T(Csd_1, 18), T(Csd_2, 86),
        T(ObjC_1, 61), T(ObjC_2, 26), T(ObjC_3, 3),
        T(HTM_El, 91), T(HTM_At, 119), T(HTM_En, 5), T(Empty, 0),
    };
#undef T
    EXPECT_EQ(std::size(rows), 106u);
    for (const Row& r : rows)
        EXPECT_EQ(WordCount(r.table), r.count) << r.name;
}

TEST(KeywordTables, EntriesKeptAsTheyStand) {
    // Trailing blanks, repeated words, preprocessor words with their "#",
    // and entries that hold another before that other.
    EXPECT_STREQ(szKeyWordObjC_2[5], "decimal ");
    EXPECT_STREQ(szKeyWordObjC_2[6], "delegate ");
    EXPECT_STREQ(szKeyWordCPP3[0], "#include");
    EXPECT_STREQ(szKeyWordVBN_4[4], "#end region");
    EXPECT_STREQ(szKeyWordVBN_4[6], "#end");
    EXPECT_STREQ(szKeyWordHTM_At[1], "accept-charset");
    EXPECT_STREQ(szKeyWordHTM_At[2], "accept");
    EXPECT_STREQ(szKeyWordJCL_4[0], "/*$");
    for (const char* const* table : {szKeyWordCsd_2, szKeyWordUDB_1}) {
        int repeats = 0;
        for (int i = 0; table[i][0]; ++i)
            for (int j = 0; j < i; ++j)
                repeats += std::strcmp(table[i], table[j]) == 0;
        EXPECT_EQ(repeats, 1);
    }
    // Lower case everywhere but in the JCL tables and a few Objective-C words.
    for (const char* const* table :
         {szKeyWordSQL1, szKeyWordSQL4_150, szKeyWordORA90_6, szKeyWordUDB_1, szKeyWordVB_1})
        for (int i = 0; table[i][0]; ++i)
            for (const char* p = table[i]; *p; ++p)
                EXPECT_FALSE(*p >= 'A' && *p <= 'Z') << table[i];
}

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
