// A text label whose font the dialog sets and whose colours the dialog
// chooses each time it is drawn (its WM_CTLCOLOR answer).
#pragma once

#include "TextzoneExport.h"
#include "platform/DialogControl.h"

class CFont;

class TEXTZONE_EXPORT CStatic : public CDialogControl {
public:
    struct Colors {
        COLORREF crText;
        COLORREF crBk;  // behind the text when the mode is OPAQUE
        int nBkMode;
        COLORREF crBrush;  // the rest of the control
    };

    // Null goes back to the dialog's font.
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    void SetFont(HFONT hFont, BOOL bRedraw = TRUE);
    HFONT GetFont() const { return m_hFont; }
    // What the control would be drawn in now: the defaults of a static
    // control, then the page's OnCtlColor.
    Colors GetDrawColors();

private:
    HFONT m_hFont = nullptr;
};
