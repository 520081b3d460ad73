#include "host/Collator.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

// Every byte from 1 to 255 once, so whole-table mistakes show up.
std::string AllBytes() {
    std::string s;
    for (int c = 1; c < 256; ++c)
        s += static_cast<char>(c);
    return s;
}

unsigned char At(const std::string& s, int c) {
    return static_cast<unsigned char>(s[c - 1]);
}

}  // namespace

TEST(Collator, CaseMapsLettersOfTheCodePageBothWays) {
    const std::pair<int, int> pairs[] = {{'A', 'a'},   {'Z', 'z'},   {0xC0, 0xE0}, {0xC9, 0xE9},
                                         {0xD6, 0xF6}, {0xD8, 0xF8}, {0xDE, 0xFE}, {0x8A, 0x9A},
                                         {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};
    for (auto [up, low] : pairs) {
        auto u = static_cast<unsigned char>(up), l = static_cast<unsigned char>(low);
        EXPECT_EQ(ToLower1252(u), l) << up;
        EXPECT_EQ(ToUpper1252(l), u) << up;
        EXPECT_TRUE(IsUpper1252(u) && IsLower1252(l) && IsAlpha1252(u) && IsAlpha1252(l)) << up;
    }

    // Signs, digits, punctuation and the letters without a one-byte partner.
    for (int c : {0x00, int('0'), int('@'), int('['), int('`'), int('{'), 0x80, 0x9B, 0xA0, 0xB5,
                  0xD7, 0xDF, 0xF7}) {
        auto b = static_cast<unsigned char>(c);
        EXPECT_EQ(ToUpper1252(b), c);
        EXPECT_EQ(ToLower1252(b), c);
        EXPECT_FALSE(IsUpper1252(b) || IsLower1252(b)) << c;
    }
    EXPECT_FALSE(IsAlpha1252(0xD7) || IsAlpha1252(0xF7) || IsAlpha1252('5'));
    EXPECT_TRUE(IsAlpha1252(0xDF) && IsAlpha1252(0xB5));

    // Nothing else changes: 26 ASCII, 30 accented and 4 more letters each way.
    int nUpper = 0, nLower = 0;
    for (int c = 0; c < 256; ++c) {
        nUpper += IsUpper1252(static_cast<unsigned char>(c));
        nLower += IsLower1252(static_cast<unsigned char>(c));
    }
    EXPECT_EQ(nUpper, 60);
    EXPECT_EQ(nLower, 60);
}

TEST(Collator, BufferConversionsAgreeWithTheByteMapAndKeepLengths) {
    const std::string all = AllBytes();

    std::string upper = all;
    EXPECT_EQ(CharUpperA(upper.data()), upper.data());
    std::string lower = all;
    EXPECT_EQ(CharLowerA(lower.data()), lower.data());
    for (int c = 1; c < 256; ++c) {
        EXPECT_EQ(At(upper, c), ToUpper1252(static_cast<unsigned char>(c))) << c;
        EXPECT_EQ(At(lower, c), ToLower1252(static_cast<unsigned char>(c))) << c;
    }

    // The counted forms run past a 0 byte and stop exactly at n.
    char buf[] = {'a', 0, '\xE9', 'b', 'c'};
    EXPECT_EQ(CharUpperBuffA(buf, 4), 4u);
    EXPECT_EQ(std::string(buf, 5), std::string("A\0\xC9"
                                               "Bc",
                                               5));
    EXPECT_EQ(CharLowerBuffA(buf, 3), 3u);
    EXPECT_EQ(std::string(buf, 5), std::string("a\0\xE9"
                                               "Bc",
                                               5));

    // The 0-ended forms stop at the 0 byte.
    char text[] = "ab\0cd";
    CharUpperA(text);
    EXPECT_EQ(std::string(text, 5), std::string("AB\0cd", 5));
    EXPECT_EQ(CharUpperA(nullptr), nullptr);

    VESK::ICollator* pCollator = VESK::CollatorFactory::getSystemCollator();
    ASSERT_NE(pCollator, nullptr);
    std::string s = "Select \xC0LA \xDF\xB5 \xFF\x9A";
    pCollator->toUpper(s.data(), static_cast<int>(s.size()));
    EXPECT_EQ(s, "SELECT \xC0LA \xDF\xB5 \x9F\x8A");
    pCollator->toLower(s.data(), 6);  // only the first word
    EXPECT_EQ(s, "select \xC0LA \xDF\xB5 \x9F\x8A");
}

TEST(Collator, CaseInsensitiveComparisonOrdersByLowerCasedUnsignedBytes) {
    EXPECT_EQ(_stricmp("SELECT", "select"), 0);
    EXPECT_EQ(_stricmp("\xC9t\xC9", "\xE9T\xE9"), 0);
    EXPECT_EQ(_stricmp("\x8C\x9F", "\x9C\xFF"), 0);

    // Lower-cased, not upper-cased: '_' (0x5F) sorts before letters.
    EXPECT_GT(_stricmp("a", "_"), 0);
    EXPECT_LT(_stricmp("_", "A"), 0);
    // Bytes above 127 are unsigned, so they sort after ASCII.
    EXPECT_GT(_stricmp("\xE9", "z"), 0);
    // A prefix sorts first.
    EXPECT_LT(_stricmp("abc", "ABCD"), 0);
    // Signs and sharp s are not folded.
    EXPECT_NE(_stricmp("\xD7", "\xF7"), 0);
    EXPECT_NE(_stricmp("\xDF", "SS"), 0);

    EXPECT_EQ(_strnicmp("Hello World", "HELLO there", 6), 0);
    EXPECT_GT(_strnicmp("Hello World", "HELLO there", 7), 0);  // w after t
    // The 0 byte ends both strings inside n.
    EXPECT_EQ(_strnicmp("ab\0x", "AB\0y", 10), 0);
    EXPECT_LT(_strnicmp("ab", "abc", 10), 0);
    // A line end compares like any byte.
    EXPECT_NE(_strnicmp("ab\r", "ab\n", 3), 0);

    VESK::ICollator* pCollator = VESK::CollatorFactory::getSystemCollator();
    EXPECT_EQ(pCollator->compareNoCase("Caf\xC9", "cAF\xE9"), 0);
    EXPECT_GT(pCollator->compareNoCase("\xE0", "\x7F"), 0);
    EXPECT_LT(pCollator->compare("ABC", "abc"), 0);  // case matters
    EXPECT_GT(pCollator->compare("\x80", "a"), 0);   // unsigned
}
