// Typed characters, and the steps that typing shares with Enter and Tab:
// where the undo range starts, the line made behind the text, and the
// rewrap of a paragraph after the change.
#include <algorithm>
#include <string>

#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

using textbytes::PadText;
using textbytes::TextLength;

void CTextZone::KeySetTypingRoot() {
    // Wrapped lines may move under the typing; only an offset stays true.
    if (UndoByOffsets()) {
        GetSelection(&m_lSelRootOffset, nullptr, nullptr, nullptr, 1);
    } else {
        // Behind a line's end the range to undo starts at its end, so that
        // undo takes out any padding along with what was typed.
        CStringEx* pLine = GetLine(m_nSelStartLine);
        m_nSelRootLine = m_nSelStartLine;
        m_nSelRootChar = std::min(m_nSelStartChar, pLine ? TextLength(*pLine) : 0);
    }
}

CStringEx* CTextZone::KeyLineForTyping(int* pbCreated) {
    *pbCreated = 0;
    const int line = m_nSelStartLine;
    CStringEx* pLine = GetLine(line);
    if (pLine) return pLine;
    // Behind an unended last line: that line is ended first, so the new text
    // starts a line of its own. Paragraphs do this in their rewrap.
    if (line > 0 && !(m_dwStyle & ZS_PARAGRAPH)) {
        CStringEx* pPrev = GetLine(line - 1);
        if (pPrev && !pPrev->IsEnded()) {
            m_nSelRootLine = line - 1;
            m_nSelRootChar = pPrev->GetLength();
            pPrev->EnsureEnded();
            if (m_lMaxLength > 0) ++m_nCurrentLength;
        }
    }
    pLine = InsertLine(line);
    if (pLine) *pbCreated = 1;
    return pLine;
}

void CTextZone::KeyRewrapTyped(int nLine, int bCreated, int* pnFirst, int* pnLast) {
    *pnFirst = *pnLast = nLine;
    int runFrom = nLine;
    int prevLength = -1;
    if ((m_dwStyle & ZS_PARAGRAPH) && nLine > 0) {
        CStringEx* pPrev = GetLine(nLine - 1);
        if (pPrev && !pPrev->IsEnded()) {
            if (bCreated) {
                // A line made behind a wrapped last line starts a paragraph.
                pPrev->EnsureEnded();
                if (m_lMaxLength > 0) ++m_nCurrentLength;
            } else {
                // What was typed may let a word flow back into the line above.
                prevLength = pPrev->GetLength();
                runFrom = nLine - 1;
            }
        }
    }
    int changed = 0;
    const int done = ComputeParagraph(runFrom, &changed);
    if (runFrom < nLine) {
        CStringEx* pPrev = GetLine(runFrom);
        if (pPrev && pPrev->GetLength() != prevLength) *pnFirst = runFrom;
    }
    *pnLast = changed ? TZ_TO_END : std::max(done, nLine);
}

void CTextZone::HandleChar(UINT nChar, UINT, UINT) {
    // Control bytes are no typing, but a replay of the history puts back a
    // deleted one (a host's text may hold any byte but 0 and line ends).
    if ((nChar < 32 && !m_bUndoing) || nChar == 0 || nChar > 255 || m_bReadOnly) return;
    const char c = static_cast<char>(nChar);
    SetModify(1);
    StartRegister(TZ_EDIT_TYPING);

    if (IsBoxCaret()) {
        // A tall caret types the character on each of its lines.
        const int startLine = m_nSelStartLine;
        const int lines = m_nSelEndLine - startLine + 1;
        if (m_lMaxLength > 0 && m_nCurrentLength + lines > m_lMaxLength) {
            OnTextTooLong();
            EndRegister();
            if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
            return;
        }
        HideCaret();
        std::string text;
        for (int i = 0; i < lines; ++i) {
            text += c;
            text += '\r';
        }
        const int column = m_nSelStartChar;
        const int rootAtEnd = m_nSelRootLine == m_nSelEndLine;
        InsertText(text.c_str(), 0, 1, 1);
        m_nSelStartLine = startLine;
        m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = column + 1;
        m_nSelRootLine = rootAtEnd ? m_nSelEndLine : startLine;
        EndRegister();
        RedrawLines(startLine, m_nSelEndLine, 1);
        DrawCaret(1, 1);
        return;
    }

    DeleteSelection(0);
    // A free caret behind a line's end pads the line: the blanks count
    // against the maximum as much as the typed byte does.
    CStringEx* pCaretLine = GetLine(m_nSelStartLine);
    const int padding = std::max(0, m_nSelStartChar - (pCaretLine ? TextLength(*pCaretLine) : 0));
    // A replay of the history puts back what was there, limits or not.
    if (!m_bUndoing && (GetLastLineIndex() >= TZ_MAX_LINES ||
                        (m_lMaxLength > 0 && m_nCurrentLength + padding >= m_lMaxLength))) {
        OnTextTooLong();
        EndRegister();
        if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
        return;
    }
    // A full line takes nothing more, silently; asked before a line behind
    // the text is made or the last line ended, which no undo would take back.
    if (!m_bUndoing && std::max(pCaretLine ? pCaretLine->GetLength() : 0,
                                m_nSelStartChar + (pCaretLine ? pCaretLine->IsEnded() : 0)) >=
                           GetLineLimit()) {
        EndRegister();
        return;
    }
    HideCaret();
    KeySetTypingRoot();
    int created = 0;
    CStringEx* pLine = KeyLineForTyping(&created);
    const int line = m_nSelStartLine;
    // Undo takes the padding out together with the byte.
    if (pLine && m_nSelRootLine == line && !UndoByOffsets())
        m_nSelRootChar = std::min(m_nSelRootChar, TextLength(*pLine));
    int first = line;
    int last = line;
    if (pLine) {
        const int ch = m_nSelStartChar;
        const int before = pLine->GetLength();
        // A full line takes nothing more, silently.
        if (m_bUndoing || std::max(before, ch + pLine->IsEnded()) < GetLineLimit()) {
            PadText(*pLine, ch);
            pLine->InsertChar(ch, c);
            if (m_lMaxLength > 0) m_nCurrentLength += pLine->GetLength() - before;
            // In line mode the old selection's end is still elsewhere.
            m_nSelEndLine = line;
            m_nSelStartChar = m_nSelEndChar = ch + 1;
            KeyRewrapTyped(line, created, &first, &last);
            RegisterUnit(TZ_UNIT_TYPED);
        }
    }
    EndRegister();
    // A recount: a new unended last line adds the line end the length counts.
    RebuildCurrentLength();
    UpdateVScrollBar();
    UpdateHScrollBar(first, last);
    RedrawLines(first, last, 1);
    DrawCaret(1, 1);
}
