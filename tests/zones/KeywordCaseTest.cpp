// SQL keywords changing case while the user works: the four modes on typed,
// pasted and dropped text, what is never touched, undo, and which lines each
// key analyses.
#include <cstring>
#include <string>

#include "ParamZone.h"
#include "platform/headless/HeadlessPlatform.h"

using KeywordCaseTest = ParamTest;

TEST_F(KeywordCaseTest, TypedKeywordsChangeCaseOnceTheCaretLeavesTheWord) {
    const struct {
        unsigned int nMode;
        const char* pszTyped;
        const char* pszResult;
    } cases[] = {
        {KM_UPPER, "select x", "SELECT x"},
        {KM_LOWER, "SeLeCt x", "select x"},
        {KM_CAPITAL, "SELECT x", "Select x"},
        {KM_NONE, "SeLeCt x", "SeLeCt x"},
    };
    for (const auto& c : cases) {
        m_zone.SetKeywordMode(c.nMode, 0);
        Start("", 0, 0);
        Type(std::string(c.pszTyped, 6));
        // Still being typed: the word stays as it is.
        EXPECT_EQ(Line(), std::string(c.pszTyped, 6)) << c.nMode;
        Type(c.pszTyped + 6);
        EXPECT_EQ(Line(), c.pszResult) << c.nMode;
    }
    // Capitalising skips the @@ of a global variable.
    m_zone.SetKeywordMode(KM_CAPITAL, 0);
    Start("", 0, 0);
    Type("x = @@ROWCOUNT;");
    EXPECT_EQ(Line(), "x = @@Rowcount;");
    // Moving the caret away converts the word it ended.
    m_zone.SetKeywordMode(KM_UPPER, 0);
    Start("", 0, 0);
    Type("from");
    EXPECT_EQ(Line(), "from");
    Key(VK_HOME);
    EXPECT_EQ(Line(), "FROM");
}

TEST_F(KeywordCaseTest, PastedAndDroppedTextIsConverted) {
    m_zone.SetKeywordMode(KM_UPPER, 0);
    Start("", 0, 0);
    m_platform.SetClipboardText("select a\r\nfrom b where c = 1");
    m_zone.Paste();
    EXPECT_EQ(Line(0), "SELECT a");
    EXPECT_EQ(Line(1), "FROM b WHERE c = 1");

    // A paste that ends in a keyword leaves it as the caret ends it.
    Start("", 0, 0);
    m_platform.SetClipboardText("select * from");
    m_zone.Paste();
    EXPECT_EQ(Line(), "SELECT * from");

    // A drop selects what it inserts, so the caret ends no word.
    m_zone.SetKeywordMode(KM_CAPITAL, 0);
    Start("x ", 0, 2);
    POINT pt = At(0, 2);
    EXPECT_EQ(m_zone.HandleOleDrop("UPDATE t SET", DROPEFFECT_COPY, &pt), 1);
    EXPECT_EQ(Line(), "x Update t Set");
}

TEST_F(KeywordCaseTest, StringsCommentsIdentifiersAndLongerWordsStayUntouched) {
    m_zone.SetKeywordMode(KM_UPPER, 0);
    Start("", 0, 0);
    m_zone.InsertText(
        "select 'select' \"select\" [select]] select] my_select select#1 @select -- select\r\n"
        "/* select\r\nselect */ select /* from */ from\r\nx",
        0, 1, 1);
    EXPECT_EQ(Line(0),
              "SELECT 'select' \"select\" [select]] select] my_select select#1 @select -- select");
    EXPECT_EQ(Line(1), "/* select");
    EXPECT_EQ(Line(2), "select */ SELECT /* from */ FROM");

    // Data types (table 1) are never changed, in any mode.
    const char* pszType = nullptr;
    for (const char** pp = m_zone.m_keywordLists[1]; *pp && **pp && !pszType; ++pp) {
        bool bElsewhere = false;
        for (int t : {0, 2, 3, 4, 5})
            for (const char** q = m_zone.m_keywordLists[t]; *q && **q; ++q)
                bElsewhere = bElsewhere || std::strcmp(*q, *pp) == 0;
        if (!bElsewhere && std::strchr(*pp, ' ') == nullptr) pszType = *pp;
    }
    ASSERT_NE(pszType, nullptr);
    for (unsigned int nMode : {KM_UPPER, KM_LOWER, KM_CAPITAL}) {
        m_zone.SetKeywordMode(nMode, 0);
        Start("", 0, 0);
        std::string typed = std::string("x ") + pszType + " x";
        typed[2] = static_cast<char>(typed[2] ^ 0x20);  // mixed case
        m_zone.InsertText(typed.c_str(), 0, 1, 1);
        EXPECT_EQ(Line(), typed) << nMode;
    }
}

TEST_F(KeywordCaseTest, ConversionIsNeitherAnEditNorAnUndoStep) {
    // Text from SetText is never converted; a new mode converts it all.
    Start("select a\r\nfrom b", 0, 0);
    EXPECT_EQ(Line(0), "select a");
    EXPECT_FALSE(m_zone.GetModify());
    m_zone.SetKeywordMode(KM_UPPER, 1);
    EXPECT_EQ(Line(0), "SELECT a");
    EXPECT_EQ(Line(1), "FROM b");
    EXPECT_FALSE(m_zone.GetModify());
    EXPECT_EQ(m_zone.GetUndoType(), 0);

    // Refused and zero modes change nothing, not even the mode.
    m_zone.SetKeywordMode(7, 1);
    EXPECT_EQ(m_zone.GetKeywordMode(), KM_UPPER);
    m_zone.SetKeywordMode(KM_NONE, 1);
    EXPECT_EQ(m_zone.GetKeywordMode(), KM_NONE);
    EXPECT_EQ(Line(0), "SELECT a");

    // Undo takes out what was typed, converted or not, and no more.
    m_zone.SetKeywordMode(KM_CAPITAL, 0);
    Start("", 0, 0);
    Type("select x");
    EXPECT_EQ(Line(), "Select x");
    while (m_zone.GetUndoType() != 0)
        m_zone.Undo();
    EXPECT_EQ(Line(), "");
    EXPECT_EQ(m_zone.GetLine(1), nullptr);
}

TEST_F(KeywordCaseTest, AQuoteRescansTheLinesBelowOnlyWhenTheCaretLeavesItsLine) {
    m_zone.SetKeywordMode(KM_UPPER, 0);
    // The quote at the end of line 0 opens a string through line 2.
    Start("x a'\r\nselect 1\r\nselect 2'\r\nselect 3", 0, 4);
    Key(VK_BACK);
    EXPECT_TRUE(m_zone.m_bRescanPending);
    EXPECT_EQ(Line(1), "select 1");
    // Left and right stay on the line and release nothing.
    Key(VK_LEFT);
    Key(VK_RIGHT);
    EXPECT_EQ(Line(1), "select 1");
    Key(VK_DOWN);
    EXPECT_FALSE(m_zone.m_bRescanPending);
    EXPECT_EQ(Line(1), "SELECT 1");
    EXPECT_EQ(Line(2), "SELECT 2'");
    EXPECT_EQ(Line(3), "select 3");  // now inside the string line 2 opens

    // A click releases it too.
    Start("x a'\r\nselect 1", 0, 4);
    Type("'");
    EXPECT_TRUE(m_zone.m_bRescanPending);
    EXPECT_EQ(Line(1), "select 1");
    POINT pt = At(1, 0);
    m_zone.HandleLButtonDown(MK_LBUTTON, &pt);
    m_zone.HandleLButtonUp(MK_LBUTTON, &pt);
    EXPECT_EQ(Line(1), "SELECT 1");
}

TEST_F(KeywordCaseTest, SplittingACommentTokenRescansAtOnce) {
    m_zone.SetKeywordMode(KM_UPPER, 0);
    Start("/* a\r\nselect 1\r\n*/ select 2", 0, 1);
    Type("x");
    EXPECT_EQ(Line(0), "/x* a");
    EXPECT_EQ(Line(1), "SELECT 1");
    EXPECT_EQ(Line(2), "*/ SELECT 2");
    // Typing on a plain line analyses that line only.
    Start("a\r\nselect 1", 0, 1);
    Type(" b");
    EXPECT_EQ(Line(1), "select 1");
}

TEST_F(KeywordCaseTest, AReadOnlyZoneIsNotTypedIntoButAClickStillConverts) {
    m_zone.SetKeywordMode(KM_UPPER, 0);
    Start("select a\r\nb", 0, 8);
    m_zone.SetReadOnly(1);
    Type(" where");
    EXPECT_EQ(Line(0), "select a");
    POINT pt = At(1, 0);
    m_zone.HandleLButtonDown(MK_LBUTTON, &pt);
    m_zone.HandleLButtonUp(MK_LBUTTON, &pt);
    EXPECT_EQ(Line(0), "SELECT a");
    // Outside SQL nothing is converted.
    m_zone.SetReadOnly(0);
    m_zone.SetClientLanguageSyntaxColor(1);
    Start("", 0, 0);
    Type("select x");
    EXPECT_EQ(Line(), "select x");
}
