// The lines of a loaded text live in their zone's memory: the line objects
// in its pool, their bytes lent from its text memory, all given back at once
// when the store empties. These tests edit such lines beyond their bytes and
// back, undo and redo that, copy lines into other zones and keep copies past
// their zone's end, and mix pooled lines with lines a derived zone makes on
// the heap. The suite runs under AddressSanitizer, which sees any byte read
// after its zone gave it back and any line freed the wrong way.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "KeyZoneTest.h"

namespace {

std::string Bytes(const CStringEx* pLine) {
    return pLine ? std::string(pLine->c_str(), static_cast<size_t>(pLine->GetLength())) : "<none>";
}

// A text of n lines of 0 to 100 bytes, so that some fit the string's
// inline room, most do not, and all are lent at the load.
std::string MakeText(std::mt19937& rng, int nLines) {
    std::string text;
    for (int i = 0; i < nLines; ++i) {
        const int length = static_cast<int>(rng() % 101);
        for (int k = 0; k < length; ++k)
            text += static_cast<char>(k % 9 == 8 ? ' ' : 'a' + (i + k) % 26);
        text += '\n';
    }
    return text;
}

// A line class with a member that owns heap memory, so that a pooled line
// whose destructor did not run shows as a leak.
class CTaggedLine : public CStringEx {
public:
    std::vector<int> m_tags = std::vector<int>(3, 7);
};

// Makes its lines in the zone's pool, or on the heap as a host's zone that
// knows nothing of the pool would: every other line, when bMixed is set.
class CMixedZone : public CTestZone {
public:
    bool m_bMixed = false;
    int m_nMade = 0;

protected:
    CStringEx* CreateLine() override {
        if (m_bMixed && m_nMade++ % 2 == 1) return new CTaggedLine;
        return NewLine<CTaggedLine>();
    }
};

// Line n of a text of LF-ended lines, as the zone stores it (ended by 13).
std::string TextLine(const std::string& text, int n) {
    size_t at = 0;
    for (int i = 0; i < n; ++i)
        at = text.find('\n', at) + 1;
    return text.substr(at, text.find('\n', at) - at) + "\r";
}

class LineMemoryTest : public KeyZoneTest {
protected:
    void Edit(int nType, const std::function<void()>& f) {
        m_zone.StartRegister(nType);
        f();
        m_zone.EndRegister();
    }
    std::string All() { return Text(TF_LF); }
};

}  // namespace

TEST_F(LineMemoryTest, RandomEditsOfALoadedTextUndoAndRedo) {
    std::mt19937 rng(31);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
    const std::string loaded = MakeText(rng, 300);
    ASSERT_TRUE(m_zone.SetText(loaded.c_str()));
    const std::string before = All();
    EXPECT_EQ(before, loaded);

    // Inserts of short and long pieces (a line of the load grows out of its
    // bytes) and deletions (lines shrink inside them, or join), in undo
    // frames, checked against the string model after each step.
    std::string model = before;
    for (int step = 0; step < 90; ++step) {
        const int size = static_cast<int>(model.size());
        int a = pick(0, size);
        int b = pick(0, 2) == 0 ? a : std::min(size, a + pick(0, 150));
        m_zone.SetSelection(a, b, 0, 0, 1, 0);
        if (pick(0, 2) == 0 && a != b) {
            Edit(4, [&] { m_zone.DeleteSelection(0); });
            model.erase(static_cast<size_t>(a), static_cast<size_t>(b - a));
        } else {
            std::string piece(static_cast<size_t>(pick(1, 120)),
                              static_cast<char>('A' + step % 26));
            if (pick(0, 3) == 0) piece[piece.size() / 2] = '\n';
            Edit(6, [&] { m_zone.InsertText(piece.c_str(), 0, 1, 1); });
            model.replace(static_cast<size_t>(a), static_cast<size_t>(b - a), piece);
        }
        ASSERT_EQ(Text(TF_LF | TF_NO_FINAL_END), model) << "step " << step;
    }
    const std::string after = All();
    for (int round = 0; round < 2; ++round) {
        int steps = 0;
        for (; m_zone.GetUndoType() != 0 && steps < 200; ++steps)
            m_zone.Undo();
        ASSERT_EQ(steps, 90);
        EXPECT_EQ(All(), before) << "round " << round;
        for (int i = 0; i < steps; ++i)
            m_zone.Redo();
        EXPECT_EQ(All(), after) << "round " << round;
    }
}

TEST_F(LineMemoryTest, TypingOutOfTheLentBytesAndBack) {
    ASSERT_TRUE(m_zone.SetText("short\nexactly sixteen!\nthe last line of the text\n"));
    // Each line grows past the bytes it was lent, shrinks back below them and
    // grows again; the other lines keep theirs.
    for (int line = 0; line < 3; ++line) {
        const std::string original = Bytes(m_zone.GetLine(line));
        const int end = m_zone.GetLine(line)->GetLength() - 1;
        Caret(line, end);
        Type(std::string(40, 'x'));
        EXPECT_EQ(Bytes(m_zone.GetLine(line)),
                  original.substr(0, end) + std::string(40, 'x') + "\r");
        Press(VK_BACK, kNone, 40 + end);
        EXPECT_EQ(Bytes(m_zone.GetLine(line)), "\r");
        Type("again");
        EXPECT_EQ(Bytes(m_zone.GetLine(line)), "again\r");
        // Other lines and the zone's own view of the lengths stay right.
        EXPECT_EQ(m_zone.GetLineCount(), 3);
    }
    EXPECT_EQ(All(), "again\nagain\nagain\n");
    EXPECT_EQ(m_zone.GetMaxLineWidth(0, 2), 5 * 8);
}

TEST_F(LineMemoryTest, CopiesOutliveTheZoneTheyCameFrom) {
    auto source = std::make_unique<CTestZone>();
    Attach(*source);
    ASSERT_TRUE(
        source->SetText("alpha beta gamma delta\nz\nthe third line, long enough to need a heap\n"));
    ASSERT_TRUE(m_zone.SetText("a line of the second zone that is long\nb\n"));

    // Line to line between zones: into lent bytes that hold it, into lent
    // bytes that do not, a copy on the stack, and the undo's copies of both.
    CStringEx kept(*source->GetLine(2));
    m_zone.SetSelection(0, 0, 0, 0, 0, 0);
    Edit(6, [&] { m_zone.InsertText(source->GetLine(0)->c_str(), 0, 1, 1); });
    *m_zone.GetLine(1) = *source->GetLine(1);
    *m_zone.GetLine(2) = *source->GetLine(2);
    std::string copied(256, '\0');
    source->GetPartOfText(copied.data(), static_cast<LONG>(copied.size()), 0, 2, 0, 10, 1, TF_LF);
    copied.resize(std::strlen(copied.c_str()));

    source->HideCaret();
    source.reset();  // gives back every byte its lines had

    EXPECT_EQ(Bytes(&kept), "the third line, long enough to need a heap\r");
    EXPECT_EQ(copied, "alpha beta gamma delta\nz\nthe third ");
    EXPECT_EQ(All(), "alpha beta gamma delta\nz\nthe third line, long enough to need a heap\n");
    m_zone.Undo();
    EXPECT_EQ(All(), "z\nthe third line, long enough to need a heap\n");
    m_zone.Redo();
    EXPECT_EQ(All(), "alpha beta gamma delta\nz\nthe third line, long enough to need a heap\n");
}

TEST_F(LineMemoryTest, LinesAtTheLengthLimitLoadAsAnInsertionMakesThem) {
    // A load and an insertion into a store that already has a line cut
    // over-long lines the same way; the load's lines hold lent bytes.
    const std::string text = std::string(TZ_MAX_LINE_LENGTH - 1, 'a') + "\n" +
                             std::string(TZ_MAX_LINE_LENGTH, 'b') + "\n" +
                             std::string(TZ_MAX_LINE_LENGTH + 7000, 'c') + "\nend\n";
    ASSERT_TRUE(m_zone.SetText(text.c_str()));
    CTestZone inserted;
    Attach(inserted);
    ASSERT_TRUE(inserted.SetText("\n"));
    inserted.SetSelection(0, 0, 0, 0, 0, 0);
    ASSERT_EQ(inserted.InsertText(text.c_str(), 0, 1, 1), 1);
    ASSERT_EQ(inserted.GetLineCount(), m_zone.GetLineCount() + 1);
    for (int i = 0; i < m_zone.GetLineCount(); ++i)
        EXPECT_EQ(Bytes(m_zone.GetLine(i)), Bytes(inserted.GetLine(i))) << "line " << i;
    EXPECT_EQ(m_zone.GetLine(0)->GetLength(), TZ_MAX_LINE_LENGTH);

    // A long stretch of a long line deleted and put back by undo and redo.
    const std::string loaded = All();
    EXPECT_EQ(Bytes(m_zone.GetLine(2)), "b\r");
    m_zone.SetSelection(3, 3, 10, 30010, 0, 0);
    Edit(4, [&] { m_zone.DeleteSelection(0); });
    EXPECT_EQ(m_zone.GetLine(3)->GetLength(), TZ_MAX_LINE_LENGTH - 30000);
    const std::string cut = All();
    m_zone.Undo();
    EXPECT_EQ(All(), loaded);
    m_zone.Redo();
    EXPECT_EQ(All(), cut);
    inserted.HideCaret();
}

TEST_F(LineMemoryTest, PooledAndHeapLinesOfOneZoneGoTheirOwnWay) {
    for (bool mixed : {false, true}) {
        CMixedZone zone;
        zone.m_bMixed = mixed;
        Attach(zone);
        std::mt19937 rng(5);
        const std::string text = MakeText(rng, 500);
        ASSERT_TRUE(zone.SetText(text.c_str()));
        EXPECT_EQ(zone.GetLineCount(), 500);
        EXPECT_EQ(zone.m_linePool.GetLineSize(), sizeof(CTaggedLine));
        // Lines go and come back in the middle (freed objects are reused),
        // then every line goes: the store is empty and so is the pool.
        zone.RemoveLines(100, 200);
        for (int i = 0; i < 150; ++i)
            ASSERT_NE(zone.InsertLine(100 + i), nullptr);
        EXPECT_EQ(zone.GetLineCount(), 450);
        EXPECT_EQ(Bytes(zone.GetLine(99)) + "|" + Bytes(zone.GetLine(100)) + "|" +
                      Bytes(zone.GetLine(250)),
                  TextLine(text, 99) + "|" + "|" + TextLine(text, 300));
        zone.RemoveLines(0, zone.GetLineCount());
        EXPECT_EQ(zone.GetLineCount(), 0);
        EXPECT_EQ(zone.m_linePool.GetBlockCount(), 0u);
        // A second load into the emptied store reads back as it went in.
        ASSERT_TRUE(zone.SetText(text.c_str()));
        std::string out(text.size() + 8, '\0');
        zone.GetText(out.data(), static_cast<LONG>(out.size()), TF_LF);
        EXPECT_EQ(std::string(out.c_str()), text) << (mixed ? "mixed" : "pooled");
        zone.HideCaret();
    }
}
