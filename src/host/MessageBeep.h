// The host family's refusal sound: every refused edit makes it.
#pragma once

#include "platform/Types.h"

BOOL VESKMessageBeep(UINT uType);
