// The string's three places for its bytes (inside the object, its own heap
// block, bytes lent by a caller) against std::string as the model: every
// operation, at sizes around the inline capacity, with sources that alias
// the string itself.
#include "host/VeskString.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <vector>

using VESK::String;

namespace {

std::string Bytes(const String& s) {
    return std::string(s.c_str(), static_cast<size_t>(s.GetLength()));
}

// Opens the lending to the test, as the zone uses it for its lines.
class LentString : public String {
public:
    using String::String;
    using String::UseBytes;
    using String::UsesLentBytes;
};

// The model of one operation: what std::string does with clamped positions.
int Clamp(int n, const std::string& s) {
    return std::max(0, std::min(n, static_cast<int>(s.size())));
}

// Applies operation k to both and checks that they agree.
void ApplyBoth(int k, std::mt19937& rng, String& s, std::string& m) {
    std::uniform_int_distribution<int> pos(-3, static_cast<int>(m.size()) + 3);
    std::uniform_int_distribution<int> len(0, 40);
    const std::string piece(static_cast<size_t>(len(rng)), static_cast<char>('a' + rng() % 26));
    const int a = pos(rng);
    const int b = pos(rng);
    switch (k) {
        case 0:
            s += piece.c_str();
            m += piece;
            break;
        case 1:
            s.insertAt(a, piece.c_str());
            m.insert(static_cast<size_t>(Clamp(a, m)), piece);
            break;
        case 2: {
            s.deleteAt(a, b);
            const int from = Clamp(a, m);
            const int take = std::max(0, std::min(b, static_cast<int>(m.size()) - from));
            m.erase(static_cast<size_t>(from), static_cast<size_t>(take));
            break;
        }
        case 3:
            s.keepLeft(a);
            m.resize(static_cast<size_t>(Clamp(a, m)));
            break;
        case 4:
            s.discardLeft(a);
            m.erase(0, static_cast<size_t>(Clamp(a, m)));
            break;
        case 5:
            s.discardRight(a);
            m.resize(m.size() - static_cast<size_t>(Clamp(a, m)));
            break;
        case 6: {
            // Sources inside the string itself: its own tail appended, inserted, assigned.
            const int from = Clamp(a, m);
            const std::string tail = m.substr(static_cast<size_t>(from));
            const char* own = s.c_str() + from;
            switch (rng() % 3) {
                case 0:
                    s += own;
                    m += tail;
                    break;
                case 1:
                    s.insertAt(b, own);
                    m.insert(static_cast<size_t>(Clamp(b, m)), tail);
                    break;
                default:
                    s = own;
                    m = tail;
                    break;
            }
            break;
        }
        case 7:
            s += s;
            m += m;
            break;
        case 8:
            s.insertAt(a, s);
            m.insert(static_cast<size_t>(Clamp(a, m)), std::string(m));
            break;
        case 9:
            s.assign(piece.data(), static_cast<int>(piece.size()));
            m = piece;
            break;
        case 10:
            s.insertAt(a, 'x');
            m.insert(static_cast<size_t>(Clamp(a, m)), 1, 'x');
            break;
        default:
            s.Format("%s|%d", s.c_str(), a);
            m = m.substr(0, m.find('\0')) + "|" + std::to_string(a);
            break;
    }
    ASSERT_EQ(Bytes(s), m) << "operation " << k;
    ASSERT_EQ(s.c_str()[s.GetLength()], '\0');
}

}  // namespace

TEST(VeskStringStorage, RandomOperationsAgreeWithStdString) {
    std::mt19937 rng(7);
    for (int round = 0; round < 200; ++round) {
        String s;
        std::string m;
        for (int step = 0; step < 60; ++step) {
            ApplyBoth(static_cast<int>(rng() % 12), rng, s, m);
            if (m.size() > 400) {
                s.keepLeft(static_cast<int>(rng() % 20));
                m.resize(static_cast<size_t>(s.GetLength()));
            }
            // Copies and moves at every size keep the value and leave the source usable.
            if (step % 7 == 0) {
                String copy(s);
                String moved(std::move(copy));
                ASSERT_EQ(Bytes(moved), m);
                copy = "reused";
                ASSERT_EQ(Bytes(copy), "reused");
                String target("something else entirely, longer than the inline room");
                target = std::move(moved);
                ASSERT_EQ(Bytes(target), m);
                s = target;
                ASSERT_EQ(Bytes(s), m);
            }
        }
    }
}

TEST(VeskStringStorage, TextAroundTheInlineCapacity) {
    // 15 bytes fit inside the object, 16 do not: grow across and shrink back.
    for (int n = 0; n < 40; ++n) {
        String s('q', n);
        EXPECT_EQ(Bytes(s), std::string(static_cast<size_t>(n), 'q'));
        s += 'r';
        s.deleteAt(0, n);
        EXPECT_EQ(s, "r");
        String copy = s;
        s = String('z', 40 - n);
        EXPECT_EQ(copy, "r");
        EXPECT_EQ(s.GetLength(), 40 - n);
    }
    // Embedded zero bytes are kept and compared.
    const String a("ab\0cd", 5);
    EXPECT_EQ(a.GetLength(), 5);
    EXPECT_NE(a, String("ab\0ce", 5));
    EXPECT_FALSE(a == "ab");
}

TEST(VeskStringStorage, LentBytesAreWrittenInPlaceUntilOutgrown) {
    std::vector<char> lent = {'a', 'b', 'c', 'd', '\0', '#'};
    LentString s;
    s.UseBytes(lent.data(), 4);
    EXPECT_TRUE(s.UsesLentBytes());
    EXPECT_EQ(s.c_str(), lent.data());
    EXPECT_EQ(s, "abcd");

    // Changes that fit stay in the lent bytes.
    s.deleteAt(1, 1);
    s.insertAt(0, 'X');
    EXPECT_EQ(s, "Xacd");
    EXPECT_EQ(std::string(lent.data()), "Xacd");
    s.GetBuffer()[3] = 'D';
    EXPECT_EQ(std::string(lent.data()), "XacD");

    // A copy or a move never shares them.
    String copy(s);
    String moved(std::move(static_cast<String&>(s)));
    EXPECT_NE(copy.c_str(), lent.data());
    EXPECT_NE(moved.c_str(), lent.data());
    EXPECT_EQ(moved, "XacD");
    EXPECT_EQ(s, "XacD");

    // Growing beyond them copies the text out; the lent bytes are left as
    // they were, the byte behind their 0 untouched.
    s += "more than fits";
    EXPECT_FALSE(s.UsesLentBytes());
    EXPECT_EQ(s, "XacDmore than fits");
    EXPECT_EQ(std::string(lent.data()), "XacD");
    EXPECT_EQ(lent[5], '#');

    // Dropped lent bytes are not freed by the string (ASan would see a bad free).
    LentString t;
    t.UseBytes(lent.data(), 2);
    t = "x";
    EXPECT_EQ(t, "x");
}
