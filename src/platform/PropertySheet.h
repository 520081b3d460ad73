// A property sheet: pages behind tabs, and OK, Cancel and Apply. A page is
// created when it is first shown. Apply and OK first check the page being
// shown, then apply every page created so far; Apply is offered while some
// page says it is modified. After CancelToClose the changes are done: OK
// reads "Close" and Cancel is off.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CPropertyPage;

// What a backend shows a sheet with.
class TEXTZONE_EXPORT ISheetView {
public:
    virtual ~ISheetView() = default;
    // The buttons' state changed.
    virtual void RefreshButtons() = 0;
    // A page was just created: show its controls.
    virtual void PageCreated(int nPage) = 0;
};

class TEXTZONE_EXPORT CPropertySheet {
public:
    explicit CPropertySheet(const char* pszCaption = "");
    ~CPropertySheet();
    CPropertySheet(const CPropertySheet&) = delete;
    CPropertySheet& operator=(const CPropertySheet&) = delete;

    const std::string& GetCaption() const { return m_strCaption; }

    // The caller keeps the page alive as long as the sheet.
    void AddPage(CPropertyPage* pPage);
    // The sheet keeps the page and deletes it with itself.
    void AddPage(std::unique_ptr<CPropertyPage> pPage);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    CPropertyPage* GetPage(int nPage) const;

    // Shows the first page: what opening the sheet does.
    BOOL Create();
    int GetActiveIndex() const { return m_nActive; }
    CPropertyPage* GetActivePage() const { return GetPage(m_nActive); }
    // Leaves the shown page (which may refuse) and shows another.
    BOOL SetActivePage(int nPage);

    // The buttons. Each returns FALSE when it did nothing.
    BOOL PressApply();
    BOOL PressOK();
    void PressCancel();
    // IDOK or IDCANCEL once the sheet has ended, 0 before.
    int GetResult() const { return m_nResult; }

    bool IsApplyEnabled() const { return m_bApplyEnabled; }
    bool IsCancelEnabled() const { return m_bCancelEnabled; }
    const std::string& GetOKText() const { return m_strOKText; }

    // From the pages.
    void OnPageModified();
    void CancelToClose();

    void SetView(ISheetView* pView) { m_pView = pView; }

private:
    BOOL ApplyAll();
    void RefreshButtons();

    std::string m_strCaption;
    std::vector<CPropertyPage*> m_pages;
    std::vector<std::unique_ptr<CPropertyPage>> m_ownPages;
    int m_nActive = -1;
    int m_nResult = 0;
    bool m_bApplyEnabled = false;
    bool m_bCancelEnabled = true;
    std::string m_strOKText = "OK";
    ISheetView* m_pView = nullptr;
};
