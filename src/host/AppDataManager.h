// The host's settings store and data directory. A host installs one manager;
// the editor asks for it afresh at every read, so a manager swapped at run
// time (or removed) takes effect at once.
#pragma once

#include <string>

#include "TextzoneExport.h"

// Named values in sections, like a profile file.
class TEXTZONE_EXPORT IAppSettings {
public:
    virtual ~IAppSettings() = default;
    // Copies the value, or def when there is none, into buffer: at most
    // size - 1 bytes, always 0-ended. A null def reads as empty. reserved is 0.
    virtual void ReadString(const char* section, const char* key, const char* def, char* buffer,
                            int size, int reserved) = 0;
    // The stored value as a decimal number, or def when there is none.
    virtual int ReadInt(const char* section, const char* key, int def, int reserved) = 0;
    // A null value removes the key.
    virtual void WriteString(const char* section, const char* key, const char* value) = 0;
    virtual void WriteInt(const char* section, const char* key, int value) = 0;
};

class TEXTZONE_EXPORT IAppDirectory {
public:
    virtual ~IAppDirectory() = default;
    // Fills buffer with the data directory, ending in the separator, and
    // returns its length; 0 (and an empty buffer) if it does not fit or there
    // is no directory. Callers pass '\\'; on this system it is written as '/'.
    virtual int GetDataDirectory(char* buffer, int size, char separator) = 0;
};

class TEXTZONE_EXPORT IAppDataManager {
public:
    // GetSettings must stay the first virtual operation: callers reach the
    // settings object through it before anything else. Either may be null.
    virtual IAppSettings* GetSettings() = 0;
    virtual IAppDirectory* GetDirectory() = 0;
    virtual ~IAppDataManager() = default;
};

class TEXTZONE_EXPORT AppDataManager {
public:
    // The installed manager, or null.
    static IAppDataManager* LoadAppDataManager();
    // Not owned; null uninstalls. The caller keeps it alive while installed.
    static void InstallAppDataManager(IAppDataManager* pManager);
};

// Reads as the editor does them, from the manager installed at the time of the
// call, with a 4096-byte string buffer. Without a manager or settings object an
// integer reads 0 (not def) and a string reads empty, and writes are dropped.
TEXTZONE_EXPORT std::string ReadSettingString(const char* section, const char* key,
                                              const char* def);
TEXTZONE_EXPORT int ReadSettingInt(const char* section, const char* key, int def);
TEXTZONE_EXPORT void WriteSettingString(const char* section, const char* key, const char* value);
TEXTZONE_EXPORT void WriteSettingInt(const char* section, const char* key, int value);

// For implementations of the interfaces above.
// Copies value into buffer by the ReadString rule (truncated, always 0-ended).
TEXTZONE_EXPORT void CopySettingString(const std::string& value, char* buffer, int size);
// Formats directory by the GetDataDirectory rule; an empty directory gives 0.
TEXTZONE_EXPORT int FormatDataDirectory(const std::string& directory, char* buffer, int size,
                                        char separator);
