#include "editor/qt/QtEditorWidget.h"

#include <QVBoxLayout>
#include <cstring>

#include "platform/Messages.h"
#include "platform/qt/QtPlatform.h"

namespace {

LOGFONTA FixedFont(int nHeight) {
    LOGFONTA lf{};
    lf.lfHeight = nHeight;
    lf.lfWeight = FW_NORMAL;
    lf.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    std::strcpy(lf.lfFaceName, "Courier New");
    return lf;
}

}  // namespace

CQtEditorWidget::CQtEditorWidget(QWidget* pParent, DWORD dwStyle, CTextZone* pZone)
    : CQtEditorWidget(std::make_unique<CEditor>(pZone), pParent, dwStyle) {}

CQtEditorWidget::CQtEditorWidget(std::unique_ptr<CEditor> pEditor, QWidget* pParent,
                                 DWORD dwStyle)
    : QWidget(pParent), m_pEditor(std::move(pEditor)) {
    LOGFONTA lf = FixedFont(-15);
    m_font.CreateFontIndirect(&lf);
    m_host.m_hFont = m_font;
    m_host.m_pEditor = m_pEditor.get();

    // The host window is made on its own and then taken into this widget, so
    // that Qt lays it out while the control sees an ordinary parent.
    m_host.Create(0, RECT{0, 0, 200, 100}, nullptr, 0);
    if (QWidget* pHostWidget = CQtPlatform::WidgetOf(&m_host)) {
        pHostWidget->setParent(this, Qt::Widget);
        auto* pLayout = new QVBoxLayout(this);
        pLayout->setContentsMargins(0, 0, 0, 0);
        pLayout->addWidget(pHostWidget);
        m_host.ShowWindow(SW_SHOW);
    }
    RECT rc;
    m_host.GetClientRect(&rc);
    m_pEditor->Create(WS_CHILD | WS_VISIBLE | dwStyle, rc, &m_host, 1);
    if (QWidget* pEditorWidget = CQtPlatform::WidgetOf(m_pEditor.get())) setFocusProxy(pEditorWidget);
}

CQtEditorWidget::~CQtEditorWidget() {
    m_pEditor->DestroyWindow();
    m_host.DestroyWindow();
}

void CQtEditorWidget::SetEditorFont(const LOGFONTA& lf) {
    m_font.CreateFontIndirect(&lf);
    m_host.m_hFont = m_font;
    m_pEditor->SetFont(&m_font, 1);
}

LRESULT CQtEditorWidget::CHostWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_hFont);
        case WM_SIZE:
            if (m_pEditor && m_pEditor->GetSafeHwnd())
                m_pEditor->MoveWindow(0, 0, LOWORD(lParam), HIWORD(lParam));
            return 0;
        case WM_COMMAND:
            if (HIWORD(wParam) == EN_CHANGE && m_onChange) m_onChange();
            return 0;
        case WM_CLOSE:
            // Esc in the control asks its parent to close; a widget in a
            // host's layout is not closed by its content.
            return 0;
        default:
            return CWnd::WindowProc(message, wParam, lParam);
    }
}
