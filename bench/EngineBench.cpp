// The engine on its own, headless: loading, reading out, editing, typing,
// undo and find on generated SQL text, and the line split with memchr that
// bounds any load from below. Painting is measured with the peers, through
// the Qt backend, since the headless backend only records what it is asked
// to draw.
//   bench_engine [Google Benchmark flags]
//   bench_engine --memory LINES     peak memory of a load, as one JSON line
//   bench_engine --write-sql LINES FILE   the SQL text as a file (for the demo)
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "EngineDoc.h"
#include "EngineSpeedBench.h"
#include "ReplaceBench.h"
#include "SqlText.h"
#include "platform/headless/HeadlessPlatform.h"
#include "textzone/TextZone.h"

namespace {

using namespace bench;

void BM_Split(benchmark::State& state) {
    const std::string& text = Text(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const char* p = text.data();
        const char* end = p + text.size();
        long lines = 0;
        while (const void* q = std::memchr(p, '\n', static_cast<size_t>(end - p))) {
            p = static_cast<const char*>(q) + 1;
            ++lines;
        }
        benchmark::DoNotOptimize(lines);
    }
}

void BM_Load(benchmark::State& state) {
    const std::string& text = Text(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto doc = std::make_unique<EngineDoc>();
        state.SetIterationTime(Seconds([&] { doc->zone.SetText(text.c_str()); }));
    }
}

void BM_GetText(benchmark::State& state) {
    EngineDoc& doc = LoadedDoc(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::string out;
        state.SetIterationTime(Seconds([&] {
            out.resize(static_cast<size_t>(doc.zone.GetTextLength(TF_LF)) + 2);
            doc.zone.GetText(out.data(), static_cast<LONG>(out.size()), TF_LF);
        }));
        benchmark::DoNotOptimize(out.data());
    }
}

void BM_InsertRemoveLine(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const int mid = bench::MiddleLine(nLines);
    const int length = doc.LineLength(mid);
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            doc.PlaceCaret(mid, 0);
            Edit(doc.zone, 6, bench::kInsertedLine);
            doc.zone.SetSelection(mid, mid + 1, 0, 0, 0, 0);
            Edit(doc.zone, 4, nullptr);
        }));
    }
    if (doc.zone.GetLineCount() != nLines || doc.LineLength(mid) != length)
        state.SkipWithError("the text changed");
}

// Typing through the key handler, or (kKeys false) each character inserted
// as its own edit, which is what the handler comes down to for a letter.
template <bool kKeys>
void TypeAll(EngineDoc& doc) {
    for (int i = 0; i < 100; ++i) {
        if constexpr (kKeys) {
            doc.zone.HandleChar(static_cast<unsigned char>(bench::kTyped[i]), 1, 0);
        } else {
            const char text[2] = {bench::kTyped[i], 0};
            Edit(doc.zone, 1, text);
        }
    }
}

template <bool kKeys>
const char* NotTyped() {
    return kKeys ? "HandleChar did not type the characters" : "the characters were not inserted";
}

// Undoes until the line is back to its length; false when undo cannot.
bool UndoTyping(EngineDoc& doc, int nLine, int nLength) {
    for (int n = 0; n < 200 && doc.LineLength(nLine) != nLength; ++n) {
        if (doc.zone.GetUndoType() == 0) return false;
        doc.zone.Undo();
    }
    return doc.LineLength(nLine) == nLength;
}

template <bool kKeys>
void BM_Type(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const int mid = bench::MiddleLine(nLines);
    const int length = doc.LineLength(mid);
    for (auto _ : state) {
        doc.PlaceCaret(mid, 0);
        state.SetIterationTime(Seconds([&] { TypeAll<kKeys>(doc); }));
        if (doc.LineLength(mid) != length + 100) {
            state.SkipWithError(NotTyped<kKeys>());
            break;
        }
        if (!UndoTyping(doc, mid, length)) {
            state.SkipWithError("undo did not take the typing back");
            break;
        }
    }
}

template <bool kKeys>
void BM_Undo(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    const int mid = bench::MiddleLine(nLines);
    const int length = doc.LineLength(mid);
    for (auto _ : state) {
        doc.PlaceCaret(mid, 0);
        TypeAll<kKeys>(doc);
        if (doc.LineLength(mid) != length + 100) {
            state.SkipWithError(NotTyped<kKeys>());
            break;
        }
        bool undone = false;
        state.SetIterationTime(Seconds([&] { undone = UndoTyping(doc, mid, length); }));
        if (!undone) {
            state.SkipWithError("undo did not take the typing back");
            break;
        }
    }
}

void BM_Find(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    for (auto _ : state) {
        doc.PlaceCaret(0, 0);
        int found = 0;
        state.SetIterationTime(
            Seconds([&] { found = doc.zone.FindTextFromCurrentPos(bench::kNeedle, 1, 1); }));
        if (!found || doc.zone.m_nSelStartLine != bench::FindLine(nLines)) {
            state.SkipWithError("the word was not found on its line");
            break;
        }
    }
}

// Sizes in the order the cached text and zone are reused: all tasks of one
// size before the next. Where each measured step needs an unmeasured one as
// long (typing before undo, undo after typing), the iterations are fixed at
// 1M lines and up, or the run would spend minutes outside the figures; the
// 10M-line runs take fixed, few iterations throughout.
void Register() {
    struct Task {
        const char* name;
        void (*fn)(benchmark::State&);
        bool manual;
        int largeIterations;  // 0: as many as Google Benchmark picks
        int hugeIterations;
    };
    const Task tasks[] = {
        {"Split/memchr", BM_Split, false, 0, 5},
        {"Load/Textzone", BM_Load, true, 0, 2},
        {"GetText/Textzone", BM_GetText, true, 0, 3},
        {"InsertRemoveLine/Textzone", BM_InsertRemoveLine, true, 0, 10},
        {"Type/Textzone", BM_Type<true>, true, 0, 20},
        {"Undo/Textzone", BM_Undo<true>, true, 0, 20},
        {"TypeApi/Textzone", BM_Type<false>, true, 3, 2},
        {"UndoApi/Textzone", BM_Undo<false>, true, 3, 2},
        {"Find/Textzone", BM_Find, true, 0, 3},
    };
    for (int size : {bench::kSmall, bench::kLarge, bench::kHuge}) {
        for (const Task& task : tasks) {
            auto* b = benchmark::RegisterBenchmark(task.name, task.fn)->Arg(size);
            b->Unit(benchmark::kMillisecond);
            if (task.manual) b->UseManualTime();
            if (size == bench::kHuge)
                b->Iterations(task.hugeIterations);
            else if (size == bench::kLarge && task.largeIterations > 0)
                b->Iterations(task.largeIterations);
        }
    }
}

// One load in a fresh process: the high-water mark of the resident set over
// the load, less what was resident before it (the source text included),
// per line.
int MeasureMemory(int nLines) {
    const std::string text = bench::MakeSqlText(nLines);
    const bool reset = bench::ResetPeak();
    const bench::MemoryFigures before = bench::ReadMemory();
    EngineDoc doc;
    doc.zone.SetText(text.c_str());
    const bench::MemoryFigures after = bench::ReadMemory();
    const double peak = static_cast<double>(after.peak - (reset ? before.rss : before.peak));
    const double resident = static_cast<double>(after.rss) - static_cast<double>(before.rss);
    std::printf(
        "{\"component\": \"Textzone\", \"lines\": %d, \"peak_bytes_per_line\": %.1f, "
        "\"resident_bytes_per_line\": %.1f, \"peak_reset\": %s}\n",
        nLines, peak / nLines, resident / nLines, reset ? "true" : "false");
    return 0;
}

// The bench's SQL text as a file, for timing the demo's open.
int WriteSql(int nLines, const char* pszPath) {
    const std::string text = bench::MakeSqlText(nLines);
    std::FILE* f = std::fopen(pszPath, "wb");
    if (!f) return 1;
    const bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size();
    return std::fclose(f) == 0 && ok ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    CHeadlessPlatform platform;
    if (argc == 3 && std::strcmp(argv[1], "--memory") == 0)
        return MeasureMemory(std::atoi(argv[2]));
    if (argc == 4 && std::strcmp(argv[1], "--write-sql") == 0)
        return WriteSql(std::atoi(argv[2]), argv[3]);
    Register();
    RegisterSpeedBench();
    RegisterReplaceBench();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    // Its window must go before the platform's statics do at exit.
    LoadedDocSlot().reset();
    return 0;
}
