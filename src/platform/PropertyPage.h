// A page of a property sheet, made from a dialog template. Creating it
// builds a control for every item of the template and runs OnInitDialog;
// DoDataExchange moves values between the page's fields and its controls
// (UpdateData), and a derived page binds its own control objects to ids
// there with DDX_Control. The sheet calls OnOK for both OK and Apply.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Brush.h"
#include "platform/DialogControl.h"
#include "platform/DialogTemplate.h"

class CButton;
class CDC;
class CDataExchange;
class CPropertySheet;

class TEXTZONE_EXPORT CPropertyPage {
public:
    explicit CPropertyPage(const DLGTEMPLATE& dialog);
    virtual ~CPropertyPage();
    CPropertyPage(const CPropertyPage&) = delete;
    CPropertyPage& operator=(const CPropertyPage&) = delete;

    const DLGTEMPLATE& GetTemplate() const { return m_dialog; }
    const char* GetCaption() const { return m_dialog.pszCaption; }
    // The page's size in pixels.
    SIZE GetSize() const;

    // Builds the controls and initialises the page, once; the sheet does it
    // when the page is first shown.
    BOOL Create(CPropertySheet* pSheet);
    bool IsCreated() const { return m_bCreated; }
    CPropertySheet* GetSheet() const { return m_pSheet; }

    // The page's controls in template order, and one by id (null if none).
    const std::vector<CDialogControl*>& GetControls() const { return m_controls; }
    CDialogControl* GetDlgItem(int nID) const;
    // The radio buttons of the group that holds nID, in template order.
    std::vector<CButton*> GetRadioGroup(int nID) const;

    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    void SetModified(BOOL bChanged = TRUE);
    bool IsModified() const { return m_bModified; }
    void CancelToClose();

    void CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheck);
    UINT IsDlgButtonChecked(int nID) const;
    void CheckDlgButton(int nID, UINT nCheck);
    void SetDlgItemText(int nID, const char* pszText);
    int GetDlgItemText(int nID, char* pBuffer, int nMax) const;
    void MapDialogRect(RECT* prc) const;

    // The sheet's buttons: Apply and OK run OnApply (and through it OnOK) on
    // every created page; OnKillActive validates the page being left.
    virtual BOOL OnSetActive() { return TRUE; }
    virtual BOOL OnKillActive() { return UpdateData(TRUE); }
    virtual BOOL OnApply();
    virtual void OnOK() {}
    virtual void OnCancel() {}

    // A control's notification (WM_COMMAND or WM_NOTIFY).
    virtual void OnControlNotify(int nID, int nCode);
    // The colours of a control about to be drawn; the default is the
    // dialog's: window text on the face colour, and the face brush.
    virtual HBRUSH OnCtlColor(CDC* pDC, CDialogControl* pWnd, UINT nCtlColor);

    // Binds a control object of the page to the control of an id.
    void BindControl(int nID, CDialogControl& control);

protected:
    virtual BOOL OnInitDialog();
    virtual void DoDataExchange(CDataExchange* pDX);

private:
    DLGTEMPLATE m_dialog;
    CPropertySheet* m_pSheet = nullptr;
    bool m_bCreated = false;
    bool m_bModified = false;
    std::vector<CDialogControl*> m_controls;
    std::vector<std::unique_ptr<CDialogControl>> m_ownControls;
    CBrush m_brushFace;
};
