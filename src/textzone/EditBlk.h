// One collapsible run of lines. Its first line stays visible when the block is
// closed; the others are hidden (height 0) but keep their numbers. The zone
// keeps these records in lists sorted by first line and owns them.
#pragma once

#include "TextzoneExport.h"

class TEXTZONE_EXPORT CEditBlk {
public:
    explicit CEditBlk(CEditBlk* pParent) : m_pParent(pParent) {}
    CEditBlk(const CEditBlk&) = default;
    CEditBlk& operator=(const CEditBlk&) = default;

    // 1 if this block or one that encloses it is closed. The zone nulls the
    // parent links of survivors whenever it destroys a block, so the walk
    // never reaches freed memory; parents always begin before their children,
    // so it cannot cycle either.
    int IsClosed() const {
        for (const CEditBlk* pBlk = this; pBlk; pBlk = pBlk->m_pParent)
            if (pBlk->m_bClosed) return 1;
        return 0;
    }

    CEditBlk* m_pParent;   // innermost enclosing block, or null
    int m_nFirstLine = 0;  // the line that stays visible
    int m_nLineCount = 0;  // lines of the block, the first included
    int m_bClosed = 0;
};
