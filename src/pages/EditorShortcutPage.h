// The "Editor Shortcuts" page: the shortcut list of the data directory's
// "ed_short.txt" in a report list, with two fields to add or change one, and
// the "EnableShortcuts" flag. OK or Apply rewrites the file whole, with
// CR LF line ends, and every open editor reloads it.
#pragma once

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "pages/ListCtrlEx.h"
#include "platform/Button.h"
#include "platform/Edit.h"
#include "platform/PropertyPage.h"

class TEXTZONE_EXPORT CEditorShortcutPage : public CPropertyPage {
public:
    // pSection null means "Editor_Shortcuts".
    explicit CEditorShortcutPage(const char* pSection = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnControlNotify(int nID, int nCode) override;

    // The shortcut file's full name.
    static std::string ShortcutFilePath();

    CListCtrlEx m_list;
    CEdit m_editKey;
    CEdit m_editText;
    CButton m_checkEnable;
    VESK::String m_strSection;
    int m_bEnable = 1;

private:
    void OnSet();
    void OnDelete();
    // The selected row into the two fields, split at its first TAB.
    void LoadSelectedRow();
};
