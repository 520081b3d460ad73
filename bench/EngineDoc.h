// The engine's side of the benchmarks: a zone in a headless window, the
// generated text of a size, a loaded zone kept between tasks, and an edit as
// a host makes one.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "Seconds.h"
#include "SqlText.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "platform/headless/HeadlessFonts.h"
#include "textzone/TextZone.h"

namespace bench {

// The window every zone lives in: 800 x 600, like the peers' widgets.
constexpr RECT kWindow{0, 0, 800, 600};

// A zone of any kind in a headless window, with a fixed font of 16 pixels.
template <class Zone>
struct ZoneDoc {
    ZoneDoc() {
        wnd.Create(WS_VISIBLE, kWindow, nullptr, 1);
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kFixedFace, 16);
        font.CreateFontIndirect(&lf);
        zone.SetWindow(&wnd);
        RECT client;
        wnd.GetClientRect(&client);
        zone.SetRect(&client);
        zone.SetFont(font);
    }
    ~ZoneDoc() {
        zone.HideCaret();
        wnd.DestroyWindow();
    }
    ZoneDoc(const ZoneDoc&) = delete;
    ZoneDoc& operator=(const ZoneDoc&) = delete;

    int LineLength(int nLine) {
        CStringEx* pLine = zone.GetLine(nLine);
        return pLine ? pLine->GetLength() : -1;
    }
    void PlaceCaret(int nLine, int nChar) { zone.SetSelection(nLine, nLine, nChar, nChar, 0, 0); }

    CWnd wnd;
    CFont font;
    Zone zone;
};

using EngineDoc = ZoneDoc<CTextZone>;

// The text of the last size asked for, made once per size.
inline const std::string& Text(int nLines) {
    static std::string text;
    static int made = -1;
    if (made != nLines) {
        text.clear();
        text.shrink_to_fit();
        text = bench::MakeSqlText(nLines);
        made = nLines;
    }
    return text;
}

// A loaded zone of the size, kept between benchmarks: every task leaves the
// text as it found it, and loading 10M lines each time would cost more than
// the tasks themselves.
// The one loaded document, kept between benchmarks of the same size.
inline std::unique_ptr<EngineDoc>& LoadedDocSlot() {
    static std::unique_ptr<EngineDoc> doc;
    return doc;
}

inline EngineDoc& LoadedDoc(int nLines) {
    std::unique_ptr<EngineDoc>& doc = LoadedDocSlot();
    static int loaded = -1;
    if (!doc || loaded != nLines) {
        doc.reset();
        doc = std::make_unique<EngineDoc>();
        doc->zone.SetText(Text(nLines).c_str());
        loaded = nLines;
    }
    return *doc;
}

// An edit as a host makes one: one undo operation around the change.
inline void Edit(CTextZone& zone, short wKind, const char* pszInsert) {
    zone.SetModify(1);
    zone.StartRegister(wKind);
    if (pszInsert)
        zone.InsertText(pszInsert, 0, 1, 1);
    else
        zone.DeleteSelection(1);
    zone.EndRegister();
}

}  // namespace bench
