// The settings store of a Qt host: an INI file in the user's configuration
// directory, $XDG_CONFIG_HOME/textzone/textzone.ini (~/.config/... when that
// is unset or not absolute), read and written through QSettings. The data
// directory, where "ed_short.txt" lives, is the per-user data directory.
//
// Every read goes to the file, so a change made by a preference page, by
// another process or by hand is seen at the next read. A missing file, an
// unreadable file and a value that does not parse give the caller's default.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>
#include <string>

#include "TextzoneQtExport.h"
#include "host/AppDataManager.h"
#include "host/UserDataDirectory.h"

class TEXTZONE_QT_EXPORT CQtAppDataManager : public IAppDataManager, public IAppSettings {
public:
    // The file from the environment now.
    CQtAppDataManager();
    // A file of the host's choosing.
    explicit CQtAppDataManager(std::string filePath);
    ~CQtAppDataManager() override;
    CQtAppDataManager(const CQtAppDataManager&) = delete;
    CQtAppDataManager& operator=(const CQtAppDataManager&) = delete;

    // Installs a store on the user's file for the rest of the process, once,
    // and returns it: the one call a Qt host makes at start-up.
    static CQtAppDataManager& InstallForProcess();

    // $XDG_CONFIG_HOME/textzone/textzone.ini or ~/.config/textzone/textzone.ini;
    // empty when neither gives an absolute directory.
    static std::string DefaultFilePath();
    const std::string& GetFilePath() const { return m_strFilePath; }

    // IAppDataManager
    IAppSettings* GetSettings() override;
    IAppDirectory* GetDirectory() override;

    // IAppSettings. A value the INI syntax reads as a list (a colour written
    // by hand as 0,127,0) reads as its parts joined by commas. Integers are
    // decimal or 0x hexadecimal, up to 32 bits; anything else gives def.
    void ReadString(const char* section, const char* key, const char* def, char* buffer, int size,
                    int reserved) override;
    int ReadInt(const char* section, const char* key, int def, int reserved) override;
    void WriteString(const char* section, const char* key, const char* value) override;
    void WriteInt(const char* section, const char* key, int value) override;

private:
    QVariant ReadValue(const char* section, const char* key);
    void WriteValue(const char* section, const char* key, const QVariant& value);

    std::string m_strFilePath;
    CUserDataDirectory m_directory;
    // The last bytes read from the file and what they hold.
    bool m_bParsed = false;
    QByteArray m_parsedBytes;
    QMap<QString, QVariant> m_parsedValues;
};
