// The extended control's commands, their command-UI states, the change
// notifications of its edits, text in and out, and Alt+drag.
#include <memory>
#include <string>

#include "EditorExFixture.h"
#include "platform/CmdUI.h"
#include "platform/Platform.h"
#include "resources/EditorResources.h"

namespace {

struct UiState {
    BOOL bEnabled;
    int nCheck;
};

}  // namespace

class EditorExCommandTest : public EditorExTest {
protected:
    void SetUp() override {
        EditorExTest::SetUp();
        m_editor.SetWindowTextA("first line\r\nsecond line\r\nthird");
        m_editor.SetModify(0);
    }
    // What a menu item of the id shows, asked through the control.
    UiState State(UINT nID) {
        CCmdUI ui;
        ui.m_nID = nID;
        ui.DoUpdate(&m_editor, TRUE);
        return {ui.m_bEnabled, ui.m_nCheck};
    }
    bool Enabled(UINT nID) { return State(nID).bEnabled; }
    // A menu command as the host's frame delivers it.
    void Command(UINT nID) { m_editor.SendMessage(WM_COMMAND, nID, 0); }
    // "second": offsets count a line end as one.
    void SelectSecondLine() { m_editor.SetSel(11, 17); }
    void EmptyClipboard() {
        ::OpenClipboard(nullptr);
        ::EmptyClipboard();
        ::CloseClipboard();
    }
};

TEST_F(EditorExCommandTest, TheTableHasTheEditorsCommandsAndLeavesTheRestToTheHost) {
    for (UINT nID : {ID_EDIT_BOXMODE, ID_EDIT_STREAMMODE, ID_VIEW_TOGGLEBOOKMARK,
                     ID_VIEW_NEXTBOOKMARK, ID_VIEW_PREVBOOKMARK, ID_EDIT_CLEAR_ALL, ID_EDIT_COPY,
                     ID_EDIT_CUT, ID_EDIT_PASTE, ID_EDIT_SELECT_ALL, ID_EDIT_UNDO, ID_EDIT_REDO,
                     ID_EDIT_FIND, ID_EDIT_REPEAT, ID_FILE_PRINT, ID_FILE_PRINT_DIRECT})
        EXPECT_TRUE(m_editor.OnCmdMsg(nID, CN_QUERY_HANDLER, nullptr)) << nID;
    // Erase buffer and replace are the host's.
    for (UINT nID : {ID_EDIT_ERASEBUFFER, ID_EDIT_REPLACE}) {
        EXPECT_FALSE(m_editor.OnCmdMsg(nID, CN_QUERY_HANDLER, nullptr)) << nID;
        EXPECT_FALSE(m_editor.OnCmdMsg(nID, CN_COMMAND, nullptr)) << nID;
        EXPECT_FALSE(Enabled(nID)) << nID;
    }
    Command(ID_EDIT_ERASEBUFFER);
    EXPECT_EQ(Text(), "first line\r\nsecond line\r\nthird");
}

TEST_F(EditorExCommandTest, SelectionDependentCommandsFollowSelectionReadOnlyAndEnabled) {
    const UINT kNeedSelection[] = {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR_ALL};
    // No selection: nothing to cut, copy or clear; select all has text.
    for (UINT nID : kNeedSelection) EXPECT_FALSE(Enabled(nID)) << nID;
    EXPECT_TRUE(Enabled(ID_EDIT_SELECT_ALL));

    SelectSecondLine();
    for (UINT nID : kNeedSelection) EXPECT_TRUE(Enabled(nID)) << nID;

    // Read-only: copying still works, changing the text does not.
    m_editor.SetReadOnly(1);
    EXPECT_FALSE(Enabled(ID_EDIT_CUT));
    EXPECT_FALSE(Enabled(ID_EDIT_CLEAR_ALL));
    EXPECT_TRUE(Enabled(ID_EDIT_COPY));
    m_editor.SetReadOnly(0);

    // A disabled window offers nothing.
    m_editor.EnableWindow(FALSE);
    for (UINT nID : kNeedSelection) EXPECT_FALSE(Enabled(nID)) << nID;
    EXPECT_FALSE(Enabled(ID_EDIT_SELECT_ALL));
    m_editor.EnableWindow(TRUE);

    // An empty text has nothing to select.
    m_editor.SetWindowTextA("");
    EXPECT_FALSE(Enabled(ID_EDIT_SELECT_ALL));
}

TEST_F(EditorExCommandTest, PasteNeedsTextOnTheClipboardAndAWritableEnabledWindow) {
    EmptyClipboard();
    EXPECT_FALSE(Enabled(ID_EDIT_PASTE));
    m_platform.SetClipboardText("pasted");
    EXPECT_TRUE(Enabled(ID_EDIT_PASTE));
    m_editor.SetReadOnly(1);
    EXPECT_FALSE(Enabled(ID_EDIT_PASTE));
    m_editor.SetReadOnly(0);
    m_editor.EnableWindow(FALSE);
    EXPECT_FALSE(Enabled(ID_EDIT_PASTE));
    // A command that reaches a disabled window by another road does nothing.
    Command(ID_EDIT_PASTE);
    EXPECT_EQ(Text(), "first line\r\nsecond line\r\nthird");
    m_editor.EnableWindow(TRUE);
}

TEST_F(EditorExCommandTest, UndoAndRedoAreOfferedWhenThereIsSomethingToReplay) {
    EXPECT_FALSE(Enabled(ID_EDIT_UNDO));
    EXPECT_FALSE(Enabled(ID_EDIT_REDO));
    m_editor.SetSel(0, 0);
    m_editor.SendMessage(WM_CHAR, 'x');
    EXPECT_TRUE(Enabled(ID_EDIT_UNDO));
    EXPECT_FALSE(Enabled(ID_EDIT_REDO));
    Changes();
    m_editor.SetModify(0);

    Command(ID_EDIT_UNDO);
    EXPECT_EQ(Text(), "first line\r\nsecond line\r\nthird");
    EXPECT_EQ(Changes(), 1);
    EXPECT_TRUE(Enabled(ID_EDIT_REDO));
    m_editor.EnableWindow(FALSE);
    EXPECT_FALSE(Enabled(ID_EDIT_REDO));
    Command(ID_EDIT_REDO);
    EXPECT_EQ(Text(), "first line\r\nsecond line\r\nthird");
    m_editor.EnableWindow(TRUE);
    Command(ID_EDIT_REDO);
    EXPECT_EQ(Text(), "xfirst line\r\nsecond line\r\nthird");
    EXPECT_EQ(Changes(), 1);
}

TEST_F(EditorExCommandTest, CutPasteAndClearAllMarkTheTextAndTellTheParent) {
    Changes();
    SelectSecondLine();
    Command(ID_EDIT_CUT);
    EXPECT_EQ(Text(), "first line\r\n line\r\nthird");
    EXPECT_EQ(m_platform.GetClipboardText(), "second");
    EXPECT_TRUE(m_editor.GetModify());
    EXPECT_EQ(Changes(), 1);

    m_editor.SetModify(0);
    m_editor.SetSel(0, 0);
    Command(ID_EDIT_PASTE);
    EXPECT_EQ(Text(), "secondfirst line\r\n line\r\nthird");
    EXPECT_TRUE(m_editor.GetModify());
    EXPECT_EQ(Changes(), 1);

    // Copy changes nothing: no notification, and the flag stays as it was.
    SelectSecondLine();
    Command(ID_EDIT_COPY);
    EXPECT_TRUE(m_editor.GetModify());
    m_editor.SetModify(0);
    Command(ID_EDIT_COPY);
    EXPECT_FALSE(m_editor.GetModify());
    // Nothing to cut leaves a set flag set and says nothing either.
    m_editor.SetModify(1);
    m_editor.SetSel(0, 0);
    Command(ID_EDIT_CUT);
    EXPECT_TRUE(m_editor.GetModify());
    EXPECT_EQ(Changes(), 0);

    m_editor.SetModify(0);
    m_editor.ClearAll();
    EXPECT_EQ(Text(), "");
    EXPECT_TRUE(m_editor.GetModify());
    EXPECT_EQ(Changes(), 1);

    // Read-only or disabled, clear all keeps the text.
    m_editor.SetWindowTextA("kept");
    m_editor.SetModify(0);
    m_editor.SetReadOnly(1);
    Command(ID_EDIT_CLEAR_ALL);
    m_editor.SetReadOnly(0);
    m_editor.EnableWindow(FALSE);
    Command(ID_EDIT_CLEAR_ALL);
    m_editor.EnableWindow(TRUE);
    EXPECT_EQ(Text(), "kept");
    EXPECT_FALSE(m_editor.GetModify());
    EXPECT_EQ(Changes(), 0);

    m_editor.SetModifiedFlag();
    EXPECT_EQ(Changes(), 1);
}

TEST_F(EditorExCommandTest, BoxAndStreamModeSwitchAndShowTheirState) {
    EXPECT_EQ(State(ID_EDIT_STREAMMODE).nCheck, 1);
    EXPECT_EQ(State(ID_EDIT_BOXMODE).nCheck, 0);
    EXPECT_TRUE(State(ID_EDIT_BOXMODE).bEnabled);

    // A selection becomes a box over the same lines.
    m_editor.SetSel(3, 16);
    Command(ID_EDIT_BOXMODE);
    EXPECT_EQ(Zone().GetSelectionMode(), 2);
    EXPECT_EQ(State(ID_EDIT_BOXMODE).nCheck, 1);
    EXPECT_EQ(State(ID_EDIT_STREAMMODE).nCheck, 0);
    LONG lFirst = -1, lLast = -1;
    Zone().GetSelection(&lFirst, &lLast, nullptr, nullptr, 0);
    EXPECT_EQ(lFirst, 0);
    EXPECT_EQ(lLast, 1);
    // Box mode again changes nothing.
    Command(ID_EDIT_BOXMODE);
    EXPECT_EQ(Zone().GetSelectionMode(), 2);

    Command(ID_EDIT_STREAMMODE);
    EXPECT_EQ(Zone().GetSelectionMode(), 1);
    EXPECT_EQ(State(ID_EDIT_STREAMMODE).nCheck, 1);

    // A proportional font has no columns: box mode is offered disabled and
    // refused with a beep if it comes all the same.
    Set("FontName", "Proportional");
    m_editor.SendMessage(CEditorEx::GetLoadIniMessage());
    EXPECT_FALSE(State(ID_EDIT_BOXMODE).bEnabled);
    EXPECT_TRUE(State(ID_EDIT_STREAMMODE).bEnabled);
    const int nBeeps = m_platform.GetBeepCount();
    Command(ID_EDIT_BOXMODE);
    EXPECT_EQ(Zone().GetSelectionMode(), 1);
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 1);
}

TEST_F(EditorExCommandTest, BookmarkCommandsToggleAndWalkTheMarkedLines) {
    m_editor.SetSel(0, 0);
    Command(ID_VIEW_TOGGLEBOOKMARK);
    m_editor.SetSel(24, 24);  // line 2
    Command(ID_VIEW_TOGGLEBOOKMARK);
    EXPECT_EQ(Zone().GetLine(0)->m_dwBookmarks & 1, 1u);
    EXPECT_EQ(Zone().GetLine(1)->m_dwBookmarks & 1, 0u);
    EXPECT_EQ(Zone().GetLine(2)->m_dwBookmarks & 1, 1u);

    Command(ID_VIEW_NEXTBOOKMARK);  // wraps round to line 0
    EXPECT_EQ(Zone().GetSelMobileLine(), 0);
    Command(ID_VIEW_NEXTBOOKMARK);
    EXPECT_EQ(Zone().GetSelMobileLine(), 2);
    Command(ID_VIEW_PREVBOOKMARK);
    EXPECT_EQ(Zone().GetSelMobileLine(), 0);

    Command(ID_VIEW_TOGGLEBOOKMARK);
    EXPECT_EQ(Zone().GetLine(0)->m_dwBookmarks & 1, 0u);
}

TEST_F(EditorExCommandTest, AltDuringADragTurnsTheSelectionIntoABox) {
    const LPARAM kFrom = MAKELPARAM(20, 8);
    const LPARAM kTo = MAKELPARAM(60, 30);
    // Without Alt the drag stays a stream.
    m_editor.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, kFrom);
    m_editor.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, kTo);
    EXPECT_EQ(Zone().GetSelectionMode(), 1);
    // Alt alone, with no button down, is no drag.
    m_platform.SetKeyState(VK_MENU, true);
    m_editor.SendMessage(WM_MOUSEMOVE, 0, kTo);
    EXPECT_EQ(Zone().GetSelectionMode(), 1);
    // Alt pressed in the middle of the drag: a box from there on.
    m_editor.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, kTo);
    EXPECT_EQ(Zone().GetSelectionMode(), 2);
    EXPECT_TRUE(Zone().TestSelection());
    m_platform.SetKeyState(VK_MENU, false);
    m_editor.SendMessage(WM_LBUTTONUP, 0, kTo);
    EXPECT_EQ(Zone().GetSelectionMode(), 2);
}

TEST_F(EditorExCommandTest, InsertTextGoesInAsLinesAtTheLineAskedAndUndoesInOneStep) {
    m_editor.SetSel(3, 3);
    EXPECT_TRUE(m_editor.InsertText("new\r\n", 0, 1, 0, 1));
    EXPECT_EQ(Text(), "first line\r\nnew\r\nsecond line\r\nthird");
    EXPECT_TRUE(m_editor.GetModify());
    EXPECT_EQ(m_platform.GetWaitCursorDepth(), 0);
    m_editor.Undo();
    EXPECT_EQ(Text(), "first line\r\nsecond line\r\nthird");

    // At the caret, with -1; bModified alone marks the text.
    m_editor.SetModify(0);
    m_editor.SetSel(5, 5);
    m_editor.InsertText("+", 0, 0, 1, -1);
    EXPECT_EQ(Text(), "first+ line\r\nsecond line\r\nthird");
    EXPECT_TRUE(m_editor.GetModify());

    // In box mode the text still goes in as lines, and box mode stays.
    m_editor.SendMessage(WM_COMMAND, ID_EDIT_BOXMODE, 0);
    ASSERT_EQ(Zone().GetSelectionMode(), 2);
    m_editor.InsertText("a\r\nb\r\n", 0, 1, 0, 0);
    EXPECT_EQ(Text(), "a\r\nb\r\nfirst+ line\r\nsecond line\r\nthird");
    EXPECT_EQ(Zone().GetSelectionMode(), 2);
}

TEST_F(EditorExCommandTest, GetTextGivesTheLineEndsAskedInOneStringUntilTheNextCall) {
    EXPECT_STREQ(m_editor.GetText(2 | 32), "first line\r\nsecond line\r\nthird");
    EXPECT_STREQ(m_editor.GetText(1 | 32), "first line\nsecond line\nthird");
    // Every line ended, the last one too.
    EXPECT_STREQ(m_editor.GetText(2), "first line\r\nsecond line\r\nthird\r\n");
    m_editor.SetWindowTextA("");
    EXPECT_STREQ(m_editor.GetText(2), "");
}

TEST_F(EditorExCommandTest, FindSearchesTheFocusedEditorAndReplacingTellsTheParent) {
    CEditFindReplace& find = CEditFindReplace::Instance();
    EXPECT_TRUE(Enabled(ID_EDIT_FIND));
    EXPECT_FALSE(Enabled(ID_EDIT_REPEAT));
    SelectSecondLine();
    Command(ID_EDIT_FIND);
    CEditFindReplaceDialog* pDlg = find.m_pFindReplaceDlg;
    ASSERT_NE(pDlg, nullptr);
    EXPECT_EQ(pDlg->GetFindString(), "second");
    EXPECT_TRUE(pDlg->IsFindOnly());
    EXPECT_EQ(pDlg->m_hwndOwner, &m_editor);

    m_editor.SetSel(0, 0);
    pDlg->DoAction(FR_FINDNEXT, "line", "", TRUE, FALSE);
    LONG lStart = 0, lEnd = 0;
    Zone().GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    EXPECT_EQ(lStart, 6);
    EXPECT_TRUE(Enabled(ID_EDIT_REPEAT));
    Command(ID_EDIT_REPEAT);
    Zone().GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    EXPECT_EQ(lStart, 18);
    const int nBeeps = m_platform.GetBeepCount();
    m_editor.FindNext();
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 1);

    // A replacement is a change the parent hears of.
    Changes();
    m_editor.SetModify(0);
    pDlg->DoAction(FR_REPLACE, "third", "3rd", TRUE, FALSE);
    EXPECT_EQ(Text(), "first line\r\nsecond line\r\n3rd");
    EXPECT_EQ(Changes(), 1);

    // Another editor that gets the focus takes the dialog over; when it goes,
    // the dialog reports to no window until the next one has the focus.
    auto pOther = std::make_unique<CEditorEx>();
    Create(*pOther, 39);
    pOther->SetWindowTextA("line");
    pOther->SetSel(0, 0);
    pOther->SetFocus();
    EXPECT_EQ(pDlg->m_hwndOwner, pOther.get());
    pDlg->DoAction(FR_FINDNEXT, "line", "", TRUE, FALSE);
    EXPECT_TRUE(pOther->GetTextZone()->TestSelection());
    pOther.reset();
    EXPECT_EQ(pDlg->m_hwndOwner, nullptr);
    pDlg->DoAction(FR_FINDNEXT, "line", "", TRUE, FALSE);
    m_platform.PumpMessages();
    m_editor.SetFocus();
    EXPECT_EQ(pDlg->m_hwndOwner, &m_editor);
}

TEST_F(EditorExTest, AZoneGivenIsBorrowedAndANullOneIsMadeAndOwned) {
    EXPECT_TRUE(m_editor.m_bOwnParamZone);
    EXPECT_EQ(static_cast<CTextZone*>(m_editor.GetTextZone()), m_editor.GetZone());
    CTextZoneParam zone;
    {
        CEditorEx borrower(&zone);
        EXPECT_FALSE(borrower.m_bOwnParamZone);
        EXPECT_EQ(borrower.GetTextZone(), &zone);
        Create(borrower, 35);
        borrower.SetWindowTextA("kept");
        EXPECT_EQ(zone.GetWindow(), &borrower);
    }
    // The zone outlives its window, text and all.
    EXPECT_EQ(zone.GetWindow(), nullptr);
    EXPECT_EQ(zone.GetTextLength(kCrLfAsIs), 4);

    const int nBeeps = m_platform.GetBeepCount();
    m_editor.OnTextNotFound("missing");
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 1);
}
