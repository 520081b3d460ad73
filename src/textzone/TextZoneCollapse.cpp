// Closing and opening blocks. A closed block keeps its first line visible and
// hides the others (block flag 4, height 0); numbering never changes. Besides
// the blocks of the language there are alternate blocks: any run of lines the
// user collapsed, which exist only while closed.
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "textzone/TextZone.h"

namespace {

long long EndOf(const CEditBlk& blk) {
    return static_cast<long long>(blk.m_nFirstLine) + blk.m_nLineCount;
}

// Sets the hidden flag on the lines [nFrom, nTo), stopping at a missing line.
// Returns whether any line was there.
bool HideLines(CTextZone& zone, long long nFrom, long long nTo) {
    bool bAny = false;
    for (long long n = nFrom; n < nTo; ++n) {
        CStringEx* pLine = zone.GetLine(static_cast<int>(n));
        if (!pLine) break;
        pLine->m_dwBlockFlags |= BF_HIDDEN;
        bAny = true;
    }
    return bAny;
}

}  // namespace

int CTextZone::OpenBlock(int nLine, int bUpdate) {
    auto itAlt = FindBlockAt(m_altBlocks, nLine);
    auto itEdit = FindBlockAt(m_editBlocks, nLine);
    CEditBlk* pEdit = itEdit != m_editBlocks.end() ? itEdit->get() : nullptr;
    CEditBlk* pBlk = nullptr;
    bool bChanged = false;
    long long nEnd = 0;
    if (itAlt != m_altBlocks.end()) {
        pBlk = itAlt->get();
        nEnd = EndOf(*pBlk);
        if (pEdit && pEdit->m_bClosed) {
            // The language's block on the same head opens with it; its lines
            // must come back too, or they would stay hidden under an open head.
            pEdit->m_bClosed = 0;
            nEnd = std::max(nEnd, EndOf(*pEdit));
            bChanged = true;
        }
    } else if (pEdit) {
        pBlk = pEdit;
        nEnd = EndOf(*pEdit);
    } else {
        return 0;
    }

    if (pBlk->m_bClosed) bChanged = true;
    pBlk->m_bClosed = 0;
    if (CStringEx* pHead = nLine >= 0 ? GetLine(nLine) : nullptr) {
        DWORD dwFlags =
            (pHead->m_dwBlockFlags & ~(BF_OPEN_HEAD | BF_CLOSED_HEAD)) | (pEdit ? 1u : 0u);
        if (dwFlags != pHead->m_dwBlockFlags) bChanged = true;
        pHead->m_dwBlockFlags = dwFlags;
    }

    // Inside a block that is still closed, the lines stay hidden by it.
    const bool bParentClosed = pBlk == pEdit && pEdit->m_pParent && pEdit->m_pParent->IsClosed();
    if (!bParentClosed) {
        auto show = [&bChanged](CStringEx* pLine) {
            if (pLine->m_dwBlockFlags & BF_HIDDEN) bChanged = true;
            pLine->m_dwBlockFlags &= ~BF_HIDDEN;
        };
        // An alternate block may lie in a closed block of the language,
        // whose lines stay hidden: those blocks round its lines, found once.
        std::vector<const CEditBlk*> closedRound;
        if (pBlk != pEdit)
            for (const auto& p : m_editBlocks)
                if (p->m_nFirstLine < nEnd && EndOf(*p) > nLine + 1 && p->IsClosed())
                    closedRound.push_back(p.get());
        auto itInner = BlocksAfter(m_editBlocks, nLine);
        for (long long n = static_cast<long long>(nLine) + 1; n < nEnd;) {
            CStringEx* pLine = GetLine(static_cast<int>(n));
            if (!pLine) break;
            while (itInner != m_editBlocks.end() && (*itInner)->m_nFirstLine < n)
                ++itInner;
            if (itInner != m_editBlocks.end() && (*itInner)->m_nFirstLine == n &&
                (*itInner)->IsClosed()) {
                // A closed inner block keeps its lines hidden; its head shows
                // unless something round it is still closed.
                const CEditBlk& inner = **itInner;
                if (!inner.m_pParent || !inner.m_pParent->IsClosed()) show(pLine);
                n = std::max(n + 1, EndOf(inner));
                ++itInner;
                continue;
            }
            const bool covered = std::any_of(closedRound.begin(), closedRound.end(), [n](auto* p) {
                return p->m_nFirstLine < n && n < EndOf(*p);
            });
            if (!covered) show(pLine);
            ++n;
        }
    }

    if (itAlt != m_altBlocks.end()) {
        m_altBlocks.erase(itAlt);
        bChanged = true;
    }
    if (!bChanged) return 0;
    RedrawLines(nLine, TZ_TO_END, bUpdate);
    return 1;
}

int CTextZone::CloseBlock(int nLine, int bUpdate) {
    auto it = FindBlockAt(m_editBlocks, nLine);
    if (it == m_editBlocks.end()) return 0;
    CEditBlk* pBlk = it->get();
    const long long nEnd = EndOf(*pBlk);

    // Alternate blocks starting inside: one that sticks out makes the whole
    // run one alternate block; the others give way to this block.
    std::vector<std::pair<int, long long>> inside;
    for (auto itAlt = BlocksFrom(m_altBlocks, nLine);
         itAlt != m_altBlocks.end() && (*itAlt)->m_nFirstLine < nEnd; ++itAlt)
        inside.emplace_back((*itAlt)->m_nFirstLine, EndOf(**itAlt));
    for (const auto& [nFirst, nAltEnd] : inside) {
        if (nAltEnd > nEnd)
            return CreateClosedAltBlock(nLine, static_cast<int>(nAltEnd - nLine), bUpdate);
        OpenBlock(nFirst, 0);
    }

    CStringEx* pHead = GetLine(nLine);
    if (!pHead) return 0;
    pHead->m_dwBlockFlags = (pHead->m_dwBlockFlags & ~BF_OPEN_HEAD) | 2u;
    pBlk->m_bClosed = 1;
    HideLines(*this, static_cast<long long>(nLine) + 1, nEnd);
    RedrawLines(nLine, TZ_TO_END, bUpdate);
    return 1;
}

int CTextZone::CreateClosedAltBlock(int nLine, int nCount, int bUpdate) {
    // A block of no lines has nothing to show or hide.
    if (nLine < 0 || nCount < 1) return 0;
    const long long nEnd = static_cast<long long>(nLine) + nCount;

    std::vector<int> inner;
    for (auto itAlt = BlocksAfter(m_altBlocks, nLine);
         itAlt != m_altBlocks.end() && (*itAlt)->m_nFirstLine < nEnd; ++itAlt)
        inner.push_back((*itAlt)->m_nFirstLine);
    for (int nFirst : inner)
        OpenBlock(nFirst, 0);

    auto it = FindBlockAt(m_altBlocks, nLine);
    if (it != m_altBlocks.end()) {
        CEditBlk& blk = **it;
        if (blk.m_nLineCount == nCount) return 1;
        if (blk.m_nLineCount < nCount) {
            const long long nFrom = std::max(EndOf(blk), static_cast<long long>(nLine) + 1);
            const bool bAny = HideLines(*this, nFrom, nEnd);
            blk.m_nLineCount = nCount;
            if (bAny) RedrawLines(nLine, TZ_TO_END, bUpdate);
            return bAny ? 1 : 0;
        }
        OpenBlock(nLine, 0);
    }

    // The head is checked before the block is made, so that no block is
    // left standing for a line that is not there.
    CStringEx* pHead = GetLine(nLine);
    if (!pHead) return 0;
    auto pNew = std::make_unique<CEditBlk>(nullptr);
    pNew->m_nFirstLine = nLine;
    pNew->m_nLineCount = nCount;
    pNew->m_bClosed = 1;
    m_altBlocks.insert(BlocksAfter(m_altBlocks, nLine), std::move(pNew));

    pHead->m_dwBlockFlags = (pHead->m_dwBlockFlags & ~BF_OPEN_HEAD) | 2u;
    HideLines(*this, static_cast<long long>(nLine) + 1, nEnd);
    RedrawLines(nLine, TZ_TO_END, bUpdate);
    return 1;
}

namespace {

// One block a status string closes: its head becomes a closed head and the
// lines behind it up to nEnd are hidden. pBlk is the edit block, or null
// for an alternate block of nCount lines.
struct SavedClosing {
    int nHead;
    long long nEnd;
    CEditBlk* pBlk;
    int nCount;
};

void Prefetch(const void* p) {
#if defined(__GNUC__)
    __builtin_prefetch(p, 1);
#else
    (void)p;
#endif
}

}  // namespace

bool CTextZone::CloseSavedBlocks(std::vector<int>& heads,
                                 const std::vector<std::pair<int, int>>& alternates) {
    // An alternate block opens the alternate blocks that begin inside it or
    // on its head, and closing an edit block opens those that begin inside
    // it: with alternate blocks already there, or saved ones out of order,
    // each call depends on those before it, and the calls are left to do it.
    if (!m_altBlocks.empty()) return false;
    std::vector<SavedClosing> alt;
    alt.reserve(alternates.size());
    for (const auto& [nLine, nCount] : alternates) {
        if (nLine < 0 || nCount < 1) continue;  // that call changes nothing
        if (!alt.empty() && nLine <= alt.back().nHead) return false;
        alt.push_back({nLine, static_cast<long long>(nLine) + nCount, nullptr, nCount});
    }

    // Without alternate blocks a close neither meets another nor depends
    // on their order: each marks its head and hides its lines, and a head
    // without an edit block is passed over.
    if (!std::is_sorted(heads.begin(), heads.end())) std::sort(heads.begin(), heads.end());
    heads.erase(std::unique(heads.begin(), heads.end()), heads.end());
    std::vector<SavedClosing> edit;
    edit.reserve(heads.size());
    auto itBlk = m_editBlocks.begin();
    for (int nHead : heads) {
        itBlk = std::lower_bound(itBlk, m_editBlocks.end(), nHead,
                                 [](const auto& pBlk, int n) { return pBlk->m_nFirstLine < n; });
        if (itBlk == m_editBlocks.end()) break;
        if ((*itBlk)->m_nFirstLine == nHead)
            edit.push_back({nHead, EndOf(**itBlk), itBlk->get(), 0});
    }

    std::vector<SavedClosing> all(edit.size() + alt.size());
    std::merge(edit.begin(), edit.end(), alt.begin(), alt.end(), all.begin(),
               [](const SavedClosing& a, const SavedClosing& b) { return a.nHead < b.nHead; });

    // The hidden flag is set straight on the lines with the store's place in
    // hand, so the slot's bit and the block's count follow without a search.
    auto hide = [this](int b, int i) {
        CStringEx* pLine = m_ppBlocks[b][i];
        const DWORD dw = pLine->m_dwBlockFlags;
        if (dw & BF_HIDDEN) return;
        pLine->m_dwBlockFlags.SetUnnoted(dw | BF_HIDDEN);
        if (m_bLengthsStale) return;
        int& slot = m_ppLengths[b][i];
        if (slot & kSlotHidden) return;
        slot |= kSlotHidden;
        if (m_pBlockHidden[b] >= 0) ++m_pBlockHidden[b];
    };

    // One walk down the store with two places: the last head and the last
    // hidden line. Both only move forward, since the heads are in order and
    // lines already hidden in this walk are not visited again. A head that
    // is not in the text ends the walk: no later one is either.
    int hb = 0, hi = 0;  // place of the head at nHeadLine
    int sb = 0, si = 0;  // place of the line at nHideLine
    int nHeadLine = -1;
    long long nHideLine = -1;
    long long nHiddenTo = 0;  // the lines before it are done
    std::size_t nDone = 0;    // the closings whose head is there
    for (std::size_t k = 0; k < all.size(); ++k) {
        const SavedClosing& c = all[k];
        // The lines lie apart on the heap, each a cache miss: those of the
        // block a few entries ahead are asked for now, when they lie in the
        // store block of the head at hand, so that the misses overlap.
        constexpr std::size_t kAhead = 4;
        if (nHeadLine >= 0 && k + kAhead < all.size()) {
            const SavedClosing& ahead = all[k + kAhead];
            const long long nAt = hi + static_cast<long long>(ahead.nHead - nHeadLine);
            const long long nTo = std::min<long long>(
                nAt + std::min<long long>(ahead.nEnd - ahead.nHead, 8), m_pBlockSizes[hb]);
            for (long long i = nAt; i < nTo; ++i)
                Prefetch(&m_ppBlocks[hb][i]->m_dwBlockFlags);
        }
        const bool bHead = nHeadLine < 0 ? GetLineIndexes(c.nHead, &hb, &hi) != 0
                                         : AdvanceSlot(&hb, &hi, c.nHead - nHeadLine);
        if (!bHead) break;
        nHeadLine = c.nHead;
        ++nDone;
        CStringEx* pHead = m_ppBlocks[hb][hi];
        pHead->m_dwBlockFlags = (pHead->m_dwBlockFlags & ~BF_OPEN_HEAD) | BF_CLOSED_HEAD;

        const long long nFrom = std::max(static_cast<long long>(c.nHead) + 1, nHiddenTo);
        nHiddenTo = std::max(nHiddenTo, c.nEnd);
        if (nFrom >= c.nEnd) continue;
        if (nHideLine < nHeadLine) {
            sb = hb;
            si = hi;
            nHideLine = nHeadLine;
        }
        bool bLine = AdvanceSlot(&sb, &si, static_cast<int>(nFrom - nHideLine));
        for (nHideLine = nFrom; bLine && nHideLine < c.nEnd; ++nHideLine) {
            hide(sb, si);
            bLine = ++si < m_pBlockSizes[sb] || AdvanceSlot(&sb, &si, 0);
        }
    }

    for (std::size_t k = 0; k < nDone; ++k) {
        const SavedClosing& c = all[k];
        if (c.pBlk) {
            c.pBlk->m_bClosed = 1;
            continue;
        }
        auto pNew = std::make_unique<CEditBlk>(nullptr);
        pNew->m_nFirstLine = c.nHead;
        pNew->m_nLineCount = c.nCount;
        pNew->m_bClosed = 1;
        m_altBlocks.push_back(std::move(pNew));
    }
    return true;
}
