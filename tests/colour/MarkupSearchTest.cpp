// The searches of the markup colouring: what each finds and, above all, what
// each must pass over.
#include <gtest/gtest.h>

#include "colour/MarkupSearch.h"
#include "colour/MarkupStates.h"

namespace {

// The index of a hit in the text, -1 for none.
int Index(const char* pText, const char* pHit) {
    return pHit ? static_cast<int>(pHit - pText) : -1;
}

TEST(MarkupSearchTest, ScriptEndIsASlashAndSixLetters) {
    struct Case {
        const char* text;
        int at;
    };
    const Case cases[] = {
        {"x</script>", 1},
        {"</ \t SCRIPT>", 0},
        {"</scripts>", 0},  // only six letters are compared
        {"a</b> b</ Script", 7},
        {"</scrip>", -1},
        {"< /script>", -1},
        {"</b></i>", -1},
        {"</", -1},
        {"", -1},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Index(c.text, FindScriptEnd(c.text)), c.at) << c.text;
}

TEST(MarkupSearchTest, CommentOpenerInADeclaration) {
    struct Case {
        const char* text;
        int at;
    };
    const Case cases[] = {
        {"--x", 0},                          // at the very start, whatever stands before it
        {"<!-- c", 2},    {"a--b -- c", 5},  // glued to a word: not an opener
        {"x1---- --", 7},                    // the whole run of dashes is passed over
        {"#-- c", -1},    {"\xE9-- c", 1},   // only ASCII letters and digits glue
        {"- - -", -1},    {"", -1},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Index(c.text, FindHtmlComment(c.text)), c.at) << c.text;
}

TEST(MarkupSearchTest, VBContinueText) {
    EXPECT_TRUE(IsVBContinueText("a _"));
    EXPECT_TRUE(IsVBContinueText("rem x\t_ \t\r"));  // line end and blanks behind it
    EXPECT_TRUE(IsVBContinueText(" _"));
    EXPECT_FALSE(IsVBContinueText("_"));
    EXPECT_FALSE(IsVBContinueText("a_"));
    EXPECT_FALSE(IsVBContinueText("a _x"));
    EXPECT_FALSE(IsVBContinueText("a _\r\r"));  // only one line end is dropped
    EXPECT_FALSE(IsVBContinueText(""));
}

TEST(MarkupSearchTest, WhatALessThanSignOpens) {
    struct Case {
        const char* text;
        bool bXml;
        std::uint32_t state;
    };
    const Case cases[] = {
        {"<b>", false, MS_TAG},
        {"</b>", false, MS_TAG},
        {"<", false, MS_TAG},  // the last byte of the text
        {"<\xE9t\xE9>", false, MS_TAG},
        {"<!-- x", false, MS_DECLARATION},
        {"<?xml", false, MS_PROCESSING},
        {"<% x", false, MS_SERVER},
        {"<%@ page", false, MS_DIRECTIVE},
        {"<% x", true, MS_TAG},  // XML has no server sections
        {"<%@ x", true, MS_TAG},
        {"< b", false, 0},
        {"<1", false, 0},
        {"<<b>", false, 0},
        {"<\xC9t\xE9>", false, 0},  // capital accented letters open nothing
        {"<\r", false, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(MarkupOpener(c.text, c.bXml), c.state) << c.text;
}

TEST(MarkupSearchTest, DirectiveLanguage) {
    EXPECT_EQ(DirectiveLanguage("<%@ page language=\"java\" %>"), 1);
    EXPECT_EQ(DirectiveLanguage("<%@ LANGUAGE=JScript %>"), 1);
    EXPECT_EQ(DirectiveLanguage("<%@ Language=\"VBScript\" %>"), 0);
    // "java" counts only behind "language"; "vbscript" anywhere.
    EXPECT_EQ(DirectiveLanguage("<%@ import=\"java.util\" %>"), -1);
    EXPECT_EQ(DirectiveLanguage("<%@ include file=\"a.vbscript\" %>"), 0);
    EXPECT_EQ(DirectiveLanguage("<%@ java language=vbscript %>"), 0);
    EXPECT_EQ(DirectiveLanguage("<%@ page %>"), -1);
}

}  // namespace
