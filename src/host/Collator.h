// Case mapping and comparison of 8-bit text. Text is Windows-1252 throughout,
// so every case operation here uses that one fixed mapping, independent of the
// user's locale: results are the same on every machine and backend.
//
// Only letters with a single-byte partner change case; 0xDF (sharp s) and
// 0xB5 (micro) have none and stay as they are, so lengths never change.
#pragma once

#include <cstddef>

#include "TextzoneExport.h"
#include "platform/Types.h"

namespace VESK {

class TEXTZONE_EXPORT ICollator {
public:
    virtual ~ICollator();
    // In place over n bytes; 0 bytes inside the range are converted like any
    // other (they have no case) and do not stop the conversion.
    virtual void toLower(char* p, int n) const = 0;
    virtual void toUpper(char* p, int n) const = 0;
    // strcmp-like over unsigned bytes: negative, 0 or positive.
    virtual int compare(const char* a, const char* b) const = 0;
    virtual int compareNoCase(const char* a, const char* b) const = 0;
};

class TEXTZONE_EXPORT CollatorFactory {
public:
    // A static instance shared by all callers; never null.
    static ICollator* getSystemCollator();
};

}  // namespace VESK

TEXTZONE_EXPORT unsigned char ToUpper1252(unsigned char c);
TEXTZONE_EXPORT unsigned char ToLower1252(unsigned char c);
TEXTZONE_EXPORT bool IsUpper1252(unsigned char c);
TEXTZONE_EXPORT bool IsLower1252(unsigned char c);
TEXTZONE_EXPORT bool IsAlpha1252(unsigned char c);

// In place up to the terminating 0; return the argument (null stays null).
TEXTZONE_EXPORT char* CharUpperA(char* psz);
TEXTZONE_EXPORT char* CharLowerA(char* psz);
// In place over exactly n bytes; return n.
TEXTZONE_EXPORT DWORD CharUpperBuffA(char* p, DWORD n);
TEXTZONE_EXPORT DWORD CharLowerBuffA(char* p, DWORD n);

// Compare the lower-cased bytes as unsigned values, like the C runtime's
// functions of the same names: negative, 0 or positive; the 0 byte ends a
// string, and _strnicmp looks at no more than n bytes.
TEXTZONE_EXPORT int _stricmp(const char* a, const char* b);
TEXTZONE_EXPORT int _strnicmp(const char* a, const char* b, std::size_t n);
