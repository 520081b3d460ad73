// The store keeps every line's length beside its pointer, so that the
// longest line of a range is found without visiting lines; and a load sizes
// the store at once. Both are checked against the plain rules kept here:
// the walk over the lines for the longest one, and the store grown one step
// at a time.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "platform/Messages.h"
#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"
#include "textzone/TextZone.h"

namespace {

class LongestLineTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        // Bytes of different widths: the first of the longest lines decides.
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 16);
        m_proportional.CreateFontIndirect(&lf);
        m_zone.SetFont(m_proportional);
    }

    // The rule as it reads: the first line with the most bytes, measured
    // without its terminator.
    int WalkWidth(int nFirst, int nLast) {
        if (nFirst < 1) nFirst = 0;
        CStringEx* pLongest = nullptr;
        for (int n = nFirst; n <= nLast; ++n) {
            CStringEx* pLine = m_zone.GetLine(n);
            if (!pLine) break;
            if (!pLongest || pLine->GetLength() > pLongest->GetLength()) pLongest = pLine;
            if (n == TZ_TO_END) break;
        }
        if (!pLongest) return 0;
        CDC* pDC = m_zone.GetStandardDC();
        int w = m_zone.GetTextWidth(pDC, pLongest->c_str(),
                                    pLongest->GetLength() - pLongest->IsEnded());
        m_zone.ReleaseStandardDC(pDC);
        return w;
    }

    void ExpectLengthsKept() {
        for (int b = 0; b < m_zone.m_nBlockCount; ++b)
            for (int i = 0; i < m_zone.m_pBlockSizes[b]; ++i)
                ASSERT_EQ(m_zone.m_ppLengths[b][i], m_zone.m_ppBlocks[b][i]->GetLength())
                    << "block " << b << " slot " << i;
    }

    void ExpectRanges(std::mt19937& rng, const std::string& what) {
        const int n = m_zone.GetLineCount();
        ASSERT_EQ(m_zone.GetMaxLineWidth(0, TZ_TO_END), WalkWidth(0, TZ_TO_END)) << what;
        for (int k = 0; k < 4; ++k) {
            int a = static_cast<int>(rng() % (n + 2)) - 1;
            int b = k == 0 ? TZ_TO_END : a + static_cast<int>(rng() % 300);
            ASSERT_EQ(m_zone.GetMaxLineWidth(a, b), WalkWidth(a, b))
                << what << ": lines " << a << " to " << b;
        }
    }

    CFont m_proportional;
};

std::string RandomLine(std::mt19937& rng) {
    static const char bytes[] = "abcdefghijklmnopqrstuvwxyzMW il.\t-";
    int length = static_cast<int>(rng() % 60);
    if (rng() % 40 == 0) length = 200 + static_cast<int>(rng() % 400);
    std::string line;
    for (int i = 0; i < length; ++i)
        line += bytes[rng() % (sizeof(bytes) - 1)];
    return line;
}

std::string RandomText(std::mt19937& rng, int nLines) {
    static const char* const ends[] = {"\n", "\r\n", "\r"};
    std::string text;
    for (int i = 0; i < nLines; ++i)
        text += RandomLine(rng) + ends[rng() % 3];
    if (rng() % 2) text += RandomLine(rng);
    return text;
}

TEST_F(LongestLineTest, RandomEditsKeepTheRangeOfTheWalk) {
    std::mt19937 rng(1234);
    m_zone.SetText(RandomText(rng, 3000).c_str());
    ExpectRanges(rng, "after the load");
    for (int step = 0; step < 2500; ++step) {
        const int n = std::max(1, m_zone.GetLineCount());
        const int line = static_cast<int>(rng() % n);
        const int other = std::min(n - 1, line + static_cast<int>(rng() % 40));
        const int op = static_cast<int>(rng() % 10);
        std::string what = "step " + std::to_string(step) + " op " + std::to_string(op);
        m_zone.SetSelection(line, op < 4 ? other : line, static_cast<int>(rng() % 30),
                            static_cast<int>(rng() % 30), 1, 0);
        if (op < 6) {
            // Insert (replacing the selection) or delete, as one undo step.
            m_zone.SetModify(1);
            m_zone.StartRegister(op < 3 ? 6 : 4);
            if (op < 3)
                m_zone.InsertText(RandomText(rng, static_cast<int>(rng() % 4)).c_str(), 0, 1, 1);
            else
                m_zone.DeleteSelection(1);
            m_zone.EndRegister();
        } else if (op < 8) {
            // Typing and erasing through the key handlers.
            for (int k = 0; k < 5; ++k)
                m_zone.HandleChar(static_cast<UINT>('a' + k), 1, 0);
            m_zone.HandleKeyDown(op == 6 ? VK_BACK : VK_RETURN, 1, 0);
        } else if (op == 8) {
            m_zone.Undo();
        } else {
            m_zone.Redo();
        }
        ASSERT_NO_FATAL_FAILURE(ExpectRanges(rng, what));
        if (step % 100 == 0) {
            ASSERT_NO_FATAL_FAILURE(ExpectLengthsKept()) << what;
        }
    }
    ExpectLengthsKept();
}

TEST_F(LongestLineTest, ChangesOutOfSightAreReadAgain) {
    m_zone.SetText("a\nbb\nccc\n");
    // A line changed far from every recent lookup: the zone cannot place it
    // and reads all lengths again before it answers.
    CStringEx* pFirst = m_zone.GetLine(0);
    for (int i = 0; i < 3000; ++i) {
        m_zone.SetSelection(3 + i, 3 + i, 0, 0, 1, 0);
        m_zone.InsertText("x\n", 0, 0, 0);
    }
    *pFirst += "a much longer first line";
    EXPECT_EQ(m_zone.GetMaxLineWidth(0, TZ_TO_END), WalkWidth(0, TZ_TO_END));
    ExpectLengthsKept();
    // Copies of lines belong to no zone.
    CStringEx copy(*pFirst);
    copy += "more";
    EXPECT_EQ(copy.m_nOwnerZone, 0u);
    EXPECT_EQ(m_zone.GetMaxLineWidth(0, TZ_TO_END), WalkWidth(0, TZ_TO_END));
}

// The blocks a load leaves, against the store grown step by step as the
// stream insertion fills it: the first line, the tail behind it, each next
// line in front of the tail, and the empty tail taken off at the end.
TEST_F(LongestLineTest, ALoadLeavesTheBlocksOfStepwiseGrowth) {
    for (int lines : {1, 99, 100, 101, 399, 400, 401, 1599, 1600, 1601, 8100, 8101, 12345}) {
        for (bool reload : {false, true}) {
            CTestZone zone;
            zone.SetWindow(&m_wnd);
            CTestZone oracle;
            std::string text;
            for (int i = 0; i < lines; ++i)
                text += std::to_string(i) + "\n";
            if (reload) zone.SetText(std::string(20000, '\n').c_str());
            zone.SetText(text.c_str());
            if (reload) {
                for (int i = 0; i < 20001; ++i)
                    oracle.InsertLine(i);
                oracle.FreeAllLines();
            }
            oracle.InsertLine(0);
            oracle.InsertLine(1);
            for (int i = 1; i < lines; ++i)
                oracle.InsertLine(i);
            oracle.RemoveLines(lines, 1);
            const std::string what =
                std::to_string(lines) + (reload ? " lines reloaded" : " lines");
            ASSERT_EQ(zone.GetLineCount(), lines) << what;
            ASSERT_EQ(zone.m_nGranularity, oracle.m_nGranularity) << what;
            ASSERT_EQ(zone.m_nBlockCount, oracle.m_nBlockCount) << what;
            for (int b = 0; b < oracle.m_nBlockCount; ++b)
                ASSERT_EQ(zone.m_pBlockSizes[b], oracle.m_pBlockSizes[b]) << what << " block " << b;
            CStringEx* pLast = zone.GetLine(lines - 1);
            ASSERT_TRUE(pLast) << what;
            ASSERT_STREQ(pLast->c_str(), (std::to_string(lines - 1) + "\r").c_str()) << what;
            zone.HideCaret();
        }
    }
}

}  // namespace
