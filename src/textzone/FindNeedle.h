// The word a search looks for, its case folded once: the matching that find
// and replace all share.
#pragma once

#include <algorithm>
#include <cstring>
#include <vector>

#include "host/Collator.h"

// The word to find, its case folded once. A match at i is what strncmp (or
// _strnicmp) over the word's length at i calls equal; a search jumps from
// one possible first byte to the next with memchr instead of comparing at
// every byte.
class CFindNeedle {
public:
    CFindNeedle(const char* pszText, int n, bool bMatchCase)
        : m_p(pszText), m_n(n), m_bMatchCase(bMatchCase) {
        for (int c = 0; c < 256; ++c)
            m_fold[c] = ToLower1252(static_cast<unsigned char>(c));
        m_folded.resize(static_cast<size_t>(n));
        for (int k = 0; k < n; ++k)
            m_folded[static_cast<size_t>(k)] = m_fold[static_cast<unsigned char>(pszText[k])];
        // The bytes that fold to the first one: itself and its other case.
        m_first[0] = static_cast<unsigned char>(pszText[0]);
        m_first[1] = m_first[0];
        if (!bMatchCase) {
            for (int c = 0; c < 256; ++c)
                if (m_fold[c] == m_folded[0] && c != m_first[0])
                    m_first[1] = static_cast<unsigned char>(c);
        }
    }

    // The first match starting in [nFrom, nLength - n] of p, or -1.
    int Forward(const char* p, int nLength, int nFrom) const {
        const int last = nLength - m_n;
        if (nFrom > last) return -1;
        for (int i = nFrom; i <= last;) {
            const int c = NextFirst(p, i, last);
            if (c < 0) return -1;
            if (Matches(p + c)) return c;
            i = c + 1;
        }
        return -1;
    }

    // The last match starting in [0, nTo - n] of p, or -1.
    int Backward(const char* p, int nTo) const {
        for (int last = nTo - m_n; last >= 0;) {
            const int c = PrevFirst(p, last);
            if (c < 0) return -1;
            if (Matches(p + c)) return c;
            last = c - 1;
        }
        return -1;
    }

private:
    bool Matches(const char* q) const {
        if (m_bMatchCase) return std::memcmp(q, m_p, static_cast<size_t>(m_n)) == 0;
        for (int k = 0; k < m_n; ++k)
            if (m_fold[static_cast<unsigned char>(q[k])] != m_folded[static_cast<size_t>(k)])
                return false;
        return true;
    }
    // The first place in [i, last] holding one of the first bytes, or -1.
    int NextFirst(const char* p, int i, int last) const {
        const auto span = static_cast<size_t>(last - i + 1);
        const void* a = std::memchr(p + i, m_first[0], span);
        const void* b = m_first[1] != m_first[0] ? std::memchr(p + i, m_first[1], span) : nullptr;
        if (!a && !b) return -1;
        const char* hit = static_cast<const char*>(!a ? b : !b ? a : std::min(a, b));
        return static_cast<int>(hit - p);
    }
    // The last place in [0, last] holding one of the first bytes, or -1.
    int PrevFirst(const char* p, int last) const {
        const auto span = static_cast<size_t>(last + 1);
        const void* a = memrchr(p, m_first[0], span);
        const void* b = m_first[1] != m_first[0] ? memrchr(p, m_first[1], span) : nullptr;
        if (!a && !b) return -1;
        const char* hit = static_cast<const char*>(!a ? b : !b ? a : std::max(a, b));
        return static_cast<int>(hit - p);
    }

    const char* m_p;
    int m_n;
    bool m_bMatchCase;
    unsigned char m_fold[256];
    std::vector<unsigned char> m_folded;
    unsigned char m_first[2];
};
