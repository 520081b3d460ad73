#include "apps/demo/ReportPane.h"

#include <QVBoxLayout>
#include <string_view>
#include <vector>

#include "textzone/TextZone.h"

#include "zones/qt/QtHoverWait.h"

namespace {

constexpr int kMaxMatches = 50;
// A report looks at the top of a large text only, so that opening one
// stays quick.
constexpr int kMaxLines = 10000;

}  // namespace

CReportPane::CReportPane(QWidget* pParent)
    : QWidget(pParent), m_pZone(std::make_unique<CReportZone>()) {
    CQtHoverWait::Install();
    m_pView = new CQtEditorWidget(this, WS_VSCROLL | WS_HSCROLL | WS_BORDER, m_pZone.get());
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pView);
    m_pZone->EnableSyntaxColor(0, 0, 0, 0, 0, 0, 0);
    m_pZone->SetReadOnly(1);
    // Lines with help carry their mark in a margin rather than as their
    // background.
    m_pZone->SetMarginWidth(12);
    m_pZone->SetMarginMode(1);
}

CReportPane::~CReportPane() {
    // The control goes before the zone it borrows.
    delete m_pView;
    m_pView = nullptr;
}

void CReportPane::SetOpenHandler(std::function<void(int nLine, int nChar)> handler) {
    m_pZone->m_onOpen = std::move(handler);
}

void CReportPane::CReportZone::OpenHyperlinks(POINT, int, int, int, int, char const*,
                                              LinkIdList const& ids, LinkDataList const& data,
                                              LinkKindList const&) {
    // A result's link carries the line as its id and the column as its data.
    if (m_onOpen && !ids.empty() && !data.empty())
        m_onOpen(static_cast<int>(ids.front()), static_cast<int>(data.front()));
}

void CReportPane::ShowMatches(const QString& title, CTextZone& source, const std::string& word) {
    struct Match {
        int nLine;
        int nChar;
        std::string line;
    };
    std::vector<Match> matches;
    for (int nLine = 0; nLine < kMaxLines && static_cast<int>(matches.size()) < kMaxMatches;
         ++nLine) {
        CStringEx* pLine = source.GetLine(nLine);
        if (!pLine) break;
        const std::string_view text(pLine->c_str(),
                                    static_cast<size_t>(pLine->GetLength() - pLine->IsEnded()));
        const size_t at = word.empty() ? std::string_view::npos : text.find(word);
        if (at != std::string_view::npos)
            matches.push_back(Match{nLine, static_cast<int>(at), std::string(text)});
    }

    std::string report = title.toStdString() + ": " + std::to_string(matches.size()) +
                         (matches.size() == 1 ? " line" : " lines") + " with \"" + word +
                         "\"\r\n";
    for (const Match& m : matches) {
        std::string line = m.line.size() > 120 ? m.line.substr(0, 120) : m.line;
        for (char& c : line)
            if (c == '\t') c = ' ';
        report += "  line " + std::to_string(m.nLine + 1) + ": " + line + "\r\n";
    }
    report += "Click a line number to go there; rest on it to see where it leads.";
    m_pZone->SetText(report.c_str());
    // A new report is read from its top.
    m_pZone->SetSelection(0, 0, 0, 0, 0, 0);
    m_pZone->SetFirstVisiblePosition(0, 0);

    // The title stands out in a colour of its own and explains the pane.
    m_pZone->SetLineColor(0, RGB(0, 0, 160));
    if (auto* pTitle = dynamic_cast<CStringExReadOnly*>(m_pZone->GetLine(0)))
        pTitle->SetHelp(
            "Results of a search in the open file.\r\n"
            "Links open the line in the editor above.");
    for (size_t i = 0; i < matches.size(); ++i) {
        const Match& m = matches[i];
        const long nRow = static_cast<long>(i) + 1;
        const std::string label = "line " + std::to_string(m.nLine + 1);
        const int nLabelEnd = 2 + static_cast<int>(label.size());
        const std::string tip =
            "Open line " + std::to_string(m.nLine + 1) + ", column " + std::to_string(m.nChar + 1);
        m_pZone->SetHyperlink(nRow, nRow, 2, nLabelEnd, 0, tip.c_str(), m.nLine,
                              static_cast<unsigned long>(m.nChar), 1);
        const int nWord = nLabelEnd + 2 + m.nChar;
        if (m.nChar < 120)
            m_pZone->SetHilighted(nRow, nRow, nWord, nWord + static_cast<int>(word.size()), 0);
    }
    // The closing hint is pale: it is not a result.
    const long nLast = static_cast<long>(matches.size()) + 1;
    m_pZone->SetPastel(nLast, nLast, 0, 0x7fff, 0);
    m_pZone->RedrawTextZone();
}
