// Parameter tooltips driven by typing: the host is asked once per routine,
// its answer opens the tooltip, and the bold parameter follows the caret
// through nested calls, strings and comments.
#include <string>

#include "completion/OpenParmComp.h"
#include "support/ParmZoneTest.h"

namespace {

class ParmTooltipTest : public ParmZoneTest {
protected:
    void SetUp() override {
        ParmZoneTest::SetUp();
        m_zone.SetParmCompletionMode(1);
    }
    // A host that knows foo(a, b, c) and b(x, y) and answers at once.
    void KnowFooAndB() {
        m_zone.m_onRequest = [this](int nKind, const char* pName) {
            const std::string name = pName;
            if (nKind == 1 && name == "foo") Answer(1, "foo", "int a,int b,int c");
            if (nKind == 1 && name == "b") Answer(1, "b", "x,y");
        };
    }
};

TEST_F(ParmTooltipTest, EachRoutineIsAskedOnceAndItsAnswerShowsLater) {
    Type("foo(");
    EXPECT_EQ(m_zone.m_requests, std::vector<std::string>{"1 foo"});
    EXPECT_EQ(Shown(), "");
    ASSERT_EQ(m_zone.m_openParmComps.size(), 1u);

    // The answer arrives from the host's side and crosses by the queue.
    Answer(1, "foo", "int a,int b");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Pump(), 1);
    EXPECT_EQ(Shown(), "foo ( |int a|,int b )");

    // Closing the call closes the tooltip; the next call needs no question.
    Type("1)");
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(m_zone.m_openParmComps.empty());
    Type(";\nfoo(");
    EXPECT_EQ(m_zone.m_requests.size(), 1u);
    EXPECT_EQ(Shown(), "foo ( |int a|,int b )");
    Type("2,");
    EXPECT_EQ(Shown(), "foo ( int a,|int b| )");

    // A question still out is not asked again, and makes no call.
    m_zone.CloseParmTooltip(1);
    Type("\nbar(");
    Type(")\nbar(");
    EXPECT_EQ(m_zone.m_requests, (std::vector<std::string>{"1 foo", "1 bar"}));
    EXPECT_TRUE(m_zone.m_openParmComps.empty());
}

TEST_F(ParmTooltipTest, TheBoldParameterFollowsNestedCalls) {
    KnowFooAndB();
    Type("foo(a, b(c");
    EXPECT_EQ(Shown(), "b ( |x|,y )");
    Type(", d");
    EXPECT_EQ(Shown(), "b ( x,|y| )");
    Type("), e");
    EXPECT_EQ(Shown(), "foo ( int a,int b,|int c| )");
    // Back into the inner call's text: it is over, the outer call stays.
    Caret(0, 10);
    Key(VK_LEFT);
    EXPECT_EQ(Shown(), "foo ( int a,|int b|,int c )");
    // A parameter beyond the list shows none bold; more commas than
    // parameters end the call.
    Key(VK_END);
    Type(",");
    EXPECT_EQ(Shown(), "foo ( ||int a,int b,int c )");
    Type(",");
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(m_zone.m_openParmComps.empty());
}

TEST_F(ParmTooltipTest, CommasInStringsCommentsAndBracketsDoNotCount) {
    UseSql();
    KnowFooAndB();
    Type("foo('x,y', /* , */ [p,q]");
    EXPECT_EQ(Shown(), "foo ( int a,|int b|,int c )");
    Type("\n\"r,s\" -- t,u\n, 1");
    EXPECT_EQ(Shown(), "foo ( int a,int b,|int c| )");

    // A "(" in a comment or a string opens nothing.
    m_zone.CloseParmTooltip(1);
    m_zone.SetText("");
    Type("/* b( */ 'b(");
    EXPECT_EQ(m_zone.m_requests, std::vector<std::string>{"1 foo"});
    EXPECT_TRUE(m_zone.m_openParmComps.empty());
}

TEST_F(ParmTooltipTest, BackspaceOverTheBracketEscapeAndFocusCloseIt) {
    KnowFooAndB();
    Type("foo(");
    ASSERT_NE(Shown(), "");
    Key(VK_BACK);
    EXPECT_EQ(Line(0), "foo");
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(m_zone.m_openParmComps.empty());

    // Escape drops the innermost call; the outer one takes over at the
    // next move, and a second Escape closes all.
    Type("(1, b(");
    EXPECT_EQ(m_zone.m_openParmComps.size(), 2u);
    Key(VK_ESCAPE);
    EXPECT_EQ(m_zone.m_openParmComps.size(), 1u);
    // The window is not rebuilt for the outer call: it keeps the inner
    // call's text, with the outer call's parameter index.
    Key(VK_LEFT);
    EXPECT_EQ(Shown(), "b ( x,|y| )");
    Key(VK_ESCAPE);
    EXPECT_EQ(Shown(), "");

    Type("x, b(");
    ASSERT_NE(Shown(), "");
    m_zone.HandleKillFocus(nullptr);
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(m_zone.m_openParmComps.empty());
}

TEST_F(ParmTooltipTest, OnlyItsOwnAnswersReachAZone) {
    Type("foo(");
    // Another zone's answer, as a message left over from a zone the window
    // showed before, is not read.
    CTextZoneColor other;
    other.AddParmCompletionSet(1, "foo", "foo", "a", "a");
    ASSERT_EQ(other.m_parmSets.size(), 1u);
    m_zone.HandleUserMessage(0, reinterpret_cast<std::int64_t>(other.m_parmSets.front()));
    EXPECT_EQ(m_zone.m_openParmComps.back()->pSet, nullptr);
    EXPECT_EQ(Shown(), "");
    // The zone's own answer to the same question is.
    Answer(1, "foo", "a");
    Pump();
    EXPECT_EQ(Shown(), "foo ( |a| )");
}

TEST_F(ParmTooltipTest, ModeZeroLeavesTypingAlone) {
    KnowFooAndB();
    m_zone.SetParmCompletionMode(0);
    Type("foo(");
    EXPECT_TRUE(m_zone.m_requests.empty());
    EXPECT_EQ(Shown(), "");
}

}  // namespace
