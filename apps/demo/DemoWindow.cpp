#include "apps/demo/DemoWindow.h"

#include <QDockWidget>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <algorithm>
#include <cctype>

#include "apps/demo/DemoCommands.h"
#include "apps/demo/DemoDocument.h"
#include "apps/demo/DemoView.h"
#include "pages/PageFactories.h"
#include "platform/MDIChildWnd.h"
#include "platform/Messages.h"
#include "resources/EditorResources.h"
#include "zones/TextZoneParam.h"

namespace {

// The word a report lists: the selection when it is one word on one line.
std::string SelectedWord(CTextZone& zone) {
    std::string selected(static_cast<size_t>(zone.GetSelectedTextLength(TF_CRLF)) + 2, '\0');
    zone.GetSelectedText(selected.data(), static_cast<LONG>(selected.size()), TF_CRLF);
    selected.resize(std::char_traits<char>::length(selected.c_str()));
    if (selected.find_first_of("\r\n") != std::string::npos) return std::string();
    return selected;
}

// A first report for a file: its first word of four letters or more.
std::string FirstLongWord(CTextZone& zone) {
    for (int nLine = 0; nLine < 50; ++nLine) {
        CStringEx* pLine = zone.GetLine(nLine);
        if (!pLine) break;
        std::string word;
        const char* p = pLine->c_str();
        for (int i = 0; i <= pLine->GetLength(); ++i) {
            const unsigned char c = i < pLine->GetLength() ? static_cast<unsigned char>(p[i]) : ' ';
            if (std::isalnum(c) || c == '_') {
                word += static_cast<char>(c);
            } else if (word.size() >= 4) {
                return word;
            } else {
                word.clear();
            }
        }
    }
    return std::string();
}

}  // namespace

CDemoWindow::CDemoWindow(QWidget* pParent)
    : CQtMDIFrame(m_mainFrame, pParent), m_qtPrompts(this), m_pPrompts(&m_qtPrompts) {
    m_mainFrame.SetPrompts(m_pPrompts);
    SetPromptSource([](UINT nID) { return LoadStringResource(nID); });
    BuildMenus();
    std::map<UINT, QString> sizing;
    for (UINT nID : {ID_INDICATOR_LINE, ID_INDICATOR_MODE})
        sizing[nID] = QString::fromLatin1(LoadStringResource(nID));
    sizing[ID_INDICATOR_LINEEND] = "CR LF";
    sizing[ID_INDICATOR_LANGUAGE] = "T-SQL (dialect 150)";
    SetStatusPanes({ID_SEPARATOR, ID_INDICATOR_LINE, ID_INDICATOR_MODE, ID_INDICATOR_LINEEND,
                    ID_INDICATOR_LANGUAGE},
                   sizing);

    auto* pDock = new QDockWidget("Report", this);
    pDock->setObjectName("report");
    pDock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    m_pReport = new CReportPane(pDock);
    pDock->setWidget(m_pReport);
    addDockWidget(Qt::BottomDockWidgetArea, pDock);
    resizeDocks({pDock}, {140}, Qt::Vertical);
    // A link in the report puts the caret on its place in the active text.
    m_pReport->SetOpenHandler([this](int nLine, int nChar) {
        CDemoView* pView = ActiveView();
        if (!pView) return;
        pView->GetTextZone()->SetSelection(nLine, nLine, nChar, nChar, 0, 1);
        pView->GetTextZone()->DrawCaret(1, 1);
        pView->SetFocus();
    });

    connect(&m_titleTimer, &QTimer::timeout, this, [this] { UpdateTitle(); });
    m_titleTimer.start(200);
    UpdateTitle();
}

CDemoWindow::~CDemoWindow() {
    m_titleTimer.stop();
    delete m_pOptions;
    // The documents go with their windows while this window still stands.
    m_mainFrame.SetObserver(nullptr);
    m_mainFrame.DestroyWindow();
}

void CDemoWindow::SetPrompts(IDemoPrompts* pPrompts) {
    m_pPrompts = pPrompts ? pPrompts : &m_qtPrompts;
    m_mainFrame.SetPrompts(m_pPrompts);
}

void CDemoWindow::BuildMenus() {
    using M = MenuItem;
    AddMenu(M::Popup("&File", {M::Command(ID_FILE_NEW, "&New\tCtrl+N"),
                               M::Command(ID_FILE_OPEN, "&Open...\tCtrl+O"),
                               M::Command(ID_FILE_SAVE, "&Save\tCtrl+S"),
                               M::Command(ID_FILE_SAVE_AS, "Save &As...\tCtrl+Shift+S"),
                               M::Command(ID_FILE_CLOSE, "&Close"), M::Separator(),
                               M::Command(ID_FILE_PRINT, "&Print...\tCtrl+P"),
                               M::Command(ID_FILE_EXPORT_PDF, "&Export to PDF..."),
                               M::Separator()}));
    QMenu* pFile = menuBar()->actions().front()->menu();
    pFile->addAction("&Quit", QKeySequence::Quit, this, [this] { close(); });

    if (const MenuBar* pEditor = LoadMenuResource("MENUEXTENDEDEDITORVIEW")) {
        for (MenuItem popup : *pEditor) {
            if (popup.strText == "&View") {
                popup.items.push_back(M::Separator());
                popup.items.push_back(M::Popup(
                    "&Keyword Case", {M::Command(ID_KEYWORDCASE_FIRST, "&As Typed"),
                                      M::Command(ID_KEYWORDCASE_FIRST + 1, "&UPPER CASE"),
                                      M::Command(ID_KEYWORDCASE_FIRST + 2, "&lower case"),
                                      M::Command(ID_KEYWORDCASE_FIRST + 3, "&Capitalised")}));
            }
            AddMenu(popup);
        }
    }

    std::vector<MenuItem> languages = {M::Command(ID_LANGUAGE_FIRST, "By &Extension"),
                                       M::Separator()};
    const auto& entries = CDemoMainFrame::Languages();
    for (size_t i = 0; i < entries.size(); ++i)
        languages.push_back(M::Command(ID_LANGUAGE_FIRST + 1 + static_cast<UINT>(i),
                                       entries[i].strName.c_str()));
    AddMenu(M::Popup("&Language", languages));

    QMenu* pSearch = menuBar()->addMenu("&Search");
    pSearch->addAction("&List Lines With Selection", QKeySequence(Qt::CTRL | Qt::Key_L), this,
                       [this] {
                           if (CDemoView* pView = ActiveView()) {
                               std::string word = SelectedWord(*pView->GetTextZone());
                               if (!word.empty()) ReportWord(word);
                           }
                       });
    QMenu* pTools = menuBar()->addMenu("&Tools");
    pTools->addAction("&Options...", this, [this] { OpenOptions(); });
    QMenu* pWindow = menuBar()->addMenu("&Window");
    pWindow->addAction("&Cascade", this, [this] { MdiArea()->cascadeSubWindows(); });
    pWindow->addAction("&Tile", this, [this] { MdiArea()->tileSubWindows(); });
}

bool CDemoWindow::OpenFile(const QString& path) {
    CDemoDocument* pDoc = m_mainFrame.OpenFile(path.toLocal8Bit().toStdString());
    if (!pDoc) return false;
    if (CTextZoneParam* pZone = pDoc->GetZone()) ReportWord(FirstLongWord(*pZone));
    // The panes show the file's line end and language at once, not at the next idle moment.
    m_mainFrame.OnIdleUpdateCmdUI();
    UpdateTitle();
    return true;
}

void CDemoWindow::SetLanguage(const CLanguageChoice& choice) {
    m_mainFrame.SetDefaultLanguage(choice);
    if (CDemoDocument* pDoc = ActiveDocument()) pDoc->SetLanguage(choice, true);
}

CDemoDocument* CDemoWindow::ActiveDocument() {
    return m_mainFrame.GetActiveDemoDocument();
}

CDemoView* CDemoWindow::ActiveView() {
    CMDIChildWnd* pChild = m_mainFrame.MDIGetActive();
    return pChild ? dynamic_cast<CDemoView*>(pChild->GetPaneView()) : nullptr;
}

void CDemoWindow::ReportWord(const std::string& word) {
    CDemoView* pView = ActiveView();
    CDemoDocument* pDoc = ActiveDocument();
    if (!pView || !pDoc) return;
    m_pReport->ShowMatches(QString::fromStdString(pDoc->GetTitle()), *pView->GetTextZone(), word);
}

CQtPropertySheet* CDemoWindow::OpenOptions() {
    if (m_pOptions && m_pOptions->isVisible()) {
        m_pOptions->raise();
        m_pOptions->activateWindow();
        return m_pOptions;
    }
    // A dialog that ended and waits for its deletion goes before its sheet.
    delete m_pOptions;
    m_pOptionsSheet = std::make_unique<CPropertySheet>("Options");
    EditEx32_AddOptionPageTSQL(m_pOptionsSheet.get(), nullptr);
    EditEx32_AddFontPage(m_pOptionsSheet.get(), nullptr);
    // The editors read "EnableShortcuts" from their own section.
    EditEx32_AddShortcutPage(m_pOptionsSheet.get(), "Editor");
    m_pOptions = new CQtPropertySheet(*m_pOptionsSheet, this);
    m_pOptions->setAttribute(Qt::WA_DeleteOnClose);
    m_pOptions->open();
    return m_pOptions;
}

bool CDemoWindow::SaveScreenshot(const QString& path) {
    return grab().save(path, "PNG");
}

void CDemoWindow::UpdateTitle() {
    QString title = "Textzone demo";
    if (CDemoDocument* pDoc = ActiveDocument()) {
        title = QString::fromLocal8Bit(pDoc->GetTitle().c_str()) + " - " + title;
        if (pDoc->IsModified()) title = "* " + title;
    }
    if (windowTitle() != title) setWindowTitle(title);
}
