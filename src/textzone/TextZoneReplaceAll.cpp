// Replace all in one pass. The dialog's loop (InsertText, then a forward
// FindTextFromCurrentPos, until nothing is found) does the whole per-edit
// work of a window for every match and files two undo units each: at a few
// million matches that is a minute. Where every match lies inside one line
// and the lines stay as many as they were, the loop comes to this: the
// matches of each line left to right without overlap, from the selection
// on, each replaced, the caret behind the last replacement. So the lines
// are rewritten in place, straight from the store's blocks, and the undo
// unit keeps each changed line's old text; replaying it swaps the texts
// back and files the new ones for redo.
//
// Wherever the loop could do something else (line ends in either text,
// wrap, box or line mode, tab conversion, blocks, the line limits, a match
// at the very end of an unended last line, which the deletion treats as a
// join) this changes nothing and the caller runs the loop.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "platform/Wnd.h"
#include "textzone/FindNeedle.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

using textbytes::TextLength;

// The unit's text: a header of two selections (the one its replay leaves,
// then the one its inverse's replay leaves), then each changed line in
// order: its index, its count of pieces, and per piece where it stands in
// the line's present text, its length there, and the other text's length
// and bytes. Only the pieces are kept, not the lines.
struct Selection {
    int startLine, startChar, endLine, endChar;
};
constexpr size_t kHeader = 2 * sizeof(Selection);

void PutInt(std::string& out, int value) {
    out.append(reinterpret_cast<const char*>(&value), sizeof value);
}

int GetInt(const char* p) {
    int value = 0;
    std::memcpy(&value, p, sizeof value);
    return value;
}

std::string MakeHeader(const Selection& replay, const Selection& inverse) {
    std::string out(kHeader, '\0');
    std::memcpy(out.data(), &replay, sizeof replay);
    std::memcpy(out.data() + sizeof replay, &inverse, sizeof inverse);
    return out;
}

// Where the record behind count pieces at p ends.
const char* SkipPieces(const char* p, int count) {
    for (int k = 0; k < count; ++k)
        p += 3 * sizeof(int) + static_cast<size_t>(GetInt(p + 2 * sizeof(int)));
    return p;
}

// Turns a line's text into the other one by the count pieces at p, and
// writes the pieces that turn it back behind *pInverse if there is one.
// Returns where the next line's record starts.
const char* SwapPieces(CStringEx& line, const char* p, int count, std::string* pInverse,
                       std::string& scratch) {
    const char* const first = p;
    bool sameLengths = true;
    for (int k = 0; k < count; ++k) {
        const int otherLength = GetInt(p + 2 * sizeof(int));
        sameLengths = sameLengths && GetInt(p + sizeof(int)) == otherLength;
        p += 3 * sizeof(int) + static_cast<size_t>(otherLength);
    }
    const char* const end = p;
    const char* text = line.c_str();
    int shift = 0;  // where a piece stands in the other text, less where it stands now
    for (p = first; p < end;) {
        const int at = GetInt(p);
        const int length = GetInt(p + sizeof(int));
        const int otherLength = GetInt(p + 2 * sizeof(int));
        if (pInverse) {
            PutInt(*pInverse, at + shift);
            PutInt(*pInverse, otherLength);
            PutInt(*pInverse, length);
            pInverse->append(text + at, static_cast<size_t>(length));
        }
        shift += otherLength - length;
        p += 3 * sizeof(int) + static_cast<size_t>(otherLength);
    }
    if (sameLengths) {
        char* out = line.GetBuffer();
        for (p = first; p < end;) {
            const int otherLength = GetInt(p + 2 * sizeof(int));
            std::memcpy(out + GetInt(p), p + 3 * sizeof(int), static_cast<size_t>(otherLength));
            p += 3 * sizeof(int) + static_cast<size_t>(otherLength);
        }
        return end;
    }
    scratch.clear();
    int done = 0;
    for (p = first; p < end;) {
        const int at = GetInt(p);
        const int otherLength = GetInt(p + 2 * sizeof(int));
        scratch.append(text + done, static_cast<size_t>(at - done));
        scratch.append(p + 3 * sizeof(int), static_cast<size_t>(otherLength));
        done = at + GetInt(p + sizeof(int));
        p += 3 * sizeof(int) + static_cast<size_t>(otherLength);
    }
    scratch.append(text + done, static_cast<size_t>(line.GetLength() - done));
    line.assign(scratch.data(), static_cast<int>(scratch.size()));
    return end;
}

}  // namespace

bool CTextZone::AdvanceSlot(int* pBlock, int* pIndex, int nLines) {
    int b = *pBlock;
    int i = *pIndex + nLines;
    while (b < m_nBlockCount && i >= m_pBlockSizes[b]) {
        i -= m_pBlockSizes[b];
        ++b;
    }
    *pBlock = b;
    *pIndex = i;
    return b < m_nBlockCount;
}

int CTextZone::ReplaceAllInPlace(const char* pszFind, const char* pszReplace, int bMatchCase) {
    if (!pszFind || !*pszFind) return 0;
    if (!pszReplace) pszReplace = "";
    if (std::strpbrk(pszFind, "\r\n") || std::strpbrk(pszReplace, "\r\n")) return 0;
    if (m_bUndoing || !m_pCurrentOperation || !m_pCurrentOperation->IsGroup()) return 0;
    if (m_nSelectionMode != TZ_SEL_STREAM || (m_dwStyle & ZS_PARAGRAPH) || m_bTabConvert ||
        m_bReadOnly)
        return 0;
    if (!m_editBlocks.empty() || !m_inputBlocks.empty() || !m_altBlocks.empty()) return 0;
    // Each insertion borrows a line for what stands right of the caret.
    const int lastIndex = GetLastLineIndex();
    if (lastIndex >= TZ_MAX_LINES - 1) return 0;
    const int firstLine = m_nSelStartLine;
    const int firstStart = m_nSelStartChar;
    const int firstEnd = m_nSelEndChar;
    if (m_nSelEndLine != firstLine || firstStart >= firstEnd) return 0;
    {
        CStringEx* pFirst = GetLine(firstLine);
        if (!pFirst || firstEnd > TextLength(*pFirst)) return 0;
    }
    if (m_bLengthsStale) RebuildLineLengths();

    const int n = static_cast<int>(std::strlen(pszFind));
    const int r = static_cast<int>(std::strlen(pszReplace));
    const bool freeCaret = (m_dwStyle & ZS_FREECARET) != 0;
    const CFindNeedle needle(pszFind, n, bMatchCase != 0);

    std::string record(kHeader, '\0');
    std::string scratch;
    std::vector<int> starts;
    int b = 0;
    int i = 0;
    if (!GetLineIndexes(firstLine, &b, &i)) return 0;
    int L = firstLine;
    int lastLine = firstLine;  // the last replacement, in the new text
    int lastPos = firstStart;
    bool ok = true;
    for (;;) {
        // Every line is opened: its object and then its bytes are asked for
        // ahead, so that the memory waits overlap.
        const int blockSize = m_pBlockSizes[b];
        if (i + 16 < blockSize) __builtin_prefetch(m_ppBlocks[b][i + 16]);
        if (i + 8 < blockSize) __builtin_prefetch(m_ppBlocks[b][i + 8]->c_str());
        CStringEx* pLine = m_ppBlocks[b][i];
        const int length = SlotLength(m_ppLengths[b][i]);
        const char* s = pLine->c_str();
        int start = L == firstLine ? firstStart : needle.Forward(s, length, 0);
        if (start >= 0) {
            // The deletion of a match up to the end of an unended last line
            // goes the way of a join; the loop's own way is kept for that.
            const bool unendedLast = L == lastIndex && !freeCaret && !pLine->IsEnded();
            starts.clear();
            int shift = 0;  // the new text's places less the old ones
            for (; start >= 0; start = needle.Forward(s, length, starts.back() + n)) {
                const int end = L == firstLine && start == firstStart ? firstEnd : start + n;
                // Where the insertion would cut the line, the loop decides.
                if ((unendedLast && end == length) || start + shift + r >= TZ_MAX_LINE_LENGTH) {
                    ok = false;
                    break;
                }
                starts.push_back(start);
                shift += r - (end - start);
                // The first match may be a selection of another length.
                if (start == firstStart && L == firstLine) starts.back() = end - n;
            }
            if (!ok) break;
            // The new text's pieces, to be swapped back by undo.
            PutInt(record, L);
            PutInt(record, static_cast<int>(starts.size()));
            shift = 0;
            const bool inPlace = r == n && !(L == firstLine && firstEnd - firstStart != n);
            char* out = inPlace ? pLine->GetBuffer() : nullptr;
            scratch.clear();
            int done = 0;
            for (size_t k = 0; k < starts.size(); ++k) {
                const int end = starts[k] + n;
                const int from = k == 0 && L == firstLine ? firstStart : starts[k];
                const int at = from + shift;
                PutInt(record, at);
                PutInt(record, r);
                PutInt(record, end - from);
                record.append(s + from, static_cast<size_t>(end - from));
                if (inPlace) {
                    std::memcpy(out + from, pszReplace, static_cast<size_t>(r));
                } else {
                    scratch.append(s + done, static_cast<size_t>(from - done));
                    scratch.append(pszReplace, static_cast<size_t>(r));
                }
                done = end;
                shift += r - (end - from);
                lastLine = L;
                lastPos = at;
            }
            if (!inPlace) {
                scratch.append(s + done, static_cast<size_t>(length - done));
                // The line tells the zone its new length; it is found here.
                RememberPlace(b, i);
                pLine->assign(scratch.data(), static_cast<int>(scratch.size()));
            }
        }
        if (!AdvanceSlot(&b, &i, 1)) break;
        ++L;
    }

    if (!ok) {
        // Every line changed so far gets its old text back.
        for (const char* p = record.data() + kHeader; p < record.data() + record.size();) {
            CStringEx* pLine = GetLine(GetInt(p));
            const int count = GetInt(p + sizeof(int));
            p += 2 * sizeof(int);
            if (!pLine) break;
            p = SwapPieces(*pLine, p, count, nullptr, scratch);
        }
        return 0;
    }

    HideCaret();
    const Selection undone{firstLine, firstStart, firstLine, firstEnd};
    const Selection redone{lastLine, lastPos, lastLine, lastPos + r};
    const Selection header[2] = {undone, redone};
    std::memcpy(record.data(), header, kHeader);
    auto pUnit = std::make_unique<CUndoUnit>();
    pUnit->m_wType = TZ_UNIT_LINE_IMAGES;
    pUnit->m_wSelMode = TZ_SEL_STREAM;
    pUnit->m_nFirstLine = firstLine;
    pUnit->m_nLastLine = lastLine;
    pUnit->m_hText = std::move(record);
    m_pCurrentOperation->Add(std::move(pUnit));

    RebuildCurrentLength();
    // An empty replacement inserts nothing, and InsertText stops before the
    // scroll ranges then.
    if (r > 0) {
        UpdateVScrollBar();
        UpdateHScrollBar(firstLine, TZ_TO_END);
    }
    // The view follows the loop's caret: its first step may scroll up to the
    // first match, the later ones only down, so the last decides the rest.
    m_nGoalX = -1;
    m_nSelStartLine = m_nSelEndLine = firstLine;
    m_nSelStartChar = m_nSelEndChar = firstStart + r;
    DrawCaret(1, 1);
    // The caret behind the last replacement, the root at its start, as the
    // last InsertText leaves them.
    m_nSelStartLine = m_nSelEndLine = m_nSelRootLine = lastLine;
    m_nSelRootChar = lastPos;
    m_nSelStartChar = m_nSelEndChar = lastPos + r;
    RedrawLines(firstLine, TZ_TO_END, 1);
    DrawCaret(1, 1);
    return 1;
}

void CTextZone::ReplayLineImages(const CUndoUnit& unit) {
    const std::string& text = unit.m_hText;
    if (text.size() < kHeader) return;
    Selection header[2];
    std::memcpy(header, text.data(), kHeader);

    auto pInverse = std::make_unique<CUndoUnit>();
    pInverse->m_wType = TZ_UNIT_LINE_IMAGES;
    pInverse->m_wSelMode = TZ_SEL_STREAM;
    pInverse->m_nFirstLine = unit.m_nFirstLine;
    pInverse->m_nLastLine = unit.m_nLastLine;
    std::string& other = pInverse->m_hText;
    other.reserve(text.size());
    other = MakeHeader(header[1], header[0]);

    if (m_bLengthsStale) RebuildLineLengths();
    std::string scratch;
    int b = 0;
    int i = 0;
    int L = -1;
    const char* const stop = text.data() + text.size();
    // The lines go in batches: their objects, then their bytes, are asked
    // for ahead of the work, so that the memory waits overlap.
    struct Pending {
        CStringEx* pLine;
        int b, i, nLine, count;
        const char* p;
    };
    constexpr int kBatch = 32;
    Pending batch[kBatch];
    bool lost = false;
    for (const char* p = text.data() + kHeader; !lost && p + 2 * sizeof(int) <= stop;) {
        int k = 0;
        for (; k < kBatch && p + 2 * sizeof(int) <= stop; ++k) {
            const int nLine = GetInt(p);
            const int count = GetInt(p + sizeof(int));
            p += 2 * sizeof(int);
            if (L < 0 ? !GetLineIndexes(nLine, &b, &i) : !AdvanceSlot(&b, &i, nLine - L)) {
                lost = true;
                break;
            }
            L = nLine;
            batch[k] = {m_ppBlocks[b][i], b, i, nLine, count, p};
            __builtin_prefetch(batch[k].pLine);
            p = SkipPieces(p, count);
        }
        for (int j = 0; j < k; ++j)
            __builtin_prefetch(batch[j].pLine->c_str());
        for (int j = 0; j < k; ++j) {
            const Pending& line = batch[j];
            PutInt(other, line.nLine);
            PutInt(other, line.count);
            // A line whose length changes tells the zone; it is found here.
            RememberPlace(line.b, line.i);
            SwapPieces(*line.pLine, line.p, line.count, &other, scratch);
        }
    }
    if (m_pCurrentOperation) m_pCurrentOperation->Add(std::move(pInverse));

    RebuildCurrentLength();
    UpdateHScrollBar(unit.m_nFirstLine, TZ_TO_END);
    // The loop's replay starts at the far end of the changes and walks back
    // to the other: the view follows its first caret, then its last.
    m_nGoalX = -1;
    m_nSelectionMode = TZ_SEL_STREAM;
    m_nSelStartLine = m_nSelEndLine = header[1].startLine;
    m_nSelStartChar = m_nSelEndChar = header[1].startChar;
    DrawCaret(1, 1);
    const Selection& sel = header[0];
    m_nSelStartLine = m_nSelRootLine = sel.startLine;
    m_nSelStartChar = m_nSelRootChar = sel.startChar;
    m_nSelEndLine = sel.endLine;
    m_nSelEndChar = sel.endChar;
    RedrawLines(unit.m_nFirstLine, TZ_TO_END, 0);
}
