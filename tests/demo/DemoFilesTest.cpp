// The demo never loses a user's text: files come back as they were, what the
// editor cannot hold is said, failures are said, and a modified text is
// asked about before it goes.
#include <QLabel>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

#include "apps/demo/DemoCommands.h"
#include "DemoFixture.h"

namespace {

bool Told(const CScriptedPrompts& prompts, const std::string& part) {
    for (const std::string& s : prompts.m_told)
        if (s.find(part) != std::string::npos) return true;
    return false;
}

TEST_F(DemoTest, FilesComeBackByteForByteInTheirOwnLineEnds) {
    const QByteArray files[] = {
        "SELECT 1\rFROM t\r",             // CR only
        "SELECT 'caf\xe9'\r\nFROM t",     // CR LF, no final line end
        "a\n\nb\n",                       // LF with an empty line
        "",                               // nothing at all
    };
    for (const QByteArray& bytes : files) {
        const QString path = Write(bytes);
        ASSERT_TRUE(m_window.OpenFile(path));
        EXPECT_TRUE(m_window.RunCommand(ID_FILE_SAVE));
        EXPECT_EQ(Read(path), bytes);
        EXPECT_TRUE(m_prompts.m_told.empty()) << m_prompts.m_told.front();
        m_window.RunCommand(ID_FILE_CLOSE);
        Pump();
    }
    ASSERT_TRUE(m_window.OpenFile(Write("x\ry\r")));
    m_window.Frame().OnIdleUpdateCmdUI();
    CStatusBar& bar = m_window.Frame().m_wndStatusBar;
    EXPECT_EQ(bar.GetShownText(bar.CommandToIndex(ID_INDICATOR_LINEEND)), "CR");
    EXPECT_EQ(m_window.PaneLabel(bar.CommandToIndex(ID_INDICATOR_LINEEND))->text(), "CR");
}

TEST_F(DemoTest, WhatTheEditorCannotHoldIsSaidAndConfirmedBeforeSaving) {
    const QByteArray bytes("a\nb\rc\n\0d\n", 9);
    const QString path = Write(bytes);
    ASSERT_TRUE(m_window.OpenFile(path));
    ASSERT_EQ(m_prompts.m_told.size(), 1u);
    EXPECT_TRUE(Told(m_prompts, "Open in.sql"));
    // Declined: the file stays as it was.
    m_prompts.m_confirms = {false};
    EXPECT_TRUE(m_window.RunCommand(ID_FILE_SAVE));
    EXPECT_EQ(m_prompts.m_asked.size(), 1u);
    EXPECT_EQ(Read(path), bytes);
    // Accepted: written in the first kind of line end, the NUL as a blank.
    m_prompts.m_confirms = {true};
    m_window.RunCommand(ID_FILE_SAVE);
    EXPECT_EQ(Read(path), QByteArray("a\nb\nc\n d\n"));
    // Nothing more to say on the next save.
    m_window.RunCommand(ID_FILE_SAVE);
    EXPECT_EQ(m_prompts.m_asked.size(), 2u);
}

TEST_F(DemoTest, FailuresAreSaidAndTheApplicationStaysWithTheText) {
    EXPECT_FALSE(m_window.OpenFile(m_dir.filePath("missing.sql")));
    EXPECT_TRUE(Told(m_prompts, "Open"));
    EXPECT_EQ(m_window.Frame().GetChildFrames().size(), 0u);

    m_window.MainFrame().NewDocument();
    Pump();
    ASSERT_NE(View(), nullptr);
    QTest::keyClicks(ViewWidget(), "precious");
    ASSERT_TRUE(Doc()->IsModified());
    // A path in a folder that does not exist cannot be written.
    m_prompts.m_paths = {Path(m_dir.filePath("no/such/folder/x.sql"))};
    m_window.RunCommand(ID_FILE_SAVE);
    EXPECT_TRUE(Told(m_prompts, "Save"));
    EXPECT_TRUE(Doc()->IsModified());
    EXPECT_EQ(Text(), "precious");

    // A file that cannot be read: said, and no window for it.
    const QString locked = Write("secret", "locked.sql");
    ::chmod(Path(locked).c_str(), 0);
    if (::access(Path(locked).c_str(), R_OK) != 0) {  // root reads anything
        m_prompts.m_told.clear();
        EXPECT_FALSE(m_window.OpenFile(locked));
        EXPECT_EQ(m_prompts.m_told.size(), 1u);
        EXPECT_EQ(m_window.Frame().GetChildFrames().size(), 1u);
    }
}

TEST_F(DemoTest, AModifiedTextIsAskedAboutBeforeItGoes) {
    const QString path = Write("old\n");
    ASSERT_TRUE(m_window.OpenFile(path));
    QTest::keyClicks(ViewWidget(), "new ");
    ASSERT_TRUE(Doc()->IsModified());

    // Cancel keeps the window and the text.
    m_prompts.m_saveAnswers = {IDemoPrompts::EAnswer::Cancel};
    m_window.RunCommand(ID_FILE_CLOSE);
    Pump();
    ASSERT_EQ(m_window.Frame().GetChildFrames().size(), 1u);
    EXPECT_EQ(Text(), "new old\n");

    // Quitting asks too; Save writes the file, then the window goes.
    m_prompts.m_saveAnswers = {IDemoPrompts::EAnswer::Save};
    EXPECT_TRUE(m_window.close());
    EXPECT_EQ(m_prompts.m_asked.size(), 2u);
    EXPECT_EQ(Read(path), QByteArray("new old\n"));
}

TEST_F(DemoTest, QuittingWithACancelStaysOpen) {
    m_window.MainFrame().NewDocument();
    Pump();
    QTest::keyClicks(ViewWidget(), "draft");
    m_prompts.m_saveAnswers = {IDemoPrompts::EAnswer::Cancel};
    EXPECT_FALSE(m_window.close());
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_EQ(Text(), "draft");
    // Save of a text without a file asks where; none given saves nothing.
    m_prompts.m_saveAnswers = {IDemoPrompts::EAnswer::Save};
    EXPECT_FALSE(m_window.close());
    m_prompts.m_saveAnswers = {IDemoPrompts::EAnswer::Discard};
    EXPECT_TRUE(m_window.close());
}

}  // namespace
