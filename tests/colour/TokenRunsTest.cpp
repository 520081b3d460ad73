// The keyword and variable passes give their tokens runs in one merge; the
// oracle is the run operations one token at a time, in any order.
#include <algorithm>
#include <random>

#include "ColourZone.h"

namespace {

std::vector<std::pair<int, COLORREF>> RunList(const CTextZoneColor& zone) {
    std::vector<std::pair<int, COLORREF>> runs;
    for (const auto& def : zone.m_colorDefs)
        runs.emplace_back(def->nPos, def->crColor);
    return runs;
}

}  // namespace

TEST_F(ColourTest, TokensMergedAtOnceGiveTheRunsOfOneAtATime) {
    std::mt19937 rng(7);
    CTestColorZone& zone = m_zone;
    zone.SetText("x");
    zone.DefineColors(0, zone.GetLine(0));  // the text colour of the runs
    zone.FreeColorDefs();
    for (int round = 0; round < 300; ++round) {
        // A line laid out as pieces: gaps, tokens coloured before (a string
        // and the close behind it), and new tokens, which may touch.
        std::vector<CTestColorZone::TokenRun> earlier;
        std::vector<CTestColorZone::TokenRun> tokens;
        int pos = 0;
        for (int piece = 0; piece < 12; ++piece) {
            const int length = 1 + static_cast<int>(rng() % 6);
            const COLORREF cr = TestClassColor(1 + rng() % 9);
            switch (rng() % 3) {
                case 0:
                    break;
                case 1:
                    earlier.push_back({pos, pos + length, cr});
                    break;
                default:
                    tokens.push_back({pos, pos + length, cr});
                    break;
            }
            pos += length;
        }
        auto layEarlier = [&] {
            zone.FreeColorDefs();
            for (const auto& t : earlier) {
                zone.AddColorDef(t.nStart, t.crColor);
                zone.CloseColorDef(t.nEnd);
            }
        };
        layEarlier();
        std::shuffle(tokens.begin(), tokens.end(), rng);
        for (const auto& t : tokens) {
            zone.AddColorDef(t.nStart, t.crColor);
            zone.CloseColorDef(t.nEnd);
        }
        const auto expected = RunList(zone);
        layEarlier();
        zone.AddTokenRuns(tokens);
        EXPECT_EQ(RunList(zone), expected) << "round " << round;
        EXPECT_TRUE(
            std::is_sorted(zone.m_colorDefs.begin(), zone.m_colorDefs.end(),
                           [](const auto& a, const auto& b) { return a->nPos <= b->nPos; }));
    }
    zone.FreeColorDefs();
}
