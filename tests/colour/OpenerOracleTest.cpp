// The search for the next opener scans the line once, skipping to bytes that
// can start one. Checked here against the search as the colouring defines
// it: each opener searched on its own with strstr, the earliest taken, ties
// going to block comment, ', ", line comment, [ in that order.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "ColourZone.h"

namespace {

struct Found {
    int at = -1;
    int length = 0;
    unsigned int state = 0;
    bool operator==(const Found&) const = default;
};

Found Literal(const CTextZoneColor& z, const char* text) {
    Found best;
    auto consider = [&](const char* hit, int length, unsigned int state) {
        if (!hit) return;
        const int at = static_cast<int>(hit - text);
        if (best.at < 0 || at < best.at) best = {at, length, state};
    };
    // In tie order: a later candidate at the same place does not replace an earlier one.
    if (z.m_bPascalComment) {
        const char* paren = std::strstr(text, "(*");
        const char* brace = std::strchr(text, '{');
        if (paren && (!brace || paren <= brace))
            consider(paren, 2, LS_COMMENT);
        else
            consider(brace, 1, LS_BRACE);
    } else if (z.m_bSlashStarComment) {
        consider(std::strstr(text, "/*"), 2, LS_COMMENT);
    }
    if (!z.m_bQuoteComment) consider(std::strchr(text, '\''), 1, LS_QUOTE);
    consider(std::strchr(text, '"'), 1, LS_DOUBLE);
    if (z.m_bSlashSlashComment)
        consider(std::strstr(text, "//"), 2, LS_PLAIN);
    else if (z.m_bDashDashComment)
        consider(std::strstr(text, "--"), 2, LS_PLAIN);
    else if (z.m_bQuoteComment)
        consider(std::strchr(text, '\''), 1, LS_PLAIN);
    if (z.m_bSql) consider(std::strchr(text, '['), 1, LS_BRACKET);
    return best;
}

using OpenerOracleTest = ColourTest;

TEST_F(OpenerOracleTest, RandomLinesUnderEveryFlagSet) {
    std::mt19937 random(7);
    const char bytes[] = "/*({-'\"[]x )}\t";
    for (int flags = 0; flags < 128; ++flags) {
        m_zone.m_bPascalComment = flags & 1;
        m_zone.m_bSlashStarComment = (flags >> 1) & 1;
        m_zone.m_bQuoteComment = (flags >> 2) & 1;
        m_zone.m_bSlashSlashComment = (flags >> 3) & 1;
        m_zone.m_bDashDashComment = (flags >> 4) & 1;
        m_zone.m_bSql = (flags >> 5) & 1;
        for (int round = 0; round < 200; ++round) {
            std::string line;
            const int length = static_cast<int>(random() % 12);
            for (int k = 0; k < length; ++k)
                line += bytes[random() % (sizeof bytes - 1)];
            Found fast;
            int kind = 0;
            fast.at = m_zone.FindOpener(line.c_str(), 0, -2, &fast.length, &kind, &fast.state);
            if (fast.at < 0) fast = Found{};
            const Found slow = Literal(m_zone, line.c_str());
            ASSERT_EQ(fast, slow) << "flags " << flags << ": \"" << line << "\" found at "
                                  << fast.at << " instead of " << slow.at;
        }
    }
}

}  // namespace
