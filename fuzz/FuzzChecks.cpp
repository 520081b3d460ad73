// What must hold after every operation, and at the end of a run.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "ZoneFuzzer.h"
#include "textzone/TextZone.h"

// A text as it can be read in a report: line ends and other control bytes
// spelled out, and no more than a few hundred bytes of it.
std::string CZoneFuzzer::Shown(const std::string& text) {
    std::string shown;
    for (unsigned char c : text.substr(0, 300)) {
        if (c == '\r')
            shown += "\\r";
        else if (c == '\n')
            shown += "\\n";
        else if (c == '\t')
            shown += "\\t";
        else if (c < 32 || c >= 127) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02x", c);
            shown += hex;
        } else {
            shown += static_cast<char>(c);
        }
    }
    return text.size() > 300 ? shown + "...(" + std::to_string(text.size()) + " bytes)" : shown;
}

namespace {

// Where two texts part, with a little of each from there.
std::string Difference(const std::string& got, const std::string& expected) {
    std::size_t i = 0;
    while (i < got.size() && i < expected.size() && got[i] == expected[i])
        ++i;
    const std::size_t from = i > 20 ? i - 20 : 0;
    return "at byte " + std::to_string(i) + " of " + std::to_string(got.size()) + "/" +
           std::to_string(expected.size()) + ": '" + CZoneFuzzer::Shown(got.substr(from, 60)) + "', expected '" +
           CZoneFuzzer::Shown(expected.substr(from, 60)) + "'";
}

}  // namespace

void CZoneFuzzer::Fail(const std::string& what) {
    const std::string shown = Shown(what);
    std::fprintf(stderr, "fuzz invariant broken after '%s': %s\n", m_strLastOp.c_str(),
                 shown.c_str());
    std::abort();
}

int CZoneFuzzer::LineCount() {
    return m_zone.GetLineCount();
}

std::string CZoneFuzzer::Text() {
    const LONG size = m_zone.GetTextLength(TF_CRLF) + 2;
    std::vector<char> buffer(static_cast<std::size_t>(size) + 1, '\0');
    m_zone.GetText(buffer.data(), size, TF_CRLF);
    return std::string(buffer.data());
}

void CZoneFuzzer::CheckInvariants() {
    if (s_nTrace > 0)
        std::fprintf(stderr, "    text '%s' lines %d sel %d,%d-%d,%d mode %d undo %zu\n",
                     Shown(Text()).c_str(), m_zone.m_nLineCount, m_zone.m_nSelStartLine, m_zone.m_nSelStartChar,
                     m_zone.m_nSelEndLine, m_zone.m_nSelEndChar, m_zone.m_nSelectionMode,
                     m_zone.m_undoList.size());
    if (s_nTrace > 1)
        for (int i = 0; i < m_zone.m_nLineCount; ++i)
            std::fprintf(stderr, "      line %d: %d bytes '%s'\n", i, m_zone.GetLine(i)->GetLength(),
                         Shown(m_zone.GetLine(i)->c_str()).c_str());
    CheckStore();
    CheckLengths();
    CheckCheckValues();
    CheckSelection();
    CheckBlocks();
    if (m_zone.m_undoList.size() >= static_cast<std::size_t>(TZ_MAX_UNDO)) m_bBaseValid = false;
}

void CZoneFuzzer::CheckStore() {
    long long sum = 0;
    for (int b = 0; b < m_zone.m_nBlockCount; ++b) {
        const int size = m_zone.m_pBlockSizes[b];
        if (size < 1 || size > m_zone.m_nGranularity)
            Fail("a block of the store is empty or overfull");
        for (int i = 0; i < size; ++i)
            if (!m_zone.m_ppBlocks[b][i]) Fail("a null line in the store");
        sum += size;
    }
    if (m_zone.m_nBlockCount > m_zone.m_nGranularity) Fail("more blocks than the directory holds");
    if (sum != m_zone.m_nLineCount) Fail("the block sizes do not add up to the line count");
    const int n = m_zone.m_nLineCount;
    if (n > 0 && (!m_zone.GetLine(0) || !m_zone.GetLine(n - 1))) Fail("a line in range is missing");
    if (m_zone.GetLine(n)) Fail("a line behind the last one");

    // Only wrap leaves a line without its end inside the text.
    if (!(m_zone.GetStyle() & ZS_PARAGRAPH))
        for (int i = 0; i + 1 < n; ++i)
            if (!m_zone.GetLine(i)->IsEnded())
                Fail("line " + std::to_string(i) + " of " + std::to_string(n) + " is not ended");
    for (int i = 0; i < n; ++i) {
        const CStringEx* pLine = m_zone.GetLine(i);
        const char* p = pLine->c_str();
        const int len = pLine->GetLength();
        if (static_cast<int>(std::strlen(p)) != len) Fail("a 0 byte inside a line");
        for (int k = 0; k + 1 < len; ++k)
            if (p[k] == 13) Fail("a line end inside line " + std::to_string(i));
    }
}

void CZoneFuzzer::CheckLengths() {
    static const WORD kFlags[] = {0,
                                  TF_LF,
                                  TF_CRLF,
                                  TF_WRAPPED_ENDS,
                                  TF_CRLF | TF_WRAPPED_ENDS,
                                  TF_NO_FINAL_END,
                                  TF_LF | TF_NO_FINAL_END,
                                  TF_CRLF | TF_WRAPPED_ENDS | TF_NO_FINAL_END};
    // The length is a buffer size: behind an unended last line it always
    // counts a line end, which GetText writes only behind a line of its own
    // bytes. So it is the length without the final line end, plus one.
    const int n = m_zone.GetLineCount();
    const CStringEx* pLast = n > 0 ? m_zone.GetLine(n - 1) : nullptr;
    auto written = [&](WORD flags, LONG size) {
        std::vector<char> buffer(static_cast<std::size_t>(size) + 3, '\0');
        m_zone.GetText(buffer.data(), size + 2, flags);
        return static_cast<LONG>(std::strlen(buffer.data()));
    };
    for (WORD flags : kFlags) {
        const LONG length = m_zone.GetTextLength(flags);
        const LONG full = written(flags, length);
        LONG expected = full;
        if (pLast && !pLast->IsEnded() && !(flags & TF_NO_FINAL_END))
            expected = written(flags | TF_NO_FINAL_END, length) + ((flags & 3) == TF_CRLF ? 2 : 1);
        if (expected != length || full > length)
            Fail("GetTextLength(" + std::to_string(flags) + ") is " + std::to_string(length) +
                 " but GetText gives " + std::to_string(full));
    }
    if (m_zone.GetMaxLength() > 0) {
        const int running = m_zone.m_nCurrentLength;
        m_zone.RebuildCurrentLength();
        if (running != m_zone.m_nCurrentLength)
            Fail("running length " + std::to_string(running) + ", recount " +
                 std::to_string(m_zone.m_nCurrentLength));
    }
}

// The check values the zone keeps between changes against those read
// afresh: a change that did not drop the kept values shows here.
void CZoneFuzzer::CheckCheckValues() {
    int size = 0, hash = 0, freshSize = 0, freshHash = 0;
    m_zone.GetTextCRCValues(&size, &hash);
    m_zone.ComputeTextCRCValues(&freshSize, &freshHash);
    if (size != freshSize || hash != freshHash) Fail("the kept check values are stale");
}

void CZoneFuzzer::CheckSelection() {
    CTextZone& z = m_zone;
    if (z.m_nSelStartLine > z.m_nSelEndLine) Fail("selection lines out of order");
    if (z.m_nSelStartLine < 0) Fail("selection starts on a negative line");
    // A box set by a host keeps its columns as given, in either order.
    const bool box = z.m_nSelectionMode == 2;
    if (!box && z.m_nSelStartLine == z.m_nSelEndLine && z.m_nSelStartChar > z.m_nSelEndChar)
        Fail("selection characters out of order");
    if (z.m_nSelStartChar < 0 || z.m_nSelEndChar < 0) Fail("a negative selection character");
    if (z.m_nSelEndLine > z.m_nLineCount) Fail("the selection ends past the line behind the text");
    if (box && (z.GetStyle() & ZS_PARAGRAPH)) Fail("box mode under wrap");
}

void CZoneFuzzer::CheckBlocks() {
    // Alternate blocks stay on their line numbers while lines come and go
    // above them, so the lines they hid may stand elsewhere by now.
    if (!m_zone.m_altBlocks.empty()) return;
    for (int i = 0; i < m_zone.m_nLineCount; ++i) {
        if (!(m_zone.GetLine(i)->m_dwBlockFlags & 4)) continue;
        bool covered = false;
        for (const auto* pList : {&m_zone.m_editBlocks, &m_zone.m_altBlocks})
            for (const auto& pBlk : *pList)
                if (pBlk->IsClosed() && i > pBlk->m_nFirstLine &&
                    i < static_cast<long long>(pBlk->m_nFirstLine) + pBlk->m_nLineCount)
                    covered = true;
        if (!covered) Fail("line " + std::to_string(i) + " is hidden outside a closed block");
    }
}

// Undo all the way goes back to the text the history started from, and redo
// all the way comes back to the last text.
void CZoneFuzzer::CheckHistory() {
    m_strLastOp = "undo and redo all";
    m_zone.SetReadOnly(0);
    const std::string last = Text();
    int undone = 0;
    for (; undone < 2 * TZ_MAX_UNDO && m_zone.GetUndoType() != 0; ++undone) {
        m_zone.Undo();
        CheckInvariants();
    }
    if (m_bBaseValid && Text() != m_strBase)
        Fail("undo all differs " + Difference(Text(), m_strBase));
    // As many steps forward as went back: the redo list may have held more.
    for (int i = 0; i < undone; ++i) {
        m_zone.Redo();
        CheckInvariants();
    }
    if (Text() != last) Fail("redo all differs " + Difference(Text(), last));
}
