#include "platform/qt/Windows1252.h"

#include <QList>

namespace {

// 0x80..0x9F; 0 marks the bytes the code page leaves undefined.
constexpr char16_t kHighControls[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

}  // namespace

char16_t CWindows1252::ToUnicode(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0 && kHighControls[byte - 0x80] != 0)
        return kHighControls[byte - 0x80];
    return byte;
}

int CWindows1252::FromUnicode(char32_t ch) {
    if (ch < 0x80 || (ch >= 0xA0 && ch <= 0xFF)) return static_cast<int>(ch);
    for (int i = 0; i < 32; ++i) {
        char16_t mapped = kHighControls[i];
        if (mapped == ch || (mapped == 0 && ch == static_cast<char32_t>(0x80 + i))) return 0x80 + i;
    }
    return -1;
}

QString CWindows1252::ToQString(const char* p, int n) {
    QString text(n, Qt::Uninitialized);
    for (int i = 0; i < n; ++i)
        text[i] = QChar(ToUnicode(static_cast<unsigned char>(p[i])));
    return text;
}

std::string CWindows1252::FromQString(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<size_t>(text.size()));
    for (char32_t ch : text.toUcs4()) {
        int b = FromUnicode(ch);
        bytes.push_back(static_cast<char>(b < 0 ? '?' : b));
    }
    return bytes;
}
