// Moving values between a page's fields and its controls. Loading puts a
// field into its control; saving reads it back, and a value that does not
// read (an edit that should hold an integer) fails the exchange.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CDialogControl;
class CPropertyPage;

class TEXTZONE_EXPORT CDataExchange {
public:
    CDataExchange(CPropertyPage* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
    // Gives up the exchange at the control of nID.
    void Fail(int nID);
    bool Failed() const { return m_bFailed; }

    BOOL m_bSaveAndValidate;
    CPropertyPage* m_pDlgWnd;

private:
    bool m_bFailed = false;
};

TEXTZONE_EXPORT void DDX_Control(CDataExchange* pDX, int nIDC, CDialogControl& rControl);
TEXTZONE_EXPORT void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
TEXTZONE_EXPORT void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
TEXTZONE_EXPORT void DDX_Text(CDataExchange* pDX, int nIDC, std::string& value);
// The selected item's index; -1 for none.
TEXTZONE_EXPORT void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
// The selected item's text: loading selects the item of exactly that text
// (none if there is none), saving reads it (empty without a selection).
TEXTZONE_EXPORT void DDX_LBString(CDataExchange* pDX, int nIDC, std::string& value);
