// The host family's byte string: a count, a contiguous buffer that always ends
// in a 0 byte, and value semantics. Positions and counts are ints; a count
// beyond the length is taken as the length and a negative one as 0, so callers
// can cut and splice lines without checking bounds first. Embedded 0 bytes are
// kept, as in std::string.
//
// Storage: up to 15 bytes inside the object (no allocation for short
// texts), otherwise a heap block of the string's own, or bytes lent by
// whoever made the string use them (UseBytes): those are written in place
// while the text fits and copied to the heap when it outgrows them; they are
// never freed or handed on by the string.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>

#include "TextzoneExport.h"

namespace VESK {

class TEXTZONE_EXPORT String {
public:
    String() noexcept {}      // user-provided, so that a const String can be default-made
    String(const char* psz);  // null is the empty string
    String(const char* p, int nCount);
    String(char c, int nCount);
    String(const String& src);
    String(String&& src) noexcept;
    String& operator=(const String& src);
    String& operator=(String&& src) noexcept;
    ~String();
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
    int GetLength() const { return static_cast<int>(m_nLength); }
    bool IsEmpty() const { return m_nLength == 0; }
    void Empty() { SetLength(0); }
    const char* c_str() const { return Data(); }
    operator const char*() const { return Data(); }
    // Writable bytes, GetLength() of them and a 0; valid until the next change.
    char* GetBuffer() { return Data(); }
    void assign(const char* p, int n);

    friend bool operator==(const String& a, const String& b);
    friend bool operator!=(const String& a, const String& b) { return !(a == b); }
    friend bool operator==(const String& a, const char* psz);
    friend bool operator!=(const String& a, const char* psz) { return !(a == psz); }
    friend bool operator==(const char* psz, const String& b) { return b == psz; }
    friend bool operator!=(const char* psz, const String& b) { return !(b == psz); }

protected:
    // The string takes its text from p: nLength bytes and a 0 behind them,
    // which must stay valid (and are written to) until the string goes or
    // outgrows them. Whatever it held before is dropped.
    void UseBytes(char* p, int nLength);
    // Whether the bytes are lent ones (for tests and the lender's checks).
    bool UsesLentBytes() const { return m_nKind == kLent; }

private:
    enum Kind : std::uint32_t { kInline, kHeap, kLent };
    static constexpr std::uint32_t kInlineCapacity = 15;

    char* Data() { return m_nKind == kInline ? m_inline : m_pBytes; }
    const char* Data() const { return m_nKind == kInline ? m_inline : m_pBytes; }
    int Clamp(int n) const;           // n limited to [0, length]
    void SetLength(std::uint32_t n);  // within the capacity; writes the 0
    // Gives back the buffer of a string cut to a small part of it: a long
    // line cut into many short ones must not leave each its whole buffer.
    // Lent bytes are not the string's to give back.
    void Fit();
    // Replaces nRemove bytes at nPos (both valid) by nCount bytes from p,
    // which may lie inside this string.
    void Splice(std::uint32_t nPos, std::uint32_t nRemove, const char* p, std::uint32_t nCount);
    void Release();  // frees a heap block; the string is left inline and empty

    union {
        char* m_pBytes;                           // heap or lent bytes
        char m_inline[kInlineCapacity + 1] = {};  // short texts and their 0
    };
    std::uint32_t m_nLength = 0;
    std::uint32_t m_nCapacity : 30 = kInlineCapacity;  // bytes before the 0's place
    std::uint32_t m_nKind : 2 = kInline;
};

}  // namespace VESK
