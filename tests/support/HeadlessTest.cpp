#include "support/HeadlessTest.h"

#include <algorithm>

LRESULT CRecordingWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    m_messages.push_back(Message{message, wParam, lParam});
    return CWnd::WindowProc(message, wParam, lParam);
}

int CRecordingWnd::Count(UINT message) const {
    return static_cast<int>(std::count_if(m_messages.begin(), m_messages.end(),
                                          [&](const Message& m) { return m.message == message; }));
}

void HeadlessTest::SetUp() {
    ASSERT_TRUE(m_wnd.Create(WS_VISIBLE, RECT{10, 20, 410, 320}, nullptr, 1));
}

void HeadlessTest::TearDown() {
    m_wnd.DestroyWindow();
}
