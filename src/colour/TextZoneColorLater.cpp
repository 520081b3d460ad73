// Operations of the coloured zone that belong to word completion, parameter
// tooltips and the comment-free line. They hold their places in the class so
// that derived zones and hosts link against the final interface; until they
// are built they change nothing.
#include "colour/TextZoneColor.h"

void CTextZoneColor::SetWordCompletion(unsigned int nMode) {
    m_nWordCompletion = nMode;
}

unsigned int CTextZoneColor::GetWordCompletion() {
    return m_nWordCompletion;
}

void CTextZoneColor::AddExtraCandidateKeyword(char const*, int) {}

void CTextZoneColor::CompleteWord(int) {}

void CTextZoneColor::ResetWordCompletion() {}
