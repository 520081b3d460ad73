// The colour runs of one line: a sequence of passes over a private copy of
// its text. Each pass finds its tokens, adds runs, and overwrites what it has
// dealt with by byte 10, so that later passes cannot match inside it: the
// order of the passes is the precedence of the token kinds.
#include <cctype>
#include <cstring>

#include "colour/TextZoneColor.h"
#include "keywords/KeywordTables.h"
#include "textzone/TextBytes.h"

using textbytes::IsBlank;

namespace {

constexpr char kTaken = 10;

// Bytes of an "@" variable; 255 is not one.
bool IsVariableChar(unsigned char c) {
    return std::isalnum(c) || c == '_' || c == '#' || c == '@' || c == '$' ||
           (c >= 128 && c <= 254);
}

int SkipBlanks(const std::string& text, int n) {
    while (IsBlank(text[static_cast<size_t>(n)]))
        ++n;
    return n;
}

void Overwrite(std::string& text, int nFrom, int nTo) {
    if (nTo > nFrom) std::memset(text.data() + nFrom, kTaken, static_cast<size_t>(nTo - nFrom));
}

}  // namespace

void CTextZoneColor::DefineColors(int nLine, CStringEx* pText) {
    if (!m_bSyntaxColor || !pText) return;
    m_crRunText = m_crText;
    // Every search is a C string search: the text ends at its first 0 byte.
    std::string text(pText->c_str());
    const std::uint32_t nState = StartWithWhat(nLine);

    if (m_bHtml) {
        DefineMarkupColors(text, nState);
    } else {
        const char** tables[CKeywordIndex::kMaxTables];
        for (auto& table : tables)
            table = szKeyWordEmpty;
        DefineKeywordList(tables);
        if (m_bJcl) {
            DefineJclColors(text, tables);
        } else {
            if (nState != LS_PLAIN) ContinuationPass(text, nState);
            TokenPass(text);
            const bool bWords = m_bSql || m_bClientLanguage;
            KeywordPass(text, tables, CKeywordIndex::kMaxTables, &m_crSyntax[SC_KEYWORD1 - 1],
                        bWords && !m_bCaseSensitive,
                        !bWords           ? KeywordBounds::CFamily
                        : m_bCobolComment ? KeywordBounds::SqlNoDash
                                          : KeywordBounds::Sql);
            if (m_bSql && m_nSqlVersion >= 1) VariablePass(text);
        }
    }
    if (!m_colorDefs.empty() && m_colorDefs.front()->nPos > 0) AddColorDef(0, m_crRunText);
}

void CTextZoneColor::ContinuationPass(std::string& text, std::uint32_t nState) {
    COLORREF crColor = m_crSyntax[SC_COMMENT - 1];
    if (nState == LS_BRACKET || (nState == LS_DOUBLE && m_bQuotedId))
        crColor = m_crRunText;
    else if (nState == LS_QUOTE || nState == LS_DOUBLE)
        crColor = m_crSyntax[SC_STRING - 1];
    AddColorDef(0, crColor);
    // Escapes count here whatever the state, so "\*/" ends a comment for the
    // next line's state but not on its own line: settled behaviour, kept.
    int end = FindCloser(text.c_str(), 0, &nState, true);
    if (end >= 0) {
        end = SkipBlanks(text, end);
        AddColorDef(end, m_crRunText);
    } else {
        end = static_cast<int>(text.size());
    }
    Overwrite(text, 0, end);
}

void CTextZoneColor::TokenPass(std::string& text) {
    const int n = static_cast<int>(text.size());
    // Each round takes the earliest opener, so nothing before the end of the
    // last token can open anything: the search goes on from there, which
    // keeps a long line full of strings linear.
    int from = 0;
    for (;;) {
        const char* t = text.c_str();
        int nLength = 0;
        int nKind = 0;
        std::uint32_t nState = LS_PLAIN;
        const int at = FindPartOpener(t, from, &nLength, &nKind, &nState);
        if (at < 0) return;

        COLORREF crColor = m_crSyntax[SC_STRING - 1];
        if (nKind == OPENER_BRACKET || (nKind == OPENER_DOUBLE && m_bQuotedId))
            crColor = m_crRunText;
        else if (nKind == OPENER_BLOCK || nKind == OPENER_LINE)
            crColor = m_crSyntax[SC_COMMENT - 1];
        AddColorDef(at, crColor);

        int end = n;
        if (nKind != OPENER_LINE) {
            // Escapes count for every closer here but "*/".
            const bool bEscapes = !(nState >= LS_COMMENT && !m_bPascalComment);
            const int closed = FindCloser(t, at + nLength, &nState, bEscapes);
            if (closed >= 0) {
                end = SkipBlanks(text, closed);
                CloseColorDef(end);
            }
        }
        Overwrite(text, at, end);
        from = end;
    }
}

int CTextZoneColor::FindPartOpener(const char* t, int from, int* pnLength, int* pnKind,
                                   std::uint32_t* pnState) {
    // A line comment found by the rules of the language rather than by its
    // opener: "rem" at the start, or a COBOL comment line.
    int nLineComment = -2;
    if (m_bQuoteComment) {
        if (StartsWithRem(t)) nLineComment = 0;
    } else if (m_bCobolComment) {
        if (t[0] == '*' || t[0] == '/' || std::strncmp(t, "      *", 7) == 0) {
            nLineComment = 0;
        } else {
            const char* q = std::strstr(t + from, "*>");
            nLineComment = q ? static_cast<int>(q - t) : -1;
        }
    }
    if (nLineComment >= 0 && nLineComment < from) nLineComment = -1;
    return FindOpener(t, from, nLineComment, pnLength, pnKind, pnState);
}

void CTextZoneColor::KeywordPass(std::string& text, const char* const* const* ppTables, int nTables,
                                 const COLORREF* pColors, bool bFold, KeywordBounds bounds) {
    if (!m_keywordIndex.IsBuiltFor(ppTables, nTables)) m_keywordIndex.Build(ppTables, nTables);
    m_keywordTokens.clear();
    m_keywordIndex.Take(text, bFold, bounds, m_keywordTokens);
    m_tokenRuns.clear();
    for (const KeywordToken& token : m_keywordTokens)
        m_tokenRuns.push_back(TokenRun{token.nStart, token.nEnd, pColors[token.nTable]});
    AddTokenRuns(m_tokenRuns);
}

void CTextZoneColor::VariablePass(std::string& text) {
    // An "@" stuck behind a variable byte is blanked with what follows it in
    // a copy before any variable is measured, so "@a@b" colours "@a" and
    // leaves "@b" plain: the blanks behind a variable are looked for in the
    // text, where that "@b" still stands.
    std::string copy = text;
    const int n = static_cast<int>(copy.size());
    m_tokenRuns.clear();
    for (int p = 0; p < n; ++p) {
        if (copy[p] != '@' || p == 0 || !IsVariableChar(static_cast<unsigned char>(copy[p - 1])))
            continue;
        int q = p + 1;
        while (q < n && IsVariableChar(static_cast<unsigned char>(copy[q])))
            ++q;
        std::memset(copy.data() + p, ' ', static_cast<size_t>(q - p));
    }
    for (int p = 0; p < n;) {
        const void* hit = std::memchr(copy.data() + p, '@', static_cast<size_t>(n - p));
        if (!hit) break;
        p = static_cast<int>(static_cast<const char*>(hit) - copy.data());
        int end = p + 1;
        while (end < n && IsVariableChar(static_cast<unsigned char>(copy[end])))
            ++end;
        end = SkipBlanks(text, end);
        m_tokenRuns.push_back(TokenRun{p, end, m_crSyntax[SC_VARIABLE - 1]});
        Overwrite(copy, p, end);
        Overwrite(text, p, end);
        p = end;
    }
    AddTokenRuns(m_tokenRuns);
}
