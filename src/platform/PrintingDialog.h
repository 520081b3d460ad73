// The small window that says a document is printing (dialog 30722): the
// document, the printer, the port and the page, with Cancel, which sets the
// thread's abort flag. The print loop looks at the flag after every page.
#pragma once

#include <functional>
#include <string>

#include "TextzoneExport.h"
#include "platform/Wnd.h"

class TEXTZONE_EXPORT CPrintingDialog : public CWnd {
public:
    static constexpr UINT IDD = 30722;
    static constexpr const char* kClassName = "PrintingDialog";
    // The controls' ids: document, printer, port text, page text.
    static constexpr int IDC_DOCUMENT = 201;
    static constexpr int IDC_PRINTER = 202;
    static constexpr int IDC_PORT = 203;
    static constexpr int IDC_PAGE = 204;

    // Shows it, owned by pParent; FALSE if the window could not be made.
    BOOL Create(CWnd* pParent);
    void SetDlgItemText(int nID, const char* pszText);
    std::string GetDlgItemText(int nID) const;
    // Cancel: the job stops at the next page.
    virtual void OnCancel();

    // The thread's abort flag.
    static bool& UserAbort();

    // Told when a control's text changes, for the window system to show it.
    std::function<void(int nID)> m_onTextChanged;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::string m_strTexts[4];
};
