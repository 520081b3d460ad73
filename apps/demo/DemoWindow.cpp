#include "apps/demo/DemoWindow.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QPixmap>
#include <QSplitter>
#include <QStatusBar>
#include <cctype>
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
    const QByteArray bytes = file.readAll();
    m_bCrLf = bytes.contains("\r\n");
    m_bFinalLineEnd = bytes.isEmpty() || bytes.endsWith('\n') || bytes.endsWith('\r');
    // The text is 8-bit: a 0 byte would end it, so it becomes a blank.
    std::string text(bytes.constData(), static_cast<size_t>(bytes.size()));
    for (char& c : text)
        if (c == 0) c = ' ';
    if (!m_bLanguageChosen) ApplyLanguage(CLanguageChoice::ForPath(path.toStdString()));
    m_pEditor->Editor().SetWindowTextA(text.c_str());
    // A file opens at its top, the caret at its start.
    m_pEditor->Editor().SetSel(0, 0);
    m_path = path;
    // A first report: the lines of the first long word of the file.
    std::string word;
    for (size_t i = 0; i <= text.size(); ++i) {
        const unsigned char c = i < text.size() ? static_cast<unsigned char>(text[i]) : ' ';
        if (std::isalnum(c) || c == '_') {
            word += static_cast<char>(c);
        } else if (word.size() >= 4) {
            break;
        } else {
            word.clear();
        }
    }
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
    VESK::String text;
    m_pEditor->Editor().GetWindowTextA(text);
    const QString title = m_path.isEmpty() ? QString("Untitled") : QFileInfo(m_path).fileName();
    m_pReport->ShowMatches(title, text.c_str(), word);
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
