// A line of a read-only zone: the text, and the marks a host put on it that
// no language rule gives (highlights, a pastel range, a line colour, links
// and help text). A range is packed in one word: the start column in the
// low 16 bits, the end column (exclusive) in the high 16; an end of 65535
// reaches through the line end.
#pragma once

#include <cstdint>
#include <vector>

#include "TextzoneExport.h"
#include "colour/StringExColor.h"
#include "host/VeskString.h"

class TEXTZONE_EXPORT CStringExReadOnly : public CStringExColor {
public:
    CStringExReadOnly() = default;
    explicit CStringExReadOnly(const char* psz) : CStringExColor(psz) {}
    ~CStringExReadOnly() override = default;

    static constexpr int kThroughEnd = 65535;
    static std::uint32_t Pack(int nStart, int nEnd) {
        return (static_cast<std::uint32_t>(nStart) & 0xFFFF) |
               ((static_cast<std::uint32_t>(nEnd) & 0xFFFF) << 16);
    }
    static int Start(std::uint32_t range) { return static_cast<int>(range & 0xFFFF); }
    static int End(std::uint32_t range) { return static_cast<int>(range >> 16); }

    // Adds a highlighted range, merged with those it touches.
    void AddHilight(int nStart, int nEnd);
    // Adds one link, kept in front of the first link that starts at or
    // behind its end; links are never merged.
    void AddHyperlink(int nStart, int nEnd, char const* pText, std::int64_t nId,
                      unsigned long nData, unsigned int nKind);
    // Stores the help text; a line with help carries bookmark bit 5.
    void SetHelp(char const* pText);
    VESK::String const& GetHelp() const { return m_strHelp; }

    int m_nPastelStart = 0;
    int m_nPastelEnd = 0;  // 0x7fffffff: to the line end
    COLORREF m_crLineColor = 0;
    std::vector<std::uint32_t> m_hilights;  // ascending, never overlapping
    // The links, parallel: the n-th entry of each belongs to the n-th link.
    std::vector<std::uint32_t> m_linkBounds;  // ascending by start
    std::vector<VESK::String> m_linkTexts;
    std::vector<std::int64_t> m_linkIds;
    std::vector<unsigned long> m_linkData;
    std::vector<unsigned int> m_linkKinds;
    VESK::String m_strHelp;

private:
    // A mark that starts at column 0 starts behind the line's indentation;
    // false when nothing is left to mark.
    bool SkipIndentation(int* pnStart, int nEnd) const;
};
