// The keyword pass of the line colouring, fast. The pass as the colouring
// defines it searches every word of every table in the whole line, table by
// table and word by word, and overwrites what a word takes so that later
// words cannot match there. This index finds every place where some word
// occurs in one scan over the line (words bucketed by first byte), then
// replays those places in table and word order, so the words taken and the
// order they are taken in are exactly those of the word-by-word search.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Which bytes may not stand next to a keyword.
enum class KeywordBounds {
    CFamily,    // before: letters, digits, "_", "#"; behind: letters, digits, "_"
    Sql,        // neither side: a keyword boundary character
    SqlNoDash,  // as Sql, and "-" on neither side either (hyphenated COBOL names)
};

// A word taken by the pass: [nStart, nEnd) is the word and the blanks behind
// it; nTable is the position of its table.
struct KeywordToken {
    int nStart;
    int nEnd;
    int nTable;
};

class CKeywordIndex {
public:
    static constexpr int kMaxTables = 6;

    // Indexes the tables (each ended by an empty string; null counts as empty).
    void Build(const char* const* const* ppTables, int nCount);
    bool IsBuiltFor(const char* const* const* ppTables, int nCount) const;

    // Runs the pass over text, which holds byte 10 wherever earlier passes
    // have dealt with it. With bFold words are matched against the text
    // lower-cased, while the text keeps its case. Every word taken is
    // overwritten with byte 10 in text and appended to tokens, in the order
    // the word-by-word search takes them. A word that ends at nKeepEnd is
    // passed over as one with a blocked neighbour is (the keyword case
    // leaves the word the caret ends as typed).
    void Take(std::string& text, bool bFold, KeywordBounds bounds,
              std::vector<KeywordToken>& tokens, int nKeepEnd = -1) const;

    // Whether c may stand before or behind a keyword under the rules.
    static bool BlocksBefore(unsigned char c, KeywordBounds bounds);
    static bool BlocksBehind(unsigned char c, KeywordBounds bounds);

private:
    struct Entry {
        const char* pWord;
        std::uint16_t nLength;
        std::uint16_t nIndex;  // place in its table
        std::uint8_t nTable;
        char cSecond;  // the second byte, 0 for a word of one byte
    };
    struct Hit {
        std::uint64_t nKey;  // index in its table, then position: the replay order
        int nLength;
    };

    const char* const* m_ppTables[kMaxTables] = {};
    int m_nTables = 0;
    std::vector<Entry> m_buckets[256];
    // Scratch for Take, kept to avoid allocating on every line.
    mutable std::vector<Hit> m_hits[kMaxTables];
    mutable std::string m_lowered;
};
