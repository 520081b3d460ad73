// The two fixed grammars of script embedded in markup, whatever language the
// zone itself is set to. Java-like: "/*" comments, ' and " strings with
// backslash escapes, "//" line comments. VB-like: " strings, ' line
// comments, "rem" at the start of a piece (found by the caller); no '
// strings. States are those of the line colouring: LS_PLAIN, LS_QUOTE,
// LS_DOUBLE, LS_COMMENT.
#pragma once

#include <cstdint>

class CEmbeddedGrammar {
public:
    enum Kind { BLOCK_COMMENT, QUOTE, DOUBLE, LINE_COMMENT };

    struct Opener {
        int nAt;      // index of the opener
        int nLength;  // its length
        Kind nKind;
        std::uint32_t nState;  // the state it opens (LS_PLAIN for a line comment)
    };

    explicit CEmbeddedGrammar(bool bJava) : m_bJava(bJava) {}

    // The index behind the closer of nState (' for LS_QUOTE, " for
    // LS_DOUBLE, "*/" otherwise) searched from nFrom, or -1. Java-like
    // strings skip a closer escaped by an odd number of backslashes.
    int FindCloser(const char* pText, int nFrom, std::uint32_t nState) const;

    // The nearest opener at or behind nFrom; false when there is none. On a
    // tie "/*" wins over ', then ", then the line comment.
    bool FindOpener(const char* pText, int nFrom, Opener* pOpener) const;

    bool IsJava() const { return m_bJava; }

private:
    bool m_bJava;
};
