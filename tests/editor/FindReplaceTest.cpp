// Find and replace through the dialog all editors share: which window a
// search goes to, what a replacement does, and what one undo restores.
#include <string>

#include "ViewsFixture.h"

namespace {

class FindReplaceTest : public ViewsTest {
protected:
    static std::string Selected(CEditorViewEx* pView) {
        return ZoneSelectedText(*pView->GetTextZone(), 1);
    }
    // A new text with the caret at its start, where a search begins.
    static void SetText(CEditorViewEx* pView, const char* pszText) {
        pView->GetTextZone()->SetText(pszText);
        pView->GetTextZone()->SetSelection(0, 0, 0, 0, 0, 1);
    }
    static CEditFindReplaceDialog* Dialog() {
        return CEditFindReplace::Instance().m_pFindReplaceDlg;
    }
};

TEST_F(FindReplaceTest, OpeningTakesTheSelectionAndKeepsOneDialogOfOneKind) {
    SetText(m_pViewB, "select name from t");
    m_pViewB->GetTextZone()->SetSelection(0, 0, 7, 11, 0, 1);
    Command(ID_EDIT_FIND);
    CEditFindReplaceDialog* pFirst = Dialog();
    ASSERT_NE(pFirst, nullptr);
    EXPECT_TRUE(pFirst->IsFindOnly());
    EXPECT_EQ(pFirst->GetFindString(), "name");
    EXPECT_EQ(pFirst->m_hwndOwner, m_pViewB);
    EXPECT_TRUE(pFirst->m_fr.Flags & FR_HIDEWHOLEWORD);
    EXPECT_TRUE(pFirst->m_fr.Flags & FR_DOWN);

    // The same kind again: the same dialog comes forward.
    Command(ID_EDIT_FIND);
    EXPECT_EQ(Dialog(), pFirst);
    // The other kind closes it and opens a replace dialog; with no selection
    // the last search text is offered.
    CEditFindReplace::Instance().m_strFind = "from";
    m_pViewB->GetTextZone()->SetSelection(0, 0, 0, 0, 0, 1);
    Command(ID_EDIT_REPLACE);
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_FALSE(Dialog()->IsFindOnly());
    EXPECT_EQ(Dialog()->GetFindString(), "from");

    // A selection of 1023 characters or more is no search text.
    std::string longLine(1100, 'x');
    SetText(m_pViewB, longLine.c_str());
    m_pViewB->GetTextZone()->SetSelection(0, -1, 0, 0, 1, 1);
    Command(ID_EDIT_FIND);
    EXPECT_EQ(Dialog()->GetFindString(), "from");
}

TEST_F(FindReplaceTest, TheDialogSearchesTheEditorWithTheFocusAndRepeatsThere) {
    SetText(m_pViewA, "x abc y abc");
    SetText(m_pViewB, "abc z");
    Activate(m_pViewA);
    Command(ID_EDIT_FIND);
    Dialog()->DoAction(FR_FINDNEXT, "abc", "", TRUE, FALSE);
    EXPECT_EQ(Selected(m_pViewA), "abc");
    LONG lStart = 0, lEnd = 0;
    m_pViewA->GetTextZone()->GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    EXPECT_EQ(lStart, 2);

    // The focus moves to B: the dialog and F3 search there.
    Activate(m_pViewB);
    EXPECT_EQ(Dialog()->m_hwndOwner, m_pViewB);
    Command(ID_EDIT_REPEAT);
    EXPECT_EQ(Selected(m_pViewB), "abc");
    EXPECT_EQ(Selected(m_pViewA), "abc");  // untouched

    // Nothing more to find: one beep, the selection stays.
    const int nBeeps = m_platform.GetBeepCount();
    Command(ID_EDIT_REPEAT);
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 1);
}

TEST_F(FindReplaceTest, RepeatWithoutASearchTextDoesNothing) {
    SetText(m_pViewB, "abc");
    CCmdUI ui;
    ui.m_nID = ID_EDIT_REPEAT;
    ui.DoUpdate(&m_main, TRUE);
    EXPECT_FALSE(ui.m_bEnabled);
    const int nBeeps = m_platform.GetBeepCount();
    Command(ID_EDIT_REPEAT);
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps);
    EXPECT_EQ(Selected(m_pViewB), "");
}

TEST_F(FindReplaceTest, ReplaceAtTheMatchAndAwayFromIt) {
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    SetText(m_pViewB, "one two one two");
    Command(ID_EDIT_REPLACE);
    // Away from a match: the first one is found and replaced, and the next selected.
    Dialog()->DoAction(FR_REPLACE, "two", "2", TRUE, FALSE);
    EXPECT_EQ(Text(m_pViewB), "one 2 one two");
    EXPECT_EQ(Selected(m_pViewB), "two");
    EXPECT_TRUE(m_pViewB->GetDocument()->IsModified());
    // At a match: replaced at once, without a search first.
    Dialog()->DoAction(FR_REPLACE, "two", "2", TRUE, FALSE);
    EXPECT_EQ(Text(m_pViewB), "one 2 one 2");
    EXPECT_EQ(CEditFindReplace::Instance().m_strReplace, "2");
    // A read-only text takes no replacement.
    SetText(m_pViewB, "two");
    zone.SetReadOnly(1);
    Dialog()->DoAction(FR_REPLACE, "two", "2", TRUE, FALSE);
    EXPECT_EQ(Text(m_pViewB), "two");
}

TEST_F(FindReplaceTest, ReplaceAllIsOneUndoStep) {
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    const char* pszText = "where a\nwhere b and WHERE c\nnothing\nwhere";
    SetText(m_pViewB, pszText);
    zone.FreeAllOperations();
    Command(ID_EDIT_REPLACE);
    Dialog()->DoAction(FR_REPLACEALL, "where", "WHERE", TRUE, FALSE);
    EXPECT_EQ(Text(m_pViewB), "WHERE a\nWHERE b and WHERE c\nnothing\nWHERE");
    EXPECT_EQ(zone.GetUndoType(), TZ_EDIT_REPLACE_ALL);
    Command(ID_EDIT_UNDO);
    EXPECT_EQ(Text(m_pViewB), pszText);
    // Case matched: only the lower-case ones; a replacement holding the
    // search text does not loop.
    Dialog()->DoAction(FR_REPLACEALL, "where", "where where", TRUE, TRUE);
    EXPECT_EQ(Text(m_pViewB), "where where a\nwhere where b and WHERE c\nnothing\nwhere where");
}

TEST_F(FindReplaceTest, AnActionHeardByAnotherWindowGoesToTheOwner) {
    SetText(m_pViewA, "find me");
    Activate(m_pViewA);
    Command(ID_EDIT_FIND);
    FINDREPLACEA& record = Dialog()->m_fr;
    record.Flags = FR_FINDNEXT | FR_DOWN;
    record.lpstrFindWhat = "me";
    // B hears it: it is posted on to A, and only A searches.
    m_pViewB->SendMessage(RegisterWindowMessageA("commdlg_FindReplace"), 0,
                          reinterpret_cast<LPARAM>(&record));
    EXPECT_EQ(Selected(m_pViewA), "");
    m_platform.PumpMessages();
    EXPECT_EQ(Selected(m_pViewA), "me");
    // Cancel: the dialog goes and the shared state forgets it.
    Dialog()->SendMessage(WM_CLOSE);
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(FindReplaceTest, TheDialogOutlivesTheEditorItSearched) {
    SetText(m_pViewA, "abc");
    Activate(m_pViewB);
    Command(ID_EDIT_FIND);
    ASSERT_EQ(Dialog()->m_hwndOwner, m_pViewB);
    m_pViewB->GetParentFrame()->SendMessage(WM_CLOSE);
    m_platform.PumpMessages();
    // The editor that got the focus next owns it; the gone one is forgotten.
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_EQ(Dialog()->m_hwndOwner, m_pViewA);
    Dialog()->DoAction(FR_FINDNEXT, "abc", "", TRUE, FALSE);
    EXPECT_EQ(Selected(m_pViewA), "abc");
    // Without any editor left, an action goes nowhere.
    m_pViewA->GetParentFrame()->SendMessage(WM_CLOSE);
    m_platform.PumpMessages();
    EXPECT_EQ(Dialog()->m_hwndOwner, nullptr);
    Dialog()->DoAction(FR_FINDNEXT, "abc", "", TRUE, FALSE);
}

TEST_F(FindReplaceTest, CtrlF3SearchesForTheSelection) {
    CTextZoneParam& zone = *m_pViewB->GetTextZone();
    SetText(m_pViewB, "abc x abc");
    zone.SetSelection(0, 0, 0, 3, 0, 1);
    m_platform.SetKeyState(VK_CONTROL, true);
    m_pViewB->SendMessage(WM_KEYDOWN, VK_F3, 1);
    m_platform.SetKeyState(VK_CONTROL, false);
    EXPECT_EQ(CEditFindReplace::Instance().m_strFind, "abc");
    LONG lStart = 0, lEnd = 0;
    zone.GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    EXPECT_EQ(lStart, 6);
}

}  // namespace
