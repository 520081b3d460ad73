// A settings store held in memory, for tests and hosts without a profile file.
// It records every write in order so that callers' write sequences can be
// checked, and can pretend to have no settings object or no data directory.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "TextzoneExport.h"
#include "host/AppDataManager.h"

class TEXTZONE_EXPORT CMemoryAppDataManager : public IAppDataManager,
                                              public IAppSettings,
                                              public IAppDirectory {
public:
    CMemoryAppDataManager() = default;
    CMemoryAppDataManager(const CMemoryAppDataManager&) = delete;
    CMemoryAppDataManager& operator=(const CMemoryAppDataManager&) = delete;

    // IAppDataManager
    IAppSettings* GetSettings() override;
    IAppDirectory* GetDirectory() override;

    // IAppSettings
    void ReadString(const char* section, const char* key, const char* def, char* buffer, int size,
                    int reserved) override;
    int ReadInt(const char* section, const char* key, int def, int reserved) override;
    void WriteString(const char* section, const char* key, const char* value) override;
    void WriteInt(const char* section, const char* key, int value) override;

    // IAppDirectory
    int GetDataDirectory(char* buffer, int size, char separator) override;

    void SetDataDirectory(std::string directory);
    // With false, GetSettings() / GetDirectory() return null.
    void SetSettingsAvailable(bool bAvailable);
    void SetDirectoryAvailable(bool bAvailable);

    bool HasValue(const char* section, const char* key) const;
    // One record per write, oldest first: "section/key=value", or
    // "section/key" alone when the key was removed.
    std::vector<std::string> GetWriteLog() const;
    void ClearWriteLog();

private:
    using Key = std::pair<std::string, std::string>;
    static Key MakeKey(const char* section, const char* key);

    mutable std::mutex m_mutex;
    std::map<Key, std::string> m_mapValues;
    std::vector<std::string> m_arrWriteLog;
    std::string m_strDataDirectory;
    bool m_bSettingsAvailable = true;
    bool m_bDirectoryAvailable = true;
};
