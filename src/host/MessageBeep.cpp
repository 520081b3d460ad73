#include "host/MessageBeep.h"

#include "platform/Platform.h"

BOOL VESKMessageBeep(UINT uType) {
    return MessageBeep(uType);
}
