#include "platform/Edit.h"

#include <cctype>
#include <string>

#include "host/MessageBeep.h"
#include "platform/Messages.h"

void CEdit::SetWindowText(const char* pszText) {
    CDialogControl::SetWindowText(pszText);
    NotifyParent(EN_CHANGE);
}

void CEdit::UserSetText(const char* pszText) {
    if (!IsWindowEnabled()) return;
    std::string text = pszText ? pszText : "";
    if (GetItemStyle() & DIS_NUMBER) {
        std::string digits;
        for (char c : text)
            if (std::isdigit(static_cast<unsigned char>(c))) digits.push_back(c);
        if (digits.size() != text.size()) {
            VESKMessageBeep(0);
            text = digits;
        }
    }
    if (m_nLimit > 0 && static_cast<int>(text.size()) > m_nLimit)
        text.resize(static_cast<size_t>(m_nLimit));
    if (text == m_strText) {
        Invalidate();
        return;
    }
    SetWindowText(text.c_str());
}
