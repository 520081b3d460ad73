// The render tool: the language a file gets, its HTML and its picture, and
// the command line.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <regex>

#include "apps/common/LanguageChoice.h"
#include "apps/render/FileRenderer.h"
#include "platform/qt/QtPlatform.h"
#include "support/TestFiles.h"

namespace {

constexpr QRgb kKeyword = qRgb(0, 0, 255);  // the default colours of the classes
constexpr QRgb kComment = qRgb(0, 128, 0);
constexpr QRgb kString = qRgb(255, 0, 255);

int Count(const std::string& text, const std::string& part) {
    int n = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++n;
    return n;
}

// The rows of pixels (of a line's height) that hold a colour.
std::vector<int> LinesWith(const QImage& image, QRgb color, int nTop, int nLineHeight) {
    std::vector<int> lines;
    for (int y = nTop; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == color) {
                const int line = (y - nTop) / nLineHeight;
                if (lines.empty() || lines.back() != line) lines.push_back(line);
                break;
            }
    return lines;
}

}  // namespace

TEST(LanguageChoiceTest, ExtensionsIdsAndDialectsChooseTheColouring) {
    struct Case {
        const char* path;
        CLanguageChoice::Kind kind;
        unsigned int id;
    } cases[] = {
        {"a/b/report.SQL", CLanguageChoice::Sql, 15}, {"pkg.pkb", CLanguageChoice::Sql, 107},
        {"x.pls", CLanguageChoice::Sql, 107},         {"main.c", CLanguageChoice::Client, 1300},
        {"Shapes.pas", CLanguageChoice::Client, 90},  {"page.htm", CLanguageChoice::Client, 310},
        {"page.jsp", CLanguageChoice::Client, 610},   {"data.xml", CLanguageChoice::Client, 1090},
        {"notes.txt", CLanguageChoice::None, 0},      {"dir.sql/README", CLanguageChoice::None, 0},
    };
    for (const Case& c : cases) {
        CLanguageChoice choice = CLanguageChoice::ForPath(c.path);
        EXPECT_EQ(choice.m_kind, c.kind) << c.path;
        EXPECT_EQ(choice.m_nId, c.id) << c.path;
    }

    CLanguageChoice choice;
    EXPECT_TRUE(CLanguageChoice::FromArgument("1250", &choice));
    EXPECT_EQ(choice.Name(), "Objective-C");
    EXPECT_TRUE(CLanguageChoice::FromArgument("java", &choice));
    EXPECT_EQ(choice.m_nId, 210u);
    EXPECT_TRUE(CLanguageChoice::FromDialect(-1050, &choice));
    EXPECT_EQ(choice.Name(), "UDB (dialect -1050)");
    EXPECT_EQ(choice.m_nId, 205u);
    // Ids between the ranges, unknown names and dialects are refused and
    // leave the choice as it was.
    for (const char* bad : {"415", "999", "", "sq", "-3", "12x"})
        EXPECT_FALSE(CLanguageChoice::FromArgument(bad, &choice)) << bad;
    EXPECT_FALSE(CLanguageChoice::FromDialect(7, &choice));
    EXPECT_EQ(choice.m_nId, 205u);
}

class RenderTest : public ::testing::Test {
protected:
    CQtPlatform m_platform;
    const std::string m_sample = ReadFileBytes(TEXTZONE_SAMPLES "/sample.sql");
};

TEST_F(RenderTest, HtmlHoldsTheTextWithASpanPerRun) {
    CFileRenderer renderer("select 'a<b' -- x & y\n\tfrom t\n", CLanguageChoice::ForPath("q.sql"));
    const std::string html = renderer.Html("q.sql");
    EXPECT_NE(html.find("<title>q.sql</title>"), std::string::npos);
    EXPECT_NE(html.find("<span style=\"color:#0000FF\">select </span>"
                        "<span style=\"color:#FF00FF\">'a&lt;b' </span>"
                        "<span style=\"color:#008000\">-- x &amp; y</span>\n"),
              std::string::npos)
        << html;
    // Tabs come out as the zone shows them, four columns.
    EXPECT_NE(html.find("\n<span style=\"color:#000000\">    </span>"
                        "<span style=\"color:#0000FF\">from </span>"),
              std::string::npos)
        << html;

    // Without the tags and entities, the sample's text stands as it is.
    CFileRenderer sample(m_sample, CLanguageChoice::ForPath("sample.sql"));
    std::string body = sample.Html("sample.sql");
    const size_t from = body.find('>', body.find("<pre")) + 1;
    body = body.substr(from, body.find("</pre>") - from);
    // Nothing but spans, each closed.
    EXPECT_EQ(Count(body, "<"), 2 * Count(body, "<span style=\"color:#"));
    EXPECT_EQ(Count(body, "<span"), Count(body, "</span>"));
    body = std::regex_replace(body, std::regex("<[^>]*>"), "");
    body = std::regex_replace(body, std::regex("&gt;"), ">");
    body = std::regex_replace(body, std::regex("&lt;"), "<");
    EXPECT_EQ(body, m_sample);
}

TEST_F(RenderTest, PictureShowsEachLineInItsColours) {
    CFileRenderer renderer(m_sample, CLanguageChoice::ForPath("sample.sql"));
    const QImage image = renderer.Picture(0);
    ASSERT_FALSE(image.isNull());
    const int lines = renderer.GetLineCount();
    EXPECT_EQ(renderer.GetShownLines(), lines);
    const int lineHeight = (image.height() - 12) / lines;
    ASSERT_GT(lineHeight, 10);
    EXPECT_EQ(image.height(), lines * lineHeight + 12);
    // The widest line fits: nothing is drawn in its last column of pixels
    // but the background.
    for (int y = 0; y < image.height(); ++y)
        ASSERT_EQ(image.pixel(image.width() - 1, y), qRgb(255, 255, 255)) << y;

    // Comments on lines 1, 2 and 20; keywords on the statement lines; no string.
    EXPECT_EQ(LinesWith(image, kComment, 6, lineHeight), (std::vector<int>{0, 1, 19}));
    const std::vector<int> keywords = LinesWith(image, kKeyword, 6, lineHeight);
    for (int line : {3, 6, 9, 10, 11, 14, 15, 16, 17, 20, 21, 33, 34, 35})
        EXPECT_TRUE(std::count(keywords.begin(), keywords.end(), line)) << line;
    for (int line : {0, 1, 2, 4, 5, 18, 19})
        EXPECT_FALSE(std::count(keywords.begin(), keywords.end(), line)) << line;
    EXPECT_TRUE(LinesWith(image, kString, 6, lineHeight).empty());

    // A width asked for is the width given.
    EXPECT_EQ(renderer.Picture(300).width(), 300);
}

TEST_F(RenderTest, CommandLineWritesWhatItIsAskedAndRefusesTheRest) {
    QTemporaryDir dir;
    const QString html = dir.filePath("out.html");
    const QString png = dir.filePath("out.png");
    auto run = [](const QStringList& args) {
        QProcess process;
        process.start(TEXTZONE_RENDER, args);
        process.waitForFinished(60000);
        return process.exitCode();
    };
    const QString sample = TEXTZONE_SAMPLES "/sample.sql";
    EXPECT_EQ(run({sample, "--html", html}), 0);
    QFile file(html);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<span style=\"color:#0000FF\">SELECT </span>"));

    EXPECT_EQ(run({sample, "--lang", "java", "--png", png, "--width", "200"}), 0);
    QImage image(png);
    EXPECT_EQ(image.width(), 200);

    EXPECT_EQ(run({sample}), 2);                                      // no output
    EXPECT_EQ(run({sample, "--png", png, "--html", html}), 2);        // two
    EXPECT_EQ(run({sample, "--html", html, "--width", "100"}), 2);    // a width for HTML
    EXPECT_EQ(run({sample, "--lang", "cobolx", "--html", html}), 2);  // no such language
    EXPECT_EQ(run({sample, "--dialect", "90x", "--html", html}), 2);
    EXPECT_EQ(run({dir.filePath("missing.sql"), "--html", html}), 1);  // cannot read
}
