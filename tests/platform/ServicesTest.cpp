#include <gtest/gtest.h>

#include "platform/Messages.h"
#include "platform/OleDataObject.h"
#include "platform/OleDataSource.h"
#include "platform/OleDropTarget.h"
#include "support/HeadlessTest.h"

namespace {

using ServicesTest = HeadlessTest;

// Accepts text drops and keeps what arrived.
class CTextDropTarget : public COleDropTarget {
public:
    DWORD OnDragEnter(CWnd*, COleDataObject* pData, DWORD dwKeys, CPoint) override {
        if (!pData->IsDataAvailable(CF_TEXT)) return DROPEFFECT_NONE;
        return (dwKeys & MK_CONTROL) ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
    }
    DWORD OnDragOver(CWnd* pWnd, COleDataObject* pData, DWORD dwKeys, CPoint pt) override {
        return OnDragEnter(pWnd, pData, dwKeys, pt);
    }
    BOOL OnDrop(CWnd*, COleDataObject* pData, DWORD, CPoint pt) override {
        m_text = pData->GetGlobalData(CF_TEXT);
        m_pt = pt;
        return TRUE;
    }
    std::string m_text;
    CPoint m_pt;
};

LRESULT g_lastHookLParam = 0;
int g_hookCalls = 0;

LRESULT CALLBACK_Hook(int nCode, WPARAM wParam, LPARAM lParam) {
    ++g_hookCalls;
    g_lastHookLParam = lParam;
    return CallNextHookEx(nullptr, nCode, wParam, lParam);
}

}  // namespace

TEST_F(ServicesTest, KeyStateKnowsTheCtrlSides) {
    EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
    m_platform.SetKeyState(VK_CONTROL, true);
    EXPECT_LT(GetKeyState(VK_CONTROL), 0);
    EXPECT_LT(GetKeyState(VK_LCONTROL), 0);  // a plain Ctrl counts as the left one
    EXPECT_EQ(GetKeyState(VK_RCONTROL), 0);
    m_platform.SetKeyState(VK_CONTROL, false);
    m_platform.SetKeyState(VK_RCONTROL, true);
    EXPECT_LT(GetKeyState(VK_CONTROL), 0);
    EXPECT_EQ(GetKeyState(VK_LCONTROL), 0);

    // An unknown cursor id loads nothing.
    EXPECT_EQ(LoadCursorA(nullptr, 12345), nullptr);
}

TEST(PlatformDefaultsTest, WithoutAPlatformNothingHappens) {
    ASSERT_EQ(GetPlatform(), nullptr);
    EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
    EXPECT_EQ(GetTickCount(), 0u);
    EXPECT_FALSE(MessageBeep(0));
    EXPECT_FALSE(OpenClipboard(nullptr));
    CWnd wnd;
    EXPECT_FALSE(wnd.Create(0, RECT{0, 0, 10, 10}, nullptr, 0));
    EXPECT_EQ(CreateDCA("DISPLAY", nullptr, nullptr, nullptr), nullptr);
}

TEST_F(ServicesTest, ClipboardNeedsOpeningAndCanFail) {
    EXPECT_FALSE(SetClipboardData(CF_TEXT, "closed"));
    ASSERT_TRUE(OpenClipboard(&m_wnd));
    EXPECT_FALSE(OpenClipboard(&m_wnd));  // already open
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_TRUE(SetClipboardData(CF_TEXT, std::string("a\r\nb\xE9", 5)));
    EXPECT_TRUE(CloseClipboard());
    EXPECT_EQ(m_platform.GetClipboardText(), std::string("a\r\nb\xE9", 5));
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));

    std::string got;
    EXPECT_FALSE(GetClipboardData(CF_TEXT, &got));  // must be open to read
    m_platform.SetClipboardText("from outside");
    ASSERT_TRUE(OpenClipboard(&m_wnd));
    EXPECT_TRUE(GetClipboardData(CF_TEXT, &got));
    CloseClipboard();
    EXPECT_EQ(got, "from outside");

    m_platform.SetClipboardFails(true);
    EXPECT_FALSE(OpenClipboard(&m_wnd));
}

TEST_F(ServicesTest, DragAndDropReachesTheRegisteredTarget) {
    CTextDropTarget target;
    ASSERT_TRUE(target.Register(&m_wnd));
    EXPECT_TRUE(m_platform.HasDropTarget(&m_wnd));
    EXPECT_EQ(m_platform.SimulateDrop(&m_wnd, "dropped", MK_CONTROL, POINT{5, 6}), DROPEFFECT_COPY);
    EXPECT_EQ(target.m_text, "dropped");
    EXPECT_EQ(target.m_pt, CPoint(5, 6));

    // A drag started here: the handler drops it into the same window, which
    // is how a move inside one zone plays out.
    m_platform.SetDragHandler([&](CWnd*, const std::string& text, DWORD) {
        return m_platform.SimulateDrop(&m_wnd, text, 0, POINT{1, 1});
    });
    COleDataSource source;
    EXPECT_EQ(source.DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE), DROPEFFECT_NONE);  // no data
    source.CacheGlobalData(CF_TEXT, "moved");
    EXPECT_EQ(source.DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE, &m_wnd), DROPEFFECT_MOVE);
    EXPECT_EQ(target.m_text, "moved");
    // An effect the source did not allow does not come back.
    EXPECT_EQ(source.DoDragDrop(DROPEFFECT_COPY, &m_wnd), DROPEFFECT_NONE);

    target.Revoke();
    EXPECT_EQ(m_platform.SimulateDrop(&m_wnd, "x", 0, POINT{}), DROPEFFECT_NONE);
}

TEST_F(ServicesTest, KeyboardHooksSeeReleasesAsNegative) {
    g_hookCalls = 0;
    HHOOK hook = SetWindowsHookExA(WH_KEYBOARD, CALLBACK_Hook, nullptr, 0);
    ASSERT_NE(hook, nullptr);
    EXPECT_EQ(m_platform.InjectHookKey(VK_F2, false), 1);
    EXPECT_GE(g_lastHookLParam, 0);
    m_platform.InjectHookKey(VK_F2, true);
    EXPECT_LT(g_lastHookLParam, 0);
    EXPECT_TRUE(UnhookWindowsHookEx(hook));
    EXPECT_EQ(m_platform.InjectHookKey(VK_F2, false), 0);
    EXPECT_EQ(g_hookCalls, 2);
    EXPECT_EQ(SetWindowsHookExA(WH_KEYBOARD + 1, CALLBACK_Hook, nullptr, 0), nullptr);
}
