// Undo and redo. A unit is reversed by calling the same editing operations
// that the user's edit called; those record themselves as they run, into an
// operation that goes to the other list. So redo is undo with the two lists
// exchanged, and needs nothing of its own.
#include <algorithm>
#include <string>
#include <vector>

#include "platform/Messages.h"
#include "platform/Wnd.h"
#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

using OperationList = std::list<std::unique_ptr<CUndoOperation>>;

using textbytes::IsBlank;

bool ParagraphForm(const CTextZone& zone) {
    return zone.UndoByOffsets();
}

void CaretToFirstPlace(CTextZone& zone, const CUndoUnit& unit) {
    if (ParagraphForm(zone)) {
        zone.SetSelection(unit.m_nFirstLine, unit.m_nFirstLine, 0, 0, 1, 0);
        return;
    }
    zone.m_nSelStartLine = zone.m_nSelEndLine = unit.m_nFirstLine;
    zone.m_nSelStartChar = zone.m_nSelEndChar = unit.m_nFirstChar;
}

void SelectPlace(CTextZone& zone, const CUndoUnit& unit) {
    if (ParagraphForm(zone)) {
        zone.SetSelection(unit.m_nFirstLine, unit.m_nFirstChar, 0, 0, 1, 0);
        return;
    }
    zone.m_nSelStartLine = unit.m_nFirstLine;
    zone.m_nSelStartChar = unit.m_nFirstChar;
    zone.m_nSelEndLine = unit.m_nLastLine;
    zone.m_nSelEndChar = unit.m_nLastChar;
    // An empty unended last line may have come and gone in between: no end
    // stays past the place behind the text.
    const int last = zone.GetLastLineIndex();
    const int after = zone.GetLine(last) ? last + 1 : last;
    if (zone.m_nSelEndLine > after) zone.m_nSelEndLine = after, zone.m_nSelEndChar = 0;
    if (zone.m_nSelStartLine > after) zone.m_nSelStartLine = after, zone.m_nSelStartChar = 0;
}

// Before a restore of lines: the copy for the other list takes in every line
// the restore will touch, also lines behind the text that the restore brings
// back, or undoing the restore would leave them standing.
void SelectLinesToRecord(CTextZone& zone, const CUndoUnit& unit) {
    SelectPlace(zone, unit);
    if (ParagraphForm(zone)) return;
    zone.m_nSelStartLine = unit.m_nFirstLine;
    zone.m_nSelStartChar = unit.m_nFirstChar;
    zone.m_nSelEndLine = unit.m_nLastLine;
    zone.m_nSelEndChar = unit.m_nLastChar;
}

// Each line from the unit's first to its last takes back its copy: the
// bytes up to the next 10, the terminator included. The line object stays,
// and with it its bookmarks and block flags. Lines that were not there go
// again (the edit added them behind the text), and lines that were there
// come back if they are missing (a redo of such an edit).
void RestoreLines(CTextZone& zone, const CUndoUnit& unit) {
    const std::string& text = unit.m_hText;
    size_t pos = 0;
    for (int n = unit.m_nFirstLine; n <= unit.m_nLastLine && pos < text.size(); ++n) {
        size_t end = std::min(text.find('\n', pos), text.size());
        CStringEx* pLine = zone.GetLine(n);
        if (end - pos == 1 && text[pos] == '\0') {
            if (pLine)
                zone.RemoveLines(n, std::min(unit.m_nLastLine, zone.GetLastLineIndex()) - n + 1);
            break;
        }
        if (!pLine) pLine = zone.InsertLine(n);
        if (!pLine) break;
        pLine->assign(text.data() + pos, static_cast<int>(end - pos));
        pos = end + 1;
        // A line that comes back unended was the last one: an empty line
        // that an undone edit behind it left standing goes, or the text
        // would hold a line without its end.
        CStringEx* pNext = zone.GetLine(n + 1);
        if (!pLine->IsEnded() && pNext && pNext->IsEmpty() && !zone.GetLine(n + 2))
            zone.RemoveLines(n + 1, 1);
    }
}

// Gives the stored bookmarks back to the lines whose start lay inside the
// deleted selection, now selected again.
void HandOutInfos(CTextZone& zone, const CUndoUnit& unit) {
    if (!unit.m_pInfos) return;
    int line = zone.m_nSelStartLine + (zone.m_nSelStartChar != 0 ? 1 : 0);
    for (const std::unique_ptr<char[]>& info : *unit.m_pInfos) {
        CStringEx* pLine = zone.GetLine(line++);
        if (pLine) pLine->SetSpecificInfo(info.get());
    }
}

// After a retyped line end: the line that kept the bookmarks when the two
// lines were joined gets them back.
void HandOutJoinInfo(CTextZone& zone, const CUndoUnit& unit) {
    if (!unit.m_pInfos || unit.m_pInfos->empty()) return;
    int line = zone.m_nSelStartLine;
    CStringEx* pLine = zone.GetLine(line);
    bool blank = true;
    if (pLine) {
        const char* p = pLine->c_str();
        // Beyond the text a free caret stands on blanks.
        int n = std::min(zone.m_nSelStartChar, pLine->GetLength() - pLine->IsEnded());
        for (int i = 0; i < n && blank; ++i)
            blank = IsBlank(p[i]);
    }
    CStringEx* pTarget = blank ? pLine : zone.GetLine(line + 1);
    if (pTarget) pTarget->SetSpecificInfo(unit.m_pInfos->front().get());
}

void AfterBoxRestore(CTextZone& zone, const CUndoUnit& unit, int oldFirst, int oldLast) {
    zone.m_nSelRootLine = zone.m_nSelStartLine;
    zone.m_nSelRootChar = zone.m_nSelStartChar;
    // The lines changed behind the editing primitives' back.
    zone.RebuildCurrentLength();
    zone.RedrawLines(std::min(oldFirst, zone.m_nSelStartLine), std::max(oldLast, unit.m_nLastLine),
                     0);
}

bool IsBlockIndent(const CUndoOperation& op) {
    return op.m_wType == TZ_EDIT_INDENT || op.m_wType == TZ_EDIT_UNINDENT;
}

// Undo and Redo: the newest operation of one list is replayed, and what the
// replay records becomes the newest of the other.
void Replay(CTextZone& zone, OperationList& from, OperationList& to) {
    if (zone.m_bReadOnly || from.empty()) return;
    // The history keeps no mark of the saved state, so any step is a change.
    zone.SetModify(1);
    WORD oldMode = zone.m_nSelectionMode;
    zone.m_bUndoing = 1;

    std::unique_ptr<CUndoOperation> pOperation = std::move(from.back());
    from.pop_back();
    zone.m_pCurrentOperation = std::make_unique<CUndoOperation>();
    zone.m_pCurrentOperation->m_wType = pOperation->m_wType;

    zone.PerformUndoing(pOperation.get());

    if (zone.m_pCurrentOperation) to.push_back(std::move(zone.m_pCurrentOperation));
    zone.m_pCurrentOperation.reset();
    pOperation.reset();
    zone.m_bUndoing = 0;

    if (oldMode == TZ_SEL_STREAM && zone.m_nSelectionMode != TZ_SEL_STREAM && !zone.TestSelection())
        zone.SetSelectionMode(TZ_SEL_STREAM);
}

}  // namespace

void CTextZone::Undo() {
    Replay(*this, m_undoList, m_redoList);
}

void CTextZone::Redo() {
    Replay(*this, m_redoList, m_undoList);
}

void CTextZone::DropEmptiedLastLine() {
    const int line = m_nSelStartLine;
    const CStringEx* pLine = GetLine(line);
    // Line 0 stays: an empty text keeps its one empty line.
    if (line < 1 || !pLine || !pLine->IsEmpty() || line != GetLastLineIndex()) return;
    const CStringEx* pPrev = GetLine(line - 1);
    if (!pPrev || !pPrev->IsEnded()) return;
    RemoveLines(line, 1);
    RebuildCurrentLength();
}

void CTextZone::PerformUndoing(CUndoOperation* pOperation) {
    if (!pOperation) return;
    const CUndoOperation& op = *pOperation;

    // Newest first.
    std::vector<const CUndoUnit*> units;
    if (op.IsGroup()) {
        for (auto it = op.m_group.rbegin(); it != op.m_group.rend() && *it; ++it)
            units.push_back(it->get());
    } else {
        // Units past the second follow in the list, newest last.
        for (auto it = op.m_group.rbegin(); it != op.m_group.rend() && *it; ++it)
            units.push_back(it->get());
        if (op.m_pSecond) units.push_back(op.m_pSecond.get());
        if (op.m_pFirst) units.push_back(op.m_pFirst.get());
    }

    for (const CUndoUnit* pUnit : units) {
        const CUndoUnit& unit = *pUnit;
        int oldFirst = TZ_TO_END;
        int oldLast = 0;
        if (TestSelection()) {
            oldFirst = m_nSelStartLine;
            oldLast = m_nSelEndLine;
        }
        // A retyped key works on a caret, whatever the mode was.
        m_nSelectionMode = unit.m_wType == TZ_UNIT_CHAR_BEFORE || unit.m_wType == TZ_UNIT_CHAR_AT
                               ? TZ_SEL_STREAM
                               : unit.m_wSelMode;

        switch (unit.m_wType) {
            case TZ_UNIT_DELETED_TEXT:
                CaretToFirstPlace(*this, unit);
                if (!unit.m_hText.empty()) InsertText(unit.m_hText.c_str(), 0, 1, 1);
                SelectPlace(*this, unit);
                HandOutInfos(*this, unit);
                RedrawLines(std::min(oldFirst, m_nSelStartLine), TZ_TO_END, 0);
                break;

            case TZ_UNIT_CHAR_BEFORE:
            case TZ_UNIT_CHAR_AT:
                CaretToFirstPlace(*this, unit);
                // The key handlers record the inverse themselves, and while
                // undoing they add no automatic indentation.
                if (unit.m_cChar == 13)
                    HandleKeyDown(VK_RETURN, 0, 0);
                else if (unit.m_cChar == 9)
                    HandleKeyDown(VK_TAB, 0, 0);
                else if (unit.m_cChar != 0)
                    HandleChar(static_cast<unsigned char>(unit.m_cChar), 0, 0);
                SelectPlace(*this, unit);
                HandOutJoinInfo(*this, unit);
                RedrawLines(std::min(oldFirst, m_nSelStartLine), std::max(oldLast, m_nSelEndLine),
                            0);
                break;

            case TZ_UNIT_TYPED:
            case TZ_UNIT_INSERTED:
                if (unit.m_wType == TZ_UNIT_TYPED) m_nSelectionMode = TZ_SEL_STREAM;
                SelectPlace(*this, unit);
                DeleteSelection(1);
                DropEmptiedLastLine();
                m_nSelectionMode = unit.m_wSelMode;
                RedrawLines(std::min(oldFirst, m_nSelStartLine), TZ_TO_END, 0);
                break;

            case TZ_UNIT_LINES:
                SelectLinesToRecord(*this, unit);
                RegisterUnit(TZ_UNIT_LINES_CARET);
                if (!unit.m_hText.empty()) RestoreLines(*this, unit);
                SelectPlace(*this, unit);
                if (IsBlockIndent(op)) {
                    // An indented block stays selected as whole lines.
                    m_nSelectionMode = TZ_SEL_STREAM;
                    ++m_nSelEndLine;
                    m_nSelStartChar = m_nSelEndChar = 0;
                }
                AfterBoxRestore(*this, unit, oldFirst, oldLast);
                break;

            case TZ_UNIT_LINES_CARET:
                SelectLinesToRecord(*this, unit);
                RegisterUnit(TZ_UNIT_LINES);
                if (!unit.m_hText.empty()) RestoreLines(*this, unit);
                m_nSelStartLine = m_nSelEndLine = unit.m_nFirstLine;
                m_nSelStartChar = m_nSelEndChar =
                    ComputeCharIndex(unit.m_nFirstLine, unit.m_nFirstChar);
                if (IsBlockIndent(op)) {
                    m_nSelectionMode = TZ_SEL_STREAM;
                    m_nSelEndLine = unit.m_nLastLine + 1;
                    m_nSelStartChar = m_nSelEndChar = 0;
                }
                AfterBoxRestore(*this, unit, oldFirst, oldLast);
                break;

            case TZ_UNIT_LINE_IMAGES:
                ReplayLineImages(unit);
                break;

            default:
                break;
        }
    }

    if (m_pWnd && m_pWnd->GetSafeHwnd()) m_pWnd->UpdateWindow();
    DrawCaret(1, 1);
}
