#include "pages/ListCtrlEx.h"

#include <cstdlib>
#include <cstring>

#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/PropertyPage.h"

bool CListCtrlEx::s_bInSize = false;

namespace {

std::vector<std::string> SplitTabs(const std::string& text) {
    std::vector<std::string> parts;
    size_t nStart = 0;
    for (;;) {
        const size_t nTab = text.find('\t', nStart);
        parts.push_back(
            text.substr(nStart, nTab == std::string::npos ? std::string::npos : nTab - nStart));
        if (nTab == std::string::npos) return parts;
        nStart = nTab + 1;
    }
}

}  // namespace

CListCtrlEx::~CListCtrlEx() = default;

void CListCtrlEx::SetColumns(const char* pHeader) {
    if (m_nColumns || !pHeader) return;
    for (const std::string& column : SplitTabs(pHeader)) {
        const size_t nSemi = column.find(';');
        const std::string strTitle = column.substr(0, nSemi);
        bool bProportional = false;
        int nWidth = 0;
        if (nSemi != std::string::npos) {
            const char* p = column.c_str() + nSemi + 1;
            if (*p == 'P') {
                bProportional = true;
                ++p;
            }
            nWidth = std::atoi(p);
        }
        RECT rc = {0, 0, nWidth, 0};
        if (CPropertyPage* pParent = GetParent()) pParent->MapDialogRect(&rc);
        InsertColumn(m_nColumns, strTitle.c_str(), LVCFMT_LEFT, rc.right);
        m_pProportional.push_back(bProportional ? 1 : 0);
        ++m_nColumns;
    }
    m_pProportional.push_back(0);
    m_nBaseWidth = m_nClientWidth =
        GetWindowWidth() - 2 * GetSystemMetrics(SM_CXBORDER) - GetSystemMetrics(SM_CXVSCROLL);
    for (int i = 0; i < m_nColumns; ++i) {
        m_pWidths.push_back(GetColumnWidth(i));
        m_pBaseWidths.push_back(GetColumnWidth(i));
    }
}

void CListCtrlEx::FillRow(int nIndex, const char* pText) {
    const std::vector<std::string> parts = SplitTabs(pText ? pText : "");
    FreeExtra(nIndex);
    for (size_t i = 0; i < parts.size(); ++i) {
        if (static_cast<int>(i) < std::max(1, m_nColumns)) {
            SetItemText(nIndex, static_cast<int>(i), parts[i].c_str());
            continue;
        }
        // No column for this part: it and all after it stay with the row.
        std::string extra = parts[i];
        for (size_t k = i + 1; k < parts.size(); ++k)
            extra += "\t" + parts[k];
        m_extraList.push_back(std::make_unique<std::string>(std::move(extra)));
        SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(m_extraList.back().get()));
        break;
    }
    for (size_t i = parts.size(); static_cast<int>(i) < m_nColumns; ++i)
        SetItemText(nIndex, static_cast<int>(i), "");
}

void CListCtrlEx::FreeExtra(int nIndex) {
    const auto* pExtra = reinterpret_cast<const std::string*>(GetItemData(nIndex));
    if (!pExtra) return;
    m_extraList.remove_if([pExtra](const auto& p) { return p.get() == pExtra; });
    SetItemData(nIndex, 0);
}

int CListCtrlEx::AddRow(const char* pText) {
    return InsertRow(GetItemCount(), pText);
}

int CListCtrlEx::InsertRow(int nIndex, const char* pText) {
    const int nItem = InsertItem(nIndex, "");
    FillRow(nItem, pText);
    return nItem;
}

void CListCtrlEx::SetRow(int nIndex, const char* pText) {
    if (nIndex < 0 || nIndex >= GetItemCount()) return;
    FillRow(nIndex, pText);
}

std::string CListCtrlEx::GetRowText(int nIndex) {
    std::string text;
    for (int i = 0; i < m_nColumns; ++i) {
        char buffer[256];
        GetItemText(nIndex, i, buffer, sizeof buffer);
        text += buffer;
        text += '\t';
    }
    if (const auto* pExtra = reinterpret_cast<const std::string*>(GetItemData(nIndex)))
        text += *pExtra;
    else if (!text.empty())
        text.pop_back();
    return text;
}

int CListCtrlEx::GetRowText(int nIndex, char* pBuffer) {
    const std::string text = GetRowText(nIndex);
    if (pBuffer) std::memcpy(pBuffer, text.c_str(), text.size() + 1);
    return static_cast<int>(text.size());
}

void CListCtrlEx::DeleteRow(int nIndex) {
    if (nIndex < 0 || nIndex >= GetItemCount()) return;
    FreeExtra(nIndex);
    DeleteItem(nIndex);
}

int CListCtrlEx::GetSelectedRow() const {
    return GetNextItem(-1, LVNI_SELECTED);
}

void CListCtrlEx::SelectRow(int nIndex) {
    SetItemState(-1, 0, LVIS_SELECTED);
    if (nIndex >= 0) SetItemState(nIndex, LVIS_SELECTED, LVIS_SELECTED);
}

void CListCtrlEx::OnSize(UINT nType, int cx, int cy) {
    if (m_nColumns && !s_bInSize) {
        s_bInSize = true;
        const int nOld = m_nClientWidth;
        const int nNew =
            cx - 2 * GetSystemMetrics(SM_CXBORDER) - GetSystemMetrics(SM_CXVSCROLL) - 3;
        m_nClientWidth = nNew;
        if (nOld != nNew) {
            bool bDragged = false;
            int nSum = 0;
            std::vector<int> real(static_cast<size_t>(m_nColumns));
            for (int i = 0; i < m_nColumns; ++i) {
                real[static_cast<size_t>(i)] = GetColumnWidth(i);
                bDragged =
                    bDragged || real[static_cast<size_t>(i)] != m_pWidths[static_cast<size_t>(i)];
                nSum += real[static_cast<size_t>(i)];
            }
            const int nCase = nSum < nOld ? 1 : nSum < nNew ? 2 : 0;
            if (bDragged || nCase == 2) {
                m_pWidths = real;
                m_pBaseWidths = real;
                m_nBaseWidth = nCase == 2 ? nSum : nOld;
            }
            int nFixed = 0;
            for (int i = 0; i < m_nColumns; ++i)
                if (!m_pProportional[static_cast<size_t>(i)])
                    nFixed += m_pWidths[static_cast<size_t>(i)];
            if (nCase != 0 && m_nBaseWidth > nFixed) {
                int nTotal = 0;
                for (int i = 0; i < m_nColumns; ++i) {
                    auto k = static_cast<size_t>(i);
                    if (m_pProportional[k])
                        m_pWidths[k] = m_pBaseWidths[k] * (nNew - nFixed) / (m_nBaseWidth - nFixed);
                    nTotal += m_pWidths[k];
                }
                int nRest = nCase == 1 ? nNew - nOld - nTotal + nSum : nNew - nTotal - 2;
                for (bool bChanged = true; nRest != 0 && bChanged;) {
                    bChanged = false;
                    for (int i = 0; i < m_nColumns && nRest != 0; ++i) {
                        if (!m_pProportional[static_cast<size_t>(i)]) continue;
                        const int nStep = nRest > 0 ? 1 : -1;
                        m_pWidths[static_cast<size_t>(i)] += nStep;
                        nRest -= nStep;
                        bChanged = true;
                    }
                }
                for (int i = 0; i < m_nColumns; ++i) {
                    auto k = static_cast<size_t>(i);
                    if (m_pWidths[k] < 0) m_pWidths[k] = 0;
                    if (m_pProportional[k]) SetColumnWidth(i, m_pWidths[k]);
                }
                if (nCase == 2) {
                    m_nBaseWidth = nNew - 2;
                    m_pBaseWidths = m_pWidths;
                }
            }
        }
        s_bInSize = false;
    }
    CListCtrl::OnSize(nType, cx, cy);
}
