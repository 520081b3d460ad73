// A control of a dialog page: the state a control window holds (id, label,
// rectangle, enabled), addressed by its id. A control is a plain object that
// tests drive and read; on a screen a backend attaches a view that shows the
// state and turns the user's actions into the User... calls below, which
// change the state and notify the page as the control window would.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "platform/DialogTemplate.h"
#include "platform/Types.h"

class CPropertyPage;

// What a backend shows a control with.
class TEXTZONE_EXPORT IControlView {
public:
    virtual ~IControlView() = default;
    // The control's state changed: show it again.
    virtual void Refresh() = 0;
};

class TEXTZONE_EXPORT CDialogControl {
public:
    CDialogControl() = default;
    virtual ~CDialogControl();
    CDialogControl(const CDialogControl&) = delete;
    CDialogControl& operator=(const CDialogControl&) = delete;

    // Takes the id, label, place and style of a dialog item, as the control
    // window made from that item would have them.
    void Attach(CPropertyPage* pParent, const DLGITEM& item);
    bool IsAttached() const { return m_pParent != nullptr; }

    int GetDlgCtrlID() const { return m_nID; }
    DlgItemKind GetKind() const { return m_kind; }
    DWORD GetItemStyle() const { return m_dwStyle; }
    const DLGITEM& GetItem() const { return m_item; }
    CPropertyPage* GetParent() const { return m_pParent; }

    virtual void SetWindowText(const char* pszText);
    int GetWindowText(char* pBuffer, int nMax) const;
    const std::string& GetText() const { return m_strText; }

    void EnableWindow(BOOL bEnable);
    BOOL IsWindowEnabled() const { return m_bEnabled; }

    // In pixels, in the page's coordinates.
    void GetWindowRect(RECT* prc) const { *prc = m_rcWindow; }
    int GetWindowWidth() const { return m_rcWindow.right - m_rcWindow.left; }
    void MoveWindow(const RECT& rc);

    void SetView(IControlView* pView) { m_pView = pView; }
    IControlView* GetView() const { return m_pView; }
    // Shows the state again (a repaint, on a screen).
    void Invalidate();

protected:
    virtual void OnSize(UINT nType, int cx, int cy);
    // Tells the page, as WM_COMMAND or WM_NOTIFY from this control does.
    void NotifyParent(int nCode);

    std::string m_strText;

private:
    CPropertyPage* m_pParent = nullptr;
    IControlView* m_pView = nullptr;
    DLGITEM m_item{};
    int m_nID = 0;
    DlgItemKind m_kind = DlgItemKind::Text;
    DWORD m_dwStyle = 0;
    BOOL m_bEnabled = TRUE;
    RECT m_rcWindow{};
};
