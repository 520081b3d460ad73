// textzone-demo [FILE] [--lang ID] [--dialect N] [--screenshot FILE.png | --time-open]
// Opens FILE in an editor window, coloured by its extension, or as the
// language of --lang (a language id or an extension name: 1300, java) or the
// SQL dialect of --dialect (150, -92, ...). Without a display, or with
// --screenshot, it renders the window offscreen into a PNG and exits. With
// --time-open it opens FILE offscreen, waits for the editor's first paint,
// closes the window and prints the times of both as JSON lines (for
// scripts/bench).
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "apps/demo/DemoWindow.h"
#include "platform/qt/QtPlatform.h"

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point t0) {
    return std::chrono::duration<double>(Clock::now() - t0).count();
}

// Notes that the editor (or a window inside it, where the text is drawn)
// has received a paint event.
class CPaintWatch : public QObject {
public:
    explicit CPaintWatch(QWidget* pEditor) : m_pEditor(pEditor) {}
    bool eventFilter(QObject* pObject, QEvent* pEvent) override {
        if (pEvent->type() == QEvent::Paint && pObject->isWidgetType() &&
            (pObject == m_pEditor || m_pEditor->isAncestorOf(static_cast<QWidget*>(pObject))))
            m_bPainted = true;
        return QObject::eventFilter(pObject, pEvent);
    }
    QWidget* m_pEditor;
    bool m_bPainted = false;
};

// Opens the file, shows the window until the editor has painted once, then
// closes it: the times from the start of main, as a host's user sees them.
int TimeOpen(QApplication& app, const char* pszFile, const CLanguageChoice* pLanguage,
             Clock::time_point t0) {
    auto window = std::make_unique<CDemoWindow>();
    window->resize(900, 600);
    if (pLanguage) window->SetLanguage(*pLanguage);
    if (!window->OpenFile(QString::fromLocal8Bit(pszFile))) {
        std::fprintf(stderr, "textzone-demo: cannot read %s\n", pszFile);
        return 1;
    }
    const double opened = SecondsSince(t0);
    CPaintWatch watch(&window->EditorWidget());
    app.installEventFilter(&watch);
    window->show();
    // The first paint is the goal; a few rounds without one end the wait.
    for (int i = 0; i < 1000 && !watch.m_bPainted; ++i)
        app.processEvents(QEventLoop::AllEvents, 50);
    app.removeEventFilter(&watch);
    if (!watch.m_bPainted) {
        std::fprintf(stderr, "textzone-demo: the editor was never painted\n");
        return 1;
    }
    // Told at once, so that a caller timing the whole process sees the moment.
    std::printf("{\"opened_s\": %.4f, \"first_paint_s\": %.4f}\n", opened, SecondsSince(t0));
    std::fflush(stdout);
    const Clock::time_point closing = Clock::now();
    window->close();
    window.reset();
    std::printf("{\"close_s\": %.4f}\n", SecondsSince(closing));
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const Clock::time_point t0 = Clock::now();
    const char* pszFile = nullptr;
    const char* pszShot = nullptr;
    CLanguageChoice language;
    bool bLanguage = false;
    bool bTimeOpen = false;
    for (int i = 1; i < argc; ++i) {
        const bool bValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--screenshot") == 0 && bValue) {
            pszShot = argv[++i];
        } else if (std::strcmp(argv[i], "--time-open") == 0) {
            bTimeOpen = true;
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
    if (bTimeOpen) {
        if (!pszFile) return 1;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QApplication app(argc, argv);
        CQtPlatform platform;
        return TimeOpen(app, pszFile, bLanguage ? &language : nullptr, t0);
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
