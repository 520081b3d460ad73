// One answer of the host about a routine: what the tooltip shows for it and
// the parameter names typed for the user. Sets live as long as their zone.
#pragma once

#include "host/VeskString.h"

class CParmCompSet {
public:
    int nKind = 0;  // 1 a call with parentheses, 0 a call in the style of exec
    VESK::String strName;
    VESK::String strTitle;
    VESK::String strParms;  // the shown parameter texts, separated by commas
    VESK::String strNames;  // the names typed for the user, separated by commas
    int nParmCount = 0;     // commas in strParms plus 1, or 0 when it is empty
};
