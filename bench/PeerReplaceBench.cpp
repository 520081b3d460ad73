// Replace all on the peers, as the engine's ReplaceBench does it: every
// "WHERE" of the bench's SQL text by "where", case matched, from the top,
// through each widget's own calls and as one undo step; then that one undo,
// timed on its own. The text is checked after each, outside the timing.
// QScintilla searches and replaces in its target inside one undo action;
// QPlainTextEdit finds with QTextDocument::find and inserts with
// QTextCursor::insertText inside one edit block. Each widget is 800 x 600
// on Qt's offscreen platform, as in bench_peers.
//   bench_replace_qt [Google Benchmark flags]
#include <benchmark/benchmark.h>

#include <Qsci/qsciscintilla.h>
#include <QApplication>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextDocument>
#include <cstring>
#include <memory>
#include <string>

#include "QtBenchWidgets.h"
#include "ReplaceText.h"
#include "SqlText.h"

namespace {

using bench::EditorFont;
using bench::kHeight;
using bench::kWidth;
using bench::Seconds;
using bench::Settle;

using bench::kReplaceFrom;
using bench::kReplaceTo;

class Peer {
public:
    virtual ~Peer() = default;
    virtual void Load(const std::string& text) = 0;
    virtual void ReplaceAll() = 0;
    virtual void Undo() = 0;
    // The text as bytes, line ends as loaded.
    virtual std::string Bytes() = 0;
};

class SciPeer : public Peer {
public:
    SciPeer() {
        m_sci.setUtf8(false);
        m_sci.setFont(EditorFont());
        m_sci.resize(kWidth, kHeight);
        m_sci.show();
    }
    void Load(const std::string& text) override {
        m_sci.setText(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
        m_sci.SendScintilla(QsciScintillaBase::SCI_EMPTYUNDOBUFFER);
    }
    void ReplaceAll() override {
        const long from = static_cast<long>(std::strlen(kReplaceFrom));
        const long to = static_cast<long>(std::strlen(kReplaceTo));
        auto send = [&](unsigned int message, unsigned long w = 0, long l = 0) {
            return m_sci.SendScintilla(message, w, l);
        };
        send(QsciScintillaBase::SCI_BEGINUNDOACTION);
        send(QsciScintillaBase::SCI_SETSEARCHFLAGS, QsciScintillaBase::SCFIND_MATCHCASE);
        long start = 0;
        for (;;) {
            send(QsciScintillaBase::SCI_SETTARGETSTART, static_cast<unsigned long>(start));
            send(QsciScintillaBase::SCI_SETTARGETEND,
                 static_cast<unsigned long>(send(QsciScintillaBase::SCI_GETLENGTH)));
            if (m_sci.SendScintilla(QsciScintillaBase::SCI_SEARCHINTARGET,
                                    static_cast<unsigned long>(from), kReplaceFrom) < 0)
                break;
            m_sci.SendScintilla(QsciScintillaBase::SCI_REPLACETARGET,
                                static_cast<unsigned long>(to), kReplaceTo);
            start = send(QsciScintillaBase::SCI_GETTARGETEND);
        }
        send(QsciScintillaBase::SCI_ENDUNDOACTION);
    }
    void Undo() override { m_sci.undo(); }
    std::string Bytes() override {
        const long length = m_sci.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
        std::string text(static_cast<size_t>(length) + 1, '\0');
        m_sci.SendScintilla(QsciScintillaBase::SCI_GETTEXT, static_cast<unsigned long>(length + 1),
                            text.data());
        text.resize(static_cast<size_t>(length));
        return text;
    }

private:
    QsciScintilla m_sci;
};

class PlainPeer : public Peer {
public:
    PlainPeer() {
        m_edit.setFont(EditorFont());
        m_edit.setLineWrapMode(QPlainTextEdit::NoWrap);
        m_edit.resize(kWidth, kHeight);
        m_edit.show();
    }
    void Load(const std::string& text) override {
        m_edit.setPlainText(
            QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
    }
    void ReplaceAll() override {
        QTextDocument* pDoc = m_edit.document();
        const QString from = QString::fromLatin1(kReplaceFrom);
        const QString to = QString::fromLatin1(kReplaceTo);
        QTextCursor block(pDoc);
        block.beginEditBlock();
        QTextCursor found = pDoc->find(from, 0, QTextDocument::FindCaseSensitively);
        while (!found.isNull()) {
            found.insertText(to);
            found = pDoc->find(from, found, QTextDocument::FindCaseSensitively);
        }
        block.endEditBlock();
    }
    void Undo() override { m_edit.document()->undo(); }
    std::string Bytes() override { return m_edit.toPlainText().toLatin1().toStdString(); }

private:
    QPlainTextEdit m_edit;
};

template <class P>
void BM_ReplaceAll(benchmark::State& state, bool bUndo) {
    const int nLines = static_cast<int>(state.range(0));
    const std::string original = bench::MakeSqlText(nLines);
    int nMatches = 0;
    const std::string expected = bench::ReplacedText(original, &nMatches);
    P peer;
    peer.Load(original);
    Settle();
    // QPlainTextEdit gives no line end behind the last line.
    auto same = [](const std::string& a, const std::string& b) {
        return a == b || (a.size() == b.size() + 1 && a.back() == '\n' && a.compare(0, b.size(), b) == 0);
    };
    for (auto _ : state) {
        const double replace = Seconds([&] { peer.ReplaceAll(); });
        Settle();
        if (!same(expected, peer.Bytes())) {
            state.SkipWithError("replace all left the wrong text");
            break;
        }
        const double undo = Seconds([&] { peer.Undo(); });
        Settle();
        if (!same(original, peer.Bytes())) {
            state.SkipWithError("undo did not restore the text");
            break;
        }
        state.SetIterationTime(bUndo ? undo : replace);
    }
    state.counters["matches"] = nMatches;
}

template <class P>
void RegisterPeer(const char* name, int size) {
    for (bool bUndo : {false, true}) {
        const std::string full = std::string(bUndo ? "ReplaceAllUndo/" : "ReplaceAll/") + name;
        auto* b = benchmark::RegisterBenchmark(full.c_str(),
                                               [bUndo](benchmark::State& state) {
                                                   BM_ReplaceAll<P>(state, bUndo);
                                               })
                      ->Arg(size)
                      ->UseManualTime()
                      ->Unit(benchmark::kMillisecond);
        if (size >= bench::kLarge) b->Iterations(1);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // QScintilla's cost per change grows with the text behind it (about 1 ms
    // at 10k lines, 80 ms at 1M in bench_peers): 375,000 changes at 1M lines
    // would take hours, so it runs at 10k only.
    RegisterPeer<SciPeer>("QScintilla", bench::kSmall);
    for (int size : {bench::kSmall, bench::kLarge})
        RegisterPeer<PlainPeer>("QPlainTextEdit", size);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
