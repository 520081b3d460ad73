#include "apps/demo/DemoWindow.h"

#include <unistd.h>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QPixmap>
#include <QSplitter>
#include <QStatusBar>
#include <algorithm>
#include <cctype>
#include <cstring>
#include <memory>
#include <string>

#include "textzone/TextZone.h"

CDemoWindow::CDemoWindow(QWidget* pParent)
    : QMainWindow(pParent), m_pZone(std::make_unique<CTextZoneColor>()) {
    auto* pSplitter = new QSplitter(Qt::Vertical, this);
    m_pEditor = new CQtEditorWidget(pSplitter, WS_VSCROLL | WS_HSCROLL | WS_BORDER, m_pZone.get());
    m_pReport = new CReportPane(pSplitter);
    pSplitter->addWidget(m_pEditor);
    pSplitter->addWidget(m_pReport);
    pSplitter->setStretchFactor(0, 3);
    pSplitter->setStretchFactor(1, 1);
    // The stretch factors only share out later growth; start the editor at three quarters too.
    pSplitter->setSizes({3000, 1000});
    setCentralWidget(pSplitter);
    // A link in the report puts the caret on its place in the editor.
    m_pReport->SetOpenHandler([this](int nLine, int nChar) {
        CTextZone& zone = m_pEditor->Zone();
        zone.SetSelection(nLine, nLine, nChar, nChar, 0, 1);
        zone.DrawCaret(1, 1);
        m_pEditor->setFocus();
        UpdateStatus();
    });
    m_pStatus = new QLabel(this);
    statusBar()->addWidget(m_pStatus);
    m_pLanguage = new QLabel(this);
    statusBar()->addPermanentWidget(m_pLanguage);
    ApplyLanguage(CLanguageChoice());

    QMenu* pFile = menuBar()->addMenu("&File");
    pFile->addAction("&Open...", QKeySequence::Open, [this] {
        QString path = QFileDialog::getOpenFileName(this, "Open");
        if (!path.isEmpty()) OpenFile(path);
    });
    pFile->addAction("&Save", QKeySequence::Save, [this] {
        QString path = m_path;
        if (path.isEmpty()) path = QFileDialog::getSaveFileName(this, "Save");
        if (!path.isEmpty()) SaveFile(path);
    });
    pFile->addAction("Save &As...", QKeySequence::SaveAs, [this] {
        QString path = QFileDialog::getSaveFileName(this, "Save As", m_path);
        if (!path.isEmpty()) SaveFile(path);
    });
    pFile->addSeparator();
    pFile->addAction("&Quit", QKeySequence::Quit, [this] { close(); });
    QMenu* pSearch = menuBar()->addMenu("&Search");
    pSearch->addAction("&List Lines With Selection", QKeySequence(Qt::CTRL | Qt::Key_L), [this] {
        CTextZone& zone = m_pEditor->Zone();
        std::string selected(static_cast<size_t>(zone.GetSelectedTextLength(TF_CRLF)) + 2, '\0');
        zone.GetSelectedText(selected.data(), static_cast<LONG>(selected.size()), TF_CRLF);
        selected.resize(std::char_traits<char>::length(selected.c_str()));
        if (selected.find_first_of("\r\n") == std::string::npos) ReportWord(selected);
    });

    m_pEditor->SetChangeHandler([this] { UpdateTitle(); });
    // The control tells of changes, not of caret moves: the status line looks.
    connect(&m_statusTimer, &QTimer::timeout, this, [this] { UpdateStatus(); });
    m_statusTimer.start(100);
    UpdateStatus();
    UpdateTitle();
}

CDemoWindow::~CDemoWindow() {
    // The control goes before the zone it borrows.
    delete m_pEditor;
    m_pEditor = nullptr;
}

void CDemoWindow::SetLanguage(const CLanguageChoice& choice) {
    m_bLanguageChosen = true;
    ApplyLanguage(choice);
}

void CDemoWindow::ApplyLanguage(const CLanguageChoice& choice) {
    m_language = choice;
    choice.Apply(*m_pZone);
    // Some language switches leave the repaint to the host.
    m_pZone->RedrawTextZone();
    m_pLanguage->setText(QString::fromStdString(choice.Name()));
}

bool CDemoWindow::OpenFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    // The file is mapped, not read: the zone makes the only copy of the text
    // it keeps. A private mapping may be written without touching the file.
    const qint64 size = file.size();
    const auto n = static_cast<size_t>(size);
    uchar* pMap = size > 0 ? file.map(0, size, QFileDevice::MapPrivateOption) : nullptr;
    std::unique_ptr<char[]> copy;
    char* text = reinterpret_cast<char*>(pMap);
    const long page = sysconf(_SC_PAGESIZE);
    // Behind the end of a file the rest of its last page reads as 0, which
    // ends the text; a file that fills its last page needs a copy for that 0.
    if (!text || page <= 0 || n % static_cast<size_t>(page) == 0) {
        copy = std::make_unique_for_overwrite<char[]>(n + 1);
        if (text) {
            std::memcpy(copy.get(), text, n);
        } else if (size > 0 && file.read(copy.get(), size) != size) {
            return false;
        }
        copy[n] = 0;
        text = copy.get();
    }
    // CR LF if any CR is followed by LF; memchr skips to CRs, which plain
    // LF text has none of.
    m_bCrLf = false;
    for (const char* p = text;
         !m_bCrLf && (p = static_cast<const char*>(std::memchr(p, '\r', n - (p - text))));)
        m_bCrLf = *++p == '\n';
    m_bFinalLineEnd = n == 0 || text[n - 1] == '\n' || text[n - 1] == '\r';
    // The text is 8-bit: a 0 byte would end it, so it becomes a blank.
    for (char* p = text; (p = static_cast<char*>(std::memchr(p, 0, n - (p - text))));)
        *p = ' ';
    if (!m_bLanguageChosen) ApplyLanguage(CLanguageChoice::ForPath(path.toStdString()));
    m_pEditor->Editor().SetWindowTextA(text);
    // A first report: the lines of the first long word near the top.
    std::string word;
    for (size_t i = 0; i <= std::min<size_t>(n, 4096); ++i) {
        const unsigned char c = i < n ? static_cast<unsigned char>(text[i]) : ' ';
        if (std::isalnum(c) || c == '_') {
            word += static_cast<char>(c);
        } else if (word.size() >= 4) {
            break;
        } else {
            word.clear();
        }
    }
    if (pMap) file.unmap(pMap);
    // A file opens at its top, the caret at its start.
    m_pEditor->Editor().SetSel(0, 0);
    m_path = path;
    ReportWord(word);
    UpdateTitle();
    UpdateStatus();
    return true;
}

bool CDemoWindow::SaveFile(const QString& path) {
    CTextZone& zone = m_pEditor->Zone();
    WORD wFlags = m_bCrLf ? TF_CRLF : TF_LF;
    if (!m_bFinalLineEnd) wFlags |= TF_NO_FINAL_END;
    std::string buffer(static_cast<size_t>(zone.GetTextLength(wFlags)) + 2, '\0');
    zone.GetText(buffer.data(), static_cast<LONG>(buffer.size()), wFlags);
    buffer.resize(std::char_traits<char>::length(buffer.c_str()));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    if (file.write(buffer.data(), static_cast<qint64>(buffer.size())) !=
        static_cast<qint64>(buffer.size()))
        return false;
    m_path = path;
    m_pEditor->Editor().SetModify(0);
    UpdateTitle();
    return true;
}

void CDemoWindow::ReportWord(const std::string& word) {
    const QString title = m_path.isEmpty() ? QString("Untitled") : QFileInfo(m_path).fileName();
    m_pReport->ShowMatches(title, m_pEditor->Zone(), word);
}

QString CDemoWindow::CaretText() {
    CTextZone& zone = m_pEditor->Zone();
    return QString("Ln %1, Col %2")
        .arg(zone.GetSelMobileLine() + 1)
        .arg(zone.GetSelMobileChar() + 1);
}

bool CDemoWindow::SaveScreenshot(const QString& path) {
    return grab().save(path, "PNG");
}

void CDemoWindow::UpdateStatus() {
    m_pStatus->setText(CaretText());
}

void CDemoWindow::UpdateTitle() {
    QString name = m_path.isEmpty() ? QString("Untitled") : QFileInfo(m_path).fileName();
    if (m_pEditor->Editor().GetModify()) name += " *";
    setWindowTitle(name + " - Textzone demo");
}
