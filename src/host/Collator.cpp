#include "host/Collator.h"

#include <array>

namespace {

struct CaseTables {
    std::array<unsigned char, 256> upper{};
    std::array<unsigned char, 256> lower{};
};

// Built at compile time, so there is no initialisation order to worry about
// when another static object folds case during start-up.
constexpr CaseTables MakeCaseTables() {
    CaseTables t;
    for (int c = 0; c < 256; ++c) {
        t.upper[c] = static_cast<unsigned char>(c);
        t.lower[c] = static_cast<unsigned char>(c);
    }
    auto pair = [&t](int up, int low) {
        t.lower[up] = static_cast<unsigned char>(low);
        t.upper[low] = static_cast<unsigned char>(up);
    };
    for (int c = 'A'; c <= 'Z'; ++c)
        pair(c, c + 0x20);
    for (int c = 0xC0; c <= 0xDE; ++c) {
        if (c != 0xD7) pair(c, c + 0x20);  // 0xD7/0xF7 are the multiply and divide signs
    }
    pair(0x8A, 0x9A);  // S caron
    pair(0x8C, 0x9C);  // OE ligature
    pair(0x8E, 0x9E);  // Z caron
    pair(0x9F, 0xFF);  // Y diaeresis
    return t;
}

constexpr CaseTables kCase = MakeCaseTables();

inline unsigned char Low(char c) {
    return kCase.lower[static_cast<unsigned char>(c)];
}

int CompareNoCase(const char* a, const char* b, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        int ca = Low(a[i]);
        int cb = Low(b[i]);
        if (ca != cb) return ca - cb;
        if (ca == 0) break;
    }
    return 0;
}

class CSystemCollator : public VESK::ICollator {
public:
    void toLower(char* p, int n) const override {
        if (p && n > 0) CharLowerBuffA(p, static_cast<DWORD>(n));
    }
    void toUpper(char* p, int n) const override {
        if (p && n > 0) CharUpperBuffA(p, static_cast<DWORD>(n));
    }
    int compare(const char* a, const char* b) const override {
        const auto* ua = reinterpret_cast<const unsigned char*>(a);
        const auto* ub = reinterpret_cast<const unsigned char*>(b);
        while (*ua && *ua == *ub)
            ++ua, ++ub;
        return static_cast<int>(*ua) - static_cast<int>(*ub);
    }
    int compareNoCase(const char* a, const char* b) const override { return _stricmp(a, b); }
};

}  // namespace

namespace VESK {

ICollator::~ICollator() = default;

ICollator* CollatorFactory::getSystemCollator() {
    static CSystemCollator collator;
    return &collator;
}

}  // namespace VESK

unsigned char ToUpper1252(unsigned char c) {
    return kCase.upper[c];
}
unsigned char ToLower1252(unsigned char c) {
    return kCase.lower[c];
}
bool IsUpper1252(unsigned char c) {
    return kCase.lower[c] != c;
}
bool IsLower1252(unsigned char c) {
    return kCase.upper[c] != c;
}

bool IsAlpha1252(unsigned char c) {
    // Letters without a case partner in the code page: florin, the ordinal
    // indicators, micro and sharp s.
    return IsUpper1252(c) || IsLower1252(c) || c == 0x83 || c == 0xAA || c == 0xB5 || c == 0xBA ||
           c == 0xDF;
}

char* CharUpperA(char* psz) {
    if (!psz) return psz;
    for (char* p = psz; *p; ++p)
        *p = static_cast<char>(kCase.upper[static_cast<unsigned char>(*p)]);
    return psz;
}

char* CharLowerA(char* psz) {
    if (!psz) return psz;
    for (char* p = psz; *p; ++p)
        *p = static_cast<char>(Low(*p));
    return psz;
}

DWORD CharUpperBuffA(char* p, DWORD n) {
    if (!p) return 0;
    for (DWORD i = 0; i < n; ++i)
        p[i] = static_cast<char>(kCase.upper[static_cast<unsigned char>(p[i])]);
    return n;
}

DWORD CharLowerBuffA(char* p, DWORD n) {
    if (!p) return 0;
    for (DWORD i = 0; i < n; ++i)
        p[i] = static_cast<char>(Low(p[i]));
    return n;
}

int _stricmp(const char* a, const char* b) {
    return CompareNoCase(a, b, static_cast<std::size_t>(-1));
}

int _strnicmp(const char* a, const char* b, std::size_t n) {
    return CompareNoCase(a, b, n);
}
