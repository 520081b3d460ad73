// Line start states: how far the cached states can be trusted, the walk that
// computes them, and the search for openers and closing delimiters that the
// walk and the colouring share. The walk never colours: it looks only for
// delimiters, so going down a long text after an edit stays cheap.
#include <cstring>

#include "colour/TextZoneColor.h"
#include "textzone/TextBytes.h"

using textbytes::IsBlank;

namespace {

// Backslashes (or tildes) right before index nAt, not counting the byte at nStop.
int CountBefore(const char* pText, int nAt, int nStop, char c) {
    int n = 0;
    for (int j = nAt - 1; j > nStop && pText[j] == c; --j)
        ++n;
    return n;
}

// An escape character before a delimiter at h escapes it, unless an odd
// number of them stand before that one. Returns the hit that stands, or -1.
int SkipEscaped(const char* pText, int nFrom, int h, const char* pszDelim, char cEscape) {
    while (h >= 0 && h > nFrom && pText[h - 1] == cEscape) {
        if (CountBefore(pText, h - 1, nFrom, cEscape) % 2 == 1) break;
        const char* q = std::strstr(pText + h + 1, pszDelim);
        h = q ? static_cast<int>(q - pText) : -1;
    }
    return h;
}

int Find(const char* pText, int nFrom, const char* pszDelim) {
    const char* q = pszDelim[1] ? std::strstr(pText + nFrom, pszDelim)
                                : std::strchr(pText + nFrom, pszDelim[0]);
    return q ? static_cast<int>(q - pText) : -1;
}

}  // namespace

void CTextZoneColor::ResetLastLines(int nLine) {
    if (nLine < 0) nLine = 0;
    if (nLine < m_nFirstDirtyLine) m_nFirstDirtyLine = nLine;
}

unsigned int CTextZoneColor::StartWithWhat(int nLine) {
    // JCL has no construct that crosses a line.
    if (m_bJcl) return LS_PLAIN;
    CStringExColor* pTarget = GetColorLine(nLine);
    if (!pTarget) return LS_PLAIN;
    if (nLine < m_nFirstDirtyLine) {
        if (pTarget->m_nStartType) return pTarget->m_nStartType;
        m_nFirstDirtyLine = nLine;
    }

    int i = m_nFirstDirtyLine - 1;
    std::uint32_t nState = LS_PLAIN;
    if (i < 0) {
        i = 0;
    } else {
        // The walk starts from the last state known; a line below the mark
        // that has none (made by an edit the zone did not see) sends it
        // further up.
        CStringExColor* pLine = GetColorLine(i);
        while (i > 0 && (!pLine || !pLine->m_nStartType))
            pLine = GetColorLine(--i);
        nState = pLine && pLine->m_nStartType ? pLine->m_nStartType : LS_PLAIN;
    }
    for (; i < nLine; ++i) {
        if (CStringExColor* pLine = GetColorLine(i)) {
            pLine->m_nStartType = nState;
            nState = AdvanceState(pLine, nState);
        }
        m_nFirstDirtyLine = i + 1;
    }
    pTarget->m_nStartType = nState;
    return nState;
}

bool CTextZoneColor::StartsWithRem(const char* pText) {
    while (IsBlank(*pText))
        ++pText;
    return (pText[0] | 0x20) == 'r' && (pText[1] | 0x20) == 'e' && (pText[2] | 0x20) == 'm' &&
           IsBlank(pText[3]);
}

int CTextZoneColor::FindCloser(const char* pText, int nFrom, std::uint32_t* pState, bool bEscapes) {
    for (;;) {
        const std::uint32_t s = *pState;
        const char* pszDelim = s == LS_QUOTE                         ? "'"
                               : s == LS_DOUBLE                      ? "\""
                               : s == LS_BRACKET                     ? "]"
                               : (s == LS_BRACE && m_bPascalComment) ? "}"
                               : m_bPascalComment                    ? "*)"
                                                                     : "*/";
        const int len = static_cast<int>(std::strlen(pszDelim));
        int h = Find(pText, nFrom, pszDelim);
        // "]]" inside an identifier stands for one "]".
        if (s == LS_BRACKET)
            while (h >= 0 && pText[h + 1] == ']')
                h = Find(pText, h + 2, pszDelim);
        if (bEscapes && m_bBackslashEscape) h = SkipEscaped(pText, nFrom, h, pszDelim, '\\');
        if (bEscapes && m_bTildeEscape) h = SkipEscaped(pText, nFrom, h, pszDelim, '~');

        if (!(m_bSlashStarComment && m_bNestedComment && s >= LS_COMMENT))
            return h >= 0 ? h + len : -1;
        const int q = Find(pText, nFrom, "/*");
        if (q < 0 && h < 0) return -1;
        if (q >= 0 && (h < 0 || q < h)) {
            ++*pState;
            nFrom = q + 2;
            continue;
        }
        --*pState;
        if (*pState < LS_COMMENT) return h + len;
        nFrom = h + len;
    }
}

int CTextZoneColor::FindOpener(const char* pText, int nFrom, int nLineComment, int* pnLength,
                               int* pnKind, std::uint32_t* pnState) {
    // The first bytes worth a look, so that strcspn can skip the rest.
    char set[8];
    int n = 0;
    if (m_bPascalComment) {
        set[n++] = '(';
        set[n++] = '{';
    } else if (m_bSlashStarComment) {
        set[n++] = '/';
    }
    set[n++] = '\'';
    set[n++] = '"';
    const bool bLineHere = nLineComment == -2;
    if (bLineHere) {
        if (m_bSlashSlashComment)
            set[n++] = '/';
        else if (m_bDashDashComment)
            set[n++] = '-';
    }
    if (m_bSql) set[n++] = '[';
    set[n] = 0;

    // With no line comment of its own kind, the caller's one stands alone.
    const int nOther = bLineHere ? -1 : nLineComment;
    for (const char* p = pText + nFrom;; ++p) {
        p += std::strcspn(p, set);
        const int at = static_cast<int>(p - pText);
        if (!*p || (nOther >= 0 && at > nOther)) break;
        const char c = p[0];
        if (m_bPascalComment ? c == '(' && p[1] == '*'
                             : m_bSlashStarComment && c == '/' && p[1] == '*') {
            *pnLength = 2;
            *pnKind = OPENER_BLOCK;
            *pnState = LS_COMMENT;
            return at;
        }
        if (m_bPascalComment && c == '{') {
            *pnLength = 1;
            *pnKind = OPENER_BLOCK;
            *pnState = LS_BRACE;
            return at;
        }
        if (c == '\'' && !m_bQuoteComment) {
            *pnLength = 1;
            *pnKind = OPENER_QUOTE;
            *pnState = LS_QUOTE;
            return at;
        }
        if (c == '"') {
            *pnLength = 1;
            *pnKind = OPENER_DOUBLE;
            *pnState = LS_DOUBLE;
            return at;
        }
        // At the caller's line comment only a block comment or a string comes first.
        if (nOther >= 0 && at == nOther) break;
        if (bLineHere) {
            if ((m_bSlashSlashComment && c == '/' && p[1] == '/') ||
                (!m_bSlashSlashComment && m_bDashDashComment && c == '-' && p[1] == '-') ||
                (!m_bSlashSlashComment && !m_bDashDashComment && m_bQuoteComment && c == '\'')) {
                *pnLength = c == '\'' ? 1 : 2;
                *pnKind = OPENER_LINE;
                *pnState = LS_PLAIN;
                return at;
            }
        }
        if (m_bSql && c == '[') {
            *pnLength = 1;
            *pnKind = OPENER_BRACKET;
            *pnState = LS_BRACKET;
            return at;
        }
    }
    if (nOther >= 0) {
        *pnLength = 1;
        *pnKind = OPENER_LINE;
        *pnState = LS_PLAIN;
        return nOther;
    }
    return -1;
}

std::uint32_t CTextZoneColor::AdvanceState(CStringExColor* pLine, std::uint32_t nState) {
    const char* t = pLine->c_str();
    if (m_bHtml) return AdvanceMarkupState(t, nState);
    int pos = 0;
    int nLength = 0;
    int nKind = 0;
    if (nState == LS_COMMENT && m_bQuoteComment) {
        // Only "rem" opens a comment that goes on, and only behind " _".
        nState = pLine->IsVBContinueEnding() ? LS_COMMENT : LS_PLAIN;
        goto lineEnd;
    }
    if (nState != LS_PLAIN) {
        pos = FindCloser(t, 0, &nState, nState == LS_QUOTE || nState == LS_DOUBLE);
        if (pos < 0) goto lineEnd;
        nState = LS_PLAIN;
    } else if (m_bQuoteComment && StartsWithRem(t)) {
        nState = pLine->IsVBContinueEnding() ? LS_COMMENT : LS_PLAIN;
        goto lineEnd;
    }
    for (;;) {
        std::uint32_t nOpened = LS_PLAIN;
        const int at = FindOpener(t, pos, -2, &nLength, &nKind, &nOpened);
        if (at < 0 || nKind == OPENER_LINE) {
            nState = LS_PLAIN;
            break;
        }
        nState = nOpened;
        pos = FindCloser(t, at + nLength, &nState, nState == LS_QUOTE || nState == LS_DOUBLE);
        if (pos < 0) break;
        nState = LS_PLAIN;
    }

lineEnd:
    // Strings at the end of the line: SQL strings run on; a client
    // language's end with the line; in the C family only a backslash
    // carries one on.
    if (!m_bSql && (nState == LS_QUOTE || nState == LS_DOUBLE)) {
        if (m_bClientLanguage) return LS_PLAIN;
        const int v = pLine->GetVisibleLength();
        if (v == 0) return nState;
        if (t[v - 1] != '\\') return LS_PLAIN;
        if (CountBefore(t, v - 1, 0, '\\') % 2 == 1) return LS_PLAIN;
    }
    return nState;
}
