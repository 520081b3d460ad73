// A small popup with rounded corners and a yellow face that a read-only zone
// shows under a line: the text of a link or the help of the line. The zone
// decides when it opens and closes; the bubble lays the text out, paints
// it, holds the mouse capture and hands mouse input on to the zone's
// window. A keyboard hook closes it on any key. At most one bubble is open
// in the process: the hook serves the current one.
#pragma once

#include <vector>

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "platform/Font.h"
#include "platform/Platform.h"
#include "platform/Wnd.h"

class CTextZoneReadOnly;

class TEXTZONE_EXPORT CTooltipBubble : public CWnd {
public:
    CTooltipBubble(char const* pText, CWnd* pParent, CTextZoneReadOnly* pZone);
    ~CTooltipBubble() override;

    // Lays the text out, places the window at pPos (the parent's client
    // coordinates) kept on the screen, shows it and captures the mouse.
    // 0 when the window could not be made.
    BOOL CreateBubble(POINT* pPos);
    BOOL DestroyWindow() override;

    const VESK::String& GetText() const { return m_strText; }
    const std::vector<VESK::String>& GetLines() const { return m_lines; }
    static CTooltipBubble* GetCurrent() { return s_pCurrentBubble; }

    static LRESULT BubbleKeyboardHook(int nCode, WPARAM wParam, LPARAM lParam);

    // The face and the room round the text.
    static constexpr COLORREF kFace = 0x70FFFF;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void OnPaint();
    // Forwards a press or move to the zone's window in its coordinates;
    // true when the point lies in its client area.
    bool ForwardMouse(UINT message, WPARAM wParam, LPARAM lParam, bool bAlways);
    // Cuts one line into pieces no wider than nLimit.
    void WrapLine(CDC* pDC, const VESK::String& line, int nLimit);
    int Extent(CDC* pDC, const char* p, int n) const;
    void Unhook();

    VESK::String m_strText;
    std::vector<VESK::String> m_lines;
    CWnd* m_pParent;
    CTextZoneReadOnly* m_pZone;

    static CTooltipBubble* s_pCurrentBubble;
    static HHOOK s_hKeyboardHook;
    static VESK::String s_strWndClass;
    static int s_nScreenWidth;
    static int s_nScreenHeight;
    static CFont s_font;
    static int s_nLineHeight;
    static int s_nCharWidth;
    static int s_nTabStop;
};
