// Qt widgets for the controls of a property page: each control gets a view
// that makes its widget at the control's place on the page, shows the
// control's state whenever it changes, and turns what the user does into
// the control's User... calls.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "TextzoneQtExport.h"
#include "platform/DialogControl.h"

class TEXTZONE_QT_EXPORT CQtControlView : public IControlView {
public:
    // Makes the widget as a child of pPage and attaches to the control.
    static std::unique_ptr<CQtControlView> Create(CDialogControl* pControl, QWidget* pPage);
    ~CQtControlView() override;

    QWidget* Widget() const { return m_pWidget; }
    CDialogControl* Control() const { return m_pControl; }
    void Refresh() override;

protected:
    CQtControlView(CDialogControl* pControl, QWidget* pWidget);
    virtual void Show() = 0;
    // True while the view writes into its widget, so that the widget's
    // signals of that moment are not taken for the user's.
    bool m_bRefreshing = false;

private:
    CDialogControl* m_pControl;
    QPointer<QWidget> m_pWidget;
};

// Fonts listed by the platform for the font page: the system's families
// and the desktop faces the backend maps onto them.
void InstallQtFontFamilySource();
