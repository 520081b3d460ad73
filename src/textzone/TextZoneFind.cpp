// Searching the text and changing the case of a selection.
#include "textzone/TextZone.h"

int CTextZone::FindTextFromCurrentPos(const char*, int, int) {
    return 0;
}
int CTextZone::SameAsSelected(const char*, int) {
    return 0;
}
void CTextZone::MakeUpperOrLower(int) {}
