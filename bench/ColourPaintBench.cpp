// Coloured T-SQL (dialect 90) on the Qt backend, the engine as the editor
// control in a CQtEditorWidget of 800 x 600 on Qt's offscreen platform:
//   - a letter typed in the middle of the text, through Qt key events, with
//     its repaint shown (the engine paints at once into the window's image;
//     Qt's next paint of the widget shows what changed);
//   - a '*' typed behind a '/' at line 100, which opens a block comment: the
//     states below are dropped and the screen repainted in the new colours;
//   - Ctrl+End from the top with no state known below the first screen,
//     painted in correct colours at the end;
//   - one screen of coloured SQL painted, side by side with QScintilla and
//     its SQL lexer and QPlainTextEdit with a QSyntaxHighlighter of the
//     engine's own T-SQL keywords.
//   bench_colour_qt [Google Benchmark flags]
#include <benchmark/benchmark.h>

#include <Qsci/qscilexersql.h>
#include <Qsci/qsciscintilla.h>
#include <QApplication>
#include <QKeyEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <chrono>
#include <cstring>
#include <memory>
#include <string>

#include "QtBenchWidgets.h"
#include "QtBenchMain.h"
#include "SqlText.h"
#include "colour/TextZoneColor.h"
#include "editor/qt/QtEditorWidget.h"
#include "keywords/KeywordTables.h"
#include "platform/qt/QtPlatform.h"

namespace {

using bench::EditorFont;
using bench::kFontPixels;
using bench::kHeight;
using bench::kWidth;
using bench::Seconds;
using bench::Settle;

constexpr unsigned int kTransactSql90 = 14;  // the language id of T-SQL, dialect 90
constexpr int kCommentLine = 100;

void SendKey(QWidget* pWidget, int key, Qt::KeyboardModifiers mods, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, mods, text);
    QCoreApplication::sendEvent(pWidget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, mods, text);
    QCoreApplication::sendEvent(pWidget, &release);
}

// Counts the paints Qt delivers to a widget, so that a measured step is
// known to have shown what it painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget* pWidget) : m_pWidget(pWidget) {
        pWidget->installEventFilter(this);
    }
    ~PaintCounter() override { m_pWidget->removeEventFilter(this); }
    int m_nPaints = 0;

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override {
        if (pEvent->type() == QEvent::Paint) ++m_nPaints;
        return false;
    }

private:
    QWidget* m_pWidget;
};

// The engine: a coloured zone in the editor control.
class ColourEditor {
public:
    explicit ColourEditor(int nLines) : m_widget(nullptr, WS_VSCROLL | WS_HSCROLL, &m_zone) {
        LOGFONTA lf{};
        lf.lfHeight = -kFontPixels;
        lf.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
        std::strcpy(lf.lfFaceName, "DejaVu Sans Mono");
        m_widget.SetEditorFont(lf);
        m_zone.SetSQLSyntaxColor(kTransactSql90);
        m_widget.resize(kWidth, kHeight);
        m_widget.show();
        m_widget.Editor().SetWindowTextA(bench::MakeSqlText(nLines).c_str());
        m_nLines = nLines;
        Settle();
    }
    // The window's widget, where Qt input goes and whose repaint shows the image.
    QWidget* Window() { return CQtPlatform::WidgetOf(&m_widget.Editor()); }
    // The caret at a place, the screen scrolled so that it shows, painted.
    void Place(int nLine, int nChar, int nFirstVisible) {
        m_zone.SetSelection(nLine, nLine, nChar, nChar, 0, 0);
        m_zone.SetFirstVisiblePosition(nFirstVisible, 0);
        Show();
    }
    void Show() {
        Window()->repaint();
        Settle();
    }
    int Length(int nLine) { return m_zone.GetLine(nLine)->GetLength(); }
    std::uint32_t StartState(int nLine) {
        return static_cast<CStringExColor*>(m_zone.GetLine(nLine))->m_nStartType;
    }

    CTextZoneColor m_zone;
    CQtEditorWidget m_widget;
    int m_nLines = 0;
};

// The editor of the last size asked for, kept between benchmarks and
// released before the QApplication goes.
std::unique_ptr<ColourEditor> g_editor;

ColourEditor& Editor(int nLines) {
    if (!g_editor || g_editor->m_nLines != nLines) {
        g_editor.reset();
        g_editor = std::make_unique<ColourEditor>(nLines);
    }
    return *g_editor;
}

void BM_TypeColour(benchmark::State& state) {
    ColourEditor& ed = Editor(static_cast<int>(state.range(0)));
    const int mid = bench::MiddleLine(ed.m_nLines);
    ed.Place(mid, 10, mid - 15);
    const int length = ed.Length(mid);
    int paints = 0;
    for (auto _ : state) {
        PaintCounter counter(ed.Window());
        state.SetIterationTime(Seconds([&] {
            SendKey(ed.Window(), Qt::Key_X, Qt::NoModifier, "x");
            Settle();  // Qt shows what the engine painted
        }));
        paints += counter.m_nPaints > 0;
        if (ed.Length(mid) != length + 1) {
            state.SkipWithError("the letter was not typed");
            break;
        }
        ed.m_zone.Undo();
        ed.Show();
    }
    if (ed.Length(mid) != length) state.SkipWithError("undo did not take the letter back");
    if (paints < state.iterations()) state.SkipWithError("a letter was not shown by a paint");
}

void BM_OpenComment(benchmark::State& state) {
    ColourEditor& ed = Editor(static_cast<int>(state.range(0)));
    // A '/' at the start of line 100, the screen showing it from line 90.
    ed.Place(kCommentLine, 0, kCommentLine - 10);
    SendKey(ed.Window(), Qt::Key_Slash, Qt::NoModifier, "/");
    ed.Show();
    int paints = 0;
    for (auto _ : state) {
        PaintCounter counter(ed.Window());
        state.SetIterationTime(Seconds([&] {
            SendKey(ed.Window(), Qt::Key_Asterisk, Qt::NoModifier, "*");
            Settle();  // Qt shows what the engine painted
        }));
        // The lines below are painted inside the comment now.
        if (ed.StartState(kCommentLine + 20) != LS_COMMENT ||
            ed.m_zone.m_nFirstDirtyLine < kCommentLine + 20) {
            state.SkipWithError("the comment did not reach the lines below");
            break;
        }
        paints += counter.m_nPaints > 0;
        SendKey(ed.Window(), Qt::Key_Backspace, Qt::NoModifier, "\b");
        ed.Show();
    }
    SendKey(ed.Window(), Qt::Key_Backspace, Qt::NoModifier, "\b");
    ed.Show();
    if (paints < state.iterations()) state.SkipWithError("a keystroke was not shown by a paint");
}

void BM_CtrlEnd(benchmark::State& state) {
    ColourEditor& ed = Editor(static_cast<int>(state.range(0)));
    const int last = ed.m_zone.GetLastLineIndex();
    for (auto _ : state) {
        ed.Place(0, 0, 0);
        // No state known below the first screen, as after opening the file.
        ed.m_zone.SetSQLSyntaxColor(kTransactSql90);
        ed.Show();
        PaintCounter counter(ed.Window());
        state.SetIterationTime(Seconds([&] {
            SendKey(ed.Window(), Qt::Key_End, Qt::ControlModifier, QString());
            Settle();  // Qt shows what the engine painted
        }));
        if (counter.m_nPaints == 0) {
            state.SkipWithError("the end was not shown by a paint");
            break;
        }
        if (ed.m_zone.GetSelMobileLine() < last || ed.StartState(last) == 0) {
            const std::string error = "the end was not reached and painted: caret line " +
                                      std::to_string(ed.m_zone.GetSelMobileLine()) + " of " +
                                      std::to_string(last) + ", state " +
                                      std::to_string(ed.StartState(last));
            state.SkipWithError(error.c_str());
            break;
        }
    }
    ed.Place(0, 0, 0);
}

// Painting: the engine's whole window invalidated and grabbed, as the
// peers' widgets are grabbed.
void BM_PaintColourZone(benchmark::State& state) {
    ColourEditor& ed = Editor(static_cast<int>(state.range(0)));
    const int mid = bench::MiddleLine(ed.m_nLines);
    ed.Place(mid, 0, mid);
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            ed.m_widget.Editor().Invalidate(FALSE);
            QPixmap pixmap = ed.m_widget.grab();
            benchmark::DoNotOptimize(pixmap.cacheKey());
        }));
    }
}

// The T-SQL of dialect 90 as a highlighter: the engine's six keyword tables
// in their colours, "--" and "/* */" comments, strings.
class SqlHighlighter : public QSyntaxHighlighter {
public:
    explicit SqlHighlighter(QTextDocument* pDocument) : QSyntaxHighlighter(pDocument) {
        CTextZoneColor zone;
        zone.SetSQLSyntaxColor(kTransactSql90);
        const char** tables[6];
        zone.DefineKeywordList(tables);
        for (int t = 0; t < 6; ++t) {
            QStringList words;
            for (const char** p = tables[t]; **p; ++p)
                words << QRegularExpression::escape(QString::fromLatin1(*p));
            if (words.isEmpty()) continue;
            Rule rule;
            rule.pattern = QRegularExpression("(?<![\\w#@])(" + words.join('|') + ")(?![\\w#@])",
                                              QRegularExpression::CaseInsensitiveOption);
            rule.format.setForeground(Color(zone.GetSyntaxColor(SC_KEYWORD1 + t)));
            m_rules.push_back(rule);
        }
        m_string.setForeground(Color(zone.GetSyntaxColor(SC_STRING)));
        m_comment.setForeground(Color(zone.GetSyntaxColor(SC_COMMENT)));
    }

protected:
    void highlightBlock(const QString& text) override {
        for (const Rule& rule : m_rules)
            for (auto it = rule.pattern.globalMatch(text); it.hasNext();) {
                const auto m = it.next();
                setFormat(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()),
                          rule.format);
            }
        static const QRegularExpression kString("'[^']*'");
        for (auto it = kString.globalMatch(text); it.hasNext();) {
            const auto m = it.next();
            setFormat(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()),
                      m_string);
        }
        const qsizetype dash = text.indexOf("--");
        if (dash >= 0)
            setFormat(static_cast<int>(dash), static_cast<int>(text.size() - dash), m_comment);
        // Block comments carry over lines in the block state.
        qsizetype start = previousBlockState() == 1 ? 0 : text.indexOf("/*");
        setCurrentBlockState(0);
        while (start >= 0) {
            const qsizetype end = text.indexOf("*/", start);
            const qsizetype length = end < 0 ? text.size() - start : end - start + 2;
            if (end < 0) setCurrentBlockState(1);
            setFormat(static_cast<int>(start), static_cast<int>(length), m_comment);
            start = text.indexOf("/*", start + length);
        }
    }

private:
    struct Rule {
        QRegularExpression pattern;
        QTextCharFormat format;
    };
    static QColor Color(unsigned long cr) {
        return QColor(static_cast<int>(cr & 0xFF), static_cast<int>((cr >> 8) & 0xFF),
                      static_cast<int>((cr >> 16) & 0xFF));
    }
    std::vector<Rule> m_rules;
    QTextCharFormat m_string;
    QTextCharFormat m_comment;
};

void BM_PaintColourScintilla(benchmark::State& state) {
    QsciScintilla sci;
    sci.setUtf8(false);
    QsciLexerSQL lexer;
    lexer.setDefaultFont(EditorFont());
    lexer.setFont(EditorFont());
    sci.setLexer(&lexer);
    sci.resize(kWidth, kHeight);
    sci.show();
    const int nLines = static_cast<int>(state.range(0));
    sci.setText(QString::fromLatin1(bench::MakeSqlText(nLines).c_str()));
    sci.setFirstVisibleLine(bench::MiddleLine(nLines));
    Settle();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            QPixmap pixmap = sci.grab();
            benchmark::DoNotOptimize(pixmap.cacheKey());
        }));
    }
}

void BM_PaintColourPlain(benchmark::State& state) {
    QPlainTextEdit edit;
    edit.setFont(EditorFont());
    edit.setLineWrapMode(QPlainTextEdit::NoWrap);
    SqlHighlighter highlighter(edit.document());
    edit.resize(kWidth, kHeight);
    edit.show();
    const int nLines = static_cast<int>(state.range(0));
    edit.setPlainText(QString::fromLatin1(bench::MakeSqlText(nLines).c_str()));
    Settle();
    edit.verticalScrollBar()->setValue(bench::MiddleLine(nLines));
    Settle();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            QPixmap pixmap = edit.grab();
            benchmark::DoNotOptimize(pixmap.cacheKey());
        }));
    }
}

void Register() {
    auto add = [](const char* name, void (*fn)(benchmark::State&), int size, int iterations = 0) {
        auto* b = benchmark::RegisterBenchmark(name, fn)->Arg(size)->UseManualTime()->Unit(
            benchmark::kMillisecond);
        if (iterations) b->Iterations(iterations);
    };
    // The small sizes keep the smoke test of the test build going.
    add("PaintColour/Textzone", BM_PaintColourZone, bench::kSmall);
    add("PaintColour/QScintilla", BM_PaintColourScintilla, bench::kSmall);
    add("PaintColour/QPlainTextEdit", BM_PaintColourPlain, bench::kSmall);
    add("TypeColour/Textzone", BM_TypeColour, bench::kSmall);
    add("OpenComment/Textzone", BM_OpenComment, bench::kSmall);
    add("CtrlEnd/Textzone", BM_CtrlEnd, bench::kSmall);
    add("TypeColour/Textzone", BM_TypeColour, bench::kLarge);
    add("OpenComment/Textzone", BM_OpenComment, bench::kHuge);
    add("CtrlEnd/Textzone", BM_CtrlEnd, bench::kHuge, 5);
}

}  // namespace

int main(int argc, char** argv) {
    return bench::RunQtBenchmarks(argc, argv, Register, [] { g_editor.reset(); });
}
