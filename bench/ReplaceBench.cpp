#include "ReplaceBench.h"

#include <benchmark/benchmark.h>

#include <string>

#include "EngineDoc.h"
#include "editor/EditFindReplace.h"

namespace {

using namespace bench;

// The bench text writes its keywords in capitals: three lines in eight hold
// "WHERE" (375,000 matches at 1M lines), a replacement of another length.
constexpr const char* kFrom = "WHERE";
constexpr const char* kTo = "where";

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

std::string Replaced(const std::string& text, int* pnCount) {
    std::string out;
    out.reserve(text.size());
    const std::string from = kFrom;
    size_t at = 0;
    *pnCount = 0;
    for (size_t next; (next = text.find(from, at)) != std::string::npos; at = next + from.size()) {
        out.append(text, at, next - at);
        out += kTo;
        ++*pnCount;
    }
    out.append(text, at, std::string::npos);
    return out;
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
    const std::string expected = Replaced(original, &nMatches);
    for (auto _ : state) {
        doc.PlaceCaret(0, 0);
        double replace = Seconds([&] { target.OnReplaceAll(kFrom, kTo, 1); });
        if (ZoneText(doc.zone) != expected) {
            state.SkipWithError("replace all left the wrong text");
            break;
        }
        double undo = Seconds([&] { doc.zone.Undo(); });
        if (ZoneText(doc.zone) != original) {
            state.SkipWithError("undo did not restore the text");
            break;
        }
        state.SetIterationTime(bUndo ? undo : replace);
    }
    state.counters["matches"] = nMatches;
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
