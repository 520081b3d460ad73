#include <string>
#include <vector>

#include "support/ZoneTest.h"

namespace {

class FindTest : public ZoneTest {
protected:
    void Select(int l0, int c0, int l1, int c1) { m_zone.SetSelection(l0, l1, c0, c1, 0, 0); }
    void Caret(int nLine, int nChar) { Select(nLine, nChar, nLine, nChar); }
    // One search and the selection it leaves; a miss leaves a caret.
    struct Step {
        const char* psz;
        int bForward, bMatchCase, found, l0, c0, l1, c1;
    };
    void Run(std::initializer_list<Step> steps) {
        for (const Step& s : steps) {
            SCOPED_TRACE(testing::Message() << s.psz << " forward " << s.bForward);
            EXPECT_EQ(m_zone.FindTextFromCurrentPos(s.psz, s.bForward, s.bMatchCase), s.found);
            ExpectSelection(s.l0, s.c0, s.l1, s.c1);
        }
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

TEST_F(FindTest, ForwardFindsOverlappingMatchesFromTheSelectionStartAndDoesNotWrap) {
    ASSERT_TRUE(m_zone.SetText("xaaaa\r\naa"));
    Caret(0, 0);
    m_zone.SetSelectionMode(0);
    Run({{"aa", 1, 1, 1, 0, 1, 0, 3}});
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
    Run({{"aa", 1, 1, 1, 0, 2, 0, 4}, {"aa", 1, 1, 1, 0, 3, 0, 5}, {"aa", 1, 1, 1, 1, 0, 1, 2},
         {"aa", 1, 1, 0, 1, 2, 1, 2}, {"aa", 1, 1, 0, 1, 2, 1, 2}, {"", 1, 1, 0, 1, 2, 1, 2}});

    ASSERT_TRUE(m_zone.SetText("abc abc\r\nabc"));
    Caret(0, 2);  // not the match the caret stands in
    Run({{"abc", 1, 1, 1, 0, 4, 0, 7}});
    Select(0, 0, 0, 2);  // a selection that is not the text is taken in
    Run({{"abc", 1, 1, 1, 0, 0, 0, 3}});
}

TEST_F(FindTest, BackwardStepsBackFromTheSelectionEnd) {
    ASSERT_TRUE(m_zone.SetText("abcabc\r\nxabc"));
    Caret(1, 4);
    Run({{"abc", 0, 1, 1, 1, 1, 1, 4}, {"abc", 0, 1, 1, 0, 3, 0, 6}, {"abc", 0, 1, 1, 0, 0, 0, 3},
         {"abc", 0, 1, 0, 0, 0, 0, 0}, {"abc", 0, 1, 0, 0, 0, 0, 0}});
    Caret(0, 4);  // text reaching behind the start point is not found
    Run({{"cab", 0, 1, 0, 0, 4, 0, 4}});

    ASSERT_TRUE(m_zone.SetText("aaaa"));
    Caret(0, 4);
    Run({{"aa", 0, 1, 1, 0, 2, 0, 4}, {"aa", 0, 1, 1, 0, 1, 0, 3}, {"aa", 0, 1, 1, 0, 0, 0, 2}});

    ASSERT_TRUE(m_zone.SetText("ab\r\n"));
    Caret(1, 0);  // from the phantom line: the end of the last line
    Run({{"b", 0, 1, 1, 0, 1, 0, 2}});
}

TEST_F(FindTest, LineEndIsComparedAsAByte) {
    ASSERT_TRUE(m_zone.SetText("ab\r\nab"));
    Caret(0, 0);
    Run({{"b\ra", 1, 1, 0, 0, 0, 0, 0}, {"b\r", 1, 1, 1, 0, 1, 1, 0}});
    EXPECT_EQ(m_zone.SameAsSelected("b\r", 1), 1);
    Run({{"b\r", 1, 1, 0, 1, 0, 1, 0}});  // the last line has no line end
    Caret(1, 2);
    Run({{"B\r", 0, 0, 1, 0, 1, 1, 0}, {"b\r", 0, 1, 0, 0, 1, 0, 1}});
}

TEST_F(FindTest, CaseFoldingCoversWindows1252Letters) {
    ASSERT_TRUE(m_zone.SetText("\xC9t\xC9 Stra\xDF"
                               "e \x8A"));
    Caret(0, 0);
    Run({{"\xE9T\xE9", 1, 1, 0, 0, 0, 0, 0},
         {"\xE9T\xE9", 1, 0, 1, 0, 0, 0, 3},
         {"STRA\xDF", 1, 0, 1, 0, 4, 0, 9},
         {"\x9A", 1, 0, 1, 0, 11, 0, 12}});

    Select(0, 4, 0, 9);
    EXPECT_EQ(m_zone.SameAsSelected("stra\xDF", 0), 1);
    EXPECT_EQ(m_zone.SameAsSelected("stra\xDF", 1), 0);
    EXPECT_EQ(m_zone.SameAsSelected("stra", 0), 0);
    EXPECT_EQ(m_zone.SameAsSelected("strasse", 0), 0);

    ASSERT_TRUE(m_zone.SetText("ab\r\ncd"));
    Select(0, 1, 1, 1);  // one CR for a line end
    EXPECT_EQ(m_zone.SameAsSelected("b\rc", 1), 1);
    EXPECT_EQ(m_zone.SameAsSelected("b\r\nc", 1), 0);
}

TEST_F(FindTest, CaseChangeOfASelectionKeepsItAndUndoesInOneStep) {
    ASSERT_TRUE(m_zone.SetText("Hello W\xF6rld\r\nsecond Line"));
    Select(0, 1, 1, 3);
    m_zone.MakeUpperOrLower(0);
    EXPECT_EQ(Plain(), "HELLO W\xD6RLD\r\nSECond Line");
    ExpectSelection(0, 1, 1, 3);
    m_zone.MakeUpperOrLower(1);
    EXPECT_EQ(Plain(), "Hello w\xF6rld\r\nsecond Line");
    ExpectSelection(0, 1, 1, 3);
    m_zone.Undo();
    EXPECT_EQ(Plain(), "HELLO W\xD6RLD\r\nSECond Line");
}

TEST_F(FindTest, CaseChangeAtTheCaretWalksOn) {
    ASSERT_TRUE(m_zone.SetText("1aB \r\n\xC0"));
    Caret(0, 0);
    m_zone.MakeUpperOrLower(0);  // no case: only the caret moves, nothing is recorded
    ExpectCaret(0, 1);
    EXPECT_EQ(m_zone.GetUndoType(), 0);
    // Upper, already upper, trailing blanks and line end, lower, end, no line.
    const struct { int bLower, line, ch; } steps[] = {{0, 0, 2}, {0, 0, 3}, {0, 1, 0},
                                                       {1, 1, 1}, {1, 2, 0}, {1, 2, 0}};
    for (const auto& s : steps) {
        m_zone.MakeUpperOrLower(s.bLower);
        ExpectCaret(s.line, s.ch);
    }
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

TEST_F(FindTest, AnOverlappingMatchAtTheEndOfTheLastLineIsFound) {
    ASSERT_TRUE(m_zone.SetText("aaa"));
    Caret(0, 0);
    Run({{"aa", 1, 1, 1, 0, 0, 0, 2}, {"aa", 1, 1, 1, 0, 1, 0, 3}, {"aa", 1, 1, 0, 0, 3, 0, 3}});
}
