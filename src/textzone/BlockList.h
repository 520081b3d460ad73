// The zone's lists of blocks: owned records, sorted by first line, at most one
// block per first line. Shifting lines moves every first line behind an edit
// by the same amount, so the order holds and lookups can bisect.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "textzone/EditBlk.h"

using BlockList = std::vector<std::unique_ptr<CEditBlk>>;

// The first block whose first line is nLine or later.
inline BlockList::iterator BlocksFrom(BlockList& list, int nLine) {
    return std::lower_bound(list.begin(), list.end(), nLine,
                            [](const auto& pBlk, int n) { return pBlk->m_nFirstLine < n; });
}

// The first block whose first line is after nLine.
inline BlockList::iterator BlocksAfter(BlockList& list, int nLine) {
    return std::upper_bound(list.begin(), list.end(), nLine,
                            [](int n, const auto& pBlk) { return n < pBlk->m_nFirstLine; });
}

// The block with first line nLine, or end().
inline BlockList::iterator FindBlockAt(BlockList& list, int nLine) {
    auto it = BlocksFrom(list, nLine);
    return it != list.end() && (*it)->m_nFirstLine == nLine ? it : list.end();
}
