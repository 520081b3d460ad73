#include <random>
#include <string>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class UndoTest : public ZoneTest {
protected:
    void SetUp() override {
        ZoneTest::SetUp();
        m_zone.SetText("");
    }
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
    void SelectOffsets(LONG a, LONG b) { m_zone.SetSelection(a, b, 0, 0, 1, 0); }
    void ExpectSelection(int l0, int c0, int l1, int c1) {
        EXPECT_EQ(m_zone.m_nSelStartLine, l0);
        EXPECT_EQ(m_zone.m_nSelStartChar, c0);
        EXPECT_EQ(m_zone.m_nSelEndLine, l1);
        EXPECT_EQ(m_zone.m_nSelEndChar, c1);
    }
    // An edit in the order every caller follows.
    void Insert(short wKind, const char* psz) {
        m_zone.SetModify(1);
        m_zone.StartRegister(wKind);
        m_zone.InsertText(psz, 0, 1, 1);
        m_zone.EndRegister();
    }
    void Delete(short wKind) {
        m_zone.SetModify(1);
        m_zone.StartRegister(wKind);
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
    DWORD& Bookmarks(int nLine) { return m_zone.GetLine(nLine)->m_dwBookmarks; }
    int UndoAll() {
        int steps = 0;
        for (; m_zone.GetUndoType() != 0; ++steps)
            m_zone.Undo();
        return steps;
    }
};

std::string Info(const CUndoUnit* pUnit, size_t i) {
    if (!pUnit->m_pInfos || i >= pUnit->m_pInfos->size()) return "<none>";
    const char* psz = (*pUnit->m_pInfos)[i].get();
    return psz ? psz : "<null>";
}

}  // namespace

// Random edits at random places, each its own operation; undoing them one by
// one must pass through every earlier text, and redoing through every later.
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
            Delete(4);
        } else {
            std::string text;
            for (int k = pick(1, 3); k > 0; --k)
                text += pieces[pick(0, 6)];
            Insert(a != b ? 7 : 6, text.c_str());
        }
        texts.push_back(Text());
    }

    for (size_t i = texts.size() - 1; i-- > 0;) {
        m_zone.Undo();
        ASSERT_EQ(Text(), texts[i]) << "undo to text " << i;
    }
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    for (size_t i = 1; i < texts.size(); ++i) {
        m_zone.Redo();
        ASSERT_EQ(Text(), texts[i]) << "redo to text " << i;
    }
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    // And back once more: what redo recorded undoes like the original.
    EXPECT_EQ(UndoAll(), 80);
    EXPECT_EQ(Text(), texts.front());
}

TEST_F(UndoTest, UndoingADeletionSelectsTheTextAndRestoresBookmarks) {
    m_zone.SetText("alpha\rbeta\rgamma\r");
    Bookmarks(0) = 1;
    Bookmarks(1) = 2;
    Bookmarks(2) = 4;
    // From inside line 0 to inside line 2: lines 1 and 2 lose their start.
    Select(0, 2, 2, 3);
    Delete(4);
    EXPECT_EQ(Text(), "alma\r\n");
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(m_zone.GetUndoType(), 4);

    m_zone.SetModify(0);
    m_zone.Undo();
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\ngamma\r\n");
    ExpectSelection(0, 2, 2, 3);
    EXPECT_EQ(Bookmarks(0), 1u);
    EXPECT_EQ(Bookmarks(1), 2u);
    EXPECT_EQ(Bookmarks(2), 4u);
    // Undo marks the text changed even when it is back where it was saved.
    EXPECT_EQ(m_zone.GetModify(), 1);
    EXPECT_EQ(m_zone.GetRedoType(), 4);

    m_zone.Redo();
    EXPECT_EQ(Text(), "alma\r\n");
    ExpectCaret(0, 2);
    m_zone.Undo();
    EXPECT_EQ(Bookmarks(2), 4u);

    // A selection from a line's start takes that line's bookmarks too.
    Select(1, 0, 1, 4);
    Delete(4);
    Bookmarks(1) = 0;
    m_zone.Undo();
    EXPECT_EQ(Bookmarks(1), 2u);
}

TEST_F(UndoTest, UndoingAPasteOverASelectionGivesTheOldTextBackSelected) {
    m_zone.SetText("hello world\r");
    Select(0, 6, 0, 11);
    Insert(6, "there\rand here");
    EXPECT_EQ(Text(), "hello there\r\nand here\r\n");
    const CUndoOperation& op = *m_zone.m_undoList.back();
    ASSERT_TRUE(op.m_pFirst && op.m_pSecond);
    EXPECT_EQ(op.m_pFirst->m_wType, 1);
    EXPECT_EQ(op.m_pFirst->m_hText, "world");
    EXPECT_EQ(op.m_pSecond->m_wType, 5);

    m_zone.Undo();
    EXPECT_EQ(Text(), "hello world\r\n");
    ExpectSelection(0, 6, 0, 11);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);

    m_zone.Redo();
    EXPECT_EQ(Text(), "hello there\r\nand here\r\n");
    // Redo replays the pasted text as a restored deletion: it comes back selected.
    ExpectSelection(0, 6, 1, 8);
}

TEST_F(UndoTest, HistoryKeepsTheLastHundredEditsAndANewEditEndsRedo) {
    for (int i = 0; i < 101; ++i)
        Insert(1, "a");
    EXPECT_EQ(m_zone.m_undoList.size(), 100u);
    EXPECT_EQ(UndoAll(), 100);
    // The first of the 101 is gone for good.
    EXPECT_EQ(Text(), "a\r\n");
    EXPECT_EQ(m_zone.m_redoList.size(), 100u);

    m_zone.Redo();
    m_zone.Redo();
    EXPECT_EQ(Text(), "aaa\r\n");
    EXPECT_EQ(m_zone.GetRedoType(), 1);
    SelectOffsets(3, 3);
    Insert(6, "b");
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    EXPECT_EQ(m_zone.GetUndoType(), 6);
    m_zone.Redo();
    EXPECT_EQ(Text(), "aaab\r\n");

    // An operation without units is filed all the same, and undoing it changes nothing.
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
    Insert(6, "c");
    m_zone.Undo();
    m_zone.SetText("new");
    EXPECT_EQ(m_zone.GetRedoType(), 0);
}

TEST_F(UndoTest, ReadOnlyZonesDoNotUndo) {
    m_zone.SetText("abc");
    Select(0, 1, 0, 2);
    Delete(4);
    Insert(6, "x");
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
    EXPECT_EQ(m_zone.GetUndoType(), 4);
    EXPECT_EQ(m_zone.GetRedoType(), 6);
    m_zone.Undo();
    EXPECT_EQ(Text(), "abc\r\n");
}

TEST_F(UndoTest, AGroupUndoesInOneStep) {
    m_zone.SetText("one two\rone\rtwo one\r");
    m_zone.SetModify(1);
    m_zone.StartRegister(static_cast<short>(0x8008));
    // Each replacement's place as the earlier ones left the text.
    const int places[][2] = {{0, 0}, {2, 0}, {4, 4}};
    for (const auto& place : places) {
        Select(place[0], place[1], place[0], place[1] + 3);
        m_zone.InsertText("1\r1", 0, 1, 1);
    }
    m_zone.EndRegister();
    const std::string replaced = "1\r\n1 two\r\n1\r\n1\r\ntwo 1\r\n1\r\n";
    EXPECT_EQ(Text(), replaced);
    ASSERT_EQ(m_zone.m_undoList.back()->m_group.size(), 6u);
    EXPECT_EQ(m_zone.GetUndoType(), static_cast<short>(0x8008));

    m_zone.Undo();
    EXPECT_EQ(Text(), "one two\r\none\r\ntwo one\r\n");
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    EXPECT_EQ(m_zone.GetRedoType(), static_cast<short>(0x8008));
    EXPECT_EQ(m_zone.m_redoList.back()->m_group.size(), 6u);

    m_zone.Redo();
    EXPECT_EQ(Text(), replaced);
    m_zone.Undo();
    EXPECT_EQ(Text(), "one two\r\none\r\ntwo one\r\n");
}

// With wrapped paragraphs units hold text offsets, so a rewrap between the
// edit and its undo does not matter.
TEST_F(UndoTest, ParagraphUnitsHoldOffsetsAndSurviveARewrap) {
    m_zone.SetStyle(ZS_PARAGRAPH);
    m_zone.SetText("one two three\rfour\r");
    SelectOffsets(4, 8);
    Delete(4);
    const CUndoUnit& deleted = *m_zone.m_undoList.back()->m_pFirst;
    EXPECT_EQ(deleted.m_nFirstLine, 4);
    EXPECT_EQ(deleted.m_nFirstChar, 8);
    SelectOffsets(10, 10);
    Insert(6, "4\r");
    const CUndoUnit& inserted = *m_zone.m_undoList.back()->m_pFirst;
    EXPECT_EQ(inserted.m_wType, 5);
    EXPECT_EQ(inserted.m_nFirstLine, 10);
    EXPECT_EQ(inserted.m_nFirstChar, 12);
    ASSERT_EQ(Text(), "one three\r\n4\r\nfour\r\n");

    // Rewrap "one three" by hand: the first line now wraps after "one ".
    m_zone.GetLine(0)->assign("one ", 4);
    m_zone.InsertLine(1)->assign("three\r", 6);
    ASSERT_EQ(Text(), "one three\r\n4\r\nfour\r\n");

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

// Box edits keep copies of whole lines. The box editing itself is stood in
// for by changing the lines directly inside the operation.
TEST_F(UndoTest, BoxDeletionUndoRestoresLinesAndTheBox) {
    m_zone.SetText("abcdef\rghijkl\rmnopqr\r");
    Bookmarks(1) = 8;
    m_zone.SetSelection(0, 1, 2, 4, 2, 0);
    m_zone.SetModify(1);
    m_zone.StartRegister(4);
    m_zone.RegisterUnit(6);
    m_zone.GetLine(0)->assign("abef\r", 5);
    m_zone.GetLine(1)->assign("ghkl\r", 5);
    m_zone.SetSelection(0, 0, 2, 2, 0, 0);
    m_zone.EndRegister();
    const CUndoUnit& unit = *m_zone.m_undoList.back()->m_pFirst;
    EXPECT_EQ(unit.m_wType, 6);
    EXPECT_EQ(unit.m_wSelMode, 2);
    EXPECT_EQ(unit.m_hText, "abcdef\r\nghijkl\r\n");

    m_zone.Undo();
    EXPECT_EQ(Text(), "abcdef\r\nghijkl\r\nmnopqr\r\n");
    EXPECT_EQ(m_zone.GetSelectionMode(), 2);
    ExpectSelection(0, 2, 1, 4);
    EXPECT_EQ(m_zone.GetSelRootLine(), 0);
    EXPECT_EQ(m_zone.GetSelRootChar(), 2);
    // The lines are rewritten in place and keep their bookmarks.
    EXPECT_EQ(Bookmarks(1), 8u);
    // The inverse is a copy of the lines as the deletion left them.
    EXPECT_EQ(m_zone.m_redoList.back()->m_pFirst->m_wType, 7);

    m_zone.Redo();
    EXPECT_EQ(Text(), "abef\r\nghkl\r\nmnopqr\r\n");
    ExpectCaret(0, 2);
}

TEST_F(UndoTest, BoxInsertionUndoRestoresLinesAndTheCaret) {
    m_zone.SetText("abcdef\rghijkl\rmnopqr\r");
    // A box caret at column 2 over two lines, typed into.
    m_zone.SetSelection(0, 1, 2, 2, 2, 0);
    m_zone.SetModify(1);
    m_zone.StartRegister(1);
    m_zone.RegisterUnit(7);
    m_zone.GetLine(0)->assign("abXcdef\r", 8);
    m_zone.GetLine(1)->assign("ghXijkl\r", 8);
    m_zone.SetSelection(0, 1, 3, 3, 2, 0);
    m_zone.EndRegister();

    m_zone.Undo();
    EXPECT_EQ(Text(), "abcdef\r\nghijkl\r\nmnopqr\r\n");
    ExpectCaret(0, 2);
    m_zone.Redo();
    EXPECT_EQ(Text(), "abXcdef\r\nghXijkl\r\nmnopqr\r\n");
    ExpectSelection(0, 2, 1, 2);

    // A block indent comes back as whole lines selected in stream mode.
    m_zone.SetSelection(0, 1, 0, 0, 2, 0);
    m_zone.StartRegister(9);
    m_zone.RegisterUnit(7);
    m_zone.GetLine(0)->assign("\tabXcdef\r", 9);
    m_zone.GetLine(1)->assign("\tghXijkl\r", 9);
    m_zone.EndRegister();
    m_zone.Undo();
    EXPECT_EQ(Text(), "abXcdef\r\nghXijkl\r\nmnopqr\r\n");
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    ExpectSelection(0, 0, 2, 0);
}

TEST_F(UndoTest, BackspaceUnitsHoldTheByteBeforeTheCaret) {
    m_zone.SetText("abc\r  \rxy\r\rz");
    Bookmarks(1) = 1;
    Bookmarks(2) = 2;

    Select(0, 2, 0, 2);
    const CUndoUnit* pUnit = Record(2);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_cChar, 'b');
    EXPECT_EQ(pUnit->m_nFirstLine, 0);
    EXPECT_EQ(pUnit->m_nFirstChar, 1);
    EXPECT_EQ(pUnit->m_nLastLine, 0);
    EXPECT_EQ(pUnit->m_nLastChar, 2);
    EXPECT_EQ(Info(pUnit, 0), "<none>");

    // At a line's start the terminator above goes; the blank line above loses its bookmarks.
    Select(2, 0, 2, 0);
    pUnit = Record(2);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_cChar, 13);
    EXPECT_EQ(pUnit->m_nFirstLine, 1);
    EXPECT_EQ(pUnit->m_nFirstChar, 2);
    EXPECT_EQ(pUnit->m_nLastLine, 2);
    EXPECT_EQ(pUnit->m_nLastChar, 0);
    EXPECT_EQ(Info(pUnit, 0), "1");
    // Below a line with text, the caret line loses its.
    Select(1, 0, 1, 0);
    EXPECT_EQ(Info(Record(2), 0), "1");

    // Nothing before the text's start, and nothing beyond a line's text.
    Select(0, 0, 0, 0);
    EXPECT_EQ(Record(2), nullptr);
    Select(2, 3, 2, 3);
    EXPECT_EQ(Record(2), nullptr);

    // With paragraphs the place is the caret's offset, less one.
    m_zone.SetStyle(ZS_PARAGRAPH);
    Select(2, 1, 2, 1);
    pUnit = Record(2);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_nFirstLine, 7);
    EXPECT_EQ(pUnit->m_nFirstChar, 8);
}

TEST_F(UndoTest, DeleteUnitsHoldTheByteAtTheCaret) {
    m_zone.SetText("abc\rxy\rz");
    Bookmarks(0) = 1;
    Bookmarks(1) = 2;

    Select(0, 1, 0, 1);
    const CUndoUnit* pUnit = Record(3);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_cChar, 'b');
    EXPECT_EQ(pUnit->m_nFirstChar, 1);
    EXPECT_EQ(pUnit->m_nLastLine, 0);
    EXPECT_EQ(pUnit->m_nLastChar, 2);
    EXPECT_EQ(Info(pUnit, 0), "<none>");

    // The line end: the next line's start is the last place, and its bookmarks go.
    Select(0, 3, 0, 3);
    pUnit = Record(3);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_cChar, 13);
    EXPECT_EQ(pUnit->m_nLastLine, 1);
    EXPECT_EQ(pUnit->m_nLastChar, 0);
    EXPECT_EQ(Info(pUnit, 0), "2");

    // At the end of the text there is nothing to delete.
    Select(2, 1, 2, 1);
    EXPECT_EQ(Record(3), nullptr);
    // A free caret beyond an ended line deletes its line end.
    m_zone.SetStyle(ZS_FREECARET);
    Select(1, 5, 1, 5);
    pUnit = Record(3);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_cChar, 13);
    EXPECT_EQ(pUnit->m_nFirstChar, 5);
    EXPECT_EQ(pUnit->m_nLastLine, 2);

    m_zone.SetStyle(ZS_PARAGRAPH);
    Select(1, 1, 1, 1);
    pUnit = Record(3);
    ASSERT_NE(pUnit, nullptr);
    EXPECT_EQ(pUnit->m_nFirstLine, 5);
    EXPECT_EQ(pUnit->m_nFirstChar, 6);
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
    zone.SetWindow(&m_wnd);
    RECT client;
    m_wnd.GetClientRect(&client);
    zone.SetRect(&client);
    zone.SetFont(m_font);
    zone.SetText("ab\rcd\r");
    zone.GetLine(0)->m_dwBookmarks = 1;
    zone.GetLine(1)->m_dwBookmarks = 2;

    // Backspace at the start of line 1 joins the lines; line 0 keeps its bookmarks.
    zone.SetSelection(1, 1, 0, 0, 0, 0);
    zone.RemoveByte(true);
    // Delete of "b".
    zone.SetSelection(0, 0, 1, 1, 0, 0);
    zone.RemoveByte(false);
    ASSERT_EQ(zone.GetLine(0)->c_str(), std::string("acd\r"));
    EXPECT_EQ(zone.GetUndoType(), 2);

    zone.Undo();
    EXPECT_EQ(zone.m_keys, "Cb ");
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("abcd\r"));
    // The retyped byte comes back selected.
    EXPECT_EQ(zone.m_nSelStartChar, 1);
    EXPECT_EQ(zone.m_nSelEndChar, 2);

    zone.Undo();
    EXPECT_EQ(zone.m_keys, "Cb K13 ");
    ASSERT_EQ(zone.GetLineCount(), 2);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
    EXPECT_EQ(zone.GetLine(1)->c_str(), std::string("cd\r"));
    EXPECT_EQ(zone.GetLine(1)->m_dwBookmarks, 2u);
    EXPECT_EQ(zone.GetRedoType(), 3);

    // The typing recorded the inverse, which redo replays as deletions.
    zone.Redo();
    zone.Redo();
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("acd\r"));
    EXPECT_EQ(zone.m_keys, "Cb K13 ");
    zone.HideCaret();
}
