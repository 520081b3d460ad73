// The find and replace dialog on Qt, as the desktop's own looks: the text
// to find (and the replacement), match case, the direction (find only),
// Find Next as the default button, Replace, Replace All and Cancel. Enter
// finds the next match, Escape closes. Each button reports through the
// portable dialog, which sends the registered message to its editor.
#pragma once

#include <QDialog>

#include "platform/qt/QtDialogPeer.h"

class CFindReplaceDialog;
class CQtPlatform;
class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

class CQtFindReplaceWidget : public QDialog {
public:
    CQtFindReplaceWidget(CFindReplaceDialog* pDialog, QWidget* pParent);

    // The window is going: nothing reaches it from here on.
    void Detach() { m_pDialog = nullptr; }
    QLineEdit* FindEdit() const { return m_pFind; }
    QLineEdit* ReplaceEdit() const { return m_pReplace; }

protected:
    void reject() override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Act(DWORD dwAction);
    void UpdateButtons();

    CFindReplaceDialog* m_pDialog;
    QLineEdit* m_pFind;
    QLineEdit* m_pReplace = nullptr;
    QCheckBox* m_pCase;
    QRadioButton* m_pDown = nullptr;
    QPushButton* m_pFindNext;
    QPushButton* m_pReplaceOne = nullptr;
    QPushButton* m_pReplaceAll = nullptr;
};

class CQtFindReplacePeer : public CQtDialogPeer {
public:
    CQtFindReplacePeer(CQtPlatform& platform, CWnd* pWnd, const CREATESTRUCTA& cs);
    ~CQtFindReplacePeer() override;

protected:
    void DetachWidget() override;

private:
    CQtFindReplaceWidget* m_pDialogWidget;
};
