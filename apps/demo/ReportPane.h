// The demo's report pane: a read-only zone in an editor control, showing
// what a host's result list would: a title in a line colour, result lines
// with highlighted words, links that open a file position, and help text
// in bubbles. A click on a link reports the line and column it points to;
// the pane knows nothing of the editor it serves.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "editor/qt/QtEditorWidget.h"
#include "textzone/TextZone.h"
#include "zones/TextZoneReadOnly.h"

class CReportPane : public QWidget {
public:
    explicit CReportPane(QWidget* pParent = nullptr);
    ~CReportPane() override;

    // Called with the line and column of a link that was clicked.
    void SetOpenHandler(std::function<void(int nLine, int nChar)> handler);
    // Lists the lines of a zone's text that hold a word (the first few of
    // them, in its first lines), each a link to where the word stands.
    void ShowMatches(const QString& title, CTextZone& source, const std::string& word);

    CTextZoneReadOnly& Zone() { return *m_pZone; }
    CQtEditorWidget& View() { return *m_pView; }

private:
    class CReportZone : public CTextZoneReadOnly {
    public:
        void OpenHyperlinks(POINT point, int nLine1, int nLine2, int nChar1, int nChar2,
                            char const* pText, LinkIdList const& ids, LinkDataList const& data,
                            LinkKindList const& kinds) override;
        std::function<void(int, int)> m_onOpen;
    };

    std::unique_ptr<CReportZone> m_pZone;  // outlives the control that borrows it
    CQtEditorWidget* m_pView;
};
