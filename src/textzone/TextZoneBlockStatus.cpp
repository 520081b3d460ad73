// The closed state as a short hexadecimal string that a host saves with the
// document: two check values of the text, then the closed blocks and the
// alternate blocks. It is applied again only to the same text.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <utility>
#include <vector>

#include "platform/Wnd.h"
#include "textzone/TextZone.h"

namespace {

constexpr std::uint32_t kMaxField = 0xFFFFFF;  // what six digits can hold
constexpr std::size_t kMaxEntries = 0xFFFF;    // what a four-digit count can hold

// Reads fixed-width fields of hexadecimal digits. The first field that is cut
// short or holds anything else ends the reading for good.
class CHexFieldReader {
public:
    CHexFieldReader(const char* p, int nLength) : m_p(p), m_nLength(nLength) {}

    int Read(int nDigits, std::uint32_t* pValue) {
        if (!m_bGood) return 0;
        std::uint32_t value = 0;
        for (int i = 0; i < nDigits; ++i, ++m_nPos) {
            int digit = m_nPos < m_nLength ? Digit(m_p[m_nPos]) : -1;
            if (digit < 0) {
                m_bGood = false;
                return 0;
            }
            value = value * 16 + static_cast<std::uint32_t>(digit);
        }
        *pValue = value;
        return 1;
    }

private:
    static int Digit(char c) {
        if (c >= '0' && c <= '9') return c - '0';
        if (c >= 'A' && c <= 'F') return c - 'A' + 10;
        if (c >= 'a' && c <= 'f') return c - 'a' + 10;
        return -1;
    }

    const char* m_p;
    int m_nLength;
    int m_nPos = 0;
    bool m_bGood = true;
};

}  // namespace

void CTextZone::GetEditorBlockStatus(VESK::String& strStatus) {
    int nSize = 0;
    int nHash = 0;
    GetTextCRCValues(&nSize, &nHash);

    std::vector<std::uint32_t> closed;
    for (const auto& pBlk : m_editBlocks) {
        auto nFirst = static_cast<std::uint32_t>(pBlk->m_nFirstLine);
        if (pBlk->m_bClosed && nFirst <= kMaxField && closed.size() < kMaxEntries)
            closed.push_back(nFirst);
    }
    std::vector<std::pair<std::uint32_t, std::uint32_t>> alternate;
    for (const auto& pBlk : m_altBlocks) {
        auto nFirst = static_cast<std::uint32_t>(pBlk->m_nFirstLine);
        auto nCount = static_cast<std::uint32_t>(pBlk->m_nLineCount);
        if (nFirst <= kMaxField && nCount <= kMaxField && alternate.size() < kMaxEntries)
            alternate.emplace_back(nFirst, nCount);
    }

    char field[32];
    std::snprintf(field, sizeof field, "%08X%08X%04X%04X", static_cast<unsigned>(nSize),
                  static_cast<unsigned>(nHash), static_cast<unsigned>(closed.size()),
                  static_cast<unsigned>(alternate.size()));
    strStatus = field;
    for (std::uint32_t nFirst : closed) {
        std::snprintf(field, sizeof field, "%06X", static_cast<unsigned>(nFirst));
        strStatus += field;
    }
    for (const auto& [nFirst, nCount] : alternate) {
        std::snprintf(field, sizeof field, "%06X%06X", static_cast<unsigned>(nFirst),
                      static_cast<unsigned>(nCount));
        strStatus += field;
    }
}

void CTextZone::SetEditorBlockStatus(VESK::String& strStatus) {
    CHexFieldReader reader(strStatus.c_str(), strStatus.GetLength());
    std::uint32_t check1 = 0;
    std::uint32_t check2 = 0;
    std::uint32_t nClosed = 0;
    std::uint32_t nAlternate = 0;
    // A field that fails leaves its value 0 and stops the fields behind it.
    reader.Read(8, &check1);
    reader.Read(8, &check2);
    reader.Read(4, &nClosed);
    reader.Read(4, &nAlternate);

    int nSize = 0;
    int nHash = 0;
    GetTextCRCValues(&nSize, &nHash);
    // Another text: the saved state means nothing here.
    if (check1 != static_cast<std::uint32_t>(nSize) || check2 != static_cast<std::uint32_t>(nHash))
        return;

    // A string cut short applies what it holds up to the cut.
    std::vector<int> heads;
    std::vector<std::pair<int, int>> alternates;
    std::uint32_t nTop = kMaxField + 1;
    for (std::uint32_t i = 0; i < nClosed; ++i) {
        std::uint32_t nLine = 0;
        if (!reader.Read(6, &nLine)) break;
        heads.push_back(static_cast<int>(nLine));
        nTop = std::min(nTop, nLine);
    }
    for (std::uint32_t i = 0; i < nAlternate; ++i) {
        std::uint32_t nLine = 0;
        std::uint32_t nCount = 0;
        if (!reader.Read(6, &nLine) || !reader.Read(6, &nCount)) break;
        alternates.emplace_back(static_cast<int>(nLine), static_cast<int>(nCount));
        nTop = std::min(nTop, nLine);
    }

    // Each close asks to redraw from its head down; one request from the
    // topmost head covers them all, and costs one position lookup instead
    // of one per block.
    const int bRedraw = m_bRedraw;
    m_bRedraw = 0;
    if (!CloseSavedBlocks(heads, alternates)) {
        for (int nLine : heads)
            CloseBlock(nLine, 0);
        for (const auto& [nLine, nCount] : alternates)
            CreateClosedAltBlock(nLine, nCount, 0);
    }
    m_bRedraw = bRedraw;
    if (nTop <= kMaxField) RedrawLines(static_cast<int>(nTop), TZ_TO_END, 0);
    if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
}
