#include "host/VeskString.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace VESK {

namespace {

constexpr std::uint32_t kMaxCapacity = (1u << 30) - 1;

std::uint32_t CountOf(int n) {
    return static_cast<std::uint32_t>(std::max(n, 0));
}

}  // namespace

String::String(const char* psz) {
    if (psz) Splice(0, 0, psz, static_cast<std::uint32_t>(std::strlen(psz)));
}

String::String(const char* p, int nCount) {
    assign(p, nCount);
}

String::String(char c, int nCount) {
    const std::uint32_t n = CountOf(nCount);
    Splice(0, 0, nullptr, n);
    std::memset(Data(), c, n);
}

String::String(const String& src) {
    Splice(0, 0, src.Data(), src.m_nLength);
}

String::String(String&& src) noexcept {
    // A new string is an empty inline one: the assignment does the rest.
    *this = std::move(src);
}

String& String::operator=(const String& src) {
    if (this != &src) Splice(0, m_nLength, src.Data(), src.m_nLength);
    return *this;
}

String& String::operator=(String&& src) noexcept {
    if (this == &src) return *this;
    if (src.m_nKind == kHeap) {
        Release();
        m_pBytes = src.m_pBytes;
        m_nLength = src.m_nLength;
        m_nCapacity = src.m_nCapacity;
        m_nKind = kHeap;
        src.m_nKind = kInline;
        src.m_nCapacity = kInlineCapacity;
        src.SetLength(0);
    } else {
        // Inline bytes go with the object; lent ones are not ours to hand on.
        Splice(0, m_nLength, src.Data(), src.m_nLength);
    }
    return *this;
}

String::~String() {
    if (m_nKind == kHeap) delete[] m_pBytes;
}

void String::Release() {
    if (m_nKind == kHeap) delete[] m_pBytes;
    m_nKind = kInline;
    m_nCapacity = kInlineCapacity;
    m_nLength = 0;
    m_inline[0] = '\0';
}

void String::SetLength(std::uint32_t n) {
    m_nLength = n;
    Data()[n] = '\0';
}

void String::Splice(std::uint32_t nPos, std::uint32_t nRemove, const char* p,
                    std::uint32_t nCount) {
    char* bytes = Data();
    const std::uint32_t tail = m_nLength - nPos - nRemove;
    const std::uint64_t length = static_cast<std::uint64_t>(m_nLength) - nRemove + nCount;
    if (length > kMaxCapacity) throw std::length_error("VESK::String too long");
    const auto newLength = static_cast<std::uint32_t>(length);

    if (newLength > m_nCapacity) {
        // A new block: the old bytes (and p, if it points into them) stay
        // readable until everything is copied.
        const std::uint32_t doubled = std::min<std::uint32_t>(2 * m_nCapacity, kMaxCapacity);
        const std::uint32_t capacity = std::max({newLength, doubled, 2 * kInlineCapacity + 1});
        char* fresh = new char[capacity + 1];
        std::memcpy(fresh, bytes, nPos);
        if (p) std::memcpy(fresh + nPos, p, nCount);
        std::memcpy(fresh + nPos + nCount, bytes + nPos + nRemove, tail);
        fresh[newLength] = '\0';
        if (m_nKind == kHeap) delete[] bytes;
        m_pBytes = fresh;
        m_nCapacity = capacity;
        m_nKind = kHeap;
        m_nLength = newLength;
        return;
    }

    // In place. A source inside our own bytes is copied out first, since
    // moving the tail may overwrite it.
    std::string saved;
    const auto at = reinterpret_cast<std::uintptr_t>(p);
    const auto from = reinterpret_cast<std::uintptr_t>(bytes);
    if (p && at >= from && at <= from + m_nLength) {
        saved.assign(p, nCount);
        p = saved.data();
    }
    std::memmove(bytes + nPos + nCount, bytes + nPos + nRemove, tail);
    if (p) std::memcpy(bytes + nPos, p, nCount);
    SetLength(newLength);
}

void String::UseBytes(char* p, int nLength) {
    Release();
    m_pBytes = p;
    m_nKind = kLent;
    m_nCapacity = CountOf(nLength);
    m_nLength = CountOf(nLength);
}

String& String::operator=(const char* psz) {
    if (psz)
        Splice(0, m_nLength, psz, static_cast<std::uint32_t>(std::strlen(psz)));
    else
        SetLength(0);
    return *this;
}

String& String::operator+=(const char* psz) {
    if (psz) Splice(m_nLength, 0, psz, static_cast<std::uint32_t>(std::strlen(psz)));
    return *this;
}

String& String::operator+=(char c) {
    Splice(m_nLength, 0, &c, 1);
    return *this;
}

String& String::operator+=(const String& s) {
    Splice(m_nLength, 0, s.Data(), s.m_nLength);
    return *this;
}

char String::operator[](int n) const {
    return n >= 0 && n < GetLength() ? Data()[n] : '\0';
}

int String::Clamp(int n) const {
    return std::clamp(n, 0, GetLength());
}

String String::left(int n) const {
    return String(Data(), Clamp(n));
}

String String::right(int n) const {
    const int count = Clamp(n);
    return String(Data() + GetLength() - count, count);
}

String String::subString(int nFrom) const {
    const int from = Clamp(nFrom);
    return String(Data() + from, GetLength() - from);
}

void String::Fit() {
    // A quarter keeps repeated small cuts from copying the text each time.
    if (m_nKind != kHeap || m_nCapacity <= 256 || m_nLength >= m_nCapacity / 4) return;
    char* old = m_pBytes;
    const std::uint32_t length = m_nLength;
    if (length <= kInlineCapacity) {
        m_nKind = kInline;
        m_nCapacity = kInlineCapacity;
        std::memcpy(m_inline, old, length);
    } else {
        char* fresh = new char[length + 1];
        std::memcpy(fresh, old, length);
        m_pBytes = fresh;
        m_nCapacity = length;
    }
    delete[] old;
    SetLength(length);
}

String& String::keepLeft(int n) {
    SetLength(static_cast<std::uint32_t>(Clamp(n)));
    Fit();
    return *this;
}

String& String::discardLeft(int n) {
    Splice(0, static_cast<std::uint32_t>(Clamp(n)), nullptr, 0);
    Fit();
    return *this;
}

String& String::discardRight(int n) {
    SetLength(static_cast<std::uint32_t>(GetLength() - Clamp(n)));
    Fit();
    return *this;
}

String& String::deleteAt(int nPos, int nCount) {
    const int from = Clamp(nPos);
    const int take = std::clamp(nCount, 0, GetLength() - from);
    if (take > 0)
        Splice(static_cast<std::uint32_t>(from), static_cast<std::uint32_t>(take), nullptr, 0);
    Fit();
    return *this;
}

String& String::insertAt(int nPos, char c) {
    Splice(static_cast<std::uint32_t>(Clamp(nPos)), 0, &c, 1);
    return *this;
}

String& String::insertAt(int nPos, const char* psz) {
    if (psz)
        Splice(static_cast<std::uint32_t>(Clamp(nPos)), 0, psz,
               static_cast<std::uint32_t>(std::strlen(psz)));
    return *this;
}

String& String::insertAt(int nPos, const String& s) {
    Splice(static_cast<std::uint32_t>(Clamp(nPos)), 0, s.Data(), s.m_nLength);
    return *this;
}

void String::replaceAt(int nPos, char c) {
    if (nPos >= 0 && nPos < GetLength()) Data()[nPos] = c;
}

String& String::Format(const char* pszFormat, ...) {
    if (!pszFormat) {
        SetLength(0);
        return *this;
    }
    va_list args;
    va_start(args, pszFormat);
    va_list again;
    va_copy(again, args);
    int n = std::vsnprintf(nullptr, 0, pszFormat, args);
    va_end(args);
    // Formatted into a fresh buffer: the arguments may point into our own bytes.
    std::string out;
    if (n > 0) {
        out.resize(static_cast<size_t>(n));
        std::vsnprintf(out.data(), out.size() + 1, pszFormat, again);
    }
    va_end(again);
    Splice(0, m_nLength, out.data(), static_cast<std::uint32_t>(out.size()));
    return *this;
}

void String::assign(const char* p, int n) {
    if (p && n > 0)
        Splice(0, m_nLength, p, static_cast<std::uint32_t>(n));
    else
        SetLength(0);
}

bool operator==(const String& a, const String& b) {
    return a.m_nLength == b.m_nLength && std::memcmp(a.Data(), b.Data(), a.m_nLength) == 0;
}

bool operator==(const String& a, const char* psz) {
    if (!psz) return a.m_nLength == 0;
    return std::strlen(psz) == a.m_nLength && std::memcmp(a.Data(), psz, a.m_nLength) == 0;
}

}  // namespace VESK
