// The editing keys: Backspace and Delete, Enter, and Tab with the indenting
// and outdenting of blocks of lines.
#include <algorithm>
#include <climits>
#include <string>

#include "host/MessageBeep.h"
#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

using textbytes::IsBlank;
using textbytes::kLineEnd;
using textbytes::OnlyBlanks;
using textbytes::PadText;
using textbytes::TextLength;

namespace {

void AddLength(CTextZone& zone, int nCount) {
    if (zone.m_lMaxLength > 0) zone.m_nCurrentLength += nCount;
}

// The limits hold for the user's edits only: a replay of the history puts
// back what was there, and must never silently leave a byte out.
bool LengthReached(const CTextZone& zone) {
    return !zone.m_bUndoing && zone.m_lMaxLength > 0 && zone.m_nCurrentLength >= zone.m_lMaxLength;
}

bool WouldPassLength(const CTextZone& zone, int nMore) {
    return !zone.m_bUndoing && zone.m_lMaxLength > 0 &&
           zone.m_nCurrentLength + nMore > zone.m_lMaxLength;
}

void UpdateWnd(CTextZone& zone) {
    if (zone.m_pWnd && zone.m_pWnd->GetSafeHwnd()) zone.m_pWnd->UpdateWindow();
}

// Joins line nUpper, whose terminator the caller has taken off, with the
// line below. The joined line is the object of the line with the text, so
// that its bookmarks and block state go with the text: behind a line of
// mere blanks that is the lower one. Returns the join index.
int JoinLines(CTextZone& zone, int nUpper) {
    CStringEx* pUpper = zone.GetLine(nUpper);
    CStringEx* pLower = zone.GetLine(nUpper + 1);
    if (!pUpper) return 0;
    const int join = pUpper->GetLength();
    if (!pLower) return join;
    VESK::String joined(*pUpper);
    joined += *pLower;
    if (OnlyBlanks(*pUpper, join)) {
        pLower->assign(joined.c_str(), joined.GetLength());
        zone.RemoveLines(nUpper, 1);
    } else {
        pUpper->assign(joined.c_str(), joined.GetLength());
        zone.RemoveLines(nUpper + 1, 1);
    }
    return join;
}

}  // namespace

void CTextZone::KeyBackDelete(int bBackspace) {
    if (m_bReadOnly) return;
    SetModify(1);
    m_nGoalX = -1;

    if (TestSelection()) {
        if (!IsBoxCaret()) {
            StartRegister(TZ_EDIT_DELETE_SELECTION);
            DeleteSelection(1);
            EndRegister();
            return;
        }
        // A tall caret deletes one column on all its lines and stays tall.
        if (bBackspace && m_nSelStartChar == 0) return;
        const int startLine = m_nSelStartLine;
        const int endLine = m_nSelEndLine;
        const int rootLine = m_nSelRootLine;
        if (bBackspace)
            --m_nSelStartChar;
        else
            ++m_nSelEndChar;
        const int column = m_nSelStartChar;
        StartRegister(bBackspace ? TZ_EDIT_BACKSPACE : TZ_EDIT_DELETE);
        DeleteSelection(1);
        EndRegister();
        m_nSelStartLine = startLine;
        m_nSelEndLine = endLine;
        m_nSelRootLine = rootLine;
        m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = column;
        RedrawLines(startLine, endLine, 1);
        return;
    }

    HideCaret();
    int line = m_nSelStartLine;
    int ch = m_nSelStartChar;
    if (line > TZ_MAX_LINES) {
        OnTextTooLong();
        return;
    }
    CStringEx* pLine = GetLine(line);

    // A closed block cannot be joined with its neighbour; the key is dropped
    // without a sound.
    if (bBackspace && ch == 0 && line > 0) {
        CStringEx* pPrev = GetLine(line - 1);
        if (pPrev && pPrev->m_dwBlockFlags) return;
    }
    if (!bBackspace && pLine) {
        const int raw = pLine->GetLength();
        const bool joins =
            ch == raw - 1 || (ch >= raw && pLine->IsEnded() && (m_dwStyle & ZS_FREECARET));
        CStringEx* pNext = GetLine(line + 1);
        if (joins && pNext && pNext->m_dwBlockFlags) return;
    }

    if (!pLine) {
        if (!bBackspace) {
            DrawCaret(1, 1);
            return;
        }
        if (ch > 0) {
            // Behind the text a caret beyond the end only moves back; a line
            // made for it would stand empty behind the last one, which may
            // not even be ended.
            m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = ch - 1;
            DrawCaret(1, 1);
            return;
        }
        pLine = InsertLine(line);
        if (!pLine) {
            DrawCaret(1, 1);
            return;
        }
    }

    const int linesBefore = GetLineCount();
    StartRegister(bBackspace ? TZ_EDIT_BACKSPACE : TZ_EDIT_DELETE);
    if (!bBackspace && (m_dwStyle & ZS_FREECARET) && pLine->IsEnded() && ch >= pLine->GetLength()) {
        // Delete behind an ended line pads it up to the caret first, and
        // the padding is recorded as typed text: undo puts the line end
        // back and then takes the blanks out.
        KeySetTypingRoot();
        PadText(*pLine, ch);
        RegisterUnit(TZ_UNIT_TYPED);
    }
    RegisterUnit(bBackspace ? TZ_UNIT_CHAR_BEFORE : TZ_UNIT_CHAR_AT);
    int first = line;
    int last = line;
    if (bBackspace) {
        if (ch > 0) {
            // A caret beyond the end only moves back.
            if (ch <= TextLength(*pLine)) pLine->RemoveChar(ch - 1, 1, 0);
            --ch;
            if (line == 0 && pLine->IsEmpty() && GetLineCount() == 1) RemoveLines(0, 1);
        } else if (line > 0) {
            // The last byte of the line above goes: its line end, or the
            // blank that ends a wrapped line.
            CStringEx* pPrev = GetLine(line - 1);
            if (pPrev && !pPrev->IsEmpty()) pPrev->discardRight(1);
            --line;
            ch = JoinLines(*this, line);
            first = line;
            last = TZ_TO_END;
        }
    } else {
        const int raw = pLine->GetLength();
        if (ch < raw && (*pLine)[ch] == kLineEnd) {
            pLine->discardRight(1);
            JoinLines(*this, line);
            last = TZ_TO_END;
        } else if (ch < raw) {
            pLine->RemoveChar(ch, 1, 0);
        } else if (m_dwStyle & ZS_FREECARET) {
            // Behind an unended line there is nothing to delete (an ended
            // one was padded up to the caret above).
        } else {
            // Behind a wrapped line the next line's first byte goes.
            CStringEx* pNext = GetLine(line + 1);
            if (pNext && !pNext->IsEmpty()) {
                pNext->RemoveChar(0, 1, 0);
                ++line;
                ch = 0;
                first = last = line;
            }
        }
        CStringEx* pFirst = GetLine(0);
        if (line == 0 && pFirst && pFirst->IsEmpty()) RemoveLines(0, 1);
    }
    m_nSelStartLine = m_nSelEndLine = m_nSelRootLine = line;
    m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = ch;

    // Words may flow back into the line above the caret if it is wrapped.
    int runFrom = first;
    int prevLength = -1;
    if (line > 0) {
        CStringEx* pPrev = GetLine(line - 1);
        if (pPrev && !pPrev->IsEnded() && line - 1 < runFrom) {
            runFrom = line - 1;
            prevLength = pPrev->GetLength();
        }
    }
    int changed = 0;
    int done = ComputeParagraph(runFrom, &changed);
    if (prevLength >= 0) {
        CStringEx* pPrev = GetLine(runFrom);
        if (pPrev && pPrev->GetLength() != prevLength) first = std::min(first, runFrom);
    }
    if (changed) last = TZ_TO_END;
    if (last != TZ_TO_END) last = std::max(last, done);
    EndRegister();
    RebuildCurrentLength();
    if (GetLineCount() != linesBefore) UpdateVScrollBar();
    RedrawLines(first, last, 1);
    DrawCaret(1, 1);
}

void CTextZone::KeyReturn() {
    if (m_bReadOnly) return;
    if (LengthReached(*this)) {
        OnTextTooLong();
        return;
    }
    SetModify(1);
    StartRegister(TZ_EDIT_TYPING);
    DeleteSelection(0);
    KeySetTypingRoot();
    HideCaret();
    const int startLine = m_nSelStartLine;
    int first = startLine;
    if (GetLastLineIndex() >= TZ_MAX_LINES) {
        OnTextTooLong();
        EndRegister();
        UpdateWnd(*this);
        DrawCaret(1, 1);
        return;
    }

    int created = 0;
    CStringEx* pLine = KeyLineForTyping(&created);
    const int line = m_nSelStartLine;
    const int ch = m_nSelStartChar;
    CStringEx* pNext = GetLine(line + 1);
    if (!pLine) {
        VESKMessageBeep(0);
    } else if (pNext && (pNext->m_dwBlockFlags & BF_HIDDEN)) {
        // The head of a closed block: its hidden lines cannot be split off.
        VESKMessageBeep(0);
    } else {
        // The line object stays with the text right of the caret when only
        // blanks stand before it, so its bookmark and block state go down
        // with that text.
        CStringEx* pUpper = pLine;
        CStringEx* pLower;
        if (!OnlyBlanks(*pLine, ch)) {
            pLower = InsertLine(line + 1);
        } else {
            pLower = pLine;
            pUpper = InsertLine(line);
            if (pUpper) {
                pUpper->assign(pLower->c_str(), pLower->GetLength());
                pLower->Empty();
            }
        }
        if (!pUpper || !pLower) {
            VESKMessageBeep(0);
        } else {
            AddLength(*this, 1);
            // The replay of an undo brings back a line end exactly as it was.
            int indent = 0;
            if ((m_dwStyle & ZS_AUTOINDENT) && !m_bUndoing) {
                while (indent < ch && IsBlank((*pUpper)[indent]))
                    ++indent;
                AddLength(*this, indent);
            }
            const int cut = std::min(ch, TextLength(*pUpper));
            VESK::String lower = pUpper->left(indent);
            lower += pUpper->subString(cut);
            pLower->assign(lower.c_str(), lower.GetLength());
            pUpper->keepLeft(cut);
            pUpper->EnsureEnded();
            m_nSelStartLine = m_nSelEndLine = line + 1;
            m_nSelStartChar = m_nSelEndChar = indent;

            if ((m_dwStyle & ZS_PARAGRAPH) && line > 0) {
                CStringEx* pPrev = GetLine(line - 1);
                if (pPrev && !pPrev->IsEnded()) {
                    if (created) {
                        pPrev->EnsureEnded();
                        AddLength(*this, 1);
                    } else {
                        const int length = pPrev->GetLength();
                        ComputeParagraph(line - 1, nullptr);
                        if (pPrev->GetLength() != length) first = line - 1;
                    }
                }
            }
            ComputeParagraph(m_nSelStartLine, nullptr);
            RedrawLines(first, TZ_TO_END, 1);
            RegisterUnit(TZ_UNIT_TYPED);
        }
    }
    EndRegister();
    UpdateVScrollBar();
    UpdateHScrollBar(first, startLine);
    DrawCaret(1, 1);
}

int CTextZone::KeyTabChars() {
    const int width = GetTabWidth();
    if (width < 0) return -width;
    return width / std::max(1, m_nCharWidth);
}

void CTextZone::KeyTab(int bShift) {
    if (m_bReadOnly) return;
    if (LengthReached(*this)) {
        OnTextTooLong();
        return;
    }
    SetModify(1);
    // May be 0; the paths that divide by it take a step of 1 then.
    const int T = KeyTabChars();
    const int step = std::max(1, T);
    int first = m_nSelStartLine;
    int last = m_nSelEndLine;

    if (IsBoxCaret()) {
        const int lines = m_nSelEndLine - m_nSelStartLine + 1;
        if (WouldPassLength(*this, lines)) {
            OnTextTooLong();
        } else {
            StartRegister(TZ_EDIT_TYPING);
            HideCaret();
            std::string text;
            for (int i = 0; i < lines; ++i)
                text += "\t\r";
            const int startLine = m_nSelStartLine;
            const int column = m_nSelStartChar;
            InsertText(text.c_str(), 0, 1, 1);
            m_nSelStartLine = m_nSelRootLine = startLine;
            m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = (column / step + 1) * step;
            EndRegister();
            last = m_nSelEndLine;
        }
    } else if (TestSelection() && m_nSelStartLine < m_nSelEndLine && (m_dwStyle & ZS_AUTOINDENT)) {
        // Whole lines are shifted; columns need every byte equally wide.
        if (m_nSelectionMode != TZ_SEL_BOX && T != 0 && !IsFontProportionnal()) {
            m_nSelStartChar = 0;
            if (m_nSelEndChar != 0) {
                ++m_nSelEndLine;
                m_nSelEndChar = 0;
            }
            const int startLine = m_nSelStartLine;
            const int endLine = m_nSelEndLine;
            const int lines = endLine - startLine;
            const WORD mode = m_nSelectionMode;
            first = startLine;
            last = endLine;
            if (!bShift) {
                if (!WouldPassLength(*this, lines)) {
                    std::string piece =
                        GetTabConvert() ? std::string(static_cast<size_t>(T), ' ') : "\t";
                    piece += '\r';
                    std::string text;
                    for (int i = 0; i < lines; ++i)
                        text += piece;
                    m_nSelEndLine = m_nSelRootLine = startLine;
                    m_nSelEndChar = m_nSelRootChar = 0;
                    m_nSelectionMode = TZ_SEL_BOX;
                    StartRegister(TZ_EDIT_INDENT);
                    InsertText(text.c_str(), 0, 1, 1);
                    EndRegister();
                    m_nSelectionMode = mode;
                    const int lastInserted = m_nSelEndLine;
                    m_nSelStartLine = m_nSelRootLine = startLine;
                    m_nSelStartChar = m_nSelEndChar = m_nSelRootChar = 0;
                    m_nSelEndLine = lastInserted + 1;
                }
            } else {
                // As much as the least indented line has, at most one tab step.
                int count = T;
                for (int n = startLine; n < endLine && count > 0; ++n) {
                    CStringEx* pLine = GetLine(n);
                    CStringEx spaced;
                    if (pLine) GetSpaceEquivalentLine(&spaced, pLine);
                    int lead = 0;
                    while (lead < count && spaced[lead] == ' ')
                        ++lead;
                    count = std::min(count, lead);
                }
                if (count > 0) {
                    m_nSelEndLine = endLine - 1;
                    m_nSelEndChar = count;
                    m_nSelRootLine = startLine;
                    m_nSelRootChar = 0;
                    m_nSelectionMode = TZ_SEL_BOX;
                    StartRegister(TZ_EDIT_UNINDENT);
                    DeleteSelection(0);
                    EndRegister();
                    m_nSelectionMode = mode;
                    m_nSelEndLine = endLine;
                    m_nSelEndChar = 0;
                }
            }
            RedrawLines(first, last, 1);
        }
        RebuildCurrentLength();
    } else {
        StartRegister(TZ_EDIT_TYPING);
        DeleteSelection(0);
        KeySetTypingRoot();
        HideCaret();
        first = last = m_nSelStartLine;
        // One line more than a typed character may reach.
        if (GetLastLineIndex() >= TZ_MAX_LINES + 1) {
            OnTextTooLong();
            EndRegister();
            DrawCaret(1, 1);
            return;
        }
        int created = 0;
        CStringEx* pLine = KeyLineForTyping(&created);
        if (pLine) {
            const int line = m_nSelStartLine;
            int ch = m_nSelStartChar;
            const int before = pLine->GetLength();
            PadText(*pLine, ch);
            AddLength(*this, pLine->GetLength() - before);
            // Undo takes the padding out together with the tab. A root on
            // the line above (whose end typing behind the text added) stays.
            if (m_nSelRootLine == line && !UndoByOffsets())
                m_nSelRootChar = std::min(m_nSelRootChar, std::max(0, before - pLine->IsEnded()));
            const int limit = m_bUndoing ? INT_MAX : GetLineLimit();
            if (GetTabConvert()) {
                do {
                    if (pLine->GetLength() >= limit) break;
                    pLine->InsertChar(ch++, ' ');
                    AddLength(*this, 1);
                } while (ch % step != 0);
            } else if (pLine->GetLength() < limit) {
                pLine->InsertChar(ch++, '\t');
                AddLength(*this, 1);
            }
            // In line mode the old selection's end is still elsewhere.
            m_nSelEndLine = line;
            m_nSelStartChar = m_nSelEndChar = ch;
            KeyRewrapTyped(line, created, &first, &last);
            RegisterUnit(TZ_UNIT_TYPED);
        }
        EndRegister();
    }

    UpdateVScrollBar();
    UpdateHScrollBar(first, last);
    RedrawLines(first, last, 1);
    DrawCaret(1, 1);
}
