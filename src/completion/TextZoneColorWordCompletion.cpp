// Word completion of the coloured zone: Ctrl+Space finishes the word left of
// the caret from the language's keyword tables, either in a pick list or in
// place, where each further Ctrl+Space swaps the candidate for the next one.
// A candidate is a registered insertion (undo kind 11), and swapping is an
// Undo and a new insertion, so the text never holds two candidates and the
// undo stack tells whether anything else happened since.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "completion/CompletionList.h"
#include "completion/WordCompletionRules.h"
#include "host/Collator.h"
#include "platform/Caret.h"
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"

namespace {

constexpr short kUndoWordCompletion = 11;
constexpr int kMaxPrefix = 40;

}  // namespace

void CTextZoneColor::SetWordCompletion(unsigned int nMode) {
    // A zone that wraps paragraphs has no completion.
    m_nWordCompletion = (m_dwStyle & ZS_PARAGRAPH) ? 0 : nMode;
}

unsigned int CTextZoneColor::GetWordCompletion() {
    return m_nWordCompletion;
}

void CTextZoneColor::AddExtraCandidateKeyword(char const*, int) {}

void CTextZoneColor::ResetWordCompletion() {
    m_nCaseMode = 0;
    m_pCompletionUndo = nullptr;
    m_candidates.clear();
    m_bCompleting = 0;
    m_nCompletionMode = 0;
    m_posCandidate = m_candidates.end();
}

void CTextZoneColor::CompleteWord(int nMode) {
    const bool bShift = (GetKeyState(VK_SHIFT) & 0x8000) != 0;
    bool bStarted = false;
    if (!m_bCompleting) bStarted = StartWordCompletion(nMode);

    if (m_nWordCompletion >= 3 || m_candidates.size() < 2)
        CompleteInPlace(nMode, bStarted, bShift);
    else
        CompleteFromList(nMode);
}

bool CTextZoneColor::StartWordCompletion(int nMode) {
    if (TestSelection()) return false;
    CStringEx* pLine = GetLine(m_nSelStartLine);
    if (!pLine) return false;
    const char* p = pLine->c_str();
    const int nLength = pLine->GetLength() - pLine->IsEnded();
    const int nCaret = m_nSelStartChar;
    if (nCaret < 1 || nCaret > nLength) return false;
    if (!IsWordCompletionChar(static_cast<unsigned char>(p[nCaret - 1]))) return false;
    if (nCaret < pLine->GetVisibleLength() && p[nCaret] != ' ' && p[nCaret] != '\t') return false;

    int nStart = nCaret;
    while (nStart > 0 && IsWordCompletionChar(static_cast<unsigned char>(p[nStart - 1])))
        --nStart;
    if (nCaret - nStart > kMaxPrefix) return false;
    m_nWordStart = nStart;
    m_nWordLength = nCaret - nStart;
    const std::string typed(p + nStart, static_cast<size_t>(m_nWordLength));
    std::string lowered = typed;
    for (char& c : lowered)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));

    m_nCaseMode = CaseModeOf(typed.c_str(), m_nWordCompletion);
    m_nCompletionMode = nMode;

    m_candidates.clear();
    const char* pExtraPrefix = typed.c_str();
    if (nMode == 0) {
        const char** tables[6] = {};
        DefineKeywordList(tables);
        const size_t n = typed.size();
        for (int t = 0; t < 6; ++t) {
            // SQL keywords are matched folded, its datatypes (table 1) as typed.
            const bool bLowered = (m_bSql || m_bClientLanguage) && t != 1;
            const char* pPrefix = bLowered ? lowered.c_str() : typed.c_str();
            pExtraPrefix = pPrefix;
            if (!tables[t]) continue;
            for (const char** pp = tables[t]; *pp && **pp; ++pp) {
                if (std::strncmp(*pp, pPrefix, n) != 0 || std::strlen(*pp) <= n) continue;
                m_candidates.emplace_back(*pp);
                if (!bLowered && m_nCaseMode != 3) m_nCaseMode = 0;
            }
        }
    }
    // A derived zone sees the prefix of the last table, as matched there.
    const std::string extra = pExtraPrefix;
    AddExtraCandidateKeyword(extra.c_str(), nMode);

    std::vector<std::string> words;
    for (const VESK::String& s : m_candidates)
        words.emplace_back(s.c_str());
    SortCandidates(words);
    m_candidates.clear();
    for (const std::string& w : words)
        m_candidates.emplace_back(w.c_str());

    m_posCandidate = m_candidates.end();
    if (!m_candidates.empty()) m_bCompleting = 1;
    return true;
}

std::string CTextZoneColor::CandidateText(const char* pWord, int nMode) {
    std::string text = pWord;
    if (nMode == 0) ApplyCaseMode(text, m_nCaseMode);
    return text + ' ';
}

void CTextZoneColor::InsertCandidate(const std::string& text) {
    const int nLine = m_nSelStartLine;
    SetSelectionMode(TZ_SEL_STREAM);
    SetSelection(nLine, nLine, m_nWordStart, m_nWordStart + m_nWordLength, 0, 1);
    StartRegister(kUndoWordCompletion);
    InsertText(text.c_str(), 0, 1, 1);
    EndRegister();
    m_pCompletionUndo = m_undoList.empty() ? nullptr : m_undoList.back().get();
}

void CTextZoneColor::CompleteInPlace(int nMode, bool bStarted, bool bShift) {
    if (!m_bCompleting) return;
    // Another edit has taken place behind the cycle's back. The kind is
    // checked too: an operation freed by an undo and a new edit can come
    // back at the same address.
    if (!bStarted && (m_undoList.empty() || m_undoList.back().get() != m_pCompletionUndo ||
                      m_undoList.back()->m_wType != kUndoWordCompletion)) {
        ResetWordCompletion();
        return;
    }
    const auto end = m_candidates.end();
    if (!bShift) {
        if (m_posCandidate == end || std::next(m_posCandidate) == end)
            m_posCandidate = m_candidates.begin();
        else
            ++m_posCandidate;
    } else {
        if (m_posCandidate == end || m_posCandidate == m_candidates.begin())
            m_posCandidate = std::prev(end);
        else
            --m_posCandidate;
    }
    const std::string text = CandidateText(m_posCandidate->c_str(), nMode);
    // The previous candidate goes, with its blank, and the prefix is back.
    if (!bStarted) Undo();
    InsertCandidate(text);
}

void CTextZoneColor::CompleteFromList(int nMode) {
    POINT ptCaret;
    if (!m_bCompleting || !m_pWnd || !::GetCaretPos(&ptCaret)) return;
    HideCaret();

    std::vector<std::string> items;
    int w = 0;
    int cy = 0;
    CDC* pDC = GetStandardDC();
    for (const VESK::String& s : m_candidates) {
        items.emplace_back(s.c_str());
        if (pDC) {
            const CSize size = pDC->GetTextExtent(s.c_str(), static_cast<int>(s.GetLength()));
            w = std::max(w, static_cast<int>(size.cx));
            cy = size.cy;
        }
    }
    ReleaseStandardDC(pDC);
    const RECT rc =
        PickListRect(ptCaret, w, cy, static_cast<int>(items.size()), GetSystemMetrics(SM_CXBORDER),
                     GetSystemMetrics(SM_CYBORDER), GetSystemMetrics(SM_CXVSCROLL));

    SetCompletionListShown(true);
    IPlatform* pPlatform = GetPlatform();
    const int nChosen = pPlatform ? pPlatform->RunPickList(m_pWnd, rc, m_hFont, items) : -1;
    SetCompletionListShown(false);

    if (nChosen >= 0 && nChosen < static_cast<int>(items.size()))
        InsertCandidate(CandidateText(items[static_cast<size_t>(nChosen)].c_str(), nMode));
    // The list never leaves a cycle open.
    ResetWordCompletion();
    DrawCaret(1, 1);
}
