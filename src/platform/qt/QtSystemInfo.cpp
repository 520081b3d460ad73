#include "platform/qt/QtSystemInfo.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QStyle>

#include "platform/Messages.h"

namespace {

COLORREF ColorRefOf(const QColor& c) {
    return RGB(c.red(), c.green(), c.blue());
}

}  // namespace

int CQtSystemInfo::ScrollBarExtent() {
    return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

COLORREF CQtSystemInfo::GetSysColor(int nIndex) {
    QPalette pal = QApplication::palette();
    switch (nIndex) {
        case COLOR_WINDOW:
            return ColorRefOf(pal.color(QPalette::Base));
        case COLOR_WINDOWTEXT:
        case COLOR_MENUTEXT:
            return ColorRefOf(pal.color(QPalette::Text));
        case COLOR_HIGHLIGHT:
        case COLOR_MENUHILIGHT:
        case COLOR_ACTIVECAPTION:
        case COLOR_GRADIENTACTIVECAPTION:
            return ColorRefOf(pal.color(QPalette::Highlight));
        case COLOR_HIGHLIGHTTEXT:
        case COLOR_CAPTIONTEXT:
            return ColorRefOf(pal.color(QPalette::HighlightedText));
        case COLOR_INACTIVECAPTION:
        case COLOR_GRADIENTINACTIVECAPTION:
            return ColorRefOf(pal.color(QPalette::Inactive, QPalette::Highlight));
        case COLOR_INACTIVECAPTIONTEXT:
            return ColorRefOf(pal.color(QPalette::Inactive, QPalette::HighlightedText));
        case COLOR_BTNFACE:
        case COLOR_MENU:
        case COLOR_MENUBAR:
        case COLOR_ACTIVEBORDER:
        case COLOR_INACTIVEBORDER:
            return ColorRefOf(pal.color(QPalette::Button));
        case COLOR_BTNTEXT:
            return ColorRefOf(pal.color(QPalette::ButtonText));
        case COLOR_BTNSHADOW:
            return ColorRefOf(pal.color(QPalette::Dark));
        case COLOR_BTNHIGHLIGHT:
            return ColorRefOf(pal.color(QPalette::Light));
        case COLOR_3DLIGHT:
            return ColorRefOf(pal.color(QPalette::Midlight));
        case COLOR_3DDKSHADOW:
        case COLOR_WINDOWFRAME:
            return ColorRefOf(pal.color(QPalette::Shadow));
        case COLOR_GRAYTEXT:
            return ColorRefOf(pal.color(QPalette::Disabled, QPalette::Text));
        case COLOR_INFOBK:
            return ColorRefOf(pal.color(QPalette::ToolTipBase));
        case COLOR_INFOTEXT:
            return ColorRefOf(pal.color(QPalette::ToolTipText));
        case COLOR_HOTLIGHT:
            return ColorRefOf(pal.color(QPalette::Link));
        case COLOR_BACKGROUND:
        case COLOR_APPWORKSPACE:
            return ColorRefOf(pal.color(QPalette::Mid));
        case COLOR_SCROLLBAR:
            return ColorRefOf(pal.color(QPalette::Window));
        default:
            return ColorRefOf(pal.color(QPalette::Window));
    }
}

int CQtSystemInfo::GetSystemMetrics(int nIndex) {
    QScreen* screen = QGuiApplication::primaryScreen();
    QRect full = screen ? screen->geometry() : QRect(0, 0, 1024, 768);
    QRect avail = screen ? screen->availableGeometry() : full;
    QRect virt = screen ? screen->virtualGeometry() : full;
    QStyle* style = QApplication::style();
    switch (nIndex) {
        case SM_CXSCREEN:
            return full.width();
        case SM_CYSCREEN:
            return full.height();
        case SM_CXFULLSCREEN:
            return avail.width();
        case SM_CYFULLSCREEN:
            return avail.height();
        case SM_CXVIRTUALSCREEN:
            return virt.width();
        case SM_CYVIRTUALSCREEN:
            return virt.height();
        case SM_XVIRTUALSCREEN:
            return virt.x();
        case SM_YVIRTUALSCREEN:
            return virt.y();
        case SM_CMONITORS:
            return static_cast<int>(QGuiApplication::screens().size());
        case SM_CXVSCROLL:
        case SM_CYHSCROLL:
        case SM_CYVSCROLL:
        case SM_CXHSCROLL:
            return ScrollBarExtent();
        case SM_CXBORDER:
        case SM_CYBORDER:
            return 1;
        case SM_CXEDGE:
        case SM_CYEDGE:
            return 2;
        case SM_CXFRAME:
        case SM_CYFRAME:
            return 4;
        case SM_CYCAPTION:
            return style->pixelMetric(QStyle::PM_TitleBarHeight);
        case SM_CXCURSOR:
        case SM_CYCURSOR:
            return 32;
        case SM_CXICON:
        case SM_CYICON:
            return 32;
        case SM_CXSMICON:
        case SM_CYSMICON:
            return 16;
        case SM_CXDOUBLECLK:
        case SM_CYDOUBLECLK:
            return 4;
        case SM_CXDRAG:
        case SM_CYDRAG:
            return QApplication::startDragDistance();
        case SM_MOUSEPRESENT:
        case SM_MOUSEWHEELPRESENT:
            return 1;
        case SM_CMOUSEBUTTONS:
            return 3;
        default:
            return 0;
    }
}
