// The block lists are searched by bisection. Here the lookups are compared
// with a walk from the front of each list, the way a list was searched before
// it was sorted, after every step of long random runs of block operations,
// edits of whole lines, undo, redo and restores of the status string; and the
// status string is restored at the largest size its counts allow.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>
#include <unordered_set>

#include "support/ZoneTest.h"

namespace {

// The literal search: the first block, from the front, that satisfies pred.
template <typename Pred>
const CEditBlk* Walk(const BlockList& list, Pred pred) {
    for (const auto& pBlk : list)
        if (pred(*pBlk)) return pBlk.get();
    return nullptr;
}

const CEditBlk* Found(BlockList& list, BlockList::iterator it) {
    return it == list.end() ? nullptr : it->get();
}

class BlockIndexTest : public ZoneTest {
protected:
    void SetLines(int nLines) { ASSERT_TRUE(m_zone.SetText(Numbered(nLines).c_str())); }

    int Random(int nLow, int nHigh) {
        return std::uniform_int_distribution<int>(nLow, nHigh)(m_random);
    }

    // Every lookup a block operation makes, for every line and a little
    // beyond, agrees with the walk; the lists hold one block per first line
    // and every parent link names a live block that begins earlier.
    void ExpectLookupsAgree(const char* pszStep) {
        SCOPED_TRACE(pszStep);
        std::unordered_set<const CEditBlk*> live;
        for (const auto& pBlk : m_zone.m_editBlocks)
            live.insert(pBlk.get());
        for (BlockList* pList : {&m_zone.m_editBlocks, &m_zone.m_altBlocks}) {
            BlockList& list = *pList;
            for (std::size_t k = 1; k < list.size(); ++k)
                ASSERT_LT(list[k - 1]->m_nFirstLine, list[k]->m_nFirstLine) << "entry " << k;
            for (int n = -2; n <= m_zone.GetLineCount() + 2; ++n) {
                ASSERT_EQ(Found(list, FindBlockAt(list, n)),
                          Walk(list, [n](const CEditBlk& b) { return b.m_nFirstLine == n; }))
                    << "at " << n;
                ASSERT_EQ(Found(list, BlocksFrom(list, n)),
                          Walk(list, [n](const CEditBlk& b) { return b.m_nFirstLine >= n; }))
                    << "from " << n;
                ASSERT_EQ(Found(list, BlocksAfter(list, n)),
                          Walk(list, [n](const CEditBlk& b) { return b.m_nFirstLine > n; }))
                    << "after " << n;
            }
        }
        for (const auto& pBlk : m_zone.m_editBlocks) {
            if (!pBlk->m_pParent) continue;
            ASSERT_TRUE(live.count(pBlk->m_pParent)) << "block " << pBlk->m_nFirstLine;
            ASSERT_LT(pBlk->m_pParent->m_nFirstLine, pBlk->m_nFirstLine);
        }
    }

    void Rescan() {
        m_zone.BeginEditBlockInput();
        const int nBlocks = Random(0, 30);
        for (int k = 0; k < nBlocks; ++k)
            m_zone.AddEditBlockInput(Random(-1, m_zone.GetLineCount()), Random(-1, 20));
        m_zone.EndEditBlockInput();
    }

    void EditLines() {
        const int nCount = m_zone.GetLineCount();
        const int nFirst = Random(0, nCount - 1);
        if (Random(0, 1)) {
            std::string text;
            for (int k = Random(1, 4); k > 0; --k)
                text += "new\r\n";
            m_zone.SetSelection(nFirst, nFirst, 0, 0, 0, 0);
            m_zone.StartRegister(6);
            m_zone.InsertText(text.c_str(), 0, 0, 0);
        } else {
            const int nLast = std::min(nCount - 1, nFirst + Random(1, 6));
            m_zone.SetSelection(nFirst, nLast, Random(0, 2), 0, 0, 0);
            m_zone.StartRegister(4);
            m_zone.DeleteSelection(0);
        }
        m_zone.EndRegister();
    }

    // Saves the status, opens everything and restores it.
    void RoundTripStatus() {
        VESK::String status;
        m_zone.GetEditorBlockStatus(status);
        for (int n = 0; n < m_zone.GetLineCount(); ++n)
            m_zone.OpenBlock(n, 0);
        m_zone.SetEditorBlockStatus(status);
    }

    std::mt19937 m_random{20261124};
};

}  // namespace

TEST_F(BlockIndexTest, LookupsAgreeWithTheWalkThroughRandomRuns) {
    for (int run = 0; run < 4; ++run) {
        SetLines(Random(40, 160));
        for (int step = 0; step < 600; ++step) {
            const int nLines = m_zone.GetLineCount();
            const int nLine = Random(-1, nLines);
            const char* pszStep = "";
            switch (Random(0, 9)) {
                case 0:
                    pszStep = "SetEditBlock";
                    m_zone.SetEditBlock(nLine, Random(0, 25));
                    break;
                case 1:
                    pszStep = "rescan";
                    Rescan();
                    break;
                case 2:
                case 3:
                    pszStep = "CloseBlock";
                    m_zone.CloseBlock(nLine, 0);
                    break;
                case 4:
                    pszStep = "OpenBlock";
                    m_zone.OpenBlock(nLine, 0);
                    break;
                case 5:
                    pszStep = "CreateClosedAltBlock";
                    m_zone.CreateClosedAltBlock(nLine, Random(0, 15), 0);
                    break;
                case 6:
                case 7:
                    pszStep = "edit";
                    EditLines();
                    break;
                case 8:
                    pszStep = Random(0, 1) ? "undo" : "redo";
                    if (pszStep[0] == 'u')
                        m_zone.Undo();
                    else
                        m_zone.Redo();
                    break;
                default:
                    pszStep = "status";
                    RoundTripStatus();
                    break;
            }
            ExpectLookupsAgree(pszStep);
            if (HasFatalFailure()) return;
        }
    }
}

// Two four-digit counts: 65535 blocks of the language and 65535 alternate
// blocks are the most one string restores; more are left out when saving.
TEST_F(BlockIndexTest, StatusStringAtTheLargestCountsItHolds) {
    const int nPairs = 65535 + 3;
    SetLines(nPairs * 4 + 1);
    m_zone.BeginEditBlockInput();
    for (int k = 0; k < nPairs; ++k)
        m_zone.AddEditBlockInput(k * 4, 2);
    m_zone.EndEditBlockInput();
    for (int k = 0; k < nPairs; ++k) {
        ASSERT_EQ(m_zone.CloseBlock(k * 4, 0), 1);
        ASSERT_EQ(m_zone.CreateClosedAltBlock(k * 4 + 2, 2, 0), 1);
    }
    VESK::String status;
    m_zone.GetEditorBlockStatus(status);
    const std::string saved = status.c_str();
    ASSERT_EQ(saved.size(), 24u + 65535u * 6 + 65535u * 12);
    EXPECT_EQ(saved.substr(16, 8), "FFFFFFFF");

    m_zone.FreeAllEditBlocks();
    m_zone.BeginEditBlockInput();
    for (int k = 0; k < nPairs; ++k)
        m_zone.AddEditBlockInput(k * 4, 2);
    m_zone.EndEditBlockInput();
    m_zone.SetEditorBlockStatus(status);

    std::string missed;
    for (int k = 0; k < nPairs; ++k) {
        const bool bSaved = k < 65535;
        const bool bClosed = m_zone.GetLine(k * 4 + 1)->m_dwBlockFlags & BF_HIDDEN;
        const bool bAltClosed = m_zone.GetLine(k * 4 + 3)->m_dwBlockFlags & BF_HIDDEN;
        if (bClosed != bSaved || bAltClosed != bSaved) missed += std::to_string(k) + " ";
    }
    EXPECT_EQ(missed, "");
    EXPECT_EQ(m_zone.m_altBlocks.size(), 65535u);
    VESK::String again;
    m_zone.GetEditorBlockStatus(again);
    EXPECT_EQ(std::string(again.c_str()), saved);
}
