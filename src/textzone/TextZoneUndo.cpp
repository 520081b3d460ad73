// Recording the undo history. Every edit opens an operation, the editing
// primitives file units into it saying how to reverse each of their steps,
// and closing the operation puts it on the history. Replaying is in
// TextZoneUndoReplay.cpp.
#include <algorithm>
#include <vector>

#include "textzone/TextBytes.h"
#include "textzone/TextZone.h"

namespace {

using InfoList = std::vector<std::unique_ptr<char[]>>;

bool OnlyBlanks(const CStringEx& line) {
    return textbytes::OnlyBlanks(line, textbytes::TextLength(line));
}

// With wrapped paragraphs line positions shift on every rewrap, so units
// hold text offsets instead.
bool ParagraphForm(const CTextZone& zone) {
    return zone.UndoByOffsets();
}

std::unique_ptr<char[]> InfoOf(CTextZone& zone, int nLine) {
    CStringEx* pLine = zone.GetLine(nLine);
    return std::unique_ptr<char[]>(pLine ? pLine->GetSpecificInfo() : nullptr);
}

// Keeps one line's info as the unit's only entry, if the line gives one.
void KeepInfoOf(CTextZone& zone, CUndoUnit& unit, int nLine) {
    std::unique_ptr<char[]> info = InfoOf(zone, nLine);
    if (!info) return;
    unit.m_pInfos = std::make_unique<InfoList>();
    unit.m_pInfos->push_back(std::move(info));
}

void PlaceFromSelection(const CTextZone& zone, CUndoUnit& unit) {
    unit.m_nFirstLine = zone.m_nSelStartLine;
    unit.m_nFirstChar = zone.m_nSelStartChar;
    unit.m_nLastLine = zone.m_nSelEndLine;
    unit.m_nLastChar = zone.m_nSelEndChar;
}

// Kind 1: the selection about to be deleted.
bool RecordSelectedText(CTextZone& zone, CUndoUnit& unit) {
    if (!zone.TestSelection()) return false;
    if (zone.m_nSelectionMode == TZ_SEL_BOX && zone.m_nSelStartLine != zone.m_nSelEndLine &&
        zone.m_nSelStartChar == zone.m_nSelEndChar)
        return false;  // a box caret deletes nothing

    // In a stream the text is what the deletion takes: a place behind a
    // line's end (free caret, or the line behind the text) holds no blanks,
    // and the end at a raw length takes the line end as the deletion does.
    const int savedEndLine = zone.m_nSelEndLine, savedEndChar = zone.m_nSelEndChar;
    if (zone.m_nSelectionMode == TZ_SEL_STREAM) {
        CStringEx* pEnd = zone.GetLine(savedEndLine);
        CStringEx* pAbove = savedEndLine > 0 ? zone.GetLine(savedEndLine - 1) : nullptr;
        if (!pEnd && pAbove && !pAbove->IsEnded())
            // Behind an unended last line: the text ends on that line.
            zone.m_nSelEndLine = savedEndLine - 1,
            zone.m_nSelEndChar = textbytes::TextLength(*pAbove);
        else if (pEnd && !(zone.m_dwStyle & ZS_FREECARET) && savedEndChar == pEnd->GetLength() &&
                 pEnd->IsEnded())
            zone.m_nSelEndLine = savedEndLine + 1, zone.m_nSelEndChar = 0;
        else
            zone.m_nSelEndChar = std::min(savedEndChar, pEnd ? textbytes::TextLength(*pEnd) : 0);
    }
    unit.m_hText = zone.GetSelectedTextString(0);
    zone.m_nSelEndLine = savedEndLine;
    zone.m_nSelEndChar = savedEndChar;

    if (ParagraphForm(zone)) {
        LONG start = 0, end = 0;
        zone.GetSelection(&start, &end, nullptr, nullptr, 1);
        unit.m_nFirstLine = start;
        unit.m_nFirstChar = end;
    } else {
        PlaceFromSelection(zone, unit);
    }

    // The lines whose start lies inside the selection vanish with their bookmarks.
    int first = zone.m_nSelStartLine + (zone.m_nSelStartChar != 0 ? 1 : 0);
    if (first <= zone.m_nSelEndLine) {
        unit.m_pInfos = std::make_unique<InfoList>();
        for (int n = first; n <= zone.m_nSelEndLine; ++n)
            unit.m_pInfos->push_back(InfoOf(zone, n));
    }
    return true;
}

// Kind 2: the byte before the caret, about to go by Backspace.
bool RecordCharBefore(CTextZone& zone, CUndoUnit& unit) {
    int line = zone.m_nSelStartLine;
    int ch = zone.m_nSelStartChar;
    if (ch == 0) {
        if (line <= 0) return false;
        CStringEx* pPrev = zone.GetLine(line - 1);
        if (!pPrev || pPrev->IsEmpty()) return false;
        // Counted in the raw length, so the first place is the terminator.
        unit.m_cChar = (*pPrev)[pPrev->GetLength() - 1];
        unit.m_nFirstLine = line - 1;
        unit.m_nFirstChar = pPrev->GetLength() - 1;
    } else {
        CStringEx* pLine = zone.GetLine(line);
        if (!pLine || ch > pLine->GetLength() - pLine->IsEnded()) return false;
        unit.m_cChar = (*pLine)[ch - 1];
        unit.m_nFirstLine = line;
        unit.m_nFirstChar = ch - 1;
    }
    unit.m_nLastLine = line;
    unit.m_nLastChar = ch;
    if (ParagraphForm(zone)) {
        LONG start = 0, end = 0;
        zone.GetSelection(&start, &end, nullptr, nullptr, 1);
        unit.m_nFirstLine = start > 0 ? start - 1 : start;
        unit.m_nFirstChar = end;
    }

    // Two lines are about to join; the joined line keeps the bookmarks of
    // the second unless the first is blank, so the other line's are lost.
    if (ch == 0) KeepInfoOf(zone, unit, OnlyBlanks(*zone.GetLine(line - 1)) ? line - 1 : line);
    return true;
}

// Kind 3: the byte at the caret, about to go by Delete.
bool RecordCharAt(CTextZone& zone, CUndoUnit& unit) {
    int line = zone.m_nSelStartLine;
    int ch = zone.m_nSelStartChar;
    CStringEx* pLine = zone.GetLine(line);
    if (!pLine) return false;

    bool joins = false;
    if (ch >= pLine->GetLength()) {
        if (!(zone.m_dwStyle & ZS_FREECARET)) {
            // Behind a wrapped line: the first byte of the next one goes.
            CStringEx* pNext = zone.GetLine(line + 1);
            if (!pNext || pNext->IsEmpty()) return false;
            unit.m_cChar = (*pNext)[0];
        } else {
            if (!pLine->IsEnded()) return false;
            unit.m_cChar = 13;
            joins = true;
        }
    } else {
        unit.m_cChar = (*pLine)[ch];
        joins = unit.m_cChar == 13;
    }
    if (joins) KeepInfoOf(zone, unit, OnlyBlanks(*pLine) ? line : line + 1);

    if (ParagraphForm(zone)) {
        LONG start = 0, end = 0;
        zone.GetSelection(&start, &end, nullptr, nullptr, 1);
        unit.m_nFirstLine = start;
        unit.m_nFirstChar = end + 1;
    } else {
        unit.m_nFirstLine = line;
        unit.m_nFirstChar = ch;
        bool atEnd = ch >= pLine->GetLength() - pLine->IsEnded();
        unit.m_nLastLine = atEnd ? line + 1 : line;
        unit.m_nLastChar = atEnd ? 0 : ch + 1;
    }
    return true;
}

// Kinds 6 and 7: a copy of the lines a box edit touches, each line's raw
// text (with its 13 if it is ended) followed by 10. A line that is not there
// yet, which the edit will add behind the text, is a 0 byte and 10.
bool RecordLines(CTextZone& zone, CUndoUnit& unit) {
    // Sized like the same lines read out whole in stream form with CR LF,
    // which is what the copy holds.
    int startLine = zone.m_nSelStartLine, endLine = zone.m_nSelEndLine;
    int startChar = zone.m_nSelStartChar, endChar = zone.m_nSelEndChar;
    WORD mode = zone.m_nSelectionMode;
    zone.m_nSelEndLine = endLine + 1;
    zone.m_nSelStartChar = zone.m_nSelEndChar = 0;
    zone.m_nSelectionMode = TZ_SEL_STREAM;
    LONG size = zone.GetSelectedTextLength(TF_CRLF) + 3;
    zone.m_nSelEndLine = endLine;
    zone.m_nSelStartChar = startChar;
    zone.m_nSelEndChar = endChar;
    zone.m_nSelectionMode = mode;

    std::string& text = unit.m_hText;
    text.reserve(static_cast<size_t>(size));
    for (int n = startLine; n <= endLine; ++n) {
        CStringEx* pLine = zone.GetLine(n);
        if (pLine)
            text.append(pLine->c_str(), static_cast<size_t>(pLine->GetLength()));
        else
            text += '\0';
        text += '\n';
    }
    PlaceFromSelection(zone, unit);
    return true;
}

}  // namespace

void CTextZone::StartRegister(short wType) {
    // A replay records into the operation that Undo or Redo opened.
    if (m_bUndoing) return;
    // A new edit ends the line of what could be redone.
    m_redoList.clear();
    m_pCurrentOperation = std::make_unique<CUndoOperation>();
    m_pCurrentOperation->m_wType = static_cast<WORD>(wType);
}

void CTextZone::RegisterUnit(WORD wKind) {
    if (!m_pCurrentOperation) return;
    auto pUnit = std::make_unique<CUndoUnit>();
    CUndoUnit& unit = *pUnit;
    unit.m_wType = wKind;
    unit.m_wSelMode = m_nSelectionMode;

    bool keep = true;
    switch (wKind) {
        case TZ_UNIT_DELETED_TEXT:
            keep = RecordSelectedText(*this, unit);
            break;
        case TZ_UNIT_CHAR_BEFORE:
            keep = RecordCharBefore(*this, unit);
            break;
        case TZ_UNIT_CHAR_AT:
            keep = RecordCharAt(*this, unit);
            break;
        case TZ_UNIT_TYPED:
        case TZ_UNIT_INSERTED:
            // Registered after the insertion: the range from the root to the
            // selection end is what the edit put in.
            if (ParagraphForm(*this)) {
                LONG end = 0;
                GetSelection(nullptr, &end, nullptr, nullptr, 1);
                unit.m_nFirstLine = m_lSelRootOffset;
                unit.m_nFirstChar = end;
            } else {
                unit.m_nFirstLine = m_nSelRootLine;
                unit.m_nFirstChar = m_nSelRootChar;
                unit.m_nLastLine = m_nSelEndLine;
                unit.m_nLastChar = m_nSelEndChar;
                if (wKind == TZ_UNIT_INSERTED && m_nSelectionMode == TZ_SEL_BOX) {
                    unit.m_nFirstChar = ComputeBlockUnit(m_nSelRootLine, m_nSelRootChar);
                    unit.m_nLastChar = ComputeBlockUnit(m_nSelEndLine, m_nSelEndChar);
                }
            }
            break;
        case TZ_UNIT_LINES:
        case TZ_UNIT_LINES_CARET:
            keep = RecordLines(*this, unit);
            break;
        default:
            break;
    }
    if (!keep) return;

    m_pCurrentOperation->Add(std::move(pUnit));
}

void CTextZone::EndRegister() {
    if (m_bUndoing || !m_pCurrentOperation) return;
    m_undoList.push_back(std::move(m_pCurrentOperation));
    if (m_undoList.size() > static_cast<size_t>(TZ_MAX_UNDO)) m_undoList.pop_front();
    m_pCurrentOperation.reset();
}

// An operation being recorded is left alone: the edit that opened it files it.
void CTextZone::FreeAllOperations() {
    m_undoList.clear();
    m_redoList.clear();
}

short CTextZone::GetUndoType() {
    if (m_bReadOnly || m_undoList.empty()) return 0;
    return static_cast<short>(m_undoList.back()->m_wType);
}

short CTextZone::GetRedoType() {
    if (m_bReadOnly || m_redoList.empty()) return 0;
    return static_cast<short>(m_redoList.back()->m_wType);
}
