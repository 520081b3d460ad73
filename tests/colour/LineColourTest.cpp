// The runs of single lines: what each pass takes, what it leaves to the
// passes behind it, and the rules that differ between language families.
#include <gtest/gtest.h>

#include "ColourZone.h"

namespace {

using LineColourTest = ColourTest;

TEST_F(LineColourTest, SqlIdentifiersStringsAndVariables) {
    m_zone.SetSQLSyntaxColor(14);  // dialect 90
    // A bracket identifier hides quotes and keywords; "]]" stays inside it.
    EXPECT_EQ(RunsOf("select [a'b] from t"), "0 KeyWord1, 7 Text, 13 KeyWord1, 18 Text");
    EXPECT_EQ(RunsOf("select [a]]b] from t"), "0 KeyWord1, 7 Text, 14 KeyWord1, 19 Text");
    EXPECT_EQ(RunsOf("select [from]"), "0 KeyWord1, 7 Text, 13 Text");
    // Double quotes delimit identifiers in dialect 90, strings in 65.
    EXPECT_EQ(RunsOf("select \"a b\" from t"), "0 KeyWord1, 7 Text, 13 KeyWord1, 18 Text");
    m_zone.SetSQLSyntaxColor(4);
    EXPECT_EQ(RunsOf("select \"a b\" from t"), "0 KeyWord1, 7 String, 13 KeyWord1, 18 Text");
    m_zone.SetSQLSyntaxColor(14);
    // "@@" globals are words of table 2; what is left are the user's variables.
    EXPECT_EQ(RunsOf("if @@error<>0"), "0 KeyWord1, 3 KeyWord3, 10 Text");
    // An "@" glued behind a variable byte is no variable, nor is what follows
    // it: "@a@b" colours "@a", "@@x" (no global) colours "@". A lone "@" is one.
    EXPECT_EQ(RunsOf("set @a@b = @"), "0 KeyWord1, 4 Variable, 6 Text, 11 Variable, 12 Text");
    EXPECT_EQ(RunsOf("x@y, @@mine"), "0 Text, 5 Variable, 6 Text");
    // An unclosed string runs on across lines in SQL.
    m_zone.SetText("print 'a\nb' + 'c'\n");
    EXPECT_EQ(Runs(1), "0 String, 3 Text, 5 String, 8 Text");
}

TEST_F(LineColourTest, KeywordPrecedenceAndCase) {
    m_zone.SetSQLSyntaxColor(15);  // dialect 150: "avg" stands in tables 0 and 3
    EXPECT_EQ(RunsOf("SELECT Avg(x)"), "0 KeyWord1, 7 KeyWord1, 10 Text");
    // A keyword takes the blanks behind it; "-" is no boundary in SQL...
    EXPECT_EQ(RunsOf("x text-y"), "0 Text, 2 KeyWord2, 6 Text");
    // ...but is one in COBOL, so hyphenated names are not split.
    m_zone.SetClientLanguageSyntaxColor(1010);
    EXPECT_EQ(RunsOf("  move-x move y"), "0 Text, 9 KeyWord1, 14 Text");
    // An entry that holds another stands first: "#end region" before "#end".
    m_zone.SetClientLanguageSyntaxColor(930);
    EXPECT_EQ(RunsOf("#End Region"), "0 KeyWord4, 11 Text");
    EXPECT_EQ(RunsOf("#end if"), "0 KeyWord4, 5 KeyWord1, 7 Text");
    // Objective-C lower-cases the text, so its capitalised entries never
    // match; "decimal " holds its blank, and that blank must be followed by a
    // byte that is no word character.
    m_zone.SetClientLanguageSyntaxColor(1250);
    EXPECT_EQ(RunsOf("BOOL b; int i;"), "0 Text, 8 KeyWord2, 12 Text");
    EXPECT_EQ(RunsOf("decimal x"), "");
    EXPECT_EQ(RunsOf("decimal  (x)"), "0 KeyWord2, 9 Text");
}

TEST_F(LineColourTest, CFamilyBoundariesAndCase) {
    // C is matched as it stands, with its own neighbours: "#" and "_" block,
    // a byte from 128 up does not.
    EXPECT_EQ(RunsOf("#include <a>"), "0 KeyWord3, 9 Text");
    EXPECT_EQ(RunsOf("# include x_if If"), "");
    EXPECT_EQ(RunsOf("\xE9if(x)"), "0 Text, 1 KeyWord1, 3 Text");
    m_zone.SetSQLSyntaxColor(14);
    EXPECT_EQ(RunsOf("\xE9if(x)"), "");
}

TEST_F(LineColourTest, CommentsStringsAndEscapes) {
    // A string continued by a backslash; two backslashes end it at the line end.
    m_zone.SetText("s = \"a\\\nb\" + x;\nt = \"a\\\\\nb\" + x;\n");
    EXPECT_EQ(Runs(1), "0 String, 3 Text");
    EXPECT_EQ(Runs(3), "0 Text, 1 String");
    // In the continuation pass a backslash escapes even "*/", which closes
    // the comment for the next line's state nevertheless.
    m_zone.SetText("/* a\nb \\*/ c */ d\n\"e\n");
    EXPECT_EQ(Runs(1), "0 Comment, 11 Text");
    EXPECT_EQ(Runs(2), "0 String");
    // Within a line, "*/" is never escaped; a string's quote is.
    EXPECT_EQ(RunsOf("x /* a \\*/ \"q\\\"\" y // z"),
              "0 Text, 2 Comment, 11 String, 17 Text, 19 Comment");
    // Nested comments: the line ends inside one, the next "*/" closes it.
    m_zone.SetSQLSyntaxColor(3);
    m_zone.SetText("/* /* */ x\n*/ y -- z\n");
    EXPECT_EQ(Runs(0), "0 Comment");
    EXPECT_EQ(Runs(1), "0 Comment, 3 Text, 5 Comment");
    // The oldest T-SQL has no "--" comments.
    m_zone.SetSQLSyntaxColor(1);
    EXPECT_EQ(RunsOf("x -- y"), "");
    // PowerBuilder escapes with tildes.
    m_zone.SetClientLanguageSyntaxColor(50);
    EXPECT_EQ(RunsOf("s = \"a~\"b\" + c"), "0 Text, 4 String, 11 Text");
}

TEST_F(LineColourTest, BasicAndPascalComments) {
    m_zone.SetClientLanguageSyntaxColor(70);
    EXPECT_EQ(RunsOf("xrem y"), "");
    EXPECT_EQ(RunsOf("  Rem x 'y'"), "0 Comment");
    EXPECT_EQ(RunsOf("a = \"it's\" ' c"), "0 Text, 4 String, 11 Comment");
    // A rem comment continued by " _" is coloured until a "*/" on the next line.
    m_zone.SetText("rem a _\nb */ c\n");
    EXPECT_EQ(Runs(1), "0 Comment, 5 Text");
    m_zone.SetClientLanguageSyntaxColor(90);
    EXPECT_EQ(RunsOf("x { c } y (* d *) z // e"),
              "0 Text, 2 Comment, 8 Text, 10 Comment, 18 Text, 20 Comment");
    m_zone.SetText("{ a\nb } c\n");
    EXPECT_EQ(Runs(1), "0 Comment, 4 Text");
}

TEST_F(LineColourTest, CobolCommentsByColumn) {
    m_zone.SetClientLanguageSyntaxColor(1010);
    EXPECT_EQ(RunsOf("      * move"), "0 Comment");
    EXPECT_EQ(RunsOf("*move"), "0 Comment");
    EXPECT_EQ(RunsOf("/ page"), "0 Comment");
    EXPECT_EQ(RunsOf("       move 'a' *> note"), "0 Text, 7 KeyWord1, 12 String, 16 Comment");
}

TEST_F(LineColourTest, JclLines) {
    m_zone.SetClientLanguageSyntaxColor(1020);
    EXPECT_EQ(RunsOf("//* EXEC"), "0 Comment");
    EXPECT_EQ(RunsOf("/*"), "0 Comment");
    EXPECT_EQ(RunsOf("AB EXEC"), "0 Comment");
    EXPECT_EQ(RunsOf("/"), "");
    EXPECT_EQ(
        RunsOf("//S1 EXEC PGM=X,PARM='A B' END"),
        "0 Comment, 2 Text, 5 KeyWord1, 10 KeyWord2, 13 Text, 21 String, 27 KeyWord2, 30 Text");
    EXPECT_EQ(RunsOf("//s1 exec pgm=x"), "0 Comment, 2 Text");
    EXPECT_EQ(RunsOf("/*JOBPARM LINES=5 EXEC"), "0 KeyWord4, 10 Text");
    EXPECT_EQ(RunsOf("X EXEC"), "");
}

TEST_F(LineColourTest, NothingWithoutColourAndTheTextStaysAsItWas) {
    m_zone.SetText("select 'a' /* b */ from t\n");
    CStringEx copy(*m_zone.GetLine(0));
    m_zone.DefineColors(0, &copy);
    EXPECT_STREQ(copy.c_str(), m_zone.GetLine(0)->c_str());
    EXPECT_FALSE(m_zone.m_colorDefs.empty());
    m_zone.FreeColorDefs();

    m_zone.EnableSyntaxColor(0, 0, 0, 0, 0, 0, 4);
    EXPECT_EQ(Runs(0), "");
}

}  // namespace
