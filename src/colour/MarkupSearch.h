// Searches of the markup colouring, all on zero-ended text.
#pragma once

#include <cstdint>

// The offset of p in pText, or -1 for a search that found nothing.
inline int OffsetOf(const char* pText, const char* p) {
    return p ? static_cast<int>(p - pText) : -1;
}

// The first occurrence of pWord regardless of (ASCII) case, or null.
const char* FindNoCase(const char* pText, const char* pWord);

// The next "</" followed, behind any blanks and tabs, by "script" in any case,
// or null. Only those six letters are compared, so "</scripts>" ends a body.
const char* FindScriptEnd(const char* pText);

// The next "--" that opens a comment in a declaration, or null. A "--" glued
// to a word ("a--", "x1--", "#--") opens nothing.
const char* FindHtmlComment(const char* pText);

// Whether a piece of VB-like script goes on in the next line: behind one
// final carriage return and any final blanks and tabs it ends in " _".
bool IsVBContinueText(const char* pText);

// The markup state that the '<' at pLt opens (2, 3, 17, 20 or 21), or 0 when
// the byte behind it opens nothing. A '<' that ends the text opens a tag.
std::uint32_t MarkupOpener(const char* pLt, bool bXml);

// The script language that a "<%@" directive names in the rest of its line:
// 1 Java-like ("language" and then "java" or "jscript"), 0 VB-like
// ("vbscript"), -1 when it names neither.
int DirectiveLanguage(const char* pText);

// Where the tag section of state *pnState starting at p stops: offsets of the
// next '>', '"', '\'' and (in a declaration) comment opener, -1 for each
// missing, and the earliest of them. In HTML a plain tag that names SCRIPT
// turns *pnState into the SCRIPT tag of the language it names.
struct TagSectionStops {
    int gt;
    int dq;
    int sq;
    int cm;
    int first;
};
TagSectionStops ScanTagSection(const char* t, int p, std::uint32_t* pnState, bool bXml);
