// The source side of a drag: holds the text and runs the drag through the
// platform, which returns the effect the drop performed.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CWnd;

class TEXTZONE_EXPORT COleDataSource {
public:
    // The text is kept as given; a terminating 0 is not part of it.
    void CacheGlobalData(UINT cfFormat, const std::string& data);
    // DROPEFFECT_NONE when the drag was cancelled or turned out a click.
    DWORD DoDragDrop(DWORD dwEffects, CWnd* pSource = nullptr);
    void Empty();
    bool HasData() const { return m_bHasText; }

private:
    std::string m_text;
    bool m_bHasText = false;
};
