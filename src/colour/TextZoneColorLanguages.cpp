// The two language switches and the choice of keyword tables. A host names a
// language by a number of its own; the switches only set flags, and a
// language is nothing more than those flags and up to six tables.
#include <algorithm>
#include <initializer_list>

#include "colour/TextZoneColor.h"
#include "keywords/KeywordTables.h"

namespace {

bool In(unsigned int n, std::initializer_list<unsigned int> ids) {
    return std::find(ids.begin(), ids.end(), n) != ids.end();
}

bool Between(unsigned int n, unsigned int lo, unsigned int hi) {
    return n >= lo && n <= hi;
}

// The T-SQL ids and their dialects; the family nests its comments.
int TsqlDialect(unsigned int nId) {
    if (In(nId, {1, 2, 51})) return 4;
    if (nId == 3) return 6;
    if (In(nId, {4, 52})) return 65;
    if (In(nId, {5, 53})) return 10;
    if (In(nId, {6, 54})) return 11;
    if (nId == 7) return 115;
    if (In(nId, {8, 55})) return 70;
    if (nId == 9) return 119;
    if (In(nId, {10, 57})) return 80;
    if (nId == 11) return 12;
    if (nId == 12) return 125;
    if (In(nId, {14, 16, 17, 58, 60, 61})) return 90;
    if (nId == 15) return 150;
    return 0;
}

// The PL/SQL and UDB ids and their (negative) dialects.
int OtherSqlDialect(unsigned int nId) {
    if (In(nId, {101, 102, 110, 181})) return -73;
    if (In(nId, {103, 120, 1160})) return -80;
    if (In(nId, {104, 130, 182, 1161})) return -81;
    if (In(nId, {105, 140, 183, 1162})) return -90;
    if (In(nId, {107, 108, 109, 150, 151, 152, 1163, 1164, 1165})) return -92;
    if (In(nId, {205, 206, 211, 212, 255, 256, 257, 265, 266, 267, 275, 276, 280, 281}) ||
        Between(nId, 214, 226) || Between(nId, 285, 296))
        return -1050;
    return 0;
}

using Table = const char**;

struct TableRow {
    Table tables[6];
};

struct DialectRow {
    int nDialect;
    TableRow row;
};

// The tables of each SQL dialect.
const DialectRow kDialects[] = {
    {4,
     {{szKeyWordSQL1, szKeyWordSQL2_4, szKeyWordSQL3_4, szKeyWordSQL4_4, szKeyWordSQL5_4,
       szKeyWordSQL6}}},
    {6,
     {{szKeyWordSQL1, szKeyWordSQL2_6, szKeyWordSQL3_6, szKeyWordSQL4_6, szKeyWordSQL5_6,
       szKeyWordSQL6}}},
    {65,
     {{szKeyWordSQL1, szKeyWordSQL2_6, szKeyWordSQL3_65, szKeyWordSQL4_65, szKeyWordSQL5_65,
       szKeyWordSQL6}}},
    {70,
     {{szKeyWordSQL1, szKeyWordSQL2_70, szKeyWordSQL3_70, szKeyWordSQL4_70, szKeyWordSQL5_70,
       szKeyWordSQL6}}},
    {80,
     {{szKeyWordSQL1, szKeyWordSQL2_80, szKeyWordSQL3_70, szKeyWordSQL4_70, szKeyWordSQL5_80,
       szKeyWordSQL6}}},
    {90,
     {{szKeyWordSQL1, szKeyWordSQL2_90, szKeyWordSQL3_70, szKeyWordSQL4_70, szKeyWordSQL5_90,
       szKeyWordSQL6}}},
    {10,
     {{szKeyWordSQL1, szKeyWordSQL2_10, szKeyWordSQL3_10, szKeyWordSQL4_10, szKeyWordSQL5_10,
       szKeyWordSQL6}}},
    {11,
     {{szKeyWordSQL1, szKeyWordSQL2_10, szKeyWordSQL3_11, szKeyWordSQL4_10, szKeyWordSQL5_11,
       szKeyWordSQL6}}},
    {115,
     {{szKeyWordSQL1, szKeyWordSQL2_10, szKeyWordSQL3_11, szKeyWordSQL4_10, szKeyWordSQL5_115,
       szKeyWordSQL6}}},
    {119,
     {{szKeyWordSQL1, szKeyWordSQL2_10, szKeyWordSQL3_11, szKeyWordSQL4_10, szKeyWordSQL5_119,
       szKeyWordSQL6}}},
    {12,
     {{szKeyWordSQL1, szKeyWordSQL2_10, szKeyWordSQL3_12, szKeyWordSQL4_10, szKeyWordSQL5_12,
       szKeyWordSQL6}}},
    {125,
     {{szKeyWordSQL1, szKeyWordSQL2_125, szKeyWordSQL3_125, szKeyWordSQL4_125, szKeyWordSQL5_125,
       szKeyWordSQL6}}},
    {150,
     {{szKeyWordSQL1, szKeyWordSQL2_150, szKeyWordSQL3_150, szKeyWordSQL4_150, szKeyWordSQL5_150,
       szKeyWordSQL6}}},
    {-73,
     {{szKeyWordORA1, szKeyWordORA2, szKeyWordORA3, szKeyWordORA4, szKeyWordORA5, szKeyWordORA6}}},
    {-80,
     {{szKeyWordORA8_1, szKeyWordORA8_2, szKeyWordORA8_3, szKeyWordORA8_4, szKeyWordORA8_5,
       szKeyWordORA8_6}}},
    {-81,
     {{szKeyWordORA81_1, szKeyWordORA81_2, szKeyWordORA81_3, szKeyWordORA81_4, szKeyWordORA81_5,
       szKeyWordORA81_6}}},
    {-90,
     {{szKeyWordORA81_1, szKeyWordORA81_2, szKeyWordORA81_3, szKeyWordORA90_4, szKeyWordORA81_5,
       szKeyWordORA90_6}}},
    {-92,
     {{szKeyWordORA81_1, szKeyWordORA81_2, szKeyWordORA81_3, szKeyWordORA90_4, szKeyWordORA81_5,
       szKeyWordORA90_6}}},
    {-1050,
     {{szKeyWordUDB_1, szKeyWordUDB_2, szKeyWordUDB_3, szKeyWordEmpty, szKeyWordEmpty,
       szKeyWordEmpty}}},
};

// The tables of an SQL dialect, or false for a dialect without a row.
bool SqlTables(int nDialect, TableRow* pRow) {
    for (const DialectRow& d : kDialects)
        if (d.nDialect == nDialect) {
            *pRow = d.row;
            return true;
        }
    return false;
}

// The tables of a client language, or false for the ids that store none.
bool ClientTables(unsigned int nId, TableRow* pRow) {
    Table e = szKeyWordEmpty;
    if (nId == 35)
        *pRow = {{szKeyWordPB_1, e, e, e, e, szKeyWordPB4}};
    else if (In(nId, {40, 45, 47, 49}) || Between(nId, 50, 57))
        *pRow = {{szKeyWordPB_1, e, e, e, e, szKeyWordPB567}};
    else if (In(nId, {70, 75, 80, 510}))
        *pRow = {{szKeyWordVB_1, e, e, e, e, e}};
    else if (Between(nId, 90, 94))
        *pRow = {{szKeyWordDP_1, szKeyWordDP_2, e, szKeyWordDP_4, szKeyWordDP_5, szKeyWordDP_6}};
    else if (In(nId, {210, 220, 230, 240, 410, 420, 610, 620, 630}) || Between(nId, 250, 253))
        *pRow = {{szKeyWordJV_1, e, e, e, e, e}};
    else if (nId == 270)
        *pRow = {{szKeyWordCC_1, szKeyWordCC_2, szKeyWordCC_3, e, e, e}};
    else if (nId == 920)
        *pRow = {{szKeyWordCS_1, szKeyWordCS_2, szKeyWordCS_3, e, e, e}};
    else if (Between(nId, 921, 925))
        *pRow = {{szKeyWordCS2_1, szKeyWordCS_2, szKeyWordCS_3, e, e, e}};
    else if (Between(nId, 930, 935))
        *pRow = {{szKeyWordVBN_1, szKeyWordVBN_2, szKeyWordVBN_3, szKeyWordVBN_4, e, e}};
    else if (nId == 1010)
        *pRow = {{szKeyWordCbl_1, szKeyWordCbl_2, szKeyWordCbl_3, e, e, e}};
    else if (nId == 1020)
        *pRow = {{szKeyWordJCL_1, szKeyWordJCL_2, szKeyWordJCL_3, szKeyWordJCL_4, e, e}};
    else if (nId == 1060)
        *pRow = {{szKeyWordIms_1, e, e, e, e, e}};
    else if (nId == 1120)
        *pRow = {{szKeyWordCsd_1, szKeyWordCsd_2, e, e, e, e}};
    else if (nId == 1250)
        *pRow = {{szKeyWordObjC_1, szKeyWordObjC_2, szKeyWordObjC_3, e, e, e}};
    else
        return false;
    return true;
}

}  // namespace

void CTextZoneColor::SetSQLSyntaxColor(unsigned int nId) {
    if (In(nId, {1, 2, 51})) {
        // The oldest dialect has no "--" comments.
        EnableSyntaxColor(1, 0, 0, 0, 1, 1, 4);
    } else if (int nDialect = TsqlDialect(nId)) {
        EnableSyntaxColor(1, 0, 1, 0, 1, 1, nDialect);
    } else if (int nOther = OtherSqlDialect(nId)) {
        EnableSyntaxColor(1, 0, 1, 0, 1, 0, nOther);
    } else {
        EnableSyntaxColor(0, 0, 0, 0, 0, 0, 4);
    }
}

void CTextZoneColor::SetClientLanguageSyntaxColor(unsigned int nId) {
    m_nClientLanguage = nId;
    m_bSyntaxColor = 1;
    m_bSlashStarComment = 1;
    m_bClientLanguage = 1;
    m_bHtml = m_bXml = m_bServerPage = 0;
    m_bTildeEscape = m_bPascalComment = m_bCobolComment = 0;
    m_bSql = m_bProcCallNoParens = m_bQuotedId = m_bCaseSensitive = m_bJcl = 0;
    m_bServerScriptJava = 0;
    m_nSqlVersion = 0;

    // The comment and escape flags of a row: /*, //, --, ' comments, \ escapes, nesting.
    auto set = [this](int bSlashStar, int bSlashSlash, int bDashDash, int bQuote, int bBackslash,
                      int bNested) {
        m_bSlashStarComment = bSlashStar;
        m_bSlashSlashComment = bSlashSlash;
        m_bDashDashComment = bDashDash;
        m_bQuoteComment = bQuote;
        m_bBackslashEscape = bBackslash;
        m_bNestedComment = bNested;
    };

    if (nId == 35 || In(nId, {40, 45, 47, 49}) || Between(nId, 50, 57)) {
        set(1, 1, 0, 0, 0, 1);
        m_bTildeEscape = 1;
    } else if (In(nId, {70, 75, 80, 510}) || Between(nId, 930, 935)) {
        set(0, 0, 0, 1, 0, 0);
    } else if (Between(nId, 90, 94)) {
        set(0, 1, 0, 0, 0, 0);
        m_bPascalComment = 1;
    } else if (In(nId, {210, 220, 230, 240, 270, 410, 420}) || Between(nId, 250, 253)) {
        set(1, 1, 0, 0, 1, 0);
        m_bCaseSensitive = 1;
    } else if (In(nId, {310, 360, 810, 1030})) {
        m_bHtml = 1;
    } else if (In(nId, {610, 620, 630, 631, 632})) {
        m_bHtml = m_bServerPage = m_bServerScriptJava = 1;
    } else if (In(nId, {710, 1300})) {
        // C and C++ are the zone's own default rather than a client language.
        EnableSyntaxColor(1, 1, 0, 1, 0, 0, 4);
        m_nClientLanguage = 0;
        m_bClientLanguage = 0;
    } else if (In(nId, {920, 1250}) || Between(nId, 921, 925)) {
        set(1, 1, 0, 0, 1, 0);
    } else if (In(nId, {1010, 1060, 1120})) {
        m_bSlashStarComment = 0;
        m_bCobolComment = 1;
    } else if (nId == 1020) {
        m_bSlashStarComment = 0;
        m_bCaseSensitive = m_bJcl = 1;
    } else if (nId == 1090) {
        m_bHtml = m_bXml = 1;
    } else {
        EnableSyntaxColor(0, 0, 0, 0, 0, 0, 4);
        m_nClientLanguage = 0;
        m_bClientLanguage = 0;
        m_bSyntaxColor = 0;
    }
}

void CTextZoneColor::DefineKeywordList(char const*** pLists) {
    if (!pLists) return;
    TableRow row;
    if (m_bSql) {
        pLists[0] = szKeyWordSQL1;
        pLists[5] = szKeyWordSQL6;
        if (!SqlTables(m_nSqlVersion, &row)) return;
    } else if (m_bClientLanguage) {
        if (!ClientTables(m_nClientLanguage, &row)) return;
    } else {
        row = {{szKeyWordCPP1, szKeyWordCPP2, szKeyWordCPP3, szKeyWordCPP4, szKeyWordCPP5,
                szKeyWordCPP6}};
    }
    std::copy(row.tables, row.tables + 6, pLists);
}
