#include "ReplaceBench.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <string>

#include "EngineDoc.h"
#include "ReplaceText.h"
#include "editor/EditFindReplace.h"

namespace {

using namespace bench;

using bench::kReplaceFrom;
using bench::kReplaceTo;

// The editor side of the shared logic, over a bench zone.
class CZoneTarget : public IFindReplaceTarget {
public:
    explicit CZoneTarget(EngineDoc& doc) : m_doc(doc) {}
    CTextZone* GetFindZone() override { return &m_doc.zone; }
    CWnd* GetFindWindow() override { return &m_doc.wnd; }
    void OnTextNotFound(const char*) override { ++m_nNotFound; }
    void OnFindReplaceModified() override {}
    int InitializeReplace() override { return CEditFindReplace::Instance().InitializeReplace(*this); }
    void OnFindNext(const char*, int, int) override {}
    void OnReplaceSel(const char*, int, int, const char*) override {}
    void OnReplaceAll(const char* pszFind, const char* pszReplace, int bCase) override {
        CEditFindReplace::Instance().ReplaceAll(*this, pszFind, pszReplace, bCase);
    }
    int m_nNotFound = 0;

private:
    EngineDoc& m_doc;
};

// The processor time of this thread, kernel time included: on a shared
// machine it says what the task cost where the wall clock says how long
// others kept it waiting.
double ThreadSeconds() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

std::string ZoneText(CTextZone& zone) {
    std::string text(static_cast<size_t>(zone.GetTextLength(TF_LF)) + 2, '\0');
    zone.GetText(text.data(), static_cast<LONG>(text.size()), TF_LF);
    text.resize(std::char_traits<char>::length(text.c_str()));
    return text;
}

// Replace all of "WHERE" by "where", case matched, from the top; then the
// one undo, timed on its own. The text is checked after each, untimed.
void BM_ReplaceAll(benchmark::State& state, bool bUndo) {
    const int nLines = static_cast<int>(state.range(0));
    EngineDoc& doc = LoadedDoc(nLines);
    CZoneTarget target(doc);
    const std::string original = ZoneText(doc.zone);
    int nMatches = 0;
    const std::string expected = bench::ReplacedText(original, &nMatches);
    double cpuTotal = 0;
    int runs = 0;
    for (auto _ : state) {
        doc.PlaceCaret(0, 0);
        double cpu = ThreadSeconds();
        double replace = Seconds([&] { target.OnReplaceAll(kReplaceFrom, kReplaceTo, 1); });
        const double replaceCpu = ThreadSeconds() - cpu;
        if (ZoneText(doc.zone) != expected) {
            state.SkipWithError("replace all left the wrong text");
            break;
        }
        cpu = ThreadSeconds();
        double undo = Seconds([&] { doc.zone.Undo(); });
        const double undoCpu = ThreadSeconds() - cpu;
        if (ZoneText(doc.zone) != original) {
            state.SkipWithError("undo did not restore the text");
            break;
        }
        state.SetIterationTime(bUndo ? undo : replace);
        cpuTotal += bUndo ? undoCpu : replaceCpu;
        ++runs;
    }
    state.counters["matches"] = nMatches;
    if (runs > 0) state.counters["cpu_ms"] = cpuTotal / runs * 1e3;
}

}  // namespace

void RegisterReplaceBench() {
    for (int size : {kSmall, kLarge, kHuge}) {
        for (bool bUndo : {false, true}) {
            auto* b = benchmark::RegisterBenchmark(
                          bUndo ? "ReplaceAllUndo/Textzone" : "ReplaceAll/Textzone",
                          [bUndo](benchmark::State& state) { BM_ReplaceAll(state, bUndo); })
                          ->Arg(size)
                          ->UseManualTime()
                          ->Unit(benchmark::kMillisecond);
            if (size >= kLarge) b->Iterations(size == kHuge ? 1 : 3);
        }
    }
}
