// The keyword case of a line against the conversion as the keyword mode
// defines it, kept here as the oracle: for each converted table, each word
// searched with memmem in the line lower-cased, a word taken masking its
// place and the blanks behind it. The zone finds the words through an index;
// both must convert every line to the same bytes.
#include <cctype>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "ParamZone.h"
#include "host/Collator.h"

namespace {

constexpr char kMasked = 0x0A;

bool IsKeywordNeighbour(unsigned char c) {
    return c >= 0x80 || std::isalnum(c) || c == '#' || c == '@' || c == '_';
}

// Converts live (the line's bytes) from work (the same line with strings and
// comments masked) as the literal word-by-word search does.
void LiteralKeywordCase(std::string work, std::string& live, int nKeepEnd, unsigned int nMode,
                        const char** const* lists) {
    const int n = static_cast<int>(work.size());
    for (char& c : work)
        if (c == 0x0D) c = kMasked;
    const VESK::ICollator* pCollator = VESK::CollatorFactory::getSystemCollator();
    std::string folded;
    for (int nTable : {0, 2, 3, 4, 5}) {
        const char** pWords = lists[nTable];
        if (!pWords) continue;
        folded = work;
        pCollator->toLower(folded.data(), n);
        for (const char** pp = pWords; *pp && **pp; ++pp) {
            const int nWord = static_cast<int>(std::strlen(*pp));
            int from = 0;
            while (from + nWord <= n) {
                const char* hit = static_cast<const char*>(
                    memmem(folded.data() + from, static_cast<size_t>(n - from), *pp,
                           static_cast<size_t>(nWord)));
                if (!hit) break;
                const int at = static_cast<int>(hit - folded.data());
                const int end = at + nWord;
                if ((at > 0 && IsKeywordNeighbour(static_cast<unsigned char>(folded[at - 1]))) ||
                    (end < n && IsKeywordNeighbour(static_cast<unsigned char>(folded[end]))) ||
                    end == nKeepEnd) {
                    from = end;
                    continue;
                }
                int stop = end;
                while (stop < n && (work[stop] == ' ' || work[stop] == '\t'))
                    ++stop;
                int i = at;
                auto upper = [&](int k) { live[k] = static_cast<char>(std::toupper(static_cast<unsigned char>(live[k]))); };
                auto lower = [&](int k) { live[k] = static_cast<char>(std::tolower(static_cast<unsigned char>(live[k]))); };
                if (nMode == KM_UPPER) {
                    for (; i < stop; ++i)
                        upper(i);
                } else if (nMode == KM_LOWER) {
                    for (; i < stop; ++i)
                        lower(i);
                } else {
                    while (i < stop && (live[i] == '@' || live[i] == '#'))
                        ++i;
                    if (i < stop) upper(i++);
                    for (; i < stop; ++i)
                        lower(i);
                }
                std::memset(folded.data() + at, kMasked, static_cast<size_t>(stop - at));
                from = stop;
            }
        }
        for (int i = 0; i < n; ++i)
            if (folded[i] != kMasked) folded[i] = work[i];
        work.swap(folded);
    }
}

// Random case of a word, as a user might type it.
std::string Scramble(std::string word, std::mt19937& rng) {
    for (char& c : word)
        if (rng() % 2) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return word;
}

}  // namespace

using KeywordCaseOracleTest = ParamTest;

TEST_F(KeywordCaseOracleTest, TheIndexConvertsEveryLineAsTheWordByWordSearch) {
    std::mt19937 rng(20261124);
    // Words of every converted table (and the data types, which stay), glued
    // pieces that make longer words, and what masks or ends a word.
    std::vector<std::string> pieces = {" ", "  ", "\t", "x", "_", "@", "@@", "#", "1", "(", ")",
                                       ",", ";", "'", "\"", "[", "]", "--", "/*", "*/", "-", "\xe9"};
    for (int t = 0; t < 6; ++t)
        for (const char** pp = m_zone.m_keywordLists[t]; pp && *pp && **pp; ++pp)
            if (rng() % 8 == 0) pieces.emplace_back(*pp);

    int converted = 0;
    for (int round = 0; round < 300; ++round) {
        const unsigned int mode = KM_UPPER + rng() % 3;
        m_zone.SetKeywordMode(mode, 0);
        std::string text;
        const int lines = 1 + static_cast<int>(rng() % 4);
        for (int l = 0; l < lines; ++l) {
            for (int k = static_cast<int>(rng() % 14); k > 0; --k)
                text += Scramble(pieces[rng() % pieces.size()], rng);
            if (l + 1 < lines) text += "\r\n";
        }
        const int caretLine = static_cast<int>(rng() % static_cast<unsigned>(lines));
        Start(text.c_str(), caretLine, 0);
        if (CStringEx* p = m_zone.GetLine(caretLine)) {
            const int ch = static_cast<int>(rng() % static_cast<unsigned>(p->GetLength() + 1));
            m_zone.SetSelection(caretLine, caretLine, ch, ch, 0, 0);
        }
        for (int l = 0; l < m_zone.GetLineCount(); ++l) {
            CStringEx* pLine = m_zone.GetLine(l);
            CStringEx masked;
            m_zone.GetCommentAndStringFreeLine(&masked, l, 0);
            std::string expected(pLine->c_str(), static_cast<size_t>(pLine->GetLength()));
            const std::string before = expected;
            const bool caretHere = !m_zone.TestSelection() && l == m_zone.m_nSelStartLine;
            if (masked.GetLength() == pLine->GetLength())
                LiteralKeywordCase(std::string(masked.c_str(), static_cast<size_t>(masked.GetLength())),
                                   expected, caretHere ? m_zone.m_nSelStartChar : -1, mode,
                                   m_zone.m_keywordLists);
            m_zone.AnalyzeLine(l);
            ASSERT_EQ(std::string(pLine->c_str(), static_cast<size_t>(pLine->GetLength())), expected)
                << "round " << round << " line " << l << " mode " << mode << " of '" << text << "'";
            converted += expected != before;
        }
    }
    // The input has to reach the conversion to prove anything.
    EXPECT_GT(converted, 100);
}
