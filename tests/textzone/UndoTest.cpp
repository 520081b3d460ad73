#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "KeyZoneTest.h"

namespace {

// What a Backspace or Delete unit recorded at a caret holds. A field below
// zero, or a null info, is not checked.
struct UnitCase {
    DWORD dwStyle;
    int nLine, nChar;
    bool bUnit;
    int cChar, nFirstLine, nFirstChar, nLastLine, nLastChar;
    const char* pszInfo;
};

class UndoTest : public KeyZoneTest {
protected:
    void SelectOffsets(LONG a, LONG b) { m_zone.SetSelection(a, b, 0, 0, 1, 0); }
    // An insertion, or without text a deletion, in the order every caller follows.
    void Edit(short wKind, const char* psz = nullptr) {
        m_zone.SetModify(1);
        m_zone.StartRegister(wKind);
        if (psz)
            m_zone.InsertText(psz, 0, 1, 1);
        else
            m_zone.DeleteSelection(1);
        m_zone.EndRegister();
    }
    // Records one unit of the kind on its own, and returns it from the history.
    const CUndoUnit* Record(WORD wKind) {
        m_zone.StartRegister(1);
        m_zone.RegisterUnit(wKind);
        m_zone.EndRegister();
        return m_zone.m_undoList.back()->m_pFirst.get();
    }
    void ExpectUnits(WORD wKind, std::initializer_list<UnitCase> cases) {
        for (const UnitCase& c : cases) {
            SCOPED_TRACE("caret " + std::to_string(c.nLine) + "," + std::to_string(c.nChar));
            m_zone.SetStyle(c.dwStyle);
            Caret(c.nLine, c.nChar);
            const CUndoUnit* pUnit = Record(wKind);
            ASSERT_EQ(pUnit != nullptr, c.bUnit);
            if (!pUnit) continue;
            auto check = [](int actual, int expected) {
                if (expected >= 0) { EXPECT_EQ(actual, expected); }
            };
            check(static_cast<unsigned char>(pUnit->m_cChar), c.cChar);
            check(pUnit->m_nFirstLine, c.nFirstLine);
            check(pUnit->m_nFirstChar, c.nFirstChar);
            check(pUnit->m_nLastLine, c.nLastLine);
            check(pUnit->m_nLastChar, c.nLastChar);
            if (c.pszInfo) { EXPECT_EQ(Info(pUnit), c.pszInfo); }
        }
    }
    static std::string Info(const CUndoUnit* pUnit) {
        if (!pUnit->m_pInfos || pUnit->m_pInfos->empty()) return "<none>";
        const char* psz = (*pUnit->m_pInfos)[0].get();
        return psz ? psz : "<null>";
    }
    // Rewrites the first lines inside one operation holding a line-copy unit,
    // as box edits do; the selection is set last if given.
    void RewriteLines(short wKind, WORD wUnit, std::initializer_list<const char*> lines,
                      int nSelLine = -1, int nSelChar = 0, int nSelMode = 0) {
        m_zone.SetModify(1);
        m_zone.StartRegister(wKind);
        m_zone.RegisterUnit(wUnit);
        int n = 0;
        for (const char* psz : lines)
            m_zone.GetLine(n++)->assign(psz, static_cast<int>(strlen(psz)));
        if (nSelLine >= 0) m_zone.SetSelection(0, nSelLine, nSelChar, nSelChar, nSelMode, 0);
        m_zone.EndRegister();
    }
    int UndoAll() {
        int steps = 0;
        for (; m_zone.GetUndoType() != 0; ++steps)
            m_zone.Undo();
        return steps;
    }
};

}  // namespace

// Undoing random edits one by one must pass through every earlier text, and
// redoing through every later.
TEST_F(UndoTest, RandomEditsUndoAndRedoThroughEveryText) {
    std::mt19937 rng(5150);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
    const char* pieces[] = {"a", "bc", " ", "\t", "\r", "\r\n", "xyz"};

    m_zone.SetText("first line\rsecond\r\rlast");
    std::vector<std::string> texts{Text()};
    for (int step = 0; step < 80; ++step) {
        LONG size = m_zone.GetTextLength(0);
        int a = pick(0, size);
        int b = pick(0, 2) == 0 ? a : pick(0, size);
        if (a > b) std::swap(a, b);
        SelectOffsets(a, b);
        if (a != b && pick(0, 2) == 0) {
            Edit(4);
        } else {
            std::string text;
            for (int k = pick(1, 3); k > 0; --k)
                text += pieces[pick(0, 6)];
            Edit(a != b ? 7 : 6, text.c_str());
        }
        texts.push_back(Text());
    }

    for (size_t i = texts.size() - 1; i-- > 0;) {
        m_zone.Undo();
        ASSERT_EQ(Text(), texts[i]) << "undo to text " << i;
    }
    for (size_t i = 1; i < texts.size(); ++i) {
        m_zone.Redo();
        ASSERT_EQ(Text(), texts[i]) << "redo to text " << i;
    }
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    // What redo recorded undoes like the original.
    EXPECT_EQ(UndoAll(), 80);
    EXPECT_EQ(Text(), texts.front());
}

TEST_F(UndoTest, UndoingADeletionSelectsTheTextAndRestoresBookmarks) {
    m_zone.SetText("alpha\rbeta\rgamma\r");
    Bookmarks(0) = 1;
    Bookmarks(1) = 2;
    Bookmarks(2) = 4;
    m_zone.SetSelection(0, 2, 2, 3, 0, 0);
    Edit(4);
    EXPECT_EQ(Text(), "alma\r\n");

    m_zone.SetModify(0);
    m_zone.Undo();
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\ngamma\r\n");
    ExpectSelection(0, 2, 2, 3);
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(Bookmarks(1), 2u);
    EXPECT_EQ(Bookmarks(2), 4u);
    // Undo marks the text changed even when it is back where it was saved.
    EXPECT_EQ(m_zone.GetModify(), 1);

    m_zone.Redo();
    EXPECT_EQ(Text(), "alma\r\n");
    ExpectCaret(0, 2);
    m_zone.Undo();

    // A selection from a line's start takes that line's bookmarks too.
    m_zone.SetSelection(1, 1, 0, 4, 0, 0);
    Edit(4);
    Bookmarks(1) = 0;
    m_zone.Undo();
    EXPECT_EQ(Bookmarks(1), 2u);
}

TEST_F(UndoTest, UndoingAPasteOverASelectionGivesTheOldTextBackSelected) {
    m_zone.SetText("hello world\r");
    m_zone.SetSelection(0, 0, 6, 11, 0, 0);
    Edit(6, "there\rand here");
    const CUndoOperation& op = *m_zone.m_undoList.back();
    ASSERT_TRUE(op.m_pFirst && op.m_pSecond);
    EXPECT_EQ(op.m_pFirst->m_hText, "world");

    m_zone.Undo();
    EXPECT_EQ(Text(), "hello world\r\n");
    ExpectSelection(0, 6, 0, 11);
    m_zone.Redo();
    EXPECT_EQ(Text(), "hello there\r\nand here\r\n");
    ExpectSelection(0, 6, 1, 8);  // the pasted text comes back selected
}

TEST_F(UndoTest, HistoryKeepsTheLastHundredEditsAndANewEditEndsRedo) {
    for (int i = 0; i < 101; ++i)
        Edit(1, "a");
    EXPECT_EQ(UndoAll(), 100);
    EXPECT_EQ(Text(), "a\r\n");

    m_zone.Redo();
    m_zone.Redo();
    SelectOffsets(3, 3);
    Edit(6, "b");
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    EXPECT_EQ(Text(), "aaab\r\n");

    // An operation without units is filed, and undoing it changes nothing.
    m_zone.StartRegister(4);
    m_zone.EndRegister();
    EXPECT_EQ(m_zone.GetUndoType(), 4);
    m_zone.Undo();
    EXPECT_EQ(Text(), "aaab\r\n");
    EXPECT_EQ(m_zone.GetUndoType(), 6);

    // New text and new tab settings make the positions meaningless.
    m_zone.SetTabWidth(32);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    Edit(6, "c");
    m_zone.Undo();
    m_zone.SetText("new");
    EXPECT_EQ(m_zone.GetRedoType(), 0);
}

TEST_F(UndoTest, ReadOnlyZonesDoNotUndo) {
    m_zone.SetText("abc");
    m_zone.SetSelection(0, 0, 1, 2, 0, 0);
    Edit(4);
    Edit(6, "x");
    m_zone.Undo();
    m_zone.SetReadOnly(1);
    m_zone.SetModify(0);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    m_zone.Undo();
    m_zone.Redo();
    EXPECT_EQ(Text(), "ac\r\n");
    EXPECT_EQ(m_zone.GetModify(), 0);

    m_zone.SetReadOnly(0);
    EXPECT_EQ(m_zone.GetRedoType(), 6);
    m_zone.Undo();
    EXPECT_EQ(Text(), "abc\r\n");
}

TEST_F(UndoTest, AGroupUndoesInOneStep) {
    const std::string original = "one two\r\none\r\ntwo one\r\n";
    const std::string replaced = "1\r\n1 two\r\n1\r\n1\r\ntwo 1\r\n1\r\n";
    m_zone.SetText("one two\rone\rtwo one\r");
    m_zone.SetModify(1);
    m_zone.StartRegister(static_cast<short>(0x8008));
    // Each replacement's place as the earlier ones left the text.
    const int places[][2] = {{0, 0}, {2, 0}, {4, 4}};
    for (const auto& place : places) {
        m_zone.SetSelection(place[0], place[0], place[1], place[1] + 3, 0, 0);
        m_zone.InsertText("1\r1", 0, 1, 1);
    }
    m_zone.EndRegister();
    ASSERT_EQ(Text(), replaced);

    m_zone.Undo();
    EXPECT_EQ(Text(), original);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    m_zone.Redo();
    EXPECT_EQ(Text(), replaced);
    m_zone.Undo();
    EXPECT_EQ(Text(), original);
}

// With wrapped paragraphs units hold text offsets, so a rewrap between the
// edit and its undo does not matter.
TEST_F(UndoTest, ParagraphUnitsHoldOffsetsAndSurviveARewrap) {
    m_zone.SetStyle(ZS_PARAGRAPH);
    m_zone.SetText("one two three\rfour\r");
    SelectOffsets(4, 8);
    Edit(4);
    SelectOffsets(10, 10);
    Edit(6, "4\r");
    ASSERT_EQ(Text(), "one three\r\n4\r\nfour\r\n");

    // Rewrap by hand: the first line now wraps after "one ".
    m_zone.GetLine(0)->assign("one ", 4);
    m_zone.InsertLine(1)->assign("three\r", 6);

    m_zone.Undo();
    EXPECT_EQ(Text(), "one three\r\nfour\r\n");
    m_zone.Undo();
    EXPECT_EQ(Text(), "one two three\r\nfour\r\n");
    LONG start = 0, end = 0;
    m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 8);
    m_zone.Redo();
    m_zone.Redo();
    EXPECT_EQ(Text(), "one three\r\n4\r\nfour\r\n");
}

// Box edits keep copies of whole lines; the box editing itself is stood in
// for by changing the lines directly inside the operation.
TEST_F(UndoTest, BoxDeletionUndoRestoresLinesAndTheBox) {
    m_zone.SetText("abcdef\rghijkl\rmnopqr\r");
    Bookmarks(1) = 8;
    m_zone.SetSelection(0, 1, 2, 4, 2, 0);
    RewriteLines(4, 6, {"abef\r", "ghkl\r"}, 0, 2);
    EXPECT_EQ(m_zone.m_undoList.back()->m_pFirst->m_hText, "abcdef\r\nghijkl\r\n");

    m_zone.Undo();
    EXPECT_EQ(Text(), "abcdef\r\nghijkl\r\nmnopqr\r\n");
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
    ExpectSelection(0, 2, 1, 4);
    EXPECT_EQ(m_zone.GetSelRootChar(), 2);
    EXPECT_EQ(Bookmarks(1), 8u);  // rewritten in place

    m_zone.Redo();
    EXPECT_EQ(Text(), "abef\r\nghkl\r\nmnopqr\r\n");
    ExpectCaret(0, 2);
}

TEST_F(UndoTest, BoxInsertionUndoRestoresLinesAndTheCaret) {
    m_zone.SetText("abcdef\rghijkl\rmnopqr\r");
    m_zone.SetSelection(0, 1, 2, 2, 2, 0);  // a box caret typed into
    RewriteLines(1, 7, {"abXcdef\r", "ghXijkl\r"}, 1, 3, 2);

    m_zone.Undo();
    EXPECT_EQ(Text(), "abcdef\r\nghijkl\r\nmnopqr\r\n");
    ExpectCaret(0, 2);
    m_zone.Redo();
    EXPECT_EQ(Text(), "abXcdef\r\nghXijkl\r\nmnopqr\r\n");
    ExpectSelection(0, 2, 1, 2);

    // A block indent comes back as whole lines selected in stream mode.
    m_zone.SetSelection(0, 1, 0, 0, 2, 0);
    RewriteLines(9, 7, {"\tabXcdef\r", "\tghXijkl\r"});
    m_zone.Undo();
    EXPECT_EQ(Text(), "abXcdef\r\nghXijkl\r\nmnopqr\r\n");
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    ExpectSelection(0, 0, 2, 0);
}

TEST_F(UndoTest, BackspaceUnitsHoldTheByteBeforeTheCaret) {
    m_zone.SetText("abc\r  \rxy\r\rz");
    Bookmarks(1) = 1;
    Bookmarks(2) = 2;
    ExpectUnits(2, {
        {0, 0, 2, true, 'b', 0, 1, 0, 2, "<none>"},
        // At a line's start the line end above goes, with the blank line's bookmarks.
        {0, 2, 0, true, 13, 1, 2, 2, 0, "1"},
        // Below a line with text, the caret line loses its own.
        {0, 1, 0, true, -1, -1, -1, -1, -1, "1"},
        {0, 0, 0, false, -1, -1, -1, -1, -1, nullptr},
        {0, 2, 3, false, -1, -1, -1, -1, -1, nullptr},  // beyond the text
        {ZS_PARAGRAPH, 2, 1, true, -1, 7, 8, -1, -1, nullptr},  // offsets
    });
}

TEST_F(UndoTest, DeleteUnitsHoldTheByteAtTheCaret) {
    m_zone.SetText("abc\rxy\rz");
    Bookmarks(0) = 1;
    Bookmarks(1) = 2;
    ExpectUnits(3, {
        {0, 0, 1, true, 'b', -1, 1, 0, 2, "<none>"},
        // The line end: the next line's start is the last place, and its bookmarks go.
        {0, 0, 3, true, 13, -1, -1, 1, 0, "2"},
        {0, 2, 1, false, -1, -1, -1, -1, -1, nullptr},
        // A free caret beyond an ended line deletes its line end.
        {ZS_FREECARET, 1, 5, true, 13, -1, 5, 2, -1, nullptr},
        {ZS_PARAGRAPH, 1, 1, true, -1, 5, 6, -1, -1, nullptr},
    });
}

namespace {

// Stands in for the keyboard handlers: a key or character goes in at the
// caret as an insertion, and the keys that arrived are noted.
class CTypingZone : public CTestZone {
public:
    void HandleKeyDown(UINT nChar, UINT, UINT) override {
        m_keys += "K" + std::to_string(nChar) + " ";
        Type(static_cast<char>(nChar));
    }
    void HandleChar(UINT nChar, UINT, UINT) override {
        m_keys += "C" + std::string(1, static_cast<char>(nChar)) + " ";
        Type(static_cast<char>(nChar));
    }
    void Type(char c) {
        char text[2] = {c, 0};
        SetModify(1);
        StartRegister(1);
        InsertText(text, 0, 1, 1);
        EndRegister();
    }
    // Backspace or Delete: the unit, then the byte removed without a unit of its own.
    void RemoveByte(bool bBackspace) {
        SetModify(1);
        StartRegister(bBackspace ? 3 : 2);
        RegisterUnit(bBackspace ? 2 : 3);
        const CUndoUnit& unit = *m_pCurrentOperation->m_pFirst;
        std::unique_ptr<CUndoOperation> pOpen = std::move(m_pCurrentOperation);
        SetSelection(unit.m_nFirstLine, unit.m_nLastLine, unit.m_nFirstChar, unit.m_nLastChar, 0,
                     0);
        DeleteSelection(1);
        m_pCurrentOperation = std::move(pOpen);
        EndRegister();
    }
    std::string m_keys;
};

}  // namespace

TEST_F(UndoTest, RemovedBytesAreTypedAgainThroughTheKeyHandlers) {
    CTypingZone zone;
    Attach(zone);
    zone.SetText("ab\rcd\r");
    zone.GetLine(1)->m_dwBookmarks = 2;

    zone.SetSelection(1, 1, 0, 0, 0, 0);
    zone.RemoveByte(true);  // joins the lines
    zone.SetSelection(0, 0, 1, 1, 0, 0);
    zone.RemoveByte(false);  // the "b"
    ASSERT_EQ(zone.GetLine(0)->c_str(), std::string("acd\r"));

    zone.Undo();
    EXPECT_EQ(zone.m_keys, "Cb ");
    EXPECT_EQ(zone.m_nSelStartChar, 1);  // the retyped byte comes back selected
    EXPECT_EQ(zone.m_nSelEndChar, 2);
    zone.Undo();
    EXPECT_EQ(zone.m_keys, "Cb K13 ");
    ASSERT_EQ(zone.GetLineCount(), 2);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
    EXPECT_EQ(zone.GetLine(1)->m_dwBookmarks, 2u);

    // The typing recorded the inverse, which redo replays as deletions.
    zone.Redo();
    zone.Redo();
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("acd\r"));
    EXPECT_EQ(zone.m_keys, "Cb K13 ");
    zone.HideCaret();
}

TEST_F(UndoTest, AReplayEndsInStreamModeWhereItStartedThereWithNothingSelected) {
    m_zone.SetText("abc\r\ndef\r\n");
    m_zone.SetSelection(0, 1, 1, 1, 2, 0);  // a tall caret in box mode
    Type("x");
    EXPECT_EQ(Text(), "axbc\r\ndxef\r\n");
    m_zone.SetSelectionMode(1);
    Caret(0, 0);
    m_zone.Undo();
    EXPECT_EQ(Text(), "abc\r\ndef\r\n");
    EXPECT_FALSE(m_zone.TestSelection());
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
}

TEST_F(UndoTest, ALineEndBroughtBackByUndoGetsNoIndentation) {
    m_zone.SetStyle(ZS_AUTOINDENT);
    m_zone.SetText("    abc\r\n    def\r\n");
    Caret(1, 0);
    Press(VK_BACK);  // joins the lines at the blanks
    EXPECT_EQ(Text(), "    abc    def\r\n");
    m_zone.Undo();
    EXPECT_EQ(Text(), "    abc\r\n    def\r\n");
}
