// The editor views in frames of a main window of several documents: what
// reaches which view, what marks which document, what menus and panes show.
#include <memory>
#include <string>

#include "editor/EditFrm.h"
#include "editor/EditorViewEx.h"
#include "host/MemoryAppDataManager.h"
#include "platform/CmdUI.h"
#include "platform/Document.h"
#include "platform/MDIFrameWnd.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/headless/HeadlessPlatform.h"
#include "resources/EditorResources.h"
#include "support/HeadlessTest.h"
#include "zones/TextZoneParam.h"

namespace {

class CTestDoc : public CDocument {
public:
    BOOL SaveModified() override {
        ++m_nAsked;
        return m_bLetGo;
    }
    int m_nAsked = 0;
    BOOL m_bLetGo = TRUE;
};

class ViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        AppDataManager::InstallAppDataManager(&m_store);
        m_main.Create(WS_VISIBLE, RECT{0, 0, 800, 600}, nullptr, 0);
        static const UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_LINE, ID_INDICATOR_MODE};
        m_main.m_wndStatusBar.SetIndicators(kPanes, 3);
        m_pViewA = Open("a.sql", &m_pDocA);
        m_pViewB = Open("b.sql", &m_pDocB);
    }
    void TearDown() override {
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
    void Type(CWnd* pView, const char* psz) {
        for (; *psz; ++psz)
            pView->SendMessage(WM_CHAR, static_cast<unsigned char>(*psz), 1);
    }
    std::string Text(CEditorViewEx* pView) {
        char buffer[256] = {};
        pView->GetTextZone()->GetText(buffer, sizeof buffer, 1 | 32);
        return buffer;
    }
    std::string FrameTitle(CEditorViewEx* pView) {
        char title[128];
        pView->GetParentFrame()->GetWindowText(title, sizeof title);
        return title;
    }
    CCmdUI Update(UINT nID) {
        CCmdUI ui;
        ui.m_nID = nID;
        ui.DoUpdate(&m_main, TRUE);
        return ui;
    }

    CHeadlessPlatform m_platform;
    CMemoryAppDataManager m_store;
    CMDIFrameWnd m_main;
    CTestDoc* m_pDocA = nullptr;
    CTestDoc* m_pDocB = nullptr;
    CEditorViewEx* m_pViewA = nullptr;
    CEditorViewEx* m_pViewB = nullptr;
};

TEST_F(ViewTest, TypingMarksOnlyItsOwnDocumentAndArrowsMarkNothing) {
    ASSERT_EQ(m_main.MDIGetActive(), m_pViewB->GetParentFrame());
    m_pViewA->SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_FALSE(m_pDocA->IsModified());
    Type(m_pViewA, "select");
    EXPECT_TRUE(m_pDocA->IsModified());
    EXPECT_FALSE(m_pDocB->IsModified());
    EXPECT_EQ(FrameTitle(m_pViewA), "a.sql *");
    EXPECT_EQ(FrameTitle(m_pViewB), "b.sql");
    m_pDocA->SetModifiedFlag(FALSE);
    EXPECT_EQ(FrameTitle(m_pViewA), "a.sql");
}

TEST_F(ViewTest, MenuCommandsReachTheActiveViewOnly) {
    Type(m_pViewA, "aaa");
    Type(m_pViewB, "bbb");
    m_main.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL, 0);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_CUT, 0);
    EXPECT_EQ(Text(m_pViewB), "");
    EXPECT_EQ(Text(m_pViewA), "aaa");
    EXPECT_EQ(m_platform.GetClipboardText(), "bbb");

    m_main.MDIActivate(static_cast<CMDIChildWnd*>(m_pViewA->GetParentFrame()));
    m_main.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL, 0);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_PASTE, 0);
    EXPECT_EQ(Text(m_pViewA), "bbb");
    m_main.SendMessage(WM_COMMAND, ID_EDIT_UNDO, 0);
    EXPECT_EQ(Text(m_pViewA), "aaa");
}

TEST_F(ViewTest, EveryEditCommandMarksTheDocumentAndCopyDoesNot) {
    Type(m_pViewB, "abc");
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    auto after = [&](UINT nID) {
        zone.SetModify(0);
        m_pDocB->SetModifiedFlag(FALSE);
        m_main.SendMessage(WM_COMMAND, nID, 0);
        return m_pDocB->IsModified() != FALSE;
    };
    m_main.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL, 0);
    EXPECT_FALSE(after(ID_EDIT_COPY));
    EXPECT_FALSE(after(ID_EDIT_SELECT_ALL));
    EXPECT_TRUE(after(ID_EDIT_CUT));
    EXPECT_TRUE(after(ID_EDIT_PASTE));
    EXPECT_TRUE(after(ID_EDIT_UNDO));
    EXPECT_TRUE(after(ID_EDIT_REDO));
    EXPECT_TRUE(after(ID_EDIT_CLEAR_ALL));
    EXPECT_FALSE(m_pDocA->IsModified());
}

TEST_F(ViewTest, CommandStatesFollowTheView) {
    // Nothing typed: no selection, nothing to undo, an empty clipboard.
    EXPECT_FALSE(Update(ID_EDIT_CUT).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_COPY).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_UNDO).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_PASTE).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_SELECT_ALL).m_bEnabled);
    // A command nobody handles is greyed; the host's erase command is one.
    EXPECT_FALSE(Update(ID_EDIT_ERASEBUFFER).m_bEnabled);

    Type(m_pViewB, "abc");
    m_platform.SetClipboardText("x");
    EXPECT_TRUE(Update(ID_EDIT_UNDO).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_REDO).m_bEnabled);
    EXPECT_TRUE(Update(ID_EDIT_PASTE).m_bEnabled);
    EXPECT_TRUE(Update(ID_EDIT_SELECT_ALL).m_bEnabled);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL, 0);
    EXPECT_TRUE(Update(ID_EDIT_CUT).m_bEnabled);
    EXPECT_TRUE(Update(ID_EDIT_CLEAR_ALL).m_bEnabled);
    m_pViewB->GetTextZone()->SetReadOnly(1);
    EXPECT_FALSE(Update(ID_EDIT_CLEAR_ALL).m_bEnabled);
    EXPECT_TRUE(Update(ID_EDIT_COPY).m_bEnabled);
    m_pViewB->GetTextZone()->SetReadOnly(0);
    m_pViewB->EnableWindow(FALSE);
    EXPECT_FALSE(Update(ID_EDIT_CUT).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_UNDO).m_bEnabled);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_CLEAR_ALL, 0);
    EXPECT_EQ(Text(m_pViewB), "abc");  // a disabled view does nothing
    m_pViewB->EnableWindow(TRUE);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_CLEAR_ALL, 0);
    EXPECT_EQ(Text(m_pViewB), "");
    EXPECT_TRUE(m_pDocB->IsModified());
}

TEST_F(ViewTest, BoxAndStreamModeAreCheckedAndSwitch) {
    m_pViewB->GetTextZone()->SetText("one\ntwo");
    EXPECT_EQ(Update(ID_EDIT_STREAMMODE).m_nCheck, 1);
    EXPECT_EQ(Update(ID_EDIT_BOXMODE).m_nCheck, 0);
    EXPECT_TRUE(Update(ID_EDIT_BOXMODE).m_bEnabled);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_BOXMODE, 0);
    EXPECT_EQ(m_pViewB->GetTextZone()->GetSelectionMode(), 2);
    EXPECT_EQ(Update(ID_EDIT_BOXMODE).m_nCheck, 1);
    EXPECT_EQ(Update(ID_EDIT_STREAMMODE).m_nCheck, 0);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_STREAMMODE, 0);
    EXPECT_EQ(m_pViewB->GetTextZone()->GetSelectionMode(), 1);
}

TEST_F(ViewTest, BookmarkCommandsMoveBetweenMarkedLines) {
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    zone.SetText("a\nb\nc\nd");
    zone.SetSelection(1, 1, 0, 0, 0, 1);
    m_main.SendMessage(WM_COMMAND, ID_VIEW_TOGGLEBOOKMARK, 0);
    zone.SetSelection(3, 3, 0, 0, 0, 1);
    m_main.SendMessage(WM_COMMAND, ID_VIEW_TOGGLEBOOKMARK, 0);
    zone.SetSelection(0, 0, 0, 0, 0, 1);
    LONG lFirst = 0, lLast = 0;
    m_main.SendMessage(WM_COMMAND, ID_VIEW_NEXTBOOKMARK, 0);
    zone.GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 1);
    m_main.SendMessage(WM_COMMAND, ID_VIEW_NEXTBOOKMARK, 0);
    zone.GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 3);
    m_main.SendMessage(WM_COMMAND, ID_VIEW_PREVBOOKMARK, 0);
    zone.GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 1);
}

TEST_F(ViewTest, StatusPanesShowTheLineOfTheActiveView) {
    m_pViewB->GetTextZone()->SetText("a\nb\nc");
    m_pViewB->GetTextZone()->SetSelection(2, 2, 0, 0, 0, 1);
    m_main.SendMessage(WM_IDLEUPDATECMDUI);
    CStatusBar& bar = m_main.m_wndStatusBar;
    EXPECT_EQ(bar.GetShownText(1), "00003");
    // The mode pane has no handler of its own: it shows nothing.
    EXPECT_EQ(bar.GetShownText(2), "");
    m_main.MDIActivate(static_cast<CMDIChildWnd*>(m_pViewA->GetParentFrame()));
    EXPECT_EQ(bar.GetShownText(1), "00001");
}

TEST_F(ViewTest, SettingsBroadcastReachesEveryViewAndReadsAfresh) {
    CTextZoneParam& a = *m_pViewA->GetTextZone();
    CTextZoneParam& b = *m_pViewB->GetTextZone();
    EXPECT_EQ(m_pViewA->GetDefTabSize(), 4);
    m_store.WriteInt("Editor", "TabSize", -8);  // negative: its absolute value
    EXPECT_EQ(m_pViewA->GetDefTabSize(), -8);
    m_store.WriteInt("Editor", "UseSyntaxColor", 0);
    m_store.WriteInt("Editor", "FontNorBkgColor", 0x123456);
    CEditorDefaults::BroadcastSettingsChanged();
    Type(m_pViewA, "\tx");
    Type(m_pViewB, "\tx");
    EXPECT_EQ(a.GetTabWidth(), b.GetTabWidth());
    // No syntax colour: the zone colours nothing.
    EXPECT_EQ(a.m_bSyntaxColor, 0);
    EXPECT_EQ(b.m_bSyntaxColor, 0);
    EXPECT_EQ(m_pViewB->m_crBackground, 0x123456u);
    m_store.WriteInt("Editor", "FontNorBkgColor", -1);
    m_pViewB->OnFontSize(0);
    EXPECT_EQ(m_pViewB->m_crBackground, GetSysColor(COLOR_WINDOW));
}

TEST_F(ViewTest, ANewSectionNameComesWithTheBroadcast) {
    m_store.WriteInt("Other", "TabSize", 2);
    const char* pszSection = "Other";
    m_pViewA->SendMessage(RegisterWindowMessageA("EditExLoadIniMessage"),
                          reinterpret_cast<WPARAM>(pszSection), 0);
    EXPECT_EQ(std::string(m_pViewA->m_strSection.c_str()), "Other");
    EXPECT_EQ(m_pViewA->GetDefTabSize(), 2);
    EXPECT_EQ(std::string(m_pViewB->m_strSection.c_str()), "Editor");
}

TEST_F(ViewTest, QuittingAsksModifiedDocumentsOnceAndARefusalKeepsAll) {
    Type(m_pViewA, "keep me");
    m_pDocA->m_bLetGo = FALSE;
    m_main.SendMessage(WM_CLOSE);
    EXPECT_EQ(m_pDocA->m_nAsked, 1);
    EXPECT_EQ(m_pDocB->m_nAsked, 0);  // unmodified: nothing to ask
    ASSERT_TRUE(m_main.GetSafeHwnd());
    EXPECT_EQ(m_main.GetChildFrames().size(), 2u);
    m_pDocA->m_bLetGo = TRUE;
    m_main.SendMessage(WM_CLOSE);
    EXPECT_EQ(m_pDocA->m_nAsked, 2);
    EXPECT_FALSE(m_main.GetSafeHwnd());
}

TEST_F(ViewTest, ClosingOneFrameActivatesTheOneBefore) {
    Type(m_pViewB, "changed");
    m_pDocB->m_bLetGo = FALSE;
    m_pViewB->GetParentFrame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_main.GetChildFrames().size(), 2u);
    m_pDocB->m_bLetGo = TRUE;
    m_pViewB->GetParentFrame()->SendMessage(WM_CLOSE);
    ASSERT_EQ(m_main.GetChildFrames().size(), 1u);
    EXPECT_EQ(m_main.MDIGetActive(), m_pViewA->GetParentFrame());
    m_platform.PumpMessages();  // frees the closed frame's objects
    Type(m_pViewA, "x");
    EXPECT_TRUE(m_pDocA->IsModified());
}

TEST_F(ViewTest, ResizingTheFrameRepaintsOnlyTheStripOutsideTheText) {
    CWnd* pFrame = m_pViewB->GetParentFrame();
    m_platform.PumpMessages();
    m_pViewB->UpdateWindow();
    RECT rcText;
    m_pViewB->GetTextZone()->GetRect(&rcText);
    pFrame->SetWindowPos(nullptr, 0, 0, 760, 560, SWP_NOMOVE | SWP_NOZORDER);
    CRgn rgn;
    rgn.CreateRectRgn(0, 0, 0, 0);
    m_pViewB->GetUpdateRgn(&rgn);
    EXPECT_FALSE(rgn.IsEmpty());
    EXPECT_FALSE(rgn.PtInRegion(rcText.left + 5, rcText.top + 5));
    RECT rcNew;
    m_pViewB->GetTextZone()->GetRect(&rcNew);
    EXPECT_TRUE(rgn.PtInRegion(rcNew.right - 2, rcNew.top + 5));
    // Whole lines only.
    EXPECT_EQ((rcNew.bottom - rcNew.top) % m_pViewB->GetTextZone()->GetLineHeight(0), 0);
}

TEST(TextAreaTest, InsetsByTheMarginAndTheBarsAndKeepsWholeLines) {
    CHeadlessPlatform platform;
    CWnd wnd;
    wnd.Create(WS_VISIBLE, RECT{0, 0, 300, 200}, nullptr, 0);
    NCCALCSIZE_PARAMS params;
    params.rgrc[0] = RECT{0, 0, 300, 200};
    params.rgrc[2] = RECT{0, 0, 300, 200};
    EXPECT_EQ(CEditorView::CalcTextArea(&wnd, FALSE, &params), 0);
    EXPECT_EQ(CEditorView::CalcTextArea(&wnd, TRUE, &params), static_cast<LRESULT>(WVR_VALIDRECTS));
    const int cx = GetSystemMetrics(SM_CXHSCROLL), cy = GetSystemMetrics(SM_CYVSCROLL);
    EXPECT_EQ(params.rgrc[1].left, 3);
    EXPECT_EQ(params.rgrc[1].top, 3);
    EXPECT_EQ(params.rgrc[1].right, 297 - cx);
    EXPECT_EQ(params.rgrc[1].bottom, 197 - cy);
    EXPECT_EQ(params.rgrc[2].right, params.rgrc[1].right);
}

}  // namespace
