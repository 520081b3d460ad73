// One collapsible block of lines: its first line stays visible when closed.
#pragma once

class CEditBlk {
public:
    explicit CEditBlk(CEditBlk* pParent = nullptr) : m_pParent(pParent) {}

    // 1 if this block or one that encloses it is closed.
    int IsClosed() const {
        for (const CEditBlk* b = this; b; b = b->m_pParent)
            if (b->m_bClosed) return 1;
        return 0;
    }

    CEditBlk* m_pParent;  // innermost enclosing block, or null
    int m_nFirstLine = 0;
    int m_nLineCount = 0;  // the first line included
    int m_bClosed = 0;
};
