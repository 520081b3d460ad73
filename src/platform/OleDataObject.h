// Data offered by a drag: text in CF_TEXT only, since that is the one format
// this system exchanges.
#pragma once

#include <optional>
#include <string>

#include "TextzoneExport.h"
#include "platform/Types.h"

class TEXTZONE_EXPORT COleDataObject {
public:
    COleDataObject() = default;
    explicit COleDataObject(std::string text) : m_text(std::move(text)) {}

    BOOL IsDataAvailable(UINT cfFormat) const;
    // The bytes of the format, without a terminating 0; empty when absent.
    std::string GetGlobalData(UINT cfFormat) const;

private:
    std::optional<std::string> m_text;
};
