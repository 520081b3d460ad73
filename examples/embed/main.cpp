// textzone-embed [--exit-after-ms N]
// The smallest Qt host: an editor control in a window of its own, with the
// user's settings. With --exit-after-ms it closes after N ms and prints the
// text the editor holds, which is how CI runs it offscreen.
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "editor/qt/QtEditorWidget.h"
#include "host/qt/QtAppDataManager.h"
#include "platform/qt/QtPlatform.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    CQtPlatform platform;                    // windows become Qt widgets
    CQtAppDataManager::InstallForProcess();  // settings from ~/.config/textzone/textzone.ini

    CQtEditorWidget editor;
    editor.Editor().SetWindowTextA("SELECT *\r\nFROM t");
    editor.resize(640, 480);
    editor.show();

    if (argc == 3 && std::strcmp(argv[1], "--exit-after-ms") == 0) {
        QTimer::singleShot(std::atoi(argv[2]), &app, [&] {
            VESK::String text;
            editor.Editor().GetWindowTextA(text);
            std::fputs(text.c_str(), stdout);
            app.quit();
        });
    }
    return app.exec();
}
