// The two-level line store: insertion and removal against a plain vector,
// the layout invariants after every step, edit block bookkeeping.
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

CStringEx* InsertNamed(CTextZone& zone, int nLine, int nId) {
    CStringEx* line = zone.InsertLine(nLine);
    if (line) *line += std::to_string(nId).c_str();
    return line;
}

// Checks the layout of the store straight from its members and that it holds
// exactly the ids of the model, in order.
void ExpectStore(CTextZone& zone, const std::vector<int>& model) {
    const int g = zone.m_nGranularity;
    ASSERT_LE(zone.m_nBlockCount, g);
    int total = 0;
    int empty = 0;
    std::vector<int> ids;
    for (int b = 0; b < g; ++b) {
        if (b >= zone.m_nBlockCount) {
            ASSERT_EQ(zone.m_ppBlocks[b], nullptr) << "block " << b << " beyond the count";
            continue;
        }
        ASSERT_NE(zone.m_ppBlocks[b], nullptr) << "block " << b;
        int size = zone.m_pBlockSizes[b];
        ASSERT_GE(size, 0);
        ASSERT_LE(size, g);
        if (size == 0) {
            ++empty;
            EXPECT_EQ(b, zone.m_nBlockCount - 1) << "an empty block stands only at the end";
        }
        for (int k = 0; k < size; ++k) {
            CStringEx* line = zone.m_ppBlocks[b][k];
            ASSERT_NE(line, nullptr) << "gap at " << b << "," << k;
            ids.push_back(std::stoi(Text(line)));
        }
        total += size;
    }
    EXPECT_LE(empty, 1);
    ASSERT_EQ(total, zone.m_nLineCount);
    ASSERT_EQ(zone.GetLineCount(), static_cast<int>(model.size()));
    ASSERT_EQ(ids, model);
}

// Reads every line through GetLine, in order and then at random places, so
// that lookups start from all sides of the cache.
void ExpectLookups(CTextZone& zone, const std::vector<int>& model, std::mt19937& rng) {
    const int n = static_cast<int>(model.size());
    for (int i = 0; i < n; ++i)
        ASSERT_EQ(Text(zone.GetLine(i)), std::to_string(model[i])) << "line " << i;
    EXPECT_EQ(zone.GetLine(n), nullptr);
    if (n == 0) return;
    std::uniform_int_distribution<int> any(0, n - 1);
    for (int k = 0; k < 20; ++k) {
        int i = any(rng);
        ASSERT_EQ(Text(zone.GetLine(i)), std::to_string(model[i])) << "line " << i;
    }
}

}  // namespace

TEST(LineStoreTest, RandomEditsMatchAVector) {
    std::mt19937 rng(20240611);
    CTestZone zone;
    std::vector<int> model;
    int nextId = 0;
    int maxGranularity = 0;

    // Churn a small store with removals across blocks, grow to about 1200
    // lines (several extensions), shrink to nothing in large bites, churn again.
    struct Phase {
        int steps;
        int target;
        int maxRemove;
    };
    const Phase phases[] = {{1500, 150, 25}, {3500, 1200, 3}, {600, 0, 90}, {1500, 300, 12}};
    for (const Phase& phase : phases) {
        for (int step = 0; step < phase.steps; ++step) {
            const int n = static_cast<int>(model.size());
            const bool grow = n < phase.target ? rng() % 10 < 8 : rng() % 10 < 2;
            if (grow) {
                int where;
                switch (rng() % 4) {
                    case 0:
                        where = n;
                        break;
                    case 1:
                        where = 0;
                        break;
                    default:
                        where = static_cast<int>(rng() % (n + 1));
                }
                ASSERT_NE(InsertNamed(zone, where, nextId), nullptr) << "at " << where;
                model.insert(model.begin() + where, nextId++);
            } else if (n > 0) {
                int first = rng() % 5 == 0 ? n - 1 - static_cast<int>(rng() % std::min(n, 5))
                                           : static_cast<int>(rng() % n);
                int count = 1 + static_cast<int>(rng() % phase.maxRemove);
                zone.RemoveLines(first, count);
                model.erase(model.begin() + first, model.begin() + std::min(n, first + count));
            } else {
                // Beyond the end nothing is inserted.
                EXPECT_EQ(zone.InsertLine(1), nullptr);
            }
            ASSERT_NO_FATAL_FAILURE(ExpectStore(zone, model)) << "step " << step;
            ASSERT_NO_FATAL_FAILURE(ExpectLookups(zone, model, rng)) << "step " << step;
            maxGranularity = std::max(maxGranularity, zone.m_nGranularity);
        }
    }
    EXPECT_GE(maxGranularity, 40);
}

TEST(LineStoreTest, EmptyStoreAndFirstExtension) {
    CTestZone zone;
    EXPECT_EQ(zone.GetLineCount(), 0);
    EXPECT_EQ(zone.GetLastLineIndex(), 0);
    EXPECT_EQ(zone.GetLine(0), nullptr);
    EXPECT_EQ(zone.InsertLine(1), nullptr);
    EXPECT_EQ(zone.InsertLine(-1), nullptr);
    zone.RemoveLines(0, 5);
    EXPECT_EQ(zone.m_nBlockCount, 0);

    ASSERT_NE(InsertNamed(zone, 0, 0), nullptr);
    EXPECT_EQ(zone.GetLastLineIndex(), 0);
    EXPECT_EQ(zone.GetLine(-5), zone.GetLine(0));

    std::vector<int> model{0};
    for (int i = 1; i < 100; ++i) {
        InsertNamed(zone, i, i);
        model.push_back(i);
    }
    EXPECT_EQ(zone.m_nGranularity, 10);
    EXPECT_EQ(zone.m_nBlockCount, 10);
    InsertNamed(zone, 100, 100);
    model.push_back(100);
    EXPECT_EQ(zone.m_nGranularity, 20);
    ExpectStore(zone, model);

    // Removing everything one line at a time, from both ends, frees every block.
    for (int k = 0; zone.GetLineCount() > 0 && k < 200; ++k)
        zone.RemoveLines(k % 2 ? 0 : zone.GetLineCount() - 1, 1);
    EXPECT_EQ(zone.m_nBlockCount, 0);
    EXPECT_EQ(zone.m_nLineCount, 0);
}

TEST(LineStoreTest, SpillsBetweenBlocks) {
    CTestZone zone;
    std::vector<int> model;
    for (int i = 0; i < 25; ++i) {
        InsertNamed(zone, i, i);
        model.push_back(i);
    }
    ASSERT_EQ(zone.m_nBlockCount, 3);
    ASSERT_EQ(zone.m_pBlockSizes[0], 10);
    ASSERT_EQ(zone.m_pBlockSizes[1], 10);

    // Room in block 0, block 1 full: inserting inside block 1 hands exactly
    // one line back to block 0.
    zone.RemoveLines(3, 1);
    model.erase(model.begin() + 3);
    InsertNamed(zone, 12, 100);
    model.insert(model.begin() + 12, 100);
    EXPECT_EQ(zone.m_pBlockSizes[0], 10);
    EXPECT_EQ(zone.m_pBlockSizes[1], 10);
    EXPECT_EQ(Text(zone.m_ppBlocks[0][9]), "10");
    ExpectStore(zone, model);

    // At the very front of a full block the new line itself goes back.
    zone.RemoveLines(0, 1);
    model.erase(model.begin());
    InsertNamed(zone, 9, 101);
    model.insert(model.begin() + 9, 101);
    EXPECT_EQ(Text(zone.m_ppBlocks[0][9]), "101");
    ExpectStore(zone, model);

    // Both neighbours full: the last line of the block moves on to the next.
    InsertNamed(zone, 15, 102);
    model.insert(model.begin() + 15, 102);
    EXPECT_EQ(zone.m_pBlockSizes[2], 6);
    ExpectStore(zone, model);

    // A removal that spans three blocks frees the middle one and merges.
    zone.RemoveLines(5, 17);
    model.erase(model.begin() + 5, model.begin() + 22);
    EXPECT_EQ(zone.m_nBlockCount, 1);
    ExpectStore(zone, model);
}

TEST(LineStoreTest, CacheNamesAPlaceBehindTheBlockAfterRemovingItsTail) {
    CTestZone zone;
    for (int i = 0; i < 25; ++i)
        InsertNamed(zone, i, i);
    // Lines 15..19 are the tail of block 1; blocks 1 and 2 are too full to merge.
    zone.RemoveLines(15, 5);
    ASSERT_EQ(zone.m_nBlockCount, 3);
    EXPECT_EQ(zone.GetLine(15), nullptr);
    EXPECT_EQ(zone.InsertLine(16), nullptr);
    EXPECT_EQ(zone.GetLineCount(), 20);
    // Any other lookup moves the cache and heals it.
    EXPECT_EQ(Text(zone.GetLine(14)), "14");
    EXPECT_EQ(Text(zone.GetLine(15)), "20");
}

TEST(LineStoreTest, EditBlocksFollowInsertionAndRemoval) {
    CTestZone zone;
    for (int i = 0; i < 20; ++i)
        InsertNamed(zone, i, i);

    auto add = [](std::list<std::unique_ptr<CEditBlk>>& list, int first, int count,
                  CEditBlk* parent) {
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
    EXPECT_EQ(outer->m_nLineCount, 6);
    EXPECT_EQ(inner->m_nLineCount, 3);
    EXPECT_EQ(later->m_nFirstLine, 11);
    zone.InsertLine(2);  // on a first line: the block moves down
    EXPECT_EQ(outer->m_nFirstLine, 3);
    EXPECT_EQ(outer->m_nLineCount, 6);
    EXPECT_EQ(inner->m_nFirstLine, 5);
    EXPECT_EQ(later->m_nFirstLine, 12);
    EXPECT_EQ(alt->m_nFirstLine, 4);  // other lists are not kept in step

    // Lines 5 and 6: the inner block goes, the outer is cut, the later moves up.
    zone.RemoveLines(5, 2);
    ASSERT_EQ(zone.m_editBlocks.size(), 2u);
    EXPECT_EQ(outer->m_nFirstLine, 3);
    EXPECT_EQ(outer->m_nLineCount, 2);
    EXPECT_EQ(later->m_nFirstLine, 10);
    EXPECT_EQ(alt->m_pParent, nullptr);
    EXPECT_EQ(input->m_pParent, nullptr);

    // A block that ends exactly where the removal starts stays whole.
    zone.RemoveLines(5, 1);
    EXPECT_EQ(outer->m_nLineCount, 2);

    zone.m_nCurrentLength = 42;
    zone.FreeAllLines();
    EXPECT_TRUE(zone.m_editBlocks.empty());
    EXPECT_EQ(zone.m_altBlocks.size(), 1u);
    EXPECT_EQ(zone.m_nCurrentLength, 0);
    EXPECT_EQ(zone.m_nBlockCount, 0);
    EXPECT_EQ(zone.GetLine(0), nullptr);
    ExpectStore(zone, {});
}

TEST(LineStoreTest, MillionLinesAppendedAndReadBack) {
    CTestZone zone;
    const int n = 1000000;
    for (int i = 0; i < n; ++i) {
        CStringEx* line = zone.InsertLine(i);
        ASSERT_NE(line, nullptr);
        *line += static_cast<char>('a' + i % 26);
    }
    EXPECT_EQ(zone.GetLineCount(), n);
    EXPECT_EQ(zone.m_nGranularity, 1000);
    int bad = 0;
    for (int i = 0; i < n; ++i) {
        CStringEx* line = zone.GetLine(i);
        if (!line || (*line)[0] != static_cast<char>('a' + i % 26)) ++bad;
    }
    EXPECT_EQ(bad, 0);
    // A few edits in the middle of the big store.
    zone.RemoveLines(n / 2, 3000);
    EXPECT_EQ(zone.GetLineCount(), n - 3000);
    EXPECT_EQ((*zone.GetLine(n / 2))[0], static_cast<char>('a' + (n / 2 + 3000) % 26));
    ASSERT_NE(zone.InsertLine(n / 3), nullptr);
    EXPECT_EQ((*zone.GetLine(n / 3 + 1))[0], static_cast<char>('a' + (n / 3) % 26));
}
