// The child frame of an editor view. While the user resizes it, the text
// stays where it is: only the strip outside the old text rectangle is
// repainted, not the whole view.
#pragma once

#include "TextzoneExport.h"
#include "platform/MDIChildWnd.h"

class TEXTZONE_EXPORT CEditFrm : public CMDIChildWnd {
public:
    // The frame's icon, by its resource id.
    static constexpr UINT kIconId = 128;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnSize(UINT nType, int cx, int cy);

private:
    // The registered window class, once per frame object.
    char m_szClassName[96] = {};
};
