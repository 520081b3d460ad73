// The clipboard in CF_TEXT over QClipboard. Bytes cross as Windows-1252;
// the text handed to other programs has the system's LF line ends and the
// text read back has CR LF, whatever the writer used.
#pragma once

#include <QString>
#include <string>

#include "platform/Types.h"

class CQtClipboard {
public:
    BOOL Open();
    BOOL Close();
    BOOL Empty();
    BOOL SetText(const std::string& data);
    BOOL GetText(std::string* pData);
    BOOL HasText() const;

    // The conversions, apart.
    static QString ToSystemText(const std::string& bytes);
    static std::string FromSystemText(const QString& text);

private:
    bool m_bOpen = false;
};
