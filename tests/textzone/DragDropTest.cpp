#include <memory>
#include <string>
#include <vector>

#include "editor/Editor.h"
#include "platform/OleDataObject.h"
#include "platform/OleDropTarget.h"
#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"

namespace {

// Passes the drop notifications of a window to its zone, as the editor
// windows do: a copy with Ctrl, otherwise a move, nothing where the zone
// refuses drops.
class CZoneDropTarget : public COleDropTarget {
public:
    explicit CZoneDropTarget(CTextZone* pZone) : m_pZone(pZone) {}

    DWORD OnDragEnter(CWnd*, COleDataObject* pData, DWORD dwKeyState, CPoint point) override {
        m_bAllowed = pData->IsDataAvailable(CF_TEXT) && m_pZone->IsOleDropAllowed(0, &point);
        return Effect(dwKeyState);
    }
    DWORD OnDragOver(CWnd*, COleDataObject*, DWORD dwKeyState, CPoint point) override {
        m_pZone->HandleOleMouseMove(dwKeyState, &point);
        return Effect(dwKeyState);
    }
    BOOL OnDrop(CWnd*, COleDataObject* pData, DWORD dropEffect, CPoint point) override {
        if (!pData->IsDataAvailable(CF_TEXT)) return FALSE;
        std::string text = pData->GetGlobalData(CF_TEXT);
        return m_pZone->HandleOleDrop(text.c_str(), dropEffect, &point);
    }

private:
    DWORD Effect(DWORD dwKeyState) const {
        if (!m_bAllowed) return DROPEFFECT_NONE;
        return (dwKeyState & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
    }

    CTextZone* m_pZone;
    bool m_bAllowed = false;
};

// Zone A fills the fixture's window; zone B a second window beside it.
class DragDropTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        ASSERT_TRUE(m_wndB.Create(WS_VISIBLE, RECT{420, 20, 820, 320}, nullptr, 2));
        m_zoneB.SetWindow(&m_wndB);
        RECT client;
        m_wndB.GetClientRect(&client);
        m_zoneB.SetRect(&client);
        m_zoneB.SetFont(m_font);
        ASSERT_TRUE(m_targetA.Register(&m_wnd));
        ASSERT_TRUE(m_targetB.Register(&m_wndB));
    }
    void TearDown() override {
        m_zoneB.HideCaret();
        m_targetB.Revoke();
        m_wndB.DestroyWindow();
        ZoneTest::TearDown();
    }

    static POINT At(int nLine, int nChar) { return POINT{nChar * 8, nLine * 16 + 8}; }

    // The next drag out of a zone drops on a window at a point, with keys.
    void DropOn(CWnd* pTarget, POINT pt, DWORD dwKeyState = 0) {
        m_platform.SetDragHandler([=, this](CWnd* pSource, const std::string& text, DWORD dwAllowed) {
            m_pDragSource = pSource;
            m_dragText = text;
            m_dwAllowed = dwAllowed;
            return m_platform.SimulateDrop(pTarget, text, dwKeyState, pt);
        });
    }
    int Press(CTextZone& zone, POINT pt) {
        int drags = m_platform.GetDragCount();
        zone.HandleOleLButtonDown(MK_LBUTTON, &pt);
        return m_platform.GetDragCount() - drags;
    }
    std::string TextOf(CTextZone& zone) {
        LONG size = zone.GetTextLength(TF_CRLF) + 2;
        std::vector<char> buffer(static_cast<size_t>(size) + 8, 0);
        zone.GetText(buffer.data(), size, TF_CRLF);
        return buffer.data();
    }

    CRecordingWnd m_wndB;
    CTestZone m_zoneB;
    CZoneDropTarget m_targetA{&m_zone};
    CZoneDropTarget m_targetB{&m_zoneB};
    CWnd* m_pDragSource = nullptr;
    std::string m_dragText;
    DWORD m_dwAllowed = 0;
};

}  // namespace

TEST_F(DragDropTest, DragsStartOnlyOnAStreamSelectionAndDropsNeedAWritableZone) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    POINT in = At(0, 5), out = At(0, 1);
    EXPECT_FALSE(m_zone.IsOleDragAllowed(0, &in));  // nothing selected
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    EXPECT_TRUE(m_zone.IsOleDragAllowed(0, &in));
    EXPECT_FALSE(m_zone.IsOleDragAllowed(0, &out));
    m_platform.SetKeyState(VK_MENU, true);
    EXPECT_FALSE(m_zone.IsOleDragAllowed(0, &in));
    m_platform.SetKeyState(VK_MENU, false);
    m_zone.SetReadOnly(1);
    EXPECT_TRUE(m_zone.IsOleDragAllowed(0, &in));  // a copy may still leave
    EXPECT_FALSE(m_zone.IsOleDropAllowed(0, &in));
    m_zone.SetReadOnly(0);
    EXPECT_TRUE(m_zone.IsOleDropAllowed(0, &in));
    m_zone.SetDragDropFlag(0);
    EXPECT_FALSE(m_zone.IsOleDragAllowed(0, &in));
    EXPECT_FALSE(m_zone.IsOleDropAllowed(0, &in));
    m_zone.SetDragDropFlag(1);
    m_zone.SetSelectionMode(2);
    m_zone.SetSelection(0, 0, 4, 8, 2, 0);
    EXPECT_FALSE(m_zone.IsOleDragAllowed(0, &in));
}

TEST_F(DragDropTest, AMoveInsideTheZoneIsOneUndoStep) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    DropOn(&m_wnd, At(0, 13));
    EXPECT_EQ(Press(m_zone, At(0, 5)), 1);
    EXPECT_EQ(m_pDragSource, &m_wnd);
    EXPECT_EQ(m_dragText, "two ");
    EXPECT_EQ(m_dwAllowed, DROPEFFECT_COPY | DROPEFFECT_MOVE);
    EXPECT_EQ(TextOf(m_zone), "one threetwo \r\n");
    EXPECT_EQ(m_zone.m_nSelStartChar, 9);
    EXPECT_EQ(m_zone.m_nSelEndChar, 13);
    EXPECT_EQ(m_zone.m_bOleDragSource, 0);
    EXPECT_TRUE(m_zone.GetModify());
    m_zone.Undo();
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");

    // With Ctrl the text is copied and the original stays.
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    DropOn(&m_wnd, At(0, 0), MK_CONTROL);
    POINT pt = At(0, 5);
    EXPECT_EQ(m_zone.HandleOleDrag(MK_LBUTTON, &pt), 1);
    EXPECT_EQ(TextOf(m_zone), "two one two three\r\n");
    EXPECT_EQ(m_zone.m_bOleDragSource, 0);
}

TEST_F(DragDropTest, ADropOnTheOwnSelectionChangesNothing) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    DropOn(&m_wnd, At(0, 6));
    POINT pt = At(0, 5);
    // Nothing was dropped, so the press was a click.
    EXPECT_EQ(m_zone.HandleOleDrag(MK_LBUTTON, &pt), 0);
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");
    ExpectCaret(0, 5);
    EXPECT_FALSE(m_zone.GetModify());
}

TEST_F(DragDropTest, DraggingBetweenZonesMovesOrWithCtrlCopies) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    ASSERT_TRUE(m_zoneB.SetText("abc\r\n"));
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    DropOn(&m_wndB, At(0, 1));
    EXPECT_EQ(Press(m_zone, At(0, 5)), 1);
    EXPECT_EQ(TextOf(m_zoneB), "atwo bc\r\n");
    EXPECT_EQ(TextOf(m_zone), "one three\r\n");
    EXPECT_TRUE(m_zoneB.GetModify());
    EXPECT_TRUE(m_zone.GetModify());
    // Each zone undoes its own half.
    m_zone.Undo();
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");
    m_zoneB.Undo();
    EXPECT_EQ(TextOf(m_zoneB), "abc\r\n");

    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    DropOn(&m_wndB, At(1, 0), MK_CONTROL);
    EXPECT_EQ(Press(m_zone, At(0, 5)), 1);
    EXPECT_EQ(TextOf(m_zoneB), "abc\r\ntwo \r\n");
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");
}

TEST_F(DragDropTest, AReadOnlyZoneOffersACopyOnly) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    ASSERT_TRUE(m_zoneB.SetText("abc\r\n"));
    m_zone.SetReadOnly(1);
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    DropOn(&m_wndB, At(0, 3), MK_CONTROL);
    EXPECT_EQ(Press(m_zone, At(0, 5)), 1);
    EXPECT_EQ(m_dwAllowed, DROPEFFECT_COPY);
    EXPECT_EQ(TextOf(m_zoneB), "abctwo \r\n");
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");
    EXPECT_FALSE(m_zone.GetModify());

    // Nor does a read-only zone, or one with dragging off, take drops.
    m_zoneB.SetReadOnly(1);
    EXPECT_EQ(m_platform.SimulateDrop(&m_wndB, "x", 0, At(0, 0)), DROPEFFECT_NONE);
    m_zoneB.SetReadOnly(0);
    m_zoneB.SetDragDropFlag(0);
    EXPECT_EQ(m_platform.SimulateDrop(&m_wndB, "x", 0, At(0, 0)), DROPEFFECT_NONE);
    EXPECT_EQ(TextOf(m_zoneB), "abctwo \r\n");
}

TEST_F(DragDropTest, ADropFromElsewhereIsPastedAtThePoint) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    // A drag that nobody took is a click, and leaves the zone no longer a source.
    POINT pt = At(0, 6);
    EXPECT_EQ(m_zone.HandleOleDrag(MK_LBUTTON, &pt), 0);
    ExpectCaret(0, 6);
    EXPECT_EQ(m_zone.m_bOleDragSource, 0);

    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    EXPECT_EQ(m_platform.SimulateDrop(&m_wnd, "XYZ", 0, At(0, 0)), DROPEFFECT_MOVE);
    EXPECT_EQ(TextOf(m_zone), "XYZone two three\r\n");
    EXPECT_EQ(m_zone.m_nSelStartChar, 0);
    EXPECT_EQ(m_zone.m_nSelEndChar, 3);
    EXPECT_EQ(m_zone.GetUndoType(), 11);
    m_zone.Undo();
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");

    // Outside the text rectangle nothing lands.
    RECT small{0, 0, 200, 150};
    m_zone.SetRect(&small);
    EXPECT_EQ(m_platform.SimulateDrop(&m_wnd, "XYZ", 0, POINT{300, 8}), DROPEFFECT_NONE);
    EXPECT_EQ(TextOf(m_zone), "one two three\r\n");
}

TEST_F(DragDropTest, APressOffTheSelectionSelectsAndAHoverOutsideScrolls) {
    ASSERT_TRUE(m_zone.SetText("one two three\r\n"));
    m_zone.SetSelection(0, 0, 4, 8, 0, 0);
    EXPECT_EQ(Press(m_zone, At(0, 10)), 0);
    ExpectCaret(0, 10);
    EXPECT_EQ(CWnd::GetCapture(), &m_wnd);
    POINT pt = At(0, 12);
    m_zone.HandleMouseMove(MK_LBUTTON, &pt);
    m_zone.HandleOleLButtonUp(0, &pt);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_FALSE(m_zone.m_bMouseSelecting);
    EXPECT_EQ(m_zone.m_nSelEndChar, 12);

    // A drag hovering inside the text does nothing; outside it scrolls on.
    m_platform.ClearPostedMessages();
    pt = At(2, 3);
    m_zone.HandleOleMouseMove(0, &pt);
    EXPECT_TRUE(m_platform.GetPostedMessages().empty());
    pt = POINT{50, 305};
    m_zone.HandleOleMouseMove(0, &pt);
    ASSERT_EQ(m_platform.GetPostedMessages().size(), 1u);
    EXPECT_EQ(m_platform.GetPostedMessages()[0].message, WM_MOUSEMOVE);
}

namespace {

// The same through two editor controls, from the messages on: the press,
// the drag, the drop and the re-posted moves of auto-scroll.
class CFontParent : public CRecordingWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(m_hFont);
        return CRecordingWnd::WindowProc(message, wParam, lParam);
    }
    HFONT m_hFont = nullptr;
};

class EditorDragDropTest : public HeadlessTest {
protected:
    void SetUp() override {
        HeadlessTest::SetUp();
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
        m_font.CreateFontIndirect(&lf);
        m_parent.m_hFont = m_font;
        ASSERT_TRUE(m_parent.Create(WS_VISIBLE, RECT{0, 0, 900, 400}, nullptr, 0));
        for (CEditor* editor : {&m_a, &m_b}) {
            editor->SetOleDataSource(true);
            editor->SetOleDropTarget(true);
        }
        ASSERT_TRUE(m_a.Create(WS_VISIBLE | WS_CHILD, RECT{10, 10, 410, 310}, &m_parent, 1));
        ASSERT_TRUE(m_b.Create(WS_VISIBLE | WS_CHILD, RECT{450, 10, 850, 310}, &m_parent, 2));
    }
    void TearDown() override {
        m_a.DestroyWindow();
        m_b.DestroyWindow();
        m_parent.DestroyWindow();
        HeadlessTest::TearDown();
    }
    static POINT At(CEditor& editor, int nLine, int nChar) {
        const RECT& rc = editor.GetZone()->m_rcText;
        return POINT{rc.left + nChar * 8, rc.top + nLine * 16 + 8};
    }
    static LPARAM Lp(POINT pt) { return MAKELPARAM(pt.x, pt.y); }
    // The first line of an editor's text.
    static std::string Text(CEditor& editor) {
        CStringEx* pLine = editor.GetZone()->GetLine(0);
        return pLine ? pLine->c_str() : "";
    }

    CFont m_font;
    CFontParent m_parent;
    CEditor m_a;
    CEditor m_b;
};

}  // namespace

TEST_F(EditorDragDropTest, TextMovesBetweenEditorsAndAutoScrollKeepsItselfGoing) {
    m_a.SetWindowTextA("one two three");
    m_b.SetWindowTextA("abc");
    m_a.SetSel(4, 8);
    POINT target = At(m_b, 0, 1);
    m_platform.SetDragHandler([&](CWnd*, const std::string& text, DWORD) {
        return m_platform.SimulateDrop(&m_b, text, 0, target);
    });
    m_a.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, Lp(At(m_a, 0, 5)));
    m_a.SendMessage(WM_LBUTTONUP, 0, Lp(At(m_a, 0, 5)));
    EXPECT_EQ(Text(m_a), "one three");
    EXPECT_EQ(Text(m_b), "atwo bc");
    EXPECT_EQ(m_a.GetZone()->m_bOleDragSource, 0);

    // Held below the text, the move comes back through the window's queue
    // until the button is let go.
    m_platform.SetDragHandler(nullptr);
    m_a.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, Lp(At(m_a, 0, 1)));
    m_a.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(40, 330));
    EXPECT_EQ(m_platform.PumpMessages(3), 3);
    std::vector<MSG> posted = m_platform.GetPostedMessages();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].hwnd, &m_a);
    EXPECT_EQ(posted[0].message, WM_MOUSEMOVE);
    m_a.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(40, 330));
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    m_platform.PumpMessages(10);
    EXPECT_TRUE(m_platform.GetPostedMessages().empty());
}
