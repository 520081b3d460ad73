#include <random>
#include <string>
#include <vector>

#include "KeyZoneTest.h"

namespace {

class UndoTest : public KeyZoneTest {
protected:
    void SelectOffsets(LONG a, LONG b) { m_zone.SetSelection(a, b, 0, 0, TZ_SEL_STREAM, 0); }
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
            Edit(TZ_EDIT_DELETE_SELECTION);
        } else {
            std::string text;
            for (int k = pick(1, 3); k > 0; --k)
                text += pieces[pick(0, 6)];
            Edit(a != b ? TZ_EDIT_REPLACE : TZ_EDIT_PASTE, text.c_str());
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
    for (int n = 0; n < 3; ++n)
        Bookmarks(n) = 1u << n;
    m_zone.SetSelection(0, 2, 2, 3, 0, 0);
    Edit(TZ_EDIT_DELETE_SELECTION);
    EXPECT_EQ(Text(), "alma\r\n");

    m_zone.SetModify(0);
    m_zone.Undo();
    EXPECT_EQ(Text(), "alpha\r\nbeta\r\ngamma\r\n");
    ExpectSelection(0, 2, 2, 3);
    for (int n = 0; n < 3; ++n)
        EXPECT_EQ(Bookmarks(n), 1u << n);
    // Undo marks the text changed even when it is back where it was saved.
    EXPECT_EQ(m_zone.GetModify(), 1);

    m_zone.Redo();
    EXPECT_EQ(Text(), "alma\r\n");
    ExpectCaret(0, 2);
    m_zone.Undo();

    // A selection from a line's start takes that line's bookmarks too.
    m_zone.SetSelection(1, 1, 0, 4, 0, 0);
    Edit(TZ_EDIT_DELETE_SELECTION);
    Bookmarks(1) = 0;
    m_zone.Undo();
    EXPECT_EQ(Bookmarks(1), 2u);
}

TEST_F(UndoTest, UndoingAPasteOverASelectionGivesTheOldTextBackSelected) {
    m_zone.SetText("hello world\r");
    m_zone.SetSelection(0, 0, 6, 11, 0, 0);
    Edit(TZ_EDIT_PASTE, "there\rand here");

    m_zone.Undo();
    EXPECT_EQ(Text(), "hello world\r\n");
    ExpectSelection(0, 6, 0, 11);
    m_zone.Redo();
    EXPECT_EQ(Text(), "hello there\r\nand here\r\n");
    ExpectSelection(0, 6, 1, 8);  // the pasted text comes back selected
}

TEST_F(UndoTest, HistoryKeepsTheLastHundredEditsAndANewEditEndsRedo) {
    for (int i = 0; i < 101; ++i)
        Edit(TZ_EDIT_TYPING, "a");
    EXPECT_EQ(UndoAll(), 100);
    EXPECT_EQ(Text(), "a\r\n");

    m_zone.Redo();
    m_zone.Redo();
    SelectOffsets(3, 3);
    Edit(TZ_EDIT_PASTE, "b");
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    EXPECT_EQ(Text(), "aaab\r\n");

    // An operation without units is filed, and undoing it changes nothing.
    m_zone.StartRegister(TZ_EDIT_DELETE_SELECTION);
    m_zone.EndRegister();
    EXPECT_EQ(m_zone.GetUndoType(), TZ_EDIT_DELETE_SELECTION);
    m_zone.Undo();
    EXPECT_EQ(Text(), "aaab\r\n");
    EXPECT_EQ(m_zone.GetUndoType(), TZ_EDIT_PASTE);

    // New text and new tab settings make the positions meaningless.
    m_zone.SetTabWidth(32);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    EXPECT_EQ(m_zone.GetRedoType(), 0);
    Edit(TZ_EDIT_PASTE, "c");
    m_zone.Undo();
    m_zone.SetText("new");
    EXPECT_EQ(m_zone.GetRedoType(), 0);
}

TEST_F(UndoTest, ReadOnlyZonesDoNotUndo) {
    m_zone.SetText("abc");
    m_zone.SetSelection(0, 0, 1, 2, 0, 0);
    Edit(TZ_EDIT_DELETE_SELECTION);
    Edit(TZ_EDIT_PASTE, "x");
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
    EXPECT_EQ(m_zone.GetRedoType(), TZ_EDIT_PASTE);
    m_zone.Undo();
    EXPECT_EQ(Text(), "abc\r\n");
}

TEST_F(UndoTest, AGroupUndoesInOneStep) {
    const std::string original = "one two\r\none\r\ntwo one\r\n";
    const std::string replaced = "1\r\n1 two\r\n1\r\n1\r\ntwo 1\r\n1\r\n";
    m_zone.SetText("one two\rone\rtwo one\r");
    m_zone.SetModify(1);
    m_zone.StartRegister(TZ_EDIT_REPLACE_ALL);
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
    Edit(TZ_EDIT_DELETE_SELECTION);
    SelectOffsets(10, 10);
    Edit(TZ_EDIT_PASTE, "4\r");
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

TEST_F(UndoTest, AnIndentComesBackAsWholeLinesInStreamModeFromBoxMode) {
    m_zone.SetStyle(ZS_AUTOINDENT);
    m_zone.SetTabWidth(-2);
    m_zone.SetText("abc\rdef\rghi\r");
    m_zone.SetSelection(0, 1, 1, 2, 0, 0);
    Press(VK_TAB);
    ASSERT_EQ(CrText(), "  abc\r  def\rghi\r");
    m_zone.SetSelectionMode(TZ_SEL_BOX);
    m_zone.Undo();
    EXPECT_EQ(CrText(), "abc\rdef\rghi\r");
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_STREAM);
    ExpectSelection(0, 0, 2, 0);
}

TEST_F(UndoTest, AReplayEndsInStreamModeWhereItStartedThereWithNothingSelected) {
    m_zone.SetText("abc\r\ndef\r\n");
    m_zone.SetSelection(0, 1, 1, 1, TZ_SEL_BOX, 0);  // a tall caret
    Type("x");
    EXPECT_EQ(Text(), "axbc\r\ndxef\r\n");
    m_zone.SetSelectionMode(TZ_SEL_STREAM);
    Caret(0, 0);
    m_zone.Undo();
    EXPECT_EQ(Text(), "abc\r\ndef\r\n");
    EXPECT_FALSE(m_zone.TestSelection());
    EXPECT_EQ(m_zone.GetSelectionMode(), TZ_SEL_STREAM);
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
