// What one edit did: at most two units, or any number in a group operation
// (kinds from 0x8000 up, such as Replace All).
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"
#include "textzone/UndoUnit.h"

class TEXTZONE_EXPORT CUndoOperation {
public:
    bool IsGroup() const { return (m_wType & 0x8000) != 0; }
    // Files a unit: into the group, else the first free of the two places,
    // else the group (rare: an edit whose padding made room first).
    void Add(std::unique_ptr<CUndoUnit> pUnit) {
        if (!IsGroup() && !m_pFirst)
            m_pFirst = std::move(pUnit);
        else if (!IsGroup() && !m_pSecond)
            m_pSecond = std::move(pUnit);
        else
            m_group.push_back(std::move(pUnit));
    }

    WORD m_wType = 0;
    std::unique_ptr<CUndoUnit> m_pFirst;
    std::unique_ptr<CUndoUnit> m_pSecond;
    // The units of a group, in order; in a plain operation the units past
    // the second, if an edit ever makes more.
    std::vector<std::unique_ptr<CUndoUnit>> m_group;
};
