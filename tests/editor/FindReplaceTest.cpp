// Find and replace through the dialog all editors share: which window a
// search goes to, what a replacement does, and what one undo restores.
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
#include "zones/TextZoneParam.h"

namespace {

class FindReplaceTest : public ::testing::Test {
protected:
    void SetUp() override {
        AppDataManager::InstallAppDataManager(&m_store);
        CEditFindReplace& find = CEditFindReplace::Instance();
        find.m_strFind = "";
        find.m_strReplace = "";
        find.m_bNext = 1;
        find.m_bCase = 0;
        m_main.Create(WS_VISIBLE, RECT{0, 0, 800, 600}, nullptr, 0);
        m_pA = Open("a");
        m_pB = Open("b");
    }
    void TearDown() override {
        if (CEditFindReplace::Instance().m_pFindReplaceDlg)
            CEditFindReplace::Instance().m_pFindReplaceDlg->SendMessage(WM_CLOSE);
        m_main.DestroyWindow();
        AppDataManager::InstallAppDataManager(nullptr);
    }
    CEditorViewEx* Open(const char* pszTitle) {
        auto pDoc = std::make_unique<CDocument>();
        pDoc->SetTitle(pszTitle);
        std::unique_ptr<CEditorViewEx> pView(CEditorViewEx::CreateObject());
        CEditorViewEx* pRaw = pView.get();
        m_main.OpenDocument(std::move(pDoc), std::make_unique<CEditFrm>(), std::move(pView));
        return pRaw;
    }
    void Activate(CEditorViewEx* pView) {
        m_main.MDIActivate(static_cast<CMDIChildWnd*>(pView->GetParentFrame()));
    }
    static std::string Text(CEditorViewEx* pView) {
        CTextZoneParam& zone = *pView->GetTextZone();
        std::string text(static_cast<size_t>(zone.GetTextLength(1 | 32)) + 2, '\0');
        zone.GetText(text.data(), static_cast<LONG>(text.size()), 1 | 32);
        text.resize(std::char_traits<char>::length(text.c_str()));
        return text;
    }
    static std::string Selected(CEditorViewEx* pView) {
        CTextZoneParam& zone = *pView->GetTextZone();
        std::string text(static_cast<size_t>(zone.GetSelectedTextLength(1)) + 2, '\0');
        zone.GetSelectedText(text.data(), static_cast<LONG>(text.size()), 1);
        text.resize(std::char_traits<char>::length(text.c_str()));
        return text;
    }
    // A new text with the caret at its start, where a search begins.
    static void SetText(CEditorViewEx* pView, const char* pszText) {
        pView->GetTextZone()->SetText(pszText);
        pView->GetTextZone()->SetSelection(0, 0, 0, 0, 0, 1);
    }
    static CEditFindReplaceDialog* Dialog() { return CEditFindReplace::Instance().m_pFindReplaceDlg; }

    CHeadlessPlatform m_platform;
    CMemoryAppDataManager m_store;
    CMDIFrameWnd m_main;
    CEditorViewEx* m_pA = nullptr;
    CEditorViewEx* m_pB = nullptr;
};

TEST_F(FindReplaceTest, OpeningTakesTheSelectionAndKeepsOneDialogOfOneKind) {
    SetText(m_pB, "select name from t");
    m_pB->GetTextZone()->SetSelection(0, 0, 7, 11, 0, 1);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_FIND, 0);
    CEditFindReplaceDialog* pFirst = Dialog();
    ASSERT_NE(pFirst, nullptr);
    EXPECT_TRUE(pFirst->IsFindOnly());
    EXPECT_EQ(pFirst->GetFindString(), "name");
    EXPECT_EQ(pFirst->m_hwndOwner, m_pB);
    EXPECT_TRUE(pFirst->m_fr.Flags & FR_HIDEWHOLEWORD);
    EXPECT_TRUE(pFirst->m_fr.Flags & FR_DOWN);

    // The same kind again: the same dialog comes forward.
    m_main.SendMessage(WM_COMMAND, ID_EDIT_FIND, 0);
    EXPECT_EQ(Dialog(), pFirst);
    // The other kind closes it and opens a replace dialog; with no selection
    // the last search text is offered.
    CEditFindReplace::Instance().m_strFind = "from";
    m_pB->GetTextZone()->SetSelection(0, 0, 0, 0, 0, 1);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_REPLACE, 0);
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_FALSE(Dialog()->IsFindOnly());
    EXPECT_EQ(Dialog()->GetFindString(), "from");

    // A selection of 1023 characters or more is no search text.
    std::string longLine(1100, 'x');
    SetText(m_pB, longLine.c_str());
    m_pB->GetTextZone()->SetSelection(0, -1, 0, 0, 1, 1);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_FIND, 0);
    EXPECT_EQ(Dialog()->GetFindString(), "from");
}

TEST_F(FindReplaceTest, TheDialogSearchesTheEditorWithTheFocusAndRepeatsThere) {
    SetText(m_pA, "x abc y abc");
    SetText(m_pB, "abc z");
    Activate(m_pA);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_FIND, 0);
    Dialog()->DoAction(FR_FINDNEXT, "abc", "", TRUE, FALSE);
    EXPECT_EQ(Selected(m_pA), "abc");
    LONG lStart = 0, lEnd = 0;
    m_pA->GetTextZone()->GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    EXPECT_EQ(lStart, 2);

    // The focus moves to B: the dialog and F3 search there.
    Activate(m_pB);
    EXPECT_EQ(Dialog()->m_hwndOwner, m_pB);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_REPEAT, 0);
    EXPECT_EQ(Selected(m_pB), "abc");
    EXPECT_EQ(Selected(m_pA), "abc");  // untouched

    // Nothing more to find: one beep, the selection stays.
    const int nBeeps = m_platform.GetBeepCount();
    m_main.SendMessage(WM_COMMAND, ID_EDIT_REPEAT, 0);
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps + 1);
}

TEST_F(FindReplaceTest, RepeatWithoutASearchTextDoesNothing) {
    SetText(m_pB, "abc");
    CCmdUI ui;
    ui.m_nID = ID_EDIT_REPEAT;
    ui.DoUpdate(&m_main, TRUE);
    EXPECT_FALSE(ui.m_bEnabled);
    const int nBeeps = m_platform.GetBeepCount();
    m_main.SendMessage(WM_COMMAND, ID_EDIT_REPEAT, 0);
    EXPECT_EQ(m_platform.GetBeepCount(), nBeeps);
    EXPECT_EQ(Selected(m_pB), "");
}

TEST_F(FindReplaceTest, ReplaceAtTheMatchAndAwayFromIt) {
    CTextZoneParam& zone = *m_pB->GetTextZone();
    SetText(m_pB, "one two one two");
    m_main.SendMessage(WM_COMMAND, ID_EDIT_REPLACE, 0);
    // Away from a match: the first one is found and replaced, and the next selected.
    Dialog()->DoAction(FR_REPLACE, "two", "2", TRUE, FALSE);
    EXPECT_EQ(Text(m_pB), "one 2 one two");
    EXPECT_EQ(Selected(m_pB), "two");
    EXPECT_TRUE(m_pB->GetDocument()->IsModified());
    // At a match: replaced at once, without a search first.
    Dialog()->DoAction(FR_REPLACE, "two", "2", TRUE, FALSE);
    EXPECT_EQ(Text(m_pB), "one 2 one 2");
    EXPECT_EQ(CEditFindReplace::Instance().m_strReplace, "2");
    // A read-only text takes no replacement.
    SetText(m_pB, "two");
    zone.SetReadOnly(1);
    Dialog()->DoAction(FR_REPLACE, "two", "2", TRUE, FALSE);
    EXPECT_EQ(Text(m_pB), "two");
}

TEST_F(FindReplaceTest, ReplaceAllIsOneUndoStep) {
    CTextZoneParam& zone = *m_pB->GetTextZone();
    const char* pszText = "where a\nwhere b and WHERE c\nnothing\nwhere";
    SetText(m_pB, pszText);
    zone.FreeAllOperations();
    m_main.SendMessage(WM_COMMAND, ID_EDIT_REPLACE, 0);
    Dialog()->DoAction(FR_REPLACEALL, "where", "WHERE", TRUE, FALSE);
    EXPECT_EQ(Text(m_pB), "WHERE a\nWHERE b and WHERE c\nnothing\nWHERE");
    EXPECT_EQ(zone.GetUndoType(), TZ_EDIT_REPLACE_ALL);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_UNDO, 0);
    EXPECT_EQ(Text(m_pB), pszText);
    // Case matched: only the lower-case ones; a replacement holding the
    // search text does not loop.
    Dialog()->DoAction(FR_REPLACEALL, "where", "where where", TRUE, TRUE);
    EXPECT_EQ(Text(m_pB), "where where a\nwhere where b and WHERE c\nnothing\nwhere where");
}

TEST_F(FindReplaceTest, AnActionHeardByAnotherWindowGoesToTheOwner) {
    SetText(m_pA, "find me");
    Activate(m_pA);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_FIND, 0);
    FINDREPLACEA& record = Dialog()->m_fr;
    record.Flags = FR_FINDNEXT | FR_DOWN;
    record.lpstrFindWhat = "me";
    // B hears it: it is posted on to A, and only A searches.
    m_pB->SendMessage(RegisterWindowMessageA("commdlg_FindReplace"), 0,
                      reinterpret_cast<LPARAM>(&record));
    EXPECT_EQ(Selected(m_pA), "");
    m_platform.PumpMessages();
    EXPECT_EQ(Selected(m_pA), "me");
    // Cancel: the dialog goes and the shared state forgets it.
    Dialog()->SendMessage(WM_CLOSE);
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(FindReplaceTest, TheDialogOutlivesTheEditorItSearched) {
    SetText(m_pA, "abc");
    Activate(m_pB);
    m_main.SendMessage(WM_COMMAND, ID_EDIT_FIND, 0);
    ASSERT_EQ(Dialog()->m_hwndOwner, m_pB);
    m_pB->GetParentFrame()->SendMessage(WM_CLOSE);
    m_platform.PumpMessages();
    // The editor that got the focus next owns it; the gone one is forgotten.
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_EQ(Dialog()->m_hwndOwner, m_pA);
    Dialog()->DoAction(FR_FINDNEXT, "abc", "", TRUE, FALSE);
    EXPECT_EQ(Selected(m_pA), "abc");
    // Without any editor left, an action goes nowhere.
    m_pA->GetParentFrame()->SendMessage(WM_CLOSE);
    m_platform.PumpMessages();
    EXPECT_EQ(Dialog()->m_hwndOwner, nullptr);
    Dialog()->DoAction(FR_FINDNEXT, "abc", "", TRUE, FALSE);
}

TEST_F(FindReplaceTest, CtrlF3SearchesForTheSelection) {
    CTextZoneParam& zone = *m_pB->GetTextZone();
    SetText(m_pB, "abc x abc");
    zone.SetSelection(0, 0, 0, 3, 0, 1);
    m_platform.SetKeyState(VK_CONTROL, true);
    m_pB->SendMessage(WM_KEYDOWN, VK_F3, 1);
    m_platform.SetKeyState(VK_CONTROL, false);
    EXPECT_EQ(CEditFindReplace::Instance().m_strFind, "abc");
    LONG lStart = 0, lEnd = 0;
    zone.GetSelection(&lStart, &lEnd, nullptr, nullptr, 1);
    EXPECT_EQ(lStart, 6);
}

}  // namespace
