// A line of a coloured zone: the text and the state the line starts in,
// which the colouring computes and caches (0 means not computed). The state
// is never saved with the line's specific info: it can always be computed
// again.
#pragma once

#include <cstdint>

#include "TextzoneExport.h"
#include "textzone/StringEx.h"

class TEXTZONE_EXPORT CStringExColor : public CStringEx {
public:
    CStringExColor() = default;
    explicit CStringExColor(const char* psz) : CStringEx(psz) {}
    CStringExColor(const CStringExColor& src) = default;
    CStringExColor& operator=(const CStringExColor& src) = default;

    // 1 when the visible text has at least two characters and the line ends
    // in a blank or a tab and "_": a Visual Basic line that goes on.
    virtual int IsVBContinueEnding();

    std::uint32_t m_nStartType = 0;
};
