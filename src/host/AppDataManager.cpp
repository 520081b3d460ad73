#include "host/AppDataManager.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace {

// Atomic because the completion thread may read settings while the UI thread
// installs a manager.
std::atomic<IAppDataManager*> g_pManager{nullptr};

constexpr int kStringBufferSize = 4096;

IAppSettings* CurrentSettings() {
    IAppDataManager* pManager = AppDataManager::LoadAppDataManager();
    return pManager ? pManager->GetSettings() : nullptr;
}

}  // namespace

IAppDataManager* AppDataManager::LoadAppDataManager() {
    return g_pManager.load();
}

void AppDataManager::InstallAppDataManager(IAppDataManager* pManager) {
    g_pManager.store(pManager);
}

std::string ReadSettingString(const char* section, const char* key, const char* def) {
    IAppSettings* pSettings = CurrentSettings();
    if (!pSettings) return {};
    char buffer[kStringBufferSize];
    buffer[0] = 0;
    pSettings->ReadString(section, key, def, buffer, kStringBufferSize, 0);
    buffer[kStringBufferSize - 1] = 0;  // a careless store must not run us off the end
    return buffer;
}

int ReadSettingInt(const char* section, const char* key, int def) {
    IAppSettings* pSettings = CurrentSettings();
    return pSettings ? pSettings->ReadInt(section, key, def, 0) : 0;
}

void WriteSettingString(const char* section, const char* key, const char* value) {
    if (IAppSettings* pSettings = CurrentSettings()) pSettings->WriteString(section, key, value);
}

void WriteSettingInt(const char* section, const char* key, int value) {
    if (IAppSettings* pSettings = CurrentSettings()) pSettings->WriteInt(section, key, value);
}

void CopySettingString(const std::string& value, char* buffer, int size) {
    if (!buffer || size <= 0) return;
    std::size_t n = std::min(value.size(), static_cast<std::size_t>(size - 1));
    std::memcpy(buffer, value.data(), n);
    buffer[n] = 0;
}

int FormatDataDirectory(const std::string& directory, char* buffer, int size, char separator) {
    if (!buffer || size <= 0) return 0;
    buffer[0] = 0;
    if (directory.empty()) return 0;
    // Callers always ask for the desktop separator; paths here use '/'.
    char sep = (separator == '\\' || separator == 0) ? '/' : separator;
    std::string path = directory;
    if (path.back() != sep) path += sep;
    if (path.size() + 1 > static_cast<std::size_t>(size)) return 0;
    std::memcpy(buffer, path.c_str(), path.size() + 1);
    return static_cast<int>(path.size());
}
