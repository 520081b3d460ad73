#include <cstring>
#include <string>

#include "editor/Editor.h"
#include "platform/Font.h"
#include "platform/OleDataObject.h"
#include "platform/headless/HeadlessFonts.h"
#include "support/HeadlessTest.h"
#include "textzone/TextZone.h"

namespace {

// A parent window that answers WM_GETFONT, notes the rest and stays open.
class CParentWnd : public CRecordingWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(m_hFont);
        // Closing would destroy the editor under the test.
        if (message == WM_CLOSE) return ++m_nCloseRequests, 0;
        return CRecordingWnd::WindowProc(message, wParam, lParam);
    }
    HFONT m_hFont = nullptr;
    int m_nCloseRequests = 0;
};

class EditorTest : public HeadlessTest {
protected:
    void SetUp() override {
        HeadlessTest::SetUp();
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
        m_font.CreateFontIndirect(&lf);
        m_parent.m_hFont = m_font;
        m_parent.Create(WS_VISIBLE, RECT{0, 0, 600, 400}, nullptr, 0);
        m_editor.Create(WS_VISIBLE | WS_CHILD | WS_VSCROLL, RECT{10, 10, 410, 310}, &m_parent, 77);
    }
    void TearDown() override {
        m_editor.DestroyWindow();
        m_parent.DestroyWindow();
        HeadlessTest::TearDown();
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return m_editor.SendMessage(message, wParam, lParam);
    }
    void SetText(const char* pszText) {
        Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(pszText));
    }
    std::string Text() {
        char buffer[256];
        Send(WM_GETTEXT, sizeof buffer, reinterpret_cast<LPARAM>(buffer));
        return buffer;
    }
    // WM_COMMAND notifications the parent got with this code, after pumping.
    int Notified(int nCode) {
        m_platform.PumpMessages();
        int count = 0;
        for (const auto& m : m_parent.Messages())
            if (m.message == WM_COMMAND && HIWORD(m.wParam) == nCode && LOWORD(m.wParam) == 77 &&
                m.lParam == reinterpret_cast<LPARAM>(&m_editor))
                ++count;
        return count;
    }

    CFont m_font;
    CParentWnd m_parent;
    CEditor m_editor;
};

}  // namespace

TEST_F(EditorTest, SetUpTakesTheParentsFontAndLaysOutWholeLines) {
    // The first paint, at creation, already set the control up.
    EXPECT_TRUE(m_editor.m_bInitialized);
    CTextZone* zone = m_editor.GetZone();
    EXPECT_EQ(zone->GetWindow(), &m_editor);
    EXPECT_EQ(zone->GetTabWidth(), -4);
    EXPECT_EQ(zone->GetNoBlockFlag(), 1);
    EXPECT_EQ(zone->GetFont(), m_font.GetSafeHandle());
    EXPECT_TRUE(m_editor.IsScrollBarVisible(SB_VERT));
    // The text rectangle: the client area less 3 pixels, whole lines high.
    RECT client, rc;
    m_editor.GetClientRect(&client);
    zone->GetRect(&rc);
    EXPECT_EQ(rc.left, 3);
    EXPECT_EQ(rc.top, 3);
    EXPECT_EQ(rc.right, client.right - 3);
    EXPECT_EQ((rc.bottom - rc.top) % 16, 0);
    EXPECT_LE(client.bottom - 3 - rc.bottom, 15);
    EXPECT_EQ(zone->GetMaxWidth(), rc.right - rc.left - 10);
}

TEST_F(EditorTest, TextMessagesAndTheirQuirks) {
    EXPECT_EQ(Send(EM_GETLINECOUNT), 0);
    SetText("a");
    EXPECT_EQ(Send(EM_GETLINECOUNT), 1);
    SetText("SELECT *\r\nFROM t\r\n");
    EXPECT_EQ(Text(), "SELECT *\r\nFROM t\r\n");
    EXPECT_EQ(Send(WM_GETTEXTLENGTH), 18);
    // The place behind the final line end holds no line.
    EXPECT_EQ(Send(EM_GETLINECOUNT), 2);
    // A line number, and the raw length with the terminator.
    EXPECT_EQ(Send(EM_LINELENGTH, 1), 7);
    EXPECT_EQ(Send(EM_LINEINDEX, 1), 9);
    EXPECT_EQ(Send(EM_LINEFROMCHAR, 9), 1);

    char small[5];
    LRESULT n = Send(WM_GETTEXT, sizeof small, reinterpret_cast<LPARAM>(small));
    EXPECT_EQ(n, 4);
    EXPECT_STREQ(small, "SELE");

    char line[32];
    EXPECT_EQ(Send(EM_GETLINE, 1, reinterpret_cast<LPARAM>(line)), 7);
    EXPECT_STREQ(line, "FROM t\r");
    EXPECT_EQ(Send(EM_GETLINE, 1, 0), 0);
    EXPECT_EQ(m_editor.GetLine(0, line, 4), 3);
    EXPECT_STREQ(line, "SEL");
    EXPECT_EQ(m_editor.GetLine(9, line, 4), 0);
    EXPECT_STREQ(line, "");

    // Both ends of EM_SETSEL come from lParam; wParam is not read.
    Send(EM_SETSEL, 3, MAKELPARAM(0, 0));
    EXPECT_EQ(Send(EM_GETSEL), MAKELONG(0, 0));
    Send(EM_SETSEL, 0, MAKELPARAM(2, 5));
    EXPECT_EQ(Send(EM_GETSEL), MAKELONG(2, 5));
    Send(EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("xx"));
    EXPECT_EQ(Text(), "SExxT *\r\nFROM t\r\n");

    int stops = 8;
    EXPECT_EQ(Send(EM_SETTABSTOPS, 2, reinterpret_cast<LPARAM>(&stops)), 0);
    EXPECT_EQ(Send(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&stops)), 1);
    EXPECT_EQ(m_editor.GetZone()->GetTabWidth(), 8);
    EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_WANTALLKEYS);
    Send(EM_SETREADONLY, 1);
    EXPECT_EQ(m_editor.GetZone()->GetReadOnly(), 1);
}

TEST_F(EditorTest, ClearLeavesAFullStopAndUndoMessagesReachTheHistory) {
    SetText("abc\r\ndef");
    EXPECT_EQ(Send(EM_CANUNDO), 0);
    m_editor.Clear();
    // The Delete key's code goes in as a character.
    EXPECT_EQ(Text(), ".\r\n");
    Send(EM_SETSEL, 0, MAKELPARAM(0, 1));
    Send(EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(""));
    m_editor.GetZone()->SetModify(1);
    m_editor.GetZone()->StartRegister(6);
    m_editor.ReplaceSel("new");
    m_editor.GetZone()->EndRegister();
    EXPECT_EQ(Send(EM_CANUNDO), 1);
    EXPECT_EQ(Send(EM_UNDO), 1);
    EXPECT_EQ(Text(), "");
    Send(EM_EMPTYUNDOBUFFER);
    EXPECT_EQ(Send(EM_CANUNDO), 0);
}

// A host's replacement is not recorded, so the places in the history no
// longer match the text; replaying them would cut the wrong bytes or leave
// an unended line inside the text. The history goes instead.
TEST_F(EditorTest, AReplacementOutsideTheHistoryEndsTheHistory) {
    SetText("one\r\ntwo");
    Send(EM_SETSEL, 0, MAKELPARAM(3, 3));
    Send(WM_CHAR, 'X');
    Send(WM_CHAR, 'Y');
    ASSERT_EQ(Send(EM_CANUNDO), 1);
    Send(EM_SETSEL, 0, MAKELPARAM(0, 2));
    Send(EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("a\r\nb\r\nc"));
    EXPECT_EQ(Text(), "a\r\nb\r\nceXY\r\ntwo\r\n");
    EXPECT_EQ(Send(EM_CANUNDO), 0);
    Send(EM_UNDO);
    EXPECT_EQ(Text(), "a\r\nb\r\nceXY\r\ntwo\r\n");

    // Inside a frame of the host's own the replacement is one more step.
    m_editor.GetZone()->StartRegister(6);
    m_editor.ReplaceSel("Z");
    m_editor.GetZone()->EndRegister();
    EXPECT_EQ(Send(EM_UNDO), 1);
    EXPECT_EQ(Text(), "a\r\nb\r\nceXY\r\ntwo\r\n");
    EXPECT_EQ(Send(EM_CANUNDO), 0);
}

TEST_F(EditorTest, EscapeAsksTheParentToCloseAndShortcutsAreTakenFirst) {
    SetText("hello");
    m_parent.ClearMessages();
    Send(WM_KEYDOWN, VK_ESCAPE);
    m_platform.PumpMessages();
    EXPECT_EQ(m_parent.m_nCloseRequests, 1);

    m_platform.SetKeyState(VK_CONTROL, true);
    Send(WM_KEYDOWN, 'A');
    LONG start = -1, end = -1;
    m_editor.GetSelection(&start, &end, nullptr, nullptr, 1);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 5);
    m_platform.SetClipboardText("old");
    Send(WM_KEYDOWN, 'C');
    EXPECT_EQ(m_platform.GetClipboardText(), "hello");
    // Ctrl+Space never reaches the text.
    Send(WM_CHAR, ' ');
    EXPECT_EQ(Text(), "hello\r\n");
    m_platform.SetKeyState(VK_CONTROL, false);
}

TEST_F(EditorTest, ChangesAreAnnouncedToTheParent) {
    SetText("abc");
    m_parent.ClearMessages();
    // A caret move changes nothing and keeps the old modified flag.
    m_editor.SetModify(1);
    Send(WM_KEYDOWN, VK_LEFT);
    EXPECT_EQ(Notified(EN_CHANGE), 0);
    EXPECT_EQ(m_editor.GetModify(), 1);
    m_editor.SetModify(0);
    Send(WM_CHAR, 'x');
    EXPECT_EQ(Notified(EN_CHANGE), 1);
    EXPECT_EQ(m_editor.GetModify(), 1);

    // An update is announced only while an action is under way.
    m_parent.ClearMessages();
    m_editor.SetModify(1);
    m_editor.Invalidate();
    m_editor.UpdateWindow();
    EXPECT_EQ(Notified(EN_UPDATE), 0);
    m_editor.m_nNotifyDepth = 1;
    m_editor.Invalidate();
    m_editor.UpdateWindow();
    m_editor.m_nNotifyDepth = 0;
    EXPECT_EQ(Notified(EN_UPDATE), 1);
}

TEST_F(EditorTest, DropsNeedTextAndCopyWithControl) {
    SetText("abc");
    m_editor.SetOleDropTarget(true);
    Send(WM_SETFOCUS);
    COleDataObject empty;
    EXPECT_EQ(m_editor.OnDragEnter(&empty, 0, CPoint(20, 10)), DROPEFFECT_NONE);
    EXPECT_FALSE(m_editor.IsOleDropAllowed());
    EXPECT_EQ(m_editor.OnDrop(&empty, DROPEFFECT_COPY, CPoint(20, 10)), 0);
}

TEST_F(EditorTest, ABorrowedZoneSurvivesItsControl) {
    CTextZone zone;
    {
        CEditor editor(&zone);
        editor.Create(WS_VISIBLE | WS_CHILD, RECT{0, 0, 200, 100}, &m_parent, 5);
        editor.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("kept"));
        EXPECT_EQ(editor.m_bOwnZone, 0);
    }
    EXPECT_EQ(zone.GetWindow(), nullptr);
    EXPECT_EQ(zone.GetTextLength(TF_NO_FINAL_END), 4);
}
