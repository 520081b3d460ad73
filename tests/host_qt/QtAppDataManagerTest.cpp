// The INI settings store: the editor's keys round-trip, bad values give the
// defaults, and every read sees the file as it is now.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdlib>
#include <string>
#include <vector>

#include "host/AppDataManager.h"
#include "host/qt/QtAppDataManager.h"
#include "support/ScopedEnv.h"

namespace {

struct IntKey {
    const char* key;
    int def;
    int value;  // something else to store
};

// Editor keys of each kind of value: sizes, negative tab sizes, flags,
// colours up to 24 bits and -1 for the system's colour.
const IntKey kIntKeys[] = {
    {"FontSize", 14, 22},          {"TabSize", 4, -8},
    {"WordCompletion", 1, 0},      {"MarginBkgColor", 0xD0D0D0, 0x102030},
    {"FontNorFrgColor", -1, 0x80}, {"FontSelBkgColor", 0, -1},
};

struct StringKey {
    const char* key;
    const char* def;
    const char* value;
};

const StringKey kStringKeys[] = {
    {"FontName", "Courier New", "DejaVu Sans Mono"},
    {"Comment", "000,127,000", "0,128,0"},
    {"KeyWord1", "000,000,255", "12,34"},
    {"Variable", "255,000,000", "254,000,000"},
};

class QtAppDataManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_dir.isValid());
        // Nothing here may reach the real home.
        m_env.Set("HOME", Path("home").c_str());
        m_env.Set("XDG_CONFIG_HOME", Path("config").c_str());
        m_env.Set("XDG_DATA_HOME", nullptr);
    }
    void TearDown() override { AppDataManager::InstallAppDataManager(nullptr); }
    std::string Path(const char* relative) const {
        return m_dir.filePath(relative).toStdString();
    }
    std::string ReadString(CQtAppDataManager& store, const char* key, const char* def,
                           const char* section = "Editor") {
        char buffer[4096];
        store.ReadString(section, key, def, buffer, sizeof buffer, 0);
        return buffer;
    }
    // The file written as a person would write it.
    void WriteFile(const std::string& path, const QByteArray& bytes) {
        QDir().mkpath(QString::fromStdString(path).section('/', 0, -2));
        QFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray FileBytes(const std::string& path) {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_dir;
    CScopedEnv m_env;
};

}  // namespace

TEST_F(QtAppDataManagerTest, EveryKeyOfTheEditorRoundTripsThroughTheFile) {
    const std::string path = Path("config/textzone/textzone.ini");
    CQtAppDataManager writer;
    ASSERT_EQ(writer.GetFilePath(), path);
    // Before anything is written, every key reads its default.
    for (const IntKey& k : kIntKeys) EXPECT_EQ(writer.ReadInt("Editor", k.key, k.def, 0), k.def);
    for (const StringKey& k : kStringKeys) EXPECT_EQ(ReadString(writer, k.key, k.def), k.def);

    for (const IntKey& k : kIntKeys) writer.WriteInt("Editor", k.key, k.value);
    for (const StringKey& k : kStringKeys) writer.WriteString("Editor", k.key, k.value);
    // The same keys in another section stay apart.
    writer.WriteInt("Other", "FontSize", 9);

    // A second store on the same file, as another process would have it.
    CQtAppDataManager reader(path);
    for (const IntKey& k : kIntKeys) {
        EXPECT_EQ(reader.ReadInt("Editor", k.key, k.def, 0), k.value) << k.key;
        EXPECT_EQ(writer.ReadInt("Editor", k.key, k.def, 0), k.value) << k.key;
    }
    for (const StringKey& k : kStringKeys) EXPECT_EQ(ReadString(reader, k.key, k.def), k.value);
    EXPECT_EQ(reader.ReadInt("Other", "FontSize", 14, 0), 9);

    // Colours are written as a person writes them, unquoted, and a value
    // written by hand in that form reads back the same.
    const QByteArray text = FileBytes(path);
    EXPECT_TRUE(text.contains("Comment=0, 128, 0\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("FontName=DejaVu Sans Mono\n")) << text.toStdString();
    WriteFile(path, "[Editor]\nComment=0,127,0\nKeyWord1 = 1, 2 ,3\nFontSize=16\n");
    EXPECT_EQ(ReadString(reader, "Comment", ""), "0,127,0");
    EXPECT_EQ(ReadString(reader, "KeyWord1", ""), "1,2,3");
    EXPECT_EQ(reader.ReadInt("Editor", "FontSize", 14, 0), 16);
    // Names are found whatever their case, the exact one first.
    WriteFile(path, "[editor]\ntabsize=2\n[Editor]\nTabSize=3\nfontsize=20\n");
    EXPECT_EQ(reader.ReadInt("Editor", "TabSize", 4, 0), 3);
    EXPECT_EQ(reader.ReadInt("Editor", "FontSize", 14, 0), 20);
    EXPECT_EQ(reader.ReadInt("EDITOR", "FONTSIZE", 14, 0), 20);
    WriteFile(path, "[Editor]\nComment=0,127,0\nFontSize=16\n");

    // Through the editor's own readers, once the store is installed.
    AppDataManager::InstallAppDataManager(&reader);
    EXPECT_EQ(ReadSettingInt("Editor", "FontSize", 14), 16);
    EXPECT_EQ(ReadSettingString("Editor", "Comment", "000,127,000"), "0,127,0");
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 4);
}

TEST_F(QtAppDataManagerTest, TextsComeBackAsTheyWereWritten) {
    CQtAppDataManager store;
    // Commas with blanks or empty parts, quotes, escapes, INI syntax, and
    // bytes above 127 in the editor's code page (0x80 is the euro sign).
    const std::vector<std::string> texts = {
        "a, b",   "x,,y",       ",",     " lead", "trail ", "semi;colon", "quote\"s", "back\\slash",
        "a=b",    "[section]",  "#hash", "",      "caf\xE9", "\x80 5",     "tab\there",
        "@Point(1 2)", "1,2,3", "0x10",
    };
    for (const std::string& text : texts) {
        store.WriteString("Editor", "Text", text.c_str());
        EXPECT_EQ(ReadString(store, "Text", "def"), text);
    }
    // A null value removes the key; the others stay.
    store.WriteInt("Editor", "FontSize", 20);
    store.WriteString("Editor", "Text", nullptr);
    EXPECT_EQ(ReadString(store, "Text", "def"), "def");
    EXPECT_EQ(store.ReadInt("Editor", "FontSize", 14, 0), 20);
    // A null default reads as empty.
    EXPECT_EQ(ReadString(store, "Text", nullptr), "");
    // The buffer's size bounds the copy, always 0-ended.
    store.WriteString("Editor", "Text", "abcdef");
    char small[4] = {'#', '#', '#', '#'};
    store.ReadString("Editor", "Text", "", small, sizeof small, 0);
    EXPECT_EQ(std::string(small), "abc");
}

TEST_F(QtAppDataManagerTest, MissingUnreadableAndMalformedValuesGiveTheDefaults) {
    const std::string path = Path("config/textzone/textzone.ini");
    CQtAppDataManager store;
    // No file at all.
    EXPECT_EQ(store.ReadInt("Editor", "FontSize", 14, 0), 14);
    EXPECT_EQ(ReadString(store, "FontName", "Courier New"), "Courier New");

    WriteFile(path,
              "[Editor]\n"
              "FontSize=abc\n"
              "TabSize=12abc\n"
              "MarginMode=\n"
              "KeywordMode=1,2\n"
              "MarginBkgColor=99999999999\n"
              "BookmarkColor=0xD0D0D0\n"
              "FontNorFrgColor=4294967295\n"
              "FontSelFrgColor= -7 \n"
              "FontName=@Point(1 2)\n"
              "this line has no equals sign\n"
              "Comment=\"0,127,0\n");
    EXPECT_EQ(store.ReadInt("Editor", "FontSize", 14, 0), 14);
    EXPECT_EQ(store.ReadInt("Editor", "TabSize", 4, 0), 4);
    EXPECT_EQ(store.ReadInt("Editor", "MarginMode", 5, 0), 5);
    EXPECT_EQ(store.ReadInt("Editor", "KeywordMode", 0, 0), 0);
    EXPECT_EQ(store.ReadInt("Editor", "MarginBkgColor", 0xD0D0D0, 0), 0xD0D0D0);
    // Hexadecimal and full 32-bit colours are values, not faults.
    EXPECT_EQ(store.ReadInt("Editor", "BookmarkColor", 0, 0), 0xD0D0D0);
    EXPECT_EQ(store.ReadInt("Editor", "FontNorFrgColor", 0, 0), -1);
    EXPECT_EQ(store.ReadInt("Editor", "FontSelFrgColor", 0, 0), -7);
    EXPECT_EQ(ReadString(store, "FontName", "Courier New"), "Courier New");
    EXPECT_EQ(store.ReadInt("Editor", "UseSyntaxColor", 1, 0), 1);

    // A malformed file still takes a change, and keeps its readable values.
    store.WriteInt("Editor", "FontSize", 18);
    EXPECT_EQ(store.ReadInt("Editor", "FontSize", 14, 0), 18);
    EXPECT_EQ(store.ReadInt("Editor", "BookmarkColor", 0, 0), 0xD0D0D0);

    // A file that cannot be read (here a folder in its place) reads as none,
    // and a write to it fails without harm.
    CQtAppDataManager blocked(Path("blocked.ini"));
    QDir().mkpath(QString::fromStdString(Path("blocked.ini")));
    blocked.WriteInt("Editor", "FontSize", 30);
    EXPECT_EQ(blocked.ReadInt("Editor", "FontSize", 14, 0), 14);
    EXPECT_EQ(ReadString(blocked, "FontName", "Courier New"), "Courier New");
}

TEST_F(QtAppDataManagerTest, EveryReadSeesTheFileAsItIsNow) {
    const std::string path = Path("config/textzone/textzone.ini");
    CQtAppDataManager store;
    store.WriteInt("Editor", "FontSize", 14);
    ASSERT_EQ(store.ReadInt("Editor", "FontSize", 0, 0), 14);

    // Another QSettings object, as a preference page or another program has.
    {
        QSettings other(QString::fromStdString(path), QSettings::IniFormat);
        other.setValue("Editor/FontSize", 16);
        other.setValue("Editor/FontName", "Mono");
        other.sync();
    }
    EXPECT_EQ(store.ReadInt("Editor", "FontSize", 0, 0), 16);
    EXPECT_EQ(ReadString(store, "FontName", ""), "Mono");

    // Rewrites of the same size in quick succession: the file's time cannot
    // tell them apart, the store must not miss them.
    for (int i = 0; i < 20; ++i) {
        const int size = 10 + i % 2;
        WriteFile(path, QByteArray("[Editor]\nFontSize=") + QByteArray::number(size) + "\n");
        EXPECT_EQ(store.ReadInt("Editor", "FontSize", 0, 0), size) << "round " << i;
    }
    // And our own write lands on the file as it is now, keeping the change
    // made behind our back.
    WriteFile(path, "[Editor]\nFontSize=12\nTabSize=3\n");
    store.WriteInt("Editor", "BlockMode", 1);
    CQtAppDataManager fresh(path);
    EXPECT_EQ(fresh.ReadInt("Editor", "FontSize", 0, 0), 12);
    EXPECT_EQ(fresh.ReadInt("Editor", "TabSize", 0, 0), 3);
    EXPECT_EQ(fresh.ReadInt("Editor", "BlockMode", 0, 0), 1);

    // A deleted file reads as no settings.
    QFile::remove(QString::fromStdString(path));
    EXPECT_EQ(store.ReadInt("Editor", "FontSize", 14, 0), 14);
}

TEST_F(QtAppDataManagerTest, TheFileAndTheDataDirectoryFollowTheEnvironment) {
    EXPECT_EQ(CQtAppDataManager::DefaultFilePath(), Path("config/textzone/textzone.ini"));
    // Unset or relative: the configuration folder of the home directory.
    m_env.Set("XDG_CONFIG_HOME", "relative/dir");
    EXPECT_EQ(CQtAppDataManager::DefaultFilePath(), Path("home/.config/textzone/textzone.ini"));
    m_env.Set("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(CQtAppDataManager::DefaultFilePath(), Path("home/.config/textzone/textzone.ini"));
    // Neither: no file, and so no settings object.
    m_env.Set("HOME", nullptr);
    EXPECT_EQ(CQtAppDataManager::DefaultFilePath(), "");
    EXPECT_EQ(CQtAppDataManager().GetSettings(), nullptr);

    // The one call of a host: the store on the user's file, installed.
    m_env.Set("HOME", Path("home").c_str());
    m_env.Set("XDG_CONFIG_HOME", Path("config").c_str());
    m_env.Set("XDG_DATA_HOME", Path("data").c_str());
    CQtAppDataManager& installed = CQtAppDataManager::InstallForProcess();
    EXPECT_EQ(AppDataManager::LoadAppDataManager(), &installed);
    WriteSettingInt("Editor", "TabSize", 2);
    EXPECT_TRUE(QFile::exists(QString::fromStdString(Path("config/textzone/textzone.ini"))));
    EXPECT_EQ(ReadSettingInt("Editor", "TabSize", 4), 2);

    // The shortcut file's folder is the per-user data directory.
    IAppDirectory* pDirectory = installed.GetDirectory();
    ASSERT_NE(pDirectory, nullptr);
    char buffer[1024];
    const int n = pDirectory->GetDataDirectory(buffer, sizeof buffer, '\\');
    EXPECT_EQ(std::string(buffer), Path("data/textzone") + "/");
    EXPECT_EQ(n, static_cast<int>(Path("data/textzone").size()) + 1);
}

TEST_F(QtAppDataManagerTest, ADestroyedStoreUninstallsItself) {
    {
        CQtAppDataManager store;
        AppDataManager::InstallAppDataManager(&store);
        EXPECT_EQ(AppDataManager::LoadAppDataManager(), &store);
    }
    EXPECT_EQ(AppDataManager::LoadAppDataManager(), nullptr);
}
