// Line positions with ZS_VARHEIGHT come from hidden-line counts the store
// keeps per block. Checked against the walk from line 0 kept here, over
// random blocks closed and opened, edits, undo and flags set directly.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/ZoneTest.h"
#include "textzone/TextZone.h"

namespace {

class LinePositionTest : public ZoneTest {
protected:
    long long WalkPosition(int nLine) {
        if (nLine <= 0) return static_cast<long long>(nLine) * m_zone.m_nLineHeight;
        const int stop = std::min(nLine, m_zone.GetLastLineIndex() + 1);
        long long y = static_cast<long long>(nLine - stop) * m_zone.m_nLineHeight;
        for (int n = 0; n < stop; ++n)
            y += m_zone.GetLineHeight(n);
        return y;
    }
    int WalkLineFromPoint(int y) {
        int sum = 0;
        int last = m_zone.GetLastLineIndex();
        for (int line = 0; line <= last; ++line) {
            sum += m_zone.GetLineHeight(line);
            if (sum > y) return line;
        }
        return last + 1 + (y - sum) / std::max(1, m_zone.m_nLineHeight);
    }
    void ExpectPositions(std::mt19937& rng, const std::string& what) {
        const int n = m_zone.GetLineCount();
        for (int k = 0; k < 6; ++k) {
            const int line = static_cast<int>(rng() % (n + 5)) - 2;
            ASSERT_EQ(m_zone.GetLinePosition(line), WalkPosition(line)) << what << " line " << line;
            const int y = static_cast<int>(rng() % ((n + 4) * 16));
            POINT pt{0, y};
            const int top = m_zone.m_rcText.top;
            pt.y += top - m_zone.GetVScrollOffset();
            ASSERT_EQ(m_zone.GetLineFromPoint(&pt), WalkLineFromPoint(y)) << what << " y " << y;
        }
        m_zone.m_nVScrollPos = static_cast<int>(rng() % (n + 3));
        long long offset = 0;
        for (int line = 0;
             line < m_zone.m_nVScrollPos * m_zone.m_nLinesPerUnit + m_zone.m_nUnitRemainder; ++line)
            offset += m_zone.GetLineHeight(line);
        ASSERT_EQ(m_zone.GetVScrollOffset(), offset) << what;
    }
};

TEST_F(LinePositionTest, HiddenLinesCountedPerBlockMatchTheWalk) {
    m_zone.SetStyle(ZS_VARHEIGHT);
    std::mt19937 rng(5);
    std::string text;
    for (int i = 0; i < 3000; ++i)
        text += "line " + std::to_string(i) + "\n";
    m_zone.SetText(text.c_str());
    for (int step = 0; step < 1500; ++step) {
        const int n = std::max(1, m_zone.GetLineCount());
        const int line = static_cast<int>(rng() % n);
        const int op = static_cast<int>(rng() % 8);
        const std::string what = "step " + std::to_string(step) + " op " + std::to_string(op);
        if (op == 0) {
            m_zone.SetEditBlock(line, 2 + static_cast<int>(rng() % 60));
        } else if (op == 1) {
            m_zone.CloseBlock(line, 0);
        } else if (op == 2) {
            m_zone.OpenBlock(line, 0);
        } else if (op == 3) {
            // Set straight on the line, as a host may.
            if (CStringEx* pLine = m_zone.GetLine(line)) pLine->m_dwBlockFlags ^= 4;
        } else if (op < 6) {
            m_zone.SetSelection(line, std::min(n - 1, line + static_cast<int>(rng() % 30)), 0, 0, 1,
                                0);
            m_zone.SetModify(1);
            m_zone.StartRegister(op == 4 ? 6 : 4);
            if (op == 4)
                m_zone.InsertText("a\nb\n", 0, 0, 0);
            else
                m_zone.DeleteSelection(0);
            m_zone.EndRegister();
        } else if (op == 6) {
            m_zone.Undo();
        } else {
            m_zone.Redo();
        }
        ASSERT_NO_FATAL_FAILURE(ExpectPositions(rng, what));
    }
}

}  // namespace
