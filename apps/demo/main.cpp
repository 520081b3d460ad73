// textzone-demo [FILE] [--lang ID] [--dialect N] [--screenshot FILE.png]
// Opens FILE in an editor window, coloured by its extension, or as the
// language of --lang (a language id or an extension name: 1300, java) or the
// SQL dialect of --dialect (150, -92, ...). Without a display, or with
// --screenshot, it renders the window offscreen into a PNG and exits.
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "apps/demo/DemoWindow.h"
#include "platform/qt/QtPlatform.h"

int main(int argc, char** argv) {
    const char* pszFile = nullptr;
    const char* pszShot = nullptr;
    CLanguageChoice language;
    bool bLanguage = false;
    for (int i = 1; i < argc; ++i) {
        const bool bValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--screenshot") == 0 && bValue) {
            pszShot = argv[++i];
        } else if (std::strcmp(argv[i], "--lang") == 0 && bValue) {
            bLanguage = true;
            if (!CLanguageChoice::FromArgument(argv[++i], &language)) {
                std::fprintf(stderr, "textzone-demo: no language %s\n", argv[i]);
                return 2;
            }
        } else if (std::strcmp(argv[i], "--dialect") == 0 && bValue) {
            bLanguage = true;
            char* pEnd = nullptr;
            const long n = std::strtol(argv[++i], &pEnd, 10);
            if (*pEnd || !CLanguageChoice::FromDialect(static_cast<int>(n), &language)) {
                std::fprintf(stderr, "textzone-demo: no SQL dialect %s\n", argv[i]);
                return 2;
            }
        } else {
            pszFile = argv[i];
        }
    }
    const bool bDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!pszShot && !bDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        pszShot = "textzone-demo.png";
    if (pszShot) qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    CQtPlatform platform;
    CDemoWindow window;
    window.resize(900, 600);
    if (bLanguage) window.SetLanguage(language);
    if (pszFile && !window.OpenFile(QString::fromLocal8Bit(pszFile))) {
        std::fprintf(stderr, "textzone-demo: cannot read %s\n", pszFile);
        return 1;
    }
    window.show();
    if (!pszShot) return app.exec();

    // Let the first paints and layouts happen, then take the picture.
    for (int i = 0; i < 10; ++i)
        app.processEvents();
    if (!window.SaveScreenshot(QString::fromLocal8Bit(pszShot))) {
        std::fprintf(stderr, "textzone-demo: cannot write %s\n", pszShot);
        return 1;
    }
    std::printf("textzone-demo: wrote %s\n", pszShot);
    return 0;
}
