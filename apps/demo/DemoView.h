// The demo's editor view: the ready-made extended view, which keeps the
// language its document chose across settings reloads.
#pragma once

#include "editor/EditorViewEx.h"

class CDemoView : public CEditorViewEx {
public:
    CDemoView() = default;

protected:
    LRESULT OnLoadIniSetting(WPARAM wParam, LPARAM lParam) override;
};
