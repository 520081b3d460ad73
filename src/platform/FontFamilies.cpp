#include "platform/FontFamilies.h"

#include <strings.h>
#include <cstring>

#include "platform/Messages.h"

namespace {

IFontFamilySource* g_pSource = nullptr;

}  // namespace

IFontFamilySource* SetFontFamilySource(IFontFamilySource* pSource) {
    IFontFamilySource* pOld = g_pSource;
    g_pSource = pSource;
    return pOld;
}

std::vector<FontFamilyInfo> GetBuiltInFontFamilies() {
    // The faces the headless backend measures: fixed ones every byte alike,
    // the others proportional.
    return {
        {"Courier New", true, true},    {"Courier", true, false}, {"Fixedsys", true, false},
        {"Lucida Console", true, true}, {"Arial", false, true},   {"MS Sans Serif", false, false},
        {"System", false, false},       {"Tahoma", false, true},  {"Times New Roman", false, true}};
}

int EnumFontFamiliesA(HDC, const char* pszFamily, FONTENUMPROCA pfn, LPARAM lParam) {
    if (!pfn) return 0;
    const std::vector<FontFamilyInfo> families =
        g_pSource ? g_pSource->GetFontFamilies() : GetBuiltInFontFamilies();
    int nResult = 1;
    for (const FontFamilyInfo& family : families) {
        if (pszFamily && strcasecmp(pszFamily, family.strFace.c_str()) != 0) continue;
        LOGFONTA lf{};
        std::strncpy(lf.lfFaceName, family.strFace.c_str(), sizeof lf.lfFaceName - 1);
        lf.lfPitchAndFamily = static_cast<BYTE>(family.bFixedPitch ? FIXED_PITCH : VARIABLE_PITCH);
        lf.lfWeight = FW_NORMAL;
        TEXTMETRICA tm{};
        nResult = pfn(&lf, &tm, family.bTrueType ? TRUETYPE_FONTTYPE : 0, lParam);
        if (!nResult) break;
    }
    return nResult;
}
