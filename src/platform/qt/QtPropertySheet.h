// A property sheet on the screen: a dialog with a tab per page and OK,
// Cancel and Apply. Each page's controls become widgets at their places
// when the page is first shown. The sheet (and its pages) must outlive the
// dialog.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "TextzoneQtExport.h"
#include "platform/PropertySheet.h"
#include "platform/qt/QtDialogControls.h"

class QPushButton;
class QTabWidget;

class TEXTZONE_QT_EXPORT CQtPropertySheet : public QDialog, private ISheetView {
public:
    explicit CQtPropertySheet(CPropertySheet& sheet, QWidget* pParent = nullptr);
    ~CQtPropertySheet() override;

    CPropertySheet& Sheet() { return m_sheet; }
    QTabWidget* Tabs() const { return m_pTabs; }
    QPushButton* OKButton() const { return m_pOK; }
    QPushButton* CancelButton() const { return m_pCancel; }
    QPushButton* ApplyButton() const { return m_pApply; }
    // The widget of a control of a page, or null before the page is shown.
    QWidget* ControlWidget(int nPage, int nID) const;

    void accept() override;
    void reject() override;

private:
    void RefreshButtons() override;
    void PageCreated(int nPage) override;
    void OnTabChanged(int nIndex);

    CPropertySheet& m_sheet;
    QTabWidget* m_pTabs;
    QPushButton* m_pOK;
    QPushButton* m_pCancel;
    QPushButton* m_pApply;
    std::vector<QWidget*> m_pageWidgets;
    std::vector<std::unique_ptr<CQtControlView>> m_views;
    bool m_bSwitching = false;
};
