#include "textzone/StringEx.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

std::string Bytes(const VESK::String& s) {
    return std::string(s.c_str(), s.GetLength());
}

std::string Up(const char* pszTarget, const char* pszLine, int bByWord) {
    CStringEx target(pszTarget), line(pszLine);
    EXPECT_EQ(line.TransferStart(target, bByWord), 1);
    return Bytes(target) + "|" + Bytes(line);
}

std::string Down(const char* pszLine, const char* pszTarget, int bByWord) {
    CStringEx line(pszLine), target(pszTarget);
    EXPECT_EQ(line.TransferEnd(target, bByWord), 1);
    return Bytes(line) + "|" + Bytes(target);
}

}  // namespace

TEST(StringEx, EndedVisibleAndFirstWordLengths) {
    CStringEx empty;
    CStringEx onlyEnd("\r");
    EXPECT_EQ(empty.IsEnded(), 0);
    EXPECT_EQ(onlyEnd.IsEnded(), 1);
    EXPECT_EQ(CStringEx("ab\rc").IsEnded(), 0);
    EXPECT_EQ(empty.GetVisibleLength(), 0);
    EXPECT_EQ(onlyEnd.GetVisibleLength(), 0);
    EXPECT_EQ(empty.GetFirstWordLength(), 0);
    EXPECT_EQ(onlyEnd.GetFirstWordLength(), 0);

    CStringEx blanks("   ");
    EXPECT_EQ(blanks.GetVisibleLength(), 0);
    EXPECT_EQ(blanks.GetFirstWordLength(), 3);
    EXPECT_EQ(CStringEx(" \t \r").GetVisibleLength(), 0);
    EXPECT_EQ(CStringEx(" \t \r").GetFirstWordLength(), 3);

    EXPECT_EQ(CStringEx("  ab \t\r").GetVisibleLength(), 4);
    EXPECT_EQ(CStringEx("ab-").GetVisibleLength(), 3);  // hyphen is not a blank

    EXPECT_EQ(CStringEx("   abc def").GetFirstWordLength(), 6);
    EXPECT_EQ(CStringEx("\tab-cd").GetFirstWordLength(), 3);
    EXPECT_EQ(CStringEx("-abc").GetFirstWordLength(), 1);
    EXPECT_EQ(CStringEx("abc\r").GetFirstWordLength(), 3);
    EXPECT_EQ(CStringEx("ab\rcd e").GetFirstWordLength(), 5);         // 13 does not stop the word
    EXPECT_EQ(CStringEx("\xE9\xAD\xA0x y").GetFirstWordLength(), 4);  // high bytes are letters
}

TEST(StringEx, InsertAndRemoveAroundTheTerminator) {
    CStringEx s("ab\r");
    s.InsertChar(1, 'X');
    EXPECT_EQ(Bytes(s), "aXb\r");
    s.InsertChar(99, 'Y');
    EXPECT_EQ(Bytes(s), "aXb\rY");

    CStringEx keep("abc\r");
    keep.RemoveChar(0, 100, 1);
    EXPECT_EQ(Bytes(keep), "\r");
    keep.RemoveChar(0, 1, 1);  // only the terminator left to protect
    EXPECT_EQ(Bytes(keep), "\r");

    CStringEx drop("abc\r");
    drop.RemoveChar(0, 100, 0);
    EXPECT_EQ(Bytes(drop), "");

    CStringEx mid("abcdef");
    mid.RemoveChar(-1, 2, 0);
    mid.RemoveChar(6, 2, 0);
    mid.RemoveChar(2, 0, 0);
    EXPECT_EQ(Bytes(mid), "abcdef");
    mid.RemoveChar(1, 2, 1);  // not ended: keep-end changes nothing
    EXPECT_EQ(Bytes(mid), "adef");
    mid.RemoveChar(2, 0x7fffffff, 0);
    EXPECT_EQ(Bytes(mid), "ad");
}

TEST(StringEx, EnsureEndedAndMinimumLength) {
    CStringEx s("ab");
    s.EnsureEnded();
    s.EnsureEnded();
    EXPECT_EQ(Bytes(s), "ab\r");

    CStringEx plain("abc");
    plain.EnsureMinimumLength(6);
    EXPECT_EQ(Bytes(plain), "abc   ");
    plain.EnsureMinimumLength(4);
    EXPECT_EQ(Bytes(plain), "abc   ");

    CStringEx ended("abc\r");
    ended.EnsureMinimumLength(6);
    EXPECT_EQ(Bytes(ended), "abc\r   \r");
    CStringEx full("abc\r");
    full.EnsureMinimumLength(3);
    EXPECT_EQ(Bytes(full), "abc\r");
}

TEST(StringEx, TransferStartByByteAndByWord) {
    // Each result reads "target|rest of the line".
    EXPECT_EQ(Up("x ", "-abc", 1), "x -a|bc");
    EXPECT_EQ(Up("", "  ab cd\r", 1), "  ab |cd\r");
    EXPECT_EQ(Up("ab ", "cd\r", 1), "ab cd|\r");  // last word: the terminator stays
    EXPECT_EQ(Up("", "ab-cd", 1), "ab-|cd");
    EXPECT_EQ(Up("", "   ", 1), "   |");
    EXPECT_EQ(Up("ab", "\r", 0), "ab\r|");
    EXPECT_EQ(Up("ab", "cd", 0), "abc|d");

    CStringEx target("t"), empty;
    EXPECT_EQ(empty.TransferStart(target, 1), 0);
    EXPECT_EQ(empty.TransferStart(target, 0), 0);
    EXPECT_EQ(Bytes(target), "t");
}

TEST(StringEx, TransferEndByByteAndByWord) {
    // Each result reads "rest of the line|target".
    EXPECT_EQ(Down("ab cd\r", "x", 1), "ab |cd\rx");
    EXPECT_EQ(Down("abcd", "", 1), "abc|d");
    EXPECT_EQ(Down("ab  ", "", 1), "ab | ");      // a run of delimiters goes one at a time
    EXPECT_EQ(Down("ab-cd ", "", 1), "ab-|cd ");  // a single one goes with its word
    EXPECT_EQ(Down("ab \r", "", 1), "ab |\r");
    EXPECT_EQ(Down("abc\r", "ef", 0), "abc|\ref");

    CStringEx target("t"), empty;
    EXPECT_EQ(empty.TransferEnd(target, 1), 0);
    EXPECT_EQ(Bytes(target), "t");
}

TEST(StringEx, TransferStartingSpaces) {
    CStringEx target("x");
    CStringEx s(" \t ab ");
    s.TransferStartingSpaces(target);
    EXPECT_EQ(Bytes(target), "x \t ");
    s.TransferStartingSpaces(target);  // no longer starts with a blank
    EXPECT_EQ(Bytes(s), "ab ");
    CStringEx empty;
    empty.TransferStartingSpaces(target);
    EXPECT_EQ(Bytes(target), "x \t ");
}

TEST(StringEx, SpecificInfoRoundTrip) {
    CStringEx s;
    s.m_dwBookmarks = 5;
    std::unique_ptr<char[]> info(s.GetSpecificInfo());
    EXPECT_STREQ(info.get(), "5");

    CStringEx t;
    t.SetSpecificInfo(info.get());
    EXPECT_EQ(t.m_dwBookmarks, 5u);
    s.m_dwBookmarks = 0xFFFF;
    info.reset(s.GetSpecificInfo());
    t.SetSpecificInfo(info.get());
    EXPECT_EQ(t.m_dwBookmarks, 0xFFFFu);
    t.SetSpecificInfo(nullptr);
    EXPECT_EQ(t.m_dwBookmarks, 0u);
}

TEST(StringEx, CopiesCarryBookmarksAndBlockFlags) {
    CStringEx a("abc\r");
    a.m_dwBookmarks = 3;
    a.m_dwBlockFlags = 4;
    CStringEx b(a);
    EXPECT_EQ(Bytes(b), "abc\r");
    EXPECT_EQ(b.m_dwBookmarks, 3u);
    EXPECT_EQ(b.m_dwBlockFlags, 4u);

    // Assigning a fresh line clears what the target had.
    b = CStringEx("x");
    EXPECT_EQ(Bytes(b), "x");
    EXPECT_EQ(b.m_dwBookmarks, 0u);
    EXPECT_EQ(b.m_dwBlockFlags, 0u);
    // So does assigning a text, which makes a fresh line of it first.
    b.m_dwBookmarks = 1;
    b.m_dwBlockFlags = 2;
    b = "plain";
    EXPECT_EQ(Bytes(b), "plain");
    EXPECT_EQ(b.m_dwBookmarks, 0u);
    EXPECT_EQ(b.m_dwBlockFlags, 0u);

    // Through the base, only the text changes.
    static_cast<VESK::String&>(a) = "new";
    EXPECT_EQ(Bytes(a), "new");
    EXPECT_EQ(a.m_dwBookmarks, 3u);
}
