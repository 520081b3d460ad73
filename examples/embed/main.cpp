// textzone-embed [--exit-after-ms N]
// The smallest Qt host: the extended editor in a window of its own, with the
// user's settings. With --exit-after-ms it closes after N ms and prints the
// text the editor holds, which is how CI runs it offscreen.
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "editor/EditorEx.h"
#include "editor/qt/QtControlWidget.h"
#include "host/qt/QtAppDataManager.h"
#include "platform/qt/QtPlatform.h"
#include "textzone/TextZone.h"  // the readers' text flags

int main(int argc, char** argv) {
    QApplication app(argc, argv);

    CQtPlatform platform;                    // windows become Qt widgets
    CQtAppDataManager::InstallForProcess();  // settings from ~/.config/textzone/textzone.ini
    CQtControlWidget<CEditorEx> editor(nullptr, WS_VSCROLL | WS_HSCROLL);
    editor.Control().InitEditor(10, 0, 1, 0);  // coloured as T-SQL
    editor.Control().InsertText("SELECT *\r\nFROM t", 0, 1, 0, -1);

    editor.resize(640, 480);
    editor.show();
    if (argc == 3 && std::strcmp(argv[1], "--exit-after-ms") == 0) {
        QTimer::singleShot(std::atoi(argv[2]), &app, [&] {
            std::fputs(editor.Control().GetText(TF_LF | TF_NO_FINAL_END), stdout);
            app.quit();
        });
    }
    return app.exec();
}
