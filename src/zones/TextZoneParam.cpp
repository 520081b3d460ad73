// CTextZoneParam: keyword modes, the deferred redraw and AnalyzeLine.
#include "zones/TextZoneParam.h"

#include <cctype>
#include <iterator>
#include <string>

#include "keywords/KeywordTables.h"

namespace {

constexpr char kMasked = 0x0A;  // never a word byte; keeps every column in place
constexpr int kAllLines = 0x7fffffff;

}  // namespace

CTextZoneParam::CTextZoneParam()
    : m_keywordLists{szKeyWordCPP1, szKeyWordCPP2, szKeyWordCPP3,
                     szKeyWordCPP4, szKeyWordCPP5, szKeyWordCPP6} {}

CTextZoneParam::~CTextZoneParam() { m_shortcutList.clear(); }

int CTextZoneParam::SetText(const char* pszText) {
    // The base loads through InsertText; with the mode off for the while,
    // that insertion stays outside the gate.
    const unsigned int nMode = m_nKeywordMode;
    m_nKeywordMode = KM_NONE;
    const int nResult = CTextZoneColor::SetText(pszText);
    m_nKeywordMode = nMode;
    return nResult;
}

void CTextZoneParam::RedrawLines(int nFirst, int nLast, int bUpdate) {
    if (!m_bDeferRedraw) {
        CTextZone::RedrawLines(nFirst, nLast, bUpdate);
        return;
    }
    if (!m_bRedrawPending) {
        m_nRedrawFirst = nFirst;
        m_nRedrawLast = nLast;
        m_bRedrawPending = 1;
    } else {
        if (nFirst < m_nRedrawFirst) m_nRedrawFirst = nFirst;
        if (nLast > m_nRedrawLast) m_nRedrawLast = nLast;
    }
}

void CTextZoneParam::FlushRedraw() {
    m_bDeferRedraw = 0;
    if (m_bRedrawPending) {
        const int nFirst = m_nRedrawFirst;
        const int nLast = m_nRedrawLast;
        m_bRedrawPending = 0;
        m_nRedrawFirst = 0;
        m_nRedrawLast = 0;
        CTextZone::RedrawLines(nFirst, nLast, 1);
    }
}

void CTextZoneParam::EnableSyntaxColor(int bEnable, int bSlashSlash, int bDashDash,
                                       int bBackslash, int bSql, int bNested, int nSqlVersion) {
    CTextZoneColor::EnableSyntaxColor(bEnable, bSlashSlash, bDashDash, bBackslash, bSql, bNested,
                                      nSqlVersion);
    DefineKeywordList(m_keywordLists);
}

void CTextZoneParam::SetKeywordMode(unsigned int nMode, int bRedraw) {
    const unsigned int nOld = m_nKeywordMode;
    if (nMode < 4) m_nKeywordMode = nMode;
    if (m_nKeywordMode != KM_NONE && m_nKeywordMode != nOld && bRedraw) {
        m_bRescanPending = 0;
        AnalyzeLines(0, GetLastLineIndex());
        RedrawLines(0, kAllLines, 1);
    }
}

unsigned int CTextZoneParam::GetKeywordMode() { return m_nKeywordMode; }

void CTextZoneParam::SetCharMap(void*) {}

void CTextZoneParam::AnalyzeLines(int nFirst, int nLast) {
    if (!KeywordGate()) return;
    const int nEnd = GetLastLineIndex();
    if (nLast > nEnd) nLast = nEnd;
    for (int n = nFirst < 0 ? 0 : nFirst; n <= nLast; ++n)
        AnalyzeLine(n);
}

void CTextZoneParam::AnalyzeLine(int nLine) {
    if (!KeywordGate()) return;
    CStringEx* pLine = GetLine(nLine);
    if (!pLine) return;
    const int n = pLine->GetLength();
    if (n == 0) return;

    // Strings, comments and bracketed names are masked with the colouring's
    // own vocabulary (the copy code reading for meaning uses): the head left
    // over from the line above, each part through its closer and the blanks
    // behind it, a line comment through the end.
    CStringEx masked;
    GetCommentAndStringFreeLine(&masked, nLine, 0);
    std::string work(masked.c_str(), static_cast<size_t>(masked.GetLength()));
    if (static_cast<int>(work.size()) != n) return;
    for (char& c : work)
        if (c == 0x0D) c = kMasked;

    // The word the caret ends is still being typed and stays as it is.
    const int nKeepEnd = !TestSelection() && nLine == m_nSelStartLine ? m_nSelStartChar : -1;
    static constexpr int kTables[] = {0, 2, 3, 4, 5};
    const char* const* tables[std::size(kTables)];
    for (std::size_t t = 0; t < std::size(kTables); ++t)
        tables[t] = m_keywordLists[kTables[t]];
    constexpr int kCount = static_cast<int>(std::size(kTables));
    if (!m_keywordIndex.IsBuiltFor(tables, kCount)) m_keywordIndex.Build(tables, kCount);
    // Table by table and word by word, each word taken masks its place and
    // the blanks behind it for the words after it.
    m_keywordTokens.clear();
    m_keywordIndex.Take(work, true, KeywordBounds::Sql, m_keywordTokens, nKeepEnd);

    char* pLive = pLine->GetBuffer();
    for (const KeywordToken& token : m_keywordTokens) {
        int i = token.nStart;
        const int stop = token.nEnd;
        switch (m_nKeywordMode) {
            case KM_UPPER:
                for (; i < stop; ++i)
                    pLive[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(pLive[i])));
                break;
            case KM_LOWER:
                for (; i < stop; ++i)
                    pLive[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(pLive[i])));
                break;
            default:
                while (i < stop && (pLive[i] == '@' || pLive[i] == '#'))
                    ++i;
                if (i < stop) {
                    pLive[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(pLive[i])));
                    ++i;
                }
                for (; i < stop; ++i)
                    pLive[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(pLive[i])));
                break;
        }
    }
}
