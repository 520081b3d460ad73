#include "textzone/StringEx.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Bytes(const VESK::String& s) {
    return std::string(s.c_str(), s.GetLength());
}

// "target|rest of the line" after moving the line's start up to the target.
std::string Up(const char* pszTarget, const char* pszLine, int bByWord) {
    CStringEx target(pszTarget), line(pszLine);
    EXPECT_EQ(line.TransferStart(target, bByWord), 1);
    return Bytes(target) + "|" + Bytes(line);
}

// "rest of the line|target" after moving the line's end down to the target.
std::string Down(const char* pszLine, const char* pszTarget, int bByWord) {
    CStringEx line(pszLine), target(pszTarget);
    EXPECT_EQ(line.TransferEnd(target, bByWord), 1);
    return Bytes(line) + "|" + Bytes(target);
}

}  // namespace

TEST(StringEx, EndedVisibleAndFirstWordLengths) {
    // A hyphen is no blank; 13 does not stop a word; high bytes are letters.
    const struct {
        const char* psz;
        int ended, visible, firstWord;
    } cases[] = {{"", 0, 0, 0},           {"\r", 1, 0, 0},          {"ab\rcd e", 0, 7, 5},
                 {"   ", 0, 0, 3},        {" \t \r", 1, 0, 3},      {"  ab \t\r", 1, 4, 4},
                 {"ab-", 0, 3, 2},        {"   abc def", 0, 10, 6}, {"\tab-cd", 0, 6, 3},
                 {"-abc", 0, 4, 1},       {"abc\r", 1, 3, 3},       {"\xE9\xAD\xA0x y", 0, 6, 4}};
    for (const auto& c : cases) {
        CStringEx s(c.psz);
        EXPECT_EQ(s.IsEnded(), c.ended) << c.psz;
        EXPECT_EQ(s.GetVisibleLength(), c.visible) << c.psz;
        EXPECT_EQ(s.GetFirstWordLength(), c.firstWord) << c.psz;
    }
}

TEST(StringEx, InsertRemoveAndPadAroundTheTerminator) {
    CStringEx s("ab\r");
    s.InsertChar(1, 'X');
    s.InsertChar(99, 'Y');
    EXPECT_EQ(Bytes(s), "aXb\rY");

    // {text, start, count, keep the end, result}
    const struct {
        const char *psz;
        int nStart, nCount, bKeepEnd;
        const char* result;
    } removals[] = {{"abc\r", 0, 100, 1, "\r"}, {"\r", 0, 1, 1, "\r"},      {"abc\r", 0, 100, 0, ""},
                    {"abcdef", -1, 2, 0, "abcdef"}, {"abcdef", 6, 2, 0, "abcdef"},
                    {"abcdef", 2, 0, 0, "abcdef"},  {"abcdef", 1, 2, 1, "adef"},
                    {"adef", 2, 0x7fffffff, 0, "ad"}};
    for (const auto& r : removals) {
        CStringEx line(r.psz);
        line.RemoveChar(r.nStart, r.nCount, r.bKeepEnd);
        EXPECT_EQ(Bytes(line), r.result) << r.psz << " " << r.nStart << " " << r.nCount;
    }

    CStringEx ab("ab");
    ab.EnsureEnded();
    ab.EnsureEnded();
    EXPECT_EQ(Bytes(ab), "ab\r");
    const struct {
        const char* psz;
        int nLength;
        const char* result;
    } pads[] = {{"abc", 6, "abc   "}, {"abc   ", 4, "abc   "}, {"abc\r", 6, "abc\r   \r"},
                {"abc\r", 3, "abc\r"}};
    for (const auto& p : pads) {
        CStringEx line(p.psz);
        line.EnsureMinimumLength(p.nLength);
        EXPECT_EQ(Bytes(line), p.result) << p.psz << " " << p.nLength;
    }
}

TEST(StringEx, TransfersByByteAndByWord) {
    EXPECT_EQ(Up("x ", "-abc", 1), "x -a|bc");
    EXPECT_EQ(Up("", "  ab cd\r", 1), "  ab |cd\r");
    EXPECT_EQ(Up("ab ", "cd\r", 1), "ab cd|\r");  // last word: the terminator stays
    EXPECT_EQ(Up("", "ab-cd", 1), "ab-|cd");
    EXPECT_EQ(Up("", "   ", 1), "   |");
    EXPECT_EQ(Up("ab", "\r", 0), "ab\r|");
    EXPECT_EQ(Up("ab", "cd", 0), "abc|d");

    EXPECT_EQ(Down("ab cd\r", "x", 1), "ab |cd\rx");
    EXPECT_EQ(Down("abcd", "", 1), "abc|d");
    EXPECT_EQ(Down("ab  ", "", 1), "ab | ");      // a run of delimiters goes one at a time
    EXPECT_EQ(Down("ab-cd ", "", 1), "ab-|cd ");  // a single one goes with its word
    EXPECT_EQ(Down("ab \r", "", 1), "ab |\r");
    EXPECT_EQ(Down("abc\r", "ef", 0), "abc|\ref");

    // An empty line gives nothing.
    CStringEx target("x"), empty;
    EXPECT_EQ(empty.TransferStart(target, 1), 0);
    EXPECT_EQ(empty.TransferStart(target, 0), 0);
    EXPECT_EQ(empty.TransferEnd(target, 1), 0);
    empty.TransferStartingSpaces(target);
    EXPECT_EQ(Bytes(target), "x");

    CStringEx s(" \t ab ");
    s.TransferStartingSpaces(target);
    s.TransferStartingSpaces(target);  // no longer starts with a blank
    EXPECT_EQ(Bytes(target) + "|" + Bytes(s), "x \t |ab ");
}

TEST(StringEx, CopiesCarryBookmarksAndBlockFlags) {
    CStringEx a("abc\r");
    a.m_dwBookmarks = 3;
    a.m_dwBlockFlags = 4;
    CStringEx b(a);
    EXPECT_EQ(Bytes(b), "abc\r");
    EXPECT_EQ(b.m_dwBookmarks, 3u);
    EXPECT_EQ(b.m_dwBlockFlags, 4u);

    // Assigning a fresh line, or a text, clears what the target had.
    b = CStringEx("x");
    EXPECT_EQ(b.m_dwBookmarks | b.m_dwBlockFlags, 0u);
    b.m_dwBookmarks = 1;
    b.m_dwBlockFlags = 2;
    b = "plain";
    EXPECT_EQ(Bytes(b), "plain");
    EXPECT_EQ(b.m_dwBookmarks | b.m_dwBlockFlags, 0u);

    // Through the base, only the text changes.
    static_cast<VESK::String&>(a) = "new";
    EXPECT_EQ(Bytes(a), "new");
    EXPECT_EQ(a.m_dwBookmarks, 3u);
}
