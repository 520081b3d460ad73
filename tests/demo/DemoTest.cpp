#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>

#include "apps/demo/DemoWindow.h"
#include "platform/qt/QtPlatform.h"
#include "textzone/TextZone.h"
#include "zones/TextZoneReadOnly.h"

namespace {

class DemoTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_window.resize(640, 400);
        m_window.show();
        Pump();
    }
    static void Pump() {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }
    QWidget* EditorWidget() { return CQtPlatform::WidgetOf(&m_window.EditorWidget().Editor()); }
    std::string Text() {
        VESK::String text;
        m_window.EditorWidget().Editor().GetWindowTextA(text);
        return std::string(text.c_str());
    }
    QString Write(const QByteArray& bytes) {
        QString path = m_dir.filePath("in.sql");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }
    // A press, a move with the button held and a release, in the editor's widget.
    void Drag(QPoint from, QPoint to) {
        QWidget* widget = EditorWidget();
        QMouseEvent press(QEvent::MouseButtonPress, from, widget->mapToGlobal(from), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &press);
        QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
        QMouseEvent release(QEvent::MouseButtonRelease, to, widget->mapToGlobal(to), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &release);
        Pump();
    }

    CQtPlatform m_platform;
    CDemoWindow m_window;
    QTemporaryDir m_dir;
};

}  // namespace

TEST_F(DemoTest, FilesOpenAndSaveByteForByte) {
    // CR LF line ends, bytes above 127 and no final line end all survive.
    const QByteArray bytes("SELECT 'caf\xe9'\r\nFROM t\r\nWHERE x = 1");
    ASSERT_TRUE(m_window.OpenFile(Write(bytes)));
    EXPECT_EQ(Text(), "SELECT 'caf\xe9'\r\nFROM t\r\nWHERE x = 1\r\n");
    EXPECT_EQ(m_window.CaretText().toStdString(), "Ln 1, Col 1");
    QString out = m_dir.filePath("out.sql");
    ASSERT_TRUE(m_window.SaveFile(out));
    QFile saved(out);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll(), bytes);

    ASSERT_TRUE(m_window.OpenFile(Write("a\nb\n")));
    ASSERT_TRUE(m_window.SaveFile(out));
    saved.close();
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll(), QByteArray("a\nb\n"));
    EXPECT_FALSE(m_window.OpenFile(m_dir.filePath("missing.sql")));

    // The file is mapped: one that fills its last page exactly, a 0 byte
    // (a blank in the text, the file untouched), a CR last, and no bytes.
    QByteArray page(4096, 'x');
    page[100] = '\n';
    page[4095] = '\r';
    page[7] = 0;
    const QString pagePath = Write(page);
    ASSERT_TRUE(m_window.OpenFile(pagePath));
    QByteArray expected = page;
    expected[7] = ' ';
    expected.replace('\n', "\r\n");
    expected.replace("\r\r\n", "\r\n");
    expected.chop(1);
    EXPECT_EQ(Text(), (expected + "\r\n").toStdString());
    QFile original(pagePath);
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    EXPECT_EQ(original.readAll(), page);
    ASSERT_TRUE(m_window.OpenFile(Write(QByteArray())));
    EXPECT_EQ(Text(), "");
}

TEST_F(DemoTest, RealTypingAndMouseSelectionReachTheEditor) {
    ASSERT_TRUE(m_window.OpenFile(Write("FROM t\r\n")));
    QWidget* widget = EditorWidget();
    ASSERT_NE(widget, nullptr);
    widget->setFocus();
    Pump();
    QTest::keyClicks(widget, "SELECT * ");
    Pump();
    EXPECT_EQ(Text(), "SELECT * FROM t\r\n");
    EXPECT_EQ(m_window.CaretText().toStdString(), "Ln 1, Col 10");

    // A drag over the first line selects from where it began.
    Drag(QPoint(5, 10), QPoint(200, 10));
    LONG start = -1, end = -1;
    m_window.EditorWidget().Editor().GetSelection(&start, &end, nullptr, nullptr, 1);
    EXPECT_EQ(start, 0);
    EXPECT_GT(end, 5);
}

TEST_F(DemoTest, TheScreenshotShowsTheTextInTheColoursOfItsLanguage) {
    // Pixels of a colour in the screenshot.
    auto count = [&](QRgb color) {
        QString path = m_dir.filePath("shot.png");
        EXPECT_TRUE(m_window.SaveScreenshot(path));
        QImage image(path);
        EXPECT_EQ(image.width(), m_window.width());
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) == color) ++n;
        return n;
    };
    const QRgb keyword = qRgb(0, 0, 255);
    const QRgb black = qRgb(0, 0, 0);

    // A .sql file is T-SQL: its keyword is blue, the rest black.
    ASSERT_TRUE(m_window.OpenFile(Write("SELECT 1\r\n")));
    Pump();
    EXPECT_EQ(m_window.Language().m_kind, CLanguageChoice::Sql);
    EXPECT_GT(count(keyword), 20);
    EXPECT_GT(count(black), 5);

    // A language chosen by the user holds for every file opened later.
    CLanguageChoice java;
    ASSERT_TRUE(CLanguageChoice::FromArgument("java", &java));
    m_window.SetLanguage(java);
    ASSERT_TRUE(m_window.OpenFile(Write("SELECT 1\r\n")));
    Pump();
    EXPECT_EQ(m_window.Language().m_nId, 210u);
    EXPECT_EQ(count(keyword), 0);
}

TEST_F(DemoTest, KeyCombinationsAndTheClipboardWorkThroughQt) {
    ASSERT_TRUE(m_window.OpenFile(Write("alpha beta\r\n")));
    QWidget* widget = EditorWidget();
    widget->setFocus();
    Pump();
    // Shift+End selects the line; Ctrl+C puts it on Qt's clipboard.
    QTest::keyClick(widget, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(widget, Qt::Key_C, Qt::ControlModifier);
    Pump();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "alpha beta");

    // Text from Qt's clipboard comes in with Ctrl+V, bytes above 127 as they were.
    QApplication::clipboard()->setText(QString::fromUtf8("caf\u00e9 "));
    QTest::keyClick(widget, Qt::Key_Home);
    QTest::keyClick(widget, Qt::Key_V, Qt::ControlModifier);
    Pump();
    EXPECT_EQ(Text(), "caf\xe9 alpha beta\r\n");

    // Ctrl+Z undoes the paste; the keypad's digits type like the others.
    QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(widget, Qt::Key_7, Qt::KeypadModifier);
    Pump();
    EXPECT_EQ(Text(), "7alpha beta\r\n");
}

TEST_F(DemoTest, TheReportListsMatchesWhoseLinksOpenTheirLine) {
    ASSERT_TRUE(m_window.OpenFile(Write("select a\r\nfrom t\r\n  select b\r\n")));
    CTextZoneReadOnly& report = m_window.Report().Zone();
    auto line = [&](int n) {
        CStringEx* p = report.GetLine(n);
        return p ? std::string(p->c_str()) : std::string("<none>");
    };
    EXPECT_EQ(line(0).rfind("in.sql: 2 lines with \"select\"", 0), 0u) << line(0);
    EXPECT_EQ(line(1), "  line 1: select a\r");
    EXPECT_EQ(line(2), "  line 3:   select b\r");

    // A click on "line 3" puts the editor's caret on the word there.
    QWidget* pReport = CQtPlatform::WidgetOf(&m_window.Report().View().Editor());
    ASSERT_NE(pReport, nullptr);
    const int x = report.m_rcText.left + report.m_nCharWidth * 4 + 2;
    const int y = report.m_rcText.top + report.GetLineHeight(0) * 2 + 3;
    QTest::mouseClick(pReport, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
    Pump();
    CTextZone& editor = m_window.EditorWidget().Zone();
    EXPECT_EQ(editor.GetSelMobileLine(), 2);
    EXPECT_EQ(editor.GetSelMobileChar(), 2);
    // A click on plain report text opens nothing.
    QTest::mouseClick(pReport, Qt::LeftButton, Qt::NoModifier,
                      QPoint(report.m_rcText.left + report.m_nCharWidth * 12, y));
    Pump();
    EXPECT_EQ(editor.GetSelMobileLine(), 2);
}
