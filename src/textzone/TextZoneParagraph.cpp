// The paragraph wrap. With ZS_PARAGRAPH a line holds what fits into
// m_nMaxWidth pixels and only the last line of a paragraph is ended; the
// wrap lives in the store itself, so after an edit ComputeParagraph moves
// words between neighbouring lines until the paragraph is in order again.
#include <algorithm>

#include "platform/DC.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

using textbytes::IsBlank;

bool IsWrapDelimiter(char c) {
    return c == '\t' || c == ' ' || c == '-';
}

// Keeps one end of the selection on its text while bytes move between lines.
struct SelEnd {
    int& line;
    int& ch;
};

}  // namespace

int CTextZone::ComputeParagraph(int nLine, int* pbChanged) {
    if (pbChanged) *pbChanged = 0;
    if (!(m_dwStyle & ZS_PARAGRAPH) || m_nMaxWidth < 1 || nLine >= TZ_MAX_LINES) return nLine;

    const int W = m_nMaxWidth;
    const bool byWord = (m_dwStyle & ZS_WORDBREAK) != 0;
    CDC* pDC = GetStandardDC();
    auto width = [&](const CStringEx* p, int n) { return GetTextWidth(pDC, p->c_str(), n); };
    // The first bytes of a line, at most nMax of its visible ones.
    auto prefix = [](CStringEx* p, long long nMax) {
        return static_cast<int>(std::min<long long>(p->GetVisibleLength(), nMax));
    };
    SelEnd ends[2] = {{m_nSelStartLine, m_nSelStartChar}, {m_nSelEndLine, m_nSelEndChar}};
    bool changed = false;

    // Moves the end of line L to the front of pTarget until L fits. Word by
    // word while that is cheap; a line far too wide is cut where measuring
    // says, so that text pasted without line ends costs one pass. A line
    // always keeps at least one byte, or a width below one byte would push
    // the text down line after line.
    auto cut = [&](CStringEx* pLine, CStringEx* pTarget) {
        // Every byte is at least a pixel wide: 2W + 1 bytes are enough to
        // tell a line far too wide, and W + 1 to find where it is cut.
        int w = width(pLine, prefix(pLine, 2LL * W + 1));
        if (w <= 2LL * W) {
            while (w > W && pLine->GetLength() - pLine->IsEnded() > 1) {
                pLine->TransferEnd(*pTarget, byWord);
                w = width(pLine, pLine->GetVisibleLength());
            }
            return;
        }
        const int n = pLine->GetLength() - pLine->IsEnded();
        const char* p = pLine->c_str();
        // The last byte count whose width does not pass W: widths grow with
        // the count, so a binary search finds it.
        int low = 0, high = static_cast<int>(std::min<long long>(n, W + 1LL));
        while (low < high) {
            int mid = (low + high + 1) / 2;
            if (width(pLine, mid) <= W)
                low = mid;
            else
                high = mid - 1;
        }
        int pos = 0;
        if (byWord) {
            // Break behind the last delimiter that fits. Blanks may hang over
            // the edge, a hyphen is seen and must fit itself.
            auto fits = [&](int d) { return IsBlank(p[d]) || (p[d] == '-' && d < low); };
            for (int d = std::min(low, n - 1); d > 0 && pos == 0; --d)
                if (fits(d)) pos = d;
            if (pos > 0)
                while (pos < n && fits(pos))
                    ++pos;
        }
        if (pos == 0) pos = std::max(low, 1);
        pTarget->insertAt(0, pLine->subString(pos));
        pLine->keepLeft(pos);
    };

    int L = nLine;
    int last = nLine;
    while (L < TZ_MAX_LINES) {
        CStringEx* pLine = GetLine(L);
        if (!pLine) break;
        last = L;
        // A single byte wider than the paragraph stays where it is. Every
        // byte is at least a pixel wide, so W + 1 bytes tell whether a long
        // line fits: the rest of it need not be measured.
        const bool fits =
            width(pLine, prefix(pLine, W + 1LL)) <= W || pLine->GetLength() - pLine->IsEnded() <= 1;

        if (pLine->IsEnded() && fits) break;

        if (pLine->IsEnded()) {
            // A new line below takes the overflow, terminator included.
            changed = true;
            CStringEx* pNext = InsertLine(L + 1);
            if (!pNext) break;
            pLine = GetLine(L);
            cut(pLine, pNext);
            const int kept = pLine->GetLength();
            for (SelEnd& e : ends) {
                if (e.line > L)
                    ++e.line;
                else if (e.line == L && e.ch >= kept)
                    ++e.line, e.ch -= kept;
            }
            ++L;
            continue;
        }

        if (!fits) {
            // The overflow goes in front of the next line of the paragraph.
            CStringEx* pNext = GetLine(L + 1);
            if (!pNext) {
                pNext = InsertLine(L + 1);
                if (!pNext) break;
                changed = true;
                pLine = GetLine(L);
            }
            const int before = pNext->GetLength();
            cut(pLine, pNext);
            const int moved = pNext->GetLength() - before;
            const int kept = pLine->GetLength();
            for (SelEnd& e : ends) {
                if (e.line == L + 1)
                    e.ch += moved;
                else if (e.line == L && e.ch >= kept)
                    ++e.line, e.ch -= kept;
            }
            ++L;
            continue;
        }

        // The line fits and the paragraph goes on: pull text up while it fits.
        bool stop = false;
        const int N = L + 1;
        for (;;) {
            CStringEx* pNext = GetLine(N);
            if (!pNext) break;
            pLine = GetLine(L);
            int piece = 1;
            const int lineLength = pLine->GetLength();
            const bool empty = pNext->GetLength() == pNext->IsEnded();
            if (!empty && (lineLength == 0 || IsWrapDelimiter((*pLine)[lineLength - 1])) && byWord)
                piece = pNext->GetFirstWordLength();
            if (empty || piece == 0) {
                // An empty line closes the gap; its terminator ends the paragraph here.
                const bool ended = pNext->IsEnded() != 0;
                if (ended) pLine->EnsureEnded();
                RemoveLines(N, 1);
                changed = true;
                for (SelEnd& e : ends) {
                    if (e.line > N)
                        --e.line;
                    else if (e.line == N)
                        e.line = L, e.ch = lineLength;
                }
                if (ended) {
                    stop = true;
                    break;
                }
                CStringEx* pNow = GetLine(N);
                if (pNow && pNow->GetLength() == 0) break;
                continue;
            }
            // Measured in place: a tab in the piece widens by where it lands.
            // A word goes up with the delimiter behind it; a hyphen there is
            // seen and must fit too, where blanks never count.
            int measured = piece;
            if (piece >= 2 && measured < pNext->GetLength() && (*pNext)[measured] == '-')
                ++measured;
            CStringEx joined(*pLine);
            joined += VESK::String(pNext->c_str(), measured);
            const int before = pNext->GetLength();
            if (width(&joined, joined.GetVisibleLength()) > W) {
                if (!IsBlank((*pNext)[0])) break;
                // Blanks never make a line too wide: they always go up.
                pNext->TransferStartingSpaces(*pLine);
            } else {
                pNext->TransferStart(*pLine, piece >= 2);
            }
            const int moved = before - pNext->GetLength();
            const bool caretOnNext = m_nSelStartLine == N;
            for (SelEnd& e : ends) {
                if (e.line != N) continue;
                e.ch -= moved;
                if (e.ch < 0) e.line = L, e.ch += pLine->GetLength();
            }
            if (caretOnNext && m_nSelStartLine == L) {
                // The caret's text went up a line: the selection closes on it.
                m_nSelEndLine = L;
                m_nSelEndChar = m_nSelStartChar;
            }
        }
        pLine = GetLine(L);
        if (stop || !pLine || pLine->IsEnded()) break;
        ++L;
    }

    ReleaseStandardDC(pDC);
    if (pbChanged && changed) *pbChanged = 1;
    return last;
}

void CTextZone::RebuildAllParagraphs() {
    if (!(m_dwStyle & ZS_PARAGRAPH)) return;
    for (int nLine = 0; nLine < TZ_MAX_LINES && GetLine(nLine);)
        nLine = ComputeParagraph(nLine, nullptr) + 1;
}
