// A single-line edit. Setting its text, by the program or the user, tells
// the page EN_CHANGE, as the edit control does.
#pragma once

#include "TextzoneExport.h"
#include "platform/DialogControl.h"

class TEXTZONE_EXPORT CEdit : public CDialogControl {
public:
    void SetWindowText(const char* pszText) override;
    // 0 is the control's own limit.
    void LimitText(int nMax) { m_nLimit = nMax; }

    // The user's text: an edit that takes digits only refuses anything else
    // (with a beep), and text past the limit is cut.
    void UserSetText(const char* pszText);

private:
    int m_nLimit = 0;
};
