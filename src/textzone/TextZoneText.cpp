// Text access: the whole text in and out, ranges of it, character positions,
// and the fingerprint of the text kept with the block status.
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

constexpr char kCR = 13;
constexpr char kLF = 10;

using textbytes::IsBlank;

// The line end the caller asked for, by the two low bits of the flags.
struct LineEnd {
    explicit LineEnd(WORD wFlags) {
        switch (wFlags & 3) {
            case TF_LF:
                text[0] = kLF;
                break;
            case TF_CRLF:
                text[0] = kCR;
                text[1] = kLF;
                length = 2;
                break;
            default:
                text[0] = kCR;
                break;
        }
    }
    char text[2] = {0, 0};
    int length = 1;
};

// The line as the readers deliver it: with TF_LEADING_TABS its indentation
// rewritten as tabs (and spaces for what a tab would overshoot), with
// TF_STRIP_TRAILING the blanks before its line end gone. Returns the line
// itself when nothing changes, else copy. Measure(text, count) gives pixels.
template <class Measure>
CStringEx* ReadyLine(CStringEx* pLine, WORD wFlags, bool bCanMeasure, CStringEx& copy,
                     Measure measure) {
    CStringEx* p = pLine;
    if ((wFlags & TF_LEADING_TABS) && bCanMeasure && IsBlank((*pLine)[0])) {
        int n = 0;
        while (IsBlank((*pLine)[n]))
            ++n;
        const int w = measure(pLine->c_str(), n);
        copy.Empty();
        int cw = measure(copy.c_str(), 0);
        // Each step must widen the copy, or a degenerate font would loop.
        while (cw < w) {
            copy += '\t';
            int nw = measure(copy.c_str(), copy.GetLength());
            if (nw <= cw) break;
            cw = nw;
        }
        if (cw > w && copy.GetLength() > 0) {
            copy.discardRight(1);
            cw = measure(copy.c_str(), copy.GetLength());
            while (cw < w) {
                copy += ' ';
                int nw = measure(copy.c_str(), copy.GetLength());
                if (nw <= cw) break;
                cw = nw;
            }
        }
        copy += VESK::String(pLine->c_str() + n, pLine->GetLength() - n);
        p = &copy;
    }
    if ((wFlags & TF_STRIP_TRAILING) && p->IsEnded()) {
        int nVisible = p->GetVisibleLength();
        if (nVisible < p->GetLength() - 1) {
            if (p != &copy) copy = *p;
            copy.keepLeft(nVisible);
            copy.EnsureEnded();
            p = &copy;
        }
    }
    return p;
}

}  // namespace

int CTextZone::SetText(const char* pszText) {
    if (!m_pWnd || !m_pWnd->GetSafeHwnd()) return 0;
    FreeAllLines();
    FreeAllOperations();
    m_nSelectionMode = TZ_SEL_STREAM;
    SetSelection(0, 0, 0, 0, 0, 0);
    // No undo operation is open, so loading records nothing.
    int nResult = InsertText(pszText, 0, 1, 1);
    UpdateHScrollBar(0, TZ_TO_END);
    UpdateVScrollBar();
    m_pWnd->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    SetModify(0);
    return nResult;
}

void CTextZone::GetText(char* pBuffer, LONG lSize, WORD wFlags) {
    if (!pBuffer || lSize < 1) return;
    const LineEnd eol(wFlags);
    CDC* pDC = (wFlags & TF_LEADING_TABS) ? GetStandardDC() : nullptr;
    auto measure = [&](const char* p, int n) { return GetTextWidth(pDC, p, n); };

    LONG count = 0;
    CStringEx copy;
    // The lines in order straight from the store's blocks.
    ForEachStoredLine([&](CStringEx* pLine) {
        CStringEx* p = ReadyLine(pLine, wFlags, pDC != nullptr, copy, measure);
        int bEnded = p->IsEnded();
        LONG n = std::min<LONG>(p->GetLength() - bEnded, lSize - 1 - count);
        if (n > 0) {
            std::memcpy(pBuffer + count, p->c_str(), static_cast<size_t>(n));
            count += n;
        }
        // A line end goes in only whole; the last one may be dropped.
        if ((bEnded || (wFlags & TF_WRAPPED_ENDS)) && count < lSize - 2) {
            std::memcpy(pBuffer + count, eol.text, static_cast<size_t>(eol.length));
            count += eol.length;
        }
        return count < lSize - 1;
    });
    if (!(wFlags & TF_NO_FINAL_END) && count >= 1 && count < lSize - 2 &&
        pBuffer[count - 1] != kCR && pBuffer[count - 1] != kLF) {
        std::memcpy(pBuffer + count, eol.text, static_cast<size_t>(eol.length));
        count += eol.length;
    }
    pBuffer[count] = 0;
    ReleaseStandardDC(pDC);
}

LONG CTextZone::GetTextLength(WORD wFlags) {
    const LineEnd eol(wFlags);
    CDC* pDC = (wFlags & TF_LEADING_TABS) ? GetStandardDC() : nullptr;
    auto measure = [&](const char* p, int n) { return GetTextWidth(pDC, p, n); };

    LONG total = 0;
    CStringEx copy;
    CStringEx* pLast = nullptr;
    ForEachStoredLine([&](CStringEx* pLine) {
        CStringEx* p = ReadyLine(pLine, wFlags, pDC != nullptr, copy, measure);
        int bEnded = p->IsEnded();
        total += p->GetLength() - bEnded;
        if (bEnded || (wFlags & TF_WRAPPED_ENDS)) total += eol.length;
        pLast = pLine;
        return true;
    });
    // Asks the stored line, not what was counted: with TF_WRAPPED_ENDS this
    // is one line end more than GetText writes, which is fine for a buffer size.
    if (!(wFlags & TF_NO_FINAL_END) && pLast && !pLast->IsEnded()) total += eol.length;
    ReleaseStandardDC(pDC);
    return total;
}

void CTextZone::GetPartOfText(char* pBuffer, LONG lSize, LONG lFirstLine, LONG lLastLine,
                              int nFirstChar, int nLastChar, WORD wMode, WORD wFlags) {
    if (!pBuffer || lSize < 1) return;
    const LineEnd eol(wFlags);
    const bool bBox = wMode == TZ_SEL_BOX;
    const bool bStream = !bBox && wMode != TZ_SEL_LINES;
    // Line mode takes whole lines up to the one before lLastLine.
    const long long lLastTaken = wMode == TZ_SEL_LINES ? lLastLine - 1LL : lLastLine;
    const int nLineCount = GetLineCount();

    LONG count = 0;
    CStringEx copy;
    const CStringEx empty;
    // 64 bits, so that a last line of TZ_TO_END cannot overflow the count.
    for (long long lLine = std::max<LONG>(lFirstLine, 0); lLine <= lLastTaken && count < lSize - 1;
         ++lLine) {
        const LONG lBefore = count;
        CStringEx* pStored = lLine < nLineCount ? GetLine(static_cast<int>(lLine)) : nullptr;
        const CStringEx* pLine = pStored ? pStored : &empty;
        if (bBox && pStored) {
            copy = CStringEx();
            GetSpaceEquivalentLine(&copy, pStored);
            pLine = &copy;
        }
        const int n = pLine->GetLength() - pLine->IsEnded();
        int nStart = (bStream && lLine == lFirstLine) || bBox ? nFirstChar : 0;
        int nEnd = (bStream && lLine == lLastLine) || bBox ? nLastChar : n;
        nStart = std::max(nStart, 0);
        const char* text = pLine->c_str();
        // Bytes beyond the text read as spaces, so box text keeps its width.
        for (int k = nStart; k < nEnd && count < lSize - 1; ++k)
            pBuffer[count++] = k < n ? text[k] : ' ';

        bool bLineEnd;
        if (pLine->IsEnded() && lLine != lLastLine)
            bLineEnd = true;
        else if (wFlags & TF_WRAPPED_ENDS)
            bLineEnd = true;
        else if (lLine < lLastTaken)
            bLineEnd = !((m_dwStyle & ZS_PARAGRAPH) && !bBox);
        else
            bLineEnd = bBox;
        if (bLineEnd && count < lSize - 2) {
            std::memcpy(pBuffer + count, eol.text, static_cast<size_t>(eol.length));
            count += eol.length;
        }
        // Every line behind a missing one is missing too and gives the same
        // nothing; go straight on to the last one instead of counting them out.
        if (!pStored && count == lBefore && lLine < lLastTaken - 1) lLine = lLastTaken - 1;
    }
    pBuffer[count] = 0;
}

int CTextZone::IsEmpty() {
    CStringEx* pFirst = GetLine(0);
    if (!pFirst) return 1;
    if (GetLine(1)) return 0;
    int n = pFirst->GetLength();
    if (n == 0) return 1;
    if (n > 1) return 0;
    // A lone line end counts as nothing only where paragraphs keep one.
    return (*pFirst)[0] == kCR && (m_dwStyle & ZS_PARAGRAPH) ? 1 : 0;
}

LONG CTextZone::LineIndex(int nLine) {
    if (nLine == -1) nLine = m_nSelStartLine;
    if (nLine < 1) return 0;
    LONG lOffset = 0;
    for (int n = 0; n < nLine; ++n) {
        CStringEx* pLine = GetLine(n);
        if (!pLine) break;
        lOffset += pLine->GetLength();
    }
    return lOffset;
}

int CTextZone::LineFromChar(LONG lChar, WORD wFlags) {
    if (lChar == -1) return m_nSelStartLine;
    if (lChar < 0) return 0;
    const int nLast = GetLastLineIndex();
    LONG lOffset = 0;
    int nLine = 0;
    for (; nLine <= nLast; ++nLine) {
        CStringEx* pLine = GetLine(nLine);
        if (!pLine) break;
        int bEnded = pLine->IsEnded();
        // The place behind a line's last byte is still on that line; its
        // line end belongs to the next one.
        if (lChar <= lOffset + pLine->GetLength() - bEnded) return nLine;
        lOffset += pLine->GetLength();
        if (wFlags == TF_CRLF && bEnded) ++lOffset;
    }
    // An empty text has nowhere but line 0.
    return nLine == 0 ? 0 : nLast + 1;
}

void CTextZone::RebuildCurrentLength() {
    // The running length is only worth keeping while a maximum is in force.
    m_nCurrentLength = m_lMaxLength < 1 ? 0 : GetTextLength(0);
}

void CTextZone::GetTextCRCValues(int* pSize, int* pHash) {
    // Reading 500 MB for each saved block state is what restoring one costs
    // otherwise; the values stay right until a line changes.
    if (!m_bCheckValid) {
        ComputeTextCRCValues(&m_nCheckSize, &m_nCheckHash);
        m_bCheckValid = true;
    }
    if (pSize) *pSize = m_nCheckSize;
    if (pHash) *pHash = m_nCheckHash;
}

void CTextZone::ComputeTextCRCValues(int* pSize, int* pHash) {
    int nLast = GetLastLineIndex();
    for (;;) {
        if (nLast <= 0) break;
        CStringEx* pLine = GetLine(nLast);
        if (!pLine || pLine->GetVisibleLength() != 0) break;
        --nLast;
    }

    // Each counted byte is added shifted by its place in the count modulo
    // 21. A shift distributes over addition modulo 2^32, so the bytes are
    // summed per place first and shifted once at the end: the same value,
    // from a loop of fixed length that the compiler vectorises. A line that
    // starts at place r adds to sums[r] on, so sums has room for r + 20.
    std::uint32_t sums[42] = {};
    std::uint32_t total = 0;
    int place = 0;
    int n = 0;
    ForEachStoredLine([&](CStringEx* pLine) {
        if (n++ > nLast) return false;
        const char* text = pLine->c_str();
        const int nEnd = pLine->GetVisibleLength();
        int k = 0;
        while (k < nEnd && IsBlank(text[k]))
            ++k;
        const int nCount = nEnd - k;
        std::uint32_t* acc = sums + place;
        for (; k + 21 <= nEnd; k += 21)
            for (int j = 0; j < 21; ++j)
                acc[j] += static_cast<unsigned char>(text[k + j]);
        for (int j = 0; k < nEnd; ++j, ++k)
            acc[j] += static_cast<unsigned char>(text[k]);
        total += static_cast<std::uint32_t>(nCount);
        place = (place + nCount) % 21;
        return true;
    });
    std::uint32_t hash = 0;
    for (int j = 0; j < 42; ++j)
        hash += sums[j] << (j % 21);
    if (pSize)
        *pSize = static_cast<int>((static_cast<std::uint32_t>(nLast) << 16) ^ (total & 0xFFFF));
    if (pHash) *pHash = static_cast<int>(hash);
}
