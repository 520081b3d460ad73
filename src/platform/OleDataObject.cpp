#include "platform/OleDataObject.h"

#include "platform/Messages.h"

BOOL COleDataObject::IsDataAvailable(UINT cfFormat) const {
    return cfFormat == CF_TEXT && m_text.has_value();
}

std::string COleDataObject::GetGlobalData(UINT cfFormat) const {
    return IsDataAvailable(cfFormat) ? *m_text : std::string();
}
