// Word completion driven by the keys, as a user meets it: Ctrl+Space on a
// coloured zone in a headless window, with the pick list answered by the
// test.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "completion/CompletionList.h"
#include "host/Collator.h"
#include "platform/Caret.h"
#include "support/ZoneWindow.h"

namespace {

constexpr unsigned int kTransactSql = 14;

// A zone whose host adds candidates of its own, as a derived class may.
class CExtraZone : public CTextZoneColor {
public:
    std::vector<std::string> extra;
    std::vector<std::pair<std::string, int>> asked;  // prefix and mode of each call

    void AddExtraCandidateKeyword(const char* pPrefix, int nMode) override {
        asked.emplace_back(pPrefix, nMode);
        const std::string prefix = pPrefix;
        for (const std::string& w : extra)
            if (_strnicmp(w.c_str(), pPrefix, prefix.size()) == 0 && w.size() > prefix.size())
                m_candidates.emplace_back(w.c_str());
    }
};

class WordCompletionTest : public ZoneWindowTest<CExtraZone> {
protected:
    void SetUp() override {
        ZoneWindowTest::SetUp();
        m_zone.SetSQLSyntaxColor(kTransactSql);
        m_zone.SetWordCompletion(3);
        m_wnd.SetFocus();
    }

    // The text with the caret at its end (or at nCaret).
    void Type(const char* pszText, int nCaret = -1) {
        m_zone.SetText(pszText);
        const int n = nCaret < 0 ? static_cast<int>(std::string(pszText).size()) : nCaret;
        m_zone.SetSelection(0, 0, n, n, 0, 1);
        // The keys that typed it would have ended any cycle.
        m_zone.ResetWordCompletion();
    }

    // Ctrl+Space as the keyboard delivers it: the key, then its character.
    void CtrlSpace(int nCtrl = VK_LCONTROL, bool bShift = false) {
        m_platform.SetKeyState(VK_CONTROL, true);
        m_platform.SetKeyState(nCtrl, true);
        m_platform.SetKeyState(VK_SHIFT, bShift);
        m_platform.SetKeyState(VK_SPACE, true);
        m_zone.HandleKeyDown(VK_SPACE, 1, 0);
        m_zone.HandleChar(' ', 1, 0);
        m_platform.SetKeyState(VK_SPACE, false);
        m_platform.SetKeyState(VK_SHIFT, false);
        m_platform.SetKeyState(nCtrl, false);
        m_platform.SetKeyState(VK_CONTROL, false);
    }

    std::string Line(int n = 0) {
        CStringEx* p = m_zone.GetLine(n);
        return p ? std::string(p->c_str(), p->GetLength() - p->IsEnded()) : "<none>";
    }
};

TEST_F(WordCompletionTest, TheCandidateTakesTheCaseOfThePrefixAndEndsInOneBlank) {
    const char* cases[][2] = {{"SEL", "SELECT "}, {"Sel", "Select "}, {"sel", "select "}};
    for (const auto& c : cases) {
        Type(c[0]);
        CtrlSpace();
        EXPECT_EQ(Line(), c[1]) << c[0];
        EXPECT_EQ(m_zone.m_nSelStartChar, static_cast<int>(std::string(c[1]).size()));
        m_zone.ResetWordCompletion();
    }
    // Mode 4 keeps the table's own case.
    m_zone.SetWordCompletion(4);
    Type("SEL");
    CtrlSpace();
    EXPECT_EQ(Line(), "select ");
    // Variables start with @ and temporary tables with #: word bytes.
    Type("x = @@er");
    CtrlSpace();
    EXPECT_EQ(Line(), "x = @@error ");
    EXPECT_EQ(m_platform.GetBeepCount(), 0);
}

TEST_F(WordCompletionTest, CtrlSpaceCyclesThroughTheCandidatesAndWraps) {
    m_zone.extra = {"abd", "Abc", "zz"};
    Type("x ab");
    // Right Ctrl: the host's candidates alone, sorted without regard to
    // case, the prefix itself not among them, and no case rule.
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "x Abc ");
    ASSERT_EQ(m_zone.asked.size(), 1u);
    EXPECT_EQ(m_zone.asked[0], std::make_pair(std::string("ab"), 1));
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "x abd ");
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "x Abc ");
    CtrlSpace(VK_RCONTROL, true);
    EXPECT_EQ(Line(), "x abd ");
    CtrlSpace(VK_RCONTROL, true);
    EXPECT_EQ(Line(), "x Abc ");
    EXPECT_EQ(m_zone.asked.size(), 1u) << "a running cycle looks nothing up again";

    // The whole cycle is one undo step of kind 11 back to the prefix.
    EXPECT_EQ(m_zone.GetUndoType(), 11);
    m_zone.Undo();
    EXPECT_EQ(Line(), "x ab");
    EXPECT_EQ(m_zone.GetUndoType(), 0);
}

TEST_F(WordCompletionTest, ShiftBeforeTheFirstCandidateStartsFromTheLast) {
    m_zone.extra = {"abc", "abd", "abe"};
    Type("ab");
    CtrlSpace(VK_RCONTROL, true);
    EXPECT_EQ(Line(), "abe ");
    CtrlSpace(VK_RCONTROL, true);
    EXPECT_EQ(Line(), "abd ");
}

TEST_F(WordCompletionTest, AnythingElseEndsTheCycle) {
    m_zone.extra = {"abc", "abd", "abcdef", "abcdeg"};
    // An undo by the user between two Ctrl+Space ends it silently: the
    // prefix stays and nothing new goes in.
    Type("ab");
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "abc ");
    m_zone.Undo();
    EXPECT_EQ(Line(), "ab");
    // The undo gives the prefix back selected; with a selection Ctrl+Space
    // does nothing, so the caret goes behind it first.
    m_zone.SetSelection(0, 0, 2, 2, 0, 1);
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "ab");
    EXPECT_EQ(m_zone.m_bCompleting, 0);
    EXPECT_EQ(m_platform.GetBeepCount(), 0);

    // A typed letter: the next Ctrl+Space completes the new word.
    Type("abcde");
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "abcdef ");
    m_zone.SetSelection(0, 0, 6, 6, 0, 1);  // behind the candidate's last letter
    m_zone.HandleKeyDown(VK_END, 1, 0);     // any key but the modifiers resets
    EXPECT_EQ(m_zone.m_bCompleting, 0);
    Type("abcde");
    CtrlSpace(VK_RCONTROL);
    m_zone.HandleChar('x', 1, 0);
    EXPECT_EQ(m_zone.m_bCompleting, 0);
    EXPECT_EQ(Line(), "abcdef x");

    // The other Ctrl key asks for the other candidates: the cycle ends,
    // and the caret now stands behind a blank.
    Type("ab");
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "abc ");
    CtrlSpace(VK_LCONTROL);
    EXPECT_EQ(Line(), "abc ");
    EXPECT_EQ(m_zone.m_bCompleting, 0);
}

TEST_F(WordCompletionTest, RefusedPlacesLeaveTheTextAsItWas) {
    const std::string w40(40, 'q');
    m_zone.extra = {w40 + "q", w40 + "qq"};
    Type(w40.c_str());
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), w40 + "q ") << "40 bytes are a prefix";
    const std::string w41(41, 'q');
    Type(w41.c_str());
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), w41) << "41 bytes are not";

    struct Refused {
        const char* text;
        int caret;
    } refused[] = {
        {"select", 3},  // in the middle of a word
        {"sel", 0},     // at the line's start
        {"sel ", 4},    // behind a blank
        {"sel(x", 3},   // before a byte that is no blank
    };
    for (const Refused& r : refused) {
        Type(r.text, r.caret);
        CtrlSpace();
        EXPECT_EQ(Line(), r.text) << r.text << " at " << r.caret;
        EXPECT_EQ(m_zone.m_bCompleting, 0);
    }
    // A word of the tables is no candidate of itself: "select" has no
    // longer relative in T-SQL.
    Type("select");
    CtrlSpace();
    EXPECT_EQ(Line(), "select");
    EXPECT_EQ(m_zone.m_bCompleting, 0);
    // Blanks behind the caret do not stop it.
    Type("sel  ", 3);
    CtrlSpace();
    EXPECT_EQ(Line(), "select   ");
    // A selection, a read-only zone and a zone without colouring refuse.
    Type("sel");
    m_zone.SetSelection(0, 0, 0, 3, 0, 1);
    CtrlSpace();
    EXPECT_EQ(Line(), "sel");
    Type("sel");
    m_zone.SetReadOnly(1);
    CtrlSpace();
    EXPECT_EQ(Line(), "sel");
    m_zone.SetReadOnly(0);
    // Paragraph zones have no completion at all.
    m_zone.SetStyle(m_zone.GetStyle() | ZS_PARAGRAPH);
    m_zone.SetWordCompletion(3);
    EXPECT_EQ(m_zone.GetWordCompletion(), 0u);
    EXPECT_EQ(m_platform.GetBeepCount(), 0);
}

TEST_F(WordCompletionTest, ThePickListOffersTheCandidatesAtTheCaret) {
    m_zone.SetWordCompletion(1);
    m_zone.extra = {"Abx", "aby", "abz"};
    Type("x ab");
    m_zone.DrawCaret(1, 1);
    POINT caret;
    ASSERT_TRUE(::GetCaretPos(&caret));
    bool bShownMeanwhile = false;
    m_platform.SetPickListHandler([&](const CHeadlessPlatform::PickListRequest& request) {
        bShownMeanwhile = IsCompletionListShown();
        return request.items.size() > 1 ? 1 : -1;
    });
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "x aby ");
    EXPECT_TRUE(bShownMeanwhile);
    EXPECT_FALSE(IsCompletionListShown());
    EXPECT_EQ(m_zone.m_bCompleting, 0) << "the list leaves no cycle open";
    ASSERT_EQ(m_platform.GetPickListRequests().size(), 1u);
    const auto& request = m_platform.GetPickListRequests()[0];
    EXPECT_EQ(request.items, (std::vector<std::string>{"Abx", "aby", "abz"}));
    EXPECT_EQ(request.pParent, &m_wnd);
    EXPECT_EQ(request.hFont, m_zone.GetFont());
    // Its corner on the caret, so that it covers the line; three rows of
    // 3 bytes with room for the borders.
    const int cx = m_zone.m_nCharWidth * 3 + 2 * GetSystemMetrics(SM_CXBORDER) + 4;
    const int cy = m_zone.m_nLineHeight * 3 + 2 * GetSystemMetrics(SM_CYBORDER) + 14;
    EXPECT_EQ(request.rc.left, caret.x);
    EXPECT_EQ(request.rc.top, caret.y);
    EXPECT_EQ(request.rc.right - request.rc.left, cx);
    EXPECT_EQ(request.rc.bottom - request.rc.top, cy);
    m_zone.Undo();
    EXPECT_EQ(Line(), "x ab");

    // Cancelled: nothing changes.
    m_platform.SetPickListHandler([](const CHeadlessPlatform::PickListRequest&) { return -1; });
    CtrlSpace(VK_RCONTROL);
    EXPECT_EQ(Line(), "x ab");
    EXPECT_EQ(m_zone.m_bCompleting, 0);

    // The keyword tables follow the case rule; a single candidate goes in
    // without a list.
    m_platform.SetPickListHandler([](const CHeadlessPlatform::PickListRequest&) { return 0; });
    Type("SELEC");
    CtrlSpace();
    EXPECT_EQ(Line(), "SELECT ");
    EXPECT_EQ(m_platform.GetPickListRequests().size(), 1u);
}

TEST_F(WordCompletionTest, ALongListScrolls) {
    m_zone.SetWordCompletion(2);
    m_zone.extra = {"k1", "k2", "k3", "k4", "k5", "k6", "k7xx"};
    Type("k");
    m_zone.DrawCaret(1, 1);
    CtrlSpace(VK_RCONTROL);
    ASSERT_EQ(m_platform.GetPickListRequests().size(), 1u);
    const RECT rc = m_platform.GetPickListRequests()[0].rc;
    const int cx = m_zone.m_nCharWidth * 4 + 2 * GetSystemMetrics(SM_CXBORDER) + 4 +
                   GetSystemMetrics(SM_CXVSCROLL);
    const int cy = (GetSystemMetrics(SM_CYBORDER) + 3 * m_zone.m_nLineHeight) * 2 + 10;
    EXPECT_EQ(rc.right - rc.left, cx);
    EXPECT_EQ(rc.bottom - rc.top, cy);
    EXPECT_EQ(Line(), "k");
}

}  // namespace
