// Printing to PDF on the Qt backend, without a printer: the bench's SQL text
// through the editor's print path (the extended control, its page walk, the
// print loop) and through QPlainTextEdit::print, both at 300 dpi on A4 in
// a 15-pixel fixed font, as pages per second. The PDF is checked to have
// pages, outside the timing.
//   bench_print_qt [Google Benchmark flags]
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QTemporaryDir>
#include <cstring>
#include <memory>

#include "QtBenchWidgets.h"
#include "QtBenchMain.h"
#include "SqlText.h"
#include "editor/EditorEx.h"
#include "host/AppDataManager.h"
#include "host/MemoryAppDataManager.h"
#include "platform/Messages.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtPrinterDC.h"
#include "zones/TextZoneParam.h"

namespace {

using bench::Seconds;

// The PDF's page count, from its page objects.
int CountPages(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return 0;
    const QByteArray bytes = file.readAll();
    return static_cast<int>(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") +
                            bytes.count("/Type /Page>>") + bytes.count("/Type /Page /"));
}

void BM_PrintTextzone(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    CMemoryAppDataManager store;
    store.WriteInt("Editor", "FontSize", bench::kFontPixels);
    store.WriteString("Editor", "FontName", "DejaVu Sans Mono");
    AppDataManager::InstallAppDataManager(&store);
    QTemporaryDir dir;
    const std::string path = dir.filePath("textzone.pdf").toStdString();
    int nPages = 0;
    {
        CWnd host;
        CEditorEx editor;
        host.Create(0, RECT{0, 0, 800, 600}, nullptr, 0);
        editor.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 800, 600}, &host, 1);
        editor.GetTextZone()->SetText(bench::MakeSqlText(nLines).c_str());
        for (auto _ : state) {
            CPrintInfo info;
            info.m_bDirect = TRUE;
            info.m_pd.strOutputFile = path;
            BOOL bDone = FALSE;
            state.SetIterationTime(Seconds([&] { bDone = editor.PrintTo(info); }));
            nPages = CountPages(QString::fromStdString(path));
            if (!bDone || nPages < 1) {
                state.SkipWithError("no PDF came out");
                break;
            }
        }
        editor.DestroyWindow();
        host.DestroyWindow();
    }
    AppDataManager::InstallAppDataManager(nullptr);
    state.counters["pages"] = nPages;
    state.counters["pages_per_s"] =
        benchmark::Counter(nPages * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate);
}

void BM_PrintPlainTextEdit(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    QPlainTextEdit edit;
    edit.setFont(bench::EditorFont());
    edit.setLineWrapMode(QPlainTextEdit::NoWrap);
    const std::string text = bench::MakeSqlText(nLines);
    edit.setPlainText(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
    QTemporaryDir dir;
    const QString path = dir.filePath("plain.pdf");
    int nPages = 0;
    for (auto _ : state) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setResolution(CQtPrinterDC::kPdfResolution);
        state.SetIterationTime(Seconds([&] { edit.print(&printer); }));
        nPages = CountPages(path);
        if (nPages < 1) {
            state.SkipWithError("no PDF came out");
            break;
        }
    }
    state.counters["pages"] = nPages;
    state.counters["pages_per_s"] =
        benchmark::Counter(nPages * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate);
}

void Register() {
    for (int size : {bench::kSmall, bench::kLarge}) {
        using Task = std::pair<const char*, void (*)(benchmark::State&)>;
        for (auto [name, fn] : {Task{"PrintPdf/Textzone", BM_PrintTextzone},
                                Task{"PrintPdf/QPlainTextEdit", BM_PrintPlainTextEdit}}) {
            auto* b = benchmark::RegisterBenchmark(name, fn)
                          ->Arg(size)
                          ->UseManualTime()
                          ->Unit(benchmark::kMillisecond);
            if (size >= bench::kLarge) b->Iterations(1);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    return bench::RunQtBenchmarks(argc, argv, Register);
}
