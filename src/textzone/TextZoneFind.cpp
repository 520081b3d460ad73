// One search step from the selection, the test whether the selection already
// is the wanted text, and case change of the selection or the caret byte.
// Searches stay within a line (its terminator counts as a byte) and never
// wrap at the ends of the text: wrapping is the caller's business.
#include <algorithm>
#include <cstring>
#include <vector>

#include "host/Collator.h"
#include "textzone/FindNeedle.h"
#include "textzone/TextZone.h"

namespace {

int RawLength(CTextZone& zone, int nLine) {
    CStringEx* pLine = nLine >= 0 ? zone.GetLine(nLine) : nullptr;
    return pLine ? pLine->GetLength() : 0;
}

}  // namespace

int CTextZone::SameAsSelected(const char* pszText, int bMatchCase) {
    if (!pszText) return 0;
    if (static_cast<LONG>(std::strlen(pszText)) != GetSelectedTextLength(0)) return 0;
    const std::string selected = GetSelectedTextString(0);
    if (bMatchCase) return std::strcmp(selected.c_str(), pszText) == 0 ? 1 : 0;
    return _stricmp(selected.c_str(), pszText) == 0 ? 1 : 0;
}

int CTextZone::FindTextFromCurrentPos(const char* pszText, int bForward, int bMatchCase) {
    if (!pszText || !*pszText) return 0;
    const int n = static_cast<int>(std::strlen(pszText));
    const int oldStartLine = m_nSelStartLine;
    const int oldStartChar = m_nSelStartChar;
    const int oldEndLine = m_nSelEndLine;
    const int oldEndChar = m_nSelEndChar;
    const bool bHadSelection = TestSelection() != 0;

    // The selection becomes an empty stream selection at the given place.
    auto collapseTo = [&](int nLine, int nChar) {
        m_nSelectionMode = TZ_SEL_STREAM;
        SetSelection(nLine, nLine, nChar, nChar, 0, 0);
        RedrawLines(oldStartLine, oldEndLine, 1);
        DrawCaret(1, 1);
    };

    int nLine;
    int nChar;
    if (bForward) {
        nLine = oldStartLine;
        nChar = oldStartChar;
        // Standing on a match: start one byte into it, so that the next match,
        // even one overlapping this, is found and this one is not.
        if (SameAsSelected(pszText, bMatchCase)) {
            ++nChar;
            if (RawLength(*this, nLine) - nChar < n) {
                ++nLine;
                nChar = 0;
            }
        }
    } else {
        nLine = oldEndLine;
        nChar = oldEndChar;
        if (nLine == 0 && nChar == 0) {
            collapseTo(0, 0);
            return 0;
        }
        if (bHadSelection) {
            // One byte back, so that the match now selected is not found again.
            // Over a line start that byte is the line end of the line above.
            if (--nChar < 0) {
                --nLine;
                nChar = std::max(0, RawLength(*this, nLine) - 1);
            }
        } else if (nLine != 0 && !GetLine(nLine)) {
            --nLine;
            nChar = RawLength(*this, nLine);
        }
    }
    nChar = std::max(0, nChar);

    // The lines are taken straight from the store's blocks, with the lengths
    // kept beside them: a line too short for the word is not even opened.
    if (m_bLengthsStale) RebuildLineLengths();
    const CFindNeedle needle(pszText, n, bMatchCase != 0);
    int b = 0;
    int i = 0;
    int L = nLine;
    int nFound = -1;
    CStringEx* pLine = nullptr;
    int nLength = 0;
    if (GetLineIndexes(nLine, &b, &i)) {
        for (;;) {
            pLine = m_ppBlocks[b][i];
            nLength = SlotLength(m_ppLengths[b][i]);
            if (bForward) {
                const int from = L == nLine ? nChar : 0;
                if (nLength - from >= n) nFound = needle.Forward(pLine->c_str(), nLength, from);
            } else {
                const int to = L == nLine ? std::min(nChar, nLength) : nLength;
                if (to >= n) nFound = needle.Backward(pLine->c_str(), to);
            }
            if (nFound >= 0) break;
            if (bForward) {
                ++L;
                for (++i; b < m_nBlockCount && i >= m_pBlockSizes[b]; i = 0)
                    ++b;
                if (b >= m_nBlockCount) break;
            } else {
                if (--L < 0) break;
                for (--i; i < 0;) {
                    if (--b < 0) break;
                    i = m_pBlockSizes[b] - 1;
                }
                if (b < 0) break;
            }
        }
    }
    if (nFound >= 0) {
        GetLine(L);  // the lookup a walk would have ended on
        // A match that takes the line end in ends at the start of the next line.
        int nEndLine = L;
        int nEndChar = nFound + n;
        if (nEndChar == nLength && pLine->IsEnded()) {
            nEndLine = L + 1;
            nEndChar = 0;
        }
        m_nSelectionMode = TZ_SEL_STREAM;
        SetSelection(L, nEndLine, nFound, nEndChar, 0, 0);
        RedrawLines(std::min(L, oldStartLine), std::max(nEndLine, oldEndLine), 1);
        DrawCaret(1, 1);
        return 1;
    }

    // Not found: the caret goes to the far end of the selection, where the
    // next search in the same direction begins.
    if (!bHadSelection) return 0;
    if (bForward)
        collapseTo(oldEndLine, oldEndChar);
    else
        collapseTo(oldStartLine, oldStartChar);
    return 0;
}

void CTextZone::MakeUpperOrLower(int bLower) {
    if (TestSelection()) {
        std::string text = GetSelectedTextString(0);
        std::vector<char> buffer(text.begin(), text.end());
        buffer.push_back(0);
        if (bLower)
            CharLowerA(buffer.data());
        else
            CharUpperA(buffer.data());
        HideCaret();
        StartRegister(TZ_EDIT_TYPING);
        InsertText(buffer.data(), 1, 1, 1);
        EndRegister();
        DrawCaret(1, 1);
        return;
    }

    // Without a selection the caret walks on a byte at a time, so a held key
    // converts the text as it goes.
    const int nLine = m_nSelStartLine;
    const int nChar = m_nSelStartChar;
    CStringEx* pLine = nLine >= 0 ? GetLine(nLine) : nullptr;
    if (!pLine) return;
    HideCaret();
    if (nChar >= pLine->GetVisibleLength()) {
        SetSelection(nLine + 1, nLine + 1, 0, 0, 0, 0);
    } else {
        char text[2] = {(*pLine)[nChar], 0};
        if (bLower)
            CharLowerA(text);
        else
            CharUpperA(text);
        if (text[0] == (*pLine)[nChar]) {
            SetSelection(nLine, nLine, nChar + 1, nChar + 1, 0, 0);
        } else {
            // Replaced as a one-byte stream selection: the caret ends up behind it.
            m_nSelectionMode = TZ_SEL_STREAM;
            SetSelection(nLine, nLine, nChar, nChar + 1, 0, 0);
            StartRegister(TZ_EDIT_TYPING);
            InsertText(text, 0, 1, 1);
            EndRegister();
            RedrawLines(nLine, nLine, 1);
        }
    }
    DrawCaret(1, 1);
}
