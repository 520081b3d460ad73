#include "colour/EmbeddedGrammar.h"

#include <cstring>

#include "colour/TextZoneColor.h"

int CEmbeddedGrammar::FindCloser(const char* pText, int nFrom, std::uint32_t nState) const {
    const char* pszCloser = nState == LS_QUOTE ? "'" : nState == LS_DOUBLE ? "\"" : "*/";
    const int nLength = static_cast<int>(std::strlen(pszCloser));
    const char* q = std::strstr(pText + nFrom, pszCloser);
    if (m_bJava && nState < LS_BRACKET) {
        // A closer behind a backslash is escaped unless the backslashes
        // before that one are odd in number (they escape each other).
        while (q && q - pText > nFrom && q[-1] == '\\') {
            int n = 0;
            for (const char* b = q - 2; b - pText > nFrom && *b == '\\'; --b)
                ++n;
            if (n % 2 == 1) break;
            q = std::strstr(q + 1, pszCloser);
        }
    }
    return q ? static_cast<int>(q - pText) + nLength : -1;
}

bool CEmbeddedGrammar::FindOpener(const char* pText, int nFrom, Opener* pOpener) const {
    const char* const pszSet = m_bJava ? "/'\"" : "'\"";
    for (const char* p = pText + nFrom + std::strcspn(pText + nFrom, pszSet); *p;
         p += 1 + std::strcspn(p + 1, pszSet)) {
        const int at = static_cast<int>(p - pText);
        if (*p == '"') {
            *pOpener = {at, 1, DOUBLE, LS_DOUBLE};
            return true;
        }
        if (*p == '\'') {
            *pOpener =
                m_bJava ? Opener{at, 1, QUOTE, LS_QUOTE} : Opener{at, 1, LINE_COMMENT, LS_PLAIN};
            return true;
        }
        if (p[1] == '*') {
            *pOpener = {at, 2, BLOCK_COMMENT, LS_COMMENT};
            return true;
        }
        if (p[1] == '/') {
            *pOpener = {at, 2, LINE_COMMENT, LS_PLAIN};
            return true;
        }
    }
    return false;
}
