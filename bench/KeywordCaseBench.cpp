// Keyword case on the Qt backend: coloured T-SQL (dialect 90) in a
// CQtEditorWidget of 800 x 600 on Qt's offscreen platform, keyword mode 1
// (upper case).
//   - one key of "select " typed in the middle of the text, through Qt key
//     events, the conversion and the repaint included;
//   - a quote typed in the middle (it sets the rescan mark) and Down, which
//     leaves the line and so analyses every line from there to the end.
//   bench_keycase_qt [Google Benchmark flags]
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <cstring>
#include <memory>
#include <string>

#include "QtBenchWidgets.h"
#include "QtBenchMain.h"
#include "SqlText.h"
#include "editor/qt/QtEditorWidget.h"
#include "platform/qt/QtPlatform.h"
#include "zones/TextZoneParam.h"

namespace {

using bench::kFontPixels;
using bench::kHeight;
using bench::kWidth;
using bench::Seconds;
using bench::Settle;

constexpr unsigned int kTransactSql90 = 14;

void SendKey(QWidget* pWidget, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(pWidget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(pWidget, &release);
}

class KeywordEditor {
public:
    explicit KeywordEditor(int nLines) : m_widget(nullptr, WS_VSCROLL | WS_HSCROLL, &m_zone) {
        LOGFONTA lf{};
        lf.lfHeight = -kFontPixels;
        lf.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
        std::strcpy(lf.lfFaceName, "DejaVu Sans Mono");
        m_widget.SetEditorFont(lf);
        m_zone.SetSQLSyntaxColor(kTransactSql90);
        m_zone.SetKeywordMode(KM_UPPER, 0);
        m_widget.resize(kWidth, kHeight);
        m_widget.show();
        m_widget.Editor().SetWindowTextA(bench::MakeSqlText(nLines).c_str());
        m_nLines = nLines;
        Settle();
    }
    QWidget* Window() { return CQtPlatform::WidgetOf(&m_widget.Editor()); }
    void Place(int nLine, int nChar) {
        m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 0);
        m_zone.SetFirstVisiblePosition(nLine - 15 < 0 ? 0 : nLine - 15, 0);
        Window()->repaint();
        Settle();
    }
    std::string Line(int nLine) {
        CStringEx* p = m_zone.GetLine(nLine);
        return p ? std::string(p->c_str(), static_cast<size_t>(p->GetLength() - p->IsEnded()))
                 : std::string();
    }

    CTextZoneParam m_zone;
    CQtEditorWidget m_widget;
    int m_nLines = 0;
};

void BM_TypeKeyword(benchmark::State& state) {
    KeywordEditor ed(static_cast<int>(state.range(0)));
    const int mid = bench::MiddleLine(ed.m_nLines);
    const std::string before = ed.Line(mid);
    const std::string word = "select ";
    size_t n = 0;
    ed.Place(mid, 0);
    for (auto _ : state) {
        const char c = word[n % word.size()];
        state.SetIterationTime(Seconds([&] {
            SendKey(ed.Window(), c == ' ' ? Qt::Key_Space : Qt::Key_A + (c - 'a'),
                    QString(QChar(c)));
            Settle();
        }));
        if (++n % word.size() == 0) {
                        if (ed.Line(mid).compare(0, word.size(), "SELECT ") != 0) {
                state.SkipWithError("the keyword was not converted");
                break;
            }
            // Back to the line as it was, so that it does not grow.
            while (ed.Line(mid) != before && ed.m_zone.GetUndoType() != 0)
                ed.m_zone.Undo();
            ed.Place(mid, 0);
        }
    }
}

void BM_RescanAfterQuote(benchmark::State& state) {
    KeywordEditor ed(static_cast<int>(state.range(0)));
    const int mid = bench::MiddleLine(ed.m_nLines);
    for (auto _ : state) {
        ed.Place(mid, 0);
        state.SetIterationTime(Seconds([&] {
            SendKey(ed.Window(), Qt::Key_Apostrophe, "'");
            SendKey(ed.Window(), Qt::Key_Down, QString());
            Settle();
        }));
        ed.m_zone.Undo();
        ed.Place(mid, 0);
    }
}

void Register() {
    auto add = [](const char* name, void (*fn)(benchmark::State&), int size, int iterations) {
        benchmark::RegisterBenchmark(name, fn)
            ->Arg(size)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(iterations);
    };
    add("TypeKeyword/Textzone", BM_TypeKeyword, bench::kSmall, 70);
    add("RescanQuote/Textzone", BM_RescanAfterQuote, bench::kSmall, 3);
    add("TypeKeyword/Textzone", BM_TypeKeyword, bench::kLarge, 70);
    add("RescanQuote/Textzone", BM_RescanAfterQuote, bench::kLarge, 3);
}

}  // namespace

int main(int argc, char** argv) {
    return bench::RunQtBenchmarks(argc, argv, Register);
}
