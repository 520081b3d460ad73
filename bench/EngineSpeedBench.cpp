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

// A block of six lines on every 100th line (100k at 10M lines), made as the
// language code reports them, in order of first line.
int AddBlocks(CTextZone& zone, int step, int nMax) {
    const int n = zone.GetLineCount();
    int nMade = 0;
    zone.BeginEditBlockInput();
    for (int head = 0; head + 6 < n && nMade < nMax; head += step, ++nMade)
        zone.AddEditBlockInput(head, 6);
    zone.EndEditBlockInput();
    return nMade;
}

// One full paint of the window scrolled near the end of the text, with
// ZS_VARHEIGHT and a closed block every 100 lines (100k at 10M lines).
void BM_HiddenFrame(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const DWORD dwStyle = doc.zone.GetStyle();
    doc.zone.SetStyle(dwStyle | ZS_VARHEIGHT);
    const int nBlocks = AddBlocks(doc.zone, 100, nLines);
    for (int k = 0; k < nBlocks; ++k)
        doc.zone.CloseBlock(k * 100, 0);
    doc.zone.UpdateVScrollBar();
    doc.zone.SetFirstVisiblePosition(nLines - 200, 0);
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            CDC* pDC = doc.wnd.GetDC();
            doc.zone.HandlePaint(pDC);
            doc.wnd.ReleaseDC(pDC);
        }));
    }
    doc.zone.FreeAllEditBlocks();
    doc.zone.SetStyle(dwStyle);
    doc.zone.SetFirstVisiblePosition(0, 0);
}

// Closed blocks restored from the status string a host saved, as many as its
// two four-digit counts allow: 65535 blocks of the language (six lines) and
// 65535 alternate blocks (six lines) between them, spread over the text.
// The blocks are opened again, unmeasured, between runs.
void BM_RestoreBlocks(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    CTextZone& zone = doc.zone;
    const int nMax = 65535;
    const int step = std::max(14, nLines / nMax);
    const int nMade = AddBlocks(zone, step, nMax);
    std::string heads;
    std::string alternates;
    int nAlternate = 0;
    char field[16];
    for (int k = 0; k < nMade; ++k) {
        std::snprintf(field, sizeof field, "%06X", static_cast<unsigned>(k * step));
        heads += field;
        const int alt = k * step + step / 2;
        if (alt + 6 >= nLines) continue;
        std::snprintf(field, sizeof field, "%06X%06X", static_cast<unsigned>(alt), 6u);
        alternates += field;
        ++nAlternate;
    }
    int nSize = 0;
    int nHash = 0;
    zone.GetTextCRCValues(&nSize, &nHash);
    char header[32];
    std::snprintf(header, sizeof header, "%08X%08X%04X%04X", static_cast<unsigned>(nSize),
                  static_cast<unsigned>(nHash), static_cast<unsigned>(nMade),
                  static_cast<unsigned>(nAlternate));
    VESK::String status = (std::string(header) + heads + alternates).c_str();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] { zone.SetEditorBlockStatus(status); }));
        CStringEx* pHidden = zone.GetLine(1);
        CStringEx* pAltHidden = zone.GetLine(step / 2 + 1);
        if (!pHidden || !(pHidden->m_dwBlockFlags & 4) || !pAltHidden ||
            !(pAltHidden->m_dwBlockFlags & 4)) {
            state.SkipWithError("the blocks were not closed");
            break;
        }
        for (int k = 0; k < nMade; ++k) {
            zone.OpenBlock(k * step + step / 2, 0);
            zone.OpenBlock(k * step, 0);
        }
    }
    state.counters["blocks"] = nMade + nAlternate;
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
    for (int size : {kSmall, kLarge, kHuge}) {
        auto* b = benchmark::RegisterBenchmark("RestoreBlocks/Textzone", BM_RestoreBlocks)
                      ->Arg(size)
                      ->UseManualTime()
                      ->Unit(benchmark::kMillisecond);
        if (size == kHuge) b->Iterations(5);
    }
}
