// A routine call the caret stands in. The zone keeps them as a stack, the
// innermost call last.
#pragma once

#include "host/VeskString.h"

class CParmCompSet;

class COpenParmComp {
public:
    int nLine = 0;  // line of the trigger
    int nChar = 0;  // column behind the trigger
    int nKind = 0;
    VESK::String strName;
    CParmCompSet* pSet = nullptr;  // the zone's answer, null while awaited
};
