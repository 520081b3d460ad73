#include "host/UserDataDirectory.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace {

constexpr const char* kFolder = "textzone";

bool IsAbsolute(const char* psz) { return psz && psz[0] == '/'; }

}  // namespace

std::string CUserDataDirectory::Path() {
    // Relative values are invalid by the XDG rules and are ignored.
    const char* pszData = std::getenv("XDG_DATA_HOME");
    if (IsAbsolute(pszData)) return std::string(pszData) + "/" + kFolder;
    const char* pszHome = std::getenv("HOME");
    if (IsAbsolute(pszHome)) return std::string(pszHome) + "/.local/share/" + kFolder;
    return {};
}

bool CUserDataDirectory::CreateForWrite() {
    const std::string path = Path();
    if (path.empty()) return false;
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return !error && std::filesystem::is_directory(path, error);
}

int CUserDataDirectory::GetDataDirectory(char* buffer, int size, char separator) {
    return FormatDataDirectory(Path(), buffer, size, separator);
}
