#include "colour/MarkupSearch.h"

#include <cctype>
#include <cstring>
#include <initializer_list>

#include "colour/MarkupStates.h"

namespace {

unsigned char Lower(char c) {
    return static_cast<unsigned char>(std::tolower(static_cast<unsigned char>(c)));
}

bool StartsNoCase(const char* pText, const char* pWord) {
    for (; *pWord; ++pText, ++pWord)
        if (!*pText || Lower(*pText) != Lower(*pWord)) return false;
    return true;
}

// Accented small letters of Windows-1252 that may start a tag name.
constexpr char kOpenerBytes[] = "!/%?\xE0\xE2\xE9\xE8\xEA\xEB\xEE\xEF\xF4\xF6\xF9\xFB\xFC\xFF\xE7";

}  // namespace

const char* FindNoCase(const char* pText, const char* pWord) {
    if (!*pWord) return pText;
    const unsigned char first = Lower(*pWord);
    for (; *pText; ++pText)
        if (Lower(*pText) == first && StartsNoCase(pText, pWord)) return pText;
    return nullptr;
}

const char* FindScriptEnd(const char* pText) {
    while ((pText = std::strstr(pText, "</")) != nullptr) {
        const char* p = pText + 2;
        while (*p == ' ' || *p == '\t')
            ++p;
        if (StartsNoCase(p, "script")) return pText;
        pText += 2;
    }
    return nullptr;
}

const char* FindHtmlComment(const char* pText) {
    const char* const pStart = pText;
    while (const char* p = std::strstr(pText, "--")) {
        if (p == pStart) return p;
        const unsigned char before = static_cast<unsigned char>(p[-1]);
        if (!std::isalnum(before) && before != '#') return p;
        while (*p == '-')
            ++p;
        pText = p;
    }
    return nullptr;
}

bool IsVBContinueText(const char* pText) {
    size_t n = std::strlen(pText);
    if (n > 0 && pText[n - 1] == '\r') --n;
    while (n > 0 && (pText[n - 1] == ' ' || pText[n - 1] == '\t'))
        --n;
    return n >= 2 && pText[n - 1] == '_' && (pText[n - 2] == ' ' || pText[n - 2] == '\t');
}

std::uint32_t MarkupOpener(const char* pLt, bool bXml) {
    const char c = pLt[1];
    // strchr finds the terminating zero too: a '<' at the very end opens a tag.
    if (!std::isalpha(static_cast<unsigned char>(c)) && !std::strchr(kOpenerBytes, c)) return 0;
    if (c == '?') return MS_PROCESSING;
    if (c == '%' && !bXml) return pLt[2] == '@' ? MS_DIRECTIVE : MS_SERVER;
    if (c == '!') return MS_DECLARATION;
    return MS_TAG;
}

int DirectiveLanguage(const char* pText) {
    if (const char* pLanguage = FindNoCase(pText, "language"))
        if (FindNoCase(pLanguage + 8, "java") || FindNoCase(pLanguage + 8, "jscript")) return 1;
    if (FindNoCase(pText, "vbscript")) return 0;
    return -1;
}

TagSectionStops ScanTagSection(const char* t, int p, std::uint32_t* pnState, bool bXml) {
    TagSectionStops stops{};
    stops.gt = OffsetOf(t, std::strchr(t + p, '>'));
    stops.dq = OffsetOf(t, std::strchr(t + p, '"'));
    stops.sq = OffsetOf(t, std::strchr(t + p, '\''));
    stops.cm = *pnState == MS_DECLARATION ? OffsetOf(t, FindHtmlComment(t + p)) : -1;
    if (*pnState == MS_TAG && !bXml) {
        const char* pScript = FindNoCase(t + p, "script");
        if (pScript == t + p + 1) {
            const char* pLanguage = FindNoCase(pScript, "language");
            *pnState =
                pLanguage && FindNoCase(pLanguage, "vbscript") ? MS_VBSCRIPT_TAG : MS_SCRIPT_TAG;
        }
    }
    stops.first = -1;
    for (int at : {stops.gt, stops.dq, stops.sq, stops.cm})
        if (at >= 0 && (stops.first < 0 || at < stops.first)) stops.first = at;
    return stops;
}
