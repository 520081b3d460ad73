// Column (box) editing: text goes into, or comes out of, the same pixel
// column on consecutive lines. Lines too short are padded with spaces, and
// tabs that straddle a box edge are handled so that text right of the box
// keeps its column.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "platform/DC.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

using textbytes::PadText;

int CTextZone::BoxX(CDC* pDC, const CStringEx& line, int nCount) {
    int w;
    if (nCount <= line.GetLength()) {
        w = GetTextWidth(pDC, line.c_str(), nCount);
    } else {
        // Beyond the text a free caret's columns are spaces.
        CStringEx padded(line);
        PadText(padded, nCount);
        w = GetTextWidth(pDC, padded.c_str(), nCount);
    }
    return w + m_rcText.left - GetHScrollOffset();
}

int CTextZone::BoxInsertText(const char* pszText, int nColumn, int bHadSelection, int* pnLast) {
    const int startLine = m_nSelStartLine;
    *pnLast = startLine;
    if (startLine >= TZ_MAX_LINES) return 0;

    // The tab step in characters, as the inserted pieces are counted.
    const int charWidth = m_nCharWidth < 2 ? 1 : m_nCharWidth;
    const int tab = std::max(1, m_nTabWidth < 0 ? -m_nTabWidth : m_nTabWidth / charWidth);
    const int limit = GetLineLimit();

    CDC* pDC = GetStandardDC();
    const int spaceWidth = std::max(1, GetTextWidth(pDC, " ", 1) - GetTextWidth(pDC, "", 0));
    CStringEx* pFirst = GetLine(startLine);
    if (!pFirst) {
        // The text goes on a line of its own, not onto an unended last line.
        if (CStringEx* pAbove = startLine > 0 ? GetLine(startLine - 1) : nullptr)
            pAbove->EnsureEnded();
        pFirst = InsertLine(startLine);
        if (!pFirst) {
            ReleaseStandardDC(pDC);
            return 0;
        }
        pFirst->EnsureEnded();
    }

    // The pixel column the text goes to.
    int targetX;
    if (bHadSelection) {
        CStringEx spaced;
        GetSpaceEquivalentLine(&spaced, pFirst);
        targetX = BoxX(pDC, spaced, nColumn);
    } else {
        targetX = BoxX(pDC, *pFirst, m_nSelStartChar);
    }

    int result = 1;
    int width = -1;
    int caretChar = m_nSelStartChar;
    int k = startLine;
    int lastWritten = startLine;
    const char* p = pszText;
    bool firstSource = true;
    for (;;) {
        CStringEx* pLine = GetLine(k);
        if (!pLine) pLine = InsertLine(k);
        if (!pLine) {
            result = 0;
            break;
        }
        pLine->EnsureEnded();

        // Short lines are padded in steps of 4 bytes until they reach the
        // column; the steps a far column needs go on in one go.
        for (int x = BoxX(pDC, *pLine, pLine->GetLength() - 1);
             x < targetX && pLine->GetLength() < TZ_MAX_PLACE;
             x = BoxX(pDC, *pLine, pLine->GetLength() - 1)) {
            // One step takes the text to the raw length plus 4, 5 bytes more.
            const int steps = std::max(1, (targetX - x) / spaceWidth / 5);
            PadText(*pLine, pLine->GetLength() + 4 + 5 * (steps - 1));
        }

        // The byte at the column. A tab that straddles it is kept, and spaces
        // go in front of it until the column is reached.
        POINT pt{targetX, 0};
        int idx = GetCharIndexFromPoint(pLine, &pt);
        if (idx > pLine->GetLength() - 1) PadText(*pLine, idx);
        int x = BoxX(pDC, *pLine, idx);
        if (x > targetX && idx > 0 && (*pLine)[idx - 1] == '\t') x = BoxX(pDC, *pLine, --idx);
        while (x < targetX && idx < TZ_MAX_PLACE) {
            pLine->InsertChar(idx++, ' ');
            x = BoxX(pDC, *pLine, idx);
        }
        pLine->EnsureEnded();
        const int rawLength = pLine->GetLength();
        const int col = ComputeBlockUnit(k, idx);

        // The source line, counted in columns: on the first line a tab
        // reaches the next tab column, later a tab counts as one byte.
        const int room = std::max(0, limit - 1 - rawLength);
        int scanned = 0;
        int w = 0;
        while (scanned < room && p[scanned] && p[scanned] != '\r' && p[scanned] != '\n') {
            if (firstSource && p[scanned] == '\t')
                w += tab - (col + w) % tab;
            else
                ++w;
            ++scanned;
        }
        if (width < 0) width = w;

        // Every piece is as wide as the first: short ones are filled with
        // spaces, long ones are cut.
        std::vector<char> buffer(static_cast<size_t>(rawLength + width + 2), 0);
        std::memcpy(buffer.data(), pLine->c_str(), static_cast<size_t>(idx));
        std::memcpy(buffer.data() + idx + width, pLine->c_str() + idx,
                    static_cast<size_t>(rawLength - idx));
        int filled = 0;
        for (int s = 0; filled < width; ++s) {
            if (s < scanned && p[s] == '\t') {
                do
                    buffer[static_cast<size_t>(idx + filled++)] = ' ';
                while (filled < width && (col + filled) % tab != 0);
            } else {
                buffer[static_cast<size_t>(idx + filled++)] = s < scanned ? p[s] : ' ';
            }
        }
        // What passes the line limit is left out of the inserted piece, never
        // cut from the line's own text and its end.
        const int kept = std::clamp(TZ_MAX_LINE_LENGTH - rawLength, 0, filled);
        std::string joined(buffer.data(), static_cast<size_t>(idx + kept));
        joined.append(pLine->c_str() + idx, static_cast<size_t>(rawLength - idx));
        // A fresh line: the bookmarks and block flags of the line go.
        *pLine = CStringEx(joined.c_str());
        caretChar = idx + width;
        lastWritten = k;
        firstSource = false;

        // Past the source line and its line end.
        p += scanned;
        while (*p && *p != '\r' && *p != '\n')
            ++p;
        if (*p == '\r') ++p;
        if (*p == '\n') ++p;
        if (!*p) break;
        if (++k >= TZ_MAX_LINES) {
            result = 0;
            break;
        }
    }

    m_nSelStartLine = m_nSelEndLine = lastWritten;
    m_nSelStartChar = m_nSelEndChar = caretChar;
    *pnLast = lastWritten;
    ReleaseStandardDC(pDC);
    return result;
}

void CTextZone::BoxDeleteSelection() {
    const int firstLine = m_nSelStartLine;
    const int lastLine = m_nSelEndLine;
    const int firstCol = m_nSelStartChar;
    const int lastCol = m_nSelEndChar;
    CDC* pDC = GetStandardDC();

    // Finds the byte at a box edge, splitting a tab that straddles the edge
    // into spaces and padding a line that ends before it.
    // GetTextWidth of a line's first bytes, also beyond its text.
    auto textWidth = [&](const CStringEx& line, int nCount) {
        return BoxX(pDC, line, nCount) - m_rcText.left + GetHScrollOffset();
    };
    const int spaceWidth = std::max(1, GetTextWidth(pDC, " ", 1) - GetTextWidth(pDC, "", 0));
    auto edgeIndex = [&](CStringEx* pLine, int bound) {
        POINT pt{bound, 0};
        int idx = GetCharIndexFromPoint(pLine, &pt);
        int x = BoxX(pDC, *pLine, idx);
        if (x > bound && idx > 0 && (*pLine)[idx - 1] == '\t') x = BoxX(pDC, *pLine, --idx);
        // Each step moves the index on by at least one byte, so the search
        // ends even where a tab step is no whole number of byte widths and
        // no byte boundary meets the edge.
        while (x < bound && idx < TZ_MAX_PLACE) {
            const int textLength = pLine->GetLength() - pLine->IsEnded();
            if (idx >= textLength) {
                // Padded in one go: the spaces that reach the edge, at least
                // one, counted from the text's end (the place found may lie
                // further right, where a free caret's measure stops).
                const int xEnd = BoxX(pDC, *pLine, textLength);
                PadText(*pLine, textLength + std::max(1, (bound - xEnd) / spaceWidth));
                idx = textLength;
            } else if ((*pLine)[idx] == '\t') {
                // A zero step is taken as the default for good, so that the
                // stop below is defined.
                if (m_nTabWidth == 0) m_nTabWidth = 20;
                const int step =
                    std::max(1, m_nTabWidth > 0 ? m_nTabWidth : -m_nTabWidth * m_nCharWidth);
                const int margin = GetTextWidth(pDC, "", 0);
                const int from = textWidth(*pLine, idx) - margin;
                const int stop = margin + (from / step + 1) * step;
                pLine->replaceAt(idx, ' ');
                int n = idx + 1;
                while (textWidth(*pLine, n) < stop)
                    pLine->InsertChar(n++, ' ');
            } else if (BoxX(pDC, *pLine, idx + 1) > bound) {
                // A byte across the edge goes right of it.
                pLine->InsertChar(idx, ' ');
            }
            // The place is looked for again, but never behind the last one.
            idx = std::max(idx + 1, GetCharIndexFromPoint(pLine, &pt));
            x = BoxX(pDC, *pLine, idx);
        }
        return idx;
    };

    for (int n = firstLine; n <= lastLine; ++n) {
        CStringEx* pLine = GetLine(n);
        if (!pLine) break;
        CStringEx spaced;
        GetSpaceEquivalentLine(&spaced, pLine);
        const int left = BoxX(pDC, spaced, firstCol);
        const int right = BoxX(pDC, spaced, lastCol);
        const int from = edgeIndex(pLine, left);
        const int to = edgeIndex(pLine, right);
        pLine->RemoveChar(from, to - from, 1);
    }

    m_nSelStartChar = m_nSelEndChar = ComputeCharIndex(firstLine, firstCol);
    m_nSelEndLine = firstLine;
    m_nSelRootLine = m_nSelStartLine;
    m_nSelRootChar = m_nSelStartChar;
    ReleaseStandardDC(pDC);
    RebuildCurrentLength();
}
