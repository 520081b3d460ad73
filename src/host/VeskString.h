// The host family's byte string: a count, a contiguous buffer that always ends
// in a 0 byte, and value semantics. Positions and counts are ints; a count
// beyond the length is taken as the length and a negative one as 0, so callers
// can cut and splice lines without checking bounds first. Embedded 0 bytes are
// kept, as in std::string.
#pragma once

#include <concepts>
#include <string>

#include "TextzoneExport.h"

namespace VESK {

class TEXTZONE_EXPORT String {
public:
    String() = default;
    String(const char* psz);  // null is the empty string
    String(const char* p, int nCount);
    String(char c, int nCount);
    String(const String&) = default;
    String(String&&) noexcept = default;
    String& operator=(const String&) = default;
    String& operator=(String&&) noexcept = default;
    String& operator=(const char* psz);

    String& operator+=(const char* psz);
    String& operator+=(char c);
    String& operator+=(const String& s);

    // The byte at n, or 0 outside the string (so the 0 behind the text reads as such).
    char operator[](int n) const;
    // Any other integer index goes to the int one; without this, s[size_t] would be
    // ambiguous with the built-in subscript through operator const char*.
    template <std::integral T>
    char operator[](T n) const {
        return (*this)[static_cast<int>(n)];
    }

    String left(int n) const;
    String right(int n) const;
    String subString(int nFrom) const;

    String& keepLeft(int n);
    String& discardLeft(int n);
    String& discardRight(int n);
    String& deleteAt(int nPos, int nCount);
    String& insertAt(int nPos, char c);
    String& insertAt(int nPos, const char* psz);
    String& insertAt(int nPos, const String& s);
    void replaceAt(int nPos, char c);  // outside the string: nothing

    String& Format(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));

    // Direct access for the engine.
    int GetLength() const { return static_cast<int>(m_str.size()); }
    bool IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }
    const char* c_str() const { return m_str.c_str(); }
    operator const char*() const { return m_str.c_str(); }
    // Writable bytes, GetLength() of them and a 0; valid until the next change.
    char* GetBuffer() { return m_str.data(); }
    void assign(const char* p, int n);

    friend bool operator==(const String& a, const String& b) { return a.m_str == b.m_str; }
    friend bool operator!=(const String& a, const String& b) { return !(a == b); }
    friend bool operator==(const String& a, const char* psz);
    friend bool operator!=(const String& a, const char* psz) { return !(a == psz); }
    friend bool operator==(const char* psz, const String& b) { return b == psz; }
    friend bool operator!=(const char* psz, const String& b) { return !(b == psz); }

private:
    int Clamp(int n) const;  // n limited to [0, length]
    // Gives back the buffer of a string cut to a small part of it: a long
    // line cut into many short ones must not leave each its whole buffer.
    void Fit();

    std::string m_str;
};

}  // namespace VESK
