#include "colour/KeywordIndex.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "host/Collator.h"
#include "textzone/TextBytes.h"

using textbytes::IsBlank;

namespace {

constexpr char kTaken = 10;

bool IsBoundaryChar(unsigned char c) {
    return c >= 128 || std::isalnum(c) || c == '#' || c == '@' || c == '_';
}
}  // namespace

bool CKeywordIndex::BlocksBefore(unsigned char c, KeywordBounds bounds) {
    switch (bounds) {
        case KeywordBounds::CFamily:
            return std::isalnum(c) || c == '_' || c == '#';
        case KeywordBounds::Sql:
            return IsBoundaryChar(c);
        case KeywordBounds::SqlNoDash:
            return IsBoundaryChar(c) || c == '-';
    }
    return false;
}

bool CKeywordIndex::BlocksBehind(unsigned char c, KeywordBounds bounds) {
    if (bounds == KeywordBounds::CFamily) return std::isalnum(c) || c == '_';
    return BlocksBefore(c, bounds);
}

void CKeywordIndex::Build(const char* const* const* ppTables, int nCount) {
    for (auto& bucket : m_buckets)
        bucket.clear();
    m_nTables = std::min(nCount, kMaxTables);
    for (int t = 0; t < m_nTables; ++t) {
        m_ppTables[t] = ppTables[t];
        if (!ppTables[t]) continue;
        for (int i = 0; ppTables[t][i][0]; ++i) {
            const char* w = ppTables[t][i];
            Entry e{w, static_cast<std::uint16_t>(std::strlen(w)), static_cast<std::uint16_t>(i),
                    static_cast<std::uint8_t>(t), w[1]};
            m_buckets[static_cast<unsigned char>(w[0])].push_back(e);
        }
    }
}

bool CKeywordIndex::IsBuiltFor(const char* const* const* ppTables, int nCount) const {
    if (std::min(nCount, kMaxTables) != m_nTables) return false;
    for (int t = 0; t < m_nTables; ++t)
        if (m_ppTables[t] != ppTables[t]) return false;
    return true;
}

void CKeywordIndex::Take(std::string& text, bool bFold, KeywordBounds bounds,
                         std::vector<KeywordToken>& tokens, int nKeepEnd) const {
    // The word-by-word search is strstr-based: it sees the text up to its
    // first 0 byte only.
    const int n = static_cast<int>(std::strlen(text.c_str()));
    char* m = text.data();
    if (bFold) {
        m_lowered.assign(text.c_str(), static_cast<size_t>(n));
        VESK::CollatorFactory::getSystemCollator()->toLower(m_lowered.data(), n);
        m = m_lowered.data();
    }

    // Every place where a word occurs. Taking a word only ever overwrites
    // bytes with 10, which no word holds, so the places the word-by-word
    // search finds later are among these.
    for (int t = 0; t < m_nTables; ++t)
        m_hits[t].clear();
    for (int p = 0; p < n; ++p) {
        const auto& bucket = m_buckets[static_cast<unsigned char>(m[p])];
        for (const Entry& e : bucket) {
            if (e.nLength > n - p) continue;
            if (e.nLength > 1 &&
                (m[p + 1] != e.cSecond || std::memcmp(m + p + 2, e.pWord + 2, e.nLength - 2u) != 0))
                continue;
            m_hits[e.nTable].push_back(
                {(static_cast<std::uint64_t>(e.nIndex) << 32) | static_cast<std::uint32_t>(p),
                 e.nLength});
        }
    }

    for (int t = 0; t < m_nTables; ++t) {
        auto& hits = m_hits[t];
        std::sort(hits.begin(), hits.end(),
                  [](const Hit& a, const Hit& b) { return a.nKey < b.nKey; });
        std::uint64_t word = ~0ull;
        int from = 0;  // where the search for the current word goes on
        for (const Hit& h : hits) {
            const std::uint64_t index = h.nKey >> 32;
            const int p = static_cast<int>(h.nKey & 0xFFFFFFFFu);
            if (index != word) {
                word = index;
                from = 0;
            }
            if (p < from) continue;
            // A word taken meanwhile may have overwritten this place.
            if (std::memchr(m + p, kTaken, static_cast<size_t>(h.nLength))) continue;
            const int behind = p + h.nLength;
            if ((p > 0 && BlocksBefore(static_cast<unsigned char>(m[p - 1]), bounds)) ||
                BlocksBehind(static_cast<unsigned char>(m[behind]), bounds) || behind == nKeepEnd) {
                from = behind;  // a hit that fails: the search goes on behind the word
                continue;
            }
            int end = behind;
            while (end < n && IsBlank(m[end]))
                ++end;
            std::memset(m + p, kTaken, static_cast<size_t>(end - p));
            if (bFold) std::memset(text.data() + p, kTaken, static_cast<size_t>(end - p));
            tokens.push_back({p, end, t});
            from = end;
        }
    }
}
