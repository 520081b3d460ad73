// The editor views in frames of a main window of several documents: what
// reaches which view, what marks which document, what menus and panes show.
#include <string>

#include "ViewsFixture.h"
#include "platform/CmdUI.h"
#include "platform/Messages.h"
#include "resources/EditorResources.h"

namespace {

class ViewTest : public ViewsTest {
protected:
    CCmdUI Update(UINT nID) {
        CCmdUI ui;
        ui.m_nID = nID;
        ui.DoUpdate(&m_main, TRUE);
        return ui;
    }
    std::string FrameTitle(CEditorViewEx* pView) {
        char title[128];
        pView->GetParentFrame()->GetWindowText(title, sizeof title);
        return title;
    }
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

TEST_F(ViewTest, EveryEditCommandMarksTheDocumentAndCopyDoesNot) {
    Type(m_pViewB, "abc");
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    auto after = [&](UINT nID) {
        zone.SetModify(0);
        m_pDocB->SetModifiedFlag(FALSE);
        Command(nID);
        return m_pDocB->IsModified() != FALSE;
    };
    Command(ID_EDIT_SELECT_ALL);
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
    Command(ID_EDIT_SELECT_ALL);
    EXPECT_TRUE(Update(ID_EDIT_CUT).m_bEnabled);
    EXPECT_TRUE(Update(ID_EDIT_CLEAR_ALL).m_bEnabled);
    m_pViewB->GetTextZone()->SetReadOnly(1);
    EXPECT_FALSE(Update(ID_EDIT_CLEAR_ALL).m_bEnabled);
    EXPECT_TRUE(Update(ID_EDIT_COPY).m_bEnabled);
    m_pViewB->GetTextZone()->SetReadOnly(0);
    m_pViewB->EnableWindow(FALSE);
    EXPECT_FALSE(Update(ID_EDIT_CUT).m_bEnabled);
    EXPECT_FALSE(Update(ID_EDIT_UNDO).m_bEnabled);
    Command(ID_EDIT_CLEAR_ALL);
    EXPECT_EQ(Text(m_pViewB), "abc");  // a disabled view does nothing
    m_pViewB->EnableWindow(TRUE);
    Command(ID_EDIT_CLEAR_ALL);
    EXPECT_EQ(Text(m_pViewB), "");
    EXPECT_TRUE(m_pDocB->IsModified());
}

TEST_F(ViewTest, BookmarkCommandsMoveBetweenMarkedLines) {
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    zone.SetText("a\nb\nc\nd");
    zone.SetSelection(1, 1, 0, 0, 0, 1);
    Command(ID_VIEW_TOGGLEBOOKMARK);
    zone.SetSelection(3, 3, 0, 0, 0, 1);
    Command(ID_VIEW_TOGGLEBOOKMARK);
    zone.SetSelection(0, 0, 0, 0, 0, 1);
    LONG lFirst = 0, lLast = 0;
    Command(ID_VIEW_NEXTBOOKMARK);
    zone.GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 1);
    Command(ID_VIEW_NEXTBOOKMARK);
    zone.GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 3);
    Command(ID_VIEW_PREVBOOKMARK);
    zone.GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 1);
}

TEST_F(ViewTest, StatusPanesShowTheLineOfTheActiveView) {
    static const UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_LINE, ID_INDICATOR_MODE};
    m_main.m_wndStatusBar.SetIndicators(kPanes, 3);
    m_pViewB->GetTextZone()->SetText("a\nb\nc");
    m_pViewB->GetTextZone()->SetSelection(2, 2, 0, 0, 0, 1);
    m_main.SendMessage(WM_IDLEUPDATECMDUI);
    CStatusBar& bar = m_main.m_wndStatusBar;
    EXPECT_EQ(bar.GetShownText(1), "00003");
    // The mode pane has no handler of its own: it shows nothing.
    EXPECT_EQ(bar.GetShownText(2), "");
    Activate(m_pViewA);
    EXPECT_EQ(bar.GetShownText(1), "00001");
}

TEST_F(ViewTest, SettingsBroadcastReachesEveryViewAndReadsAfresh) {
    CTextZoneParam& a = *m_pViewA->GetTextZone();
    CTextZoneParam& b = *m_pViewB->GetTextZone();
    m_store.WriteInt("Editor", "TabSize", -8);
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
