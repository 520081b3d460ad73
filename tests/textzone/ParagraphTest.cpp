#include <random>
#include <string>
#include <vector>

#include "support/ZoneTest.h"

namespace {

// Paragraphs ten bytes wide: the fixture's font is 8 pixels a byte.
class ParagraphTest : public ZoneTest {
protected:
    void Wrap(DWORD dwExtra = ZS_WORDBREAK, int nWidth = 80) {
        m_zone.SetStyle(ZS_PARAGRAPH | dwExtra);
        m_zone.SetMaxWidth(nWidth);
    }
    std::string Lines() {
        std::string all;
        for (int n = 0; m_zone.GetLine(n); ++n)
            all += "[" + Line(n) + "]";
        return all;
    }
    LONG CaretOffset() {
        LONG start = 0;
        m_zone.GetSelection(&start, nullptr, nullptr, nullptr, 1);
        return start;
    }
};

}  // namespace

TEST_F(ParagraphTest, WithoutTheStyleNothingIsWrapped) {
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc ddd eee\r\n"));
    m_zone.SetMaxWidth(80);
    int changed = 7;
    EXPECT_EQ(m_zone.ComputeParagraph(0, &changed), 0);
    EXPECT_EQ(changed, 0);
    EXPECT_EQ(Lines(), "[aaa bbb ccc ddd eee\r]");
}

TEST_F(ParagraphTest, LongLinesWrapAtWordsAndTheTerminatorTravelsToTheLastPiece) {
    Wrap();
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc ddd eee\r\nx\r\n"));
    EXPECT_EQ(Lines(), "[aaa bbb ][ccc ddd ][eee\r][x\r]");
    // The wrapped lines read back as one line unless asked otherwise.
    EXPECT_EQ(Text(), "aaa bbb ccc ddd eee\r\nx\r\n");
    EXPECT_EQ(Text(TF_CRLF | TF_WRAPPED_ENDS), "aaa bbb \r\nccc ddd \r\neee\r\nx\r\n");
    // Blanks at the end of a line never make it too wide.
    ASSERT_TRUE(m_zone.SetText("aaaaaaaaaa     \r\n"));
    EXPECT_EQ(Lines(), "[aaaaaaaaaa     \r]");
}

TEST_F(ParagraphTest, WordsWiderThanTheParagraphAndByteWrapAreCutBetweenBytes) {
    Wrap();
    // Wider than twice the width: cut by measuring.
    ASSERT_TRUE(m_zone.SetText("abcdefghijklmnopqrstuvwxyz\r\n"));
    EXPECT_EQ(Lines(), "[abcdefghij][klmnopqrst][uvwxyz\r]");
    Wrap(0);
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc\r\n"));
    EXPECT_EQ(Lines(), "[aaa bbb cc][c\r]");
    // A long line of many words, measured once: breaks stay at word starts.
    Wrap();
    ASSERT_TRUE(m_zone.SetText("aa bb cc dd ee ff gg hh ii jj kk\r\n"));
    EXPECT_EQ(Lines(), "[aa bb cc ][dd ee ff ][gg hh ii ][jj kk\r]");
}

TEST_F(ParagraphTest, DeletingPullsWordsUpAndDropsLinesThatEmpty) {
    Wrap();
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc ddd eee\r\n"));
    m_zone.SetSelection(0, 0, 0, 4, 0, 0);
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Lines(), "[bbb ccc ][ddd eee\r]");
    ExpectCaret(0, 0);
    EXPECT_EQ(m_zone.GetLineCount(), 2);

    int changed = 0;
    m_zone.SetSelection(0, 0, 0, 8, 0, 0);
    m_zone.DeleteSelection(1);
    m_zone.SetSelection(0, 0, 0, 0, 0, 0);
    m_zone.ComputeParagraph(0, &changed);
    EXPECT_EQ(Lines(), "[ddd eee\r]");
    EXPECT_EQ(Text(), "ddd eee\r\n");
}

TEST_F(ParagraphTest, TheCaretKeepsItsPlaceInTheTextAcrossARewrap) {
    Wrap();
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc\r\n"));
    EXPECT_EQ(Lines(), "[aaa bbb ][ccc\r]");
    m_zone.SetSelection(4, 4, 0, 0, 1, 0);
    m_zone.InsertText("xx ", 0, 1, 1);
    EXPECT_EQ(Text(), "aaa xx bbb ccc\r\n");
    // "aaa xx bbb " fits: the blank at its end does not count.
    EXPECT_EQ(Lines(), "[aaa xx bbb ][ccc\r]");
    EXPECT_EQ(CaretOffset(), 7);
    ExpectCaret(0, 7);

    // Text inserted to stay selected is selected by offset after the rewrap.
    m_zone.SetSelection(0, 0, 0, 0, 1, 0);
    m_zone.InsertText("zzzz ", 1, 1, 1);
    LONG start = -1, end = -1;
    m_zone.GetSelection(&start, &end, nullptr, nullptr, 1);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 5);
    EXPECT_EQ(Text(), "zzzz aaa xx bbb ccc\r\n");

    // Pulling up carries the caret with its text.
    m_zone.SetSelection(0, 5, 0, 0, 1, 0);
    m_zone.DeleteSelection(1);
    EXPECT_EQ(Text(), "aaa xx bbb ccc\r\n");
    EXPECT_EQ(CaretOffset(), 0);
}

TEST_F(ParagraphTest, ChangingTheWidthRewrapsEverything) {
    Wrap();
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc ddd eee\r\nfff ggg hhh iii\r\n"));
    EXPECT_EQ(m_zone.GetLineCount(), 5);
    m_zone.SetMaxWidth(160);
    EXPECT_EQ(Lines(), "[aaa bbb ccc ddd eee\r][fff ggg hhh iii\r]");
    m_zone.SetMaxWidth(40);
    EXPECT_EQ(Lines(), "[aaa ][bbb ][ccc ][ddd ][eee\r][fff ][ggg ][hhh ][iii\r]");
    EXPECT_EQ(Text(), "aaa bbb ccc ddd eee\r\nfff ggg hhh iii\r\n");
}

TEST_F(ParagraphTest, TextInsertedWhereTheWidthIsZeroKeepsEveryByte) {
    Wrap(ZS_WORDBREAK, 48);
    ASSERT_TRUE(m_zone.SetText("aaaa bb bb cccc\r\n"));
    ASSERT_EQ(Lines(), "[aaaa ][bb bb ][cccc\r]");
    m_zone.SetMaxWidth(0);  // the lines stay as they are wrapped
    m_zone.SetSelection(1, 1, 3, 3, 0, 0);
    m_zone.InsertText("X\rY", 0, 1, 1);
    EXPECT_EQ(Text(), "aaaa bb X\r\nYbb cccc\r\n");
}

TEST_F(ParagraphTest, APieceThatFlowsUpIntoTheLineAboveLeavesTheRestInOrder) {
    // The first piece ends the paragraph on the line above, whose room takes
    // it in: the next pieces go in front of the caret's tail, not behind it.
    Wrap(ZS_WORDBREAK, 48);
    ASSERT_TRUE(m_zone.SetText("aaaa bbbb\r\n"));
    ASSERT_EQ(Lines(), "[aaaa ][bbbb\r]");
    m_zone.SetSelection(1, 1, 0, 0, 0, 0);
    m_zone.StartRegister(6);
    EXPECT_TRUE(m_zone.InsertText("\rX\n\rYZ", 0, 1, 1));
    m_zone.EndRegister();
    EXPECT_EQ(Text(), "aaaa \r\nX\r\n\r\nYZbbbb\r\n");
    ExpectCaret(3, 2);
    m_zone.Undo();
    EXPECT_EQ(Text(), "aaaa bbbb\r\n");
}

TEST_F(ParagraphTest, SwitchingWrapRewrapsOrJoinsAndForgetsTheHistory) {
    ASSERT_TRUE(m_zone.SetText("aaa bbb ccc\r\nx\r\n"));
    m_zone.SetMaxWidth(40);
    m_zone.SetSelection(0, 0, 1, 1, 0, 0);
    m_zone.InsertText("Q", 0, 1, 1);  // recorded as line and character
    m_zone.StartRegister(6);
    m_zone.InsertText("R", 0, 1, 1);
    m_zone.EndRegister();
    ASSERT_NE(m_zone.GetUndoType(), 0);
    m_zone.SetSelection(0, 0, 1, 5, 2, 0);  // a box
    m_zone.SetStyle(ZS_PARAGRAPH | ZS_WORDBREAK);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    EXPECT_EQ(Lines(), "[aQRaa ][bbb ][ccc\r][x\r]");
    m_zone.SetSelection(0, 1, 0, 3, 2, 0);  // the box form is a stream under wrap
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    m_zone.SetStyle(0);
    EXPECT_EQ(Lines(), "[aQRaa bbb ccc\r][x\r]");
}

// Random edits against a plain string: the wrap must never change the text,
// every line must fit, the caret stays at the edit's end, and the last edits
// undo and redo through the same texts.
TEST_F(ParagraphTest, RandomEditsKeepTextWidthsAndCaret) {
    std::mt19937 rng(20261123);
    const char* pieces[] = {"a", "bb", "ccc ", " ", "dddd", "eeeeeeeeeeeeeeeeeee", "-", "\r",
                            "ff gg hh ", "\t", "iii jjj\r", "k", "\rl\r\rm", "n\ro"};
    for (DWORD extra : {DWORD{ZS_WORDBREAK}, DWORD{0}}) {
        Wrap(extra, 96);
        m_zone.SetTabWidth(-2);
        std::string model = "start text of the paragraph\r";
        std::vector<std::string> history;
        ASSERT_TRUE(m_zone.SetText(model.c_str()));
        for (int step = 0; step < 600; ++step) {
            history.push_back(model);
            LONG at = static_cast<LONG>(rng() % (model.size() + 1));
            if (rng() % 3 != 0) {
                std::string piece = pieces[rng() % std::size(pieces)];
                m_zone.SetSelection(at, at, 0, 0, 1, 0);
                m_zone.StartRegister(6);
                m_zone.InsertText(piece.c_str(), 0, 1, 1);
                m_zone.EndRegister();
                model.insert(static_cast<size_t>(at), piece);
                at += static_cast<LONG>(piece.size());
            } else {
                LONG to = std::min<LONG>(at + static_cast<LONG>(rng() % 12),
                                         static_cast<LONG>(model.size()));
                m_zone.SetSelection(at, to, 0, 0, 1, 0);
                m_zone.StartRegister(4);
                m_zone.DeleteSelection(1);
                m_zone.EndRegister();
                model.erase(static_cast<size_t>(at), static_cast<size_t>(to - at));
            }
            ASSERT_EQ(Text(TF_NO_FINAL_END), model) << "step " << step << Lines();
            ASSERT_EQ(CaretOffset(), at) << "step " << step;
            CDC* pDC = m_zone.GetStandardDC();
            for (int n = 0; CStringEx* line = m_zone.GetLine(n); ++n) {
                int visible = line->GetVisibleLength();
                if (visible > 1) {
                    ASSERT_LE(m_zone.GetTextWidth(pDC, line->c_str(), visible), 96)
                        << "step " << step << " line " << n << " " << Line(n);
                }
                // No empty line is left standing inside a paragraph.
                ASSERT_TRUE(line->GetLength() > 0 || n == m_zone.GetLastLineIndex())
                    << "step " << step << " line " << n;
            }
            m_zone.ReleaseStandardDC(pDC);
        }
        // The history works by text offsets, so rewraps in between do not matter.
        for (int k = 0; k < TZ_MAX_UNDO; ++k) {
            m_zone.Undo();
            ASSERT_EQ(Text(TF_NO_FINAL_END), history[history.size() - 1 - k]) << "undo " << k;
        }
        for (int k = TZ_MAX_UNDO - 1; k >= 0; --k)
            m_zone.Redo();
        EXPECT_EQ(Text(TF_NO_FINAL_END), model);
    }
}

TEST_F(ParagraphTest, HyphensBreakWordsAndABytetooWideForTheWidthStaysAlone) {
    Wrap(ZS_WORDBREAK, 64);
    ASSERT_TRUE(m_zone.SetText("well-known fact\r\n"));
    EXPECT_EQ(Lines(), "[well-][known ][fact\r]");
    m_zone.SetMaxWidth(72);  // a word behind a hyphen goes up whole or not at all
    EXPECT_EQ(Lines(), "[well-][known ][fact\r]");
    m_zone.SetMaxWidth(64);
    ASSERT_TRUE(m_zone.SetText("aaaa-bbbbbbbbbbbbbbbbbbbb\r\n"));  // far too wide: cut at once
    EXPECT_EQ(Lines().substr(0, 7), "[aaaa-]");
    ASSERT_TRUE(m_zone.SetText("well-known fact\r\n"));
    // Narrower than one byte: one byte a line, and the wrap comes to an end.
    m_zone.SetMaxWidth(4);
    EXPECT_EQ(Lines(), "[w][e][l][l][-][k][n][o][w][n][ ][f][a][c][t\r]");
    EXPECT_EQ(Text(), "well-known fact\r\n");
}

TEST_F(ParagraphTest, ACaretAtTheCutGoesToTheStartOfTheNextLine) {
    Wrap(ZS_WORDBREAK, 80);
    ASSERT_TRUE(m_zone.SetText("aaaa bbbb\r\n"));
    m_zone.SetSelection(0, 0, 5, 5, 0, 0);  // before "bbbb"
    m_zone.InsertText("cc ", 0, 1, 1);       // "aaaa cc bbbb": the cut falls at the caret
    EXPECT_EQ(Lines(), "[aaaa cc ][bbbb\r]");
    ExpectCaret(1, 0);
    // The same where the overflow goes in front of the paragraph's next line.
    ASSERT_TRUE(m_zone.SetText("aaaa bbbb cccc\r\n"));
    ASSERT_EQ(Lines(), "[aaaa bbbb ][cccc\r]");
    m_zone.SetSelection(0, 0, 5, 5, 0, 0);
    m_zone.InsertText("cc ", 0, 1, 1);
    EXPECT_EQ(Lines(), "[aaaa cc ][bbbb cccc\r]");
    ExpectCaret(1, 0);
}
