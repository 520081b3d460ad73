// Fixtures for tests that need a window system: a headless platform, and a
// window in it whose messages tests can watch.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "platform/headless/HeadlessPlatform.h"

// A window that notes every message it receives, then handles it as usual.
class CRecordingWnd : public CWnd {
public:
    struct Message {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    int Count(UINT message) const;
    void ClearMessages() { m_messages.clear(); }
    const std::vector<Message>& Messages() const { return m_messages; }

private:
    std::vector<Message> m_messages;
};

class HeadlessTest : public ::testing::Test {
protected:
    // A visible window of 400 x 300 pixels at (10, 20) on the screen.
    void SetUp() override;
    void TearDown() override;
    CHeadlessWindowPeer& Peer() { return *CHeadlessPlatform::Peer(&m_wnd); }

    CHeadlessPlatform m_platform;
    CRecordingWnd m_wnd;
};
