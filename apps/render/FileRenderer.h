// A text in its colours, without a screen: as a picture through the Qt
// backend (the caller runs a QApplication, offscreen when there is no
// display, and installs the Qt platform), or as HTML. The zone is an
// ordinary coloured zone in a window that is never shown; the picture is
// what its painting leaves in the window's image.
#pragma once

#include <QImage>
#include <memory>
#include <string>

#include "apps/common/LanguageChoice.h"
#include "platform/Font.h"
#include "platform/Wnd.h"

class CRenderZone;

class CFileRenderer {
public:
    // Pictures stop at this height: a long file shows its first lines.
    static constexpr int kMaxHeight = 16000;
    static constexpr int kMaxWidth = 8000;

    // The text as the bytes of a file (LF or CR LF line ends).
    CFileRenderer(const std::string& text, const CLanguageChoice& language);
    ~CFileRenderer();
    CFileRenderer(const CFileRenderer&) = delete;
    CFileRenderer& operator=(const CFileRenderer&) = delete;

    // nWidth 0: as wide as the widest line.
    QImage Picture(int nWidth);
    // One <pre> in the zone's colours, with a <span> per colour run.
    std::string Html(const std::string& title);
    int GetLineCount();
    // The lines the last picture holds in full.
    int GetShownLines() const { return m_nShownLines; }

private:
    CWnd m_wnd;
    CFont m_font;
    std::unique_ptr<CRenderZone> m_pZone;
    int m_nShownLines = 0;
};
