// Markup lines: the states they start in (the embedded state in the high
// half), how those follow edits and directives, and the runs of the cases
// where a plausible reading of a line goes wrong.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ColourZone.h"
#include "colour/MarkupStates.h"

namespace {

constexpr unsigned int Embedded(unsigned int nMarkup, unsigned int nScript) {
    return MarkupState(nMarkup, nScript);
}

class MarkupTest : public ColourTest {
protected:
    void SetUp() override {
        ColourTest::SetUp();
        m_zone.SetClientLanguageSyntaxColor(310);
    }
};

TEST_F(MarkupTest, ScriptBodiesAndTheirLanguage) {
    // A VB-like body has ' comments, a Java-like one // comments.
    EXPECT_EQ(States("<SCRIPT LANGUAGE=\"VBScript\">\n' a\n</SCRIPT>\n"),
              (S{1, Embedded(MS_VBSCRIPT, 1), Embedded(MS_VBSCRIPT, 1)}));
    EXPECT_EQ(Runs(1), "0 Comment");
    EXPECT_EQ(States("<SCRIPT>\n// a\n"), (S{1, Embedded(MS_SCRIPT, 1)}));
    EXPECT_EQ(Runs(1), "0 Comment");
    // The tag carried over a line keeps its language.
    EXPECT_EQ(States("<script language=vbscript\n>\n' a\n"),
              (S{1, MS_VBSCRIPT_TAG, Embedded(MS_VBSCRIPT, 1)}));
    EXPECT_EQ(Runs(2), "0 Comment");
    // Block comments cross lines in the high half, strings never do.
    EXPECT_EQ(States("<script>x /* a\nb\nc */ s = \"open\nd\n"),
              (S{1, Embedded(MS_SCRIPT, 5), Embedded(MS_SCRIPT, 5), Embedded(MS_SCRIPT, 1)}));
    EXPECT_EQ(Runs(2), "0 Comment, 5 Text, 9 String");
    EXPECT_EQ(Runs(3), "0 Text");
    // The end of the body is found even inside a comment or a string.
    EXPECT_EQ(States("<script>/* a\n</scripts> <b>\nx\n"), (S{1, Embedded(MS_SCRIPT, 5), 1}));
    // "scripts" is no element name; the tag behind it is read as usual.
    EXPECT_EQ(Runs(1), "0 KeyWord3, 10 Text, 11 KeyWord3, 12 KeyWord1, 13 Text, 14 Text");
}

TEST_F(MarkupTest, ValueBrokenInAScriptTagLosesTheBodyForTheLinesBelow) {
    EXPECT_EQ(States("<script language=\"java\nscript\">\n// a\n"), (S{1, MS_DOUBLE_VALUE + 2, 1}));
    // Drawn, the tag's own line still turns into a body behind its '>'...
    EXPECT_EQ(Runs(1), "0 String, 7 KeyWord3, 8 Text");
    // ...but the walk went back to a plain tag, so the next line is text.
    EXPECT_EQ(Runs(2), "0 Text");
    // A value of a declaration returns to the declaration.
    EXPECT_EQ(States("<!x 'a\nb' -- c\nd --> e\n"), (S{1, MS_SINGLE_VALUE + 1, MS_DECL_COMMENT}));
}

TEST_F(MarkupTest, ServerSections) {
    m_zone.SetClientLanguageSyntaxColor(610);
    EXPECT_EQ(States("<% a /* b\nc */ d %> e\nf\n"), (S{1, Embedded(MS_SERVER, 5), 1}));
    EXPECT_EQ(Runs(1), "0 Comment, 5 Text, 7 KeyWord3, 9 Text");
    // A "%>" in a string of the section ends it: it is looked for first.
    EXPECT_EQ(RunsOf("<% s = \"%>\" + 1;"), "0 KeyWord3, 2 Text, 7 String, 8 KeyWord3, 10 Text");
    // A section inside a body returns to the body.
    EXPECT_EQ(States("<script><% a\nb %> /* c\nd\n"),
              (S{1, Embedded(MS_SERVER_IN_SCRIPT, 1), Embedded(MS_SCRIPT, 5)}));
    // "<%--" is a comment of server pages only.
    EXPECT_EQ(States("<%-- a\nb --%> c\n"), (S{1, MS_SERVER_COMMENT}));
    EXPECT_EQ(Runs(1), "0 Comment, 6 Text");
    m_zone.SetClientLanguageSyntaxColor(310);
    EXPECT_EQ(States("<%-- a\nb --%> c\n"), (S{1, Embedded(MS_SERVER, 1)}));
    EXPECT_EQ(Runs(1), "0 Text, 4 KeyWord3, 6 Text");
}

TEST_F(MarkupTest, AnUnclosedSectionIsScannedFromBeforeItsLessThanSignByTheWalk) {
    m_zone.SetClientLanguageSyntaxColor(610);
    // The walk reads the "/*" in the text before "<%" as script...
    EXPECT_EQ(States("a /* b <% c\nd %>\n"), (S{1, Embedded(MS_SERVER, 5)}));
    EXPECT_EQ(Runs(1), "0 Comment, 2 KeyWord3, 4 Text");
    // ...and finds a "%>" that stands before it.
    EXPECT_EQ(States("a %> b <% c\nd\n"), (S{1, Embedded(MS_SERVER, 1)}));
    // Found behind the '<', the section is passed over.
    EXPECT_EQ(States("/* <% c %>\nd\n<?x\ny ?>\nz\n"), (S{1, 1, 1, MS_PROCESSING, 1}));
}

TEST_F(MarkupTest, DirectivesSwitchTheServerLanguageForTheRestOfTheText) {
    m_zone.SetClientLanguageSyntaxColor(630);
    ASSERT_EQ(m_zone.m_bServerScriptJava, 1);
    const char* text =
        "<%@ language=\"vbscript\" %>\n"
        "<%\n"
        "rem a _\n"
        "b %>\n"
        "<%@ page language=\"java\" %>\n"
        "<% /* a\n"
        "b */ %>\n";
    EXPECT_EQ(States(text), (S{1, 1, Embedded(MS_SERVER, 1), Embedded(MS_SERVER, 5), 1, 1,
                               Embedded(MS_SERVER, 5)}));
    EXPECT_EQ(m_zone.m_bServerScriptJava, 1);
    // Drawing a line reads its directive too: the line below is VB-like,
    // then Java-like again.
    EXPECT_EQ(Runs(0), "0 #008080, 26 Text");
    EXPECT_EQ(m_zone.m_bServerScriptJava, 0);
    EXPECT_EQ(Runs(2), "0 Comment");
    EXPECT_EQ(Runs(4), "0 #008080, 27 Text");
    EXPECT_EQ(Runs(2), "0 Text");
    // The walk scans an unclosed section from before its "<%", where "rem"
    // is not at the start.
    m_zone.SetClientLanguageSyntaxColor(631);
    EXPECT_EQ(States("<%@ language=vbscript %>\n<% rem a _\nb\n"),
              (S{1, 1, Embedded(MS_SERVER, 1)}));
    // The directive colour is for server pages; elsewhere it is a section.
    m_zone.SetClientLanguageSyntaxColor(310);
    EXPECT_EQ(RunsOf("<%@ x %>"), "0 KeyWord3, 2 Text, 6 KeyWord3");
}

TEST_F(MarkupTest, TextTagsAndEntities) {
    // A '<' that opens nothing leaves the rest of the line to text.
    EXPECT_EQ(RunsOf("a < b <i>x</i>"), "0 Text");
    EXPECT_EQ(RunsOf("a <"), "0 Text, 2 KeyWord3");
    // Entities with no boundary test, in any case, with their blanks.
    EXPECT_EQ(RunsOf("x&AMP;y &lt;  z"), "0 Text, 1 Variable, 6 Text, 8 Variable, 14 Text");
    // Element names beat attribute names; '-' joins a name.
    EXPECT_EQ(RunsOf("<td align=x accept-charset=y>"),
              "0 KeyWord3, 1 KeyWord1, 4 KeyWord2, 9 Text, 12 KeyWord2, 26 Text");
    // A '>' in a value closes nothing; a "--" glued to a word opens nothing.
    EXPECT_EQ(RunsOf("<a name='>'>x"),
              "0 KeyWord3, 1 KeyWord1, 3 KeyWord2, 7 Text, 8 String, 11 KeyWord3, 12 Text");
    EXPECT_EQ(RunsOf("<!a--b -- c --> d"),
              "0 KeyWord3, 2 KeyWord1, 3 Text, 5 KeyWord1, 7 Comment, 14 KeyWord3, 15 Text");
    // An attribute that is also an element name takes the element's colour.
    EXPECT_EQ(RunsOf("<a title=x>"), "0 KeyWord3, 1 KeyWord1, 3 KeyWord1, 8 Text");
}

TEST_F(MarkupTest, XmlHasNoServerSectionsScriptsOrNames) {
    m_zone.SetClientLanguageSyntaxColor(1090);
    EXPECT_EQ(RunsOf("<% a %>x"), "0 KeyWord3, 7 Text");
    EXPECT_EQ(States("<script>\n// a\n"), (S{1, 1}));
    EXPECT_EQ(RunsOf("<td a=\"v\"><!-- c -->"),
              "0 KeyWord3, 6 String, 9 KeyWord3, 10 KeyWord3, 12 Comment, 19 KeyWord3");
}

TEST_F(MarkupTest, StatesFollowEdits) {
    m_zone.SetText("<script>\nx\ny\n</script>\nz\n");
    EXPECT_EQ(m_zone.StartWithWhat(4), 1u);
    EXPECT_EQ(m_zone.StartWithWhat(2), Embedded(MS_SCRIPT, 1));

    // Opening a comment in the body carries it to the end of the body.
    m_zone.SetSelection(1, 1, 0, 0, 0, 0);
    m_zone.InsertText("/*", 0, 0, 0);
    EXPECT_EQ(m_zone.StartWithWhat(3), Embedded(MS_SCRIPT, 5));
    EXPECT_EQ(m_zone.StartWithWhat(2), Embedded(MS_SCRIPT, 5));
    EXPECT_EQ(m_zone.StartWithWhat(4), 1u);

    // Without the '>' of the opening tag the body is part of the tag, and
    // the '>' of "</script>" opens a body instead.
    m_zone.SetSelection(0, 0, 7, 8, 0, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(m_zone.StartWithWhat(1), static_cast<unsigned int>(MS_SCRIPT_TAG));
    EXPECT_EQ(m_zone.StartWithWhat(4), Embedded(MS_SCRIPT, 1));
    EXPECT_EQ(Runs(1), "0 KeyWord3");
}

}  // namespace
