// Syntax colouring, headless: the runs of a screen of dense T-SQL, and the
// start state of the last line of the bench's SQL text from a cold start
// (every cached state dropped), which walks the whole text.
//   bench_colour [Google Benchmark flags]
#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>

#include "EngineDoc.h"
#include "SqlText.h"
#include "colour/TextZoneColor.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "platform/headless/HeadlessFonts.h"
#include "platform/headless/HeadlessPlatform.h"

namespace {

using bench::Seconds;

constexpr int kScreenLines = 60;

class CBenchColorZone : public CTextZoneColor {
public:
    using CTextZoneColor::DefineColors;
    using CTextZoneColor::ResetLastLines;
    using CTextZoneColor::StartWithWhat;
};

// A coloured zone in a headless window, as T-SQL of dialect 90.
struct ColourDoc : bench::ZoneDoc<CBenchColorZone> {
    ColourDoc() { zone.SetSQLSyntaxColor(14); }
};

// Lines of T-SQL as dense as procedures get: keywords of every table,
// variables, globals, strings, bracket names, comments.
const char* const kDenseSql[] = {
    "select @total = sum(o.amount), @n = count(*) from dbo.orders o where o.cust_id = @cust",
    "  and o.status in ('open', 'held') and o.created >= dateadd(day, -30, getdate()) -- recent",
    "if @@error <> 0 or @@rowcount = 0 begin raiserror('no rows for %d', 16, 1, @cust) return end",
    "declare @name nvarchar(128), @id bigint, @when datetime, @flag bit, @note varchar(max)",
    "insert into [audit log] (id, who, at, what) values (@id, suser_sname(), getdate(), N'upd')",
    "update t set t.total = isnull(t.total, 0) + @delta from dbo.totals t where t.id = @id",
    "select case when len(@name) > 10 then upper(left(@name, 10)) else lower(@name) end as nm",
    "/* keep the old rows */ delete from dbo.archive where created < @cutoff and kind <> 'keep'",
    "exec sp_executesql @sql, N'@p int output', @p = @result output; set @n = @n + 1",
    "while @@fetch_status = 0 begin fetch next from cur into @id, @name; set @i = @i + 1 end",
    "select row_number() over (partition by cust_id order by created desc) as rn, * from o",
    "begin try commit transaction end try begin catch rollback; select error_message() end catch",
};

const std::string& DenseText() {
    static const std::string text = [] {
        std::string t;
        for (int n = 0; n < 600; ++n)
            (t += kDenseSql[n % std::size(kDenseSql)]) += '\n';
        return t;
    }();
    return text;
}

// The runs of 60 lines in the middle of dense T-SQL, their states cached
// as they are once the screen has been painted.
void BM_DefineColors(benchmark::State& state) {
    ColourDoc doc;
    doc.zone.SetText(DenseText().c_str());
    const int first = 300;
    doc.zone.StartWithWhat(first + kScreenLines);
    size_t runs = 0;
    for (auto _ : state) {
        runs = 0;
        state.SetIterationTime(Seconds([&] {
            for (int n = first; n < first + kScreenLines; ++n) {
                doc.zone.DefineColors(n, doc.zone.GetLine(n));
                runs += doc.zone.m_colorDefs.size();
                doc.zone.FreeColorDefs();
            }
        }));
    }
    if (runs < 10 * kScreenLines) state.SkipWithError("the lines got too few runs");
}

// The zone of the last size asked for, loaded once.
ColourDoc& LoadedDoc(int nLines) {
    static std::unique_ptr<ColourDoc> doc;
    static int loaded = -1;
    if (loaded != nLines) {
        doc.reset();
        doc = std::make_unique<ColourDoc>();
        doc->zone.SetText(bench::MakeSqlText(nLines).c_str());
        loaded = nLines;
    }
    return *doc;
}

void BM_StartWithWhat(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    ColourDoc& doc = LoadedDoc(nLines);
    const int last = doc.zone.GetLineCount() - 1;
    unsigned int result = 0;
    for (auto _ : state) {
        doc.zone.ResetLastLines(0);
        state.SetIterationTime(Seconds([&] { result = doc.zone.StartWithWhat(last); }));
    }
    if (result != 1 || doc.zone.m_nFirstDirtyLine != last)
        state.SkipWithError("the walk did not reach the last line in plain text");
}

void Register() {
    benchmark::RegisterBenchmark("DefineColors/Textzone", BM_DefineColors)
        ->Arg(bench::kSmall)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
    for (int size : {bench::kSmall, bench::kLarge, bench::kHuge}) {
        auto* b =
            benchmark::RegisterBenchmark("StartWithWhat/Textzone", BM_StartWithWhat)->Arg(size);
        b->Unit(benchmark::kMillisecond)->UseManualTime();
        if (size == bench::kHuge) b->Iterations(3);
    }
}

}  // namespace

int main(int argc, char** argv) {
    CHeadlessPlatform platform;
    Register();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
