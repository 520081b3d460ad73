#include "host/qt/QtAppDataManager.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "platform/qt/Windows1252.h"

namespace {

bool IsAbsolute(const char* psz) { return psz && psz[0] == '/'; }

QString ToQt(const char* psz) {
    return psz ? CWindows1252::ToQString(psz, static_cast<int>(std::strlen(psz))) : QString();
}

QString SettingName(const char* section, const char* key) {
    const QString strSection = ToQt(section);
    return strSection.isEmpty() ? ToQt(key) : strSection + '/' + ToQt(key);
}

// The file's bytes; empty for a missing or unreadable file, which reads as no
// settings at all.
QByteArray ReadAllBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
}

// Qt keeps its parsed copy of a settings file for as long as the file's size
// and modification time stay the same, and file times are coarse (a clock
// tick): a rewrite of the same size within one tick would go unseen. So Qt
// is handed a private copy of the bytes under a name never used before in
// this process, which it has to parse afresh.
class CScratchFiles {
public:
    static CScratchFiles& Instance() {
        static CScratchFiles files;
        return files;
    }
    // A path for a new copy; empty when there is no temporary directory.
    QString NewPath() {
        if (!m_dir.isValid()) return {};
        return m_dir.filePath(QString("copy-%1.ini").arg(m_nNext.fetch_add(1)));
    }

private:
    QTemporaryDir m_dir;
    std::atomic<std::uint64_t> m_nNext{0};
};

QString WriteScratch(const QByteArray& bytes) {
    const QString path = CScratchFiles::Instance().NewPath();
    if (path.isEmpty()) return {};
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return path;
    file.remove();
    return {};
}

// Reads and writes of all managers are serialised: they may come from the
// completion thread as well as the window's.
std::mutex g_fileMutex;

bool ParseInt(const QString& text, int* pValue) {
    const QString s = text.trimmed();
    bool ok = false;
    qlonglong value = 0;
    if (s.startsWith("0x", Qt::CaseInsensitive))
        value = s.mid(2).toLongLong(&ok, 16);
    else
        value = s.toLongLong(&ok, 10);
    // Colours are 32-bit: 0xFFFFFFFF is as good as -1.
    if (!ok || value < INT32_MIN || value > static_cast<qlonglong>(UINT32_MAX)) return false;
    *pValue = static_cast<int>(static_cast<std::uint32_t>(value));
    return true;
}

// The text of a value as the editor reads it; false for a value that is no
// text (a point, a rectangle, ...).
bool ValueText(const QVariant& value, QString* pText) {
    if (value.typeId() == QMetaType::QStringList) {
        // Comma-separated by hand and not quoted: "0, 127, 0" or "0,127,0".
        *pText = value.toStringList().join(',');
        return true;
    }
    if (!value.canConvert<QString>()) return false;
    *pText = value.toString();
    return true;
}

// The form a value is written in: a colour and any other text whose parts
// are plain goes out unquoted, "000, 127, 000", as someone editing the file
// by hand would write it, and reads back joined to the same text. Text whose
// parts would not come back the same (blanks round a comma, empty parts)
// stays one quoted string.
QVariant WrittenForm(const QString& text) {
    const QStringList parts = text.split(',');
    if (parts.size() < 2) return text;
    for (const QString& part : parts)
        if (part.isEmpty() || part.trimmed() != part) return text;
    return parts;
}

}  // namespace

CQtAppDataManager::CQtAppDataManager() : m_strFilePath(DefaultFilePath()) {}

CQtAppDataManager::CQtAppDataManager(std::string filePath) : m_strFilePath(std::move(filePath)) {}

CQtAppDataManager::~CQtAppDataManager() {
    if (AppDataManager::LoadAppDataManager() == this) AppDataManager::InstallAppDataManager(nullptr);
}

CQtAppDataManager& CQtAppDataManager::InstallForProcess() {
    static CQtAppDataManager manager;
    AppDataManager::InstallAppDataManager(&manager);
    return manager;
}

std::string CQtAppDataManager::DefaultFilePath() {
    // Relative values are invalid by the XDG rules and are ignored.
    const char* pszConfig = std::getenv("XDG_CONFIG_HOME");
    if (IsAbsolute(pszConfig)) return std::string(pszConfig) + "/textzone/textzone.ini";
    const char* pszHome = std::getenv("HOME");
    if (IsAbsolute(pszHome)) return std::string(pszHome) + "/.config/textzone/textzone.ini";
    return {};
}

IAppSettings* CQtAppDataManager::GetSettings() {
    return m_strFilePath.empty() ? nullptr : this;
}

IAppDirectory* CQtAppDataManager::GetDirectory() {
    return &m_directory;
}

QVariant CQtAppDataManager::ReadValue(const char* section, const char* key) {
    std::lock_guard lock(g_fileMutex);
    const QByteArray bytes = ReadAllBytes(QString::fromStdString(m_strFilePath));
    // The same bytes as last time need no new parse: the editor reads some
    // thirty values in a row whenever the settings change.
    if (!m_bParsed || bytes != m_parsedBytes) {
        m_parsedValues.clear();
        m_parsedBytes = bytes;
        // Without room for the copy this read gives the defaults, and the
        // next one tries again.
        const QString scratch = bytes.isEmpty() ? QString() : WriteScratch(bytes);
        m_bParsed = bytes.isEmpty() || !scratch.isEmpty();
        if (!scratch.isEmpty()) {
            {
                QSettings settings(scratch, QSettings::IniFormat);
                for (const QString& name : settings.allKeys())
                    m_parsedValues.insert(name, settings.value(name));
            }
            QFile::remove(scratch);
        }
    }
    const QString name = SettingName(section, key);
    auto it = m_parsedValues.constFind(name);
    if (it != m_parsedValues.constEnd()) return *it;
    // Profile files are read without regard to case: "tabsize=2" written by
    // hand under [editor] is the tab size still.
    for (it = m_parsedValues.constBegin(); it != m_parsedValues.constEnd(); ++it)
        if (it.key().compare(name, Qt::CaseInsensitive) == 0) return *it;
    return {};
}

void CQtAppDataManager::WriteValue(const char* section, const char* key, const QVariant& value) {
    if (m_strFilePath.empty()) return;
    std::lock_guard lock(g_fileMutex);
    const QString path = QString::fromStdString(m_strFilePath);
    // The change goes onto the file as it is now, never onto an older copy.
    const QString scratch = WriteScratch(ReadAllBytes(path));
    if (scratch.isEmpty()) return;
    QByteArray bytes;
    bool bWritten = false;
    {
        QSettings settings(scratch, QSettings::IniFormat);
        if (value.isValid())
            settings.setValue(SettingName(section, key), value);
        else
            settings.remove(SettingName(section, key));
        settings.sync();
        // A malformed line read from the file is no reason to drop the change.
        bWritten = settings.status() != QSettings::AccessError;
    }
    if (bWritten) bytes = ReadAllBytes(scratch);
    QFile::remove(scratch);
    if (!bWritten) return;
    // Replaced whole, so that a reader never sees half a file and a failed
    // write leaves the old one.
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) file.commit();
}

void CQtAppDataManager::ReadString(const char* section, const char* key, const char* def,
                                   char* buffer, int size, int /*reserved*/) {
    QString text;
    if (!ValueText(ReadValue(section, key), &text)) text = ToQt(def);
    CopySettingString(CWindows1252::FromQString(text), buffer, size);
}

int CQtAppDataManager::ReadInt(const char* section, const char* key, int def, int /*reserved*/) {
    const QVariant value = ReadValue(section, key);
    int n = def;
    if (value.typeId() == QMetaType::QString && ParseInt(value.toString(), &n)) return n;
    return def;
}

void CQtAppDataManager::WriteString(const char* section, const char* key, const char* value) {
    WriteValue(section, key, value ? WrittenForm(ToQt(value)) : QVariant());
}

void CQtAppDataManager::WriteInt(const char* section, const char* key, int value) {
    WriteValue(section, key, QString::number(value));
}
