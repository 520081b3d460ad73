// The runs of a markup line. The line is a sequence of sections (text, tags,
// attribute values, comments, SCRIPT bodies, server sections); each step of
// the scan adds the run of one section at its start and finds where the
// next one starts and what it is. Script inside a SCRIPT body or a server
// section is coloured by BuildEmbeddedColor.
#include <cctype>
#include <cstring>

#include "colour/MarkupSearch.h"
#include "colour/MarkupStates.h"
#include "colour/TextZoneColor.h"
#include "keywords/KeywordTables.h"

namespace {

constexpr char kTaken = 10;
// Directives of server pages: a colour of their own, in no syntax class.
constexpr COLORREF kDirectiveColor = 0x008080;

}  // namespace

std::uint32_t CTextZoneColor::OpenMarkup(const char* pLt) {
    const std::uint32_t nState = MarkupOpener(pLt, m_bXml != 0);
    if (nState == MS_DIRECTIVE) {
        // The language a directive names holds for the rest of the text.
        const int nJava = DirectiveLanguage(pLt);
        if (nJava >= 0) m_bServerScriptJava = nJava;
    }
    return nState;
}

void CTextZoneColor::DefineMarkupColors(const std::string& text, std::uint32_t nStart) {
    const char* const t = text.c_str();
    const int n = static_cast<int>(std::strlen(t));
    const COLORREF crTag = m_crSyntax[SC_KEYWORD1 + 2 - 1];  // KeyWord3: tags and delimiters
    std::uint32_t nState = MarkupPart(nStart);
    // Only the state the line starts in can be inside embedded script.
    std::uint32_t nEmbedded = EmbeddedPart(nStart);
    int p = 0;
    while (p < n) {
        int next = -1;
        std::uint32_t nNext = MS_TEXT;
        switch (nState) {
            case MS_TAG:
            case MS_DECLARATION:
            case MS_SCRIPT_TAG:
            case MS_VBSCRIPT_TAG: {
                AddColorDef(p, crTag);
                const TagSectionStops stops = ScanTagSection(t, p, &nState, m_bXml != 0);
                const int gt = stops.gt;
                const int dq = stops.dq;
                const int cm = stops.cm;
                const int first = stops.first;
                if (first < 0) {
                    // The tag goes on in the next line.
                } else if (first == gt) {
                    next = gt + 1;
                    if (nState == MS_SCRIPT_TAG)
                        nNext = MS_SCRIPT;
                    else if (nState == MS_VBSCRIPT_TAG)
                        nNext = MS_VBSCRIPT;
                    else if (t[next] == '<' && (nNext = OpenMarkup(t + next)) == 0)
                        nNext = MS_TEXT;
                } else if (first == cm) {
                    next = cm;
                    nNext = MS_DECL_COMMENT;
                } else {
                    next = first;
                    nNext = (first == dq ? MS_DOUBLE_VALUE : MS_SINGLE_VALUE) + nState - MS_TAG;
                }
                if (!m_bXml) MarkupTagKeywordPass(text, p, next >= 0 ? next : n);
                break;
            }
            case MS_DOUBLE_VALUE:
            case MS_DOUBLE_VALUE + 1:
            case MS_DOUBLE_VALUE + 2:
            case MS_DOUBLE_VALUE + 3:
            case MS_SINGLE_VALUE:
            case MS_SINGLE_VALUE + 1:
            case MS_SINGLE_VALUE + 2:
            case MS_SINGLE_VALUE + 3: {
                AddColorDef(p, m_crSyntax[SC_STRING - 1]);
                const bool bDouble = nState < MS_SINGLE_VALUE;
                const char* pClose = std::strchr(t + (p ? p + 1 : 0), bDouble ? '"' : '\'');
                if (pClose) {
                    next = OffsetOf(t, pClose) + 1;
                    nNext = MS_TAG + (nState - MS_DOUBLE_VALUE) % 4;
                }
                break;
            }
            case MS_DECL_COMMENT:
                AddColorDef(p, m_crSyntax[SC_COMMENT - 1]);
                if (const char* pEnd = std::strstr(t + (p ? p + 2 : 0), "-->")) {
                    next = OffsetOf(t, pEnd) + 2;
                    nNext = MS_DECLARATION;
                }
                break;
            case MS_SERVER_COMMENT:
                AddColorDef(p, m_crSyntax[SC_COMMENT - 1]);
                if (const char* pEnd = std::strstr(t + p, "%>")) next = OffsetOf(t, pEnd) + 2;
                break;
            case MS_PROCESSING:
                AddColorDef(p, crTag);
                if (const char* pEnd = std::strstr(t + (p ? p + 2 : 0), "?>"))
                    next = OffsetOf(t, pEnd) + 2;
                break;
            case MS_SCRIPT:
            case MS_VBSCRIPT: {
                AddColorDef(p, m_crRunText);
                const int e = OffsetOf(t, FindScriptEnd(t + p));
                const int s = OffsetOf(t, std::strstr(t + p, "<%"));
                const std::uint32_t nType = nEmbedded ? nEmbedded : LS_PLAIN;
                const bool bJava = nState == MS_SCRIPT;
                if (e >= 0 && (s < 0 || e < s)) {
                    if (e != p) ColorEmbeddedPiece(text, p, e, nType, bJava);
                    next = e;
                    nNext = MS_TAG;
                } else if (s >= 0) {
                    if (s != p) ColorEmbeddedPiece(text, p, s, nType, bJava);
                    next = s;
                    nNext = bJava ? MS_SERVER_IN_SCRIPT : MS_SERVER_IN_VBSCRIPT;
                } else {
                    ColorEmbeddedPiece(text, p, n, nType, bJava);
                }
                break;
            }
            case MS_SERVER:
            case MS_SERVER_IN_SCRIPT:
            case MS_SERVER_IN_VBSCRIPT:
            case MS_DIRECTIVE:
                if (m_bServerPage && nState == MS_DIRECTIVE) {
                    AddColorDef(p, kDirectiveColor);
                    if (const char* pEnd = std::strstr(t + p, "%>")) next = OffsetOf(t, pEnd) + 2;
                } else if (m_bServerPage && nState == MS_SERVER &&
                           std::strncmp(t + p, "<%--", 4) == 0) {
                    AddColorDef(p, m_crSyntax[SC_COMMENT - 1]);
                    next = p + 2;
                    nNext = MS_SERVER_COMMENT;
                } else {
                    if (!nEmbedded) {
                        // The section starts here: its "<%" in the colour of tags.
                        AddColorDef(p, crTag);
                        p += 2;
                    }
                    AddColorDef(p, m_crRunText);
                    const std::uint32_t nType = nEmbedded ? nEmbedded : LS_PLAIN;
                    const char* pEnd = std::strstr(t + p, "%>");
                    const int end = pEnd ? OffsetOf(t, pEnd) : n;
                    if (end != p || !pEnd)
                        ColorEmbeddedPiece(text, p, end, nType, m_bServerScriptJava != 0);
                    if (pEnd) {
                        AddColorDef(end, crTag);
                        next = end + 2;
                        nNext = nState == MS_SERVER_IN_SCRIPT     ? MS_SCRIPT
                                : nState == MS_SERVER_IN_VBSCRIPT ? MS_VBSCRIPT
                                                                  : MS_TEXT;
                    }
                }
                break;
            default: {  // MS_TEXT, and any value that is no markup state
                AddColorDef(p, m_crRunText);
                const char* pLt = std::strchr(t + p, '<');
                if (pLt && (nNext = OpenMarkup(pLt)) != 0) next = OffsetOf(t, pLt);
                MarkupEntityPass(text, p, pLt ? OffsetOf(t, pLt) : n);
                break;
            }
        }
        if (next < 0) break;
        p = next;
        nState = nNext;
        nEmbedded = 0;
    }
}

void CTextZoneColor::MarkupEntityPass(const std::string& text, int nFrom, int nTo) {
    // Entities are found with no boundary test, in any case.
    std::string copy = text.substr(static_cast<size_t>(nFrom), static_cast<size_t>(nTo - nFrom));
    for (char& c : copy)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (const char* const* ppWord = szKeyWordHTM_En; (*ppWord)[0]; ++ppWord) {
        const size_t nLength = std::strlen(*ppWord);
        for (const char* p = copy.c_str(); (p = std::strstr(p, *ppWord)) != nullptr;) {
            const int at = OffsetOf(copy.c_str(), p);
            int end = at + static_cast<int>(nLength);
            while (copy[static_cast<size_t>(end)] == ' ' || copy[static_cast<size_t>(end)] == '\t')
                ++end;
            AddColorDef(nFrom + at, m_crSyntax[SC_VARIABLE - 1]);
            CloseColorDef(nFrom + end);
            std::memset(copy.data() + at, kTaken, static_cast<size_t>(end - at));
            p = copy.c_str() + end;
        }
    }
}

void CTextZoneColor::MarkupTagKeywordPass(const std::string& text, int nFrom, int nTo) {
    // Element names first: an attribute that is also an element name takes
    // the colour of the element.
    const char* const* tables[2] = {szKeyWordHTM_El, szKeyWordHTM_At};
    if (!m_markupIndex.IsBuiltFor(tables, 2)) m_markupIndex.Build(tables, 2);
    std::string copy = text.substr(static_cast<size_t>(nFrom), static_cast<size_t>(nTo - nFrom));
    m_keywordTokens.clear();
    m_markupIndex.Take(copy, true, KeywordBounds::Sql, m_keywordTokens);
    for (const KeywordToken& token : m_keywordTokens) {
        AddColorDef(nFrom + token.nStart, m_crSyntax[SC_KEYWORD1 - 1 + token.nTable]);
        CloseColorDef(nFrom + token.nEnd);
    }
}
