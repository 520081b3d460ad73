// The block flags of a line (1 opens an open block, 2 opens a closed one,
// 4 hidden), read and written like the 32-bit value they are. A write that
// changes the hidden flag of a line in a zone's store tells the zone, which
// counts the hidden lines per block for line positions.
#pragma once

#include "platform/Types.h"

// Only a line makes one (the write finds the line at a fixed distance), so
// the value is read out as a DWORD: `DWORD dw = pLine->m_dwBlockFlags`.
class CLineFlags {
    friend class CStringEx;
    friend class CTextZone;  // sets many at once and counts them itself
    CLineFlags() = default;
    CLineFlags(const CLineFlags& src) = default;

public:
    CLineFlags& operator=(const CLineFlags& src) {
        Set(src.m_dw);
        return *this;
    }
    CLineFlags& operator=(DWORD dw) {
        Set(dw);
        return *this;
    }
    CLineFlags& operator|=(DWORD dw) {
        Set(m_dw | dw);
        return *this;
    }
    CLineFlags& operator&=(DWORD dw) {
        Set(m_dw & dw);
        return *this;
    }
    CLineFlags& operator^=(DWORD dw) {
        Set(m_dw ^ dw);
        return *this;
    }
    operator DWORD() const { return m_dw; }

private:
    void Set(DWORD dw) {
        const DWORD dwOld = m_dw;
        m_dw = dw;
        if ((dwOld ^ dw) & 4) NoteHidden();
    }
    void NoteHidden();  // StringEx.cpp: finds the line and tells its zone
    void SetUnnoted(DWORD dw) { m_dw = dw; }

    DWORD m_dw = 0;
};
