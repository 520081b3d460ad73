// The demo host: a main window with an editor control and, under it, a
// report pane of results that link back into the editor; a File menu that
// opens and saves 8-bit files, and a status line that tells the caret's
// line and column and the language. The control works on a
// coloured zone of the window's own; a file is coloured by its extension
// unless a language was chosen.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QString>
#include <QTimer>

#include <memory>

#include "apps/common/LanguageChoice.h"
#include "apps/demo/ReportPane.h"
#include "colour/TextZoneColor.h"
#include "editor/qt/QtEditorWidget.h"

class CDemoWindow : public QMainWindow {
public:
    explicit CDemoWindow(QWidget* pParent = nullptr);
    ~CDemoWindow() override;

    CQtEditorWidget& EditorWidget() { return *m_pEditor; }
    CReportPane& Report() { return *m_pReport; }
    // Lists the lines of the text that hold a word in the report pane.
    void ReportWord(const std::string& word);
    // Loads a file as it is, byte for byte; false if it cannot be read.
    bool OpenFile(const QString& path);
    // Writes the text with the line ends the file was read with.
    bool SaveFile(const QString& path);
    // "Ln 3, Col 7", from the caret.
    QString CaretText();
    // Colours the text as this language from now on, whatever the files.
    void SetLanguage(const CLanguageChoice& choice);
    const CLanguageChoice& Language() const { return m_language; }
    // Renders the window into a PNG file.
    bool SaveScreenshot(const QString& path);

private:
    void UpdateStatus();
    void UpdateTitle();

    void ApplyLanguage(const CLanguageChoice& choice);

    std::unique_ptr<CTextZoneColor> m_pZone;  // outlives the control that borrows it
    CQtEditorWidget* m_pEditor;
    CReportPane* m_pReport;
    QLabel* m_pStatus;
    QLabel* m_pLanguage;
    CLanguageChoice m_language;
    bool m_bLanguageChosen = false;
    QTimer m_statusTimer;
    QString m_path;
    bool m_bCrLf = false;
    bool m_bFinalLineEnd = true;
};
