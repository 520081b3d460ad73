#include "textzone/StringEx.h"
#include "textzone/TextBytes.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "textzone/TextZone.h"

namespace {

constexpr char kLineEnd = 13;

using textbytes::IsBlank;

// Taken as unsigned so that no byte of 128 or above can pass for one.
bool IsWrapDelimiter(char c) {
    unsigned char u = static_cast<unsigned char>(c);
    return u == 9 || u == 32 || u == 45;
}

}  // namespace

CStringEx::CStringEx(const char* psz) : VESK::String(psz) {}

CStringEx::CStringEx(const CStringEx& src)
    : VESK::String(src), m_dwBookmarks(src.m_dwBookmarks), m_dwBlockFlags(src.m_dwBlockFlags) {}

CStringEx& CStringEx::operator=(const CStringEx& src) {
    const int nOld = GetLength();
    VESK::String::operator=(src);
    m_dwBookmarks = src.m_dwBookmarks;
    m_dwBlockFlags = src.m_dwBlockFlags;
    NoteLength(nOld);
    return *this;
}

void CLineFlags::NoteHidden() {
    // The flags are a member of a line: the line lies at a fixed distance
    // before them, measured once on a line of our own.
    static const std::ptrdiff_t offset = [] {
        CStringEx probe;
        return reinterpret_cast<const char*>(&probe.m_dwBlockFlags) -
               reinterpret_cast<const char*>(&probe);
    }();
    auto* pLine = reinterpret_cast<CStringEx*>(reinterpret_cast<char*>(this) - offset);
    if (pLine->m_nOwnerZone) CTextZone::FromIndex(pLine->m_nOwnerZone)->NoteLineFlags(pLine);
}

void CStringEx::NoteLength(int nOld) {
    if (!m_nOwnerZone) return;
    CTextZone* pZone = CTextZone::FromIndex(m_nOwnerZone);
    pZone->NoteTextChanged();
    if (GetLength() != nOld) pZone->NoteLineLength(this);
}

// Each change runs the string's own operation and then tells the zone.
template <class F>
CStringEx& CStringEx::Noted(F change) {
    const int nOld = GetLength();
    change();
    NoteLength(nOld);
    return *this;
}

CStringEx& CStringEx::operator+=(const char* psz) {
    return Noted([&] { VESK::String::operator+=(psz); });
}
CStringEx& CStringEx::operator+=(char c) {
    return Noted([&] { VESK::String::operator+=(c); });
}
CStringEx& CStringEx::operator+=(const VESK::String& s) {
    return Noted([&] { VESK::String::operator+=(s); });
}
CStringEx& CStringEx::keepLeft(int n) {
    return Noted([&] { VESK::String::keepLeft(n); });
}
CStringEx& CStringEx::discardLeft(int n) {
    return Noted([&] { VESK::String::discardLeft(n); });
}
CStringEx& CStringEx::discardRight(int n) {
    return Noted([&] { VESK::String::discardRight(n); });
}
CStringEx& CStringEx::deleteAt(int nPos, int nCount) {
    return Noted([&] { VESK::String::deleteAt(nPos, nCount); });
}
CStringEx& CStringEx::insertAt(int nPos, char c) {
    return Noted([&] { VESK::String::insertAt(nPos, c); });
}
CStringEx& CStringEx::insertAt(int nPos, const char* psz) {
    return Noted([&] { VESK::String::insertAt(nPos, psz); });
}
CStringEx& CStringEx::insertAt(int nPos, const VESK::String& s) {
    return Noted([&] { VESK::String::insertAt(nPos, s); });
}

void CStringEx::AdoptBytes(char* p, int nLength) {
    Noted([&] { UseBytes(p, nLength); });
}

void CStringEx::Empty() {
    Noted([&] { VESK::String::Empty(); });
}

CStringEx& CStringEx::Format(const char* pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    va_list again;
    va_copy(again, args);
    const int n = std::vsnprintf(nullptr, 0, pszFormat, args);
    va_end(args);
    std::string text(static_cast<size_t>(n > 0 ? n : 0), '\0');
    if (n > 0) std::vsnprintf(text.data(), text.size() + 1, pszFormat, again);
    va_end(again);
    // The arguments may point into this line's own bytes: they were read above.
    assign(text.data(), static_cast<int>(text.size()));
    return *this;
}

void CStringEx::assign(const char* p, int n) {
    Noted([&] { VESK::String::assign(p, n); });
}

void CStringEx::replaceAt(int nPos, char c) {
    Noted([&] { VESK::String::replaceAt(nPos, c); });
}

char* CStringEx::GetBuffer() {
    char* p = VESK::String::GetBuffer();
    if (m_nOwnerZone) CTextZone::FromIndex(m_nOwnerZone)->NoteTextChanged();
    return p;
}

int CStringEx::IsEnded() const {
    int n = GetLength();
    return n != 0 && c_str()[n - 1] == kLineEnd ? 1 : 0;
}

void CStringEx::EnsureEnded() {
    if (!IsEnded()) *this += kLineEnd;
}

void CStringEx::EnsureMinimumLength(int nLength) {
    int bEnded = IsEnded();
    int nSpaces = nLength - GetLength() + bEnded;
    if (nSpaces <= 0) return;
    // The old 13 stays in front of the padding: callers pad unended lines or
    // throwaway copies they only measure, so it is not worth taking out.
    *this += VESK::String(' ', nSpaces);
    if (bEnded) *this += kLineEnd;
}

int CStringEx::GetVisibleLength() {
    const char* p = c_str();
    int n = GetLength() - IsEnded();
    while (n > 0 && IsBlank(p[n - 1]))
        --n;
    return n;
}

int CStringEx::FindFirstDelimiter() const {
    const char* p = c_str();
    int i = 0;
    while (IsBlank(p[i]))
        ++i;
    // The 0 behind the text stops the scan; the 13 does not.
    while (p[i] && !IsWrapDelimiter(p[i]))
        ++i;
    return p[i] ? i : -1;
}

int CStringEx::GetFirstWordLength() {
    if (GetLength() == IsEnded()) return 0;
    int nDelim = FindFirstDelimiter();
    if (nDelim < 0) return GetLength() - IsEnded();
    // A leading hyphen still counts as a word of one, so the paragraph code
    // always makes progress.
    return nDelim < 1 ? 1 : nDelim;
}

void CStringEx::InsertChar(int nPos, char c) {
    // No terminator check: at the raw length of an ended line, c lands behind the 13.
    insertAt(nPos > GetLength() ? GetLength() : nPos, c);
}

void CStringEx::RemoveChar(int nPos, int nCount, int bKeepEnd) {
    int nLength = GetLength();
    if (nPos < 0 || nPos >= nLength || nCount < 1) return;
    int nEnd = nCount > nLength - nPos ? nLength : nPos + nCount;
    if (bKeepEnd && IsEnded() && nEnd > nLength - 1) nEnd = nLength - 1;
    deleteAt(nPos, nEnd - nPos);
}

int CStringEx::TransferStart(CStringEx& target, int bByWord) {
    if (IsEmpty()) return 0;
    int nCount = 1;
    if (bByWord) {
        int nDelim = FindFirstDelimiter();
        // The delimiter goes up with its word.
        nCount = nDelim < 0 ? GetLength() - IsEnded() : (nDelim < 1 ? 1 : nDelim) + 1;
    }
    target += left(nCount);
    discardLeft(nCount);
    return 1;
}

int CStringEx::TransferEnd(CStringEx& target, int bByWord) {
    if (IsEmpty()) return 0;
    int nCount = 1;
    if (bByWord) {
        const char* p = c_str();
        int nLength = GetLength();
        int i = nLength - 1 - IsEnded();
        int nDelims = 0;
        while (i >= 0 && IsWrapDelimiter(p[i])) {
            --i;
            ++nDelims;
        }
        // A run of delimiters goes down one byte per call; a single one goes
        // with the word in front of it.
        if (nDelims <= 1 && i >= 0) {
            while (i >= 0 && !IsWrapDelimiter(p[i]))
                --i;
            if (i >= 0) nCount = nLength - i - 1;  // with the terminator
        }
    }
    // A count of 1 on an ended line moves the 13: that is how the paragraph
    // end travels down when a long line is cut.
    target.insertAt(0, right(nCount));
    discardRight(nCount);
    return 1;
}

void CStringEx::TransferStartingSpaces(CStringEx& target) {
    const char* p = c_str();
    int n = 0;
    while (IsBlank(p[n]))
        ++n;
    if (n == 0) return;
    target += left(n);
    discardLeft(n);
}

// Hosts may set any of the 32 bits, so the text carries the whole word,
// unsigned: ten digits and the 0.
char* CStringEx::GetSpecificInfo() {
    char* pszInfo = new char[11];
    std::snprintf(pszInfo, 11, "%u", static_cast<unsigned>(m_dwBookmarks));
    return pszInfo;
}

void CStringEx::SetSpecificInfo(char* pszInfo) {
    m_dwBookmarks = pszInfo ? static_cast<DWORD>(std::strtoul(pszInfo, nullptr, 10)) : 0;
}
