// A headless window system with an in-memory settings store, a parent
// window that notes its notifications, and an extended editor in it.
#pragma once

#include <string>

#include "editor/EditorEx.h"
#include "host/AppDataManager.h"
#include "host/MemoryAppDataManager.h"
#include "support/HeadlessTest.h"
#include "zones/TextZoneParam.h"

class EditorExTest : public HeadlessTest {
protected:
    static constexpr UINT kEditorId = 31;
    static constexpr unsigned short kCrLfAsIs = 2 | 32;

    void SetUp() override {
        HeadlessTest::SetUp();
        AppDataManager::InstallAppDataManager(&m_store);
        m_parent.Create(WS_VISIBLE, RECT{0, 0, 600, 400}, nullptr, 0);
        Create(m_editor);
    }
    void TearDown() override {
        // The find dialog is shared by every editor of the process.
        if (CEditFindReplaceDialog* pDlg = CEditFindReplace::Instance().m_pFindReplaceDlg)
            pDlg->SendMessage(WM_CLOSE);
        CEditFindReplace::Instance().m_strFind = "";
        m_editor.DestroyWindow();
        m_parent.DestroyWindow();
        AppDataManager::InstallAppDataManager(nullptr);
        HeadlessTest::TearDown();
    }
    void Create(CEditorEx& editor, UINT nID = kEditorId) {
        ASSERT_TRUE(editor.Create(WS_VISIBLE | WS_CHILD | WS_VSCROLL | WS_HSCROLL,
                                  RECT{10, 10, 410, 310}, &m_parent, nID));
    }
    void Set(const char* pszKey, int nValue) { m_store.WriteInt("Editor", pszKey, nValue); }
    void Set(const char* pszKey, const char* pszValue) {
        m_store.WriteString("Editor", pszKey, pszValue);
    }
    CTextZoneParam& Zone() { return *m_editor.GetTextZone(); }
    // The text with CR LF line ends and none added at its end.
    std::string Text() { return m_editor.GetText(kCrLfAsIs); }
    // EN_CHANGE notifications the parent got from the editor since the last
    // call, after delivering what was posted.
    int Changes() {
        m_platform.PumpMessages();
        int count = 0;
        for (const auto& m : m_parent.Messages())
            if (m.message == WM_COMMAND && HIWORD(m.wParam) == EN_CHANGE &&
                LOWORD(m.wParam) == kEditorId && m.lParam == reinterpret_cast<LPARAM>(&m_editor))
                ++count;
        m_parent.ClearMessages();
        return count;
    }

    CMemoryAppDataManager m_store;
    CRecordingWnd m_parent;
    CEditorEx m_editor;
};
