// The selection record: setting and reading it in its three forms (raw line
// and character, text offset, box), and reading out the selected text.
#include <algorithm>
#include <vector>

#include "textzone/TextZone.h"

namespace {

// Writes the line end that the two low bits of the flags ask for.
void PutLineEnd(char* pBuffer, LONG& count, WORD wFlags) {
    switch (wFlags & 3) {
        case TF_LF:
            pBuffer[count++] = '\n';
            break;
        case TF_CRLF:
            pBuffer[count++] = '\r';
            pBuffer[count++] = '\n';
            break;
        default:
            pBuffer[count++] = '\r';
            break;
    }
}

int TextLength(const CStringEx* pLine) {
    return pLine ? pLine->GetLength() - pLine->IsEnded() : 0;
}

}  // namespace

int CTextZone::TestSelection() {
    return m_nSelStartLine != m_nSelEndLine || m_nSelStartChar != m_nSelEndChar ? 1 : 0;
}

void CTextZone::SetSelection(LONG lStart, LONG lEnd, int nStartChar, int nEndChar, short wMode,
                             int bRedraw) {
    int oldFirst = m_nSelStartLine;
    int oldLast = m_nSelEndLine;
    int last = GetLastLineIndex();
    // The place behind the text: a line past the last one, or line 0 of an empty store.
    int after = GetLine(last) ? last + 1 : last;

    int startLine, endLine, startChar, endChar;
    if (wMode == TZ_SEL_STREAM) {
        m_nSelectionMode = TZ_SEL_STREAM;
        bool startFound = false;
        bool endFound = false;
        startLine = endLine = startChar = endChar = 0;
        // Negative offsets are the special places below and are never met on
        // the way; the end is looked for from the start's line on.
        LONG offset = 0;
        for (int nLine = 0; nLine <= last + 1 && !endFound; ++nLine) {
            CStringEx* pLine = GetLine(nLine);
            int v = TextLength(pLine);
            if (!startFound && lStart >= 0 && lStart <= offset + v) {
                startFound = true;
                startLine = nLine;
                startChar = lStart - offset;
            }
            if (startFound && lEnd >= 0 && lEnd <= offset + v) {
                endFound = true;
                endLine = nLine;
                endChar = std::max<LONG>(0, lEnd - offset);
            }
            offset += pLine ? pLine->GetLength() : 0;
        }
        if (!startFound || !endFound) {
            // -1 is the end of the text, anything below it the line behind the text.
            CStringEx* pLast = GetLine(last);
            int eotLine = last, eotChar = TextLength(pLast);
            if (pLast && pLast->IsEnded()) eotLine = last + 1, eotChar = 0;
            if (!endFound) {
                endLine = lEnd < -1 ? after : eotLine;
                endChar = lEnd < -1 ? 0 : eotChar;
            }
            if (!startFound) {
                startLine = lStart < -1 ? after : eotLine;
                startChar = lStart < -1 ? 0 : eotChar;
            }
        }
    } else {
        startLine = lStart;
        endLine = lEnd;
        startChar = nStartChar;
        endChar = nEndChar;
        // Columns of a box are kept as given; raw characters of a line that is
        // not there go to the line's start.
        if (startLine < 0 || startLine > last) {
            startLine = after;
            if (wMode != TZ_SEL_BOX) startChar = 0;
        }
        if (endLine < 0 || endLine > last) {
            endLine = after;
            if (wMode != TZ_SEL_BOX) endChar = 0;
        }
        if (wMode == TZ_SEL_BOX) {
            // Where box mode is refused (wrap, a proportional font) the same
            // places make a stream selection of byte indexes instead.
            const bool boxAllowed = !(m_dwStyle & ZS_PARAGRAPH) && !IsFontProportionnal();
            m_nSelectionMode = boxAllowed ? 2 : 1;
        }
    }
    // Far-out characters from a host stop at the longest possible line, so
    // that no later sum of places or pixels overflows.
    startChar = std::clamp(startChar, 0, TZ_MAX_PLACE);
    endChar = std::clamp(endChar, 0, TZ_MAX_PLACE);

    // The end is raised to the start, never swapped with it.
    if (endLine < startLine) endLine = startLine;
    if (endLine == startLine && endChar < startChar) endChar = startChar;
    m_nSelStartLine = startLine;
    m_nSelEndLine = endLine;
    m_nSelStartChar = startChar;
    m_nSelEndChar = endChar;
    m_nSelRootLine = startLine;
    m_nSelRootChar = startChar;

    if (bRedraw) {
        RedrawLines(std::min(oldFirst, startLine), std::max(oldLast, endLine), 1);
        DrawCaret(1, 1);
    }
}

short CTextZone::GetSelection(LONG* plStart, LONG* plEnd, int* pnStartChar, int* pnEndChar,
                              short wMode) {
    if (wMode == TZ_SEL_STREAM) {
        int last = GetLastLineIndex();
        bool startDone = false;
        LONG offset = 0;
        // Lines behind the text are all empty, so the walk need not go past them.
        int stop = std::min(m_nSelEndLine, last + 1);
        for (int nLine = 0; nLine <= stop; ++nLine) {
            CStringEx* pLine = GetLine(nLine);
            int v = TextLength(pLine);
            if (nLine == m_nSelStartLine) {
                startDone = true;
                if (plStart) *plStart = offset + std::min(m_nSelStartChar, v);
                if (!plEnd) return static_cast<short>(m_nSelectionMode);
            }
            if (nLine == m_nSelEndLine) {
                if (plEnd) *plEnd = offset + std::min(m_nSelEndChar, v);
                return static_cast<short>(m_nSelectionMode);
            }
            offset += pLine ? pLine->GetLength() : 0;
        }
        if (!startDone && plStart) *plStart = offset + std::min(m_nSelStartChar, 0);
        if (plEnd) *plEnd = offset + std::min(m_nSelEndChar, 0);
    } else if (wMode == TZ_SEL_BOX) {
        if (plStart) *plStart = m_nSelStartLine;
        if (plEnd) *plEnd = m_nSelEndLine;
        bool box = m_nSelectionMode == TZ_SEL_BOX;
        if (pnStartChar) *pnStartChar = box ? m_nSelStartChar : 0;
        if (pnEndChar) *pnEndChar = box ? m_nSelEndChar : TZ_TO_END;
    } else {
        if (plStart) *plStart = m_nSelStartLine;
        if (plEnd) *plEnd = m_nSelEndLine;
        if (pnStartChar) *pnStartChar = m_nSelStartChar;
        if (pnEndChar) *pnEndChar = m_nSelEndChar;
    }
    return static_cast<short>(m_nSelectionMode);
}

void CTextZone::GetSelectedText(char* pBuffer, LONG lSize, WORD wFlags) {
    if (!pBuffer || lSize < 1) return;
    LONG count = 0;
    if (TestSelection()) {
        bool stream = m_nSelectionMode == TZ_SEL_STREAM;
        bool box = m_nSelectionMode == TZ_SEL_BOX;
        // Whole lines stop short of the end line.
        int lastTaken = stream || box ? m_nSelEndLine : m_nSelEndLine - 1;
        bool paragraphs = (m_dwStyle & ZS_PARAGRAPH) != 0;
        for (int nLine = m_nSelStartLine; nLine <= lastTaken && count < lSize - 1; ++nLine) {
            const CStringEx* pLine = GetLine(nLine);
            CStringEx spaced;
            if (box) {
                if (pLine) GetSpaceEquivalentLine(&spaced, pLine);
                pLine = &spaced;
            }
            int n = TextLength(pLine);
            const char* p = pLine ? pLine->c_str() : "";
            int from = box || (stream && nLine == m_nSelStartLine) ? m_nSelStartChar : 0;
            int to = box || (stream && nLine == m_nSelEndLine) ? m_nSelEndChar : n;
            // Past the line's end come spaces, so a box keeps its full width.
            for (int i = from; i < to && count < lSize - 1; ++i)
                pBuffer[count++] = i >= 0 && i < n ? p[i] : ' ';
            bool ended = pLine && pLine->IsEnded();
            // A wrapped paragraph comes out as one line; box text ends every line.
            bool lineEnd = (ended && nLine < m_nSelEndLine) || (wFlags & TF_WRAPPED_ENDS) ||
                           (nLine < lastTaken && !(paragraphs && !box)) ||
                           (nLine == lastTaken && box);
            if (lineEnd && count < lSize - 2) PutLineEnd(pBuffer, count, wFlags);
        }
    }
    pBuffer[count] = 0;
}

LONG CTextZone::GetSelectedTextLength(WORD wFlags) {
    if (!TestSelection()) return 0;
    bool stream = m_nSelectionMode == TZ_SEL_STREAM;
    bool box = m_nSelectionMode == TZ_SEL_BOX;
    int lastTaken = stream || box ? m_nSelEndLine : m_nSelEndLine - 1;
    bool paragraphs = (m_dwStyle & ZS_PARAGRAPH) != 0;
    int endBytes = (wFlags & 3) == TF_CRLF ? 2 : 1;
    LONG total = 0;
    for (int nLine = m_nSelStartLine; nLine <= lastTaken; ++nLine) {
        const CStringEx* pLine = GetLine(nLine);
        CStringEx spaced;
        if (box) {
            if (pLine) GetSpaceEquivalentLine(&spaced, pLine);
            pLine = &spaced;
        }
        int n = TextLength(pLine);
        int from = box || (stream && nLine == m_nSelStartLine) ? m_nSelStartChar : 0;
        int to = box || (stream && nLine == m_nSelEndLine) ? m_nSelEndChar : n;
        if (to > from) total += to - from;
        bool ended = pLine && pLine->IsEnded();
        // In line mode the last line taken counts no line end, though the text
        // has one: this is a size for a buffer and its users add room.
        if ((ended && nLine < lastTaken) || (wFlags & TF_WRAPPED_ENDS) ||
            (nLine < lastTaken && !paragraphs) || box)
            total += endBytes;
    }
    return total;
}

std::string CTextZone::GetSelectedTextString(WORD wFlags) {
    if (!TestSelection()) return {};
    // The length leaves out the line end that line mode writes behind its
    // last line (at most 2 bytes), and a line end needs one byte more of
    // room than it takes: 3 beyond the length hold all of it and the 0.
    const LONG size = GetSelectedTextLength(wFlags) + 3;
    std::vector<char> buffer(static_cast<size_t>(size), 0);
    GetSelectedText(buffer.data(), size, wFlags);
    return buffer.data();
}
