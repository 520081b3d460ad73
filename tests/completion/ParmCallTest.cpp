// Calls without parentheses in the SQL dialects that allow them, and mode 2,
// which types the name of the parameter the caret has come to.
#include <string>

#include "support/ParmZoneTest.h"
#include "textzone/UndoOperation.h"

namespace {

class ParmCallTest : public ParmZoneTest {
protected:
    void SetUp() override {
        ParmZoneTest::SetUp();
        UseSql();
        m_zone.SetParmCompletionMode(1);
    }
    void KnowP() {
        m_zone.m_onRequest = [this](int nKind, const char* pName) {
            if (nKind == 0 && std::string(pName) == "p")
                Answer(0, "p", "@a int,@b int,@c int", "@a,@b,@c");
        };
    }
};

TEST_F(ParmCallTest, NamesAfterExecAreAskedFor) {
    // A call without parentheses goes on over the line's end, so each is
    // closed before the next.
    for (const char* line : {"exec proc;2 ", "\nexecute @r = dbo.x ", "\nEXEC db..owner . y ",
                             "\nexec [my proc](", "\nexec q ; 4 "}) {
        Type(line);
        m_zone.CloseParmTooltip(1);
    }
    // Each name behind exec is asked for as its blank is typed, "@r" and
    // "db..owner" included: the host may know them. The blank behind a
    // bracketed name belongs to the name, so only "(" calls it.
    EXPECT_EQ(m_zone.m_requests,
              (std::vector<std::string>{"0 proc;2", "0 @r", "0 dbo.x", "0 db..owner",
                                        "0 db..owner.y", "1 [my proc]", "0 q", "0 q;4"}));
    // Not calls: a word after another word, a value, a blank in a string.
    m_zone.m_requests.clear();
    Type("\nselect a ");
    Type("\nexec 'q ");
    Type("\nexec 12 ");
    EXPECT_TRUE(m_zone.m_requests.empty());
}

TEST_F(ParmCallTest, TheFirstWordOfTheTextCanBeACall) {
    Type("p ");
    EXPECT_EQ(m_zone.m_requests, std::vector<std::string>{"0 p"});
    // A group number added to the only call replaces it.
    m_zone.m_requests.clear();
    m_zone.SetText("");
    m_zone.CloseParmTooltip(1);
    Type("exec q ");
    Caret(0, 6);
    Type(";3 ");
    EXPECT_EQ(m_zone.m_requests, (std::vector<std::string>{"0 q", "0 q;3"}));
    ASSERT_EQ(m_zone.m_openParmComps.size(), 1u);
}

TEST_F(ParmCallTest, EachParameterMustKeepItsShape) {
    KnowP();
    Type("exec p 1, 2 out, @x = ");
    EXPECT_EQ(Shown(), "p@a int,@b int,|@c int|");
    Type("-3");
    EXPECT_EQ(Shown(), "p@a int,@b int,|@c int|");

    m_zone.CloseParmTooltip(1);
    Type("\nexec p 1 2");
    EXPECT_EQ(Shown(), "p|@a int|,@b int,@c int");
    Type(" ");  // two values without a comma: the call is over
    EXPECT_EQ(Shown(), "");

    // "=" first ends it as well.
    Type("\nexec p = ");
    EXPECT_EQ(Shown(), "");
}

TEST_F(ParmCallTest, ModeTwoTypesTheNextName) {
    KnowP();
    m_zone.SetParmCompletionMode(2);
    Type("exec p ");
    EXPECT_EQ(Line(0), "exec p @a = ");
    EXPECT_EQ(Shown(), "p|@a int|,@b int,@c int");
    Type("1,");
    EXPECT_EQ(Line(0), "exec p @a = 1, @b = ");
    EXPECT_EQ(Shown(), "p@a int,|@b int|,@c int");

    // The name goes in as one undo step of its own.
    m_zone.Undo();
    EXPECT_EQ(Line(0), "exec p @a = 1,");

    // Nothing is typed where the text already goes on with the name.
    m_zone.CloseParmTooltip(1);
    m_zone.SetText("exec p@a = 1");
    Caret(0, 6);
    Type(" ");
    EXPECT_EQ(Line(0), "exec p @a = 1");
    // Past the last name nothing is typed.
    m_zone.CloseParmTooltip(1);
    m_zone.SetText("");
    Type("exec p 1,2,3,");
    EXPECT_EQ(Line(0), "exec p @a = 1, @b = 2, @c = 3,");
}

TEST_F(ParmCallTest, ALateAnswerShowsButTypesOnlyWhereTheCallBegan) {
    m_zone.SetParmCompletionMode(2);
    Type("exec p ");
    Answer(0, "p", "@a int", "@a");
    Pump();
    EXPECT_EQ(Line(0), "exec p @a = ");

    m_zone.CloseParmTooltip(1);
    Type("\nexec r ");
    Type("5");
    Answer(0, "r", "@z int", "@z");
    Pump();
    EXPECT_EQ(Line(1), "exec r 5");
    EXPECT_EQ(Shown(), "r|@z int|");
}

}  // namespace
