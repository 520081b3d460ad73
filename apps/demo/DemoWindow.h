// The demo host: a main window with one editor control filling it, a File
// menu that opens and saves 8-bit files, and a status line that tells the
// caret's line and column.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QString>
#include <QTimer>

#include "editor/qt/QtEditorWidget.h"

class CDemoWindow : public QMainWindow {
public:
    explicit CDemoWindow(QWidget* pParent = nullptr);

    CQtEditorWidget& EditorWidget() { return *m_pEditor; }
    // Loads a file as it is, byte for byte; false if it cannot be read.
    bool OpenFile(const QString& path);
    // Writes the text with the line ends the file was read with.
    bool SaveFile(const QString& path);
    // "Ln 3, Col 7", from the caret.
    QString CaretText();
    // Renders the window into a PNG file.
    bool SaveScreenshot(const QString& path);

private:
    void UpdateStatus();
    void UpdateTitle();

    CQtEditorWidget* m_pEditor;
    QLabel* m_pStatus;
    QTimer m_statusTimer;
    QString m_path;
    bool m_bCrLf = false;
    bool m_bFinalLineEnd = true;
};
