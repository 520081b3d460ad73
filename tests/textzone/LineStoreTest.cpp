// The two-level line store against a plain vector, its layout invariants,
// and the edit blocks it keeps in step.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "support/ZoneTest.h"
#include "textzone/TextZone.h"

namespace {

std::string Text(const CStringEx* line) {
    return line ? std::string(line->c_str(), static_cast<size_t>(line->GetLength())) : "<none>";
}

// A store of numbered lines with a vector model beside it.
struct Store {
    CTestZone zone;
    std::vector<int> model;
    CStringEx* Insert(int nLine, int nId) {
        CStringEx* line = zone.InsertLine(nLine);
        if (line) {
            *line += std::to_string(nId).c_str();
            model.insert(model.begin() + nLine, nId);
        }
        return line;
    }
    void Remove(int nFirst, int nCount) {
        zone.RemoveLines(nFirst, nCount);
        const int n = static_cast<int>(model.size());
        model.erase(model.begin() + nFirst, model.begin() + std::min(n, nFirst + nCount));
    }
    void Fill(int n) {
        for (int i = 0; i < n; ++i)
            Insert(i, i);
    }
    // The layout straight from the members, holding exactly the model's ids.
    void Expect() {
        const int g = zone.m_nGranularity, count = zone.m_nBlockCount;
        ASSERT_LE(count, g);
        for (int b = count; b < g; ++b)
            ASSERT_EQ(zone.m_ppBlocks[b], nullptr) << "block " << b;
        std::vector<int> ids;
        for (int b = 0; b < count; ++b) {
            const int size = zone.m_pBlockSizes[b];
            ASSERT_NE(zone.m_ppBlocks[b], nullptr) << "block " << b;
            ASSERT_TRUE(size >= 0 && size <= g) << "block " << b;
            if (size == 0) {
                EXPECT_EQ(b, count - 1) << "an empty block stands only at the end";
            }
            for (int k = 0; k < size; ++k) {
                ASSERT_NE(zone.m_ppBlocks[b][k], nullptr) << "gap at " << b << "," << k;
                ids.push_back(std::stoi(Text(zone.m_ppBlocks[b][k])));
            }
        }
        ASSERT_EQ(static_cast<int>(ids.size()), zone.m_nLineCount);
        ASSERT_EQ(zone.GetLineCount(), static_cast<int>(model.size()));
        ASSERT_EQ(ids, model);
    }
    // GetLine in order and at random places, so lookups start from all sides of the cache.
    void ExpectLookups(std::mt19937& rng) {
        const int n = static_cast<int>(model.size());
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(Text(zone.GetLine(i)), std::to_string(model[i])) << "line " << i;
        EXPECT_EQ(zone.GetLine(n), nullptr);
        for (int k = 0; n > 0 && k < 20; ++k) {
            const int i = static_cast<int>(rng() % n);
            ASSERT_EQ(Text(zone.GetLine(i)), std::to_string(model[i])) << "line " << i;
        }
    }
};

}  // namespace

TEST(LineStoreTest, RandomEditsMatchAVector) {
    std::mt19937 rng(20240611);
    Store s;
    int nextId = 0, maxGranularity = 0;
    // Churn small, grow to about 1200 lines, shrink to nothing in large bites, churn again.
    const struct {
        int steps, target, maxRemove;
    } phases[] = {{1500, 150, 25}, {3500, 1200, 3}, {600, 0, 90}, {1500, 300, 12}};
    for (const auto& phase : phases) {
        for (int step = 0; step < phase.steps; ++step) {
            const int n = static_cast<int>(s.model.size());
            if (n < phase.target ? rng() % 10 < 8 : rng() % 10 < 2) {
                const int r = static_cast<int>(rng() % 4);
                const int where = r == 0 ? n : r == 1 ? 0 : static_cast<int>(rng() % (n + 1));
                ASSERT_NE(s.Insert(where, nextId++), nullptr) << "at " << where;
            } else if (n > 0) {
                const int first = rng() % 5 == 0 ? n - 1 - static_cast<int>(rng() % std::min(n, 5))
                                                 : static_cast<int>(rng() % n);
                s.Remove(first, 1 + static_cast<int>(rng() % phase.maxRemove));
            } else {
                EXPECT_EQ(s.zone.InsertLine(1), nullptr);  // beyond the end
            }
            ASSERT_NO_FATAL_FAILURE(s.Expect()) << "step " << step;
            ASSERT_NO_FATAL_FAILURE(s.ExpectLookups(rng)) << "step " << step;
            maxGranularity = std::max(maxGranularity, s.zone.m_nGranularity);
        }
    }
    EXPECT_GE(maxGranularity, 40);
}

TEST(LineStoreTest, EmptyStoreAndFirstExtension) {
    Store s;
    CTestZone& zone = s.zone;
    EXPECT_EQ(zone.GetLastLineIndex(), 0);
    EXPECT_EQ(zone.InsertLine(1), nullptr);
    EXPECT_EQ(zone.InsertLine(-1), nullptr);
    zone.RemoveLines(0, 5);
    EXPECT_EQ(zone.m_nBlockCount, 0);

    ASSERT_NE(s.Insert(0, 0), nullptr);
    EXPECT_EQ(zone.GetLastLineIndex(), 0);
    EXPECT_EQ(zone.GetLine(-5), zone.GetLine(0));
    for (int i = 1; i < 100; ++i)
        s.Insert(i, i);
    EXPECT_EQ(zone.m_nGranularity, 10);
    s.Insert(100, 100);
    EXPECT_EQ(zone.m_nGranularity, 20);
    s.Expect();

    // Removing one line at a time, from both ends, frees every block.
    for (int k = 0; zone.GetLineCount() > 0 && k < 200; ++k)
        zone.RemoveLines(k % 2 ? 0 : zone.GetLineCount() - 1, 1);
    EXPECT_EQ(zone.m_nBlockCount, 0);
    EXPECT_EQ(zone.m_nLineCount, 0);
}

TEST(LineStoreTest, SpillsBetweenBlocks) {
    Store s;
    s.Fill(25);
    // Room in block 0, block 1 full: inserting inside block 1 hands one line back.
    s.Remove(3, 1);
    s.Insert(12, 100);
    EXPECT_EQ(s.zone.m_pBlockSizes[1], 10);
    EXPECT_EQ(Text(s.zone.m_ppBlocks[0][9]), "10");
    s.Expect();
    // At the very front of a full block the new line itself goes back.
    s.Remove(0, 1);
    s.Insert(9, 101);
    EXPECT_EQ(Text(s.zone.m_ppBlocks[0][9]), "101");
    s.Expect();
    // Both neighbours full: the last line of the block moves on to the next.
    s.Insert(15, 102);
    EXPECT_EQ(s.zone.m_pBlockSizes[2], 6);
    s.Expect();
    // A removal over three blocks frees the middle one and merges.
    s.Remove(5, 17);
    EXPECT_EQ(s.zone.m_nBlockCount, 1);
    s.Expect();
}

TEST(LineStoreTest, CacheNamesAPlaceBehindTheBlockAfterRemovingItsTail) {
    Store s;
    s.Fill(25);
    // Lines 15..19 are the tail of block 1; blocks 1 and 2 are too full to merge.
    s.zone.RemoveLines(15, 5);
    ASSERT_EQ(s.zone.m_nBlockCount, 3);
    EXPECT_EQ(s.zone.GetLine(15), nullptr);
    EXPECT_EQ(s.zone.InsertLine(16), nullptr);
    // Any other lookup moves the cache and heals it.
    EXPECT_EQ(Text(s.zone.GetLine(14)), "14");
    EXPECT_EQ(Text(s.zone.GetLine(15)), "20");
}

TEST(LineStoreTest, EditBlocksFollowInsertionAndRemoval) {
    Store s;
    CTestZone& zone = s.zone;
    s.Fill(20);
    auto add = [](BlockList& list, int first, int count, CEditBlk* parent) {
        list.push_back(std::make_unique<CEditBlk>(parent));
        list.back()->m_nFirstLine = first;
        list.back()->m_nLineCount = count;
        return list.back().get();
    };
    CEditBlk* outer = add(zone.m_editBlocks, 2, 5, nullptr);  // lines 2..6
    CEditBlk* inner = add(zone.m_editBlocks, 4, 2, outer);    // lines 4..5
    CEditBlk* later = add(zone.m_editBlocks, 10, 3, nullptr);
    CEditBlk* alt = add(zone.m_altBlocks, 4, 2, inner);
    CEditBlk* input = add(zone.m_inputBlocks, 8, 1, inner);

    zone.InsertLine(5);  // inside both: they grow
    EXPECT_EQ(inner->m_nLineCount, 3);
    zone.InsertLine(2);  // on a first line: the block moves down
    EXPECT_EQ(outer->m_nFirstLine, 3);
    EXPECT_EQ(outer->m_nLineCount, 6);
    EXPECT_EQ(inner->m_nFirstLine, 5);
    EXPECT_EQ(later->m_nFirstLine, 12);
    EXPECT_EQ(alt->m_nFirstLine, 4);  // other lists are not kept in step

    // A block that begins right behind the run to be removed.
    auto nextIt = std::next(zone.m_editBlocks.begin(), 2);
    auto next = std::make_unique<CEditBlk>(nullptr);
    next->m_nFirstLine = 7;
    next->m_nLineCount = 2;
    CEditBlk* behind = zone.m_editBlocks.insert(nextIt, std::move(next))->get();

    // Lines 5 and 6: the inner block goes, the outer loses the two lines and
    // keeps the ones behind them, the later ones move up.
    zone.RemoveLines(5, 2);
    ASSERT_EQ(zone.m_editBlocks.size(), 3u);
    EXPECT_EQ(outer->m_nLineCount, 4);
    EXPECT_EQ(behind->m_nFirstLine, 5);
    EXPECT_EQ(later->m_nFirstLine, 10);
    EXPECT_EQ(alt->m_pParent, nullptr);
    EXPECT_EQ(input->m_pParent, nullptr);
    zone.RemoveLines(5, 3);  // a block that ends inside the run is cut where it starts
    EXPECT_EQ(outer->m_nLineCount, 2);

    zone.m_nCurrentLength = 42;
    zone.FreeAllLines();
    s.model.clear();
    EXPECT_TRUE(zone.m_editBlocks.empty());
    EXPECT_EQ(zone.m_altBlocks.size(), 1u);
    EXPECT_EQ(zone.m_nCurrentLength, 0);
    s.Expect();
}

TEST(LineStoreTest, MillionLinesAppendedAndReadBack) {
    CTestZone zone;
    const int n = 1000000;
    auto letter = [](int i) { return static_cast<char>('a' + i % 26); };
    for (int i = 0; i < n; ++i)
        *zone.InsertLine(i) += letter(i);
    EXPECT_EQ(zone.m_nGranularity, 1000);
    int bad = 0;
    for (int i = 0; i < n; ++i)
        if (CStringEx* line = zone.GetLine(i); !line || (*line)[0] != letter(i)) ++bad;
    EXPECT_EQ(bad, 0);
    zone.RemoveLines(n / 2, 3000);
    EXPECT_EQ(zone.GetLineCount(), n - 3000);
    EXPECT_EQ((*zone.GetLine(n / 2))[0], letter(n / 2 + 3000));
    ASSERT_NE(zone.InsertLine(n / 3), nullptr);
    EXPECT_EQ((*zone.GetLine(n / 3 + 1))[0], letter(n / 3));
}
