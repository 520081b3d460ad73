#include "zones/StringExReadOnly.h"

#include <algorithm>

bool CStringExReadOnly::SkipIndentation(int* pnStart, int nEnd) const {
    if (*pnStart != 0) return true;
    if (nEnd < 1) return false;
    const int n = GetLength();
    const char* p = c_str();
    int i = 0;
    while (i < n && p[i] == ' ') {
        ++i;
        if (i == nEnd) return false;
    }
    *pnStart = i;
    return true;
}

void CStringExReadOnly::AddHilight(int nStart, int nEnd) {
    if (!SkipIndentation(&nStart, nEnd) || nStart >= nEnd) return;
    for (size_t i = 0; i < m_hilights.size(); ++i) {
        const int lo = Start(m_hilights[i]);
        const int hi = End(m_hilights[i]);
        if (nEnd < lo) {
            m_hilights.insert(m_hilights.begin() + static_cast<std::ptrdiff_t>(i),
                              Pack(nStart, nEnd));
            return;
        }
        if (nEnd <= hi) {
            m_hilights[i] = Pack(std::min(nStart, lo), hi);
            return;
        }
        if (nStart <= hi) {
            // Overlaps and reaches further: swallow the ranges it reaches.
            const int S = std::min(nStart, lo);
            int end = nEnd;
            m_hilights[i] = Pack(S, end);
            size_t j = i + 1;
            while (j < m_hilights.size()) {
                const int lo2 = Start(m_hilights[j]);
                const int hi2 = End(m_hilights[j]);
                if (lo2 > end) break;
                if (hi2 > end) {
                    m_hilights[i] = Pack(S, hi2);
                    end = hi2;
                }
                m_hilights.erase(m_hilights.begin() + static_cast<std::ptrdiff_t>(j));
            }
            return;
        }
    }
    m_hilights.push_back(Pack(nStart, nEnd));
}

void CStringExReadOnly::AddHyperlink(int nStart, int nEnd, char const* pText, std::int64_t nId,
                                     unsigned long nData, unsigned int nKind) {
    if (!SkipIndentation(&nStart, nEnd) || nStart >= nEnd) return;
    size_t at = 0;
    while (at < m_linkBounds.size() && Start(m_linkBounds[at]) < nEnd)
        ++at;
    const auto offset = static_cast<std::ptrdiff_t>(at);
    m_linkBounds.insert(m_linkBounds.begin() + offset, Pack(nStart, nEnd));
    m_linkTexts.insert(m_linkTexts.begin() + offset, VESK::String(pText));
    m_linkIds.insert(m_linkIds.begin() + offset, nId);
    m_linkData.insert(m_linkData.begin() + offset, nData);
    m_linkKinds.insert(m_linkKinds.begin() + offset, nKind);
}

void CStringExReadOnly::SetHelp(char const* pText) {
    m_strHelp = VESK::String(pText);
    if (m_strHelp.IsEmpty())
        m_dwBookmarks &= ~DWORD{32};
    else
        m_dwBookmarks |= 32;
}
