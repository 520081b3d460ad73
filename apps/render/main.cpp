// textzone-render FILE [--lang ID] [--dialect N]
//                 (--png OUT.png [--width PX] | --html OUT.html | --pdf OUT.pdf)
// Renders a file in its colours without a display: a PNG through the Qt
// backend on Qt's offscreen platform, or HTML, one <pre> with a <span> per
// colour run; or prints it to PDF as the editor's Print does. The language comes from the file's extension unless --lang
// (a language id or an extension name: 1300, java) or --dialect (a SQL
// dialect: 150, -92, ...) chooses one.
#include <QApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include "apps/render/FileRenderer.h"
#include "apps/render/PdfPrint.h"
#include "platform/qt/QtPlatform.h"

namespace {

int Usage() {
    std::fprintf(stderr,
                 "usage: textzone-render FILE [--lang ID] [--dialect N] "
                 "(--png OUT.png [--width PX] | --html OUT.html | --pdf OUT.pdf)\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    const char* pszFile = nullptr;
    const char* pszPng = nullptr;
    const char* pszHtml = nullptr;
    const char* pszPdf = nullptr;
    int nWidth = 0;
    CLanguageChoice language;
    bool bLanguage = false;
    for (int i = 1; i < argc; ++i) {
        const bool bValue = i + 1 < argc;
        auto is = [&](const char* psz) { return std::strcmp(argv[i], psz) == 0 && bValue; };
        if (is("--png")) {
            pszPng = argv[++i];
        } else if (is("--html")) {
            pszHtml = argv[++i];
        } else if (is("--pdf")) {
            pszPdf = argv[++i];
        } else if (is("--width")) {
            char* pEnd = nullptr;
            nWidth = static_cast<int>(std::strtol(argv[++i], &pEnd, 10));
            if (*pEnd || nWidth < 1) return Usage();
        } else if (is("--lang")) {
            if (bLanguage || !CLanguageChoice::FromArgument(argv[++i], &language)) {
                std::fprintf(stderr, "textzone-render: no language %s\n", argv[i]);
                return 2;
            }
            bLanguage = true;
        } else if (is("--dialect")) {
            char* pEnd = nullptr;
            const long n = std::strtol(argv[++i], &pEnd, 10);
            if (bLanguage || *pEnd ||
                !CLanguageChoice::FromDialect(static_cast<int>(n), &language)) {
                std::fprintf(stderr, "textzone-render: no SQL dialect %s\n", argv[i]);
                return 2;
            }
            bLanguage = true;
        } else if (argv[i][0] != '-' && !pszFile) {
            pszFile = argv[i];
        } else {
            return Usage();
        }
    }
    if (!pszFile || (!!pszPng + !!pszHtml + !!pszPdf) != 1 || (nWidth && !pszPng)) return Usage();

    std::ifstream in(pszFile, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "textzone-render: cannot read %s\n", pszFile);
        return 1;
    }
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (!bLanguage) language = CLanguageChoice::ForPath(pszFile);

    // No display is needed: the window is never shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    CQtPlatform platform;
    if (pszPdf) {
        std::string error;
        if (!PrintTextToPdf(text, pszPdf, &error)) {
            std::fprintf(stderr, "textzone-render: %s\n", error.c_str());
            return 1;
        }
        return 0;
    }
    CFileRenderer renderer(text, language);
    if (pszPng) {
        const QImage image = renderer.Picture(nWidth);
        if (image.isNull() || !image.save(QString::fromLocal8Bit(pszPng), "PNG")) {
            std::fprintf(stderr, "textzone-render: cannot write %s\n", pszPng);
            return 1;
        }
        if (renderer.GetShownLines() < renderer.GetLineCount())
            std::fprintf(stderr, "textzone-render: the picture shows the first %d lines only\n",
                         renderer.GetShownLines());
    } else {
        std::ofstream out(pszHtml, std::ios::binary);
        const std::string title =
            QFileInfo(QString::fromLocal8Bit(pszFile)).fileName().toStdString();
        out << renderer.Html(title);
        if (!out) {
            std::fprintf(stderr, "textzone-render: cannot write %s\n", pszHtml);
            return 1;
        }
    }
    return 0;
}
