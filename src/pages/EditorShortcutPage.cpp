#include "pages/EditorShortcutPage.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "editor/EditorDefaults.h"
#include "host/AppDataManager.h"
#include "host/VeskFile.h"
#include "pages/PageDialogs.h"
#include "platform/DataExchange.h"
#include "platform/Messages.h"
#include "zones/TextZoneParam.h"

namespace {

// Lines as the zone reads them: at most this many bytes.
constexpr size_t kMaxShortcutLine = 1023;
constexpr const char* kHeader = "Shortcut;P90\tText;P220";

std::string DataDirectory() {
    if (IAppDataManager* pManager = AppDataManager::LoadAppDataManager()) {
        if (IAppDirectory* pDirectory = pManager->GetDirectory()) {
            char buffer[1024] = {};
            if (pDirectory->GetDataDirectory(buffer, sizeof buffer, '\\') > 0) return buffer;
        }
    }
    return std::string();
}

std::string TrimRight(std::string text) {
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

}  // namespace

CEditorShortcutPage::CEditorShortcutPage(const char* pSection)
    : CPropertyPage(GetEditorShortcutDialog()),
      m_strSection(pSection ? pSection : "Editor_Shortcuts") {
    m_bEnable = ReadSettingInt(m_strSection.c_str(), "EnableShortcuts", 1);
}

std::string CEditorShortcutPage::ShortcutFilePath() {
    return DataDirectory() + kShortcutFileName;
}

void CEditorShortcutPage::DoDataExchange(CDataExchange* pDX) {
    CPropertyPage::DoDataExchange(pDX);
    DDX_Control(pDX, 1010, m_list);
    DDX_Control(pDX, 1008, m_editKey);
    DDX_Control(pDX, 1009, m_editText);
    DDX_Control(pDX, 1013, m_checkEnable);
}

BOOL CEditorShortcutPage::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    m_checkEnable.SetCheck(m_bEnable ? BST_CHECKED : BST_UNCHECKED);
    m_list.SetColumns(kHeader);

    std::FILE* pFile = std::fopen(ShortcutFilePath().c_str(), "rb");
    if (!pFile) return TRUE;
    // CR and LF each end a line, as for the zone; unlike the zone, a line
    // with an empty key or text is listed. An overlong line is dropped whole.
    std::string line;
    bool bOverlong = false;
    auto takeLine = [&] {
        if (!bOverlong && !line.empty() && line.find('\t') != std::string::npos)
            m_list.AddRow(line.c_str());
        line.clear();
        bOverlong = false;
    };
    for (int c; (c = std::fgetc(pFile)) != EOF;) {
        if (c == '\r' || c == '\n')
            takeLine();
        else if (line.size() < kMaxShortcutLine)
            line.push_back(static_cast<char>(c));
        else
            bOverlong = true;
    }
    takeLine();
    std::fclose(pFile);
    return TRUE;
}

void CEditorShortcutPage::LoadSelectedRow() {
    const int nRow = m_list.GetSelectedRow();
    if (nRow < 0) return;
    const std::string text = m_list.GetRowText(nRow);
    const size_t nTab = text.find('\t');
    m_editKey.SetWindowText(text.substr(0, nTab).c_str());
    m_editText.SetWindowText(nTab == std::string::npos ? "" : text.substr(nTab + 1).c_str());
}

void CEditorShortcutPage::OnSet() {
    char szKey[1024], szText[1024];
    m_editKey.GetWindowText(szKey, sizeof szKey);
    m_editText.GetWindowText(szText, sizeof szText);
    const std::string row = TrimRight(szKey) + "\t" + TrimRight(szText);
    const int nRow = m_list.GetSelectedRow();
    if (nRow < 0) {
        m_list.AddRow(row.c_str());
        m_editKey.SetWindowText("");
        m_editText.SetWindowText("");
        m_list.SelectRow(-1);
        return;
    }
    m_list.SetRow(nRow, row.c_str());
    m_list.SelectRow(nRow + 1 < m_list.GetRowCount() ? nRow + 1 : -1);
    LoadSelectedRow();
}

void CEditorShortcutPage::OnDelete() {
    const int nRow = m_list.GetSelectedRow();
    if (nRow < 0) return;
    m_list.DeleteRow(nRow);
    m_list.SelectRow(-1);
    m_editKey.SetWindowText("");
    m_editText.SetWindowText("");
}

void CEditorShortcutPage::OnControlNotify(int nID, int nCode) {
    if (nID == 1013 && nCode == BN_CLICKED)
        m_bEnable = m_checkEnable.GetCheck();
    else if (nID == 1010 && nCode == LVN_ITEMCHANGED)
        LoadSelectedRow();
    else if (nID == 1012 && nCode == BN_CLICKED)
        OnSet();
    else if (nID == 1011 && nCode == BN_CLICKED)
        OnDelete();
}

void CEditorShortcutPage::OnOK() {
    WriteSettingString(m_strSection.c_str(), "EnableShortcuts", m_bEnable ? "1" : nullptr);

    // A data directory that is not there yet is made, so the list the user
    // just edited is not lost. Without any data directory there is nowhere
    // to write: the current directory is not the user's.
    const std::string strDirectory = DataDirectory();
    HANDLE hFile = INVALID_HANDLE_VALUE;
    if (!strDirectory.empty()) {
        std::error_code ec;
        std::filesystem::create_directories(strDirectory, ec);
        hFile = VESK_CreateFile(ShortcutFilePath().c_str(), GENERIC_WRITE, 0, nullptr,
                                CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    if (hFile != INVALID_HANDLE_VALUE) {
        for (int i = 0; i < m_list.GetRowCount(); ++i) {
            std::string row = m_list.GetRowText(i);
            if (row.find('\t') == std::string::npos) continue;
            row += "\r\n";
            DWORD dwWritten = 0;
            if (!WriteFile(hFile, row.data(), static_cast<DWORD>(row.size()), &dwWritten, nullptr))
                break;
        }
        CloseHandle(hFile);
    }
    CPropertyPage::OnOK();
    SetModified(FALSE);
    CancelToClose();
    CEditorDefaults::BroadcastSettingsChanged();
}
