// Find against the plain search kept here as it reads: from the start
// point, line by line, the word compared at every byte with strncmp or
// _strnicmp. Random texts with both cases, accented letters and line ends,
// random words taken from the text and altered, both directions, and chains
// of finds that start from the match before.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "host/Collator.h"
#include "support/ZoneTest.h"
#include "textzone/TextZone.h"

namespace {

struct Place {
    int found = 0;
    int line = 0;
    int start = 0;
    bool operator==(const Place&) const = default;
};

class FindDifferentialTest : public ZoneTest {
protected:
    int RawLength(int nLine) {
        CStringEx* pLine = nLine >= 0 ? m_zone.GetLine(nLine) : nullptr;
        return pLine ? pLine->GetLength() : 0;
    }

    // Where a search from the current selection finds the word, by the rule.
    Place Expected(const char* pszText, bool bForward, bool bMatchCase) {
        const int n = static_cast<int>(std::strlen(pszText));
        int nLine;
        int nChar;
        if (bForward) {
            nLine = m_zone.m_nSelStartLine;
            nChar = m_zone.m_nSelStartChar;
            if (m_zone.SameAsSelected(pszText, bMatchCase)) {
                ++nChar;
                if (RawLength(nLine) - nChar < n) {
                    ++nLine;
                    nChar = 0;
                }
            }
        } else {
            nLine = m_zone.m_nSelEndLine;
            nChar = m_zone.m_nSelEndChar;
            if (nLine == 0 && nChar == 0) return {};
            if (m_zone.TestSelection()) {
                if (--nChar < 0) {
                    --nLine;
                    nChar = std::max(0, RawLength(nLine) - 1);
                }
            } else if (nLine != 0 && !m_zone.GetLine(nLine)) {
                --nLine;
                nChar = RawLength(nLine);
            }
        }
        nChar = std::max(0, nChar);
        auto matches = [&](const char* p) {
            return (bMatchCase ? std::strncmp(p, pszText, static_cast<size_t>(n))
                               : _strnicmp(p, pszText, static_cast<size_t>(n))) == 0;
        };
        for (int L = nLine; L >= 0; L += bForward ? 1 : -1) {
            CStringEx* pLine = m_zone.GetLine(L);
            if (!pLine) break;
            const char* p = pLine->c_str();
            const int nLength = pLine->GetLength();
            if (bForward) {
                for (int i = L == nLine ? nChar : 0; i + n <= nLength; ++i)
                    if (matches(p + i)) return {1, L, i};
            } else {
                int nTo = L == nLine ? std::min(nChar, nLength) : nLength;
                for (int i = nTo - n; i >= 0; --i)
                    if (matches(p + i)) return {1, L, i};
            }
        }
        return {};
    }
};

std::string RandomText(std::mt19937& rng) {
    // Letters of both cases, accented pairs (0xC0/0xE0, 0x8A/0x9A), 0xDF with
    // no partner, blanks, and all three line ends.
    static const char bytes[] = "abAB \tcC\xC0\xE0\x8A\x9A\xDF-";
    std::string text;
    const int lines = 200 + static_cast<int>(rng() % 200);
    for (int l = 0; l < lines; ++l) {
        const int length = static_cast<int>(rng() % 30);
        for (int i = 0; i < length; ++i)
            text += bytes[rng() % (sizeof(bytes) - 1)];
        text += rng() % 3 == 0 ? "\r\n" : rng() % 2 ? "\n" : "\r";
    }
    return text;
}

TEST_F(FindDifferentialTest, RandomSearchesFindWhatThePlainSearchFinds) {
    std::mt19937 rng(77);
    for (int round = 0; round < 30; ++round) {
        const std::string text = RandomText(rng);
        m_zone.SetText(text.c_str());
        for (int k = 0; k < 40; ++k) {
            // A piece of the text (with its line end now and then), its case
            // sometimes flipped.
            const size_t at = rng() % (text.size() - 4);
            std::string word = text.substr(at, 1 + rng() % 3);
            for (char& c : word)
                if (c == '\n') c = '\r';
            if (rng() % 2) CharUpperA(word.data());
            const bool forward = rng() % 2;
            const bool matchCase = rng() % 2;
            const int n = std::max(1, m_zone.GetLineCount());
            const int line = static_cast<int>(rng() % (n + 1));
            m_zone.SetSelection(line, line, static_cast<int>(rng() % 12),
                                static_cast<int>(rng() % 12), 1, 0);
            m_zone.m_nSelEndChar = m_zone.m_nSelStartChar;
            // A chain of finds, each from the match before.
            for (int step = 0; step < 5; ++step) {
                const Place expected = Expected(word.c_str(), forward, matchCase);
                const int found = m_zone.FindTextFromCurrentPos(word.c_str(), forward, matchCase);
                Place actual{found, found ? m_zone.m_nSelStartLine : 0,
                             found ? m_zone.m_nSelStartChar : 0};
                ASSERT_EQ(actual, expected)
                    << "round " << round << " word '" << word << "' forward " << forward << " case "
                    << matchCase << " step " << step << ": expected line " << expected.line
                    << " at " << expected.start << ", got line " << actual.line << " at "
                    << actual.start;
                if (!found) break;
            }
        }
    }
}

}  // namespace
