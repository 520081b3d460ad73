// JCL lines: nothing crosses a line; comment lines, statements ("//") and
// control statements ("/*"), strings, and upper-case keywords.
#include <cctype>
#include <cstring>

#include "colour/TextZoneColor.h"
#include "textzone/TextBytes.h"

using textbytes::IsBlank;

void CTextZoneColor::DefineJclColors(std::string& text, const char* const* const* ppTables) {
    const char* t = text.c_str();
    const int n = static_cast<int>(std::strlen(t));
    if (n < 2) return;
    const COLORREF crComment = m_crSyntax[SC_COMMENT - 1];
    if (std::strncmp(t, "//*", 3) == 0) {
        AddColorDef(0, crComment);
        return;
    }
    const unsigned char third = static_cast<unsigned char>(t[2]);
    const bool bShortHead =
        std::strncmp(t, "/*", 2) == 0 || (std::isalpha(static_cast<unsigned char>(t[0])) &&
                                          std::isalpha(static_cast<unsigned char>(t[1])));
    if (bShortHead && (third == ' ' || third == '\t' || third == '\f' || third == '\r' || !third)) {
        AddColorDef(0, crComment);
        return;
    }
    int nKind = 0;
    if (std::strncmp(t, "//", 2) == 0) {
        // The slashes take the colour of comments.
        nKind = 1;
        AddColorDef(0, crComment);
        AddColorDef(2, m_crRunText);
    } else if (std::strncmp(t, "/*", 2) == 0) {
        nKind = 2;
    } else {
        return;
    }

    for (;;) {
        const char* p = text.c_str();
        const char* dq = std::strchr(p, '"');
        const char* sq = std::strchr(p, '\'');
        const char* q = !dq ? sq : !sq ? dq : (dq < sq ? dq : sq);
        if (!q) break;
        const int at = static_cast<int>(q - p);
        AddColorDef(at, m_crSyntax[SC_STRING - 1]);
        const char* close = std::strchr(q + 1, *q);
        int end = n;
        if (close) {
            end = static_cast<int>(close - p) + 1;
            while (IsBlank(p[end]))
                ++end;
            CloseColorDef(end);
        }
        std::memset(text.data() + at, 10, static_cast<size_t>(end - at));
    }

    // Statements: tables 0 to 2 in KeyWord1 to KeyWord3; control statements
    // table 3 in KeyWord4. The tables are upper-case and the case is kept.
    if (nKind == 1)
        KeywordPass(text, ppTables, 3, &m_crSyntax[SC_KEYWORD1 - 1], false, KeywordBounds::Sql);
    else
        KeywordPass(text, ppTables + 3, 1, &m_crSyntax[SC_KEYWORD1 - 1 + 3], false,
                    KeywordBounds::Sql);
}
