// The host family's refusal sound: every refused edit makes it.
#pragma once

#include "TextzoneExport.h"
#include "platform/Types.h"

TEXTZONE_EXPORT BOOL VESKMessageBeep(UINT uType);
