#include "platform/Static.h"

#include "platform/DC.h"
#include "platform/Font.h"
#include "platform/GdiObjects.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/PropertyPage.h"

namespace {

// A context that only carries colours, for the colour question without a
// platform to measure with.
class CColorOnlyDC : public CDC {
protected:
    const FontMetrics& MetricsOf(const LOGFONTA&) override {
        static const FontMetrics metrics{};
        return metrics;
    }
    void DoFill(const RECT&, COLORREF) override {}
    void DoText(int, int, const char*, int, int) override {}
    void DoRoundRect(const RECT&, int, int, const PenObject&, const BrushObject&) override {}
    void DoImage(const CImageList&, int, int, int, UINT) override {}
};

}  // namespace

void CStatic::SetFont(CFont* pFont, BOOL bRedraw) {
    SetFont(pFont ? pFont->GetSafeHandle() : nullptr, bRedraw);
}

void CStatic::SetFont(HFONT hFont, BOOL bRedraw) {
    m_hFont = hFont;
    if (bRedraw) Invalidate();
}

CStatic::Colors CStatic::GetDrawColors() {
    std::unique_ptr<CDC> pDC;
    if (IPlatform* pPlatform = GetPlatform()) pDC = pPlatform->CreateDisplayDC();
    if (!pDC) pDC = std::make_unique<CColorOnlyDC>();
    Colors colors{GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_3DFACE), OPAQUE,
                  GetSysColor(COLOR_3DFACE)};
    if (CPropertyPage* pPage = GetParent()) {
        HBRUSH hBrush = pPage->OnCtlColor(pDC.get(), this, CTLCOLOR_STATIC);
        colors.crText = pDC->GetTextColor();
        colors.crBk = pDC->GetBkColor();
        colors.nBkMode = pDC->GetBkMode();
        if (hBrush) colors.crBrush = hBrush->lbColor;
    }
    return colors;
}
