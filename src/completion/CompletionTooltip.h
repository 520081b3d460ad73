// The small yellow window under a routine call: the routine's title and its
// parameters, the one the caret is in drawn bold. It is a tool pop-up that
// never takes the focus; its zone opens, moves and closes it.
#pragma once

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "platform/Font.h"
#include "platform/Wnd.h"

class CTextZoneColor;

class TEXTZONE_EXPORT CCompletionTooltip : public CWnd {
public:
    CCompletionTooltip(const VESK::String& strName, const VESK::String& strParms, int bNoParens,
                       CWnd* pParent, CTextZoneColor* pZone);
    ~CCompletionTooltip() override;

    // Makes the window at a point of the editor's client area, of size 0:
    // SetActiveParm gives it its size.
    BOOL CreateAt(POINT ptClient);
    // Shows parameter nParm (from 0) in bold; an index with no parameter
    // shows none bold.
    void SetActiveParm(int nParm);
    int GetActiveParm() const { return m_nActiveParm; }
    // The three pieces as shown: before, bold, after.
    const VESK::String& GetBefore() const { return m_strBefore; }
    const VESK::String& GetActive() const { return m_strActive; }
    const VESK::String& GetAfter() const { return m_strAfter; }
    // Whether the window is inside one of its own messages: it must not be
    // deleted before that returns.
    bool IsInMessage() const { return m_nMessageDepth > 0; }

    // The tooltip that is open in the process, or null.
    static CCompletionTooltip* GetOpenTooltip();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    VESK::String m_strName;
    VESK::String m_strParms;
    int m_bNoParens = 0;
    CWnd* m_pParent = nullptr;  // the editor window
    CTextZoneColor* m_pZone = nullptr;
    int m_nActiveParm = -1;
    VESK::String m_strBefore;
    VESK::String m_strActive;
    VESK::String m_strAfter;

private:
    void OnPaint();
    void OnCancelMode();

    CFont m_font;      // the plain text
    CFont m_boldFont;  // the active parameter
    int m_nMessageDepth = 0;
};
