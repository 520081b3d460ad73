#include "EngineSpeedBench.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "EngineDoc.h"
#include "SqlText.h"
#include "platform/DC.h"
#include "textzone/TextZone.h"

namespace {

using namespace bench;

// Inserting and removing a line near the top, as the middle-line task does.
void BM_InsertRemoveLineTop(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const int length = doc.LineLength(kTopLine);
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            doc.PlaceCaret(kTopLine, 0);
            Edit(doc.zone, 6, kInsertedLine);
            doc.zone.SetSelection(kTopLine, kTopLine + 1, 0, 0, 0, 0);
            Edit(doc.zone, 4, nullptr);
        }));
    }
    if (doc.zone.GetLineCount() != nLines || doc.LineLength(kTopLine) != length)
        state.SkipWithError("the text changed");
}

// Pasting 1000 lines in the middle, one undo operation (the paste
// measured, taking them out again not).
void BM_Paste1000(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const int mid = MiddleLine(nLines);
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += kInsertedLine;
    for (auto _ : state) {
        doc.PlaceCaret(mid, 0);
        state.SetIterationTime(Seconds([&] { Edit(doc.zone, 6, text.c_str()); }));
        doc.zone.SetSelection(mid, mid + 1000, 0, 0, 0, 0);
        Edit(doc.zone, 4, nullptr);
    }
    if (doc.zone.GetLineCount() != nLines) state.SkipWithError("the line count changed");
}

// Find near the end as in the common task list, with case folded.
void BM_FindNoCase(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    std::string word = kNeedle;
    for (char& c : word)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
    for (auto _ : state) {
        doc.PlaceCaret(0, 0);
        int found = 0;
        state.SetIterationTime(
            Seconds([&] { found = doc.zone.FindTextFromCurrentPos(word.c_str(), 1, 0); }));
        if (!found || doc.zone.m_nSelStartLine != FindLine(nLines)) {
            state.SkipWithError("the word was not found on its line");
            break;
        }
    }
}

// Hides lines 1 to 5 behind every 100th line (its head marked closed), as
// closed blocks do, or shows them again.
void HideRanges(CTextZone& zone, bool bHide) {
    const int n = zone.GetLineCount();
    for (int head = 0; head + 6 < n; head += 100) {
        CStringEx* pHead = zone.GetLine(head);
        pHead->m_dwBlockFlags = bHide ? 2u : 0u;
        for (int k = 1; k <= 5; ++k)
            zone.GetLine(head + k)->m_dwBlockFlags = bHide ? 4u : 0u;
    }
}

// One full paint of the window scrolled near the end of the text, with
// ZS_VARHEIGHT and a hidden range every 100 lines (100k at 10M lines). The
// hidden flags are set on the lines as closing blocks sets them: making
// 100k blocks through the block lists would cost minutes of setup.
void BM_HiddenFrame(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const DWORD dwStyle = doc.zone.GetStyle();
    doc.zone.SetStyle(dwStyle | ZS_VARHEIGHT);
    HideRanges(doc.zone, true);
    doc.zone.UpdateVScrollBar();
    doc.zone.SetFirstVisiblePosition(nLines - 200, 0);
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            CDC* pDC = doc.wnd.GetDC();
            doc.zone.HandlePaint(pDC);
            doc.wnd.ReleaseDC(pDC);
        }));
    }
    HideRanges(doc.zone, false);
    doc.zone.SetStyle(dwStyle);
    doc.zone.SetFirstVisiblePosition(0, 0);
}

// Closed blocks restored from the status string a host saved: as many as the
// string can hold (65535), five lines each, spread over the text. Each
// CloseBlock finds its block by a walk along the block list, so one restore
// is all a run can afford.
void BM_RestoreBlocks(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    CTextZone& zone = doc.zone;
    const int nBlocks = 65535;
    const int step = std::max(7, nLines / nBlocks);
    std::string heads;
    int nMade = 0;
    // Last first, so that each new block goes to the front of the input list.
    zone.BeginEditBlockInput();
    for (int head = (nBlocks - 1) * step; head >= 0; head -= step) {
        if (head + 6 >= nLines) continue;
        zone.AddEditBlockInput(head, 6);
        ++nMade;
    }
    zone.EndEditBlockInput();
    for (int k = 0, head = 0; k < nMade; ++k, head += step) {
        char field[8];
        std::snprintf(field, sizeof field, "%06X", static_cast<unsigned>(head));
        heads += field;
    }
    int nSize = 0;
    int nHash = 0;
    zone.GetTextCRCValues(&nSize, &nHash);
    char header[32];
    std::snprintf(header, sizeof header, "%08X%08X%04X%04X", static_cast<unsigned>(nSize),
                  static_cast<unsigned>(nHash), static_cast<unsigned>(nMade), 0u);
    VESK::String status = (std::string(header) + heads).c_str();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] { zone.SetEditorBlockStatus(status); }));
        CStringEx* pHidden = zone.GetLine(1);
        if (!pHidden || !(pHidden->m_dwBlockFlags & 4)) {
            state.SkipWithError("the blocks were not closed");
            break;
        }
    }
    // One restore only (see RegisterSpeedBench): the blocks go with the flags.
    zone.FreeAllEditBlocks();
}

}  // namespace

void RegisterSpeedBench() {
    for (int size : {kSmall, kLarge, kHuge}) {
        auto* b =
            benchmark::RegisterBenchmark("InsertRemoveLineTop/Textzone", BM_InsertRemoveLineTop)
                ->Arg(size)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        if (size == kHuge) b->Iterations(10);
    }
    for (int size : {kSmall, kLarge, kHuge}) {
        auto* b = benchmark::RegisterBenchmark("Paste1000/Textzone", BM_Paste1000)
                      ->Arg(size)
                      ->UseManualTime()
                      ->Unit(benchmark::kMillisecond);
        if (size == kHuge) b->Iterations(10);
    }
    for (int size : {kSmall, kLarge, kHuge}) {
        auto* b = benchmark::RegisterBenchmark("FindNoCase/Textzone", BM_FindNoCase)
                      ->Arg(size)
                      ->UseManualTime()
                      ->Unit(benchmark::kMillisecond);
        if (size == kHuge) b->Iterations(3);
    }
    for (int size : {kSmall, kLarge, kHuge}) {
        auto* b = benchmark::RegisterBenchmark("HiddenFrame/Textzone", BM_HiddenFrame)
                      ->Arg(size)
                      ->UseManualTime()
                      ->Unit(benchmark::kMillisecond);
        if (size == kHuge) b->Iterations(20);
    }
    for (int size : {kSmall, kLarge, kHuge})
        benchmark::RegisterBenchmark("RestoreBlocks/Textzone", BM_RestoreBlocks)
            ->Arg(size)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
}
