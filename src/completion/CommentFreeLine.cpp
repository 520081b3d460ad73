// The copy of a line that code reading the text for meaning works on: every
// comment and string is overwritten, column for column, so that a comma or a
// bracket in them cannot be taken for code. Comments (and bracketed names
// when they are not kept) become byte 10, strings byte 13. The search runs
// on a working copy masked as the colouring masks its own, so that nothing
// inside a part found already can open another.
#include <cstring>
#include <string>

#include "colour/TextZoneColor.h"

namespace {

constexpr char kComment = 10;
constexpr char kString = 13;

int SkipBlanks(const std::string& text, int n) {
    const int size = static_cast<int>(text.size());
    while (n < size &&
           (text[static_cast<size_t>(n)] == ' ' || text[static_cast<size_t>(n)] == '\t'))
        ++n;
    return n;
}

void Fill(std::string& text, int nFrom, int nTo, char c) {
    if (nTo > nFrom) std::memset(text.data() + nFrom, c, static_cast<size_t>(nTo - nFrom));
}

}  // namespace

void CTextZoneColor::GetCommentAndStringFreeLine(CStringEx* pOut, int nLine, int bKeepIdentifiers) {
    if (!pOut) return;
    CStringEx* pLine = GetLine(nLine);
    if (!pLine) {
        pOut->Empty();
        return;
    }
    // The bookmarks and block flags travel with the copy.
    *pOut = *pLine;
    std::string work(pLine->c_str(), static_cast<size_t>(pLine->GetLength()));
    std::string out = work;
    const int n = static_cast<int>(work.size());

    // What a part whose state is nState (or whose opener is nKind) leaves
    // in the copy.
    auto maskFor = [&](std::uint32_t nState) -> char {
        if (bKeepIdentifiers && (nState == LS_BRACKET || (nState == LS_DOUBLE && m_bQuotedId)))
            return 0;
        return nState == LS_QUOTE || nState == LS_DOUBLE ? kString : kComment;
    };
    auto mask = [&](int nFrom, int nTo, char c) {
        Fill(work, nFrom, nTo, kComment);
        if (c) Fill(out, nFrom, nTo, c);
    };

    std::uint32_t nState = StartWithWhat(nLine);
    int from = 0;
    if (nState != LS_PLAIN) {
        const char c = maskFor(nState);
        std::uint32_t s = nState;
        // Escapes count here whatever the state, as in the colouring of a
        // line that starts inside a part.
        const int closed = FindCloser(work.c_str(), 0, &s, true);
        const int end = closed >= 0 ? SkipBlanks(work, closed) : n;
        mask(0, end, c);
        from = end;
    }

    while (from < n) {
        const char* t = work.c_str();
        int nLength = 0;
        int nKind = 0;
        std::uint32_t s = LS_PLAIN;
        const int at = FindPartOpener(t, from, &nLength, &nKind, &s);
        if (at < 0) break;
        const std::uint32_t nOpened =
            nKind == OPENER_BLOCK || nKind == OPENER_LINE ? LS_COMMENT : s;
        const char c = maskFor(nOpened);
        int end = n;
        if (nKind != OPENER_LINE) {
            const bool bEscapes = !(s >= LS_COMMENT && !m_bPascalComment);
            const int closed = FindCloser(t, at + nLength, &s, bEscapes);
            if (closed >= 0) end = SkipBlanks(work, closed);
        }
        mask(at, end, c);
        from = end;
    }
    pOut->assign(out.data(), n);
}
