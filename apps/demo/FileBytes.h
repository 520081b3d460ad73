// Whole files in and out, for a host that must never lose a user's text: a
// failure comes back as a sentence for a dialog, never as an exit, and a
// save that fails leaves the old file as it was.
//
// Standard library only.
#pragma once

#include <string>
#include <string_view>

class CFileBytes {
public:
    // The bytes of the file; false with the reason in *pError.
    static bool Read(const std::string& path, std::string* pBytes, std::string* pError);
    // Replaces the file's bytes, or makes the file. The bytes go to a new
    // file in the same folder, which then takes the file's name: the old file
    // stays whole until the new one is complete. The old file's permissions
    // carry over; through a symbolic link, the file it names is replaced.
    static bool Write(const std::string& path, std::string_view bytes, std::string* pError);
};
