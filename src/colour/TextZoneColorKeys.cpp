// Keys of a coloured zone: what Enter, Tab, Backspace and Delete can do to
// the delimiters around the caret decides how far the line states are
// dropped, and Ctrl+Space is the word completion key.
#include "colour/TextZoneColor.h"
#include "host/MessageBeep.h"
#include "platform/Messages.h"
#include "platform/Platform.h"

namespace {

bool IsDown(int nVirtKey) {
    return (GetKeyState(nVirtKey) & 0x8000) != 0;
}

}  // namespace

void CTextZoneColor::HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if ((nChar == VK_TAB || nChar == VK_RETURN) && m_lMaxLength > 0 &&
        m_nCurrentLength >= m_lMaxLength) {
        VESKMessageBeep(0);
        return;
    }

    const bool bWatch = !TestSelection() && !m_bReadOnly && m_bSyntaxColor;
    // Whether a removed byte can have been part of a delimiter, or have
    // let one go.
    auto isDelimiterByte = [&](char b) {
        return b == '"' || b == '\'' || b == '*' || b == '/' || b == '\\' ||
               (b == '-' && (m_bDashDashComment || m_bHtml)) || (b == '~' && m_bTildeEscape) ||
               ((b == '[' || b == ']') && m_bSql) ||
               ((b == '(' || b == ')' || b == '{' || b == '}') && m_bPascalComment) ||
               ((b == '<' || b == '>') && m_bHtml);
    };
    const bool bCFamily = !m_bSql && !m_bClientLanguage;
    bool bHadBackslash = false;
    bool bHadContinuation = false;
    const int nWatchedLine = m_nSelStartLine;
    if (bWatch) {
        const int nLine = nWatchedLine;
        if (bCFamily) bHadBackslash = EndsInBackslash(nLine);
        if (m_bQuoteComment) bHadContinuation = HasContinuationEnding(nLine);
        CStringEx* pLine = GetLine(nLine);
        const int length = pLine ? pLine->GetLength() - pLine->IsEnded() : 0;
        char p = 0;
        char n = 0;
        BytesAroundCaret(&p, &n);
        switch (nChar) {
            case VK_RETURN:
                ResetLastLines(nLine + 1);
                break;
            case VK_TAB:
                // Here "/*" counts whatever the language.
                if ((p == '/' && n == '*') || (p == '*' && n == '/') || FormsCommentDelimiter(p, n))
                    InvalidateFrom(nLine, 0);
                break;
            case VK_BACK:
                if (m_nSelStartChar == 0 || m_nSelStartChar > length)
                    InvalidateFrom(nLine - 1, 0);  // joins the line with the one before
                else if (isDelimiterByte(p))
                    InvalidateFrom(nLine, 0);
                break;
            case VK_DELETE:
                if (m_nSelStartChar >= length || isDelimiterByte(n) || n == 13 || n == 0)
                    InvalidateFrom(nLine, 0);
                break;
            default:
                break;
        }
    }
    if ((nChar == VK_DELETE || nChar == VK_BACK) && IsBoxCaret() && !m_bReadOnly && m_bSyntaxColor)
        InvalidateFrom(m_nSelStartLine, 0);

    CTextZone::HandleKeyDown(nChar, nRepCnt, nFlags);

    if (bWatch) {
        // A line that now ends differently carries its state on differently.
        // The line is the one the caret was on: after Enter the one before
        // the caret, after an edit the caret's own; a key that only moved
        // the caret must not look at another line's ending.
        const int nLine = nWatchedLine;
        if ((bCFamily && bHadBackslash != EndsInBackslash(nLine)) ||
            (m_bQuoteComment && bHadContinuation != HasContinuationEnding(nLine))) {
            ResetLastLines(nLine);
            RedrawLines(nLine, TZ_TO_END, 1);
        }
    }
    if (nChar == VK_DELETE || nChar == VK_BACK) {
        // The bytes that came together may form a delimiter.
        char p = 0;
        char n = 0;
        BytesAroundCaret(&p, &n);
        if (FormsCommentDelimiter(p, n) ||
            (m_bQuoteComment &&
             (p == '_' || n == '_' || p == ' ' || p == '\t' || n == ' ' || n == '\t')))
            InvalidateFrom(m_nSelStartLine, 1);
    }

    if (m_nWordCompletion && m_bSyntaxColor) {
        if (nChar == VK_SHIFT || nChar == VK_CONTROL || nChar == VK_MENU) {
            // The modifiers alone keep a completion cycle going.
        } else if (nChar == VK_SPACE && IsDown(VK_CONTROL)) {
            const int nMode = IsDown(VK_RCONTROL) || IsDown(VK_MENU) ? 1 : 0;
            if (nMode != m_nCompletionMode) ResetWordCompletion();
            if (!m_bReadOnly && !TestSelection()) CompleteWord(nMode);
        } else {
            ResetWordCompletion();
        }
    }
    if (m_nParmCompletionMode) HandleKeyDownForCompletion(nChar, nRepCnt, nFlags);
}
