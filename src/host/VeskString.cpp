#include "host/VeskString.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace VESK {

String::String(const char* psz) {
    if (psz) m_str = psz;
}

String::String(const char* p, int nCount) {
    assign(p, nCount);
}

String::String(char c, int nCount) : m_str(static_cast<size_t>(std::max(nCount, 0)), c) {}

String& String::operator=(const char* psz) {
    // std::string::assign copes with psz pointing into our own bytes.
    if (psz)
        m_str.assign(psz);
    else
        m_str.clear();
    return *this;
}

String& String::operator+=(const char* psz) {
    if (psz) m_str.append(psz);
    return *this;
}

String& String::operator+=(char c) {
    m_str.push_back(c);
    return *this;
}

String& String::operator+=(const String& s) {
    m_str.append(s.m_str);
    return *this;
}

char String::operator[](int n) const {
    return n >= 0 && n < GetLength() ? m_str[static_cast<size_t>(n)] : '\0';
}

int String::Clamp(int n) const {
    return std::clamp(n, 0, GetLength());
}

String String::left(int n) const {
    String s;
    s.m_str.assign(m_str, 0, static_cast<size_t>(Clamp(n)));
    return s;
}

String String::right(int n) const {
    String s;
    s.m_str.assign(m_str, static_cast<size_t>(GetLength() - Clamp(n)));
    return s;
}

String String::subString(int nFrom) const {
    String s;
    s.m_str.assign(m_str, static_cast<size_t>(Clamp(nFrom)));
    return s;
}

void String::Fit() {
    // A quarter keeps repeated small cuts from copying the text each time.
    if (m_str.capacity() > 256 && m_str.size() < m_str.capacity() / 4) m_str.shrink_to_fit();
}

String& String::keepLeft(int n) {
    m_str.resize(static_cast<size_t>(Clamp(n)));
    Fit();
    return *this;
}

String& String::discardLeft(int n) {
    m_str.erase(0, static_cast<size_t>(Clamp(n)));
    Fit();
    return *this;
}

String& String::discardRight(int n) {
    m_str.resize(static_cast<size_t>(GetLength() - Clamp(n)));
    Fit();
    return *this;
}

String& String::deleteAt(int nPos, int nCount) {
    int nFrom = Clamp(nPos);
    int nTake = std::clamp(nCount, 0, GetLength() - nFrom);
    if (nTake > 0) m_str.erase(static_cast<size_t>(nFrom), static_cast<size_t>(nTake));
    Fit();
    return *this;
}

String& String::insertAt(int nPos, char c) {
    m_str.insert(static_cast<size_t>(Clamp(nPos)), 1, c);
    return *this;
}

String& String::insertAt(int nPos, const char* psz) {
    if (psz) m_str.insert(static_cast<size_t>(Clamp(nPos)), psz);
    return *this;
}

String& String::insertAt(int nPos, const String& s) {
    m_str.insert(static_cast<size_t>(Clamp(nPos)), s.m_str);
    return *this;
}

void String::replaceAt(int nPos, char c) {
    if (nPos >= 0 && nPos < GetLength()) m_str[static_cast<size_t>(nPos)] = c;
}

String& String::Format(const char* pszFormat, ...) {
    if (!pszFormat) {
        m_str.clear();
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
    m_str = std::move(out);
    return *this;
}

void String::assign(const char* p, int n) {
    if (p && n > 0)
        m_str.assign(p, static_cast<size_t>(n));
    else
        m_str.clear();
}

bool operator==(const String& a, const char* psz) {
    return psz ? a.m_str == psz : a.m_str.empty();
}

}  // namespace VESK
