// Keys and typed characters.
#include "textzone/TextZone.h"

// Keys do not edit yet.
void CTextZone::HandleKeyDown(UINT, UINT, UINT) {}
void CTextZone::HandleChar(UINT, UINT, UINT) {}
LONG CTextZone::HandleUserMessage(std::uint64_t, std::int64_t) {
    return 0;
}
