#include "platform/qt/QtMDIFrame.h"

#include <QCloseEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "platform/CmdUI.h"
#include "platform/MDIChildWnd.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/Windows1252.h"

namespace {

// How often panes are brought up to date while the application is idle.
constexpr int kIdleUpdateMs = 150;

}  // namespace

CQtMDIFrame::CQtMDIFrame(CMDIFrameWnd& frame, QWidget* pParent)
    : QMainWindow(pParent), m_frame(frame), m_pArea(new QMdiArea(this)) {
    setCentralWidget(m_pArea);
    m_pArea->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    // The portable frame is a hidden window: it holds the children and
    // routes commands, while this window shows them.
    m_frame.Create(0, RECT{0, 0, 800, 600}, nullptr, 0);
    m_frame.SetObserver(this);
    m_frame.m_wndStatusBar.m_onPaneChanged = [this](int nIndex) {
        if (QLabel* pLabel = PaneLabel(nIndex))
            pLabel->setText(CWindows1252::ToQString(m_frame.m_wndStatusBar.GetShownText(nIndex)));
    };
    connect(m_pArea, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* pSub) {
        if (m_bSyncing || !pSub) return;
        for (auto& [pChild, sub] : m_subWindows)
            if (sub == pSub) m_frame.MDIActivate(pChild);
    });
    m_idle.setInterval(kIdleUpdateMs);
    connect(&m_idle, &QTimer::timeout, this, [this] {
        if (m_frame.GetSafeHwnd()) m_frame.SendMessage(WM_IDLEUPDATECMDUI);
    });
    m_idle.start();
}

CQtMDIFrame::~CQtMDIFrame() {
    m_idle.stop();
    // The area outlives this part of the window and still signals as it goes.
    m_pArea->disconnect(this);
    m_frame.SetObserver(nullptr);
    m_frame.m_wndStatusBar.m_onPaneChanged = nullptr;
}

QMdiSubWindow* CQtMDIFrame::SubWindowOf(CMDIChildWnd* pChild) const {
    auto it = m_subWindows.find(pChild);
    return it == m_subWindows.end() ? nullptr : it->second.data();
}

QMenu* CQtMDIFrame::AddMenu(const MenuItem& popup) {
    QMenu* pMenu = menuBar()->addMenu(CWindows1252::ToQString(popup.strText));
    FillMenu(pMenu, popup);
    return pMenu;
}

void CQtMDIFrame::FillMenu(QMenu* pMenu, const MenuItem& popup) {
    for (const MenuItem& item : popup.items) {
        if (item.IsSeparator()) {
            pMenu->addSeparator();
            continue;
        }
        if (item.IsPopup()) {
            FillMenu(pMenu->addMenu(CWindows1252::ToQString(item.strText)), item);
            continue;
        }
        QString text = CWindows1252::ToQString(item.strText);
        QString key;
        if (qsizetype tab = text.indexOf('\t'); tab >= 0) {
            key = text.mid(tab + 1).trimmed();
            text.truncate(tab);
        }
        QAction* pAction = pMenu->addAction(text);
        if (!key.isEmpty()) pAction->setShortcut(QKeySequence::fromString(key));
        if (m_promptSource)
            if (const char* pszPrompt = m_promptSource(item.nID))
                pAction->setStatusTip(QString::fromLatin1(pszPrompt));
        const UINT nID = item.nID;
        connect(pAction, &QAction::triggered, this, [this, nID] {
            if (!RunCommand(nID)) MessageBeep(0);
        });
        m_actions[nID] = pAction;
    }
    connect(pMenu, &QMenu::aboutToShow, this, [this, pMenu] { UpdateMenu(pMenu); });
    // Shortcuts must work while the menu is closed: there, whether a command
    // runs is asked when it comes.
    connect(pMenu, &QMenu::aboutToHide, this, [pMenu] {
        for (QAction* pAction : pMenu->actions())
            pAction->setEnabled(true);
    });
}

void CQtMDIFrame::UpdateMenu(QMenu* pMenu) {
    for (QAction* pAction : pMenu->actions()) {
        if (pAction->isSeparator() || pAction->menu()) continue;
        for (auto& [nID, pKnown] : m_actions) {
            if (pKnown != pAction) continue;
            CCmdUI ui;
            ui.m_nID = nID;
            ui.DoUpdate(&m_frame, TRUE);
            pAction->setEnabled(ui.m_bEnabled);
            pAction->setCheckable(ui.m_nCheck != 0 || pAction->isChecked());
            pAction->setChecked(ui.m_nCheck != 0);
            if (ui.m_bTextSet) pAction->setText(CWindows1252::ToQString(ui.m_strText));
        }
    }
}

QAction* CQtMDIFrame::ActionOf(UINT nID) const {
    auto it = m_actions.find(nID);
    return it == m_actions.end() ? nullptr : it->second;
}

bool CQtMDIFrame::RunCommand(UINT nID) {
    if (!m_frame.GetSafeHwnd()) return false;
    CCmdUI ui;
    ui.m_nID = nID;
    ui.DoUpdate(&m_frame, TRUE);
    if (!ui.m_bEnabled) return false;
    m_frame.SendMessage(WM_COMMAND, nID, 0);
    return true;
}

void CQtMDIFrame::SetStatusPanes(const std::vector<UINT>& ids,
                                 const std::map<UINT, QString>& sizing) {
    for (QLabel* pLabel : m_paneLabels)
        delete pLabel;
    m_paneLabels.clear();
    m_frame.m_wndStatusBar.SetIndicators(ids.data(), static_cast<int>(ids.size()));
    for (size_t i = 0; i < ids.size(); ++i) {
        auto* pLabel = new QLabel(statusBar());
        if (ids[i] == ID_SEPARATOR) {
            statusBar()->addWidget(pLabel, 1);
        } else {
            QString sample = sizing.count(ids[i]) ? sizing.at(ids[i]) : QString();
            pLabel->setMinimumWidth(pLabel->fontMetrics().horizontalAdvance(sample) + 8);
            pLabel->setAlignment(Qt::AlignCenter);
            statusBar()->addPermanentWidget(pLabel);
        }
        m_paneLabels.push_back(pLabel);
    }
}

QLabel* CQtMDIFrame::PaneLabel(int nIndex) const {
    return nIndex >= 0 && nIndex < static_cast<int>(m_paneLabels.size())
               ? m_paneLabels[static_cast<size_t>(nIndex)]
               : nullptr;
}

void CQtMDIFrame::OnChildAdded(CMDIChildWnd* pChild) {
    QWidget* pWidget = CQtPlatform::WidgetOf(pChild);
    if (!pWidget) return;
    QMdiSubWindow* pSub = m_pArea->addSubWindow(pWidget);
    pSub->setAttribute(Qt::WA_DeleteOnClose, false);
    // Stacked like sheets, each a little lower and to the right.
    const int nOffset = static_cast<int>(m_subWindows.size() % 8) * 24;
    pSub->setGeometry(nOffset, nOffset, std::max(300, m_pArea->width() * 3 / 4),
                      std::max(200, m_pArea->height() * 3 / 4));
    pWidget->show();
    pSub->show();
    m_subWindows[pChild] = pSub;
}

void CQtMDIFrame::OnChildActivated(CMDIChildWnd* pChild) {
    QMdiSubWindow* pSub = SubWindowOf(pChild);
    if (!pSub || m_pArea->activeSubWindow() == pSub) return;
    m_bSyncing = true;
    m_pArea->setActiveSubWindow(pSub);
    m_bSyncing = false;
}

void CQtMDIFrame::OnChildRemoved(CMDIChildWnd* pChild) {
    auto it = m_subWindows.find(pChild);
    if (it == m_subWindows.end()) return;
    QPointer<QMdiSubWindow> pSub = it->second;
    m_subWindows.erase(it);
    if (!pSub) return;
    // The frame's window deletes its widget; the sub-window must not.
    if (QWidget* pWidget = CQtPlatform::WidgetOf(pChild)) {
        pWidget->hide();
        pWidget->setParent(nullptr);
    }
    m_bSyncing = true;
    m_pArea->removeSubWindow(pSub);
    m_bSyncing = false;
    pSub->deleteLater();
}

void CQtMDIFrame::closeEvent(QCloseEvent* event) {
    // The frame asks the documents; it is gone when they all let go.
    if (m_frame.GetSafeHwnd()) m_frame.SendMessage(WM_CLOSE);
    if (m_frame.GetSafeHwnd())
        event->ignore();
    else
        event->accept();
}

void CQtMDIFrame::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    // New children are sized from the frame's client area.
    if (m_frame.GetSafeHwnd()) m_frame.MoveWindow(0, 0, m_pArea->width(), m_pArea->height());
}
