// The peers on the same text and tasks as the engine, in the same process
// run: QScintilla (Qt 6) and Qt's QPlainTextEdit, on Qt's offscreen
// platform. Painting is measured here for all three, the engine as the
// editor control inside a QWidget through the Qt backend, each widget
// 800 x 600 with DejaVu Sans Mono at 15 pixels.
//   bench_peers [Google Benchmark flags]
//   bench_peers --memory qscintilla|qplaintextedit LINES
#include <benchmark/benchmark.h>

#include <Qsci/qsciscintilla.h>
#include <QApplication>
#include <QKeyEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "QtBenchWidgets.h"
#include "SqlText.h"
#include "editor/qt/QtEditorWidget.h"
#include "platform/qt/QtPlatform.h"
#include "textzone/TextZone.h"

namespace {

using bench::EditorFont;
using bench::kFontPixels;
using bench::kHeight;
using bench::kWidth;
using bench::Seconds;
using bench::Settle;

// The text of the last size asked for, as bytes and as a QString (the
// peers' own input type; converting is not part of their load).
struct SourceText {
    std::string bytes;
    QString string;
    int lines = -1;
};
const SourceText& Text(int nLines) {
    static SourceText text;
    if (text.lines != nLines) {
        text.string.clear();
        text.string.squeeze();
        text.bytes = bench::MakeSqlText(nLines);
        text.string =
            QString::fromLatin1(text.bytes.data(), static_cast<qsizetype>(text.bytes.size()));
        text.lines = nLines;
    }
    return text;
}

void SendKey(QWidget* pWidget, char c) {
    const QString s(QChar::fromLatin1(c));
    const int key = c == ' ' ? static_cast<int>(Qt::Key_Space)
                             : static_cast<int>(QChar::fromLatin1(c).toUpper().unicode());
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, s);
    QCoreApplication::sendEvent(pWidget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, s);
    QCoreApplication::sendEvent(pWidget, &release);
}

// One peer behind the operations the tasks need.
class Peer {
public:
    virtual ~Peer() = default;
    virtual QWidget* Widget() = 0;
    virtual void Load(const QString& text) = 0;
    virtual qsizetype ReadOut() = 0;
    virtual void InsertLine(int nLine, const char* pszLine) = 0;
    virtual void RemoveLine(int nLine) = 0;
    virtual void PlaceCaret(int nLine) = 0;
    // Inserts a character at the caret and moves the caret behind it, as
    // typing does, through the peer's own editing call.
    virtual void InsertAtCaret(char c) = 0;
    virtual void Undo() = 0;
    virtual bool CanUndo() = 0;
    virtual int LineLength(int nLine) = 0;
    virtual int LineCount() = 0;
    // Finds from the start; the line of the match, or -1.
    virtual int FindFromStart(const char* pszWord) = 0;
    virtual void ScrollTo(int nLine) = 0;
    virtual void Prepare() {
        Widget()->resize(kWidth, kHeight);
        Widget()->show();
    }
};

class SciPeer : public Peer {
public:
    SciPeer() {
        // 8-bit text, as the engine keeps it; UTF-8 mode costs QScintilla more
        // on every change.
        m_sci.setUtf8(false);
        m_sci.setFont(EditorFont());
        Prepare();
    }
    QWidget* Widget() override { return &m_sci; }
    void Load(const QString& text) override { m_sci.setText(text); }
    qsizetype ReadOut() override { return m_sci.text().size(); }
    void InsertLine(int nLine, const char* pszLine) override {
        m_sci.insertAt(QString::fromLatin1(pszLine), nLine, 0);
    }
    void RemoveLine(int nLine) override {
        m_sci.setSelection(nLine, 0, nLine + 1, 0);
        m_sci.removeSelectedText();
    }
    void PlaceCaret(int nLine) override { m_sci.setCursorPosition(nLine, 0); }
    void InsertAtCaret(char c) override {
        m_sci.SendScintilla(QsciScintillaBase::SCI_ADDTEXT, 1UL, &c);
    }
    void Undo() override { m_sci.undo(); }
    bool CanUndo() override { return m_sci.isUndoAvailable(); }
    int LineLength(int nLine) override { return m_sci.lineLength(nLine); }
    int LineCount() override { return m_sci.lines(); }
    int FindFromStart(const char* pszWord) override {
        if (!m_sci.findFirst(QString::fromLatin1(pszWord), false, true, false, false, true, 0, 0))
            return -1;
        int line = 0;
        int index = 0;
        m_sci.getCursorPosition(&line, &index);
        return line;
    }
    void ScrollTo(int nLine) override { m_sci.setFirstVisibleLine(nLine); }

private:
    QsciScintilla m_sci;
};

class PlainPeer : public Peer {
public:
    PlainPeer() {
        m_edit.setFont(EditorFont());
        m_edit.setLineWrapMode(QPlainTextEdit::NoWrap);
        Prepare();
    }
    QWidget* Widget() override { return &m_edit; }
    void Load(const QString& text) override { m_edit.setPlainText(text); }
    qsizetype ReadOut() override { return m_edit.toPlainText().size(); }
    void InsertLine(int nLine, const char* pszLine) override {
        QTextCursor cursor(m_edit.document()->findBlockByNumber(nLine));
        cursor.insertText(QString::fromLatin1(pszLine));
    }
    void RemoveLine(int nLine) override {
        QTextCursor cursor(m_edit.document()->findBlockByNumber(nLine));
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    void PlaceCaret(int nLine) override {
        m_edit.setTextCursor(QTextCursor(m_edit.document()->findBlockByNumber(nLine)));
    }
    void InsertAtCaret(char c) override { m_edit.insertPlainText(QString(QChar::fromLatin1(c))); }
    void Undo() override { m_edit.undo(); }
    bool CanUndo() override { return m_edit.document()->isUndoAvailable(); }
    int LineLength(int nLine) override {
        // Counted with its line end, as QScintilla counts.
        return static_cast<int>(m_edit.document()->findBlockByNumber(nLine).length());
    }
    int LineCount() override { return m_edit.document()->blockCount(); }
    int FindFromStart(const char* pszWord) override {
        m_edit.moveCursor(QTextCursor::Start);
        if (!m_edit.find(QString::fromLatin1(pszWord), QTextDocument::FindCaseSensitively))
            return -1;
        return m_edit.textCursor().blockNumber();
    }
    void ScrollTo(int nLine) override { m_edit.verticalScrollBar()->setValue(nLine); }

private:
    QPlainTextEdit m_edit;
};

// The engine as the editor control, for painting.
class ZonePeer {
public:
    ZonePeer() {
        m_widget.resize(kWidth, kHeight);
        m_widget.show();
    }
    CQtEditorWidget& Widget() { return m_widget; }

private:
    CQtEditorWidget m_widget;
};

template <class P>
std::unique_ptr<Peer> MakePeer() {
    return std::make_unique<P>();
}

// The loaded peer of the last kind and size asked for, kept between
// benchmarks (every task leaves the text as it found it). One at a time, and
// released before the QApplication goes.
std::unique_ptr<Peer> g_loaded;
const void* g_loadedKind = nullptr;
int g_loadedLines = -1;

template <class P>
Peer& LoadedPeer(int nLines) {
    static const char kind = 0;
    if (g_loadedKind != &kind || g_loadedLines != nLines) {
        g_loaded.reset();
        g_loaded = std::make_unique<P>();
        g_loaded->Load(Text(nLines).string);
        Settle();
        g_loadedKind = &kind;
        g_loadedLines = nLines;
    }
    return *g_loaded;
}

template <class P>
void BM_Load(benchmark::State& state) {
    const SourceText& text = Text(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto peer = std::make_unique<P>();
        Settle();
        state.SetIterationTime(Seconds([&] { peer->Load(text.string); }));
        Settle();
    }
}

template <class P>
void BM_GetText(benchmark::State& state) {
    Peer& peer = LoadedPeer<P>(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        qsizetype size = 0;
        state.SetIterationTime(Seconds([&] { size = peer.ReadOut(); }));
        benchmark::DoNotOptimize(size);
    }
}

// In the middle, or (kTop) near the top, where QScintilla's per-edit cost
// that grows with the text behind the edit is small.
template <class P, bool kTop = false>
void BM_InsertRemoveLine(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    Peer& peer = LoadedPeer<P>(nLines);
    const int mid = kTop ? bench::kTopLine : bench::MiddleLine(nLines);
    const int count = peer.LineCount();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            peer.InsertLine(mid, bench::kInsertedLine);
            peer.RemoveLine(mid);
        }));
        Settle();
    }
    if (peer.LineCount() != count) state.SkipWithError("the line count changed");
}

// Typing through key events, or (kKeys false) through the peer's insert call.
template <bool kKeys>
void TypeAll(Peer& peer) {
    for (int i = 0; i < 100; ++i) {
        if constexpr (kKeys)
            SendKey(peer.Widget(), bench::kTyped[i]);
        else
            peer.InsertAtCaret(bench::kTyped[i]);
    }
}

bool UndoTyping(Peer& peer, int nLine, int nLength) {
    for (int n = 0; n < 200 && peer.LineLength(nLine) != nLength; ++n) {
        if (!peer.CanUndo()) return false;
        peer.Undo();
    }
    return peer.LineLength(nLine) == nLength;
}

template <class P, bool kKeys>
void BM_Type(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    Peer& peer = LoadedPeer<P>(nLines);
    const int mid = bench::MiddleLine(nLines);
    const int length = peer.LineLength(mid);
    for (auto _ : state) {
        peer.PlaceCaret(mid);
        Settle();
        state.SetIterationTime(Seconds([&] { TypeAll<kKeys>(peer); }));
        if (peer.LineLength(mid) != length + 100) {
            state.SkipWithError("the characters were not typed");
            break;
        }
        if (!UndoTyping(peer, mid, length)) {
            state.SkipWithError("undo did not take the typing back");
            break;
        }
        Settle();
    }
}

template <class P, bool kKeys>
void BM_Undo(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    Peer& peer = LoadedPeer<P>(nLines);
    const int mid = bench::MiddleLine(nLines);
    const int length = peer.LineLength(mid);
    for (auto _ : state) {
        peer.PlaceCaret(mid);
        TypeAll<kKeys>(peer);
        if (peer.LineLength(mid) != length + 100) {
            state.SkipWithError("the characters were not typed");
            break;
        }
        Settle();
        bool undone = false;
        state.SetIterationTime(Seconds([&] { undone = UndoTyping(peer, mid, length); }));
        if (!undone) {
            state.SkipWithError("undo did not take the typing back");
            break;
        }
        Settle();
    }
}

template <class P>
void BM_Find(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    Peer& peer = LoadedPeer<P>(nLines);
    for (auto _ : state) {
        int line = -1;
        state.SetIterationTime(Seconds([&] { line = peer.FindFromStart(bench::kNeedle); }));
        if (line != bench::FindLine(nLines)) {
            state.SkipWithError("the word was not found on its line");
            break;
        }
        Settle();
    }
}

template <class P>
void BM_Paint(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    Peer& peer = LoadedPeer<P>(nLines);
    peer.ScrollTo(bench::MiddleLine(nLines));
    Settle();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            QPixmap pixmap = peer.Widget()->grab();
            benchmark::DoNotOptimize(pixmap.cacheKey());
        }));
    }
    peer.ScrollTo(0);
    Settle();
}

void BM_PaintZone(benchmark::State& state) {
    const int nLines = static_cast<int>(state.range(0));
    ZonePeer zone;
    zone.Widget().Editor().SetWindowTextA(Text(nLines).bytes.c_str());
    zone.Widget().Zone().SetFirstVisiblePosition(bench::MiddleLine(nLines), 0);
    Settle();
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            // The backing image is kept between paints: the whole window is
            // invalidated so that the engine draws every line again.
            zone.Widget().Editor().Invalidate(FALSE);
            QPixmap pixmap = zone.Widget().grab();
            benchmark::DoNotOptimize(pixmap.cacheKey());
        }));
    }
}

template <class P>
void RegisterPeer(const char* name, int size) {
    // Typing and undo each need the other, unmeasured, around every step:
    // at 1M lines their iterations are fixed, as QScintilla takes seconds.
    auto add = [&](const char* task, void (*fn)(benchmark::State&), bool bPaired = false) {
        const std::string full = std::string(task) + "/" + name;
        auto* b = benchmark::RegisterBenchmark(full.c_str(), fn)
                      ->Arg(size)
                      ->UseManualTime()
                      ->Unit(benchmark::kMillisecond);
        if (bPaired && size >= bench::kLarge) b->Iterations(2);
    };
    add("Load", BM_Load<P>);
    add("GetText", BM_GetText<P>);
    add("InsertRemoveLine", BM_InsertRemoveLine<P>);
    add("InsertRemoveLineTop", BM_InsertRemoveLine<P, true>);
    add("Type", BM_Type<P, true>, true);
    add("Undo", BM_Undo<P, true>, true);
    add("TypeApi", BM_Type<P, false>, true);
    add("UndoApi", BM_Undo<P, false>, true);
    add("Find", BM_Find<P>);
    add("Paint", BM_Paint<P>);
}

// The peers run at 10k and 1M lines, one peer's tasks together so that its
// loaded text is reused; the engine's paint runs at every size.
void Register() {
    for (int size : {bench::kSmall, bench::kLarge, bench::kHuge})
        benchmark::RegisterBenchmark("Paint/Textzone", BM_PaintZone)
            ->Arg(size)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    for (int size : {bench::kSmall, bench::kLarge}) {
        RegisterPeer<SciPeer>("QScintilla", size);
        RegisterPeer<PlainPeer>("QPlainTextEdit", size);
    }
}

// One load in a fresh process, as the engine's: the high-water mark over the
// load less what was resident before it (the QString input included), per line.
int MeasureMemory(const char* pszPeer, int nLines) {
    std::unique_ptr<Peer> peer;
    const char* name = nullptr;
    if (std::strcmp(pszPeer, "qscintilla") == 0) {
        peer = MakePeer<SciPeer>();
        name = "QScintilla";
    } else if (std::strcmp(pszPeer, "qplaintextedit") == 0) {
        peer = MakePeer<PlainPeer>();
        name = "QPlainTextEdit";
    } else {
        std::fprintf(stderr, "unknown peer %s\n", pszPeer);
        return 2;
    }
    QString text;
    {
        const std::string bytes = bench::MakeSqlText(nLines);
        text = QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    Settle();
    const bool reset = bench::ResetPeak();
    const bench::MemoryFigures before = bench::ReadMemory();
    peer->Load(text);
    Settle();
    const bench::MemoryFigures after = bench::ReadMemory();
    const double peak = static_cast<double>(after.peak - (reset ? before.rss : before.peak));
    const double resident = static_cast<double>(after.rss) - static_cast<double>(before.rss);
    std::printf(
        "{\"component\": \"%s\", \"lines\": %d, \"peak_bytes_per_line\": %.1f, "
        "\"resident_bytes_per_line\": %.1f, \"peak_reset\": %s}\n",
        name, nLines, peak / nLines, resident / nLines, reset ? "true" : "false");
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // Google Benchmark's flags are taken out before Qt sees the arguments.
    const bool memory = argc == 4 && std::strcmp(argv[1], "--memory") == 0;
    if (!memory) {
        Register();
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    }
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    CQtPlatform platform;
    if (memory) return MeasureMemory(argv[2], std::atoi(argv[3]));
    benchmark::RunSpecifiedBenchmarks();
    g_loaded.reset();
    benchmark::Shutdown();
    return 0;
}
