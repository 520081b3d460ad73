// Script embedded in markup: SCRIPT bodies and server sections. Its grammar
// is one of two fixed ones (CEmbeddedGrammar), chosen by the section, not by
// the flags of the zone. Its state crosses a line in the high half of the
// line's start state, and only a block comment (or a "rem" comment that goes
// on behind " _") can cross: a string open at the end of a line ends there.
#include <cstring>

#include "colour/EmbeddedGrammar.h"
#include "colour/MarkupSearch.h"
#include "colour/TextZoneColor.h"
#include "keywords/KeywordTables.h"

namespace {

constexpr char kTaken = 10;

int SkipBlanks(const std::string& text, int n) {
    while (text[static_cast<size_t>(n)] == ' ' || text[static_cast<size_t>(n)] == '\t')
        ++n;
    return n;
}

void Overwrite(std::string& text, int nFrom, int nTo) {
    if (nTo > nFrom) std::memset(text.data() + nFrom, kTaken, static_cast<size_t>(nTo - nFrom));
}

bool IsString(std::uint32_t nState) {
    return nState == LS_QUOTE || nState == LS_DOUBLE;
}

}  // namespace

unsigned int CTextZoneColor::GetEndEmbeddedType(char* pText, unsigned int nType, int bJava) {
    if (!pText) return LS_PLAIN;
    if (nType == 0) nType = LS_PLAIN;
    const CEmbeddedGrammar grammar(bJava != 0);
    // A VB-like comment is a "rem" line: it goes on only behind " _".
    if (!bJava && nType == LS_COMMENT) return IsVBContinueText(pText) ? LS_COMMENT : LS_PLAIN;
    int pos = 0;
    if (nType != LS_PLAIN) {
        pos = grammar.FindCloser(pText, 0, nType);
        if (pos < 0) return IsString(nType) ? LS_PLAIN : nType;
    } else if (!bJava && StartsWithRem(pText)) {
        return IsVBContinueText(pText) ? LS_COMMENT : LS_PLAIN;
    }
    for (;;) {
        CEmbeddedGrammar::Opener opener;
        if (!grammar.FindOpener(pText, pos, &opener) ||
            opener.nKind == CEmbeddedGrammar::LINE_COMMENT)
            return LS_PLAIN;
        pos = grammar.FindCloser(pText, opener.nAt + opener.nLength, opener.nState);
        if (pos < 0) return IsString(opener.nState) ? LS_PLAIN : LS_COMMENT;
    }
}

void CTextZoneColor::BuildEmbeddedColor(char* pText, unsigned int nType, int bJava, int nOffset) {
    if (!pText) return;
    m_crRunText = m_crText;
    if (nType == 0) nType = LS_PLAIN;
    const CEmbeddedGrammar grammar(bJava != 0);
    const COLORREF crComment = m_crSyntax[SC_COMMENT - 1];
    const COLORREF crString = m_crSyntax[SC_STRING - 1];
    std::string text(pText);
    const int n = static_cast<int>(text.size());

    // What goes on from the line before.
    int from = 0;
    if (nType != LS_PLAIN) {
        AddColorDef(nOffset, nType < LS_COMMENT ? crString : crComment);
        int end = grammar.FindCloser(text.c_str(), 0, nType);
        if (end >= 0) {
            end = SkipBlanks(text, end);
            AddColorDef(nOffset + end, m_crRunText);
        } else {
            end = n;
        }
        Overwrite(text, 0, end);
        from = end;
    }

    if (!grammar.IsJava() && StartsWithRem(text.c_str())) {
        AddColorDef(nOffset, crComment);
        Overwrite(text, 0, n);
        from = n;
    }
    // Tokens: each round takes the earliest opener, so the search goes on
    // from the end of the last token.
    CEmbeddedGrammar::Opener opener;
    while (from < n && grammar.FindOpener(text.c_str(), from, &opener)) {
        const bool bComment = opener.nKind == CEmbeddedGrammar::LINE_COMMENT ||
                              opener.nKind == CEmbeddedGrammar::BLOCK_COMMENT;
        AddColorDef(nOffset + opener.nAt, bComment ? crComment : crString);
        int end = n;
        if (opener.nKind != CEmbeddedGrammar::LINE_COMMENT) {
            const int closed =
                grammar.FindCloser(text.c_str(), opener.nAt + opener.nLength, opener.nState);
            if (closed >= 0) {
                end = SkipBlanks(text, closed);
                CloseColorDef(nOffset + end);
            }
        }
        Overwrite(text, opener.nAt, end);
        from = end;
    }

    // Keywords: one table, the first keyword colour; Java-like words match
    // as they stand, VB-like ones in any case.
    const char* const* tables[1] = {bJava ? szKeyWordJV_1 : szKeyWordVB_1};
    CKeywordIndex& index = m_embeddedIndex[bJava ? 1 : 0];
    if (!index.IsBuiltFor(tables, 1)) index.Build(tables, 1);
    m_keywordTokens.clear();
    index.Take(text, !bJava, KeywordBounds::Sql, m_keywordTokens);
    for (const KeywordToken& token : m_keywordTokens) {
        AddColorDef(nOffset + token.nStart, m_crSyntax[SC_KEYWORD1 - 1]);
        CloseColorDef(nOffset + token.nEnd);
    }
}

void CTextZoneColor::ColorEmbeddedPiece(const std::string& text, int nFrom, int nTo,
                                        std::uint32_t nType, bool bJava) {
    m_embeddedPiece.assign(text, static_cast<size_t>(nFrom), static_cast<size_t>(nTo - nFrom));
    BuildEmbeddedColor(m_embeddedPiece.data(), nType, bJava ? 1 : 0, nFrom);
}
