#include "platform/OleDataSource.h"

#include "platform/Messages.h"
#include "platform/Platform.h"

void COleDataSource::CacheGlobalData(UINT cfFormat, const std::string& data) {
    if (cfFormat != CF_TEXT) return;
    m_text = data;
    m_bHasText = true;
}

DWORD COleDataSource::DoDragDrop(DWORD dwEffects, CWnd* pSource) {
    IPlatform* p = GetPlatform();
    if (!p || !m_bHasText) return DROPEFFECT_NONE;
    return p->DoDragDrop(pSource, m_text, dwEffects);
}

void COleDataSource::Empty() {
    m_text.clear();
    m_bHasText = false;
}
