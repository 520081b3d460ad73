// The lengths of the lines beside their pointers in the store. The
// horizontal range needs the first line with the most bytes of a range
// (GetMaxLineWidth); reading that from the lines themselves would visit
// every line of the text on every edit. Here it costs a pass over the
// blocks' longest lengths and over at most three blocks of integers.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "textzone/TextZone.h"

namespace {

// Every live zone by its index (0 stands for none), for the lines to find
// their zone by the 4 bytes they keep. Zones live on the user interface
// thread, like the library's other statics.
std::vector<CTextZone*>& Zones() {
    static std::vector<CTextZone*> zones{nullptr};
    return zones;
}

std::vector<std::uint32_t>& FreeIndexes() {
    static std::vector<std::uint32_t> free;
    return free;
}

}  // namespace

std::uint32_t CTextZone::TakeIndex(CTextZone* pZone) {
    auto& zones = Zones();
    auto& free = FreeIndexes();
    if (!free.empty()) {
        const std::uint32_t n = free.back();
        free.pop_back();
        zones[n] = pZone;
        return n;
    }
    zones.push_back(pZone);
    return static_cast<std::uint32_t>(zones.size() - 1);
}

void CTextZone::ReleaseIndex(std::uint32_t nIndex) {
    Zones()[nIndex] = nullptr;
    FreeIndexes().push_back(nIndex);
}

CTextZone* CTextZone::FromIndex(std::uint32_t nIndex) {
    return Zones()[nIndex];
}

void CTextZone::NewStoreBlock(int nBlock) {
    // Slots are written before they are read: no zero-filling.
    const auto g = static_cast<size_t>(m_nGranularity);
    m_ppBlocks[nBlock] = std::make_unique_for_overwrite<CStringEx*[]>(g);
    m_ppLengths[nBlock] = std::make_unique_for_overwrite<int[]>(g);
    ForgetLongest(nBlock);
}

void CTextZone::FreeStoreBlock(int nBlock) {
    m_ppBlocks[nBlock].reset();
    m_ppLengths[nBlock].reset();
    ForgetLongest(nBlock);
}

void CTextZone::PutSlot(int nBlock, int nIndex, CStringEx* pLine) {
    pLine->m_nOwnerZone = m_nZoneIndex;
    m_ppBlocks[nBlock][nIndex] = pLine;
    m_ppLengths[nBlock][nIndex] = SlotOf(pLine);
    ForgetLongest(nBlock);
    RememberPlace(nBlock, nIndex);
}

void CTextZone::MoveSlots(int nToBlock, int nToIndex, int nFromBlock, int nFromIndex, int nCount) {
    if (nCount <= 0) return;
    const auto n = static_cast<size_t>(nCount);
    std::memmove(m_ppBlocks[nToBlock].get() + nToIndex, m_ppBlocks[nFromBlock].get() + nFromIndex,
                 sizeof(CStringEx*) * n);
    std::memmove(m_ppLengths[nToBlock].get() + nToIndex, m_ppLengths[nFromBlock].get() + nFromIndex,
                 sizeof(int) * n);
    ForgetLongest(nToBlock);
    ForgetLongest(nFromBlock);
}

void CTextZone::MoveDirectory(int nTo, int nFrom) {
    auto move = [&](auto* p) {
        if (nTo < nFrom)
            std::move(p + nFrom, p + m_nBlockCount, p + nTo);
        else
            std::move_backward(p + nFrom, p + m_nBlockCount, p + m_nBlockCount + (nTo - nFrom));
    };
    move(m_ppBlocks.get());
    move(m_ppLengths.get());
    move(m_pBlockSizes.get());
    move(m_pBlockLongest.get());
    move(m_pBlockHidden.get());
}

int CTextZone::LongestInBlock(int nBlock) {
    int& longest = m_pBlockLongest[nBlock];
    if (longest < 0) {
        const int* slots = m_ppLengths[nBlock].get();
        longest = 0;
        for (int i = 0; i < m_pBlockSizes[nBlock]; ++i)
            longest = std::max(longest, SlotLength(slots[i]));
    }
    return longest;
}

int CTextZone::HiddenInBlock(int nBlock) {
    int& hidden = m_pBlockHidden[nBlock];
    if (hidden < 0) {
        const int* slots = m_ppLengths[nBlock].get();
        hidden = 0;
        for (int i = 0; i < m_pBlockSizes[nBlock]; ++i)
            hidden += (slots[i] & kSlotHidden) != 0;
    }
    return hidden;
}

bool CTextZone::FindSlot(const CStringEx* pLine, int* pBlock, int* pIndex) {
    auto holds = [&](int b, int i) {
        return b >= 0 && b < m_nBlockCount && i >= 0 && i < m_pBlockSizes[b] &&
               m_ppBlocks[b][i] == pLine;
    };
    auto found = [&](int b, int i) {
        *pBlock = b;
        *pIndex = i;
        return true;
    };
    if (m_nCacheLine >= 0 && holds(m_nCacheBlock, m_nCacheIndex))
        return found(m_nCacheBlock, m_nCacheIndex);
    for (int k = 0; k < 4; ++k)
        if (holds(m_nRecentBlock[k], m_nRecentIndex[k]))
            return found(m_nRecentBlock[k], m_nRecentIndex[k]);
    // Shifted since it was looked up: it is still in or next to a block the
    // engine touched lately.
    for (int k = 0; k < 4; ++k) {
        for (int b = m_nRecentBlock[k] - 1; b <= m_nRecentBlock[k] + 1; ++b) {
            if (b < 0 || b >= m_nBlockCount) continue;
            CStringEx** slots = m_ppBlocks[b].get();
            CStringEx** end = slots + m_pBlockSizes[b];
            CStringEx** hit = std::find(slots, end, pLine);
            if (hit != end) return found(b, static_cast<int>(hit - slots));
        }
    }
    return false;
}

void CTextZone::NoteLineLength(CStringEx* pLine) {
    if (m_bLengthsStale) return;
    int b = 0;
    int i = 0;
    if (!FindSlot(pLine, &b, &i)) {
        // Out of sight: read every length again when it is next wanted.
        m_bLengthsStale = true;
        return;
    }
    const int length = pLine->GetLength();
    int& slot = m_ppLengths[b][i];
    int& longest = m_pBlockLongest[b];
    if (longest >= 0) {
        if (length >= longest)
            longest = length;
        else if (SlotLength(slot) == longest)
            longest = -1;
    }
    slot = length | (slot & kSlotHidden);
}

void CTextZone::NoteLineFlags(CStringEx* pLine) {
    if (m_bLengthsStale) return;
    int b = 0;
    int i = 0;
    if (!FindSlot(pLine, &b, &i)) {
        m_bLengthsStale = true;
        return;
    }
    int& slot = m_ppLengths[b][i];
    const int bit = (pLine->m_dwBlockFlags & 4) ? kSlotHidden : 0;
    if ((slot & kSlotHidden) == bit) return;
    slot ^= kSlotHidden;
    if (m_pBlockHidden[b] >= 0) m_pBlockHidden[b] += bit ? 1 : -1;
}

long long CTextZone::HiddenBefore(int nLines) {
    if (m_bLengthsStale) RebuildLineLengths();
    long long hidden = 0;
    int base = 0;
    for (int b = 0; b < m_nBlockCount && base < nLines; ++b) {
        const int size = m_pBlockSizes[b];
        if (base + size <= nLines) {
            hidden += HiddenInBlock(b);
        } else {
            const int* slots = m_ppLengths[b].get();
            for (int i = 0; i < nLines - base; ++i)
                hidden += (slots[i] & kSlotHidden) != 0;
        }
        base += size;
    }
    return hidden;
}

int CTextZone::LineAtHeight(int y) {
    if (m_bLengthsStale) RebuildLineLengths();
    const int h = m_nLineHeight;
    // The line reached when the shown lines so far, a line high each, pass y.
    const long long wanted = static_cast<long long>(y) / h + 1;
    long long shown = 0;
    int base = 0;
    for (int b = 0; b < m_nBlockCount; ++b) {
        const int size = m_pBlockSizes[b];
        const int visible = size - HiddenInBlock(b);
        if (shown + visible >= wanted) {
            const int* slots = m_ppLengths[b].get();
            for (int i = 0; i < size; ++i)
                if (!(slots[i] & kSlotHidden) && ++shown == wanted) return base + i;
        }
        shown += visible;
        base += size;
    }
    // Below the text every place is one line high.
    const long long sum = shown * h;
    return static_cast<int>(m_nLineCount + (y - sum) / h);
}

void CTextZone::RebuildLineLengths() {
    for (int b = 0; b < m_nBlockCount; ++b) {
        for (int i = 0; i < m_pBlockSizes[b]; ++i)
            m_ppLengths[b][i] = SlotOf(m_ppBlocks[b][i]);
        ForgetLongest(b);
    }
    m_bLengthsStale = false;
}

int CTextZone::FindLongestLine(int nFirst, int nLast) {
    if (m_bLengthsStale) RebuildLineLengths();
    int b = 0;
    int from = 0;
    if (!GetLineIndexes(nFirst, &b, &from)) return -1;
    int base = nFirst - from;
    int best = -1;
    int bestLine = -1;
    int bestBlock = -1;  // a whole block holds the best, at a place not yet known
    int bestBase = 0;
    for (; b < m_nBlockCount && base <= nLast; ++b, from = 0) {
        const int size = m_pBlockSizes[b];
        const int to = std::min(size - 1, nLast - base);  // the last index taken
        if (from == 0 && to == size - 1) {
            const int longest = LongestInBlock(b);
            if (longest > best) {
                best = longest;
                bestBlock = b;
                bestBase = base;
                bestLine = -1;
            }
        } else {
            const int* slots = m_ppLengths[b].get();
            for (int i = from; i <= to; ++i) {
                if (SlotLength(slots[i]) > best) {
                    best = SlotLength(slots[i]);
                    bestLine = base + i;
                }
            }
        }
        base += size;
    }
    if (bestLine < 0 && bestBlock >= 0) {
        const int* slots = m_ppLengths[bestBlock].get();
        int i = 0;
        while (i < m_pBlockSizes[bestBlock] - 1 && SlotLength(slots[i]) != best)
            ++i;
        bestLine = bestBase + i;
    }
    return bestLine;
}

long long CTextZone::CountTextLines(const char* pszText, size_t* pLength) {
    const size_t length = std::strlen(pszText);
    if (pLength) *pLength = length;
    const char* end = pszText + length;
    long long ends = 0;
    for (const char* p = pszText;
         (p = static_cast<const char*>(std::memchr(p, '\n', static_cast<size_t>(end - p)))); ++p)
        ++ends;
    // A CR is a line end of its own unless an LF follows it.
    for (const char* p = pszText;
         (p = static_cast<const char*>(std::memchr(p, '\r', static_cast<size_t>(end - p)))); ++p)
        if (p[1] != '\n') ++ends;
    const bool endsWithLineEnd = length > 0 && (end[-1] == '\r' || end[-1] == '\n');
    return ends + (length > 0 && !endsWithLineEnd ? 1 : 0);
}

void CTextZone::ReserveLines(long long nLines) {
    // Filled in order, a store of capacity g grows only when it holds g * g
    // lines; growing the empty store first leaves the same blocks at the end.
    while (static_cast<long long>(m_nGranularity) * m_nGranularity < nLines)
        ExtendGranularity();
}
