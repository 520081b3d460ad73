// The clipboard, in plain text only: a box goes out as lines, and whether
// text comes back as a box is up to the zone it is pasted into.
#include <cstring>
#include <string>
#include <vector>

#include "platform/Messages.h"
#include "platform/Platform.h"
#include "textzone/TextZone.h"

namespace {

// The wait cursor for the length of a scope.
class CWaitCursor {
public:
    CWaitCursor() {
        if (IPlatform* p = GetPlatform()) p->BeginWaitCursor();
    }
    ~CWaitCursor() {
        if (IPlatform* p = GetPlatform()) p->EndWaitCursor();
    }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

}  // namespace

int CTextZone::Copy() {
    if (!TestSelection()) return 0;
    CWaitCursor wait;
    const std::string text = GetSelectedTextString(TF_CRLF);
    if (!OpenClipboard(m_pWnd)) return 0;
    EmptyClipboard();
    BOOL taken = SetClipboardData(CF_TEXT, text);
    CloseClipboard();
    return taken ? 1 : 0;
}

int CTextZone::Cut() {
    if (!TestSelection()) return 1;
    int copied = Copy();
    if (copied && !m_bReadOnly) {
        SetModify(1);
        StartRegister(TZ_EDIT_CUT);
        DeleteSelection(1);
        EndRegister();
        UpdateVScrollBar();
        UpdateHScrollBar(0, TZ_TO_END);
    }
    return copied;
}

int CTextZone::Paste() {
    if (m_bReadOnly) return 0;
    std::string text;
    if (!OpenClipboard(m_pWnd)) return 1;
    bool got = IsClipboardFormatAvailable(CF_TEXT) && GetClipboardData(CF_TEXT, &text);
    CloseClipboard();
    // The text ends at its first 0, as the clipboard's text format does.
    if (!got) return 1;
    text.resize(std::strlen(text.c_str()));
    if (text.empty()) return 1;

    const LONG n = static_cast<LONG>(text.size());
    const bool oneLine = text.find_first_of("\r\n") == std::string::npos;

    // A box caret over several lines takes a one-line text on every line.
    if (oneLine && m_nSelectionMode == TZ_SEL_BOX && m_nSelStartChar == m_nSelEndChar &&
        m_nSelStartLine != m_nSelEndLine) {
        const int startLine = m_nSelStartLine;
        const int endLine = m_nSelEndLine;
        const int column = m_nSelStartChar;
        const LONG lines = endLine - startLine + 1;
        // Reckoned wide: a long text on many lines passes any 32-bit limit.
        if (m_lMaxLength <= 0 ||
            static_cast<long long>(lines) * n + m_nCurrentLength <= m_lMaxLength) {
            SetModify(1);
            StartRegister(TZ_EDIT_TYPING);
            HideCaret();
            std::string all;
            all.reserve(static_cast<size_t>(lines) * (static_cast<size_t>(n) + 1));
            for (LONG i = 0; i < lines; ++i) {
                all += text;
                all += '\r';
            }
            InsertText(all.c_str(), 0, 1, 1);
            m_nSelStartLine = startLine;
            m_nSelStartChar = m_nSelEndChar = column + n;
            EndRegister();
            RedrawLines(startLine, endLine, 1);
            DrawCaret(1, 1);
            return 1;
        }
        // Too long for every line: perhaps it fits once.
    }

    if (m_lMaxLength > 0 &&
        static_cast<long long>(m_nCurrentLength) + n - GetSelectedTextLength(0) > m_lMaxLength) {
        OnTextTooLong();
        return 1;
    }
    SetModify(1);
    CWaitCursor wait;
    StartRegister(TZ_EDIT_PASTE);
    InsertText(text.c_str(), 0, 1, 1);
    EndRegister();
    return 1;
}
