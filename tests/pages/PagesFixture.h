// Pages on the headless platform, with settings in memory, a data directory
// of their own, and a window that notes the reload message.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host/MemoryAppDataManager.h"
#include "platform/ComboBox.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/PropertySheet.h"
#include "support/HeadlessTest.h"
#include "support/TestFiles.h"

class PagesTest : public HeadlessTest {
protected:
    void SetUp() override {
        HeadlessTest::SetUp();
        char templ[] = "/tmp/textzone-pages-XXXXXX";
        ASSERT_NE(mkdtemp(templ), nullptr);
        m_dir = templ;
        m_store.SetDataDirectory(m_dir + "/");
        AppDataManager::InstallAppDataManager(&m_store);
    }
    void TearDown() override {
        AppDataManager::InstallAppDataManager(nullptr);
        std::error_code ec;
        std::filesystem::remove_all(m_dir, ec);
        HeadlessTest::TearDown();
    }
    // The row of a combo that holds the data, -1 for none.
    static int IndexOfData(const CComboBox& combo, DWORD_PTR dwData) {
        for (int i = 0; i < combo.GetCount(); ++i)
            if (combo.GetItemData(i) == dwData) return i;
        return -1;
    }
    int ReloadsHeard() const { return m_wnd.Count(RegisterWindowMessageA("EditExLoadIniMessage")); }
    // The writes since the last call, as "section/key=value".
    std::vector<std::string> TakeWrites() {
        std::vector<std::string> writes = m_store.GetWriteLog();
        m_store.ClearWriteLog();
        return writes;
    }

    CMemoryAppDataManager m_store;
    std::string m_dir;
};
