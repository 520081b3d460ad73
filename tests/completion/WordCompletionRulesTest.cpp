#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "completion/WordCompletionRules.h"
#include "host/Collator.h"

namespace {

// The candidates' order as first defined: passes over neighbours that swap
// a pair only when the second is strictly less, until a pass swaps nothing.
void NeighbourSort(std::vector<std::string>& words) {
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (size_t i = 0; i + 1 < words.size(); ++i) {
            if (_stricmp(words[i + 1].c_str(), words[i].c_str()) < 0) {
                std::swap(words[i], words[i + 1]);
                swapped = true;
            }
        }
    }
}

TEST(WordCompletionRules, SortAgreesWithNeighbourSwappingOnRandomLists) {
    std::mt19937 rng(19);
    // Few letters in both cases, so that many words compare equal.
    const char alphabet[] = "aAbB_@\xe9\xc9";
    for (int round = 0; round < 500; ++round) {
        std::vector<std::string> words(rng() % 12);
        for (std::string& w : words) {
            w.resize(1 + rng() % 3);
            for (char& c : w)
                c = alphabet[rng() % (sizeof alphabet - 1)];
        }
        std::vector<std::string> expected = words;
        NeighbourSort(expected);
        SortCandidates(words);
        ASSERT_EQ(words, expected) << "round " << round;
    }
}

// The case goes through the 8-bit collator: accented letters change too.
TEST(WordCompletionRules, CaseModesCoverAccentedLetters) {
    std::string w = "SeLect\xe9";
    ApplyCaseMode(w, 0);
    EXPECT_EQ(w, "select\xe9");
    ApplyCaseMode(w, 1);
    EXPECT_EQ(w, "SELECT\xc9");
    ApplyCaseMode(w, 2);
    EXPECT_EQ(w, "Select\xe9");
    ApplyCaseMode(w, 3);
    EXPECT_EQ(w, "Select\xe9");
}

}  // namespace
