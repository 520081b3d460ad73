// CTextZoneParam: keyword modes, the deferred redraw and AnalyzeLine.
#include "zones/TextZoneParam.h"

#include <cctype>
#include <cstring>
#include <string>

#include "host/Collator.h"
#include "keywords/KeywordTables.h"

namespace {

constexpr char kMasked = 0x0A;  // never a word byte; keeps every column in place
constexpr int kAllLines = 0x7fffffff;

bool IsKeywordNeighbour(unsigned char c) {
    return c >= 0x80 || std::isalnum(c) || c == '#' || c == '@' || c == '_';
}

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

    const bool bCaretRule = !TestSelection() && nLine == m_nSelStartLine;
    const int nCaret = m_nSelStartChar;
    char* pLive = pLine->GetBuffer();
    const VESK::ICollator* pCollator = VESK::CollatorFactory::getSystemCollator();

    static constexpr int kTables[] = {0, 2, 3, 4, 5};
    std::string folded;
    for (int nTable : kTables) {
        const char** pWords = m_keywordLists[nTable];
        if (!pWords) continue;
        folded = work;
        pCollator->toLower(folded.data(), n);
        for (const char** pp = pWords; *pp && **pp; ++pp) {
            const char* pWord = *pp;
            const int nWord = static_cast<int>(std::strlen(pWord));
            int from = 0;
            while (from + nWord <= n) {
                const char* hit = static_cast<const char*>(
                    memmem(folded.data() + from, static_cast<size_t>(n - from), pWord,
                           static_cast<size_t>(nWord)));
                if (!hit) break;
                const int at = static_cast<int>(hit - folded.data());
                const int end = at + nWord;
                const bool bBefore =
                    at == 0 || !IsKeywordNeighbour(static_cast<unsigned char>(folded[at - 1]));
                const bool bAfter =
                    end >= n || !IsKeywordNeighbour(static_cast<unsigned char>(folded[end]));
                // A word the user is still typing stays as typed.
                if (!bBefore || !bAfter || (bCaretRule && end == nCaret)) {
                    from = end;
                    continue;
                }
                int stop = end;
                while (stop < n && (work[stop] == ' ' || work[stop] == '\t'))
                    ++stop;
                int i = at;
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
                std::memset(folded.data() + at, kMasked, static_cast<size_t>(stop - at));
                from = stop;
            }
        }
        // What this table matched stays masked for the next one; the rest
        // takes back its own bytes.
        for (int i = 0; i < n; ++i)
            if (folded[i] != kMasked) folded[i] = work[i];
        work.swap(folded);
    }
}
