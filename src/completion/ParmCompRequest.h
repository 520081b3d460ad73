// A question put to the host that has no answer yet: while it is out the
// same routine is not asked about again.
#pragma once

#include "host/VeskString.h"

class CParmCompRequest {
public:
    int nKind = 0;
    VESK::String strName;
};
