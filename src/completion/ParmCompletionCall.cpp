// A typed byte that may start a routine call: "(" behind a name, or in the
// SQL dialects that call procedures without parentheses a blank behind
// "exec name". The name is read back from the trigger on the copy of the
// line without comments and strings; the host is asked about it once.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>

#include "colour/TextZoneColor.h"
#include "completion/CompletionTooltip.h"
#include "completion/OpenParmComp.h"
#include "completion/ParmCompRequest.h"
#include "completion/ParmCompSet.h"

namespace {

bool IsNameChar(unsigned char c) {
    return std::isalnum(c) || c == '_' || c == '#' || c == '@' || c == '$' ||
           (c >= 128 && c <= 254);
}

bool IsAllDigits(const std::string& s) {
    return !s.empty() && std::all_of(s.begin(), s.end(), [](char c) {
        return std::isdigit(static_cast<unsigned char>(c));
    });
}

bool IsExec(const std::string& s) {
    std::string lower;
    for (char c : s)
        lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower == "exec" || lower == "execute";
}

// The name that ends at index nEnd of text (inclusive): a quoted name back
// to its opening quote, a bracketed one back to its "[", otherwise the run
// of name bytes (with ";" when bGroup). *pnStart gets where it starts.
std::string NameBefore(const std::string& text, int nEnd, bool bGroup, int* pnStart) {
    *pnStart = nEnd + 1;
    if (nEnd < 0) return {};
    const char b = text[static_cast<size_t>(nEnd)];
    int start = nEnd;
    if (b == '"') {
        // A doubled quote stands inside the name.
        int k = nEnd - 1;
        while (k >= 0) {
            if (text[static_cast<size_t>(k)] == '"') {
                if (k > 0 && text[static_cast<size_t>(k - 1)] == '"') {
                    k -= 2;
                    continue;
                }
                break;
            }
            --k;
        }
        if (k < 0) return {};
        start = k;
    } else if (b == ']') {
        const size_t k = text.rfind('[', static_cast<size_t>(nEnd));
        if (k == std::string::npos) return {};
        start = static_cast<int>(k);
    } else {
        while (start >= 0 &&
               (IsNameChar(static_cast<unsigned char>(text[static_cast<size_t>(start)])) ||
                (bGroup && text[static_cast<size_t>(start)] == ';')))
            --start;
        ++start;
    }
    *pnStart = start;
    return text.substr(static_cast<size_t>(start), static_cast<size_t>(nEnd - start + 1));
}

int SkipBack(const std::string& text, int n, bool bLineFeeds) {
    while (n >= 0 && (text[static_cast<size_t>(n)] == ' ' || text[static_cast<size_t>(n)] == '\t' ||
                      (bLineFeeds && text[static_cast<size_t>(n)] == 10)))
        --n;
    return n;
}

}  // namespace

void CTextZoneColor::HandleCharForCompletion(unsigned int nChar, unsigned int, unsigned int) {
    if (TestSelection()) return;
    const char c = static_cast<char>(nChar);
    const bool bBlank = c == ' ' || c == '\t';
    bool bOpened = false;

    // Reads the call the trigger starts, if any: its kind and name.
    auto findCall = [&](int* pnKind, std::string* pName) -> bool {
        if (c != '(' && !(bBlank && m_bProcCallNoParens)) return false;
        const int nLine = m_nSelStartLine;
        const int at = m_nSelStartChar - 1;
        CStringEx free;
        GetCommentAndStringFreeLine(&free, nLine, 0);
        if (at < 0 || at >= free.GetLength() || free[at] != c)
            return false;  // in a comment or string
        GetCommentAndStringFreeLine(&free, nLine, 1);
        const std::string text(free.c_str(), static_cast<size_t>(free.GetLength()));

        const int end = SkipBack(text, at - 1, true);
        if (end < 0) return false;
        const char b = text[static_cast<size_t>(end)];
        if (b == 0 || std::strchr("\r()*+-./;=^~", b)) return false;
        int start = 0;
        std::string name = NameBefore(text, end, true, &start);
        if (name.empty()) return false;
        if (c == '(') {
            *pnKind = 1;
            *pName = name;
            return true;
        }

        // A group number: "proc;2", "proc ;2" and "proc ; 2" all name proc;2.
        bool bGroup = false;
        const size_t semi = name.find(';');
        if (IsAllDigits(name) ||
            (semi != std::string::npos && IsAllDigits(name.substr(semi + 1)))) {
            std::string number = semi == std::string::npos ? name : name.substr(semi + 1);
            std::string word = semi == std::string::npos ? std::string() : name.substr(0, semi);
            if (word.empty()) {
                int k = SkipBack(text, start - 1, false);
                if (semi == std::string::npos) {
                    if (k < 0 || text[static_cast<size_t>(k)] != ';') return false;  // a value
                    k = SkipBack(text, k - 1, false);
                }
                word = NameBefore(text, k, false, &start);
                if (word.empty()) return false;
            }
            name = word + ";" + number;
            bGroup = true;
        }
        // A qualified name: "db..owner.proc" is one name, blanks dropped.
        for (;;) {
            int k = SkipBack(text, start - 1, false);
            if (k < 0 || text[static_cast<size_t>(k)] != '.') break;
            k = SkipBack(text, k - 1, false);
            int wordStart = k + 1;
            const std::string word = NameBefore(text, k, false, &wordStart);
            name = word + "." + name;
            start = wordStart;
        }
        // A batch may call a routine by its first word.
        if (nLine == 0 && start == 0 && !IsExec(name)) {
            *pnKind = 0;
            *pName = name;
            return BlankCallMayOpen(bGroup, name);
        }
        int k = SkipBack(text, start - 1, true);
        int wordStart = 0;
        std::string before = NameBefore(text, k, false, &wordStart);
        if (before.empty() && k >= 0 && text[static_cast<size_t>(k)] == '=') {
            // exec @r = proc
            k = SkipBack(text, k - 1, true);
            const std::string variable = NameBefore(text, k, false, &wordStart);
            if (variable.empty() || variable[0] != '@') return false;
            k = SkipBack(text, wordStart - 1, true);
            before = NameBefore(text, k, false, &wordStart);
        }
        if (!IsExec(before)) return false;
        *pnKind = 0;
        *pName = name;
        return BlankCallMayOpen(bGroup, name);
    };

    int nKind = 0;
    std::string name;
    if (findCall(&nKind, &name)) {
        CParmCompSet* pSet = nullptr;
        bool bAsk = false;
        {
            std::lock_guard<std::mutex> lock(m_parmLock);
            for (CParmCompSet* p : m_parmSets)
                if (p->nKind == nKind && p->strName == name.c_str()) {
                    pSet = p;
                    break;
                }
            if (!pSet) {
                const bool bAsked = std::any_of(
                    m_parmRequests.begin(), m_parmRequests.end(), [&](const CParmCompRequest* r) {
                        return r->nKind == nKind && r->strName == name.c_str();
                    });
                // The question is out already: its answer will find no call.
                if (!bAsked) {
                    auto* pRequest = new CParmCompRequest;
                    pRequest->nKind = nKind;
                    pRequest->strName = name.c_str();
                    m_parmRequests.push_back(pRequest);
                    bAsk = true;
                }
            }
        }
        if (pSet || bAsk) {
            auto* pComp = new COpenParmComp;
            pComp->nLine = m_nSelStartLine;
            pComp->nChar = m_nSelStartChar;
            pComp->nKind = nKind;
            pComp->strName = name.c_str();
            pComp->pSet = pSet;
            m_openParmComps.push_back(pComp);
            bOpened = true;
            if (pSet)
                OpenParmTooltip(pComp);
            else
                OnNewParmCompletionRequest(nKind, name.c_str());
        }
    }

    UpdateParmTooltipStatus();

    // Mode 2 types the name of the parameter the caret has come to.
    if (m_nParmCompletionMode == 2 && (bOpened || c == ',') && !m_openParmComps.empty() &&
        m_pParmTooltip) {
        const CParmCompSet* pSet = m_openParmComps.back()->pSet;
        const int nParm = m_pParmTooltip->GetActiveParm();
        if (pSet && !pSet->strNames.IsEmpty() && nParm >= 0) InsertParmName(nParm, c == ',');
    }
}

bool CTextZoneColor::BlankCallMayOpen(bool bGroup, const std::string& name) {
    // Blanks inside a call open no call of their own; the one exception is
    // a group number added to the name of the only call.
    if (m_openParmComps.empty()) return true;
    if (m_openParmComps.size() != 1) return false;
    const COpenParmComp* pOnly = m_openParmComps.back();
    const std::string open = pOnly->strName.c_str();
    if (pOnly->nKind != 0 || !bGroup || name.compare(0, open.size(), open) != 0) return false;
    CloseParmTooltip(1);
    return true;
}
