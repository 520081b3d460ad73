// A main window of several documents on Qt: the portable main frame's
// children become sub-windows of a QMdiArea, its menus a menu bar whose
// actions send their command ids to it, and its status bar a QStatusBar
// with a label per pane. Menu items and panes take their states from the
// command handlers the frame routes to, as the desktop framework does on
// idle and before a menu opens.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <vector>

#include "TextzoneQtExport.h"
#include "platform/MDIFrameWnd.h"
#include "platform/MenuModel.h"

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;

class TEXTZONE_QT_EXPORT CQtMDIFrame : public QMainWindow, public IMDIFrameObserver {
public:
    // Makes the frame's window; the frame outlives this window.
    explicit CQtMDIFrame(CMDIFrameWnd& frame, QWidget* pParent = nullptr);
    ~CQtMDIFrame() override;

    CMDIFrameWnd& Frame() { return m_frame; }
    QMdiArea* MdiArea() const { return m_pArea; }
    QMdiSubWindow* SubWindowOf(CMDIChildWnd* pChild) const;

    // A pop-up of the menu bar. Each item sends its command to the frame; the
    // key after the tab in its text becomes the item's shortcut.
    QMenu* AddMenu(const MenuItem& popup);
    // Where the prompt of a command comes from, shown while its item is
    // under the mouse; set it before adding menus.
    void SetPromptSource(std::function<const char*(UINT nID)> source) {
        m_promptSource = std::move(source);
    }
    QAction* ActionOf(UINT nID) const;
    // The status bar's panes; the first, an ID_SEPARATOR, stretches and holds
    // messages. sizing gives a text per pane id to size its label with.
    void SetStatusPanes(const std::vector<UINT>& ids, const std::map<UINT, QString>& sizing = {});
    QLabel* PaneLabel(int nIndex) const;
    // Carries out a command if its handler says it is enabled; false if not.
    bool RunCommand(UINT nID);

    void OnChildAdded(CMDIChildWnd* pChild) override;
    void OnChildActivated(CMDIChildWnd* pChild) override;
    void OnChildRemoved(CMDIChildWnd* pChild) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void FillMenu(QMenu* pMenu, const MenuItem& popup);
    void UpdateMenu(QMenu* pMenu);

    CMDIFrameWnd& m_frame;
    QMdiArea* m_pArea;
    std::map<CMDIChildWnd*, QPointer<QMdiSubWindow>> m_subWindows;
    std::map<UINT, QAction*> m_actions;
    std::function<const char*(UINT)> m_promptSource;
    std::vector<QLabel*> m_paneLabels;
    QTimer m_idle;
    bool m_bSyncing = false;
};
