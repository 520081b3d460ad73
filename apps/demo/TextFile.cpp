#include "apps/demo/TextFile.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// 10000000 as "10,000,000": the numbers of a dialog are read, not parsed.
std::string Number(long long n) {
    std::string digits = std::to_string(n < 0 ? -n : n);
    std::string out;
    for (size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
        out += digits[i];
    }
    return n < 0 ? "-" + out : out;
}

std::string Plural(long long n, const char* one, const char* many) {
    return Number(n) + " " + (n == 1 ? one : many);
}

const char* EndName(CTextFile::ELineEnd end) {
    switch (end) {
        case CTextFile::ELineEnd::CrLf: return "CR LF";
        case CTextFile::ELineEnd::Cr: return "CR";
        case CTextFile::ELineEnd::Lf: break;
    }
    return "LF";
}

// How many lines of the zone a line of the file becomes: the zone ends a
// line that reaches its limit and goes on with the rest below.
long long ZoneLinesOf(long long nBytes, long long nMaxLineBytes) {
    return nBytes <= nMaxLineBytes ? 1 : (nBytes + nMaxLineBytes - 1) / nMaxLineBytes;
}

}  // namespace

CTextFile::CTextFile() = default;

CTextFile::CTextFile(std::string_view bytes) : m_strZoneText(bytes) {
    Analyse(SLimits());
}

CTextFile::CTextFile(std::string&& bytes) : m_strZoneText(std::move(bytes)) {
    Analyse(SLimits());
}

CTextFile::CTextFile(std::string_view bytes, const SLimits& limits) : m_strZoneText(bytes) {
    Analyse(limits);
}

void CTextFile::Analyse(const SLimits& limits) {
    char* text = m_strZoneText.data();
    const size_t n = m_strZoneText.size();

    long long nNul = 0, nNulLine = 0;
    long long nLong = 0, nLongLine = 0;
    long long nZoneLines = 0, nCutLine = 0;
    std::array<long long, 3> endCounts{};  // by ELineEnd
    bool bFirstEnd = true;
    long long nOtherLine = 0;
    ELineEnd eOther = ELineEnd::Lf;

    // The zone takes a 0-ended text, where a 0 would end it: 0 bytes become
    // blanks. memchr finds them, and the line ends below, many times faster
    // than a look at every byte, which would add a third to a load.
    char* const pEnd = text + n;
    const char* pFirstNul = pEnd;
    for (char* p = text; (p = static_cast<char*>(std::memchr(p, 0, pEnd - p))); ++p) {
        if (nNul++ == 0) pFirstNul = p;
        *p = ' ';
    }
    auto find = [pEnd](const char* p, char c) {
        const void* q = std::memchr(p, c, static_cast<size_t>(pEnd - p));
        return q ? static_cast<const char*>(q) : pEnd;
    };

    long long nLine = 1;
    const char* start = text;
    const char* pNextCr = find(text, '\r');
    const char* pNextLf = find(text, '\n');
    while (true) {
        const char* eol = std::min(pNextCr, pNextLf);
        const long long nBytes = eol - start;
        if (eol == pEnd && nBytes == 0) break;  // nothing behind the last line end
        if (pFirstNul < eol && nNulLine == 0) nNulLine = nLine;
        if (nBytes > limits.maxLineBytes && nLong++ == 0) nLongLine = nLine;
        nZoneLines += ZoneLinesOf(nBytes, limits.maxLineBytes);
        if (nZoneLines > limits.maxLines && nCutLine == 0) nCutLine = nLine;
        if (eol == pEnd) break;

        // CR LF is one line end; LF CR is two, as the zone reads them.
        ELineEnd eEnd = ELineEnd::Lf;
        if (eol == pNextCr) {
            eEnd = eol + 1 < pEnd && eol[1] == '\n' ? ELineEnd::CrLf : ELineEnd::Cr;
            start = eol + (eEnd == ELineEnd::CrLf ? 2 : 1);
            pNextCr = find(start, '\r');
            if (eEnd == ELineEnd::CrLf) pNextLf = find(start, '\n');
        } else {
            start = eol + 1;
            pNextLf = find(start, '\n');
        }
        if (bFirstEnd) {
            m_eLineEnd = eEnd;
            bFirstEnd = false;
        } else if (eEnd != m_eLineEnd && nOtherLine == 0) {
            nOtherLine = nLine;
            eOther = eEnd;
        }
        ++endCounts[static_cast<size_t>(eEnd)];
        ++nLine;
    }
    // Behind a final line end there is no line.
    m_nLines = start == pEnd ? nLine - 1 : nLine;
    // An empty file says nothing: it gets the platform's final line end.
    m_bFinalLineEnd = n == 0 || text[n - 1] == '\r' || text[n - 1] == '\n';

    if (nNul > 0) {
        m_problems.push_back(
            {EProblem::NulBytes, nNul, nNulLine,
             "The file contains " + Plural(nNul, "NUL byte", "NUL bytes") + " (the first on line " +
                 Number(nNulLine) +
                 "). The editor shows them as blanks, and saving writes blanks in their place."});
    }
    if (nLong > 0) {
        const std::string limit = Number(limits.maxLineBytes);
        m_problems.push_back(
            {EProblem::LongLines, nLong, nLongLine,
             Plural(nLong, "line is", "lines are") + " longer than the editor's limit of " + limit +
                 " bytes (the first is line " + Number(nLongLine) +
                 "). The editor splits them into lines of at most " + limit +
                 " bytes, and saving writes them split."});
    }
    if (nZoneLines > limits.maxLines) {
        m_problems.push_back(
            {EProblem::TooManyLines, nZoneLines - limits.maxLines, nCutLine,
             "The file is longer than the " + Number(limits.maxLines) +
                 " lines the editor holds. The text from line " + Number(nCutLine) +
                 " on does not fit: it is not loaded, and saving would lose it."});
    } else if (nZoneLines == limits.maxLines) {
        m_problems.push_back({EProblem::AtLineLimit, nZoneLines, nZoneLines,
                              "The file has " + Number(nZoneLines) +
                                  " lines, the most the editor holds: no line can be added."});
    }
    const long long nTotalEnds = endCounts[0] + endCounts[1] + endCounts[2];
    const long long nOther = nTotalEnds - endCounts[static_cast<size_t>(m_eLineEnd)];
    if (nOther > 0) {
        m_problems.push_back(
            {EProblem::MixedLineEnds, nOther, nOtherLine,
             std::string("The line ends are mixed: line 1 ends in ") + EndName(m_eLineEnd) +
                 ", line " + Number(nOtherLine) + " in " + EndName(eOther) + " (" +
                 Plural(nOther, "line end differs", "line ends differ") +
                 " from the first). Saving writes every line end as " + EndName(m_eLineEnd) +
                 "."});
    }
}

void CTextFile::ReleaseZoneText() {
    std::string().swap(m_strZoneText);
}

const char* CTextFile::GetLineEndName() const {
    return EndName(m_eLineEnd);
}

bool CTextFile::HasProblem(EProblem kind) const {
    return std::any_of(m_problems.begin(), m_problems.end(),
                       [&](const SProblem& p) { return p.kind == kind; });
}

std::string CTextFile::DescribeProblems() const {
    std::string text;
    for (const SProblem& problem : m_problems) {
        if (!text.empty()) text += "\n\n";
        text += problem.message;
    }
    return text;
}

void CTextFile::CheckLoaded(CTextZone& zone) {
    // Where the text was changed on purpose, the comparison says nothing new.
    if (SavingChangesTheFile() || HasProblem(EProblem::ChangedOnLoad)) return;
    if (TextToSave(zone) == m_strZoneText) return;
    m_problems.push_back({EProblem::ChangedOnLoad, 0, 0,
                          "The editor changed the text as it loaded it (its settings turn tabs "
                          "into blanks, for one). Saving writes the text as the editor shows it."});
}

WORD CTextFile::GetTextFlags() const {
    WORD wFlags = 0;  // CR: neither of the two low bits
    if (m_eLineEnd == ELineEnd::Lf) wFlags = TF_LF;
    if (m_eLineEnd == ELineEnd::CrLf) wFlags = TF_CRLF;
    if (!m_bFinalLineEnd) wFlags |= TF_NO_FINAL_END;
    return wFlags;
}

std::string CTextFile::TextToSave(CTextZone& zone) const {
    const WORD wFlags = GetTextFlags();
    // Two bytes over the length: a line end is written only with room for it
    // and the 0 behind.
    const LONG size = zone.GetTextLength(wFlags) + 2;
    std::string bytes(static_cast<size_t>(size), '\0');
    zone.GetText(bytes.data(), size, wFlags);
    bytes.resize(std::strlen(bytes.c_str()));
    return bytes;
}

bool CTextFile::ChangesBytes(EProblem kind) {
    return kind != EProblem::AtLineLimit;
}

bool CTextFile::SavingChangesTheFile() const {
    return std::any_of(m_problems.begin(), m_problems.end(),
                       [](const SProblem& p) { return ChangesBytes(p.kind); });
}

std::string CTextFile::DescribeSaveChanges() const {
    std::string text;
    for (const SProblem& problem : m_problems) {
        if (!ChangesBytes(problem.kind)) continue;
        if (!text.empty()) text += "\n\n";
        text += problem.message;
    }
    return text;
}

void CTextFile::MarkSaved() {
    std::erase_if(m_problems, [](const SProblem& p) { return ChangesBytes(p.kind); });
}
