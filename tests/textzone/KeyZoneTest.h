// Fixture for the keyboard tests: keys go in through HandleKeyDown with the
// modifiers held on the headless platform, text through HandleChar.
#pragma once

#include <initializer_list>
#include <string>

#include "support/ZoneTest.h"

enum KeyMods { kNone = 0, kShift = 1, kCtrl = 2 };

class KeyZoneTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        m_zone.SetText("");
    }

    void Press(UINT nVirtKey, int nMods = kNone, int nTimes = 1) {
        m_platform.SetKeyState(VK_SHIFT, (nMods & kShift) != 0);
        m_platform.SetKeyState(VK_CONTROL, (nMods & kCtrl) != 0);
        for (int i = 0; i < nTimes; ++i)
            m_zone.HandleKeyDown(nVirtKey, 1, 0);
        m_platform.SetKeyState(VK_SHIFT, false);
        m_platform.SetKeyState(VK_CONTROL, false);
    }

    void Type(const std::string& text) {
        for (char c : text)
            m_zone.HandleChar(static_cast<unsigned char>(c), 1, 0);
    }

    // Places the caret as a click would, which forgets the goal x too.
    void Caret(int nLine, int nChar) {
        m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 0);
        m_zone.m_nGoalX = -1;
    }

    // Presses each key once and checks where the caret went.
    struct Move {
        UINT key;
        int nMods, nLine, nChar;
    };
    void ExpectMoves(std::initializer_list<Move> moves) {
        int i = 0;
        for (const Move& m : moves) {
            SCOPED_TRACE("move " + std::to_string(i++));
            Press(m.key, m.nMods);
            ExpectCaret(m.nLine, m.nChar);
        }
    }

    // CR line ends and none added, so an ended last line shows.
    std::string CrText() { return Text(TF_NO_FINAL_END); }

    DWORD& Bookmarks(int nLine) { return m_zone.GetLine(nLine)->m_dwBookmarks; }
    CLineFlags& Flags(int nLine) { return m_zone.GetLine(nLine)->m_dwBlockFlags; }
};
