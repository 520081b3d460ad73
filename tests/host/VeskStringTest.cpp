#include "host/VeskString.h"

#include <gtest/gtest.h>

#include <string>

using VESK::String;

namespace {

std::string Bytes(const String& s) {
    return std::string(s.c_str(), s.GetLength());
}

}  // namespace

TEST(VeskString, ConstructAppendAndIndex) {
    EXPECT_TRUE(String(nullptr).IsEmpty());
    EXPECT_EQ(String("abcdef", 3), "abc");
    EXPECT_TRUE(String("abc", -2).IsEmpty());
    EXPECT_EQ(String('x', 4), "xxxx");
    EXPECT_TRUE(String('x', -1).IsEmpty());

    String s = "ab";
    s += 'c';
    s += String("de");
    s += static_cast<const char*>(nullptr);
    EXPECT_EQ(s, "abcde");
    EXPECT_EQ(s[4], 'e');
    EXPECT_EQ(s[5], '\0');
    EXPECT_EQ(s[-1], '\0');
    s.GetBuffer()[1] = 'B';
    EXPECT_STREQ(static_cast<const char*>(s), "aBcde");
    s = nullptr;
    EXPECT_TRUE(s.IsEmpty());
    EXPECT_STREQ(s.c_str(), "");
}

TEST(VeskString, CountsAndPositionsClampToTheString) {
    const String s = "abcdef";
    EXPECT_EQ(s.left(99), "abcdef");
    EXPECT_EQ(s.right(99), "abcdef");
    EXPECT_EQ(s.right(-1), "");
    EXPECT_EQ(s.subString(4), "ef");
    EXPECT_EQ(s.subString(99), "");
    EXPECT_EQ(s.subString(-3), "abcdef");

    EXPECT_EQ(String(s).keepLeft(-1), "");
    EXPECT_EQ(String(s).discardLeft(99), "");
    EXPECT_EQ(String(s).discardRight(2), "abcd");
    EXPECT_EQ(String(s).discardRight(-1), "abcdef");

    EXPECT_EQ(String(s).deleteAt(1, 2), "adef");
    EXPECT_EQ(String(s).deleteAt(4, 99), "abcd");
    EXPECT_EQ(String(s).deleteAt(6, 1), "abcdef");
    EXPECT_EQ(String(s).deleteAt(-2, 2), "cdef");

    EXPECT_EQ(String("abc").insertAt(99, 'x'), "abcx");
    EXPECT_EQ(String("abc").insertAt(-1, 'x'), "xabc");
    EXPECT_EQ(String("abc").insertAt(1, "XY"), "aXYbc");
    EXPECT_EQ(String("abc").insertAt(3, String("XY")), "abcXY");

    String self = "ab";
    self.insertAt(1, self);
    EXPECT_EQ(self, "aabb");

    String r = "abc";
    r.replaceAt(1, 'X');
    r.replaceAt(3, 'Y');
    EXPECT_EQ(r, "aXc");
}

TEST(VeskString, FormatHasNoLengthLimit) {
    String s;
    s.Format("%d-%s", 42, "x");
    EXPECT_EQ(s, "42-x");

    std::string big(5000, 'q');
    s.Format("<%s>", big.c_str());
    EXPECT_EQ(Bytes(s), "<" + big + ">");

    // An argument that is the string itself.
    s = "abc";
    s.Format("%s%s", s.c_str(), s.c_str());
    EXPECT_EQ(s, "abcabc");
}

TEST(VeskString, EmbeddedZeroBytesAreKept) {
    String s;
    s.assign("a\0b\0", 4);
    EXPECT_EQ(s.GetLength(), 4);
    EXPECT_EQ(s[2], 'b');
    EXPECT_EQ(s.c_str()[4], '\0');

    String copy = s;
    EXPECT_EQ(Bytes(copy), std::string("a\0b\0", 4));
    EXPECT_EQ(copy, s);
    EXPECT_NE(s, "a");  // a C string stops at its own 0, the string does not
    EXPECT_EQ(s.right(3).GetLength(), 3);
    s.deleteAt(1, 1);
    EXPECT_EQ(Bytes(s), std::string("ab\0", 3));
}

TEST(VeskString, EqualityComparesBytesBothWays) {
    String a = "abc";
    EXPECT_TRUE(a != String("ab"));
    EXPECT_TRUE("abc" == a);
    EXPECT_TRUE(a != "abcd");
    EXPECT_TRUE("ab" != a);
    EXPECT_FALSE(a == static_cast<const char*>(nullptr));
    EXPECT_TRUE(String() == static_cast<const char*>(nullptr));
}
