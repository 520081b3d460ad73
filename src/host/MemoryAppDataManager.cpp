#include "host/MemoryAppDataManager.h"

#include <cstdlib>

CMemoryAppDataManager::Key CMemoryAppDataManager::MakeKey(const char* section, const char* key) {
    return {section ? section : "", key ? key : ""};
}

IAppSettings* CMemoryAppDataManager::GetSettings() {
    std::lock_guard lock(m_mutex);
    return m_bSettingsAvailable ? static_cast<IAppSettings*>(this) : nullptr;
}

IAppDirectory* CMemoryAppDataManager::GetDirectory() {
    std::lock_guard lock(m_mutex);
    return m_bDirectoryAvailable ? static_cast<IAppDirectory*>(this) : nullptr;
}

void CMemoryAppDataManager::ReadString(const char* section, const char* key, const char* def,
                                       char* buffer, int size, int /*reserved*/) {
    std::string value;
    {
        std::lock_guard lock(m_mutex);
        auto it = m_mapValues.find(MakeKey(section, key));
        if (it != m_mapValues.end())
            value = it->second;
        else if (def)
            value = def;
    }
    CopySettingString(value, buffer, size);
}

int CMemoryAppDataManager::ReadInt(const char* section, const char* key, int def,
                                   int /*reserved*/) {
    std::lock_guard lock(m_mutex);
    auto it = m_mapValues.find(MakeKey(section, key));
    // atoi as a profile file reads numbers: leading digits count, junk reads 0.
    return it != m_mapValues.end() ? std::atoi(it->second.c_str()) : def;
}

void CMemoryAppDataManager::WriteString(const char* section, const char* key, const char* value) {
    std::lock_guard lock(m_mutex);
    Key k = MakeKey(section, key);
    std::string record = k.first + "/" + k.second;
    if (value) {
        m_mapValues[k] = value;
        record += "=";
        record += value;
    } else {
        m_mapValues.erase(k);
    }
    m_arrWriteLog.push_back(std::move(record));
}

void CMemoryAppDataManager::WriteInt(const char* section, const char* key, int value) {
    WriteString(section, key, std::to_string(value).c_str());
}

int CMemoryAppDataManager::GetDataDirectory(char* buffer, int size, char separator) {
    std::lock_guard lock(m_mutex);
    return FormatDataDirectory(m_strDataDirectory, buffer, size, separator);
}

void CMemoryAppDataManager::SetDataDirectory(std::string directory) {
    std::lock_guard lock(m_mutex);
    m_strDataDirectory = std::move(directory);
}

void CMemoryAppDataManager::SetSettingsAvailable(bool bAvailable) {
    std::lock_guard lock(m_mutex);
    m_bSettingsAvailable = bAvailable;
}

void CMemoryAppDataManager::SetDirectoryAvailable(bool bAvailable) {
    std::lock_guard lock(m_mutex);
    m_bDirectoryAvailable = bAvailable;
}

bool CMemoryAppDataManager::HasValue(const char* section, const char* key) const {
    std::lock_guard lock(m_mutex);
    return m_mapValues.count(MakeKey(section, key)) != 0;
}

std::vector<std::string> CMemoryAppDataManager::GetWriteLog() const {
    std::lock_guard lock(m_mutex);
    return m_arrWriteLog;
}

void CMemoryAppDataManager::ClearWriteLog() {
    std::lock_guard lock(m_mutex);
    m_arrWriteLog.clear();
}
