// Construction, the syntax colours and where they are read from, the view
// state a host keeps, and the pool of run records.
#include "colour/TextZoneColor.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "host/AppDataManager.h"
#include "textzone/ZoneScroll.h"

namespace {

struct SyntaxClass {
    const char* pszKey;
    COLORREF crDefault;
};

// In the order of m_crSyntax and of the class numbers 1 to 9.
constexpr SyntaxClass kClasses[9] = {
    {"Comment", 0x008000},  {"KeyWord1", 0xFF0000}, {"KeyWord2", 0x808000},
    {"KeyWord3", 0x800000}, {"KeyWord4", 0x000080}, {"KeyWord5", 0xFF0000},
    {"KeyWord6", 0xFF0000}, {"String", 0xFF00FF},   {"Variable", 0x0000FF},
};

// The order the store is read in: Comment, String, Variable, then the keywords.
constexpr int kReadOrder[9] = {0, 7, 8, 1, 2, 3, 4, 5, 6};

// "r,g,b" as three decimal numbers; a value without its two commas keeps the
// default. Nothing checks the range: each number is cut to its low 8 bits.
COLORREF ParseColor(const char* psz, COLORREF crDefault) {
    if (!*psz) return crDefault;
    const int r = std::atoi(psz);
    const char* p = std::strchr(psz, ',');
    if (!p) return crDefault;
    const int g = std::atoi(++p);
    p = std::strchr(p, ',');
    if (!p) return crDefault;
    const int b = std::atoi(p + 1);
    return static_cast<COLORREF>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}

}  // namespace

CTextZoneColor::CTextZoneColor() {
    m_freeColorDefs.reserve(32);
    m_colorDefs.reserve(32);
    ReadColorValues();
}

CTextZoneColor::~CTextZoneColor() {
    FreeParmCompletion();
    // Lines are CStringExColor objects made by CreateLine: the base frees them.
}

CStringEx* CTextZoneColor::CreateLine() {
    return NewLine<CStringExColor>();
}

CStringExColor* CTextZoneColor::GetColorLine(int nLine) {
    if (nLine < 0) return nullptr;
    // Every line of this zone comes from CreateLine, so it is a CStringExColor.
    return static_cast<CStringExColor*>(GetLine(nLine));
}

void CTextZoneColor::ReadColorValues() {
    for (int i : kReadOrder) {
        char buffer[4096] = "";
        IAppDataManager* pManager = AppDataManager::LoadAppDataManager();
        IAppSettings* pSettings = pManager ? pManager->GetSettings() : nullptr;
        if (pSettings)
            pSettings->ReadString("Colors", kClasses[i].pszKey, "", buffer, sizeof buffer, 0);
        m_crSyntax[i] = ParseColor(buffer, kClasses[i].crDefault);
    }
}

void CTextZoneColor::SetSyntaxColor(unsigned int nClass, unsigned long crColor) {
    if (nClass >= 1 && nClass <= 9) m_crSyntax[nClass - 1] = static_cast<COLORREF>(crColor);
}

unsigned long CTextZoneColor::GetSyntaxColor(unsigned int nClass) {
    return nClass >= 1 && nClass <= 9 ? m_crSyntax[nClass - 1] : 0;
}

void CTextZoneColor::EnableSyntaxColor(int bEnable, int bSlashSlash, int bDashDash, int bBackslash,
                                       int bSql, int bNested, int nSqlVersion) {
    m_bSyntaxColor = bEnable;
    m_bSlashSlashComment = bSlashSlash;
    m_bDashDashComment = bDashDash;
    m_bBackslashEscape = bBackslash;
    m_bSql = bSql;
    m_bNestedComment = bNested;
    m_nSqlVersion = nSqlVersion;
    m_bSlashStarComment = 1;
    m_bQuoteComment = 0;
    m_bTildeEscape = 0;
    m_bClientLanguage = 0;
    m_bCaseSensitive = 0;
    m_bJcl = 0;
    m_bQuotedId = nSqlVersion < 0 || nSqlVersion == 70 || nSqlVersion == 80 || nSqlVersion == 90;
    m_bProcCallNoParens = nSqlVersion > 0;
    ResetLastLines(0);
}

void CTextZoneColor::SetQuotedId(int bQuotedId) {
    m_bQuotedId = bQuotedId;
}

int CTextZoneColor::IsSyntaxColorEnabled() {
    return m_bSyntaxColor;
}

void CTextZoneColor::GetSettings(CTextZoneColorSettings* pSettings) {
    if (!pSettings) return;
    pSettings->m_wSelectionMode = GetSelectionMode();
    GetSelection(&pSettings->m_lSelStart, &pSettings->m_lSelEnd, &pSettings->m_nSelStartChar,
                 &pSettings->m_nSelEndChar, pSettings->m_wSelectionMode);
    pSettings->m_nHScrollPos = CZoneScroll(*this, false).GetPos();
    pSettings->m_nVScrollPos = CZoneScroll(*this, true).GetPos();
    pSettings->m_bookmarkedLines.clear();
    for (int n = 0; CStringEx* pLine = GetLine(n); ++n)
        if (pLine->m_dwBookmarks & 1) pSettings->m_bookmarkedLines.push_back(n);
}

void CTextZoneColor::SetSettings(CTextZoneColorSettings* pSettings) {
    if (!pSettings) {
        SetSelectionMode(TZ_SEL_STREAM);
        CancelSelection(0);
    } else {
        SetSelectionMode(pSettings->m_wSelectionMode);
        SetSelection(pSettings->m_lSelStart, pSettings->m_lSelEnd, pSettings->m_nSelStartChar,
                     pSettings->m_nSelEndChar, pSettings->m_wSelectionMode, 0);
        CZoneScroll(*this, false).SetPos(pSettings->m_nHScrollPos, TRUE);
        CZoneScroll(*this, true).SetPos(pSettings->m_nVScrollPos, TRUE);
        // Only bookmark 0 travels: the other bits of a listed line are lost.
        for (unsigned int n : pSettings->m_bookmarkedLines)
            if (n <= 0x7FFFFFFFu)
                if (CStringEx* pLine = GetLine(static_cast<int>(n))) pLine->m_dwBookmarks = 1;
    }
    RedrawTextZone();
}

void CTextZoneColor::AddColorDef(int nPos, COLORREF crColor) {
    auto it = std::lower_bound(m_colorDefs.begin(), m_colorDefs.end(), nPos,
                               [](const auto& def, int pos) { return def->nPos < pos; });
    if (it != m_colorDefs.end() && (*it)->nPos == nPos) {
        m_freeColorDefs.push_back(std::move(*it));
        it = m_colorDefs.erase(it);
    }
    m_colorDefs.insert(it, NewColorDef(nPos, crColor));
}

std::unique_ptr<CColorDef> CTextZoneColor::NewColorDef(int nPos, COLORREF crColor) {
    std::unique_ptr<CColorDef> def;
    if (!m_freeColorDefs.empty()) {
        def = std::move(m_freeColorDefs.back());
        m_freeColorDefs.pop_back();
    } else {
        def = std::make_unique<CColorDef>();
    }
    def->nPos = nPos;
    def->crColor = crColor;
    return def;
}

void CTextZoneColor::CloseColorDef(int nPos) {
    auto it = std::lower_bound(m_colorDefs.begin(), m_colorDefs.end(), nPos,
                               [](const auto& def, int pos) { return def->nPos < pos; });
    if (it != m_colorDefs.end() && (*it)->nPos == nPos) return;
    AddColorDef(nPos, m_crRunText);
}

void CTextZoneColor::AddTokenRuns(std::vector<TokenRun>& tokens) {
    // Adding a run replaces one at its place; a close gives way to any run
    // at its place. With tokens apart, that makes the order of the tokens
    // irrelevant: merge the runs there are with the starts and the closes.
    std::sort(tokens.begin(), tokens.end(),
              [](const TokenRun& a, const TokenRun& b) { return a.nStart < b.nStart; });
    auto take = [&](int nPos, COLORREF crColor) {
        m_mergedDefs.push_back(NewColorDef(nPos, crColor));
    };
    m_mergedDefs.clear();
    size_t e = 0;  // the runs there are
    size_t t = 0;  // token starts
    size_t c = 0;  // token closes, ascending as the tokens lie apart
    const size_t nRuns = m_colorDefs.size();
    const size_t nTokens = tokens.size();
    for (;;) {
        int p = INT_MAX;
        if (e < nRuns) p = std::min(p, m_colorDefs[e]->nPos);
        if (t < nTokens) p = std::min(p, tokens[t].nStart);
        if (c < nTokens) p = std::min(p, tokens[c].nEnd);
        if (p == INT_MAX) break;
        const bool bRun = e < nRuns && m_colorDefs[e]->nPos == p;
        const bool bStart = t < nTokens && tokens[t].nStart == p;
        if (bStart) {
            if (bRun) {
                m_colorDefs[e]->crColor = tokens[t].crColor;
                m_mergedDefs.push_back(std::move(m_colorDefs[e++]));
            } else {
                take(p, tokens[t].crColor);
            }
            ++t;
        } else if (bRun) {
            m_mergedDefs.push_back(std::move(m_colorDefs[e++]));
        } else {
            take(p, m_crRunText);
        }
        while (c < nTokens && tokens[c].nEnd == p)
            ++c;
    }
    m_colorDefs.swap(m_mergedDefs);
    m_mergedDefs.clear();
}

void CTextZoneColor::FreeColorDefs() {
    for (auto& def : m_colorDefs)
        m_freeColorDefs.push_back(std::move(def));
    m_colorDefs.clear();
}
