// Closing and opening blocks. A closed block keeps its first line visible and
// hides the others (block flag 4, height 0); numbering never changes. Besides
// the blocks of the language there are alternate blocks: any run of lines the
// user collapsed, which exist only while closed.
#include <algorithm>
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
