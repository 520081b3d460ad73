// Collapsible blocks: where they are. The language code (or the host) tells
// the zone its blocks one by one or as a whole new set after a rescan; the
// closed state carries over to the blocks that keep their head line.
#include <algorithm>
#include <climits>

#include "textzone/TextZone.h"

namespace {

long long EndOf(const CEditBlk& blk) {
    return static_cast<long long>(blk.m_nFirstLine) + blk.m_nLineCount;
}

// Marks a line as the head of an open block. A head that another block
// keeps closed stays closed: the two head bits exclude each other.
void MarkOpenHead(CStringEx* pLine) {
    if (pLine && !(pLine->m_dwBlockFlags & BF_CLOSED_HEAD)) pLine->m_dwBlockFlags |= BF_OPEN_HEAD;
}

// A range of lines to redraw, empty until the first line is added.
struct LineRange {
    int nFirst = INT_MAX;
    int nLast = -1;
    void Add(int nFrom, int nTo) {
        nFirst = std::min(nFirst, nFrom);
        nLast = std::max(nLast, nTo);
    }
    bool IsEmpty() const { return nLast < nFirst; }
};

void ToggleHeadAtCaret(CTextZone& zone) {
    if (!zone.IsBlockMode() || zone.TestSelection() || zone.m_nSelStartLine < 0) return;
    const int nLine = zone.m_nSelStartLine;
    CStringEx* pLine = zone.GetLine(nLine);
    if (!pLine) return;
    if ((pLine->m_dwBlockFlags & (BF_OPEN_HEAD | BF_CLOSED_HEAD)) == BF_OPEN_HEAD)
        zone.CloseBlock(nLine, 1);
    else if ((pLine->m_dwBlockFlags & (BF_OPEN_HEAD | BF_CLOSED_HEAD)) == BF_CLOSED_HEAD)
        zone.OpenBlock(nLine, 1);
}

}  // namespace

int CTextZone::SetEditBlock(int nLine, int nCount) {
    // No block reaches beyond the text.
    if (nLine >= 0) nCount = std::min(nCount, GetLineCount() - nLine);
    const long long nEnd = static_cast<long long>(nLine) + nCount;
    if (auto itAt = FindBlockAt(m_editBlocks, nLine); itAt != m_editBlocks.end()) {
        CEditBlk* pBlk = itAt->get();
        if (pBlk->m_nLineCount == nCount) return 1;
        // The extent changes, so the nesting round it may change too.
        for (auto& pOther : m_editBlocks) {
            CEditBlk* pB = pOther.get();
            if (pB == pBlk) continue;
            if (pB->m_nFirstLine > nLine && EndOf(*pB) <= nEnd &&
                (!pB->m_pParent || pB->m_pParent == pBlk))
                pB->m_pParent = pBlk;
            if (pB->m_nFirstLine <= nLine && EndOf(*pB) >= nEnd &&
                (!pBlk->m_pParent || pBlk->m_pParent == pB))
                pBlk->m_pParent = pB;
        }
        pBlk->m_nLineCount = nCount;
        return 1;
    }

    CStringEx* pHead = nLine >= 0 ? GetLine(nLine) : nullptr;
    if (!pHead) return 0;
    MarkOpenHead(pHead);

    auto pos = BlocksAfter(m_editBlocks, nLine);
    // The innermost enclosing block is the last one before it that reaches
    // at least as far.
    CEditBlk* pParent = nullptr;
    for (auto it = pos; it != m_editBlocks.begin();) {
        --it;
        if (EndOf(**it) >= nEnd) {
            pParent = it->get();
            break;
        }
    }
    auto pNew = std::make_unique<CEditBlk>(pParent);
    pNew->m_nFirstLine = nLine;
    pNew->m_nLineCount = nCount;
    CEditBlk* pBlk = pNew.get();
    pos = std::next(m_editBlocks.insert(pos, std::move(pNew)));

    // Blocks inside the new one take it as parent, unless they already sit in
    // a block that is itself inside it.
    auto inside = [&](const CEditBlk* pB) {
        return pB->m_nFirstLine > nLine && EndOf(*pB) <= nEnd;
    };
    for (auto it = pos; it != m_editBlocks.end() && (*it)->m_nFirstLine < nEnd; ++it) {
        CEditBlk* pB = it->get();
        if (inside(pB) && !(pB->m_pParent && inside(pB->m_pParent))) pB->m_pParent = pBlk;
    }
    return 1;
}

void CTextZone::BeginEditBlockInput() {
    m_inputBlocks.clear();
}

int CTextZone::AddEditBlockInput(int nLine, int nCount) {
    // Only a block on a line of the text is taken, before any sum is made.
    if (nLine < 0 || !GetLine(nLine)) return 0;
    if (nCount < 0 || nCount > GetLineCount() - nLine) nCount = GetLineCount() - nLine;
    if (auto it = FindBlockAt(m_inputBlocks, nLine); it != m_inputBlocks.end()) {
        // Reported twice: the larger extent wins.
        (*it)->m_nLineCount = std::max((*it)->m_nLineCount, nCount);
        return 1;
    }
    auto pos = BlocksAfter(m_inputBlocks, nLine);
    auto pNew = std::make_unique<CEditBlk>(nullptr);
    pNew->m_nFirstLine = nLine;
    pNew->m_nLineCount = nCount;
    m_inputBlocks.insert(pos, std::move(pNew));
    return 1;
}

void CTextZone::EndEditBlockInput() {
    // Nesting of the new set: outer blocks come first, so the innermost
    // enclosing block is the last to claim a child.
    for (auto it = m_inputBlocks.begin(); it != m_inputBlocks.end(); ++it) {
        const long long nEnd = EndOf(**it);
        for (auto jt = std::next(it); jt != m_inputBlocks.end(); ++jt) {
            if ((*jt)->m_nFirstLine >= nEnd) break;
            if (EndOf(**jt) <= nEnd) (*jt)->m_pParent = it->get();
        }
    }

    // A line is still hidden by another closed block if a new block already
    // walked (the outer ones) or an alternate block covers it.
    auto hiddenElsewhere = [&](int nLine, const CEditBlk* pSelf) {
        auto covers = [nLine](const CEditBlk& blk) {
            return blk.m_bClosed && blk.m_nFirstLine < nLine && nLine < EndOf(blk);
        };
        for (auto& pBlk : m_inputBlocks) {
            if (pBlk.get() == pSelf) break;
            if (covers(*pBlk)) return true;
        }
        return std::any_of(m_altBlocks.begin(), m_altBlocks.end(),
                           [&](const auto& pBlk) { return covers(*pBlk); });
    };

    LineRange range;
    auto itNew = m_inputBlocks.begin();
    auto itOld = m_editBlocks.begin();
    while (itNew != m_inputBlocks.end() || itOld != m_editBlocks.end()) {
        CEditBlk* pNew = itNew != m_inputBlocks.end() ? itNew->get() : nullptr;
        CEditBlk* pOld = itOld != m_editBlocks.end() ? itOld->get() : nullptr;
        if (pNew && (!pOld || pNew->m_nFirstLine < pOld->m_nFirstLine)) {
            MarkOpenHead(GetLine(pNew->m_nFirstLine));
            range.Add(pNew->m_nFirstLine, pNew->m_nFirstLine);
            ++itNew;
        } else if (pNew && pNew->m_nFirstLine == pOld->m_nFirstLine) {
            pNew->m_bClosed = pOld->m_bClosed;
            if (pOld->m_bClosed && pNew->m_nLineCount != pOld->m_nLineCount) {
                // A closed block that shrank shows what it lost; one that grew
                // hides what it won.
                const bool bGrown = pNew->m_nLineCount > pOld->m_nLineCount;
                const int nFrom = pNew->m_nFirstLine +
                                  std::max(1, std::min(pNew->m_nLineCount, pOld->m_nLineCount));
                const int nTo =
                    pNew->m_nFirstLine + std::max(pNew->m_nLineCount, pOld->m_nLineCount);
                for (int n = nFrom; n < nTo; ++n) {
                    CStringEx* pLine = GetLine(n);
                    if (!pLine) break;
                    if (bGrown)
                        pLine->m_dwBlockFlags |= BF_HIDDEN;
                    else if (!hiddenElsewhere(n, pNew))
                        pLine->m_dwBlockFlags &= ~BF_HIDDEN;
                    range.Add(n, n);
                }
            }
            ++itNew;
            ++itOld;
        } else {
            // The head has gone from the new set: nothing may stay hidden under it.
            const int nLine = pOld->m_nFirstLine;
            if (pOld->m_bClosed) {
                OpenBlock(nLine, 0);
                range.Add(nLine, nLine + std::max(0, pOld->m_nLineCount - 1));
            } else {
                range.Add(nLine, nLine);
            }
            if (CStringEx* pLine = GetLine(nLine)) {
                pLine->m_dwBlockFlags &= ~BF_OPEN_HEAD;
                // An alternate block closed on this line keeps its head.
                if (FindBlockAt(m_altBlocks, nLine) == m_altBlocks.end())
                    pLine->m_dwBlockFlags &= ~BF_CLOSED_HEAD;
            }
            ++itOld;
        }
    }

    // No block of the old set is anyone's parent any more: the new set links
    // only among itself and alternate blocks have no parent.
    m_editBlocks = std::move(m_inputBlocks);
    m_inputBlocks.clear();
    if (!range.IsEmpty()) RedrawLines(range.nFirst, range.nLast, 1);
}

void CTextZone::FreeAllEditBlocks() {
    if (m_editBlocks.empty()) return;
    m_editBlocks.clear();
    const int nCount = GetLineCount();
    for (int n = 0; n < nCount; ++n)
        if (CStringEx* pLine = GetLine(n)) pLine->m_dwBlockFlags = 0;
    // With every line shown the alternate blocks are open, and an open
    // alternate block does not exist.
    m_altBlocks.clear();
    RedrawLines(0, TZ_TO_END, 1);
}

// Both keys act on the head under the caret: an open head closes, a closed
// one opens.
void CTextZone::CollapseCurrentSel() {
    ToggleHeadAtCaret(*this);
}

void CTextZone::ExpandCurrentSel() {
    ToggleHeadAtCaret(*this);
}
