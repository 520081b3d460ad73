// Byte classes of line text, shared by the key handlers, and padding a
// line's text in front of its terminator.
#pragma once

#include <cctype>

#include "textzone/StringEx.h"

namespace textbytes {

constexpr char kLineEnd = 13;

// Blanks are the space and the tab, nothing else.
inline bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// Word characters for word moves and double clicks: bytes from 128 up,
// letters and digits, and "#", "@", "_".
inline bool IsWordChar(char c) {
    unsigned char u = static_cast<unsigned char>(c);
    return u >= 128 || std::isalnum(u) || u == '#' || u == '@' || u == '_';
}

// The bytes of a line without its terminator.
inline int TextLength(const CStringEx& line) {
    return line.GetLength() - line.IsEnded();
}

inline bool OnlyBlanks(const CStringEx& line, int nCount) {
    const char* p = line.c_str();
    for (int i = 0; i < nCount && i < TextLength(line); ++i)
        if (!IsBlank(p[i])) return false;
    return true;
}

// Pads the text of a real line with spaces up to nLength bytes. Unlike
// EnsureMinimumLength it takes the terminator off first, so that a caret
// standing beyond the end of an ended line never leaves a 13 inside it.
inline void PadText(CStringEx& line, int nLength) {
    const int ended = line.IsEnded();
    if (TextLength(line) >= nLength) return;
    if (ended) line.discardRight(1);
    line += VESK::String(' ', nLength - line.GetLength());
    if (ended) line += kLineEnd;
}

}  // namespace textbytes
