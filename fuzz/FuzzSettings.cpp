// The steps that change how the zone is set up, and its blocks and
// bookmarks.
#include <memory>
#include <string>

#include "ZoneFuzzer.h"
#include "editor/Editor.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessFonts.h"
#include "platform/headless/HeadlessPlatform.h"
#include "textzone/TextZone.h"

void CZoneFuzzer::StepSettings(CByteReader& in, int nOp) {
    switch (nOp) {
        case 0:
        case 1: {
            static const DWORD kBits[] = {ZS_AUTOINDENT, ZS_PARAGRAPH, ZS_WORDBREAK,
                                          ZS_SELTOEDGE,  ZS_FREECARET, ZS_CUTLONGLINES};
            DWORD style = m_zone.GetStyle() ^ kBits[in.Below(6)];
            Trace("SetStyle %lu", static_cast<unsigned long>(style));
            const bool wrapChanged = ((style ^ m_zone.GetStyle()) & ZS_PARAGRAPH) != 0;
            m_zone.SetStyle(style);
            if (wrapChanged) Rebase();  // switching wrap forgets the history
            break;
        }
        case 2: {
            int readOnly = in.Below(4) == 0;
            Trace("SetReadOnly %d", readOnly);
            m_zone.SetReadOnly(readOnly);
            break;
        }
        case 3: {
            static const int kTabs[] = {30, -4, 0, 7, -1, 1, 13, -3, 64};
            int width = kTabs[in.Below(9)];
            Trace("SetTabWidth %d", width);
            m_zone.SetTabWidth(width);
            Rebase();  // a new tab step forgets the history
            break;
        }
        case 4: {
            static const int kHeights[] = {16, 7, 9, 2, 23, 13};
            int pick = in.Below(6);
            LOGFONTA lf = CHeadlessFonts::MakeFont(
                pick == 5 ? CHeadlessFonts::kProportionalFace : CHeadlessFonts::kFixedFace,
                kHeights[pick]);
            Trace("SetFont %d", pick);
            // The zone keeps the handle: every font lives to the end of the run.
            m_fonts.push_back(std::make_unique<CFont>());
            m_fonts.back()->CreateFontIndirect(&lf);
            m_editor.SetFont(m_fonts.back().get(), in.Flag());
            break;
        }
        case 5: {
            static const LONG kMax[] = {0, 1, 10, 40, 200, 65600};
            LONG max = in.Flag() ? kMax[in.Below(6)] : in.Position(100);
            Trace("SetMaxLength %ld", static_cast<long>(max));
            m_zone.SetMaxLength(max);
            break;
        }
        case 6: {
            int w = in.Below(8) == 0 ? in.Below(3) : 20 + in.Below(500);
            int h = in.Below(8) == 0 ? in.Below(3) : 10 + in.Below(400);
            Trace("resize %d x %d", w, h);
            m_editor.MoveWindow(10, 10, w, h);
            break;
        }
        case 7: {
            short mode = static_cast<short>(in.Below(4));
            Trace("SetSelectionMode %d", mode);
            m_zone.SetSelectionMode(mode);
            break;
        }
        default: {
            int what = in.Below(4);
            Trace("editor message %d", what);
            if (what == 0) m_editor.SendMessage(EM_UNDO);
            if (what == 1) m_editor.SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(in.Below(120)));
            if (what == 2) {
                m_editor.SendMessage(EM_EMPTYUNDOBUFFER);
                Rebase();
            }
            if (what == 3) {
                int tab = in.Position(40);
                m_editor.SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&tab));
                Rebase();
            }
            break;
        }
    }
}

void CZoneFuzzer::StepBlocks(CByteReader& in, int nOp) {
    const int n = LineCount();
    switch (nOp) {
        case 0: {
            int first = in.Position(n), count = in.Position(6);
            Trace("SetEditBlock %d %d", first, count);
            m_zone.SetEditBlock(first, count);
            break;
        }
        case 1: {
            Trace("block input");
            m_zone.BeginEditBlockInput();
            for (int i = in.Below(5); i > 0; --i)
                m_zone.AddEditBlockInput(in.Position(n), in.Position(6));
            m_zone.EndEditBlockInput();
            break;
        }
        case 2: {
            int line = in.Position(n), update = in.Flag();
            Trace("Open/CloseBlock %d", line);
            if (in.Flag())
                m_zone.CloseBlock(line, update);
            else
                m_zone.OpenBlock(line, update);
            break;
        }
        case 3: {
            int line = in.Position(n), count = in.Position(6);
            Trace("CreateClosedAltBlock %d %d", line, count);
            m_zone.CreateClosedAltBlock(line, count, in.Flag());
            break;
        }
        case 4: {
            Trace("Collapse/ExpandCurrentSel");
            if (in.Flag())
                m_zone.CollapseCurrentSel();
            else
                m_zone.ExpandCurrentSel();
            break;
        }
        case 5: {
            // A status string as a host might hand back, or garbage.
            VESK::String status;
            if (in.Flag()) m_zone.GetEditorBlockStatus(status);
            std::string junk = in.Text(12);
            for (int i = in.Below(4); i > 0; --i)
                junk += std::to_string(in.Position(n)) + ",";
            if (in.Flag()) status = VESK::String(junk.c_str());
            Trace("SetEditorBlockStatus '%s'", status.c_str());
            m_zone.SetEditorBlockStatus(status);
            break;
        }
        case 6: {
            int line = in.Position(n), bit = in.Position(32), on = in.Flag();
            Trace("bookmark %d bit %d %d", line, bit, on);
            m_zone.SetLineBookmark(line, bit, on);
            m_zone.ToggleBookmark();
            m_zone.GotoNextBookmark(in.Flag());
            break;
        }
        case 7: {
            Trace("SetMarginMode / SetBlockMode");
            m_zone.SetMarginMode(in.Flag());
            m_zone.SetBlockMode(in.Flag());
            m_zone.SetFirstVisiblePosition(in.Position(n), in.Position(20));
            break;
        }
        default: {
            Trace("SetNoBlockFlag");
            m_zone.SetNoBlockFlag(in.Flag());
            break;
        }
    }
}
