// Operations of the coloured zone that belong to parameter
// tooltips and the comment-free line. They hold their places in the class so
// that derived zones and hosts link against the final interface; until they
// are built they change nothing.
#include "colour/TextZoneColor.h"

void CTextZoneColor::SetParmCompletionMode(unsigned int nMode) {
    m_nParmCompletionMode = nMode;
}

void CTextZoneColor::AddParmCompletionSet(int, char const*, char const*, char const*, char const*) {
}

void CTextZoneColor::OnNewParmCompletionRequest(int, char const*) {}

void CTextZoneColor::OpenParmTooltip(COpenParmComp*) {}

void CTextZoneColor::CloseParmTooltip(int) {}

void CTextZoneColor::UpdateParmTooltipStatus() {}

void CTextZoneColor::GetCommentAndStringFreeLine(CStringEx*, int, int) {}

void CTextZoneColor::HandleLButtonDownForCompletion(unsigned int, tagPOINT*) {}

void CTextZoneColor::HandleKeyDownForCompletion(unsigned int, unsigned int, unsigned int) {}

void CTextZoneColor::HandleCharForCompletion(unsigned int, unsigned int, unsigned int) {}
