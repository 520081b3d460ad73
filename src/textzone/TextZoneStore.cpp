// The line store: a directory of blocks of line pointers. Inserting or
// removing a line shifts at most one block (or the directory), and the
// block capacity follows the square root of the line count, so texts of
// millions of lines stay cheap to edit in the middle.
#include <algorithm>
#include <climits>
#include <cstring>
#include <unordered_set>
#include <vector>

#include "platform/Caret.h"
#include "platform/Wnd.h"
#include "textzone/TextZone.h"

namespace {

void MoveEntries(CStringEx** pTo, CStringEx** pFrom, int nCount) {
    if (nCount > 0) std::memmove(pTo, pFrom, sizeof(CStringEx*) * static_cast<size_t>(nCount));
}

// Blocks left behind may still name a destroyed block as their parent; a
// parent walk must stop there instead of reading freed memory.
void ForgetParents(BlockList& blocks, const std::unordered_set<const CEditBlk*>& gone) {
    for (auto& blk : blocks)
        if (blk->m_pParent && gone.count(blk->m_pParent)) blk->m_pParent = nullptr;
}

}  // namespace

CTextZone::CTextZone() {
    m_ppBlocks = std::make_unique<std::unique_ptr<CStringEx*[]>[]>(m_nGranularity);
    m_pBlockSizes = std::make_unique<int[]>(m_nGranularity);
    m_ppLengths = std::make_unique<std::unique_ptr<int[]>[]>(m_nGranularity);
    m_pBlockLongest = std::make_unique<int[]>(m_nGranularity);
    m_pBlockHidden = std::make_unique<int[]>(m_nGranularity);
    m_crBookmark[0] = 0x00FF00;
    for (int i = 1; i < 16; ++i)
        m_crBookmark[i] = static_cast<COLORREF>((i * 16) | ((255 - i * 16) << 16));
    SetColors(static_cast<COLORREF>(-1), static_cast<COLORREF>(-1), static_cast<COLORREF>(-1),
              static_cast<COLORREF>(-1));
}

CTextZone::~CTextZone() {
    if (m_bCaretShown) {
        ::HideCaret(m_pWnd ? m_pWnd->GetSafeHwnd() : nullptr);
        ::DestroyCaret();
        m_bCaretShown = 0;
    }
    CTextZone::FreeAllLines();
    m_pCurrentOperation.reset();
    m_undoList.clear();
    m_redoList.clear();
    ReleaseIndex(m_nZoneIndex);
}

CStringEx* CTextZone::CreateLine() {
    return NewLine<CStringEx>();
}

void CTextZone::DestroyLine(CStringEx* pLine) {
    if (m_linePool.OwnsLine(pLine)) {
        pLine->~CStringEx();
        m_linePool.FreeLine(pLine);
    } else {
        delete pLine;
    }
}

void CTextZone::SetLoadedLine(CStringEx* pLine, const char* pszText, int nCount, bool bEnded) {
    const int length = nCount + (bEnded ? 1 : 0);
    char* bytes = m_linePool.AllocateText(static_cast<size_t>(length) + 1);
    std::memcpy(bytes, pszText, static_cast<size_t>(nCount));
    if (bEnded) bytes[nCount] = 13;
    bytes[length] = '\0';
    pLine->AdoptBytes(bytes, length);
}

int CTextZone::GetLineIndexes(int nLine, int* pBlock, int* pIndex) {
    const int* sizes = m_pBlockSizes.get();
    int b = 0;
    int i = nLine;
    auto walkForward = [&](int nBlock, int nBase) {
        while (nBlock < m_nBlockCount && nBase + sizes[nBlock] <= nLine)
            nBase += sizes[nBlock++];
        b = nBlock;
        i = nLine - nBase;
    };

    if (nLine < 0) {
        // No such place; the outputs still say where the walk would stand.
    } else if (nLine == m_nCacheLine) {
        b = m_nCacheBlock;
        i = m_nCacheIndex;
    } else if (m_nCacheLine < 0) {
        walkForward(0, 0);
    } else {
        int base = m_nCacheLine - m_nCacheIndex;
        if (nLine > m_nCacheLine) {
            walkForward(m_nCacheBlock, base);
        } else if (nLine >= base) {
            b = m_nCacheBlock;
            i = m_nCacheIndex - m_nCacheLine + nLine;
        } else if (nLine <= m_nCacheLine / 2) {
            // Nearer to the start than to the cache: walk from block 0.
            walkForward(0, 0);
        } else {
            b = m_nCacheBlock;
            while (b > 0 && nLine < base)
                base -= sizes[--b];
            i = nLine - base;
        }
    }

    if (pBlock) *pBlock = b;
    if (pIndex) *pIndex = i;
    if (nLine < 0 || b >= m_nBlockCount || i < 0 || i >= sizes[b]) return 0;
    m_nCacheLine = nLine;
    m_nCacheBlock = b;
    m_nCacheIndex = i;
    RememberPlace(b, i);
    return 1;
}

CStringEx* CTextZone::InsertLine(int nLine) {
    m_bCheckValid = false;
    CStringEx* pNew = CreateLine();
    if (!pNew) return nullptr;
    if (nLine < 0) {
        DestroyLine(pNew);
        return nullptr;
    }

    for (;;) {
        const int g = m_nGranularity;
        if (nLine > 0 && !GetLine(nLine - 1)) {
            DestroyLine(pNew);
            return nullptr;
        }

        int b = 0;
        int i = 0;
        if (!GetLineIndexes(nLine, &b, &i)) {
            if (nLine > 0) {
                GetLineIndexes(nLine - 1, &b, &i);
                if (++i >= g) {
                    ++b;
                    i = 0;
                }
            } else {
                b = 0;
                i = 0;
            }
        }

        if (b >= m_nBlockCount) {
            if (m_nBlockCount < g) {
                NewStoreBlock(b);
                PutSlot(b, 0, pNew);
                m_pBlockSizes[b] = 1;
                ++m_nBlockCount;
                break;
            }
            ExtendGranularity();
            continue;
        }

        int& size = m_pBlockSizes[b];
        // Moves the last entry of the full block b to the front of b + 1 and
        // makes room at i.
        auto spillForward = [&] {
            MoveSlots(b + 1, 1, b + 1, 0, m_pBlockSizes[b + 1]);
            MoveSlots(b + 1, 0, b, g - 1, 1);
            ++m_pBlockSizes[b + 1];
            MoveSlots(b, i + 1, b, i, g - 1 - i);
            PutSlot(b, i, pNew);
        };

        if (size < g) {
            MoveSlots(b, i + 1, b, i, size - i);
            PutSlot(b, i, pNew);
            ++size;
        } else if (b > 0 && m_pBlockSizes[b - 1] < g) {
            const int end = m_pBlockSizes[b - 1]++;
            if (i - 1 < 0) {
                PutSlot(b - 1, end, pNew);
            } else {
                MoveSlots(b - 1, end, b, 0, 1);
                MoveSlots(b, 0, b, 1, i - 1);
                PutSlot(b, i - 1, pNew);
            }
            m_nCacheLine = -1;
        } else if (b + 1 >= m_nBlockCount && m_nBlockCount < g) {
            NewStoreBlock(b + 1);
            m_pBlockSizes[b + 1] = 0;
            ++m_nBlockCount;
            spillForward();
        } else if (b + 1 < m_nBlockCount && m_pBlockSizes[b + 1] < g) {
            spillForward();
        } else if (m_nBlockCount < g && b + 1 < g) {
            MoveDirectory(b + 2, b + 1);
            ++m_nBlockCount;
            NewStoreBlock(b + 1);
            m_pBlockSizes[b + 1] = 0;
            spillForward();
        } else {
            ExtendGranularity();
            continue;
        }
        break;
    }

    ++m_nLineCount;
    for (auto& blk : m_editBlocks) {
        if (blk->m_nFirstLine < nLine &&
            nLine < static_cast<long long>(blk->m_nFirstLine) + blk->m_nLineCount &&
            blk->m_nLineCount < INT_MAX)
            ++blk->m_nLineCount;
        if (blk->m_nFirstLine >= nLine) ++blk->m_nFirstLine;
    }
    return pNew;
}

int CTextZone::ExtendGranularity() {
    const int g = m_nGranularity + 10;
    auto blocks = std::make_unique<std::unique_ptr<CStringEx*[]>[]>(g);
    auto lengths = std::make_unique<std::unique_ptr<int[]>[]>(g);
    auto sizes = std::make_unique<int[]>(g);
    auto longest = std::make_unique<int[]>(g);
    auto hidden = std::make_unique<int[]>(g);
    // Every block is written before it is read, so none is zero-filled.
    auto newBlock = [&](int nBlock) {
        blocks[nBlock] = std::make_unique_for_overwrite<CStringEx*[]>(static_cast<size_t>(g));
        lengths[nBlock] = std::make_unique_for_overwrite<int[]>(static_cast<size_t>(g));
        longest[nBlock] = -1;
        hidden[nBlock] = -1;
    };
    int nBlock = 0;
    int nFill = 0;
    newBlock(0);
    for (int b = 0; b < m_nBlockCount; ++b) {
        CStringEx** source = m_ppBlocks[b].get();
        const int* sourceLengths = m_ppLengths[b].get();
        for (int nLeft = m_pBlockSizes[b]; nLeft > 0;) {
            int n = std::min(nLeft, g - nFill);
            MoveEntries(blocks[nBlock].get() + nFill, source, n);
            std::memcpy(lengths[nBlock].get() + nFill, sourceLengths,
                        sizeof(int) * static_cast<size_t>(n));
            source += n;
            sourceLengths += n;
            nLeft -= n;
            nFill += n;
            if (nFill == g) {
                sizes[nBlock++] = g;
                newBlock(nBlock);
                nFill = 0;
            }
        }
    }
    sizes[nBlock] = nFill;

    m_ppBlocks = std::move(blocks);
    m_ppLengths = std::move(lengths);
    m_pBlockSizes = std::move(sizes);
    m_pBlockLongest = std::move(longest);
    m_pBlockHidden = std::move(hidden);
    m_nGranularity = g;
    m_nBlockCount = nBlock + 1;
    m_nCacheLine = -1;
    return 1;
}

void CTextZone::RemoveLines(int nFirst, int nCount) {
    m_bCheckValid = false;
    int b0 = 0;
    int i0 = 0;
    if (!GetLineIndexes(nFirst, &b0, &i0)) return;
    if (nCount < 1) return;

    const long long nEnd = static_cast<long long>(nFirst) + nCount;
    // The blocks that stay are packed towards the front in one pass.
    std::vector<std::unique_ptr<CEditBlk>> gone;
    auto kept = m_editBlocks.begin();
    for (auto it = m_editBlocks.begin(); it != m_editBlocks.end(); ++it) {
        CEditBlk& blk = **it;
        if (blk.m_nFirstLine >= nEnd) {
            blk.m_nFirstLine -= nCount;
        } else if (blk.m_nFirstLine >= nFirst) {
            gone.push_back(std::move(*it));
            continue;
        } else if (blk.m_nFirstLine + blk.m_nLineCount > nEnd) {
            // The run lies inside the block: the block loses just those lines,
            // and keeps the ones behind them (hidden ones among them).
            blk.m_nLineCount -= nCount;
        } else if (blk.m_nFirstLine + blk.m_nLineCount > nFirst) {
            blk.m_nLineCount = nFirst - blk.m_nFirstLine;
        }
        if (kept != it) *kept = std::move(*it);
        ++kept;
    }
    m_editBlocks.erase(kept, m_editBlocks.end());
    // Lines of a closed block whose first line goes would stay hidden with
    // no head left to open them: they are shown again below.
    std::vector<std::pair<long long, long long>> orphaned;
    for (auto& blk : gone) {
        const long long end = static_cast<long long>(blk->m_nFirstLine) + blk->m_nLineCount;
        if (blk->IsClosed() && end > nEnd) orphaned.emplace_back(nFirst, end - nCount);
    }
    if (!gone.empty()) {
        std::unordered_set<const CEditBlk*> set;
        for (auto& blk : gone)
            set.insert(blk.get());
        ForgetParents(m_editBlocks, set);
        ForgetParents(m_inputBlocks, set);
        ForgetParents(m_altBlocks, set);
    }

    if (!m_ppBlocks[b0]) return;

    // Destroy the lines; a run that ends with the last line of a block ends
    // at the start of the next one.
    int b1 = b0;
    int i1 = i0;
    for (int n = nCount; n > 0 && b1 < m_nBlockCount;) {
        if (i1 >= m_pBlockSizes[b1]) {
            ++b1;
            i1 = 0;
            continue;
        }
        DestroyLine(m_ppBlocks[b1][i1]);
        m_ppBlocks[b1][i1] = nullptr;
        ForgetLongest(b1);
        ++i1;
        --n;
        --m_nLineCount;
        if (i1 >= m_pBlockSizes[b1]) {
            ++b1;
            i1 = 0;
        }
    }

    auto removeBlocks = [&](int nFrom, int nBlocks) {
        for (int k = nFrom; k < nFrom + nBlocks; ++k)
            FreeStoreBlock(k);
        MoveDirectory(nFrom, nFrom + nBlocks);
        for (int k = m_nBlockCount - nBlocks; k < m_nBlockCount; ++k)
            m_pBlockSizes[k] = 0;
        m_nBlockCount -= nBlocks;
    };

    if (b1 > b0 + 1) {
        removeBlocks(b0 + 1, b1 - b0 - 1);
        b1 = b0 + 1;
    }

    const int g = m_nGranularity;
    if (b1 == b0) {
        MoveSlots(b0, i0, b0, i1, m_pBlockSizes[b0] - i1);
        m_pBlockSizes[b0] -= i1 - i0;
    } else {
        m_pBlockSizes[b0] = i0;
        if (i1 > 0) {
            MoveSlots(b1, 0, b1, i1, m_pBlockSizes[b1] - i1);
            m_pBlockSizes[b1] -= i1;
        }
        if (b1 < m_nBlockCount && m_pBlockSizes[b0] + m_pBlockSizes[b1] < g) {
            MoveSlots(b0, m_pBlockSizes[b0], b1, 0, m_pBlockSizes[b1]);
            m_pBlockSizes[b0] += m_pBlockSizes[b1];
            removeBlocks(b1, 1);
            m_nCacheLine = -1;
        }
    }
    if (m_pBlockSizes[b0] == 0) {
        removeBlocks(b0, 1);
        m_nCacheLine = -1;
    }
    // With no line left, no byte of the line memory is in use.
    if (m_nLineCount == 0) m_linePool.Reset();
    for (const auto& [from, to] : orphaned)
        ShowOrphanedLines(static_cast<int>(from), static_cast<int>(to));
    // The cache may now name nFirst behind b0's end (a null for that one lookup);
    // callers tolerate a missing line and the next other lookup heals it.
}

void CTextZone::ShowOrphanedLines(int nFrom, int nTo) {
    // A line inside a block that is still closed stays hidden by that block.
    auto hiddenBy = [](const BlockList& blocks, int nLine, bool bTree) {
        for (const auto& blk : blocks) {
            bool closed = bTree ? blk->IsClosed() != 0 : blk->m_bClosed != 0;
            if (closed && blk->m_nFirstLine < nLine &&
                nLine < static_cast<long long>(blk->m_nFirstLine) + blk->m_nLineCount)
                return true;
        }
        return false;
    };
    for (int n = nFrom; n < nTo; ++n) {
        CStringEx* pLine = GetLine(n);
        if (!pLine) break;
        if (!hiddenBy(m_editBlocks, n, true) && !hiddenBy(m_altBlocks, n, false))
            pLine->m_dwBlockFlags &= ~BF_HIDDEN;
    }
}

void CTextZone::FreeAllLines() {
    m_bCheckValid = false;
    for (int b = 0; b < m_nBlockCount; ++b) {
        for (int k = 0; k < m_pBlockSizes[b]; ++k) {
            // A pooled line's memory goes with the pool below.
            CStringEx* pLine = m_ppBlocks[b][k];
            if (m_linePool.OwnsLine(pLine))
                pLine->~CStringEx();
            else
                delete pLine;
        }
        FreeStoreBlock(b);
        m_pBlockSizes[b] = 0;
    }
    m_nBlockCount = 0;
    // The lines' memory goes in a few blocks instead of one by one.
    m_linePool.Reset();
    m_bLengthsStale = false;
    m_nLineCount = 0;
    m_nCurrentLength = 0;
    m_nCacheLine = -1;
    m_nCacheBlock = 0;
    m_nCacheIndex = 0;

    if (!m_editBlocks.empty()) {
        std::unordered_set<const CEditBlk*> set;
        for (auto& blk : m_editBlocks)
            set.insert(blk.get());
        ForgetParents(m_inputBlocks, set);
        ForgetParents(m_altBlocks, set);
        m_editBlocks.clear();
    }
}

CStringEx* CTextZone::GetLine(int nLine) {
    if (nLine < 0) nLine = 0;
    int b = 0;
    int i = 0;
    return GetLineIndexes(nLine, &b, &i) ? m_ppBlocks[b][i] : nullptr;
}

int CTextZone::GetLineCount() {
    return m_nLineCount;
}

int CTextZone::GetLastLineIndex() {
    return m_nLineCount > 0 ? m_nLineCount - 1 : 0;
}
