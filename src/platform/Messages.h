// Numeric constants of the platform seam, with the values the desktop platform
// gives them. Hosts and tests speak these numbers (the edit-control protocol is
// public), and the engine relies on several identities between them, checked
// at the end of this file. Letter and digit keys have no names: their virtual
// key is the upper-case ASCII character itself.
#pragma once

#include "platform/Types.h"

// ---------------------------------------------------------------------------
// Window messages
// ---------------------------------------------------------------------------

// Window life, geometry, focus, text and painting.
constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_ACTIVATE = 0x0006;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_ENABLE = 0x000A;
constexpr UINT WM_SETREDRAW = 0x000B;
constexpr UINT WM_SETTEXT = 0x000C;
constexpr UINT WM_GETTEXT = 0x000D;
constexpr UINT WM_GETTEXTLENGTH = 0x000E;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUERYENDSESSION = 0x0011;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_QUERYOPEN = 0x0013;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SYSCOLORCHANGE = 0x0015;
constexpr UINT WM_ENDSESSION = 0x0016;
constexpr UINT WM_SHOWWINDOW = 0x0018;
// The combined control-colour message the framework dispatches to OnCtlColor;
// the per-kind WM_CTLCOLOR* messages further down are what the system sends.
constexpr UINT WM_CTLCOLOR = 0x0019;
constexpr UINT WM_WININICHANGE = 0x001A;
constexpr UINT WM_SETTINGCHANGE = WM_WININICHANGE;
constexpr UINT WM_DEVMODECHANGE = 0x001B;
constexpr UINT WM_ACTIVATEAPP = 0x001C;
constexpr UINT WM_FONTCHANGE = 0x001D;
constexpr UINT WM_TIMECHANGE = 0x001E;
constexpr UINT WM_CANCELMODE = 0x001F;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_MOUSEACTIVATE = 0x0021;
constexpr UINT WM_CHILDACTIVATE = 0x0022;
constexpr UINT WM_QUEUESYNC = 0x0023;
constexpr UINT WM_GETMINMAXINFO = 0x0024;
constexpr UINT WM_PAINTICON = 0x0026;
constexpr UINT WM_ICONERASEBKGND = 0x0027;
constexpr UINT WM_NEXTDLGCTL = 0x0028;
constexpr UINT WM_SPOOLERSTATUS = 0x002A;
constexpr UINT WM_DRAWITEM = 0x002B;
constexpr UINT WM_MEASUREITEM = 0x002C;
constexpr UINT WM_DELETEITEM = 0x002D;
constexpr UINT WM_VKEYTOITEM = 0x002E;
constexpr UINT WM_CHARTOITEM = 0x002F;
constexpr UINT WM_SETFONT = 0x0030;
constexpr UINT WM_GETFONT = 0x0031;
constexpr UINT WM_SETHOTKEY = 0x0032;
constexpr UINT WM_GETHOTKEY = 0x0033;
constexpr UINT WM_QUERYDRAGICON = 0x0037;
constexpr UINT WM_COMPAREITEM = 0x0039;
constexpr UINT WM_GETOBJECT = 0x003D;
constexpr UINT WM_COMPACTING = 0x0041;
constexpr UINT WM_WINDOWPOSCHANGING = 0x0046;
constexpr UINT WM_WINDOWPOSCHANGED = 0x0047;
constexpr UINT WM_COPYDATA = 0x004A;
constexpr UINT WM_CANCELJOURNAL = 0x004B;
constexpr UINT WM_NOTIFY = 0x004E;
constexpr UINT WM_INPUTLANGCHANGEREQUEST = 0x0050;
constexpr UINT WM_INPUTLANGCHANGE = 0x0051;
constexpr UINT WM_TCARD = 0x0052;
constexpr UINT WM_HELP = 0x0053;
constexpr UINT WM_USERCHANGED = 0x0054;
constexpr UINT WM_NOTIFYFORMAT = 0x0055;
constexpr UINT WM_CONTEXTMENU = 0x007B;
constexpr UINT WM_STYLECHANGING = 0x007C;
constexpr UINT WM_STYLECHANGED = 0x007D;
constexpr UINT WM_DISPLAYCHANGE = 0x007E;
constexpr UINT WM_GETICON = 0x007F;
constexpr UINT WM_SETICON = 0x0080;

// Non-client area.
constexpr UINT WM_NCCREATE = 0x0081;
constexpr UINT WM_NCDESTROY = 0x0082;
constexpr UINT WM_NCCALCSIZE = 0x0083;
constexpr UINT WM_NCHITTEST = 0x0084;
constexpr UINT WM_NCPAINT = 0x0085;
constexpr UINT WM_NCACTIVATE = 0x0086;
constexpr UINT WM_GETDLGCODE = 0x0087;
constexpr UINT WM_SYNCPAINT = 0x0088;
constexpr UINT WM_NCMOUSEMOVE = 0x00A0;
constexpr UINT WM_NCLBUTTONDOWN = 0x00A1;
constexpr UINT WM_NCLBUTTONUP = 0x00A2;
constexpr UINT WM_NCLBUTTONDBLCLK = 0x00A3;
constexpr UINT WM_NCRBUTTONDOWN = 0x00A4;
constexpr UINT WM_NCRBUTTONUP = 0x00A5;
constexpr UINT WM_NCRBUTTONDBLCLK = 0x00A6;
constexpr UINT WM_NCMBUTTONDOWN = 0x00A7;
constexpr UINT WM_NCMBUTTONUP = 0x00A8;
constexpr UINT WM_NCMBUTTONDBLCLK = 0x00A9;
constexpr UINT WM_NCXBUTTONDOWN = 0x00AB;
constexpr UINT WM_NCXBUTTONUP = 0x00AC;
constexpr UINT WM_NCXBUTTONDBLCLK = 0x00AD;

// Keyboard. WM_KEYFIRST..WM_KEYLAST is the range a modal loop translates.
constexpr UINT WM_KEYFIRST = 0x0100;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_DEADCHAR = 0x0103;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_SYSCHAR = 0x0106;
constexpr UINT WM_SYSDEADCHAR = 0x0107;
constexpr UINT WM_UNICHAR = 0x0109;
constexpr UINT WM_KEYLAST = 0x0109;
constexpr UINT WM_IME_STARTCOMPOSITION = 0x010D;
constexpr UINT WM_IME_ENDCOMPOSITION = 0x010E;
constexpr UINT WM_IME_COMPOSITION = 0x010F;

// Dialogs, commands, timers, scrolling, menus.
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_SYSCOMMAND = 0x0112;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_INITMENU = 0x0116;
constexpr UINT WM_INITMENUPOPUP = 0x0117;
constexpr UINT WM_MENUSELECT = 0x011F;
constexpr UINT WM_MENUCHAR = 0x0120;
constexpr UINT WM_ENTERIDLE = 0x0121;

// Control colours, one message per kind of control.
constexpr UINT WM_CTLCOLORMSGBOX = 0x0132;
constexpr UINT WM_CTLCOLOREDIT = 0x0133;
constexpr UINT WM_CTLCOLORLISTBOX = 0x0134;
constexpr UINT WM_CTLCOLORBTN = 0x0135;
constexpr UINT WM_CTLCOLORDLG = 0x0136;
constexpr UINT WM_CTLCOLORSCROLLBAR = 0x0137;
constexpr UINT WM_CTLCOLORSTATIC = 0x0138;

// Kind of control passed to OnCtlColor with the combined message.
constexpr UINT CTLCOLOR_MSGBOX = 0;
constexpr UINT CTLCOLOR_EDIT = 1;
constexpr UINT CTLCOLOR_LISTBOX = 2;
constexpr UINT CTLCOLOR_BTN = 3;
constexpr UINT CTLCOLOR_DLG = 4;
constexpr UINT CTLCOLOR_SCROLLBAR = 5;
constexpr UINT CTLCOLOR_STATIC = 6;

// Client-area mouse. WM_MOUSEFIRST..WM_MOUSELAST is the range tested for
// "a mouse message is waiting"; the horizontal wheel lies outside it.
constexpr UINT WM_MOUSEFIRST = 0x0200;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_RBUTTONDBLCLK = 0x0206;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT WM_MBUTTONDBLCLK = 0x0209;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_XBUTTONDOWN = 0x020B;
constexpr UINT WM_XBUTTONUP = 0x020C;
constexpr UINT WM_XBUTTONDBLCLK = 0x020D;
constexpr UINT WM_MOUSELAST = 0x020D;
constexpr UINT WM_MOUSEHWHEEL = 0x020E;

// One wheel notch; the wheel delta is the signed high word of wParam and the
// key state (MK_*) its low word.
constexpr int WHEEL_DELTA = 120;
constexpr SHORT GET_WHEEL_DELTA_WPARAM(WPARAM wParam) {
    return static_cast<SHORT>(HIWORD(wParam));
}
constexpr WORD GET_KEYSTATE_WPARAM(WPARAM wParam) {
    return LOWORD(wParam);
}
constexpr WORD GET_XBUTTON_WPARAM(WPARAM wParam) {
    return HIWORD(wParam);
}
constexpr WORD XBUTTON1 = 0x0001;
constexpr WORD XBUTTON2 = 0x0002;

// Parent notification, menu loops, sizing, capture, drag and hover.
constexpr UINT WM_PARENTNOTIFY = 0x0210;
constexpr UINT WM_ENTERMENULOOP = 0x0211;
constexpr UINT WM_EXITMENULOOP = 0x0212;
constexpr UINT WM_NEXTMENU = 0x0213;
constexpr UINT WM_SIZING = 0x0214;
constexpr UINT WM_CAPTURECHANGED = 0x0215;
constexpr UINT WM_MOVING = 0x0216;
constexpr UINT WM_ENTERSIZEMOVE = 0x0231;
constexpr UINT WM_EXITSIZEMOVE = 0x0232;
constexpr UINT WM_DROPFILES = 0x0233;
constexpr UINT WM_MOUSEHOVER = 0x02A1;
constexpr UINT WM_MOUSELEAVE = 0x02A3;

// Clipboard and undo; the edit-control protocol answers these.
constexpr UINT WM_CUT = 0x0300;
constexpr UINT WM_COPY = 0x0301;
constexpr UINT WM_PASTE = 0x0302;
constexpr UINT WM_CLEAR = 0x0303;
constexpr UINT WM_UNDO = 0x0304;
constexpr UINT WM_RENDERFORMAT = 0x0305;
constexpr UINT WM_RENDERALLFORMATS = 0x0306;
constexpr UINT WM_DESTROYCLIPBOARD = 0x0307;
constexpr UINT WM_QUERYNEWPALETTE = 0x030F;
constexpr UINT WM_PALETTECHANGED = 0x0311;
constexpr UINT WM_HOTKEY = 0x0312;
constexpr UINT WM_PRINT = 0x0317;
constexpr UINT WM_PRINTCLIENT = 0x0318;
constexpr UINT WM_THEMECHANGED = 0x031A;

// The framework's private messages; a hover wait lets them pass.
constexpr UINT WM_AFXFIRST = 0x0360;
constexpr UINT WM_AFXLAST = 0x037F;

// First private message of a window class, and of an application.
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

// WM_ACTIVATE states.
constexpr int WA_INACTIVE = 0;
constexpr int WA_ACTIVE = 1;
constexpr int WA_CLICKACTIVE = 2;

// WM_MOUSEACTIVATE answers.
constexpr int MA_ACTIVATE = 1;
constexpr int MA_ACTIVATEANDEAT = 2;
constexpr int MA_NOACTIVATE = 3;
constexpr int MA_NOACTIVATEANDEAT = 4;

// WM_SIZE kinds.
constexpr UINT SIZE_RESTORED = 0;
constexpr UINT SIZE_MINIMIZED = 1;
constexpr UINT SIZE_MAXIMIZED = 2;
constexpr UINT SIZE_MAXSHOW = 3;
constexpr UINT SIZE_MAXHIDE = 4;

// WM_NCCALCSIZE answers.
constexpr UINT WVR_ALIGNTOP = 0x0010;
constexpr UINT WVR_ALIGNLEFT = 0x0020;
constexpr UINT WVR_ALIGNBOTTOM = 0x0040;
constexpr UINT WVR_ALIGNRIGHT = 0x0080;
constexpr UINT WVR_HREDRAW = 0x0100;
constexpr UINT WVR_VREDRAW = 0x0200;
constexpr UINT WVR_REDRAW = WVR_HREDRAW | WVR_VREDRAW;
constexpr UINT WVR_VALIDRECTS = 0x0400;

// WM_GETDLGCODE answers: which keys a control keeps from the dialog.
constexpr UINT DLGC_WANTARROWS = 0x0001;
constexpr UINT DLGC_WANTTAB = 0x0002;
constexpr UINT DLGC_WANTALLKEYS = 0x0004;
constexpr UINT DLGC_WANTMESSAGE = 0x0004;
constexpr UINT DLGC_HASSETSEL = 0x0008;
constexpr UINT DLGC_DEFPUSHBUTTON = 0x0010;
constexpr UINT DLGC_UNDEFPUSHBUTTON = 0x0020;
constexpr UINT DLGC_RADIOBUTTON = 0x0040;
constexpr UINT DLGC_WANTCHARS = 0x0080;
constexpr UINT DLGC_STATIC = 0x0100;
constexpr UINT DLGC_BUTTON = 0x2000;

// WM_NCHITTEST results, also the hit code of WM_SETCURSOR and WM_MOUSEACTIVATE.
constexpr int HTERROR = -2;
constexpr int HTTRANSPARENT = -1;
constexpr int HTNOWHERE = 0;
constexpr int HTCLIENT = 1;
constexpr int HTCAPTION = 2;
constexpr int HTSYSMENU = 3;
constexpr int HTGROWBOX = 4;
constexpr int HTSIZE = HTGROWBOX;
constexpr int HTMENU = 5;
constexpr int HTHSCROLL = 6;
constexpr int HTVSCROLL = 7;
constexpr int HTMINBUTTON = 8;
constexpr int HTMAXBUTTON = 9;
constexpr int HTLEFT = 10;
constexpr int HTRIGHT = 11;
constexpr int HTTOP = 12;
constexpr int HTTOPLEFT = 13;
constexpr int HTTOPRIGHT = 14;
constexpr int HTBOTTOM = 15;
constexpr int HTBOTTOMLEFT = 16;
constexpr int HTBOTTOMRIGHT = 17;
constexpr int HTBORDER = 18;
constexpr int HTREDUCE = HTMINBUTTON;
constexpr int HTZOOM = HTMAXBUTTON;
constexpr int HTSIZEFIRST = HTLEFT;
constexpr int HTSIZELAST = HTBOTTOMRIGHT;
constexpr int HTOBJECT = 19;
constexpr int HTCLOSE = 20;
constexpr int HTHELP = 21;

// Flags in the high word of a key message's lParam; a keyboard hook sees a
// release as a negative lParam (bit 31).
constexpr int KF_EXTENDED = 0x0100;
constexpr int KF_DLGMODE = 0x0800;
constexpr int KF_MENUMODE = 0x1000;
constexpr int KF_ALTDOWN = 0x2000;
constexpr int KF_REPEAT = 0x4000;
constexpr int KF_UP = 0x8000;

// ---------------------------------------------------------------------------
// Edit-control protocol
// ---------------------------------------------------------------------------

// Edit messages.
constexpr UINT EM_GETSEL = 0x00B0;
constexpr UINT EM_SETSEL = 0x00B1;
constexpr UINT EM_GETRECT = 0x00B2;
constexpr UINT EM_SETRECT = 0x00B3;
constexpr UINT EM_SETRECTNP = 0x00B4;
constexpr UINT EM_SCROLL = 0x00B5;
constexpr UINT EM_LINESCROLL = 0x00B6;
constexpr UINT EM_SCROLLCARET = 0x00B7;
constexpr UINT EM_GETMODIFY = 0x00B8;
constexpr UINT EM_SETMODIFY = 0x00B9;
constexpr UINT EM_GETLINECOUNT = 0x00BA;
constexpr UINT EM_LINEINDEX = 0x00BB;
constexpr UINT EM_SETHANDLE = 0x00BC;
constexpr UINT EM_GETHANDLE = 0x00BD;
constexpr UINT EM_GETTHUMB = 0x00BE;
constexpr UINT EM_LINELENGTH = 0x00C1;
constexpr UINT EM_REPLACESEL = 0x00C2;
constexpr UINT EM_GETLINE = 0x00C4;
constexpr UINT EM_LIMITTEXT = 0x00C5;
constexpr UINT EM_SETLIMITTEXT = EM_LIMITTEXT;
constexpr UINT EM_CANUNDO = 0x00C6;
constexpr UINT EM_UNDO = 0x00C7;
constexpr UINT EM_FMTLINES = 0x00C8;
constexpr UINT EM_LINEFROMCHAR = 0x00C9;
constexpr UINT EM_SETTABSTOPS = 0x00CB;
constexpr UINT EM_SETPASSWORDCHAR = 0x00CC;
constexpr UINT EM_EMPTYUNDOBUFFER = 0x00CD;
constexpr UINT EM_GETFIRSTVISIBLELINE = 0x00CE;
constexpr UINT EM_SETREADONLY = 0x00CF;
constexpr UINT EM_SETWORDBREAKPROC = 0x00D0;
constexpr UINT EM_GETWORDBREAKPROC = 0x00D1;
constexpr UINT EM_GETPASSWORDCHAR = 0x00D2;
constexpr UINT EM_SETMARGINS = 0x00D3;
constexpr UINT EM_GETMARGINS = 0x00D4;
constexpr UINT EM_GETLIMITTEXT = 0x00D5;
constexpr UINT EM_POSFROMCHAR = 0x00D6;
constexpr UINT EM_CHARFROMPOS = 0x00D7;
constexpr UINT EM_SETIMESTATUS = 0x00D8;
constexpr UINT EM_GETIMESTATUS = 0x00D9;

// Edit notifications, in the high word of WM_COMMAND's wParam.
constexpr int EN_SETFOCUS = 0x0100;
constexpr int EN_KILLFOCUS = 0x0200;
constexpr int EN_CHANGE = 0x0300;
constexpr int EN_UPDATE = 0x0400;
constexpr int EN_ERRSPACE = 0x0500;
constexpr int EN_MAXTEXT = 0x0501;
constexpr int EN_HSCROLL = 0x0601;
constexpr int EN_VSCROLL = 0x0602;

// Edit styles.
constexpr DWORD ES_LEFT = 0x0000;
constexpr DWORD ES_CENTER = 0x0001;
constexpr DWORD ES_RIGHT = 0x0002;
constexpr DWORD ES_MULTILINE = 0x0004;
constexpr DWORD ES_UPPERCASE = 0x0008;
constexpr DWORD ES_LOWERCASE = 0x0010;
constexpr DWORD ES_PASSWORD = 0x0020;
constexpr DWORD ES_AUTOVSCROLL = 0x0040;
constexpr DWORD ES_AUTOHSCROLL = 0x0080;
constexpr DWORD ES_NOHIDESEL = 0x0100;
constexpr DWORD ES_OEMCONVERT = 0x0400;
constexpr DWORD ES_READONLY = 0x0800;
constexpr DWORD ES_WANTRETURN = 0x1000;
constexpr DWORD ES_NUMBER = 0x2000;

// ---------------------------------------------------------------------------
// Other controls
// ---------------------------------------------------------------------------

// Buttons: messages, check states and notifications.
constexpr UINT BM_GETCHECK = 0x00F0;
constexpr UINT BM_SETCHECK = 0x00F1;
constexpr UINT BM_GETSTATE = 0x00F2;
constexpr UINT BM_SETSTATE = 0x00F3;
constexpr UINT BM_SETSTYLE = 0x00F4;
constexpr UINT BM_CLICK = 0x00F5;
constexpr int BST_UNCHECKED = 0;
constexpr int BST_CHECKED = 1;
constexpr int BST_INDETERMINATE = 2;
constexpr int BN_CLICKED = 0;
constexpr int BN_PAINT = 1;
constexpr int BN_HILITE = 2;
constexpr int BN_UNHILITE = 3;
constexpr int BN_DISABLE = 4;
constexpr int BN_DOUBLECLICKED = 5;
constexpr int BN_SETFOCUS = 6;
constexpr int BN_KILLFOCUS = 7;

// List boxes: messages, results and notifications.
constexpr UINT LB_ADDSTRING = 0x0180;
constexpr UINT LB_INSERTSTRING = 0x0181;
constexpr UINT LB_DELETESTRING = 0x0182;
constexpr UINT LB_SELITEMRANGEEX = 0x0183;
constexpr UINT LB_RESETCONTENT = 0x0184;
constexpr UINT LB_SETSEL = 0x0185;
constexpr UINT LB_SETCURSEL = 0x0186;
constexpr UINT LB_GETSEL = 0x0187;
constexpr UINT LB_GETCURSEL = 0x0188;
constexpr UINT LB_GETTEXT = 0x0189;
constexpr UINT LB_GETTEXTLEN = 0x018A;
constexpr UINT LB_GETCOUNT = 0x018B;
constexpr UINT LB_SELECTSTRING = 0x018C;
constexpr UINT LB_DIR = 0x018D;
constexpr UINT LB_GETTOPINDEX = 0x018E;
constexpr UINT LB_FINDSTRING = 0x018F;
constexpr UINT LB_GETSELCOUNT = 0x0190;
constexpr UINT LB_GETSELITEMS = 0x0191;
constexpr UINT LB_SETTABSTOPS = 0x0192;
constexpr UINT LB_GETHORIZONTALEXTENT = 0x0193;
constexpr UINT LB_SETHORIZONTALEXTENT = 0x0194;
constexpr UINT LB_SETCOLUMNWIDTH = 0x0195;
constexpr UINT LB_ADDFILE = 0x0196;
constexpr UINT LB_SETTOPINDEX = 0x0197;
constexpr UINT LB_GETITEMRECT = 0x0198;
constexpr UINT LB_GETITEMDATA = 0x0199;
constexpr UINT LB_SETITEMDATA = 0x019A;
constexpr UINT LB_SELITEMRANGE = 0x019B;
constexpr UINT LB_SETANCHORINDEX = 0x019C;
constexpr UINT LB_GETANCHORINDEX = 0x019D;
constexpr UINT LB_SETCARETINDEX = 0x019E;
constexpr UINT LB_GETCARETINDEX = 0x019F;
constexpr UINT LB_SETITEMHEIGHT = 0x01A0;
constexpr UINT LB_GETITEMHEIGHT = 0x01A1;
constexpr UINT LB_FINDSTRINGEXACT = 0x01A2;
constexpr UINT LB_SETLOCALE = 0x01A5;
constexpr UINT LB_GETLOCALE = 0x01A6;
constexpr UINT LB_SETCOUNT = 0x01A7;
constexpr UINT LB_INITSTORAGE = 0x01A8;
constexpr UINT LB_ITEMFROMPOINT = 0x01A9;
constexpr int LB_OKAY = 0;
constexpr int LB_ERR = -1;
constexpr int LB_ERRSPACE = -2;
constexpr int LBN_ERRSPACE = -2;
constexpr int LBN_SELCHANGE = 1;
constexpr int LBN_DBLCLK = 2;
constexpr int LBN_SELCANCEL = 3;
constexpr int LBN_SETFOCUS = 4;
constexpr int LBN_KILLFOCUS = 5;

// Combo boxes: messages, results and notifications.
constexpr UINT CB_GETEDITSEL = 0x0140;
constexpr UINT CB_LIMITTEXT = 0x0141;
constexpr UINT CB_SETEDITSEL = 0x0142;
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_DIR = 0x0145;
constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_GETLBTEXT = 0x0148;
constexpr UINT CB_GETLBTEXTLEN = 0x0149;
constexpr UINT CB_INSERTSTRING = 0x014A;
constexpr UINT CB_RESETCONTENT = 0x014B;
constexpr UINT CB_FINDSTRING = 0x014C;
constexpr UINT CB_SELECTSTRING = 0x014D;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr UINT CB_SHOWDROPDOWN = 0x014F;
constexpr UINT CB_GETITEMDATA = 0x0150;
constexpr UINT CB_SETITEMDATA = 0x0151;
constexpr UINT CB_GETDROPPEDCONTROLRECT = 0x0152;
constexpr UINT CB_SETITEMHEIGHT = 0x0153;
constexpr UINT CB_GETITEMHEIGHT = 0x0154;
constexpr UINT CB_SETEXTENDEDUI = 0x0155;
constexpr UINT CB_GETEXTENDEDUI = 0x0156;
constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
constexpr int CB_OKAY = 0;
constexpr int CB_ERR = -1;
constexpr int CB_ERRSPACE = -2;
constexpr int CBN_ERRSPACE = -1;
constexpr int CBN_SELCHANGE = 1;
constexpr int CBN_DBLCLK = 2;
constexpr int CBN_SETFOCUS = 3;
constexpr int CBN_KILLFOCUS = 4;
constexpr int CBN_EDITCHANGE = 5;
constexpr int CBN_EDITUPDATE = 6;
constexpr int CBN_DROPDOWN = 7;
constexpr int CBN_CLOSEUP = 8;
constexpr int CBN_SELENDOK = 9;
constexpr int CBN_SELENDCANCEL = 10;

// Owner-drawn items: control kinds, draw actions and item states.
constexpr UINT ODT_MENU = 1;
constexpr UINT ODT_LISTBOX = 2;
constexpr UINT ODT_COMBOBOX = 3;
constexpr UINT ODT_BUTTON = 4;
constexpr UINT ODT_STATIC = 5;
constexpr UINT ODA_DRAWENTIRE = 0x0001;
constexpr UINT ODA_SELECT = 0x0002;
constexpr UINT ODA_FOCUS = 0x0004;
constexpr UINT ODS_SELECTED = 0x0001;
constexpr UINT ODS_GRAYED = 0x0002;
constexpr UINT ODS_DISABLED = 0x0004;
constexpr UINT ODS_CHECKED = 0x0008;
constexpr UINT ODS_FOCUS = 0x0010;

// Common-control notifications (WM_NOTIFY codes are negative), list view
// item states and search flags.
constexpr int NM_FIRST = 0;
constexpr int NM_CLICK = NM_FIRST - 2;
constexpr int NM_DBLCLK = NM_FIRST - 3;
constexpr int LVN_FIRST = -100;
constexpr int LVN_ITEMCHANGING = LVN_FIRST - 0;
constexpr int LVN_ITEMCHANGED = LVN_FIRST - 1;
constexpr int LVN_INSERTITEM = LVN_FIRST - 2;
constexpr int LVN_DELETEITEM = LVN_FIRST - 3;
constexpr int LVN_DELETEALLITEMS = LVN_FIRST - 4;
constexpr UINT LVIS_FOCUSED = 0x0001;
constexpr UINT LVIS_SELECTED = 0x0002;
constexpr int LVNI_ALL = 0x0000;
constexpr int LVNI_FOCUSED = 0x0001;
constexpr int LVNI_SELECTED = 0x0002;

// Find and replace dialog flags.
constexpr DWORD FR_DOWN = 0x00000001;
constexpr DWORD FR_WHOLEWORD = 0x00000002;
constexpr DWORD FR_MATCHCASE = 0x00000004;
constexpr DWORD FR_FINDNEXT = 0x00000008;
constexpr DWORD FR_REPLACE = 0x00000010;
constexpr DWORD FR_REPLACEALL = 0x00000020;
constexpr DWORD FR_DIALOGTERM = 0x00000040;
constexpr DWORD FR_SHOWHELP = 0x00000080;
constexpr DWORD FR_ENABLEHOOK = 0x00000100;
constexpr DWORD FR_ENABLETEMPLATE = 0x00000200;
constexpr DWORD FR_NOUPDOWN = 0x00000400;
constexpr DWORD FR_NOMATCHCASE = 0x00000800;
constexpr DWORD FR_NOWHOLEWORD = 0x00001000;
constexpr DWORD FR_ENABLETEMPLATEHANDLE = 0x00002000;
constexpr DWORD FR_HIDEUPDOWN = 0x00004000;
constexpr DWORD FR_HIDEMATCHCASE = 0x00008000;
constexpr DWORD FR_HIDEWHOLEWORD = 0x00010000;

// Message box kinds (also the sound of MessageBeep) and dialog results.
constexpr UINT MB_OK = 0x00000000;
constexpr UINT MB_OKCANCEL = 0x00000001;
constexpr UINT MB_ABORTRETRYIGNORE = 0x00000002;
constexpr UINT MB_YESNOCANCEL = 0x00000003;
constexpr UINT MB_YESNO = 0x00000004;
constexpr UINT MB_RETRYCANCEL = 0x00000005;
constexpr UINT MB_ICONHAND = 0x00000010;
constexpr UINT MB_ICONQUESTION = 0x00000020;
constexpr UINT MB_ICONEXCLAMATION = 0x00000030;
constexpr UINT MB_ICONASTERISK = 0x00000040;
constexpr UINT MB_ICONERROR = MB_ICONHAND;
constexpr UINT MB_ICONSTOP = MB_ICONHAND;
constexpr UINT MB_ICONWARNING = MB_ICONEXCLAMATION;
constexpr UINT MB_ICONINFORMATION = MB_ICONASTERISK;
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;
constexpr int IDCLOSE = 8;
constexpr int IDHELP = 9;

// Print dialog flags.
constexpr DWORD PD_ALLPAGES = 0x00000000;
constexpr DWORD PD_SELECTION = 0x00000001;
constexpr DWORD PD_PAGENUMS = 0x00000002;
constexpr DWORD PD_NOSELECTION = 0x00000004;
constexpr DWORD PD_NOPAGENUMS = 0x00000008;
constexpr DWORD PD_COLLATE = 0x00000010;
constexpr DWORD PD_PRINTTOFILE = 0x00000020;
constexpr DWORD PD_PRINTSETUP = 0x00000040;
constexpr DWORD PD_NOWARNING = 0x00000080;
constexpr DWORD PD_RETURNDC = 0x00000100;
constexpr DWORD PD_RETURNIC = 0x00000200;
constexpr DWORD PD_RETURNDEFAULT = 0x00000400;
constexpr DWORD PD_SHOWHELP = 0x00000800;
constexpr DWORD PD_ENABLEPRINTHOOK = 0x00001000;
constexpr DWORD PD_ENABLESETUPHOOK = 0x00002000;
constexpr DWORD PD_ENABLEPRINTTEMPLATE = 0x00004000;
constexpr DWORD PD_ENABLESETUPTEMPLATE = 0x00008000;
constexpr DWORD PD_ENABLEPRINTTEMPLATEHANDLE = 0x00010000;
constexpr DWORD PD_ENABLESETUPTEMPLATEHANDLE = 0x00020000;
constexpr DWORD PD_USEDEVMODECOPIES = 0x00040000;
constexpr DWORD PD_USEDEVMODECOPIESANDCOLLATE = 0x00040000;
constexpr DWORD PD_DISABLEPRINTTOFILE = 0x00080000;
constexpr DWORD PD_HIDEPRINTTOFILE = 0x00100000;
constexpr DWORD PD_NONETWORKBUTTON = 0x00200000;

// ---------------------------------------------------------------------------
// Scroll bars
// ---------------------------------------------------------------------------

// Which bar: the window's own ones, or a scroll-bar control.
constexpr int SB_HORZ = 0;
constexpr int SB_VERT = 1;
constexpr int SB_CTL = 2;
constexpr int SB_BOTH = 3;

// Scroll requests of WM_HSCROLL/WM_VSCROLL; the horizontal names share the
// vertical values.
constexpr int SB_LINEUP = 0;
constexpr int SB_LINELEFT = 0;
constexpr int SB_LINEDOWN = 1;
constexpr int SB_LINERIGHT = 1;
constexpr int SB_PAGEUP = 2;
constexpr int SB_PAGELEFT = 2;
constexpr int SB_PAGEDOWN = 3;
constexpr int SB_PAGERIGHT = 3;
constexpr int SB_THUMBPOSITION = 4;
constexpr int SB_THUMBTRACK = 5;
constexpr int SB_TOP = 6;
constexpr int SB_LEFT = 6;
constexpr int SB_BOTTOM = 7;
constexpr int SB_RIGHT = 7;
constexpr int SB_ENDSCROLL = 8;

// Styles of a scroll-bar control; SBS_VERT is what tells the two kinds apart.
constexpr DWORD SBS_HORZ = 0x0000;
constexpr DWORD SBS_VERT = 0x0001;
constexpr DWORD SBS_TOPALIGN = 0x0002;
constexpr DWORD SBS_LEFTALIGN = 0x0002;
constexpr DWORD SBS_BOTTOMALIGN = 0x0004;
constexpr DWORD SBS_RIGHTALIGN = 0x0004;
constexpr DWORD SBS_SIZEBOXTOPLEFTALIGN = 0x0002;
constexpr DWORD SBS_SIZEBOXBOTTOMRIGHTALIGN = 0x0004;
constexpr DWORD SBS_SIZEBOX = 0x0008;
constexpr DWORD SBS_SIZEGRIP = 0x0010;

// EnableScrollBar arrows.
constexpr UINT ESB_ENABLE_BOTH = 0x0000;
constexpr UINT ESB_DISABLE_BOTH = 0x0003;
constexpr UINT ESB_DISABLE_LEFT = 0x0001;
constexpr UINT ESB_DISABLE_RIGHT = 0x0002;
constexpr UINT ESB_DISABLE_UP = 0x0001;
constexpr UINT ESB_DISABLE_DOWN = 0x0002;
constexpr UINT ESB_DISABLE_LTUP = ESB_DISABLE_LEFT;
constexpr UINT ESB_DISABLE_RTDN = ESB_DISABLE_RIGHT;

// SCROLLINFO fields to read or write.
constexpr UINT SIF_RANGE = 0x0001;
constexpr UINT SIF_PAGE = 0x0002;
constexpr UINT SIF_POS = 0x0004;
constexpr UINT SIF_DISABLENOSCROLL = 0x0008;
constexpr UINT SIF_TRACKPOS = 0x0010;
constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;

// ---------------------------------------------------------------------------
// Keyboard and mouse state
// ---------------------------------------------------------------------------

// Virtual keys. Letters and digits are their ASCII upper-case characters.
constexpr int VK_LBUTTON = 0x01;
constexpr int VK_RBUTTON = 0x02;
constexpr int VK_CANCEL = 0x03;
constexpr int VK_MBUTTON = 0x04;
constexpr int VK_XBUTTON1 = 0x05;
constexpr int VK_XBUTTON2 = 0x06;
constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_CLEAR = 0x0C;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12;
constexpr int VK_PAUSE = 0x13;
constexpr int VK_CAPITAL = 0x14;
constexpr int VK_KANA = 0x15;
constexpr int VK_HANGUL = 0x15;
constexpr int VK_JUNJA = 0x17;
constexpr int VK_FINAL = 0x18;
constexpr int VK_HANJA = 0x19;
constexpr int VK_KANJI = 0x19;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_CONVERT = 0x1C;
constexpr int VK_NONCONVERT = 0x1D;
constexpr int VK_ACCEPT = 0x1E;
constexpr int VK_MODECHANGE = 0x1F;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_SELECT = 0x29;
constexpr int VK_PRINT = 0x2A;
constexpr int VK_EXECUTE = 0x2B;
constexpr int VK_SNAPSHOT = 0x2C;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;
constexpr int VK_HELP = 0x2F;
constexpr int VK_LWIN = 0x5B;
constexpr int VK_RWIN = 0x5C;
constexpr int VK_APPS = 0x5D;
constexpr int VK_SLEEP = 0x5F;
constexpr int VK_NUMPAD0 = 0x60;
constexpr int VK_NUMPAD1 = 0x61;
constexpr int VK_NUMPAD2 = 0x62;
constexpr int VK_NUMPAD3 = 0x63;
constexpr int VK_NUMPAD4 = 0x64;
constexpr int VK_NUMPAD5 = 0x65;
constexpr int VK_NUMPAD6 = 0x66;
constexpr int VK_NUMPAD7 = 0x67;
constexpr int VK_NUMPAD8 = 0x68;
constexpr int VK_NUMPAD9 = 0x69;
constexpr int VK_MULTIPLY = 0x6A;
constexpr int VK_ADD = 0x6B;
constexpr int VK_SEPARATOR = 0x6C;
constexpr int VK_SUBTRACT = 0x6D;
constexpr int VK_DECIMAL = 0x6E;
constexpr int VK_DIVIDE = 0x6F;
constexpr int VK_F1 = 0x70;
constexpr int VK_F2 = 0x71;
constexpr int VK_F3 = 0x72;
constexpr int VK_F4 = 0x73;
constexpr int VK_F5 = 0x74;
constexpr int VK_F6 = 0x75;
constexpr int VK_F7 = 0x76;
constexpr int VK_F8 = 0x77;
constexpr int VK_F9 = 0x78;
constexpr int VK_F10 = 0x79;
constexpr int VK_F11 = 0x7A;
constexpr int VK_F12 = 0x7B;
constexpr int VK_F13 = 0x7C;
constexpr int VK_F14 = 0x7D;
constexpr int VK_F15 = 0x7E;
constexpr int VK_F16 = 0x7F;
constexpr int VK_F17 = 0x80;
constexpr int VK_F18 = 0x81;
constexpr int VK_F19 = 0x82;
constexpr int VK_F20 = 0x83;
constexpr int VK_F21 = 0x84;
constexpr int VK_F22 = 0x85;
constexpr int VK_F23 = 0x86;
constexpr int VK_F24 = 0x87;
constexpr int VK_NUMLOCK = 0x90;
constexpr int VK_SCROLL = 0x91;
// Left and right modifiers; only the key-state query reports them.
constexpr int VK_LSHIFT = 0xA0;
constexpr int VK_RSHIFT = 0xA1;
constexpr int VK_LCONTROL = 0xA2;
constexpr int VK_RCONTROL = 0xA3;
constexpr int VK_LMENU = 0xA4;
constexpr int VK_RMENU = 0xA5;
constexpr int VK_BROWSER_BACK = 0xA6;
constexpr int VK_BROWSER_FORWARD = 0xA7;
constexpr int VK_BROWSER_REFRESH = 0xA8;
constexpr int VK_BROWSER_STOP = 0xA9;
constexpr int VK_BROWSER_SEARCH = 0xAA;
constexpr int VK_BROWSER_FAVORITES = 0xAB;
constexpr int VK_BROWSER_HOME = 0xAC;
constexpr int VK_VOLUME_MUTE = 0xAD;
constexpr int VK_VOLUME_DOWN = 0xAE;
constexpr int VK_VOLUME_UP = 0xAF;
constexpr int VK_MEDIA_NEXT_TRACK = 0xB0;
constexpr int VK_MEDIA_PREV_TRACK = 0xB1;
constexpr int VK_MEDIA_STOP = 0xB2;
constexpr int VK_MEDIA_PLAY_PAUSE = 0xB3;
constexpr int VK_LAUNCH_MAIL = 0xB4;
constexpr int VK_LAUNCH_MEDIA_SELECT = 0xB5;
constexpr int VK_LAUNCH_APP1 = 0xB6;
constexpr int VK_LAUNCH_APP2 = 0xB7;
// Punctuation keys; which character each gives depends on the layout
// (the comments are those of a US keyboard).
constexpr int VK_OEM_1 = 0xBA;       // ;:
constexpr int VK_OEM_PLUS = 0xBB;    // =+
constexpr int VK_OEM_COMMA = 0xBC;   // ,<
constexpr int VK_OEM_MINUS = 0xBD;   // -_
constexpr int VK_OEM_PERIOD = 0xBE;  // .>
constexpr int VK_OEM_2 = 0xBF;       // /?
constexpr int VK_OEM_3 = 0xC0;       // `~
constexpr int VK_OEM_4 = 0xDB;       // [{
constexpr int VK_OEM_5 = 0xDC;       // \|
constexpr int VK_OEM_6 = 0xDD;       // ]}
constexpr int VK_OEM_7 = 0xDE;       // '"
constexpr int VK_OEM_8 = 0xDF;
constexpr int VK_OEM_102 = 0xE2;  // <> or \| of the extra key on 102-key boards
constexpr int VK_PROCESSKEY = 0xE5;
constexpr int VK_PACKET = 0xE7;
constexpr int VK_ATTN = 0xF6;
constexpr int VK_CRSEL = 0xF7;
constexpr int VK_EXSEL = 0xF8;
constexpr int VK_EREOF = 0xF9;
constexpr int VK_PLAY = 0xFA;
constexpr int VK_ZOOM = 0xFB;
constexpr int VK_NONAME = 0xFC;
constexpr int VK_PA1 = 0xFD;
constexpr int VK_OEM_CLEAR = 0xFE;

// Button and modifier flags of mouse messages (nFlags). MK_ALT exists only in
// the key state of a drag and drop, where it shares MK_XBUTTON1's bit.
constexpr UINT MK_LBUTTON = 0x0001;
constexpr UINT MK_RBUTTON = 0x0002;
constexpr UINT MK_SHIFT = 0x0004;
constexpr UINT MK_CONTROL = 0x0008;
constexpr UINT MK_MBUTTON = 0x0010;
constexpr UINT MK_XBUTTON1 = 0x0020;
constexpr UINT MK_XBUTTON2 = 0x0040;
constexpr UINT MK_ALT = 0x0020;

// Drag and drop effects: bit flags, combined for the effects a source allows.
constexpr DWORD DROPEFFECT_NONE = 0;
constexpr DWORD DROPEFFECT_COPY = 1;
constexpr DWORD DROPEFFECT_MOVE = 2;
constexpr DWORD DROPEFFECT_LINK = 4;
constexpr DWORD DROPEFFECT_SCROLL = 0x80000000;

// ---------------------------------------------------------------------------
// Windows, classes and the system
// ---------------------------------------------------------------------------

// Window styles.
constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_MINIMIZE = 0x20000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000;
constexpr DWORD WS_MAXIMIZE = 0x01000000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_DLGFRAME = 0x00400000;
constexpr DWORD WS_VSCROLL = 0x00200000;
constexpr DWORD WS_HSCROLL = 0x00100000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_THICKFRAME = 0x00040000;
constexpr DWORD WS_GROUP = 0x00020000;
constexpr DWORD WS_TABSTOP = 0x00010000;
constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
constexpr DWORD WS_TILED = WS_OVERLAPPED;
constexpr DWORD WS_ICONIC = WS_MINIMIZE;
constexpr DWORD WS_SIZEBOX = WS_THICKFRAME;
constexpr DWORD WS_CHILDWINDOW = WS_CHILD;
constexpr DWORD WS_OVERLAPPEDWINDOW =
    WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
constexpr DWORD WS_TILEDWINDOW = WS_OVERLAPPEDWINDOW;
constexpr DWORD WS_POPUPWINDOW = WS_POPUP | WS_BORDER | WS_SYSMENU;

// Extended window styles.
constexpr DWORD WS_EX_DLGMODALFRAME = 0x00000001;
constexpr DWORD WS_EX_NOPARENTNOTIFY = 0x00000004;
constexpr DWORD WS_EX_TOPMOST = 0x00000008;
constexpr DWORD WS_EX_ACCEPTFILES = 0x00000010;
constexpr DWORD WS_EX_TRANSPARENT = 0x00000020;
constexpr DWORD WS_EX_MDICHILD = 0x00000040;
constexpr DWORD WS_EX_TOOLWINDOW = 0x00000080;
constexpr DWORD WS_EX_WINDOWEDGE = 0x00000100;
constexpr DWORD WS_EX_CLIENTEDGE = 0x00000200;
constexpr DWORD WS_EX_CONTEXTHELP = 0x00000400;
constexpr DWORD WS_EX_LEFT = 0x00000000;
constexpr DWORD WS_EX_RIGHT = 0x00001000;
constexpr DWORD WS_EX_LTRREADING = 0x00000000;
constexpr DWORD WS_EX_RTLREADING = 0x00002000;
constexpr DWORD WS_EX_RIGHTSCROLLBAR = 0x00000000;
constexpr DWORD WS_EX_LEFTSCROLLBAR = 0x00004000;
constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000;
constexpr DWORD WS_EX_STATICEDGE = 0x00020000;
constexpr DWORD WS_EX_APPWINDOW = 0x00040000;
constexpr DWORD WS_EX_LAYERED = 0x00080000;
constexpr DWORD WS_EX_NOINHERITLAYOUT = 0x00100000;
constexpr DWORD WS_EX_LAYOUTRTL = 0x00400000;
constexpr DWORD WS_EX_COMPOSITED = 0x02000000;
constexpr DWORD WS_EX_NOACTIVATE = 0x08000000;
constexpr DWORD WS_EX_OVERLAPPEDWINDOW = WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE;
constexpr DWORD WS_EX_PALETTEWINDOW = WS_EX_WINDOWEDGE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST;

// Window class styles.
constexpr UINT CS_VREDRAW = 0x0001;
constexpr UINT CS_HREDRAW = 0x0002;
constexpr UINT CS_DBLCLKS = 0x0008;
constexpr UINT CS_OWNDC = 0x0020;
constexpr UINT CS_CLASSDC = 0x0040;
constexpr UINT CS_PARENTDC = 0x0080;
constexpr UINT CS_NOCLOSE = 0x0200;
constexpr UINT CS_SAVEBITS = 0x0800;
constexpr UINT CS_BYTEALIGNCLIENT = 0x1000;
constexpr UINT CS_BYTEALIGNWINDOW = 0x2000;
constexpr UINT CS_GLOBALCLASS = 0x4000;
constexpr UINT CS_DROPSHADOW = 0x00020000;

// SetWindowPos flags.
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOREDRAW = 0x0008;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_FRAMECHANGED = 0x0020;
constexpr UINT SWP_SHOWWINDOW = 0x0040;
constexpr UINT SWP_HIDEWINDOW = 0x0080;
constexpr UINT SWP_NOCOPYBITS = 0x0100;
constexpr UINT SWP_NOOWNERZORDER = 0x0200;
constexpr UINT SWP_NOSENDCHANGING = 0x0400;
constexpr UINT SWP_DRAWFRAME = SWP_FRAMECHANGED;
constexpr UINT SWP_NOREPOSITION = SWP_NOOWNERZORDER;
constexpr UINT SWP_DEFERERASE = 0x2000;
constexpr UINT SWP_ASYNCWINDOWPOS = 0x4000;

// ShowWindow commands.
constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_NORMAL = 1;
constexpr int SW_SHOWMINIMIZED = 2;
constexpr int SW_SHOWMAXIMIZED = 3;
constexpr int SW_MAXIMIZE = 3;
constexpr int SW_SHOWNOACTIVATE = 4;
constexpr int SW_SHOW = 5;
constexpr int SW_MINIMIZE = 6;
constexpr int SW_SHOWMINNOACTIVE = 7;
constexpr int SW_SHOWNA = 8;
constexpr int SW_RESTORE = 9;
constexpr int SW_SHOWDEFAULT = 10;
constexpr int SW_FORCEMINIMIZE = 11;

// RedrawWindow flags.
constexpr UINT RDW_INVALIDATE = 0x0001;
constexpr UINT RDW_INTERNALPAINT = 0x0002;
constexpr UINT RDW_ERASE = 0x0004;
constexpr UINT RDW_VALIDATE = 0x0008;
constexpr UINT RDW_NOINTERNALPAINT = 0x0010;
constexpr UINT RDW_NOERASE = 0x0020;
constexpr UINT RDW_NOCHILDREN = 0x0040;
constexpr UINT RDW_ALLCHILDREN = 0x0080;
constexpr UINT RDW_UPDATENOW = 0x0100;
constexpr UINT RDW_ERASENOW = 0x0200;
constexpr UINT RDW_FRAME = 0x0400;
constexpr UINT RDW_NOFRAME = 0x0800;

// GetSystemMetrics indices.
constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SM_CXVSCROLL = 2;
constexpr int SM_CYHSCROLL = 3;
constexpr int SM_CYCAPTION = 4;
constexpr int SM_CXBORDER = 5;
constexpr int SM_CYBORDER = 6;
constexpr int SM_CXDLGFRAME = 7;
constexpr int SM_CYDLGFRAME = 8;
constexpr int SM_CYVTHUMB = 9;
constexpr int SM_CXHTHUMB = 10;
constexpr int SM_CXICON = 11;
constexpr int SM_CYICON = 12;
constexpr int SM_CXCURSOR = 13;
constexpr int SM_CYCURSOR = 14;
constexpr int SM_CYMENU = 15;
constexpr int SM_CXFULLSCREEN = 16;
constexpr int SM_CYFULLSCREEN = 17;
constexpr int SM_CYKANJIWINDOW = 18;
constexpr int SM_MOUSEPRESENT = 19;
constexpr int SM_CYVSCROLL = 20;
constexpr int SM_CXHSCROLL = 21;
constexpr int SM_DEBUG = 22;
constexpr int SM_SWAPBUTTON = 23;
constexpr int SM_CXMIN = 28;
constexpr int SM_CYMIN = 29;
constexpr int SM_CXSIZE = 30;
constexpr int SM_CYSIZE = 31;
constexpr int SM_CXFRAME = 32;
constexpr int SM_CYFRAME = 33;
constexpr int SM_CXMINTRACK = 34;
constexpr int SM_CYMINTRACK = 35;
constexpr int SM_CXDOUBLECLK = 36;
constexpr int SM_CYDOUBLECLK = 37;
constexpr int SM_CXICONSPACING = 38;
constexpr int SM_CYICONSPACING = 39;
constexpr int SM_MENUDROPALIGNMENT = 40;
constexpr int SM_DBCSENABLED = 42;
constexpr int SM_CMOUSEBUTTONS = 43;
constexpr int SM_CXFIXEDFRAME = SM_CXDLGFRAME;
constexpr int SM_CYFIXEDFRAME = SM_CYDLGFRAME;
constexpr int SM_CXSIZEFRAME = SM_CXFRAME;
constexpr int SM_CYSIZEFRAME = SM_CYFRAME;
constexpr int SM_CXEDGE = 45;
constexpr int SM_CYEDGE = 46;
constexpr int SM_CXSMICON = 49;
constexpr int SM_CYSMICON = 50;
constexpr int SM_CYSMCAPTION = 51;
constexpr int SM_CXMAXTRACK = 59;
constexpr int SM_CYMAXTRACK = 60;
constexpr int SM_CXMAXIMIZED = 61;
constexpr int SM_CYMAXIMIZED = 62;
constexpr int SM_CXDRAG = 68;
constexpr int SM_CYDRAG = 69;
constexpr int SM_CXMENUCHECK = 71;
constexpr int SM_CYMENUCHECK = 72;
constexpr int SM_MOUSEWHEELPRESENT = 75;
constexpr int SM_XVIRTUALSCREEN = 76;
constexpr int SM_YVIRTUALSCREEN = 77;
constexpr int SM_CXVIRTUALSCREEN = 78;
constexpr int SM_CYVIRTUALSCREEN = 79;
constexpr int SM_CMONITORS = 80;

// GetSysColor indices.
constexpr int COLOR_SCROLLBAR = 0;
constexpr int COLOR_BACKGROUND = 1;
constexpr int COLOR_ACTIVECAPTION = 2;
constexpr int COLOR_INACTIVECAPTION = 3;
constexpr int COLOR_MENU = 4;
constexpr int COLOR_WINDOW = 5;
constexpr int COLOR_WINDOWFRAME = 6;
constexpr int COLOR_MENUTEXT = 7;
constexpr int COLOR_WINDOWTEXT = 8;
constexpr int COLOR_CAPTIONTEXT = 9;
constexpr int COLOR_ACTIVEBORDER = 10;
constexpr int COLOR_INACTIVEBORDER = 11;
constexpr int COLOR_APPWORKSPACE = 12;
constexpr int COLOR_HIGHLIGHT = 13;
constexpr int COLOR_HIGHLIGHTTEXT = 14;
constexpr int COLOR_BTNFACE = 15;
constexpr int COLOR_BTNSHADOW = 16;
constexpr int COLOR_GRAYTEXT = 17;
constexpr int COLOR_BTNTEXT = 18;
constexpr int COLOR_INACTIVECAPTIONTEXT = 19;
constexpr int COLOR_BTNHIGHLIGHT = 20;
constexpr int COLOR_3DDKSHADOW = 21;
constexpr int COLOR_3DLIGHT = 22;
constexpr int COLOR_INFOTEXT = 23;
constexpr int COLOR_INFOBK = 24;
constexpr int COLOR_HOTLIGHT = 26;
constexpr int COLOR_GRADIENTACTIVECAPTION = 27;
constexpr int COLOR_GRADIENTINACTIVECAPTION = 28;
constexpr int COLOR_MENUHILIGHT = 29;
constexpr int COLOR_MENUBAR = 30;
constexpr int COLOR_DESKTOP = COLOR_BACKGROUND;
constexpr int COLOR_3DFACE = COLOR_BTNFACE;
constexpr int COLOR_3DSHADOW = COLOR_BTNSHADOW;
constexpr int COLOR_3DHIGHLIGHT = COLOR_BTNHIGHLIGHT;
constexpr int COLOR_3DHILIGHT = COLOR_BTNHIGHLIGHT;
constexpr int COLOR_BTNHILIGHT = COLOR_BTNHIGHLIGHT;

// Standard cursors (plain ids here; LoadCursor takes them as resource names).
constexpr int IDC_ARROW = 32512;
constexpr int IDC_IBEAM = 32513;
constexpr int IDC_WAIT = 32514;
constexpr int IDC_CROSS = 32515;
constexpr int IDC_UPARROW = 32516;
constexpr int IDC_SIZE = 32640;
constexpr int IDC_ICON = 32641;
constexpr int IDC_SIZENWSE = 32642;
constexpr int IDC_SIZENESW = 32643;
constexpr int IDC_SIZEWE = 32644;
constexpr int IDC_SIZENS = 32645;
constexpr int IDC_SIZEALL = 32646;
constexpr int IDC_NO = 32648;
constexpr int IDC_HAND = 32649;
constexpr int IDC_APPSTARTING = 32650;
constexpr int IDC_HELP = 32651;

// PeekMessage options.
constexpr UINT PM_NOREMOVE = 0x0000;
constexpr UINT PM_REMOVE = 0x0001;
constexpr UINT PM_NOYIELD = 0x0002;

// Hooks: kinds and the hook code of an event to act on.
constexpr int WH_MSGFILTER = -1;
constexpr int WH_JOURNALRECORD = 0;
constexpr int WH_JOURNALPLAYBACK = 1;
constexpr int WH_KEYBOARD = 2;
constexpr int WH_GETMESSAGE = 3;
constexpr int WH_CALLWNDPROC = 4;
constexpr int WH_CBT = 5;
constexpr int WH_SYSMSGFILTER = 6;
constexpr int WH_MOUSE = 7;
constexpr int WH_DEBUG = 9;
constexpr int WH_SHELL = 10;
constexpr int WH_FOREGROUNDIDLE = 11;
constexpr int WH_CALLWNDPROCRET = 12;
constexpr int WH_KEYBOARD_LL = 13;
constexpr int WH_MOUSE_LL = 14;
constexpr int HC_ACTION = 0;
constexpr int HC_NOREMOVE = 3;

// Clipboard formats.
constexpr UINT CF_TEXT = 1;
constexpr UINT CF_BITMAP = 2;
constexpr UINT CF_METAFILEPICT = 3;
constexpr UINT CF_SYLK = 4;
constexpr UINT CF_DIF = 5;
constexpr UINT CF_TIFF = 6;
constexpr UINT CF_OEMTEXT = 7;
constexpr UINT CF_DIB = 8;
constexpr UINT CF_PALETTE = 9;
constexpr UINT CF_PENDATA = 10;
constexpr UINT CF_RIFF = 11;
constexpr UINT CF_WAVE = 12;
constexpr UINT CF_UNICODETEXT = 13;
constexpr UINT CF_ENHMETAFILE = 14;
constexpr UINT CF_HDROP = 15;
constexpr UINT CF_LOCALE = 16;

// Global memory flags.
constexpr UINT GMEM_FIXED = 0x0000;
constexpr UINT GMEM_MOVEABLE = 0x0002;
constexpr UINT GMEM_NOCOMPACT = 0x0010;
constexpr UINT GMEM_NODISCARD = 0x0020;
constexpr UINT GMEM_ZEROINIT = 0x0040;
constexpr UINT GMEM_MODIFY = 0x0080;
constexpr UINT GMEM_DISCARDABLE = 0x0100;
constexpr UINT GMEM_NOT_BANKED = 0x1000;
constexpr UINT GMEM_SHARE = 0x2000;
constexpr UINT GMEM_DDESHARE = 0x2000;
constexpr UINT GMEM_NOTIFY = 0x4000;
constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;
constexpr UINT GPTR = GMEM_FIXED | GMEM_ZEROINIT;

// File access, sharing, creation and attributes.
constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD GENERIC_EXECUTE = 0x20000000;
constexpr DWORD GENERIC_ALL = 0x10000000;
constexpr DWORD FILE_SHARE_READ = 0x00000001;
constexpr DWORD FILE_SHARE_WRITE = 0x00000002;
constexpr DWORD FILE_SHARE_DELETE = 0x00000004;
constexpr DWORD CREATE_NEW = 1;
constexpr DWORD CREATE_ALWAYS = 2;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD OPEN_ALWAYS = 4;
constexpr DWORD TRUNCATE_EXISTING = 5;
constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x00000001;
constexpr DWORD FILE_ATTRIBUTE_HIDDEN = 0x00000002;
constexpr DWORD FILE_ATTRIBUTE_SYSTEM = 0x00000004;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x00000010;
constexpr DWORD FILE_ATTRIBUTE_ARCHIVE = 0x00000020;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x00000080;
constexpr DWORD FILE_ATTRIBUTE_TEMPORARY = 0x00000100;
constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;

// ---------------------------------------------------------------------------
// Drawing
// ---------------------------------------------------------------------------

// Stock objects (GetStockObject ids). NULL_BRUSH and HOLLOW_BRUSH are one.
constexpr int WHITE_BRUSH = 0;
constexpr int LTGRAY_BRUSH = 1;
constexpr int GRAY_BRUSH = 2;
constexpr int DKGRAY_BRUSH = 3;
constexpr int BLACK_BRUSH = 4;
constexpr int NULL_BRUSH = 5;
constexpr int HOLLOW_BRUSH = NULL_BRUSH;
constexpr int WHITE_PEN = 6;
constexpr int BLACK_PEN = 7;
constexpr int NULL_PEN = 8;
constexpr int OEM_FIXED_FONT = 10;
constexpr int ANSI_FIXED_FONT = 11;
constexpr int ANSI_VAR_FONT = 12;
constexpr int SYSTEM_FONT = 13;
constexpr int DEVICE_DEFAULT_FONT = 14;
constexpr int DEFAULT_PALETTE = 15;
constexpr int SYSTEM_FIXED_FONT = 16;
constexpr int DEFAULT_GUI_FONT = 17;
constexpr int DC_BRUSH = 18;
constexpr int DC_PEN = 19;

// Background modes for text.
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

// Pen styles.
constexpr int PS_SOLID = 0;
constexpr int PS_DASH = 1;
constexpr int PS_DOT = 2;
constexpr int PS_DASHDOT = 3;
constexpr int PS_DASHDOTDOT = 4;
constexpr int PS_NULL = 5;
constexpr int PS_INSIDEFRAME = 6;

// Brush styles.
constexpr UINT BS_SOLID = 0;
constexpr UINT BS_NULL = 1;
constexpr UINT BS_HOLLOW = BS_NULL;
constexpr UINT BS_HATCHED = 2;
constexpr UINT BS_PATTERN = 3;

// Region combination modes, and the kinds of region an operation returns.
// The platform's failure value is named RGN_ERROR here, since a bare ERROR is
// too likely to collide with other code.
constexpr int RGN_AND = 1;
constexpr int RGN_OR = 2;
constexpr int RGN_XOR = 3;
constexpr int RGN_DIFF = 4;
constexpr int RGN_COPY = 5;
constexpr int RGN_MIN = RGN_AND;
constexpr int RGN_MAX = RGN_COPY;
constexpr int RGN_ERROR = 0;
constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;
constexpr int COMPLEXREGION = 3;

// Image list drawing styles, and its colour sentinels.
constexpr UINT ILD_NORMAL = 0x0000;
constexpr UINT ILD_TRANSPARENT = 0x0001;
constexpr UINT ILD_BLEND25 = 0x0002;
constexpr UINT ILD_BLEND50 = 0x0004;
constexpr UINT ILD_MASK = 0x0010;
constexpr UINT ILD_IMAGE = 0x0020;
constexpr UINT ILD_ROP = 0x0040;
constexpr UINT ILD_OVERLAYMASK = 0x0F00;
constexpr UINT ILD_FOCUS = ILD_BLEND25;
constexpr UINT ILD_SELECTED = ILD_BLEND50;
constexpr UINT ILD_BLEND = ILD_BLEND50;
constexpr COLORREF CLR_NONE = 0xFFFFFFFF;
constexpr COLORREF CLR_DEFAULT = 0xFF000000;

// GetDeviceCaps indices, and the TECHNOLOGY answers.
constexpr int DRIVERVERSION = 0;
constexpr int TECHNOLOGY = 2;
constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;
constexpr int NUMBRUSHES = 16;
constexpr int NUMPENS = 18;
constexpr int NUMMARKERS = 20;
constexpr int NUMFONTS = 22;
constexpr int NUMCOLORS = 24;
constexpr int PDEVICESIZE = 26;
constexpr int CURVECAPS = 28;
constexpr int LINECAPS = 30;
constexpr int POLYGONALCAPS = 32;
constexpr int TEXTCAPS = 34;
constexpr int CLIPCAPS = 36;
constexpr int RASTERCAPS = 38;
constexpr int ASPECTX = 40;
constexpr int ASPECTY = 42;
constexpr int ASPECTXY = 44;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
constexpr int SIZEPALETTE = 104;
constexpr int NUMRESERVED = 106;
constexpr int COLORRES = 108;
constexpr int PHYSICALWIDTH = 110;
constexpr int PHYSICALHEIGHT = 111;
constexpr int PHYSICALOFFSETX = 112;
constexpr int PHYSICALOFFSETY = 113;
constexpr int SCALINGFACTORX = 114;
constexpr int SCALINGFACTORY = 115;
constexpr int DT_PLOTTER = 0;
constexpr int DT_RASDISPLAY = 1;
constexpr int DT_RASPRINTER = 2;
constexpr int DT_RASCAMERA = 3;
constexpr int DT_CHARSTREAM = 4;
constexpr int DT_METAFILE = 5;
constexpr int DT_DISPFILE = 6;

// Mapping modes; every context here works in MM_TEXT (one unit, one pixel).
constexpr int MM_TEXT = 1;
constexpr int MM_LOMETRIC = 2;
constexpr int MM_HIMETRIC = 3;
constexpr int MM_LOENGLISH = 4;
constexpr int MM_HIENGLISH = 5;
constexpr int MM_TWIPS = 6;
constexpr int MM_ISOTROPIC = 7;
constexpr int MM_ANISOTROPIC = 8;

// ---------------------------------------------------------------------------
// Fonts
// ---------------------------------------------------------------------------

// Weights (lfWeight).
constexpr int FW_DONTCARE = 0;
constexpr int FW_THIN = 100;
constexpr int FW_EXTRALIGHT = 200;
constexpr int FW_ULTRALIGHT = 200;
constexpr int FW_LIGHT = 300;
constexpr int FW_NORMAL = 400;
constexpr int FW_REGULAR = 400;
constexpr int FW_MEDIUM = 500;
constexpr int FW_SEMIBOLD = 600;
constexpr int FW_DEMIBOLD = 600;
constexpr int FW_BOLD = 700;
constexpr int FW_EXTRABOLD = 800;
constexpr int FW_ULTRABOLD = 800;
constexpr int FW_HEAVY = 900;
constexpr int FW_BLACK = 900;

// Pitch (low bits) and family (high nibble) of lfPitchAndFamily.
constexpr int DEFAULT_PITCH = 0;
constexpr int FIXED_PITCH = 1;
constexpr int VARIABLE_PITCH = 2;
constexpr int FF_DONTCARE = 0x00;
constexpr int FF_ROMAN = 0x10;
constexpr int FF_SWISS = 0x20;
constexpr int FF_MODERN = 0x30;
constexpr int FF_SCRIPT = 0x40;
constexpr int FF_DECORATIVE = 0x50;

// tmPitchAndFamily bits. Beware: TMPF_FIXED_PITCH set means the font is NOT
// fixed pitch, the opposite of what its name says.
constexpr int TMPF_FIXED_PITCH = 0x01;
constexpr int TMPF_VECTOR = 0x02;
constexpr int TMPF_TRUETYPE = 0x04;
constexpr int TMPF_DEVICE = 0x08;

// Font types reported by font enumeration.
constexpr DWORD RASTER_FONTTYPE = 0x0001;
constexpr DWORD DEVICE_FONTTYPE = 0x0002;
constexpr DWORD TRUETYPE_FONTTYPE = 0x0004;

// Character sets (lfCharSet).
constexpr int ANSI_CHARSET = 0;
constexpr int DEFAULT_CHARSET = 1;
constexpr int SYMBOL_CHARSET = 2;
constexpr int MAC_CHARSET = 77;
constexpr int SHIFTJIS_CHARSET = 128;
constexpr int HANGUL_CHARSET = 129;
constexpr int JOHAB_CHARSET = 130;
constexpr int GB2312_CHARSET = 134;
constexpr int CHINESEBIG5_CHARSET = 136;
constexpr int GREEK_CHARSET = 161;
constexpr int TURKISH_CHARSET = 162;
constexpr int VIETNAMESE_CHARSET = 163;
constexpr int HEBREW_CHARSET = 177;
constexpr int ARABIC_CHARSET = 178;
constexpr int BALTIC_CHARSET = 186;
constexpr int RUSSIAN_CHARSET = 204;
constexpr int THAI_CHARSET = 222;
constexpr int EASTEUROPE_CHARSET = 238;
constexpr int OEM_CHARSET = 255;

// Output, clipping and quality precisions (lfOutPrecision, lfClipPrecision,
// lfQuality).
constexpr int OUT_DEFAULT_PRECIS = 0;
constexpr int OUT_STRING_PRECIS = 1;
constexpr int OUT_CHARACTER_PRECIS = 2;
constexpr int OUT_STROKE_PRECIS = 3;
constexpr int OUT_TT_PRECIS = 4;
constexpr int OUT_DEVICE_PRECIS = 5;
constexpr int OUT_RASTER_PRECIS = 6;
constexpr int OUT_TT_ONLY_PRECIS = 7;
constexpr int OUT_OUTLINE_PRECIS = 8;
constexpr int CLIP_DEFAULT_PRECIS = 0x00;
constexpr int CLIP_CHARACTER_PRECIS = 0x01;
constexpr int CLIP_STROKE_PRECIS = 0x02;
constexpr int CLIP_MASK = 0x0F;
constexpr int CLIP_LH_ANGLES = 0x10;
constexpr int CLIP_TT_ALWAYS = 0x20;
constexpr int CLIP_EMBEDDED = 0x80;
constexpr int DEFAULT_QUALITY = 0;
constexpr int DRAFT_QUALITY = 1;
constexpr int PROOF_QUALITY = 2;
constexpr int NONANTIALIASED_QUALITY = 3;
constexpr int ANTIALIASED_QUALITY = 4;
constexpr int CLEARTYPE_QUALITY = 5;

// ---------------------------------------------------------------------------
// Framework command ids
// ---------------------------------------------------------------------------

// The standard File and Edit commands of the application framework; hosts
// route their menus and toolbars by these numbers.
constexpr UINT ID_FILE_NEW = 0xE100;
constexpr UINT ID_FILE_OPEN = 0xE101;
constexpr UINT ID_FILE_CLOSE = 0xE102;
constexpr UINT ID_FILE_SAVE = 0xE103;
constexpr UINT ID_FILE_SAVE_AS = 0xE104;
constexpr UINT ID_FILE_PAGE_SETUP = 0xE105;
constexpr UINT ID_FILE_PRINT_SETUP = 0xE106;
constexpr UINT ID_FILE_PRINT = 0xE107;
constexpr UINT ID_FILE_PRINT_DIRECT = 0xE108;
constexpr UINT ID_FILE_PRINT_PREVIEW = 0xE109;
constexpr UINT ID_EDIT_CLEAR = 0xE120;
constexpr UINT ID_EDIT_CLEAR_ALL = 0xE121;
constexpr UINT ID_EDIT_COPY = 0xE122;
constexpr UINT ID_EDIT_CUT = 0xE123;
constexpr UINT ID_EDIT_FIND = 0xE124;
constexpr UINT ID_EDIT_PASTE = 0xE125;
constexpr UINT ID_EDIT_PASTE_LINK = 0xE126;
constexpr UINT ID_EDIT_PASTE_SPECIAL = 0xE127;
constexpr UINT ID_EDIT_REPEAT = 0xE128;
constexpr UINT ID_EDIT_REPLACE = 0xE129;
constexpr UINT ID_EDIT_SELECT_ALL = 0xE12A;
constexpr UINT ID_EDIT_UNDO = 0xE12B;
constexpr UINT ID_EDIT_REDO = 0xE12C;

// How a command travels: carried out, or asked for its state in a menu,
// a tool bar or a status pane. A query asks only whether a handler exists.
constexpr int CN_COMMAND = 0;
constexpr int CN_UPDATE_COMMAND_UI = -1;
constexpr int CN_QUERY_HANDLER = -2;
// The framework's idle message: command-UI states are brought up to date.
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;
// The first status bar pane of the framework (its message line).
constexpr UINT ID_SEPARATOR = 0;

// ---------------------------------------------------------------------------
// Identities the engine relies on
// ---------------------------------------------------------------------------

// Undo replay feeds stored characters back as key codes, and clearing a
// control sends VK_DELETE down the character path as '.'.
static_assert(VK_RETURN == '\r' && VK_RETURN == 13);
static_assert(VK_TAB == '\t');
static_assert(VK_DELETE == '.');
static_assert(VK_BACK == 8 && VK_SPACE == ' ');
// Key filters test ranges: VK_BACK..VK_F2, below VK_SHIFT, VK_PRIOR..VK_DOWN.
static_assert(VK_SHIFT == 16 && VK_F2 == 113);
static_assert(VK_PRIOR == 33 && VK_NEXT == 34 && VK_END == 35 && VK_HOME == 36 && VK_LEFT == 37 &&
              VK_UP == 38 && VK_RIGHT == 39 && VK_DOWN == 40);
static_assert(VK_NUMPAD9 - VK_NUMPAD0 == 9 && VK_F24 - VK_F1 == 23);
// Scroll codes travel unchanged from a window to the engine, and a wheel
// notch becomes a line step in either direction.
static_assert(SB_LINEUP == SB_LINELEFT && SB_LINEUP == 0);
static_assert(SB_LINEDOWN == SB_LINERIGHT && SB_PAGEUP == SB_PAGELEFT &&
              SB_PAGEDOWN == SB_PAGERIGHT && SB_TOP == SB_LEFT && SB_BOTTOM == SB_RIGHT);
// Message ranges scanned by modal loops and the auto-scroll check.
static_assert(WM_MOUSEFIRST == WM_MOUSEMOVE && WM_MOUSELAST == 525 &&
              WM_MOUSELAST == WM_XBUTTONDBLCLK);
static_assert(WM_KEYFIRST == WM_KEYDOWN && WM_KEYLAST >= WM_SYSDEADCHAR);
static_assert(WM_NCLBUTTONDOWN < WM_NCMBUTTONDBLCLK);
// Mouse flags and drop effects are single bits tested with &.
static_assert(MK_LBUTTON == 1 && MK_SHIFT == 4 && MK_CONTROL == 8);
static_assert(DROPEFFECT_NONE == 0 && (DROPEFFECT_COPY & DROPEFFECT_MOVE) == 0 &&
              (DROPEFFECT_COPY & DROPEFFECT_LINK) == 0 && (DROPEFFECT_MOVE & DROPEFFECT_LINK) == 0);
// Composite values written as numbers elsewhere.
static_assert((RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW) == 261);
static_assert((SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW) == 84);
static_assert(WS_EX_PALETTEWINDOW == 0x188);
static_assert((CS_VREDRAW | CS_HREDRAW | CS_SAVEBITS | CS_BYTEALIGNCLIENT) == 6147);
static_assert(SIF_ALL == 0x17);
static_assert(LVN_ITEMCHANGED == -101);
static_assert(ID_FILE_PRINT == 57607 && ID_EDIT_CLEAR == 57632 && ID_EDIT_REDO == 57644);
