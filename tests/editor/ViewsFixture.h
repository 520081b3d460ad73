// A main window of several documents with two editor views in frames over an
// in-memory settings store: view A opened first, view B active.
#pragma once

#include <memory>
#include <string>

#include "editor/EditFindReplace.h"
#include "editor/EditFrm.h"
#include "editor/EditorViewEx.h"
#include "host/MemoryAppDataManager.h"
#include "platform/Document.h"
#include "platform/MDIFrameWnd.h"
#include "platform/Platform.h"
#include "platform/headless/HeadlessPlatform.h"
#include "support/HeadlessTest.h"
#include "support/ZoneText.h"
#include "zones/TextZoneParam.h"

// A document that counts the questions before it is let go.
class CTestDoc : public CDocument {
public:
    BOOL SaveModified() override {
        ++m_nAsked;
        return m_bLetGo;
    }
    int m_nAsked = 0;
    BOOL m_bLetGo = TRUE;
};

class ViewsTest : public ::testing::Test {
protected:
    void SetUp() override {
        AppDataManager::InstallAppDataManager(&m_store);
        // The find dialog's state is shared by every editor of the process.
        CEditFindReplace& find = CEditFindReplace::Instance();
        find.m_strFind = "";
        find.m_strReplace = "";
        find.m_bNext = 1;
        find.m_bCase = 0;
        m_main.Create(WS_VISIBLE, RECT{0, 0, 800, 600}, nullptr, 0);
        m_pViewA = Open("a.sql", &m_pDocA);
        m_pViewB = Open("b.sql", &m_pDocB);
    }
    void TearDown() override {
        if (CEditFindReplaceDialog* pDlg = CEditFindReplace::Instance().m_pFindReplaceDlg)
            pDlg->SendMessage(WM_CLOSE);
        m_main.DestroyWindow();
        AppDataManager::InstallAppDataManager(nullptr);
    }
    CEditorViewEx* Open(const char* pszName, CTestDoc** ppDoc) {
        auto pDoc = std::make_unique<CTestDoc>();
        pDoc->SetTitle(pszName);
        *ppDoc = pDoc.get();
        std::unique_ptr<CEditorViewEx> pView(CEditorViewEx::CreateObject());
        CEditorViewEx* pRaw = pView.get();
        m_main.OpenDocument(std::move(pDoc), std::make_unique<CEditFrm>(), std::move(pView));
        return pRaw;
    }
    void Activate(CEditorViewEx* pView) {
        m_main.MDIActivate(static_cast<CMDIChildWnd*>(pView->GetParentFrame()));
    }
    // A menu command as the main window gets it.
    void Command(UINT nID) { m_main.SendMessage(WM_COMMAND, nID, 0); }
    static void Type(CWnd* pView, const char* psz) {
        for (; *psz; ++psz)
            pView->SendMessage(WM_CHAR, static_cast<unsigned char>(*psz), 1);
    }
    // The text with LF line ends and none added at its end.
    static std::string Text(CEditorViewEx* pView) {
        return ZoneText(*pView->GetTextZone(), 1 | 32);
    }

    CHeadlessPlatform m_platform;
    CMemoryAppDataManager m_store;
    CMDIFrameWnd m_main;
    CTestDoc* m_pDocA = nullptr;
    CTestDoc* m_pDocB = nullptr;
    CEditorViewEx* m_pViewA = nullptr;
    CEditorViewEx* m_pViewB = nullptr;
};
