// Printing a text of the demo to PDF without any printer, read back as a
// reader would.
#include <QProcess>
#include <QStandardPaths>

#include "DemoFixture.h"
#include "apps/demo/DemoCommands.h"

namespace {

// The text of pages first to last of a PDF, as pdftotext reads it.
QString PdfText(const QString& path, int nFirst, int nLast) {
    QProcess process;
    process.start("pdftotext", {"-f", QString::number(nFirst), "-l", QString::number(nLast),
                                "-layout", path, "-"});
    process.waitForFinished(30000);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

int PdfPages(const QString& path) {
    QProcess process;
    process.start("pdfinfo", {path});
    process.waitForFinished(30000);
    for (const QString& line : QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n'))
        if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
    return -1;
}

TEST_F(DemoTest, ATextPrintsToAPdfThatAReaderOpens) {
    if (QStandardPaths::findExecutable("pdftotext").isEmpty() ||
        QStandardPaths::findExecutable("pdfinfo").isEmpty())
        GTEST_SKIP() << "poppler-utils is not installed";
    QByteArray text;
    for (int i = 1; i <= 200; ++i)
        text += "SELECT " + QByteArray::number(i) + " AS line_" + QByteArray::number(i) + "\n";
    ASSERT_TRUE(m_window.OpenFile(Write(text)));
    const QString pdf = m_dir.filePath("out.pdf");
    m_prompts.m_paths = {Path(pdf)};
    ASSERT_TRUE(m_window.RunCommand(ID_FILE_EXPORT_PDF));
    EXPECT_TRUE(m_prompts.m_told.empty());

    const int nPages = PdfPages(pdf);
    ASSERT_GE(nPages, 2);
    const QString first = PdfText(pdf, 1, 1);
    EXPECT_TRUE(first.contains("SELECT 1 AS line_1\n")) << first.left(200).toStdString();
    EXPECT_FALSE(first.contains("line_200"));
    const QString last = PdfText(pdf, nPages, nPages);
    EXPECT_TRUE(last.contains("SELECT 200 AS line_200")) << last.toStdString();
    // Every line once, in order, over all pages.
    const QString all = PdfText(pdf, 1, nPages);
    int nAt = 0;
    for (int i = 1; i <= 200; ++i) {
        nAt = all.indexOf(QString("AS line_%1\n").arg(i), nAt);
        ASSERT_GE(nAt, 0) << "line " << i;
    }
}

}  // namespace
