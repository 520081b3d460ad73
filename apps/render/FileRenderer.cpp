#include "apps/render/FileRenderer.h"

#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "colour/TextZoneColor.h"
#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtWindowWidget.h"

// The coloured zone with what rendering reads opened up.
class CRenderZone : public CTextZoneColor {
public:
    using CTextZoneColor::DefineColors;
    using CTextZoneColor::GetMaxLineWidth;
    using CTextZoneColor::GetSpaceEquivalentLine;
};

namespace {

constexpr int kTabColumns = 4;
constexpr int kPadding = 6;

LOGFONTA RenderFont() {
    LOGFONTA lf{};
    lf.lfHeight = -15;
    lf.lfWeight = FW_NORMAL;
    lf.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    std::strcpy(lf.lfFaceName, "DejaVu Sans Mono");
    return lf;
}

std::string HtmlColor(COLORREF cr) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "#%02X%02X%02X", GetRValue(cr), GetGValue(cr),
                  GetBValue(cr));
    return buffer;
}

void AppendEscaped(std::string& out, const char* p, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        switch (p[i]) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += p[i];
        }
    }
}

}  // namespace

CFileRenderer::CFileRenderer(const std::string& text, const CLanguageChoice& language)
    : m_pZone(std::make_unique<CRenderZone>()) {
    m_wnd.Create(0, RECT{0, 0, 400, 300}, nullptr, 1);
    LOGFONTA lf = RenderFont();
    m_font.CreateFontIndirect(&lf);
    m_pZone->SetWindow(&m_wnd);
    m_pZone->SetFont(m_font);
    m_pZone->SetTabWidth(-kTabColumns);
    language.Apply(*m_pZone);
    // The text is 8-bit and ends at a 0 byte: such bytes become blanks.
    std::string bytes = text;
    std::replace(bytes.begin(), bytes.end(), '\0', ' ');
    m_pZone->SetText(bytes.c_str());
}

CFileRenderer::~CFileRenderer() {
    m_pZone->SetWindow(nullptr);
    m_wnd.DestroyWindow();
}

int CFileRenderer::GetLineCount() {
    return m_pZone->GetLineCount();
}

QImage CFileRenderer::Picture(int nWidth) {
    CRenderZone& zone = *m_pZone;
    const int last = zone.GetLastLineIndex();
    if (nWidth <= 0) nWidth = zone.GetMaxLineWidth(0, last) + 2 * kPadding + zone.m_nCharWidth;
    nWidth = std::clamp(nWidth, 2 * kPadding + 16, kMaxWidth);
    const int nHeight = std::clamp((last + 1) * zone.m_nLineHeight + 2 * kPadding,
                                   zone.m_nLineHeight + 2 * kPadding, kMaxHeight);
    m_wnd.MoveWindow(0, 0, nWidth, nHeight, FALSE);
    // A little paper around the text, in the zone's background colour.
    RECT rc;
    m_wnd.GetClientRect(&rc);
    InflateRect(&rc, -kPadding, -kPadding);
    zone.SetRect(&rc);
    zone.SetFirstVisiblePosition(0, 0);
    m_nShownLines = std::min(last + 1, (rc.bottom - rc.top) / zone.m_nLineHeight);

    auto* pWidget = static_cast<CQtWindowWidget*>(CQtPlatform::WidgetOf(&m_wnd));
    if (!pWidget) return QImage();
    CDC* pDC = m_wnd.GetDC();
    RECT client;
    m_wnd.GetClientRect(&client);
    pDC->FillSolidRect(&client, zone.m_crBack);
    zone.HandlePaint(pDC);
    m_wnd.ReleaseDC(pDC);
    return pWidget->Image().copy();
}

std::string CFileRenderer::Html(const std::string& title) {
    CRenderZone& zone = *m_pZone;
    COLORREF crText = 0;
    COLORREF crBack = 0;
    COLORREF crSelText = 0;
    COLORREF crSelBack = 0;
    zone.GetColors(&crText, &crBack, &crSelText, &crSelBack);

    std::string out = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"windows-1252\">\n<title>";
    AppendEscaped(out, title.data(), title.size());
    out += "</title>\n</head>\n<body>\n<pre style=\"color:" + HtmlColor(crText) +
           ";background:" + HtmlColor(crBack) + ";padding:0.5em\">";
    for (int n = 0; CStringEx* pLine = zone.GetLine(n); ++n) {
        // Tabs expanded as the zone shows them; the runs are those of that text.
        CStringEx text;
        zone.GetSpaceEquivalentLine(&text, pLine);
        const char* p = text.c_str();
        const int length = text.GetLength() - text.IsEnded();
        zone.DefineColors(n, &text);
        const auto& runs = zone.m_colorDefs;
        int pos = 0;
        for (size_t r = 0; r < runs.size() && pos < length; ++r) {
            const int from = std::max(runs[r]->nPos, pos);
            const int to = std::min(r + 1 < runs.size() ? runs[r + 1]->nPos : length, length);
            if (from > pos) AppendEscaped(out, p + pos, static_cast<size_t>(from - pos));
            if (to <= from) continue;
            out += "<span style=\"color:" + HtmlColor(runs[r]->crColor) + "\">";
            AppendEscaped(out, p + from, static_cast<size_t>(to - from));
            out += "</span>";
            pos = to;
        }
        if (pos < length) AppendEscaped(out, p + pos, static_cast<size_t>(length - pos));
        zone.FreeColorDefs();
        out += '\n';
    }
    out += "</pre>\n</body>\n</html>\n";
    return out;
}
