// Push buttons, check boxes and radio buttons. A check box or radio button
// checks itself when the user clicks it (a radio button unchecks the others
// of its group), then the page hears BN_CLICKED.
#pragma once

#include "TextzoneExport.h"
#include "platform/DialogControl.h"

class TEXTZONE_EXPORT CButton : public CDialogControl {
public:
    int GetCheck() const { return m_nCheck; }
    void SetCheck(int nCheck);

    // The user clicks the button; a disabled button ignores it.
    void UserClick();

private:
    int m_nCheck = 0;
};
