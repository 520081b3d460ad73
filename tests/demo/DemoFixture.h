// The demo window on the offscreen platform, with scripted prompts and
// settings held in memory, and helpers to drive it as a user would.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <deque>
#include <string>
#include <vector>

#include "apps/demo/DemoDocument.h"
#include "apps/demo/DemoView.h"
#include "apps/demo/DemoWindow.h"
#include "host/MemoryAppDataManager.h"
#include "platform/qt/QtPlatform.h"
#include "support/ZoneText.h"
#include "zones/TextZoneParam.h"

// Answers given in advance; what the demo said is kept.
class CScriptedPrompts : public IDemoPrompts {
public:
    EAnswer AskSaveChanges(const std::string& strTitle) override {
        m_asked.push_back("save changes to " + strTitle);
        return Next(m_saveAnswers, EAnswer::Cancel);
    }
    std::string AskOpenPath() override { return Next(m_paths, std::string()); }
    std::string AskSavePath(const std::string&) override { return Next(m_paths, std::string()); }
    void Tell(const std::string& strTitle, const std::string& strText) override {
        m_told.push_back(strTitle + ": " + strText);
    }
    bool Confirm(const std::string& strTitle, const std::string& strText) override {
        m_asked.push_back(strTitle + ": " + strText);
        return Next(m_confirms, false);
    }

    std::deque<EAnswer> m_saveAnswers;
    std::deque<std::string> m_paths;
    std::deque<bool> m_confirms;
    std::vector<std::string> m_asked;
    std::vector<std::string> m_told;

private:
    template <typename T>
    static T Next(std::deque<T>& answers, T fallback) {
        if (answers.empty()) return fallback;
        T answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

class DemoTest : public ::testing::Test {
protected:
    DemoTest() { AppDataManager::InstallAppDataManager(&m_store); }
    ~DemoTest() override { AppDataManager::InstallAppDataManager(nullptr); }
    void SetUp() override {
        m_window.SetPrompts(&m_prompts);
        m_window.resize(800, 560);
        m_window.show();
        Pump();
    }
    static void Pump() {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }
    QString Write(const QByteArray& bytes, const char* pszName = "in.sql") {
        QString path = m_dir.filePath(pszName);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        return path;
    }
    QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
    }
    std::string Path(const QString& path) { return path.toLocal8Bit().toStdString(); }
    CDemoView* View() { return m_window.ActiveView(); }
    CDemoDocument* Doc() { return m_window.ActiveDocument(); }
    QWidget* ViewWidget() { return CQtPlatform::WidgetOf(View()); }
    // The pixels of the widget as shown that have the colour.
    static int CountPixels(QWidget* pWidget, QRgb color) {
        const QImage image = pWidget->grab().toImage();
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                n += image.pixel(x, y) == color;
        return n;
    }
    // The active text with LF line ends and none after the last line.
    std::string Text() { return ZoneText(*View()->GetTextZone(), 1 | 32); }

    CQtPlatform m_platform;
    CMemoryAppDataManager m_store;
    CScriptedPrompts m_prompts;
    CDemoWindow m_window;
    QTemporaryDir m_dir;
};
