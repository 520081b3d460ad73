// The shortcut table: read from the shortcut file in the settings store's
// data directory, expanded when a blank is typed behind a stored word.
#include <cctype>
#include <cstdio>
#include <string>

#include "host/AppDataManager.h"
#include "zones/TextZoneParam.h"

namespace {

// A line holds at most this many bytes.
constexpr size_t kMaxShortcutLine = 1023;
// Longer words never expand, whatever the table holds.
constexpr int kMaxShortcutKey = 31;
// The expansion and its blank must fit here.
constexpr size_t kExpansionBuffer = 256;

std::string ShortcutFilePath() {
    std::string path;
    if (IAppDataManager* pManager = AppDataManager::LoadAppDataManager()) {
        if (IAppDirectory* pDirectory = pManager->GetDirectory()) {
            char buffer[1024] = {};
            if (pDirectory->GetDataDirectory(buffer, sizeof buffer, '\\') > 0) path = buffer;
        }
    }
    return path + kShortcutFileName;
}

bool IsShortcutByte(unsigned char c) {
    return c >= 0x80 || std::isalnum(c) || c == '#' || c == '@' || c == '_';
}

}  // namespace

void CTextZoneParam::EnableShortcuts(int bEnable) {
    m_bShortcuts = bEnable;
    if (bEnable == 1)
        LoadShortcuts();
    else
        m_shortcutList.clear();
}

void CTextZoneParam::LoadShortcuts() {
    m_shortcutList.clear();
    std::FILE* pFile = std::fopen(ShortcutFilePath().c_str(), "rb");
    if (!pFile) return;

    std::string line;
    bool bOverlong = false;
    auto takeLine = [&] {
        const size_t tab = line.find('\t');
        // An overlong line is dropped whole rather than cut: a cut text would
        // expand into something the user never stored.
        if (!bOverlong && tab != std::string::npos && tab > 0 && tab + 1 < line.size()) {
            auto pEntry = std::make_unique<ShortcutEntry>();
            pEntry->m_strKey = line.substr(0, tab).c_str();
            pEntry->m_strText = line.substr(tab + 1).c_str();
            m_shortcutList.push_back(std::move(pEntry));
        }
        line.clear();
        bOverlong = false;
    };
    // CR and LF each end a line, so CR LF leaves an empty line between,
    // which has no TAB and is skipped. A read error ends the file.
    for (int c; (c = std::fgetc(pFile)) != EOF;) {
        if (c == '\r' || c == '\n') {
            takeLine();
        } else if (line.size() < kMaxShortcutLine) {
            line.push_back(static_cast<char>(c));
        } else {
            bOverlong = true;
        }
    }
    takeLine();
    std::fclose(pFile);
}

void CTextZoneParam::ExpandShortcut(UINT nChar, int bHadSelection) {
    if (m_bReadOnly || !m_bSql || !m_bShortcuts || bHadSelection || nChar != ' ') return;
    const int nCaret = m_nSelStartChar;
    if (nCaret - 1 < 1) return;
    CStringEx* pLine = GetLine(m_nSelStartLine);
    if (!pLine || nCaret > pLine->GetLength()) return;

    int nStart = nCaret - 1;
    while (nStart > 0 && IsShortcutByte(static_cast<unsigned char>((*pLine)[nStart - 1])))
        --nStart;
    const int nKey = nCaret - 1 - nStart;
    if (nKey == 0 || nKey > kMaxShortcutKey) return;
    const std::string key(pLine->c_str() + nStart, static_cast<size_t>(nKey));

    for (const auto& pEntry : m_shortcutList) {
        if (pEntry->m_strKey != key.c_str()) continue;
        // The stored text and the blank the user typed; a text too long for
        // the buffer is cut, keeping the blank.
        std::string text = pEntry->m_strText.c_str();
        if (text.size() > kExpansionBuffer - 2) text.resize(kExpansionBuffer - 2);
        text += ' ';
        SetSelection(m_nSelStartLine, m_nSelStartLine, nStart, nCaret, 0, 1);
        StartRegister(TZ_EDIT_REPLACE);
        InsertText(text.c_str(), 0, 1, 1);
        EndRegister();
        return;
    }
}
