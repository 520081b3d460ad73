// The hover wait of a read-only zone on Qt: input reaches the zone only
// through Qt's own loop, so the wait runs a nested event loop for the
// delay. Timers and painting go on meanwhile; a move to another line or
// any other input to the zone's window ends the wait at once and is then
// delivered as usual. Moves within the line are kept until the wait ends.
#pragma once

#include "TextzoneQtExport.h"
#include "platform/Types.h"

class CTextZoneReadOnly;

class TEXTZONE_QT_EXPORT CQtHoverWait {
public:
    // Makes this the wait of every read-only zone in the process.
    static void Install();
    static bool Wait(CTextZoneReadOnly* pZone, int nLine, DWORD dwDelay);
};
