// The two roads of every bulk change of the text: InsertText replaces the
// selection by a text, DeleteSelection removes it. The callers set the
// modified flag and open the undo frame; these only register their units.
#include <algorithm>
#include <cstring>

#include "host/MessageBeep.h"
#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

using textbytes::IsBlank;
using textbytes::kLineEnd;
using textbytes::PadText;
using textbytes::TextLength;

// CR, LF and CR LF are one line end each; LF CR is two.
int CountLineEnds(const char* p) {
    int count = 0;
    while (*p) {
        if (*p == '\r') {
            ++count;
            if (p[1] == '\n') ++p;
        } else if (*p == '\n') {
            ++count;
        }
        ++p;
    }
    return count;
}

}  // namespace

int CTextZone::InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal) {
    const bool box = m_nSelectionMode == TZ_SEL_BOX;
    const bool stream = m_nSelectionMode == TZ_SEL_STREAM;
    const bool paragraphs = (m_dwStyle & ZS_PARAGRAPH) != 0;

    int hadSelection = TestSelection();
    int oldFirstChar = m_nSelStartChar;
    DeleteSelection(0);

    // Where the selection starts, for bSelect. With paragraphs the insertion
    // may rewrap the lines, so only a text offset stays true.
    int savedLine = m_nSelStartLine;
    int savedChar = m_nSelStartChar;
    LONG savedOffset = 0;
    int column = 0;
    if (box)
        column = hadSelection ? oldFirstChar : ComputeBlockUnit(m_nSelStartLine, m_nSelStartChar);
    if (bSelect) {
        if (stream && paragraphs)
            GetSelection(&savedOffset, nullptr, nullptr, nullptr, 1);
        else if (box)
            savedChar = column;
    }

    if (!pszText || !*pszText) {
        RebuildCurrentLength();
        if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
        return 1;
    }

    if (box) {
        // The undo unit covers the lines the text will reach, at the column.
        int endLine = m_nSelEndLine;
        int startChar = m_nSelStartChar;
        size_t length = std::strlen(pszText);
        char lastByte = pszText[length - 1];
        m_nSelEndLine = m_nSelStartLine + CountLineEnds(pszText) -
                        (lastByte == '\r' || lastByte == '\n' ? 1 : 0);
        m_nSelStartChar = m_nSelEndChar = column;
        // Behind an unended last line the text goes on new lines and that
        // line gets its end: the copy for undo takes it in too.
        const int startLine = m_nSelStartLine;
        CStringEx* pAbove = startLine > 0 && !GetLine(startLine) ? GetLine(startLine - 1) : nullptr;
        if (pAbove && !pAbove->IsEnded()) --m_nSelStartLine;
        RegisterUnit(TZ_UNIT_LINES_CARET);
        m_nSelStartLine = startLine;
        m_nSelStartChar = m_nSelEndChar = startChar;
        m_nSelEndLine = endLine;
    } else if (UndoByOffsets()) {
        GetSelection(&m_lSelRootOffset, nullptr, nullptr, nullptr, 1);
    } else {
        m_nSelRootLine = m_nSelStartLine;
        m_nSelRootChar = m_nSelStartChar;
    }
    HideCaret();

    int result = 1;
    int first = m_nSelStartLine;
    int last = m_nSelStartLine;

    if (stream) {
        int L = m_nSelStartLine;
        first = L;
        last = TZ_TO_END;
        const char* p = pszText;
        bool created = false;
        CStringEx* pLine = nullptr;
        CStringEx* pTail = nullptr;
        // A load: the new lines take their bytes from the zone's text memory.
        bool loading = false;
        if (GetLastLineIndex() >= TZ_MAX_LINES) {
            result = 0;
        } else {
            // Into an empty store the lines come in order: size it for them at
            // once instead of re-laying every line at each step of growth.
            if (m_nLineCount == 0 && !paragraphs) {
                size_t length = 0;
                const long long lines =
                    std::min<long long>(CountTextLines(pszText, &length) + 1, TZ_MAX_LINES + 1LL);
                ReserveLines(lines);
                loading = true;
                m_linePool.ExpectLines(static_cast<size_t>(lines));
                // Each line's bytes, its 13 for the source's line end and a 0.
                m_linePool.ExpectText(length + 2 * static_cast<size_t>(lines));
            }
            pLine = GetLine(L);
            if (!pLine) {
                // On the place behind an unended last line: end that line first,
                // so that the text starts on a line of its own.
                if (!paragraphs && L > 0) {
                    CStringEx* pPrev = GetLine(L - 1);
                    if (pPrev && !pPrev->IsEnded()) {
                        m_nSelRootLine = L - 1;
                        m_nSelRootChar = pPrev->GetLength();
                        pPrev->EnsureEnded();
                    }
                }
                pLine = InsertLine(L);
                created = true;
            }
            if (pLine) pTail = InsertLine(L + 1);
            if (!pTail) result = 0;
        }

        if (pTail) {
            // The tail keeps what stood right of the caret until the text is in.
            int tailLength = pTail->GetLength();
            // A free caret may stand beyond the text: blanks fill the gap, in
            // front of the line end, and undo takes them out with the text.
            // They never take the line past its limit: a redo puts the
            // same blanks back as text, and would have to cut that line.
            const int caretChar =
                std::min(m_nSelStartChar, std::max(TextLength(*pLine), TZ_MAX_LINE_LENGTH - 1));
            if (m_nSelRootLine == L && !UndoByOffsets())
                m_nSelRootChar = std::min(m_nSelRootChar, TextLength(*pLine));
            PadText(*pLine, caretChar);
            *pTail += pLine->subString(caretChar);
            pLine->keepLeft(caretChar);

            bool firstPass = true;
            // The first piece goes into the caret's own line and needs no new
            // one: the tail alone must not stop it, or the line would stay cut.
            while (*p && (firstPass || GetLastLineIndex() < TZ_MAX_LINES)) {
                CStringEx* pTarget;
                int start;
                if (firstPass) {
                    pTarget = GetLine(L);
                    start = pTarget->GetLength();
                } else {
                    pTarget = InsertLine(L);
                    if (!pTarget) {
                        result = 0;
                        break;
                    }
                    start = 0;
                }

                int srcLen = static_cast<int>(std::strcspn(p, "\r\n"));
                int n = srcLen;
                // A replay puts back what was there, uncut: an insertion in
                // the middle of a full line can leave a line longer than the
                // limit an insertion cuts its own text at.
                if (!m_bUndoing && srcLen >= TZ_MAX_LINE_LENGTH - start)
                    n = std::max(0, TZ_MAX_LINE_LENGTH - 1 - start);
                // A source line too long for a line is ended here and goes on below.
                if (start == 0 && pTarget->IsEmpty()) {
                    // A new line: its bytes and its end in one allocation.
                    const int ended = p[n] != 0 ? 1 : 0;
                    if (loading) {
                        SetLoadedLine(pTarget, p, n, ended != 0);
                    } else {
                        pTarget->assign(p, n + ended);
                        if (ended) pTarget->replaceAt(n, kLineEnd);
                    }
                } else {
                    *pTarget += VESK::String(p, n);
                    if (p[n] != 0) *pTarget += kLineEnd;
                }
                if (m_bTabConvert) {
                    // Assigning a fresh line drops the bookmarks and block flags too.
                    CStringEx spaced;
                    GetSpaceEquivalentLine(&spaced, pTarget);
                    *pTarget = spaced;
                }
                p += (m_dwStyle & ZS_CUTLONGLINES) ? srcLen : n;
                if (*p == '\r') ++p;
                if (*p == '\n') ++p;

                if (!*p) {
                    if (pTarget->IsEnded()) {
                        // Nothing was right of the caret and nothing follows: the
                        // caret stays on the place behind the text, with no line.
                        // In a wrapped paragraph the caret can stand at the end of
                        // a line that others follow; the empty tail holds nothing
                        // of the text there either, and would show as a stray row.
                        if (pTail->GetLength() == tailLength && (!GetLine(L + 2) || paragraphs))
                            RemoveLines(L + 1, 1);
                        m_nSelStartLine = m_nSelEndLine = L + 1;
                        m_nSelStartChar = m_nSelEndChar = 0;
                    } else {
                        m_nSelStartLine = m_nSelEndLine = L;
                        m_nSelStartChar = m_nSelEndChar = pTarget->GetLength();
                        *pTarget += *pTail;
                        RemoveLines(L + 1, 1);
                    }
                    last = TZ_TO_END;
                }

                int runFrom = L;
                int prevLength = -1;
                if (L > 0 && paragraphs) {
                    CStringEx* pPrev = GetLine(L - 1);
                    if (pPrev && !pPrev->IsEnded()) {
                        if (firstPass && created) {
                            pPrev->EnsureEnded();
                        } else {
                            // Words of this line may flow back into the one above.
                            prevLength = pPrev->GetLength();
                            runFrom = L - 1;
                        }
                    }
                }
                int done = ComputeParagraph(runFrom, nullptr);
                if (runFrom < L) {
                    CStringEx* pPrev = GetLine(L - 1);
                    if (pPrev && pPrev->GetLength() != prevLength)
                        first = std::min(first, done - 1);
                }
                // The run ends on the line that holds this piece's end, which
                // is above L when the piece flowed up into the line before.
                // A run that cannot wrap (width 0) stops where it began, which
                // may be the line above: the next piece still goes below L.
                L = (paragraphs && m_nMaxWidth >= 1 ? done : std::max(done, L)) + 1;
                firstPass = false;
            }
            if (*p) result = 0;
        }
    } else if (box) {
        first = m_nSelStartLine;
        result = BoxInsertText(pszText, column, hadSelection, &last);
    }
    // Line mode inserts nothing.

    RebuildCurrentLength();
    UpdateVScrollBar();
    UpdateHScrollBar(first, last);
    if (bSelect) {
        if (stream && paragraphs) {
            LONG endOffset = 0;
            GetSelection(nullptr, &endOffset, nullptr, nullptr, 1);
            SetSelection(savedOffset, endOffset, 0, 0, 1, 0);
        } else {
            m_nSelStartLine = savedLine;
            m_nSelStartChar = savedChar;
            if (box) m_nSelEndChar = ComputeBlockUnit(m_nSelEndLine, m_nSelEndChar);
        }
    }
    if (stream) {
        RegisterUnit(TZ_UNIT_INSERTED);
    } else if (!box) {
        // Line mode inserted nothing.
    } else if (m_pCurrentOperation) {
        // The unit registered before the change learns where the text ended.
        CUndoOperation& op = *m_pCurrentOperation;
        CUndoUnit* pUnit = nullptr;
        if (op.IsGroup())
            pUnit = op.m_group.empty() ? nullptr : op.m_group.back().get();
        else
            pUnit = op.m_pSecond ? op.m_pSecond.get() : op.m_pFirst.get();
        if (pUnit) {
            pUnit->m_nLastLine = m_nSelEndLine;
            pUnit->m_nLastChar = ComputeBlockUnit(m_nSelEndLine, m_nSelEndChar);
        }
    }
    RedrawLines(first, last, 1);
    DrawCaret(bScroll, bHorizontal);
    return result;
}

void CTextZone::DeleteSelection(int bUpdate) {
    m_nGoalX = -1;
    if (!TestSelection()) return;
    const bool box = m_nSelectionMode == TZ_SEL_BOX;
    if (box && m_nSelStartChar == m_nSelEndChar) return;
    // A start behind a line's end pads the line up to it: recorded as typed
    // blanks, so that undo takes them out again.
    CStringEx* pStart = m_nSelectionMode == TZ_SEL_STREAM ? GetLine(m_nSelStartLine) : nullptr;
    // A history kept by text offsets has no place for such blanks, so there
    // the deletion starts where the line's text ends.
    if (pStart && m_nSelStartChar > TextLength(*pStart) && UndoByOffsets())
        m_nSelStartChar = TextLength(*pStart);
    // Nor do the blanks take the line past its limit.
    if (pStart && m_nSelStartChar > TZ_MAX_LINE_LENGTH - 1)
        m_nSelStartChar = std::max(TextLength(*pStart), TZ_MAX_LINE_LENGTH - 1);
    if (pStart && m_nSelStartChar > TextLength(*pStart) && !UndoByOffsets()) {
        const int endLine = m_nSelEndLine, endChar = m_nSelEndChar;
        m_nSelRootLine = m_nSelEndLine = m_nSelStartLine;
        m_nSelRootChar = TextLength(*pStart);
        m_nSelEndChar = m_nSelStartChar;
        PadText(*pStart, m_nSelStartChar);
        RegisterUnit(TZ_UNIT_TYPED);
        m_nSelEndLine = endLine;
        m_nSelEndChar = endChar;
    }
    // Line mode removes nothing, so there is nothing to record either.
    if (m_nSelectionMode != TZ_SEL_LINES) RegisterUnit(box ? TZ_UNIT_LINES : TZ_UNIT_DELETED_TEXT);
    HideCaret();

    int first = 0;
    int last = 0;
    if (m_nSelectionMode == TZ_SEL_STREAM) {
        const bool paragraphs = (m_dwStyle & ZS_PARAGRAPH) != 0;
        int startLine = m_nSelStartLine;
        int startChar = m_nSelStartChar;
        int endLine = m_nSelEndLine;
        int endChar = m_nSelEndChar;
        first = last = startLine;

        if (!(m_dwStyle & ZS_FREECARET)) {
            // Behind the terminator is the next line's start.
            CStringEx* pEnd = GetLine(endLine);
            if (endChar == (pEnd ? pEnd->GetLength() : 0)) ++endLine, endChar = 0;
        }
        if (endLine - startLine > 1) {
            RemoveLines(startLine + 1, endLine - startLine - 1);
            endLine = startLine + 1;
            last = TZ_TO_END;
        }

        // With paragraphs the run starts on the line above if words can flow back into it.
        int runFrom = startLine;
        int prevLength = -1;
        if (paragraphs && startLine > 0) {
            CStringEx* pPrev = GetLine(startLine - 1);
            if (pPrev && !pPrev->IsEnded()) {
                prevLength = pPrev->GetLength();
                runFrom = startLine - 1;
            }
        }
        auto rewrap = [&](int* pbChanged) {
            int done = ComputeParagraph(runFrom, pbChanged);
            if (runFrom < startLine) {
                CStringEx* pPrev = GetLine(startLine - 1);
                if (pPrev && pPrev->GetLength() != prevLength)
                    first = std::min(first, startLine - 1);
            }
            return done;
        };

        if (endLine == startLine) {
            CStringEx* pLine = GetLine(startLine);
            if (pLine) {
                PadText(*pLine, endChar);
                int ended = pLine->IsEnded();
                pLine->RemoveChar(startChar, endChar - startChar, 0);
                if (ended) pLine->EnsureEnded();
            }
            int changed = 0;
            int done = rewrap(&changed);
            last = changed ? TZ_TO_END : std::max(done, last);
        } else {
            CStringEx* pFirst = GetLine(startLine);
            CStringEx* pSecond = GetLine(startLine + 1);
            if (pFirst) {
                PadText(*pFirst, startChar);
                pFirst->keepLeft(startChar);
                if (pSecond) {
                    int cut = std::min(endChar, pSecond->GetLength() - pSecond->IsEnded());
                    *pFirst += pSecond->subString(std::max(cut, 0));
                }
                // The bookmarks go with the text: a join behind nothing but
                // blanks makes the joined line the second line's.
                const char* p = pFirst->c_str();
                bool blankBefore = true;
                for (int i = 0; i < startChar && blankBefore; ++i)
                    blankBefore = IsBlank(p[i]);
                if (blankBefore) {
                    char* pszInfo = pSecond ? pSecond->GetSpecificInfo() : nullptr;
                    pFirst->SetSpecificInfo(pszInfo);
                    delete[] pszInfo;
                }
            }
            RemoveLines(startLine + 1, 1);
            rewrap(nullptr);
            last = TZ_TO_END;
        }

        // The paragraph run keeps the start in step with any rewrapping.
        SetSelection(m_nSelStartLine, m_nSelStartLine, m_nSelStartChar, m_nSelStartChar, 0, 0);
        // A recount, not a subtraction: the length counts a line end behind
        // an unended last line, which a deletion can make or take away.
        RebuildCurrentLength();
    } else if (box) {
        first = m_nSelStartLine;
        last = m_nSelEndLine;
        BoxDeleteSelection();
    }
    // Line mode removes nothing.

    RedrawLines(first, last, bUpdate);
    DrawCaret(1, 1);
}

void CTextZone::OnTextTooLong() {
    VESKMessageBeep(0);
}
