// textzone-demo [FILE] [--screenshot FILE.png]
// Opens FILE in an editor window. Without a display, or with --screenshot,
// it renders the window offscreen into a PNG instead and exits.
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "apps/demo/DemoWindow.h"
#include "platform/qt/QtPlatform.h"

int main(int argc, char** argv) {
    const char* pszFile = nullptr;
    const char* pszShot = nullptr;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--screenshot") == 0 && i + 1 < argc)
            pszShot = argv[++i];
        else
            pszFile = argv[i];
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
