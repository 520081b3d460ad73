// Which lines each user action analyses. Only characters that can change
// the string or comment state of later lines ask for the rest of the text,
// and a quote or backslash waits until the caret leaves its line, so that
// typing a string costs one line a key.
#include <climits>

#include "host/MessageBeep.h"
#include "platform/Messages.h"
#include "zones/TextZoneParam.h"

namespace {

constexpr int kAllLines = 0x7fffffff;

// The bytes on either side of the caret: P before it (column 1 to the
// line's length), N at it (column below the length); 0 where there is none.
struct CaretBytes {
    char p = 0;
    char n = 0;
    int nLength = 0;
};

CaretBytes BytesAt(CStringEx* pLine, int nChar) {
    CaretBytes b;
    if (!pLine) return b;
    // The line's text, without its end.
    b.nLength = pLine->GetLength() - pLine->IsEnded();
    if (nChar >= 1 && nChar <= b.nLength) b.p = (*pLine)[nChar - 1];
    if (nChar >= 0 && nChar < b.nLength) b.n = (*pLine)[nChar];
    return b;
}

}  // namespace

int CTextZoneParam::InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal) {
    if (!KeywordGate())
        return CTextZoneColor::InsertText(pszText, bSelect, bScroll, bHorizontal);
    const int nFirst = m_nSelStartLine;
    m_bDeferRedraw = 1;
    const int nResult = CTextZoneColor::InsertText(pszText, bSelect, bScroll, bHorizontal);
    AnalyzeLines(nFirst, m_nSelEndLine);
    FlushRedraw();
    return nResult;
}

void CTextZoneParam::HandleChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const int bHadSelection = TestSelection();
    if (!KeywordGate() || m_bReadOnly) {
        CTextZoneColor::HandleChar(nChar, nRepCnt, nFlags);
        ExpandShortcut(nChar, bHadSelection);
        return;
    }
    const bool bZeroBox = m_nSelectionMode == TZ_SEL_BOX && m_nSelStartChar == m_nSelEndChar &&
                          m_nSelStartLine != m_nSelEndLine;
    int nFirst = m_nSelStartLine;
    int nLast = m_nSelStartLine;
    if (bZeroBox) {
        nLast = nChar >= 32 ? kAllLines : m_nSelEndLine;
    } else if (nChar >= 32) {
        const CaretBytes b = BytesAt(GetLine(m_nSelStartLine), m_nSelStartChar);
        // The new character splits a comment token in two.
        if ((b.p == '*' && b.n == '/') || (b.p == '/' && b.n == '*') ||
            (m_bDashDashComment && b.p == '-' && b.n == '-'))
            nLast = kAllLines;
        if (nChar == '"' || nChar == '\'' || nChar == '\\')
            m_bRescanPending = 1;
        else if (nChar == '*' && (b.n == '/' || b.p == '/'))
            nLast = kAllLines;
        else if (nChar == '/' && (b.n == '*' || b.p == '*' || b.n == '/' || b.p == '/'))
            nLast = kAllLines;
        else if (nChar == '-' && (b.n == '-' || b.p == '-') && m_bDashDashComment)
            nLast = kAllLines;
    }

    m_bDeferRedraw = 1;
    CTextZoneColor::HandleChar(nChar, nRepCnt, nFlags);
    int nNewFirst = m_nSelStartLine;
    int nNewLast = m_nSelStartLine;
    if (m_nSelectionMode == TZ_SEL_BOX && m_nSelStartChar == m_nSelEndChar) {
        nNewFirst = m_nSelStartLine;
        nNewLast = m_nSelEndLine;
    }
    int nTo = nLast > nNewLast ? nLast : nNewLast;
    if (nTo > GetLastLineIndex()) {
        m_bRescanPending = 0;
        nTo = GetLastLineIndex();
    }
    AnalyzeLines(nFirst < nNewFirst ? nFirst : nNewFirst, nTo);
    FlushRedraw();
    ExpandShortcut(nChar, bHadSelection);
}

void CTextZoneParam::HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if ((nChar == VK_TAB || nChar == VK_RETURN) && m_lMaxLength > 0 &&
        GetTextLength(TF_CRLF) >= m_lMaxLength) {
        VESKMessageBeep(0);
        return;
    }
    bool bFull = false;
    const int nOld = m_nSelStartLine;
    const int bSelection = TestSelection();
    const bool bDeleteKey = nChar == VK_DELETE || nChar == VK_BACK;

    if (bSelection || m_bReadOnly || !m_bSyntaxColor || m_nKeywordMode == KM_NONE) {
        // Deleting through a zero-width box over several lines joins
        // nothing, yet may remove a comment token on every line.
        if (bDeleteKey && !m_bReadOnly && m_bSyntaxColor && m_nSelectionMode == TZ_SEL_BOX &&
            m_nSelStartChar == m_nSelEndChar && m_nSelStartLine != m_nSelEndLine)
            bFull = true;
    } else {
        const CaretBytes b = BytesAt(GetLine(m_nSelStartLine), m_nSelStartChar);
        const bool bToken = (b.p == '*' && b.n == '/') || (b.p == '/' && b.n == '*') ||
                            (m_bDashDashComment && b.p == '-' && b.n == '-');
        if (nChar == VK_TAB || nChar == VK_RETURN) {
            if (bToken) bFull = true;
        } else if (nChar == VK_BACK) {
            if (m_nSelStartChar < 1 || m_nSelStartChar > b.nLength) {
                bFull = true;  // the key joins lines
            } else if (b.p == '"' || b.p == '\'' || b.p == '\\') {
                m_bRescanPending = 1;
            } else if (b.p == '*' || b.p == '/' || (b.p == '-' && m_bDashDashComment)) {
                bFull = true;
            }
        } else if (nChar == VK_DELETE) {
            if (m_nSelStartChar >= b.nLength) {
                bFull = true;
            } else if (b.n == '"' || b.n == '\'' || b.n == '\\') {
                m_bRescanPending = 1;
            } else if (b.n == 0 || b.n == '\r' || b.n == '*' || b.n == '/' ||
                       (b.n == '-' && m_bDashDashComment)) {
                bFull = true;
            }
        }
    }

    m_bDeferRedraw = 1;
    CTextZoneColor::HandleKeyDown(nChar, nRepCnt, nFlags);

    if ((nChar >= VK_PRIOR && nChar <= VK_DOWN) || nChar == VK_RETURN) {
        AnalyzeLine(nOld);
        RedrawLines(nOld, nOld, 1);
    }
    if (bDeleteKey && !bSelection && !m_bReadOnly && m_bSyntaxColor) {
        const CaretBytes b = BytesAt(GetLine(m_nSelStartLine), m_nSelStartChar);
        if ((b.p == '*' && b.n == '/') || (b.p == '/' && b.n == '*') ||
            (m_bDashDashComment && b.p == '-' && b.n == '-'))
            bFull = true;
        AnalyzeLine(m_nSelStartLine);
    }
    const bool bLeaves = nChar == VK_RETURN || nChar == VK_PRIOR || nChar == VK_NEXT ||
                         nChar == VK_END || nChar == VK_HOME || nChar == VK_UP ||
                         nChar == VK_DOWN;
    if ((m_bRescanPending && bLeaves) || bFull) {
        m_bRescanPending = 0;
        const int nFrom = nOld < m_nSelStartLine ? nOld : m_nSelStartLine;
        AnalyzeLines(nFrom, GetLastLineIndex());
        RedrawLines(nFrom, kAllLines, 1);
    }
    FlushRedraw();
}

void CTextZoneParam::HandleLButtonDown(UINT nFlags, POINT* pt) {
    const int nOld = m_nSelStartLine;
    CTextZoneColor::HandleLButtonDown(nFlags, pt);
    if (!m_bRescanPending) {
        AnalyzeLine(nOld);
        RedrawLines(nOld, nOld, 1);
    } else {
        m_bRescanPending = 0;
        AnalyzeLines(nOld, GetLastLineIndex());
        RedrawLines(nOld, GetLastLineIndex(), 1);
    }
}
