// textzone-demo [FILE...] [--lang ID] [--dialect N] [--screenshot FILE.png | --time-open]
// Opens each FILE in an editor window of its own (an empty SQL text without
// one), coloured by its extension, or as the language of --lang (a language
// id or an extension name: 1300, java) or the SQL dialect of --dialect
// (150, -92, ...). Settings come from the user's textzone.ini. Without a
// display, or with
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

#include <QMdiArea>
#include <vector>

#include "apps/demo/DemoWindow.h"
#include "host/qt/QtAppDataManager.h"
#include "platform/qt/QtPlatform.h"

namespace {

// A timed open has nobody to ask: what a dialog would say goes to stderr.
class CStderrPrompts : public IDemoPrompts {
public:
    EAnswer AskSaveChanges(const std::string&) override { return EAnswer::Discard; }
    std::string AskOpenPath() override { return std::string(); }
    std::string AskSavePath(const std::string&) override { return std::string(); }
    void Tell(const std::string& strTitle, const std::string& strText) override {
        std::fprintf(stderr, "textzone-demo: %s: %s\n", strTitle.c_str(), strText.c_str());
    }
    bool Confirm(const std::string&, const std::string&) override { return false; }
};

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
    // Cannot-read and what-the-editor-cannot-hold are said on stderr here.
    CStderrPrompts prompts;
    window->SetPrompts(&prompts);
    if (!window->OpenFile(QString::fromLocal8Bit(pszFile))) return 1;
    const double opened = SecondsSince(t0);
    CPaintWatch watch(window->MdiArea());
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
    std::vector<const char*> files;
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
            files.push_back(argv[i]);
        }
    }
    if (bTimeOpen) {
        if (files.size() != 1) return 1;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QApplication app(argc, argv);
        CQtPlatform platform;
        CQtAppDataManager::InstallForProcess();
        return TimeOpen(app, files.front(), bLanguage ? &language : nullptr, t0);
    }
    const bool bDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!pszShot && !bDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        pszShot = "textzone-demo.png";
    if (pszShot) qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    CQtPlatform platform;
    CQtAppDataManager::InstallForProcess();
    CDemoWindow window;
    window.resize(1000, 700);
    if (bLanguage) window.SetLanguage(language);
    window.show();
    // A file that cannot be read is said in a dialog; the others still open.
    for (const char* pszFile : files)
        window.OpenFile(QString::fromLocal8Bit(pszFile));
    if (files.empty()) window.MainFrame().NewDocument();
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
