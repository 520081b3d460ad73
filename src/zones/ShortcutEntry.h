// One stored shortcut: the word the user types and the text that replaces it
// when a blank follows. Both are never empty; the zone owns the records.
#pragma once

#include "host/VeskString.h"

struct ShortcutEntry {
    VESK::String m_strKey;
    VESK::String m_strText;
};
