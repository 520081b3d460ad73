#include <string>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class FindTest : public ZoneTest {
protected:
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
    void Caret(int nLine, int nChar) { Select(nLine, nChar, nLine, nChar); }
    int Forward(const char* psz, int bMatchCase = 1) {
        return m_zone.FindTextFromCurrentPos(psz, 1, bMatchCase);
    }
    int Backward(const char* psz, int bMatchCase = 1) {
        return m_zone.FindTextFromCurrentPos(psz, 0, bMatchCase);
    }
    void ExpectSelection(int l0, int c0, int l1, int c1) {
        EXPECT_EQ(m_zone.m_nSelStartLine, l0);
        EXPECT_EQ(m_zone.m_nSelStartChar, c0);
        EXPECT_EQ(m_zone.m_nSelEndLine, l1);
        EXPECT_EQ(m_zone.m_nSelEndChar, c1);
    }
    std::string Plain() { return Text(TF_CRLF | TF_NO_FINAL_END); }
};

// Notes the undo frame round the replacements of a case change.
class CFrameRecordingZone : public CTestZone {
public:
    void StartRegister(short wType) override {
        m_calls.push_back("start " + std::to_string(wType));
        CTestZone::StartRegister(wType);
    }
    void EndRegister() override {
        m_calls.push_back("end");
        CTestZone::EndRegister();
    }
    int InsertText(const char* psz, int bSelect, int bScroll, int bHorizontal) override {
        m_calls.push_back(std::string("insert ") + psz + (bSelect ? " selected" : ""));
        return CTestZone::InsertText(psz, bSelect, bScroll, bHorizontal);
    }
    std::vector<std::string> m_calls;
};

}  // namespace

TEST_F(FindTest, ForwardFindsOverlappingMatchesAndDoesNotWrap) {
    ASSERT_TRUE(m_zone.SetText("xaaaa\r\naa"));
    Caret(0, 0);
    m_zone.SetSelectionMode(0);
    EXPECT_EQ(Forward("aa"), 1);
    ExpectSelection(0, 1, 0, 3);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    // Each step begins one byte into the match it stands on.
    EXPECT_EQ(Forward("aa"), 1);
    ExpectSelection(0, 2, 0, 4);
    EXPECT_EQ(Forward("aa"), 1);
    ExpectSelection(0, 3, 0, 5);
    EXPECT_EQ(Forward("aa"), 1);
    ExpectSelection(1, 0, 1, 2);
    // Past the last match: the selection collapses to its end, and a search
    // from there finds nothing either, the first line is not looked at again.
    EXPECT_EQ(Forward("aa"), 0);
    ExpectCaret(1, 2);
    EXPECT_EQ(Forward("aa"), 0);
    ExpectCaret(1, 2);
    EXPECT_EQ(Forward(""), 0);
}

TEST_F(FindTest, ForwardBeginsAtTheCaretOrTheSelectionStart) {
    ASSERT_TRUE(m_zone.SetText("abc abc\r\nabc"));
    Caret(0, 2);
    EXPECT_EQ(Forward("abc"), 1);  // not the one the caret stands in
    ExpectSelection(0, 4, 0, 7);
    Caret(0, 5);
    EXPECT_EQ(Forward("abc"), 1);
    ExpectSelection(1, 0, 1, 3);
    // A selection that is not the text: the search takes it in.
    Select(0, 0, 0, 2);
    EXPECT_EQ(Forward("abc"), 1);
    ExpectSelection(0, 0, 0, 3);
    Caret(1, 1);
    EXPECT_EQ(Forward("abc"), 0);
    ExpectCaret(1, 1);
}

TEST_F(FindTest, BackwardStepsBackFromTheSelectionEnd) {
    ASSERT_TRUE(m_zone.SetText("abcabc\r\nxabc"));
    Caret(1, 4);
    EXPECT_EQ(Backward("abc"), 1);
    ExpectSelection(1, 1, 1, 4);
    EXPECT_EQ(Backward("abc"), 1);
    ExpectSelection(0, 3, 0, 6);
    EXPECT_EQ(Backward("abc"), 1);
    ExpectSelection(0, 0, 0, 3);
    // Nothing before: the selection collapses to its start; from the start of
    // the text the search gives up at once.
    EXPECT_EQ(Backward("abc"), 0);
    ExpectCaret(0, 0);
    EXPECT_EQ(Backward("abc"), 0);
    ExpectCaret(0, 0);

    // Text reaching behind the start point is not found.
    Caret(0, 4);
    EXPECT_EQ(Backward("cab"), 0);
    ExpectCaret(0, 4);

    ASSERT_TRUE(m_zone.SetText("aaaa"));
    Caret(0, 4);
    EXPECT_EQ(Backward("aa"), 1);
    ExpectSelection(0, 2, 0, 4);
    EXPECT_EQ(Backward("aa"), 1);  // overlapping
    ExpectSelection(0, 1, 0, 3);
    EXPECT_EQ(Backward("aa"), 1);
    ExpectSelection(0, 0, 0, 2);

    // From the phantom line the search begins at the end of the last line.
    ASSERT_TRUE(m_zone.SetText("ab\r\n"));
    Caret(1, 0);
    EXPECT_EQ(Backward("b"), 1);
    ExpectSelection(0, 1, 0, 2);
}

TEST_F(FindTest, LineEndIsComparedAsAByte) {
    ASSERT_TRUE(m_zone.SetText("ab\r\nab"));
    Caret(0, 0);
    EXPECT_EQ(Forward("b\ra"), 0);  // does not go across the line end
    EXPECT_EQ(Forward("b\r"), 1);
    // The match takes the line end in, so it reaches to the next line.
    ExpectSelection(0, 1, 1, 0);
    EXPECT_EQ(m_zone.SameAsSelected("b\r", 1), 1);
    // The last line has no line end to match.
    EXPECT_EQ(Forward("b\r"), 0);
    ExpectCaret(1, 0);

    Caret(1, 2);
    EXPECT_EQ(Backward("B\r", 0), 1);
    ExpectSelection(0, 1, 1, 0);
    EXPECT_EQ(Backward("b\r"), 0);  // the match itself is not found again
    ExpectCaret(0, 1);
}

TEST_F(FindTest, CaseFoldingCoversWindows1252Letters) {
    ASSERT_TRUE(
        m_zone.SetText("\xC9t\xC9 Stra\xDF"
                       "e \x8A"));
    Caret(0, 0);
    EXPECT_EQ(Forward("\xE9T\xE9", 1), 0);
    EXPECT_EQ(Forward("\xE9T\xE9", 0), 1);
    ExpectSelection(0, 0, 0, 3);
    EXPECT_EQ(Forward("STRA\xDF", 0), 1);
    ExpectSelection(0, 4, 0, 9);
    EXPECT_EQ(Forward("\x9A", 0), 1);  // S caron
    ExpectSelection(0, 11, 0, 12);

    Select(0, 4, 0, 9);
    EXPECT_EQ(m_zone.SameAsSelected("stra\xDF", 0), 1);
    EXPECT_EQ(m_zone.SameAsSelected("stra\xDF", 1), 0);
    EXPECT_EQ(m_zone.SameAsSelected("Stra\xDF", 1), 1);
    EXPECT_EQ(m_zone.SameAsSelected("stra", 0), 0);  // another length
    EXPECT_EQ(m_zone.SameAsSelected("strasse", 0), 0);

    // Over lines, the selected text has one CR for a line end.
    ASSERT_TRUE(m_zone.SetText("ab\r\ncd"));
    Select(0, 1, 1, 1);
    EXPECT_EQ(m_zone.SameAsSelected("b\rc", 1), 1);
    EXPECT_EQ(m_zone.SameAsSelected("b\r\nc", 1), 0);
}

TEST_F(FindTest, CaseChangeOfASelection) {
    ASSERT_TRUE(m_zone.SetText("Hello W\xF6rld\r\nsecond Line"));
    Select(0, 1, 1, 3);
    m_zone.MakeUpperOrLower(0);
    EXPECT_EQ(Plain(), "HELLO W\xD6RLD\r\nSECond Line");
    ExpectSelection(0, 1, 1, 3);
    m_zone.MakeUpperOrLower(1);
    EXPECT_EQ(Plain(), "Hello w\xF6rld\r\nsecond Line");
    ExpectSelection(0, 1, 1, 3);
    EXPECT_EQ(m_zone.GetLineCount(), 2);
}

TEST_F(FindTest, CaseChangeAtTheCaretWalksOn) {
    ASSERT_TRUE(m_zone.SetText("1aB \r\n\xC0"));
    Caret(0, 0);
    m_zone.MakeUpperOrLower(0);  // no case: only the caret moves, nothing is recorded
    ExpectCaret(0, 1);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    m_zone.MakeUpperOrLower(0);
    EXPECT_EQ(Line(0), "1AB \r");
    ExpectCaret(0, 2);
    m_zone.MakeUpperOrLower(0);  // already upper
    ExpectCaret(0, 3);
    // Trailing blanks and the line end are passed over.
    m_zone.MakeUpperOrLower(0);
    ExpectCaret(1, 0);
    m_zone.MakeUpperOrLower(1);
    EXPECT_EQ(Line(1), "\xE0");
    ExpectCaret(1, 1);
    m_zone.MakeUpperOrLower(1);
    ExpectCaret(2, 0);
    m_zone.MakeUpperOrLower(1);  // no line: nothing
    ExpectCaret(2, 0);
    EXPECT_EQ(Plain(), "1AB \r\n\xE0");
}

TEST_F(FindTest, CaseChangeReplacesInsideOneTypingFrame) {
    CFrameRecordingZone zone;
    zone.SetWindow(&m_wnd);
    ASSERT_TRUE(zone.SetText("ab\r\nc"));
    zone.m_calls.clear();
    zone.SetSelection(0, 1, 1, 1, 0, 0);
    zone.MakeUpperOrLower(0);
    zone.SetSelection(1, 1, 0, 0, 0, 0);
    zone.MakeUpperOrLower(1);
    EXPECT_EQ(zone.m_calls, (std::vector<std::string>{"start 1", "insert B\rC selected", "end",
                                                      "start 1", "insert c", "end"}));
}

TEST_F(FindTest, CaseChangeUndoesInOneStep) {
    ASSERT_TRUE(m_zone.SetText("abc\r\ndef"));
    Select(0, 1, 1, 2);
    m_zone.MakeUpperOrLower(0);
    ASSERT_EQ(Plain(), "aBC\r\nDEf");
    EXPECT_EQ(m_zone.GetUndoType(), 1);
    m_zone.Undo();
    EXPECT_EQ(Plain(), "abc\r\ndef");
    EXPECT_EQ(m_zone.GetUndoType(), 0);
}
