#include "support/ZoneWindow.h"

#include "platform/headless/HeadlessFonts.h"

void PutZoneInWindow(CTextZone& zone, CWnd& wnd, CFont& font) {
    if (!font.GetSafeHandle()) {
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
        font.CreateFontIndirect(&lf);
    }
    zone.SetWindow(&wnd);
    RECT client;
    wnd.GetClientRect(&client);
    zone.SetRect(&client);
    zone.SetFont(font);
}
