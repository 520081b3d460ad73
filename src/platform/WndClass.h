// Window classes as names: a frame registers the class it wants (styles,
// cursor, background, icon) and gets a name to create its windows with.
// The same description gives the same name for the life of the process.
#pragma once

#include "TextzoneExport.h"
#include "platform/Types.h"

using HICON = const void*;

TEXTZONE_EXPORT const char* AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                HBRUSH hbrBackground = nullptr,
                                                HICON hIcon = nullptr);
