// The text of a zone as one string, for tests that compare it.
#pragma once

#include <string>

#include "textzone/TextZone.h"

// The whole text with the given flags.
inline std::string ZoneText(CTextZone& zone, WORD wFlags) {
    std::string text(static_cast<size_t>(zone.GetTextLength(wFlags)) + 2, '\0');
    zone.GetText(text.data(), static_cast<LONG>(text.size()), wFlags);
    text.resize(std::char_traits<char>::length(text.c_str()));
    return text;
}

// The selected text with the given flags.
inline std::string ZoneSelectedText(CTextZone& zone, WORD wFlags) {
    std::string text(static_cast<size_t>(zone.GetSelectedTextLength(wFlags)) + 2, '\0');
    zone.GetSelectedText(text.data(), static_cast<LONG>(text.size()), wFlags);
    text.resize(std::char_traits<char>::length(text.c_str()));
    return text;
}
