#include <string>
#include <vector>

#include "editor/Editor.h"
#include "platform/Font.h"
#include "support/ZoneTest.h"
#include "textzone/TextZone.h"

namespace {

// A parent that gives its editors their font.
class CFontParent : public CRecordingWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(m_hFont);
        return CRecordingWnd::WindowProc(message, wParam, lParam);
    }
    HFONT m_hFont = nullptr;
};

// Two editor controls side by side, both drag sources and drop targets,
// driven by their messages.
class DragDropTest : public HeadlessTest {
protected:
    void SetUp() override {
        HeadlessTest::SetUp();
        CreateFixedFont(m_font);
        m_parent.m_hFont = m_font;
        ASSERT_TRUE(m_parent.Create(WS_VISIBLE, RECT{0, 0, 900, 400}, nullptr, 0));
        for (CEditor* editor : {&m_a, &m_b}) {
            editor->SetOleDataSource(true);
            editor->SetOleDropTarget(true);
        }
        ASSERT_TRUE(m_a.Create(WS_VISIBLE | WS_CHILD, RECT{10, 10, 410, 310}, &m_parent, 1));
        ASSERT_TRUE(m_b.Create(WS_VISIBLE | WS_CHILD, RECT{450, 10, 850, 310}, &m_parent, 2));
        m_platform.SetTickCount(1000);
    }
    void TearDown() override {
        m_a.DestroyWindow();
        m_b.DestroyWindow();
        m_parent.DestroyWindow();
        HeadlessTest::TearDown();
    }

    CTextZone& A() { return *m_a.GetZone(); }
    CTextZone& B() { return *m_b.GetZone(); }
    static POINT At(CEditor& editor, int nLine, int nChar) {
        const RECT& rc = editor.GetZone()->m_rcText;
        return POINT{rc.left + nChar * 8, rc.top + nLine * 16 + 8};
    }
    static std::string Text(CTextZone& zone) {
        std::vector<char> buffer(static_cast<size_t>(zone.GetTextLength(TF_CRLF)) + 8, 0);
        zone.GetText(buffer.data(), static_cast<LONG>(buffer.size()), TF_CRLF | TF_NO_FINAL_END);
        return buffer.data();
    }
    // The next drag started drops on an editor at a point, with keys.
    void DropOn(CEditor& target, POINT pt, DWORD dwKeyState = 0) {
        m_platform.SetDragHandler([=, this, &target](CWnd*, const std::string& text, DWORD allowed) {
            m_dragText = text;
            m_dwAllowed = allowed;
            return m_platform.SimulateDrop(&target, text, dwKeyState, pt);
        });
    }
    // Selects bytes 4 to 8 of A's line and presses on them; returns the drags started.
    int DragTwo() {
        A().SetSelection(0, 0, 4, 8, 0, 0);
        return Click(m_a, At(m_a, 0, 5));
    }
    int Click(CEditor& editor, POINT pt) {
        int drags = m_platform.GetDragCount();
        editor.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pt.x, pt.y));
        editor.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(pt.x, pt.y));
        return m_platform.GetDragCount() - drags;
    }

    CFont m_font;
    CFontParent m_parent;
    CEditor m_a;
    CEditor m_b;
    std::string m_dragText;
    DWORD m_dwAllowed = 0;
};

}  // namespace

TEST_F(DragDropTest, DragsStartOnAStreamSelectionAndDropsNeedAWritableZone) {
    m_a.SetWindowTextA("one two three");
    POINT in = At(m_a, 0, 5), out = At(m_a, 0, 1);
    EXPECT_FALSE(A().IsOleDragAllowed(0, &in));  // nothing selected
    A().SetSelection(0, 0, 4, 8, 0, 0);
    EXPECT_FALSE(A().IsOleDragAllowed(0, &out));
    m_platform.SetKeyState(VK_MENU, true);
    EXPECT_FALSE(A().IsOleDragAllowed(0, &in));
    m_platform.SetKeyState(VK_MENU, false);
    A().SetReadOnly(1);
    EXPECT_TRUE(A().IsOleDragAllowed(0, &in));  // a copy may still leave
    EXPECT_FALSE(A().IsOleDropAllowed(0, &in));
    A().SetReadOnly(0);
    A().SetDragDropFlag(0);
    EXPECT_FALSE(A().IsOleDragAllowed(0, &in));
    EXPECT_FALSE(A().IsOleDropAllowed(0, &in));
}

TEST_F(DragDropTest, ADragMovesOrWithCtrlCopiesWithinAndBetweenZones) {
    struct Case { CEditor* target; POINT pt; DWORD keys; const char* a; const char* b; } cases[] = {
        // On its own line the place is taken as it will be once the text has gone.
        {&m_a, At(m_a, 0, 13), 0, "one threetwo ", "abc"},
        {&m_a, At(m_a, 0, 0), MK_CONTROL, "two one two three", "abc"},
        {&m_b, At(m_b, 0, 1), 0, "one three", "atwo bc"},
        {&m_b, At(m_b, 1, 0), MK_CONTROL, "one two three", "abc\r\ntwo "},
    };
    m_a.SetWindowTextA("one two three");
    m_b.SetWindowTextA("abc");
    for (const Case& c : cases) {
        DropOn(*c.target, c.pt, c.keys);
        EXPECT_EQ(DragTwo(), 1);
        EXPECT_EQ(m_dragText, "two ");
        EXPECT_EQ(m_dwAllowed, DROPEFFECT_COPY | DROPEFFECT_MOVE);
        EXPECT_EQ(Text(A()) + "|" + Text(B()), std::string(c.a) + "|" + c.b);
        EXPECT_EQ(A().m_bOleDragSource, 0);
        if (&c == cases) { EXPECT_EQ(A().m_nSelStartChar, 9); }  // the moved text is selected
        // Each zone undoes its own half.
        A().Undo();
        B().Undo();
        EXPECT_EQ(Text(A()) + "|" + Text(B()), "one two three|abc");
    }

    // Dropped on its own selection nothing changes, and the press was a click.
    DropOn(m_a, At(m_a, 0, 6));
    DragTwo();
    EXPECT_EQ(Text(A()), "one two three");
    EXPECT_FALSE(A().TestSelection());
    EXPECT_EQ(A().m_nSelStartChar, 5);
}

TEST_F(DragDropTest, AReadOnlyZoneOffersOnlyACopyAndTakesNoDrop) {
    m_a.SetWindowTextA("one two three");
    m_b.SetWindowTextA("abc");
    A().SetReadOnly(1);
    DropOn(m_b, At(m_b, 0, 3), MK_CONTROL);
    DragTwo();
    EXPECT_EQ(m_dwAllowed, DROPEFFECT_COPY);
    EXPECT_EQ(Text(B()), "abctwo ");
    EXPECT_EQ(m_platform.SimulateDrop(&m_a, "x", 0, At(m_a, 0, 0)), DROPEFFECT_NONE);
    EXPECT_EQ(Text(A()), "one two three");
}

TEST_F(DragDropTest, ADropFromElsewhereIsPastedAtThePoint) {
    m_a.SetWindowTextA("one two three");
    // A drag nobody took leaves the zone no longer a source, so that the
    // next drop is not taken for a move of its selection.
    DragTwo();
    A().SetSelection(0, 0, 4, 8, 0, 0);
    EXPECT_EQ(m_platform.SimulateDrop(&m_a, "XYZ", 0, At(m_a, 0, 0)), DROPEFFECT_MOVE);
    EXPECT_EQ(Text(A()), "XYZone two three");
    EXPECT_EQ(A().m_nSelEndChar, 3);
    EXPECT_EQ(A().GetUndoType(), 11);
    EXPECT_EQ(m_platform.SimulateDrop(&m_a, "XYZ", 0, POINT{1, 1}), DROPEFFECT_NONE);  // off the text
    EXPECT_EQ(Text(A()), "XYZone two three");
}

TEST_F(DragDropTest, APressOffTheSelectionSelectsAndAutoScrollGoesThroughTheQueue) {
    m_a.SetWindowTextA("one two three");
    A().SetSelection(0, 0, 4, 8, 0, 0);
    POINT pt = At(m_a, 0, 10);
    m_a.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pt.x, pt.y));
    EXPECT_EQ(m_platform.GetDragCount(), 0);
    EXPECT_EQ(CWnd::GetCapture(), &m_a);
    // Held below the text, the move comes back through the window's queue
    // until the button is let go.
    m_a.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(40, 330));
    EXPECT_EQ(m_platform.PumpMessages(3), 3);
    std::vector<MSG> posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].hwnd, &m_a);
    m_a.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(40, 330));
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    m_platform.PumpMessages(10);
    EXPECT_TRUE(m_platform.GetPostedMessages().empty());
    EXPECT_EQ(A().m_nSelStartChar, 10);

    // A drag hovering inside the text does nothing; outside it scrolls on.
    pt = At(m_a, 0, 3);
    A().HandleOleMouseMove(0, &pt);
    EXPECT_TRUE(m_platform.GetPostedMessages().empty());
    pt = POINT{50, 305};
    A().HandleOleMouseMove(0, &pt);
    EXPECT_EQ(m_platform.GetPostedMessages().size(), 1u);
}
