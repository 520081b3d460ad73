#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/Windows1252.h"

QString CQtClipboard::ToSystemText(const std::string& bytes) {
    // CF_TEXT ends at its first 0.
    std::string text = bytes.substr(0, bytes.find('\0'));
    QString s = CWindows1252::ToQString(text);
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return s;
}

std::string CQtClipboard::FromSystemText(const QString& text) {
    QString s = text;
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    s.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    std::string bytes = CWindows1252::FromQString(s);
    return bytes.substr(0, bytes.find('\0'));
}

BOOL CQtClipboard::Open() {
    if (m_bOpen) return FALSE;
    m_bOpen = true;
    return TRUE;
}

BOOL CQtClipboard::Close() {
    if (!m_bOpen) return FALSE;
    m_bOpen = false;
    return TRUE;
}

BOOL CQtClipboard::Empty() {
    if (!m_bOpen) return FALSE;
    QGuiApplication::clipboard()->clear();
    return TRUE;
}

BOOL CQtClipboard::SetText(const std::string& data) {
    if (!m_bOpen) return FALSE;
    QGuiApplication::clipboard()->setText(ToSystemText(data));
    return TRUE;
}

BOOL CQtClipboard::GetText(std::string* pData) {
    if (!m_bOpen || !HasText()) return FALSE;
    *pData = FromSystemText(QGuiApplication::clipboard()->text());
    return TRUE;
}

BOOL CQtClipboard::HasText() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}
