// The widget of a window. It holds the backing image of the client area,
// which every drawing context of the window paints into; a Qt paint first
// lets the window paint what is invalid (WM_PAINT), then shows the image,
// the caret over it and a border with WS_BORDER. Qt input becomes the
// window's messages, and the window's own scroll bars are child bars laid
// out along the client area.
#pragma once

#include <QImage>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "TextzoneQtExport.h"
#include "platform/Types.h"

class CQtPlatform;
class CQtScrollBar;
class CWnd;

class TEXTZONE_QT_EXPORT CQtWindowWidget : public QWidget {
public:
    static constexpr int kCaretBlinkMs = 530;

    CQtWindowWidget(CQtPlatform& platform, CWnd* pWnd, QWidget* pParent, Qt::WindowFlags flags);

    // The window is going: nothing reaches it from here on.
    void Detach();
    CWnd* GetWnd() const { return m_pWnd; }
    static CWnd* WndOf(const QWidget* pWidget);

    // The client area in widget coordinates, less border and visible bars.
    QRect ClientArea() const;
    // The backing image, sized to the client area; what drawing touched
    // outside a paint, in client coordinates.
    QImage& Image();
    QRect& Dirty() { return m_dirty; }
    // Shows what drawing touched, unless a paint will show it anyway.
    void ShowDirty();
    void InvalidateClient(const QRegion& rgnClient);

    void ReflectScrollBar(int nBar);
    void Relayout();
    void CaretChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool focusNextPrevChild(bool bNext) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // One of the window's own bars (SB_HORZ, SB_VERT), reporting to it.
    CQtScrollBar* CreateBar(int nBar);
    void Key(QKeyEvent* event, bool bRelease);
    // Tells the window a button went down on it (WM_MOUSEACTIVATE); false
    // once the window is gone.
    bool MouseActivate(int nHitTest, UINT message);
    void Mouse(QMouseEvent* event, int nKind);
    // Sends a message if the window is still there; false once it is gone.
    bool Send(UINT message, WPARAM wParam, LPARAM lParam);
    QPoint ToClient(QPointF pt) const;
    QRect CaretRect() const;
    // Grows or shrinks the image to the client area; what it gains is invalid.
    void FitImage();

    CQtPlatform& m_platform;
    CWnd* m_pWnd;
    QImage m_image;
    bool m_bImageShown = false;  // a first paint shows everything
    QRect m_dirty;
    bool m_bInPaint = false;
    CQtScrollBar* m_pBars[2] = {nullptr, nullptr};
    QTimer m_blink;
    bool m_bCaretOn = false;
    QRect m_rcCaret;     // in client coordinates, empty when there is none here
    QPoint m_wheelRest;  // the part of the wheel that has not made a notch yet
};
