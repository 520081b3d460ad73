// Up-down arrows beside an edit (their buddy) holding an integer: each step
// sets the edit's text to the next value within the range.
#pragma once

#include "TextzoneExport.h"
#include "platform/DialogControl.h"

class TEXTZONE_EXPORT CSpinButtonCtrl : public CDialogControl {
public:
    // The range an up-down control has until one is set is 0 to 100.
    void SetRange(int nLower, int nUpper);
    int GetPos() const;
    // The user presses an arrow (or an arrow key): +1 up, -1 down.
    void UserStep(int nDelta);

private:
    int m_nLower = 0;
    int m_nUpper = 100;
};
