// The demo host: a small editor of several SQL (and other) texts at once.
// Each text is an extended editor view in a window of its own inside the
// main window; the menus offer files, the editor's Edit and View commands,
// the language, the keyword case, and a report pane of the lines holding a
// word, whose links lead back into the text.
#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>
#include <memory>
#include <string>

#include "apps/common/LanguageChoice.h"
#include "apps/demo/DemoMainFrame.h"
#include "apps/demo/QtDemoPrompts.h"
#include "apps/demo/ReportPane.h"
#include "platform/PropertySheet.h"
#include "platform/qt/QtMDIFrame.h"
#include "platform/qt/QtPropertySheet.h"

class CDemoDocument;
class CDemoView;

// Built before the window, destroyed after it: the window shows the frame.
struct CDemoFrameHolder {
    CDemoMainFrame m_mainFrame;
};

class CDemoWindow : private CDemoFrameHolder, public CQtMDIFrame {
public:
    explicit CDemoWindow(QWidget* pParent = nullptr);
    ~CDemoWindow() override;

    CDemoMainFrame& MainFrame() { return m_mainFrame; }
    CReportPane& Report() { return *m_pReport; }
    // Asks and tells through these from now on (tests script them).
    void SetPrompts(IDemoPrompts* pPrompts);

    // Opens a file in a window of its own; false if it cannot be read.
    bool OpenFile(const QString& path);
    // Colours every text opened from now on, and the active one, as this.
    void SetLanguage(const CLanguageChoice& choice);
    CDemoDocument* ActiveDocument();
    CDemoView* ActiveView();
    // Lists the lines of the active text that hold a word in the report pane.
    void ReportWord(const std::string& word);
    // Renders the window into a PNG file.
    bool SaveScreenshot(const QString& path);
    // Tools > Options: the editor's option, font and shortcut pages in a
    // sheet over this window (the one already open, if any).
    CQtPropertySheet* OpenOptions();

private:
    void BuildMenus();
    void UpdateTitle();

    CQtDemoPrompts m_qtPrompts;
    IDemoPrompts* m_pPrompts;
    CReportPane* m_pReport;
    QTimer m_titleTimer;
    // The sheet outlives its dialog: a new one is made only once the old
    // dialog has gone.
    std::unique_ptr<CPropertySheet> m_pOptionsSheet;
    QPointer<CQtPropertySheet> m_pOptions;
};
