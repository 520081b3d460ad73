#include "platform/qt/QtDialogControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <functional>

#include "platform/Button.h"
#include "platform/ComboBox.h"
#include "platform/Edit.h"
#include "platform/FontFamilies.h"
#include "platform/GdiObjects.h"
#include "platform/ListBox.h"
#include "platform/ListCtrl.h"
#include "platform/Messages.h"
#include "platform/SpinButtonCtrl.h"
#include "platform/Static.h"
#include "platform/qt/QtDC.h"
#include "platform/qt/QtFonts.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/Windows1252.h"

namespace {

QColor ColorOf(COLORREF cr) {
    return QColor(GetRValue(cr), GetGValue(cr), GetBValue(cr));
}

QRect RectOf(const CDialogControl* pControl) {
    RECT rc;
    pControl->GetWindowRect(&rc);
    return QRect(rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top);
}

QString TextOf(const std::string& text) {
    return QString::fromLatin1(text.c_str());
}

std::string BytesOf(const QString& text) {
    return text.toLatin1().toStdString();
}

// A label drawn as the static control is: the brush over the whole control,
// the text centred (or at the left) in the control's font, its cell filled
// with the background colour when the mode is opaque, and a sunken frame.
class CSampleWidget : public QWidget {
public:
    CSampleWidget(CStatic* pStatic, QWidget* pParent) : QWidget(pParent), m_pStatic(pStatic) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const CStatic::Colors colors = m_pStatic->GetDrawColors();
        painter.fillRect(rect(), ColorOf(colors.crBrush));
        QFont font = this->font();
        if (HFONT hFont = m_pStatic->GetFont()) font = CQtFonts::MakeQFont(hFont->lf);
        painter.setFont(font);
        const QString text = TextOf(m_pStatic->GetText());
        const int nFlags =
            (m_pStatic->GetItemStyle() & DIS_CENTER ? Qt::AlignHCenter : Qt::AlignLeft) |
            Qt::AlignVCenter;
        const QRect rcText = painter.boundingRect(rect(), nFlags, text);
        if (colors.nBkMode == OPAQUE) painter.fillRect(rcText, ColorOf(colors.crBk));
        painter.setPen(ColorOf(colors.crText));
        painter.drawText(rect(), nFlags, text);
        if (m_pStatic->GetItemStyle() & DIS_SUNKEN) {
            painter.setPen(palette().color(QPalette::Dark));
            painter.drawLine(0, 0, width() - 1, 0);
            painter.drawLine(0, 0, 0, height() - 1);
            painter.setPen(palette().color(QPalette::Light));
            painter.drawLine(0, height() - 1, width() - 1, height() - 1);
            painter.drawLine(width() - 1, 0, width() - 1, height() - 1);
        }
    }

private:
    CStatic* m_pStatic;
};

class CTextView : public CQtControlView {
public:
    CTextView(CDialogControl* pControl, QWidget* pWidget) : CQtControlView(pControl, pWidget) {}

protected:
    void Show() override {
        if (auto* pLabel = qobject_cast<QLabel*>(Widget()))
            pLabel->setText(TextOf(Control()->GetText()));
        if (auto* pGroup = qobject_cast<QGroupBox*>(Widget()))
            pGroup->setTitle(TextOf(Control()->GetText()));
        Widget()->update();
    }
};

class CButtonView : public CQtControlView {
public:
    CButtonView(CButton* pButton, QAbstractButton* pWidget) : CQtControlView(pButton, pWidget) {
        QObject::connect(pWidget, &QAbstractButton::clicked, [this, pButton] {
            if (!m_bRefreshing) pButton->UserClick();
            Refresh();
        });
    }

protected:
    void Show() override {
        auto* pWidget = static_cast<QAbstractButton*>(Widget());
        auto* pButton = static_cast<CButton*>(Control());
        pWidget->setText(TextOf(pButton->GetText()));
        if (pWidget->isCheckable()) pWidget->setChecked(pButton->GetCheck() != 0);
    }
};

class CEditView : public CQtControlView {
public:
    CEditView(CEdit* pEdit, QLineEdit* pWidget) : CQtControlView(pEdit, pWidget) {
        QObject::connect(pWidget, &QLineEdit::textEdited, [this, pEdit](const QString& text) {
            if (m_bRefreshing) return;
            pEdit->UserSetText(BytesOf(text).c_str());
            Refresh();
        });
    }

protected:
    void Show() override {
        auto* pWidget = static_cast<QLineEdit*>(Widget());
        const QString text = TextOf(Control()->GetText());
        if (pWidget->text() != text) pWidget->setText(text);
    }
};

// The arrow keys in the buddy edit step it, as the arrows do.
class CArrowKeyFilter : public QObject {
public:
    CArrowKeyFilter(CSpinButtonCtrl* pSpin, QObject* pParent) : QObject(pParent), m_pSpin(pSpin) {}

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override {
        if (pEvent->type() == QEvent::KeyPress) {
            const int nKey = static_cast<QKeyEvent*>(pEvent)->key();
            if (nKey == Qt::Key_Up || nKey == Qt::Key_Down) {
                m_pSpin->UserStep(nKey == Qt::Key_Up ? 1 : -1);
                return true;
            }
        }
        return QObject::eventFilter(pObject, pEvent);
    }

private:
    CSpinButtonCtrl* m_pSpin;
};

class CSpinView : public CQtControlView {
public:
    CSpinView(CSpinButtonCtrl* pSpin, QWidget* pWidget) : CQtControlView(pSpin, pWidget) {
        // The buddy comes before its arrows on the page.
        if (QWidget* pBuddy = pWidget->parentWidget()->findChild<QWidget*>(
                QString::number(pSpin->GetItem().nBuddy), Qt::FindDirectChildrenOnly))
            pBuddy->installEventFilter(new CArrowKeyFilter(pSpin, pWidget));
        auto* pLayout = new QVBoxLayout(pWidget);
        pLayout->setContentsMargins(0, 0, 0, 0);
        pLayout->setSpacing(0);
        for (int nDelta : {1, -1}) {
            auto* pArrow = new QToolButton(pWidget);
            pArrow->setArrowType(nDelta > 0 ? Qt::UpArrow : Qt::DownArrow);
            pArrow->setAutoRepeat(true);
            pArrow->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            pLayout->addWidget(pArrow);
            QObject::connect(pArrow, &QToolButton::clicked,
                             [pSpin, nDelta] { pSpin->UserStep(nDelta); });
        }
    }

protected:
    void Show() override {}
};

class CListBoxView : public CQtControlView {
public:
    CListBoxView(CListBox* pList, QListWidget* pWidget) : CQtControlView(pList, pWidget) {
        QObject::connect(pWidget, &QListWidget::currentRowChanged, [this, pList](int nRow) {
            if (m_bRefreshing) return;
            pList->UserSelect(nRow);
            Refresh();
        });
    }

protected:
    void Show() override {
        auto* pWidget = static_cast<QListWidget*>(Widget());
        auto* pList = static_cast<CListBox*>(Control());
        QStringList items;
        for (const std::string& item : pList->Items())
            items << TextOf(item);
        QStringList shown;
        for (int i = 0; i < pWidget->count(); ++i)
            shown << pWidget->item(i)->text();
        if (shown != items) {
            pWidget->clear();
            pWidget->addItems(items);
        }
        pWidget->setCurrentRow(pList->GetCurSel());
        if (pList->GetCurSel() < 0) pWidget->clearSelection();
    }
};

class CComboView : public CQtControlView {
public:
    CComboView(CComboBox* pCombo, QComboBox* pWidget) : CQtControlView(pCombo, pWidget) {
        QObject::connect(pWidget, qOverload<int>(&QComboBox::activated),
                         [this, pCombo](int nIndex) {
                             if (m_bRefreshing) return;
                             pCombo->UserSelect(nIndex);
                             Refresh();
                         });
    }

protected:
    void Show() override {
        auto* pWidget = static_cast<QComboBox*>(Widget());
        auto* pCombo = static_cast<CComboBox*>(Control());
        const QSize size(std::max(8, pWidget->width() - 30), std::max(8, pWidget->height() - 6));
        pWidget->setIconSize(size);
        std::vector<DWORD_PTR> items;
        for (int i = 0; i < pCombo->GetCount(); ++i)
            items.push_back(pCombo->GetItemData(i));
        if (items != m_shown) {
            pWidget->clear();
            for (int i = 0; i < pCombo->GetCount(); ++i)
                pWidget->addItem(QIcon(QPixmap::fromImage(Render(pCombo, i, size))), QString());
            m_shown = items;
        }
        pWidget->setCurrentIndex(pCombo->GetCurSel());
    }

private:
    // The item as the combo's DrawItem draws it.
    static QImage Render(CComboBox* pCombo, int nIndex, QSize size) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(ColorOf(GetSysColor(COLOR_WINDOW)));
        if (CQtPlatform* pPlatform = CQtPlatform::Instance()) {
            CQtDC dc(pPlatform->Fonts(), &image, CRgn(RECT{0, 0, size.width(), size.height()}),
                     nullptr);
            pCombo->DrawItemInto(&dc, nIndex, RECT{0, 0, size.width(), size.height()}, false);
        }
        return image;
    }

    std::vector<DWORD_PTR> m_shown;
};

// Tells the list control when Qt resizes the widget.
class CReportWidget : public QTreeWidget {
public:
    CReportWidget(CListCtrl* pList, QWidget* pParent) : QTreeWidget(pParent), m_pList(pList) {}

protected:
    void resizeEvent(QResizeEvent* pEvent) override {
        QTreeWidget::resizeEvent(pEvent);
        RECT rc;
        m_pList->GetWindowRect(&rc);
        rc.right = rc.left + pEvent->size().width();
        rc.bottom = rc.top + pEvent->size().height();
        m_pList->MoveWindow(rc);
    }

private:
    CListCtrl* m_pList;
};

class CReportView : public CQtControlView {
public:
    CReportView(CListCtrl* pList, QTreeWidget* pWidget) : CQtControlView(pList, pWidget) {
        pWidget->setRootIsDecorated(false);
        pWidget->setSelectionMode(QAbstractItemView::SingleSelection);
        pWidget->setSortingEnabled(false);
        pWidget->header()->setSectionsClickable(false);
        pWidget->header()->setStretchLastSection(false);
        QObject::connect(pWidget, &QTreeWidget::itemSelectionChanged, [this, pList, pWidget] {
            if (m_bRefreshing) return;
            const QList<QTreeWidgetItem*> selected = pWidget->selectedItems();
            if (!selected.isEmpty())
                pList->UserSelectRow(pWidget->indexOfTopLevelItem(selected.front()));
            Refresh();
        });
        QObject::connect(pWidget->header(), &QHeaderView::sectionResized,
                         [this, pList](int nCol, int, int nWidth) {
                             if (!m_bRefreshing) pList->UserSetColumnWidth(nCol, nWidth);
                         });
    }

protected:
    void Show() override {
        auto* pWidget = static_cast<QTreeWidget*>(Widget());
        auto* pList = static_cast<CListCtrl*>(Control());
        QStringList titles;
        for (int i = 0; i < pList->GetColumnCount(); ++i)
            titles << TextOf(pList->GetColumn(i).strTitle);
        if (pWidget->columnCount() != pList->GetColumnCount())
            pWidget->setColumnCount(pList->GetColumnCount());
        pWidget->setHeaderLabels(titles);
        while (pWidget->topLevelItemCount() > pList->GetItemCount())
            delete pWidget->takeTopLevelItem(pWidget->topLevelItemCount() - 1);
        while (pWidget->topLevelItemCount() < pList->GetItemCount())
            pWidget->addTopLevelItem(new QTreeWidgetItem());
        for (int nRow = 0; nRow < pList->GetItemCount(); ++nRow) {
            QTreeWidgetItem* pItem = pWidget->topLevelItem(nRow);
            for (int nCol = 0; nCol < pList->GetColumnCount(); ++nCol)
                pItem->setText(nCol, TextOf(pList->GetItemText(nRow, nCol)));
            pItem->setSelected(pList->GetItemState(nRow, LVIS_SELECTED) != 0);
        }
        for (int nCol = 0; nCol < pList->GetColumnCount(); ++nCol)
            pWidget->setColumnWidth(nCol, pList->GetColumnWidth(nCol));
    }
};

class CQtFontFamilySource : public IFontFamilySource {
public:
    std::vector<FontFamilyInfo> GetFontFamilies() override {
        std::vector<FontFamilyInfo> families = GetBuiltInFontFamilies();
        for (const QString& family : QFontDatabase::families())
            families.push_back(FontFamilyInfo{BytesOf(family), QFontDatabase::isFixedPitch(family),
                                              QFontDatabase::isSmoothlyScalable(family)});
        return families;
    }
};

}  // namespace

CQtControlView::CQtControlView(CDialogControl* pControl, QWidget* pWidget)
    : m_pControl(pControl), m_pWidget(pWidget) {
    pWidget->setGeometry(RectOf(pControl));
    pControl->SetView(this);
}

CQtControlView::~CQtControlView() {
    if (m_pControl->GetView() == this) m_pControl->SetView(nullptr);
}

void CQtControlView::Refresh() {
    if (!m_pWidget || m_bRefreshing) return;
    m_bRefreshing = true;
    const QSignalBlocker blocker(m_pWidget);
    m_pWidget->setEnabled(m_pControl->IsWindowEnabled());
    Show();
    m_bRefreshing = false;
}

std::unique_ptr<CQtControlView> CQtControlView::Create(CDialogControl* pControl, QWidget* pPage) {
    std::unique_ptr<CQtControlView> pView;
    const QString text = TextOf(pControl->GetText());
    switch (pControl->GetKind()) {
        case DlgItemKind::Group: {
            auto* pGroup = new QGroupBox(text, pPage);
            pGroup->lower();
            pView = std::make_unique<CTextView>(pControl, pGroup);
            break;
        }
        case DlgItemKind::Text:
            pView = std::make_unique<CTextView>(pControl, new QLabel(text, pPage));
            break;
        case DlgItemKind::Static:
            if (auto* pStatic = dynamic_cast<CStatic*>(pControl))
                pView = std::make_unique<CTextView>(pControl, new CSampleWidget(pStatic, pPage));
            break;
        case DlgItemKind::PushButton:
        case DlgItemKind::CheckBox:
        case DlgItemKind::RadioButton: {
            auto* pButton = dynamic_cast<CButton*>(pControl);
            if (!pButton) break;
            QAbstractButton* pWidget = nullptr;
            if (pControl->GetKind() == DlgItemKind::PushButton) {
                pWidget = new QPushButton(text, pPage);
            } else if (pControl->GetKind() == DlgItemKind::CheckBox) {
                pWidget = new QCheckBox(text, pPage);
            } else {
                pWidget = new QRadioButton(text, pPage);
                pWidget->setAutoExclusive(false);
            }
            pView = std::make_unique<CButtonView>(pButton, pWidget);
            break;
        }
        case DlgItemKind::Edit:
            if (auto* pEdit = dynamic_cast<CEdit*>(pControl))
                pView = std::make_unique<CEditView>(pEdit, new QLineEdit(pPage));
            break;
        case DlgItemKind::UpDown:
            if (auto* pSpin = dynamic_cast<CSpinButtonCtrl*>(pControl))
                pView = std::make_unique<CSpinView>(pSpin, new QWidget(pPage));
            break;
        case DlgItemKind::ListBox:
            if (auto* pList = dynamic_cast<CListBox*>(pControl))
                pView = std::make_unique<CListBoxView>(pList, new QListWidget(pPage));
            break;
        case DlgItemKind::ComboBox:
            if (auto* pCombo = dynamic_cast<CComboBox*>(pControl))
                pView = std::make_unique<CComboView>(pCombo, new QComboBox(pPage));
            break;
        case DlgItemKind::ListView:
            if (auto* pList = dynamic_cast<CListCtrl*>(pControl))
                pView = std::make_unique<CReportView>(pList, new CReportWidget(pList, pPage));
            break;
    }
    if (pView) {
        pView->Widget()->setObjectName(QString::number(pControl->GetDlgCtrlID()));
        pView->Refresh();
        // A page shown before its controls were made would not show them.
        pView->Widget()->show();
    }
    return pView;
}

void InstallQtFontFamilySource() {
    static CQtFontFamilySource source;
    SetFontFamilySource(&source);
}
