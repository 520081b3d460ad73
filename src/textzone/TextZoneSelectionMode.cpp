// Selection modes and the two ends of a selection: the root, where it
// began, and the mobile end that keys and the mouse move.
#include <utility>

#include "textzone/TextZone.h"

void CTextZone::SetSelectionMode(short wMode) {
    bool hadSelection = TestSelection() != 0;
    WORD old = m_nSelectionMode;
    // Columns need wrapped lines off and every byte equally wide.
    if (wMode == TZ_SEL_BOX && ((m_dwStyle & ZS_PARAGRAPH) || IsFontProportionnal()))
        wMode = TZ_SEL_STREAM;
    if (wMode < 0 || wMode > 2) return;
    m_nSelectionMode = static_cast<WORD>(wMode);
    if (!hadSelection) return;
    bool toBox = old == 1 && wMode == TZ_SEL_BOX;
    bool toStream = old == 2 && wMode == TZ_SEL_STREAM;
    if (!toBox && !toStream) return;
    bool rootAtStart = m_nSelRootChar == m_nSelStartChar;
    int a = toBox ? ComputeBlockUnit(m_nSelStartLine, m_nSelStartChar)
                  : ComputeCharIndex(m_nSelStartLine, m_nSelStartChar);
    int b = toBox ? ComputeBlockUnit(m_nSelEndLine, m_nSelEndChar)
                  : ComputeCharIndex(m_nSelEndLine, m_nSelEndChar);
    if (toBox && a > b) std::swap(a, b);
    m_nSelStartChar = a;
    m_nSelEndChar = b;
    m_nSelRootChar = rootAtStart ? a : b;
}

short CTextZone::GetSelectionMode() {
    return static_cast<short>(m_nSelectionMode);
}

void CTextZone::StartSelection() {
    if (m_nSelectionMode == TZ_SEL_BOX) {
        m_nSelStartChar = ComputeBlockUnit(m_nSelStartLine, m_nSelStartChar);
        m_nSelEndChar = m_nSelStartChar;
    }
    m_nSelRootLine = m_nSelStartLine;
    m_nSelRootChar = m_nSelStartChar;
}

void CTextZone::CancelSelection(int bRedraw) {
    if (TestSelection()) {
        int oldFirst = m_nSelStartLine, oldLast = m_nSelEndLine;
        int line = GetSelMobileLine();
        int ch = GetSelMobileChar();
        if (m_nSelectionMode == TZ_SEL_BOX) ch = ComputeCharIndex(line, ch);
        m_nSelStartLine = m_nSelEndLine = line;
        m_nSelStartChar = m_nSelEndChar = ch;
        if (bRedraw) {
            RedrawLines(oldFirst, oldLast, 1);
            DrawCaret(1, 1);
        }
    }
    m_nSelRootLine = m_nSelStartLine;
    m_nSelRootChar = m_nSelStartChar;
}

void CTextZone::DefineSelectionFromRoot(int nLine, int nChar) {
    if (m_nSelectionMode == TZ_SEL_STREAM) {
        if (m_nSelRootLine == m_nSelStartLine && m_nSelRootChar == m_nSelStartChar) {
            m_nSelEndLine = nLine, m_nSelEndChar = nChar;
        } else {
            m_nSelStartLine = nLine, m_nSelStartChar = nChar;
        }
        if (m_nSelStartLine > m_nSelEndLine ||
            (m_nSelStartLine == m_nSelEndLine && m_nSelStartChar > m_nSelEndChar)) {
            std::swap(m_nSelStartLine, m_nSelEndLine);
            std::swap(m_nSelStartChar, m_nSelEndChar);
        }
    } else if (m_nSelectionMode == TZ_SEL_BOX) {
        // A box grows in all four directions: lines and columns go apart.
        if (m_nSelRootLine != m_nSelStartLine)
            m_nSelStartLine = nLine;
        else
            m_nSelEndLine = nLine;
        if (m_nSelRootChar != m_nSelStartChar)
            m_nSelStartChar = nChar;
        else
            m_nSelEndChar = nChar;
        if (m_nSelStartLine > m_nSelEndLine) std::swap(m_nSelStartLine, m_nSelEndLine);
        if (m_nSelStartChar > m_nSelEndChar) std::swap(m_nSelStartChar, m_nSelEndChar);
        if (m_nSelStartLine == m_nSelEndLine && m_nSelStartChar == m_nSelEndChar)
            m_nSelStartChar = m_nSelEndChar = ComputeCharIndex(m_nSelStartLine, m_nSelStartChar);
    }
}

int CTextZone::GetSelRootLine() {
    return m_nSelRootLine;
}
int CTextZone::GetSelRootChar() {
    return m_nSelRootChar;
}

int CTextZone::GetSelMobileLine() {
    if (m_nSelectionMode == TZ_SEL_BOX)
        return m_nSelRootLine == m_nSelStartLine ? m_nSelEndLine : m_nSelStartLine;
    bool rootAtStart = m_nSelRootLine == m_nSelStartLine && m_nSelRootChar == m_nSelStartChar;
    return rootAtStart ? m_nSelEndLine : m_nSelStartLine;
}

int CTextZone::GetSelMobileChar() {
    if (m_nSelectionMode == TZ_SEL_BOX)
        return m_nSelRootChar == m_nSelStartChar ? m_nSelEndChar : m_nSelStartChar;
    bool rootAtStart = m_nSelRootLine == m_nSelStartLine && m_nSelRootChar == m_nSelStartChar;
    return rootAtStart ? m_nSelEndChar : m_nSelStartChar;
}

int CTextZone::PtInSelection(POINT* pt) {
    if (!pt || !TestSelection()) return 0;
    int line = GetLineFromPoint(pt);
    int index = GetCharIndexFromPoint(GetLine(line), pt);
    if (m_nSelectionMode == TZ_SEL_BOX) {
        // The box's last line is not inside and the index is compared to the
        // columns unconverted: the drag code was tuned to this test.
        return line >= m_nSelStartLine && line < m_nSelEndLine && index >= m_nSelStartChar &&
               index < m_nSelEndChar;
    }
    if (line < m_nSelStartLine || line > m_nSelEndLine) return 0;
    if (m_nSelStartLine == m_nSelEndLine) return index >= m_nSelStartChar && index < m_nSelEndChar;
    if (line == m_nSelStartLine) return index >= m_nSelStartChar;
    if (line == m_nSelEndLine) return index < m_nSelEndChar;
    return 1;
}
