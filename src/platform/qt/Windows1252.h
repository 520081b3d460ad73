// The 8-bit code page of the engine's text. Bytes become characters through
// Windows-1252; the five bytes it leaves undefined map to the Latin-1
// control characters of the same value, so every byte round-trips.
#pragma once

#include <QString>
#include <string>

class CWindows1252 {
public:
    static char16_t ToUnicode(unsigned char byte);
    // The byte of a character, or -1 when the code page has none.
    static int FromUnicode(char32_t ch);

    static QString ToQString(const char* p, int n);
    static QString ToQString(const std::string& bytes) {
        return ToQString(bytes.data(), static_cast<int>(bytes.size()));
    }
    // Characters outside the code page become '?', as the desktop platform
    // does when it narrows text for an 8-bit window.
    static std::string FromQString(const QString& text);
};
