// The engine operations a coloured zone wraps. Each decides, before or after
// the edit, from which line the cached start states can no longer be trusted
// and which lines must be repainted. An ordinary letter changes nothing
// below its own line, which the engine repaints anyway; only a byte that
// can open or close a comment, a string or a continued line costs a repaint
// down to the end.
#include <algorithm>
#include <cstring>

#include "colour/TextZoneColor.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

namespace {

bool IsDown(int nVirtKey) {
    return (GetKeyState(nVirtKey) & 0x8000) != 0;
}

}  // namespace

void CTextZoneColor::InvalidateFrom(int nLine, int bUpdate) {
    ResetLastLines(nLine);
    RedrawLines(m_nSelStartLine, TZ_TO_END, bUpdate);
}

void CTextZoneColor::BytesAroundCaret(char* pcBefore, char* pcAt) {
    *pcBefore = *pcAt = 0;
    CStringEx* pLine = GetLine(m_nSelStartLine);
    if (!pLine) return;
    const int ch = m_nSelStartChar;
    const int length = pLine->GetLength();
    if (ch > 0 && ch <= length) *pcBefore = pLine->c_str()[ch - 1];
    if (ch >= 0 && ch < length) *pcAt = pLine->c_str()[ch];
}

bool CTextZoneColor::EndsInBackslash(int nLine) {
    CStringEx* pLine = GetLine(nLine);
    if (!pLine) return false;
    const int v = pLine->GetVisibleLength();
    return v > 0 && pLine->c_str()[v - 1] == '\\';
}

bool CTextZoneColor::HasContinuationEnding(int nLine) {
    CStringExColor* pLine = GetColorLine(nLine);
    return pLine && pLine->IsVBContinueEnding();
}

bool CTextZoneColor::FormsCommentDelimiter(char cBefore, char cAt) {
    auto is = [&](const char* pair) { return cBefore == pair[0] && cAt == pair[1]; };
    return (m_bSlashStarComment && (is("/*") || is("*/"))) ||
           (m_bPascalComment && (is("(*") || is("*)"))) ||
           ((m_bDashDashComment || m_bHtml) && is("--"));
}

void CTextZoneColor::DeleteSelection(int bUpdate) {
    if (TestSelection() && m_bSyntaxColor) InvalidateFrom(m_nSelStartLine, 0);
    CTextZone::DeleteSelection(bUpdate);
}

int CTextZoneColor::InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal) {
    // A selection is invalidated by DeleteSelection, which the insertion
    // calls first.
    if (!TestSelection() && m_bSyntaxColor) InvalidateFrom(m_nSelStartLine, 0);
    return CTextZone::InsertText(pszText, bSelect, bScroll, bHorizontal);
}

int CTextZoneColor::ReplaceAllInPlace(const char* pszFind, const char* pszReplace,
                                      int bMatchCase) {
    // What the first deletion's wrapper does; the lines below are repainted
    // by the replacement itself. Before it, so that no paint meanwhile takes
    // a stale state. Should the loop run instead, it resets the same line.
    if (m_bSyntaxColor) ResetLastLines(m_nSelStartLine);
    return CTextZone::ReplaceAllInPlace(pszFind, pszReplace, bMatchCase);
}

int CTextZoneColor::SetText(const char* pszText) {
    ResetLastLines(0);
    return CTextZone::SetText(pszText);
}

void CTextZoneColor::HandleLButtonDown(UINT nFlags, POINT* pt) {
    if (m_nWordCompletion && m_bSyntaxColor) ResetWordCompletion();
    CTextZone::HandleLButtonDown(nFlags, pt);
    if (m_nParmCompletionMode) HandleLButtonDownForCompletion(nFlags, pt);
}

void CTextZoneColor::HandleKillFocus(CWnd* pNewWnd) {
    CloseParmTooltip(1);
    CTextZone::HandleKillFocus(pNewWnd);
}

void CTextZoneColor::PerformUndoing(CUndoOperation* pOperation) {
    // Kinds 6, 7 and 8 restore lines in place; the others replay through the
    // wrapped edits, which invalidate for themselves.
    int nFirst = TZ_TO_END;
    if (pOperation && m_bSyntaxColor) {
        // With paragraphs in stream mode the units hold offsets, not lines.
        const bool bOffsets = (m_dwStyle & ZS_PARAGRAPH) && m_nSelectionMode == TZ_SEL_STREAM;
        auto look = [&](const CUndoUnit* pUnit) {
            if (pUnit && (pUnit->m_wType == 6 || pUnit->m_wType == 7 ||
                       pUnit->m_wType == TZ_UNIT_LINE_IMAGES))
                nFirst = std::min({nFirst, m_nSelStartLine, bOffsets ? 0 : pUnit->m_nFirstLine});
        };
        look(pOperation->m_pFirst.get());
        look(pOperation->m_pSecond.get());
        for (const auto& pUnit : pOperation->m_group)
            look(pUnit.get());
    }
    CTextZone::PerformUndoing(pOperation);
    if (nFirst != TZ_TO_END) {
        nFirst = std::min(nFirst, m_nSelStartLine);
        ResetLastLines(nFirst);
        RedrawLines(nFirst, TZ_TO_END, 0);
    }
}

void CTextZoneColor::HandleChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const char c = static_cast<char>(nChar);
    const int nLine = m_nSelStartLine;
    // -1: not looked at; else whether the line ended in " _" before.
    int nHadContinuation = -1;

    if (nChar >= 32 && nChar <= 255 && !m_bReadOnly) {
        if (IsBoxCaret()) {
            // The byte lands on every line of the tall caret.
            InvalidateFrom(m_nSelStartLine, 0);
        } else {
            if (m_bSyntaxColor && m_bQuoteComment) nHadContinuation = HasContinuationEnding(nLine);
            char p = 0;
            char n = 0;
            BytesAroundCaret(&p, &n);
            bool bInvalidate = FormsCommentDelimiter(p, n);  // the byte breaks a delimiter
            if (!m_bSql && !m_bClientLanguage) {
                // Typing behind a final backslash ends the line differently.
                CStringEx* pLine = GetLine(nLine);
                if (pLine && pLine->GetLength() > pLine->IsEnded() &&
                    m_nSelStartChar >= pLine->GetVisibleLength() && EndsInBackslash(nLine))
                    bInvalidate = true;
            }
            // The byte can make a delimiter with its neighbours.
            const bool dash = m_bDashDashComment || m_bHtml;
            bInvalidate =
                bInvalidate || c == '"' || c == '\'' || c == '\\' || (c == '~' && m_bTildeEscape) ||
                (m_bSlashStarComment && ((c == '/' && (p == '*' || n == '*')) ||
                                         ((c == '*' || c == '/') && (p == '/' || n == '/')))) ||
                (m_bPascalComment &&
                 (c == '{' || c == '}' || (c == '*' && (n == ')' || p == '(')) ||
                  (c == ')' && p == '*') || (c == '(' && n == '*'))) ||
                (c == '-' && (p == '-' || n == '-') && dash) ||
                (m_bQuoteComment &&
                 ((c == '_' && (p == ' ' || p == '\t')) || (c == ' ' && n == '_'))) ||
                (m_bSql && (c == '[' || c == ']')) || (m_bHtml && (c == '<' || c == '>'));
            if (bInvalidate) InvalidateFrom(m_nSelStartLine, 0);
        }
    }

    const bool bCtrl = IsDown(VK_CONTROL);
    if (m_nWordCompletion && m_bSyntaxColor) {
        if (c != ' ' || !bCtrl) {
            ResetWordCompletion();
        } else if ((IsDown(VK_LCONTROL) && m_nCompletionMode != 0) ||
                   (IsDown(VK_RCONTROL) && m_nCompletionMode == 0)) {
            // The other Ctrl key asks for the other kind of candidates.
            ResetWordCompletion();
        }
    }

    // Ctrl+Space is the completion key: it never types a blank.
    if (!(IsDown(VK_SPACE) && bCtrl)) CTextZone::HandleChar(nChar, nRepCnt, nFlags);

    if (m_bQuoteComment && nHadContinuation >= 0 &&
        nHadContinuation != static_cast<int>(HasContinuationEnding(nLine)))
        InvalidateFrom(m_nSelStartLine, 1);
    if (m_nParmCompletionMode) HandleCharForCompletion(nChar, nRepCnt, nFlags);
}
