// The component's data directory in the user's home, as Linux desktops place
// per-user data: $XDG_DATA_HOME/textzone, or ~/.local/share/textzone when
// that is unset or not absolute. Reading never creates it (a missing file in
// a missing folder reads as no file); a writer calls CreateForWrite first.
#pragma once

#include <string>

#include "TextzoneExport.h"
#include "host/AppDataManager.h"

class TEXTZONE_EXPORT CUserDataDirectory : public IAppDirectory {
public:
    // The directory from the environment now; empty when neither
    // XDG_DATA_HOME nor HOME gives an absolute path.
    static std::string Path();
    // Creates the directory and its parents if missing; false on failure.
    static bool CreateForWrite();

    int GetDataDirectory(char* buffer, int size, char separator) override;
};
