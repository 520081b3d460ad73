#include "ZoneFuzzer.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

#include "editor/Editor.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessFonts.h"
#include "platform/headless/HeadlessPlatform.h"
#include "textzone/TextZone.h"

int CZoneFuzzer::s_nTrace = 0;

namespace {

// A parent that hands the control its font and never closes.
class CParentWnd : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(m_hFont);
        if (message == WM_CLOSE) return 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    HFONT m_hFont = nullptr;
};

// Fonts of odd sizes, fixed and proportional: byte widths of 1 to 11 pixels
// make tab steps that are no whole number of bytes.
struct FontSet {
    FontSet() {
        static const int kHeights[] = {16, 7, 9, 2, 23};
        for (int i = 0; i < 5; ++i) {
            LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, kHeights[i]);
            fonts[i].CreateFontIndirect(&lf);
        }
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 13);
        fonts[5].CreateFontIndirect(&lf);
    }
    CFont fonts[6];
};

}  // namespace

long CZoneFuzzer::Run(const std::uint8_t* pData, std::size_t nSize) {
    CHeadlessPlatform platform;
    FontSet fonts;
    CParentWnd parent;
    parent.m_hFont = fonts.fonts[0];
    parent.Create(WS_VISIBLE, RECT{0, 0, 640, 480}, nullptr, 0);
    long nOps = 0;
    {
        CEditor editor;
        editor.Create(WS_VISIBLE | WS_CHILD | WS_VSCROLL | WS_HSCROLL, RECT{10, 10, 410, 310},
                      &parent, 77);
        editor.SendMessage(WM_SETFOCUS);
        CZoneFuzzer fuzzer(platform, editor);
        CByteReader in(pData, nSize);
        fuzzer.CheckInvariants();
        while (!in.AtEnd()) {
            fuzzer.Step(in);
            fuzzer.CheckInvariants();
            ++nOps;
        }
        fuzzer.CheckHistory();
        editor.DestroyWindow();
    }
    parent.DestroyWindow();
    return nOps;
}

CZoneFuzzer::CZoneFuzzer(CHeadlessPlatform& platform, CEditor& editor)
    : m_platform(platform), m_editor(editor), m_zone(*editor.GetZone()) {
    editor.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
    m_strBase = Text();
}

void CZoneFuzzer::Trace(const char* pszFormat, ...) {
    char buffer[256];
    va_list args;
    va_start(args, pszFormat);
    std::vsnprintf(buffer, sizeof buffer, pszFormat, args);
    va_end(args);
    m_strLastOp = buffer;
    if (s_nTrace > 0) std::fprintf(stderr, "op: %s\n", buffer);
}

void CZoneFuzzer::Rebase() {
    m_strBase = Text();
    m_bBaseValid = true;
}

void CZoneFuzzer::Step(CByteReader& in) {
    const int op = in.Below(40);
    if (op < 12)
        StepText(in, op);
    else if (op < 24)
        StepInput(in, op - 12);
    else if (op < 33)
        StepSettings(in, op - 24);
    else
        StepBlocks(in, op - 33);
    m_platform.PumpMessages(20);
}

// Text, selection, undo, find and case.
void CZoneFuzzer::StepText(CByteReader& in, int nOp) {
    const int n = LineCount();
    switch (nOp) {
        case 0: {
            std::string text = in.Text(in.Flag() ? 12 : 60);
            Trace("SetText %zu bytes", text.size());
            m_zone.SetText(text.c_str());
            Rebase();
            break;
        }
        case 1:
        case 2: {
            int l1 = in.Position(n), l2 = in.Position(n), c1 = in.Position(12),
                c2 = in.Position(12);
            short mode = static_cast<short>(in.Below(3));
            Trace("SetSelection %d %d %d %d mode %d", l1, l2, c1, c2, mode);
            m_zone.SetSelection(l1, l2, c1, c2, mode, in.Flag());
            break;
        }
        case 3: {
            std::string text = in.Text(16);
            int select = in.Flag(), scroll = in.Flag(), horizontal = in.Flag();
            Trace("InsertText '%s' %d", Shown(text).c_str(), select);
            m_zone.SetModify(1);
            m_zone.StartRegister(6);
            m_zone.InsertText(text.c_str(), select, scroll, horizontal);
            m_zone.EndRegister();
            break;
        }
        case 4:
            Trace("DeleteSelection");
            m_zone.SetModify(1);
            m_zone.StartRegister(4);
            m_zone.DeleteSelection(in.Flag());
            m_zone.EndRegister();
            break;
        case 5: {
            int count = 1 + in.Below(6);
            Trace("Undo x%d", count);
            for (int i = 0; i < count; ++i)
                m_zone.Undo();
            break;
        }
        case 6: {
            int count = 1 + in.Below(6);
            Trace("Redo x%d", count);
            for (int i = 0; i < count; ++i)
                m_zone.Redo();
            break;
        }
        case 7: {
            std::string what = in.Text(4);
            int forward = in.Flag(), matchCase = in.Flag();
            Trace("Find '%s'", what.c_str());
            m_zone.FindTextFromCurrentPos(what.c_str(), forward, matchCase);
            m_zone.SameAsSelected(what.c_str(), matchCase);
            break;
        }
        case 8: {
            int lower = in.Flag();
            Trace("MakeUpperOrLower %d", lower);
            m_zone.MakeUpperOrLower(lower);
            break;
        }
        case 9: {
            // Reading never changes anything; it only has to stay in bounds.
            Trace("read out");
            std::vector<char> buffer(static_cast<std::size_t>(in.Below(40)) + 1);
            m_zone.GetSelectedText(buffer.data(), static_cast<LONG>(buffer.size()), in.Below(64));
            m_zone.GetPartOfText(buffer.data(), static_cast<LONG>(buffer.size()), in.Position(n),
                                 in.Position(n), in.Position(9), in.Position(9),
                                 static_cast<WORD>(in.Below(3)), static_cast<WORD>(in.Below(64)));
            m_zone.LineIndex(in.Position(n));
            m_zone.LineFromChar(in.Position(200), static_cast<WORD>(in.Below(3)));
            m_zone.GetSelectedTextLength(static_cast<WORD>(in.Below(64)));
            m_zone.GetLineTopPos(in.Position(n));
            int size, hash;
            m_zone.GetTextCRCValues(&size, &hash);
            break;
        }
        case 10: {
            int from = in.Position(200), to = in.Position(200);
            Trace("EM_SETSEL %d %d, EM_REPLACESEL", from, to);
            m_editor.SendMessage(EM_SETSEL, static_cast<WPARAM>(from), to);
            std::string text = in.Text(8);
            m_editor.SendMessage(EM_REPLACESEL, 0, reinterpret_cast<LPARAM>(text.c_str()));
            // A host's replacement is no step of the history: the history
            // goes, and undo all leads back to the text as it is now.
            if (!m_zone.m_undoList.empty() || !m_zone.m_redoList.empty())
                Fail("a host's replacement left a history behind");
            Rebase();
            break;
        }
        default: {
            std::string text = in.Text(in.Flag() ? 8 : 60);
            Trace("WM_SETTEXT %zu bytes", text.size());
            m_editor.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
            Rebase();
            break;
        }
    }
}

// Keys, typing, clipboard, mouse, drag and drop, painting, scrolling.
void CZoneFuzzer::StepInput(CByteReader& in, int nOp) {
    switch (nOp) {
        case 0:
        case 1:
        case 2:
        case 3: {
            static const UINT kKeys[] = {VK_LEFT, VK_RIGHT,    VK_UP,     VK_DOWN, VK_PRIOR,
                                         VK_NEXT, VK_HOME,     VK_END,    VK_BACK, VK_DELETE,
                                         VK_TAB,  VK_RETURN,   VK_ESCAPE, 'U',     VK_MULTIPLY,
                                         VK_ADD,  VK_SUBTRACT, VK_F2,     'A',     'Z',
                                         'Y',     'X',         'C',       'V',     VK_INSERT};
            UINT key = kKeys[in.Below(sizeof kKeys / sizeof kKeys[0])];
            int mods = in.Below(8);
            int repeat = 1 + in.Below(3);
            Trace("key %u mods %d x%d", key, mods, repeat);
            m_platform.SetKeyState(VK_SHIFT, mods & 1);
            m_platform.SetKeyState(VK_CONTROL, mods & 2);
            m_platform.SetKeyState(VK_MENU, mods & 4);
            for (int i = 0; i < repeat; ++i)
                m_editor.SendMessage(WM_KEYDOWN, key, 0);
            m_platform.SetKeyState(VK_SHIFT, false);
            m_platform.SetKeyState(VK_CONTROL, false);
            m_platform.SetKeyState(VK_MENU, false);
            break;
        }
        case 4:
        case 5:
        case 6: {
            static const char kTyped[] = {'a',    ' ', '\t', '\r', '-', '(',
                                          '\xe9', 'Q', '\n', '\b', 27};
            int count = 1 + in.Below(4);
            for (int i = 0; i < count; ++i) {
                char c = in.Flag() ? kTyped[in.Below(sizeof kTyped)] : static_cast<char>(in.Byte());
                Trace("char %d", static_cast<unsigned char>(c));
                m_editor.SendMessage(WM_CHAR, static_cast<unsigned char>(c), 0);
            }
            break;
        }
        case 7: {
            int what = in.Below(4);
            std::string clip = what == 3 ? in.Text(12) : std::string();
            if (what == 3) m_platform.SetClipboardText(clip);
            Trace("clipboard %d '%s'", what, Shown(clip).c_str());
            if (what == 0) m_zone.Cut();
            if (what == 1) m_zone.Copy();
            if (what >= 2) m_zone.Paste();
            break;
        }
        case 8:
        case 9: {
            POINT pt{in.Position(400), in.Position(300)};
            if (in.Flag()) pt = POINT{in.Below(420) - 10, in.Below(320) - 10};
            UINT flags = static_cast<UINT>(in.Below(16)) & (MK_SHIFT | MK_CONTROL | MK_LBUTTON);
            int what = in.Below(5);
            Trace("mouse %d at %ld %ld flags %u", what, static_cast<long>(pt.x),
                  static_cast<long>(pt.y), flags);
            m_platform.SetKeyState(VK_LBUTTON, what != 2);
            if (what == 0) m_zone.HandleLButtonDown(flags, &pt);
            if (what == 1) m_zone.HandleMouseMove(flags | MK_LBUTTON, &pt);
            if (what == 2) m_zone.HandleLButtonUp(flags, &pt);
            if (what == 3) m_zone.HandleLButtonDblClk(flags, &pt);
            m_platform.SetKeyState(VK_LBUTTON, false);
            if (what == 4) {
                std::string text = in.Text(10);
                m_zone.HandleOleDrop(text.c_str(), in.Flag() ? DROPEFFECT_MOVE : DROPEFFECT_COPY,
                                     &pt);
            }
            break;
        }
        case 10: {
            Trace("paint");
            m_editor.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            break;
        }
        default: {
            UINT code = static_cast<UINT>(in.Below(9));
            UINT pos = static_cast<UINT>(in.Position(100));
            Trace("scroll %u %u", code, pos);
            if (in.Flag())
                m_zone.HandleVScroll(code, pos, nullptr);
            else
                m_zone.HandleHScroll(code, pos, nullptr);
            break;
        }
    }
}
