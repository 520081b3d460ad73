// The engine: one object per edited text. It owns the lines, the selection,
// the undo history and the collapsible blocks, and everything it needs to
// draw and to react to input; a window forwards its messages to it.
//
// Every operation that the class lists as virtual is virtual and is called
// through this object, also from inside the class, so that derived zones
// (colouring, parameter, read-only) see every step. The virtual operations
// are declared in their fixed slot order; the source is cut by topic.
#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "TextzoneExport.h"
#include "host/GraphicText.h"
#include "host/VeskString.h"
#include "platform/Types.h"
#include "textzone/BlockList.h"
#include "textzone/EditBlk.h"
#include "textzone/LinePool.h"
#include "textzone/StringEx.h"
#include "textzone/UndoOperation.h"

class CDC;
class CWnd;
class CScrollBar;
class CImageList;

// Style bits of a zone.
constexpr DWORD ZS_AUTOINDENT = 1;
constexpr DWORD ZS_PARAGRAPH = 2;
constexpr DWORD ZS_WORDBREAK = 4;
constexpr DWORD ZS_VARHEIGHT = 8;
constexpr DWORD ZS_SELTOEDGE = 16;
constexpr DWORD ZS_FREECARET = 32;
constexpr DWORD ZS_CUTLONGLINES = 64;

// Limits of the engine.
constexpr int TZ_MAX_LINES = 10000000;          // edits stop at this last line index
constexpr int TZ_MAX_LINE_LENGTH = 65500;       // bytes of text on a line
constexpr int TZ_MAX_PARAGRAPH_LINE = 0x10000;  // the same with ZS_PARAGRAPH
constexpr int TZ_MAX_UNDO = 100;
constexpr int TZ_TO_END = 0x7FFFFFFF;  // a last line meaning "to the end"
// No character or column of a selection lies beyond the longest line there
// can be: places further out come from hosts and would only overflow sums.
constexpr int TZ_MAX_PLACE = TZ_MAX_PARAGRAPH_LINE;

// Selection modes.
constexpr WORD TZ_SEL_LINES = 0;
constexpr WORD TZ_SEL_STREAM = 1;
constexpr WORD TZ_SEL_BOX = 2;

// Kinds of an edit, as StartRegister files them for undo.
constexpr short TZ_EDIT_TYPING = 1;
constexpr short TZ_EDIT_DELETE = 2;
constexpr short TZ_EDIT_BACKSPACE = 3;
constexpr short TZ_EDIT_DELETE_SELECTION = 4;
constexpr short TZ_EDIT_CUT = 5;
constexpr short TZ_EDIT_PASTE = 6;
constexpr short TZ_EDIT_REPLACE = 7;
constexpr short TZ_EDIT_REPLACE_ALL = static_cast<short>(0x8008);
constexpr short TZ_EDIT_INDENT = 9;
constexpr short TZ_EDIT_UNINDENT = 10;
constexpr short TZ_EDIT_DRAG = 11;

// Kinds of an undo unit, what RegisterUnit records.
constexpr WORD TZ_UNIT_DELETED_TEXT = 1;  // text a deletion took, to put back
constexpr WORD TZ_UNIT_CHAR_BEFORE = 2;   // the byte Backspace takes
constexpr WORD TZ_UNIT_CHAR_AT = 3;       // the byte Delete takes
constexpr WORD TZ_UNIT_TYPED = 4;         // a range typed, to take out
constexpr WORD TZ_UNIT_INSERTED = 5;      // a range inserted, to take out
constexpr WORD TZ_UNIT_LINES = 6;         // lines before a box edit; restoring selects
constexpr WORD TZ_UNIT_LINES_CARET = 7;   // the same; restoring leaves a caret
// Lines replace all changed in place, each with its other text: replaying
// swaps the texts back (ReplaceAllInPlace).
constexpr WORD TZ_UNIT_LINE_IMAGES = 8;

// Text flags of the readers.
constexpr WORD TF_LF = 1;              // line end LF (the two low bits)
constexpr WORD TF_CRLF = 2;            // line end CR LF; other values give CR
constexpr WORD TF_WRAPPED_ENDS = 4;    // a line end also at wrapped lines
constexpr WORD TF_STRIP_TRAILING = 8;  // strip blanks at the end of ended lines
constexpr WORD TF_LEADING_TABS = 16;   // leading blanks become tabs
constexpr WORD TF_NO_FINAL_END = 32;   // no line end behind the last line

class TEXTZONE_EXPORT CTextZone {
public:
    CTextZone();
    virtual ~CTextZone();
    CTextZone(const CTextZone&) = delete;
    CTextZone& operator=(const CTextZone&) = delete;

protected:
    virtual int ExtendGranularity();
    virtual int ComputeParagraph(int nLine, int* pbChanged);
    virtual void RebuildAllParagraphs();
    virtual int GetMaxLineWidth(int nFirst, int nLast);
    virtual int GetCurrentLineWidth();
    virtual void GetSpaceEquivalentLine(CStringEx* pTarget, const CStringEx* pSource);
    virtual int ComputeCharIndex(int nLine, int nColumn);
    virtual int ComputeBlockUnit(int nLine, int nChar);

public:
    virtual int GetLineIndexes(int nLine, int* pBlock, int* pIndex);
    virtual CStringEx* InsertLine(int nLine);
    virtual void RemoveLines(int nFirst, int nCount);
    virtual void FreeAllLines();
    virtual CStringEx* GetLine(int nLine);
    virtual void RedrawLines(int nFirst, int nLast, int bUpdate);
    virtual void RedrawTextZone();
    virtual void DeleteSelection(int bUpdate);
    virtual int InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal);
    virtual int TestSelection();
    virtual int GetLineCount();
    virtual int GetLastLineIndex();
    virtual void UpdateHScrollBar(int nFirst, int nLast);
    virtual void UpdateVScrollBar();
    virtual void DrawCaret(int bScroll, int bHorizontal);
    virtual void HideCaret();
    virtual LONG GetLinePosition(int nLine);
    virtual int GetLineHeight(int nLine);
    virtual void FreeAllEditBlocks();
    virtual int SetEditBlock(int nLine, int nCount);
    virtual void BeginEditBlockInput();
    virtual int AddEditBlockInput(int nLine, int nCount);
    virtual void EndEditBlockInput();
    virtual int OpenBlock(int nLine, int bUpdate);
    virtual int CloseBlock(int nLine, int bUpdate);
    virtual int CreateClosedAltBlock(int nLine, int nCount, int bUpdate);
    virtual void GetEditorBlockStatus(VESK::String& strStatus);
    virtual void SetEditorBlockStatus(VESK::String& strStatus);
    virtual void MakeUpperOrLower(int bLower);

protected:
    virtual CStringEx* CreateLine();
    // A new line of class T in the zone's own line memory, for CreateLine;
    // the store gives it back there when the line goes.
    template <class T>
    CStringEx* NewLine() {
        static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        if (void* p = m_linePool.AllocateLine(sizeof(T))) return new (p) T;
        return new T;
    }
    virtual void DrawTextLine(CDC* pDC, int nLine);
    virtual CDC* GetStandardDC();
    virtual void ReleaseStandardDC(CDC* pDC);
    virtual int GetTextWidth(CDC* pDC, const char* pszText, int nCount);
    virtual LONG GetVScrollOffset();
    virtual LONG GetHScrollOffset();

public:
    virtual void SetWindow(CWnd* pWnd);
    virtual CWnd* GetWindow();
    virtual void SetRect(const RECT* prc);
    virtual void GetRect(RECT* prc);
    virtual void SetFont(HFONT hFont);
    virtual HFONT GetFont();
    virtual int IsFontProportionnal();
    virtual void SetReservedTopLines(int nLines);
    virtual int GetReservedTopLines();
    virtual void SetTabWidth(int nTabWidth);
    virtual int GetTabWidth();
    virtual void SetTabConvert(int bTabConvert);
    virtual int GetTabConvert();
    virtual void SetColors(COLORREF crText, COLORREF crBack, COLORREF crSelText,
                           COLORREF crSelBack);
    virtual void GetColors(COLORREF* pcrText, COLORREF* pcrBack, COLORREF* pcrSelText,
                           COLORREF* pcrSelBack);
    virtual void SetScrollbars(CScrollBar* pVScrollBar, CScrollBar* pHScrollBar);
    virtual void SetStyle(DWORD dwStyle);
    virtual DWORD GetStyle();
    virtual void SetReadOnly(int bReadOnly);
    virtual int GetReadOnly();
    virtual void SetModify(int bModify);
    virtual int GetModify();
    virtual void SetMaxLength(LONG lMaxLength);
    virtual LONG GetMaxLength();
    virtual void SetNoBlockFlag(int bNoBlock);
    virtual int GetNoBlockFlag();
    virtual void SetMaxWidth(int nMaxWidth);
    virtual int GetMaxWidth();
    virtual int SetText(const char* pszText);
    virtual void GetText(char* pBuffer, LONG lSize, WORD wFlags);
    virtual void SetSelection(LONG lStart, LONG lEnd, int nStartChar, int nEndChar, short wMode,
                              int bRedraw);
    virtual short GetSelection(LONG* plStart, LONG* plEnd, int* pnStartChar, int* pnEndChar,
                               short wMode);
    virtual void StartSelection();
    virtual void CancelSelection(int bRedraw);
    virtual void DefineSelectionFromRoot(int nLine, int nChar);
    virtual int GetSelRootLine();
    virtual int GetSelRootChar();
    virtual int GetSelMobileLine();
    virtual int GetSelMobileChar();
    virtual void SetRedraw(int bRedraw);
    virtual int GetRedraw();
    virtual void SetSelectionMode(short wMode);
    virtual short GetSelectionMode();
    virtual void SetDragDropFlag(int bDragDrop);
    virtual void GetPartOfText(char* pBuffer, LONG lSize, LONG lFirstLine, LONG lLastLine,
                               int nFirstChar, int nLastChar, WORD wMode, WORD wFlags);
    virtual void SetMarginMode(int bMarginMode);
    virtual int IsMarginMode();
    virtual void SetMarginModeImageList(CImageList* pImages);
    virtual void SetMarginColor(COLORREF crMargin);
    virtual void SetMarginWidth(UINT nWidth);
    virtual int GetMarginWidth();
    virtual void SetBlockMode(int bBlockMode);
    virtual int IsBlockMode() const;
    virtual int GetBookmarkImageIndex(int nIndex);
    virtual COLORREF GetBookmarkColor(int nIndex);
    virtual COLORREF GetMarginColor();
    virtual CImageList* GetMarginModeImageList();
    virtual void ToggleBookmark();
    virtual void GotoNextBookmark(int bPrevious);
    virtual void SetFirstVisiblePosition(int nLine, int nChar);
    virtual void HandleLButtonDown(UINT nFlags, POINT* pt);
    virtual void HandleLButtonUp(UINT nFlags, POINT* pt);
    virtual void HandleLButtonDblClk(UINT nFlags, POINT* pt);
    virtual void HandleMouseMove(UINT nFlags, POINT* pt);
    virtual void HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    virtual void HandleChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    virtual void HandlePaint(CDC* pDC);
    virtual void HandleVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    virtual void HandleHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    virtual void HandleSetFocus(CWnd* pOldWnd);
    virtual void HandleKillFocus(CWnd* pNewWnd);
    virtual LONG HandleUserMessage(std::uint64_t wParam, std::int64_t lParam);
    virtual int Cut();
    virtual int Copy();
    virtual int Paste();
    virtual void OnTextTooLong();
    virtual int PtInSelection(POINT* pt);
    virtual LONG LineIndex(int nLine);
    virtual int LineFromChar(LONG lChar, WORD wFlags);
    virtual void RebuildCurrentLength();
    virtual int GetLineFromPoint(POINT* pt);
    virtual int GetCharIndexFromPoint(CStringEx* pLine, POINT* pt);
    virtual int GetLineTopPos(int nLine);
    virtual void GetSelectedText(char* pBuffer, LONG lSize, WORD wFlags);
    virtual LONG GetTextLength(WORD wFlags);
    virtual LONG GetSelectedTextLength(WORD wFlags);
    virtual int FindTextFromCurrentPos(const char* pszText, int bForward, int bMatchCase);
    virtual int SameAsSelected(const char* pszText, int bMatchCase);
    virtual int IsEmpty();
    virtual void StartRegister(short wType);
    virtual void RegisterUnit(WORD wKind);
    virtual void EndRegister();
    virtual void FreeAllOperations();
    virtual void Undo();
    virtual void Redo();
    virtual void PerformUndoing(CUndoOperation* pOperation);
    virtual short GetUndoType();
    virtual short GetRedoType();
    virtual void HandleOleLButtonDown(UINT nFlags, POINT* pt);
    virtual void HandleOleLButtonUp(UINT nFlags, POINT* pt);
    virtual void HandleOleMouseMove(UINT nFlags, POINT* pt);
    virtual int HandleOleDrag(UINT nFlags, POINT* pt);
    virtual int HandleOleDrop(const char* pszText, ULONG dropEffect, POINT* pt);
    virtual bool IsOleDragAllowed(UINT nFlags, POINT* pt);
    virtual bool IsOleDropAllowed(UINT nFlags, POINT* pt);
    // Replace all from the selection, which is the first match, inside the
    // open group operation: what the loop of InsertText and forward
    // FindTextFromCurrentPos leaves (text, selection, undo and redo), in one
    // pass over the lines and one undo unit. Returns 0, having changed
    // nothing, where that cannot be exact; the caller runs the loop then. A
    // derived zone that wraps InsertText or DeleteSelection does here what
    // its wrappers would, or returns 0.
    virtual int ReplaceAllInPlace(const char* pszFind, const char* pszReplace, int bMatchCase);

    // Plain members.
    // Whether undo records places as text offsets: with wrapped paragraphs
    // line positions shift on every rewrap. Box mode never meets wrap.
    bool UndoByOffsets() const {
        return (m_dwStyle & ZS_PARAGRAPH) && m_nSelectionMode != TZ_SEL_BOX;
    }
    // The selected text as GetSelectedText writes it, in a buffer of just
    // the room it needs.
    std::string GetSelectedTextString(WORD wFlags);
    void CollapseCurrentSel();
    void ExpandCurrentSel();
    // The text's two check values, kept until the text changes.
    void GetTextCRCValues(int* pSize, int* pHash);
    // The same values read from every line, without the kept ones.
    void ComputeTextCRCValues(int* pSize, int* pHash);
    void SetBookmarkColor(COLORREF cr, int nIndex);
    void SetLineBookmark(int nLine, int nBit, int bOn);
    const GraphicText& getGraphicText() const { return m_GraphicText; }
    // The zone a line names by CStringEx::m_nOwnerZone.
    static CTextZone* FromIndex(std::uint32_t nIndex);
    // A line of the store says that its length changed (CStringEx does).
    void NoteLineLength(CStringEx* pLine);
    // Any byte of the text may have changed: the kept check values go.
    void NoteTextChanged() { m_bCheckValid = false; }
    // Its hidden flag (4 of m_dwBlockFlags) may have changed: every place
    // that sets or clears the flag on a stored line says so.
    void NoteLineFlags(CStringEx* pLine);

protected:
    bool DoOleMoveItem(POINT* pt);
    bool DoOlePasteItem(const char* pszText, POINT* pt);

    // Shows the lines [nFrom, nTo) again unless a closed block still hides
    // them: they were hidden by a block that went with its first line.
    void ShowOrphanedLines(int nFrom, int nTo);

    // Closes the edit blocks at the heads and makes the alternate blocks
    // (first line, count) of a status string in one pass over the store,
    // leaving what the calls of CloseBlock and CreateClosedAltBlock in the
    // string's order leave, redraws aside. Returns false, having changed
    // nothing, where those calls could meet other alternate blocks.
    bool CloseSavedBlocks(std::vector<int>& heads,
                          const std::vector<std::pair<int, int>>& alternates);

    // Replays a TZ_UNIT_LINE_IMAGES unit and files its inverse.
    void ReplayLineImages(const CUndoUnit& unit);
    // After undoing text typed or inserted on the place behind the text: the
    // line that edit made there goes again, or the next undo that restores
    // whole lines would leave it behind an unended line.
    void DropEmptiedLastLine();
    // Steps a store place on by nLines lines; false past the end.
    bool AdvanceSlot(int* pBlock, int* pIndex, int nLines);

    // Column editing, the box branches of InsertText and DeleteSelection.
    int BoxInsertText(const char* pszText, int nColumn, int bHadSelection, int* pnLast);
    void BoxDeleteSelection();
    // Window x of the place behind nCount bytes of a line, spaces assumed
    // beyond its text.
    int BoxX(CDC* pDC, const CStringEx& line, int nCount);

    // Pieces of a line's drawing that every kind of zone shares
    // (TextZoneDrawLine.cpp).
    // The background and text colours of a line with these bookmarks;
    // *pbMarked when a bookmark took the background, there being no margin.
    void MarkedLineColors(DWORD marks, COLORREF* pcrBack, COLORREF* pcrText, bool* pbMarked);
    void DrawMarginMarks(CDC* pDC, DWORD marks, int y, int h);
    // Where a line's row lies: the margin's width, the text's x, the row's
    // top and height, the text rectangle's right edge.
    struct LineFrame {
        int M, x, y, h, right;
    };
    // Lays out line nLine's row and draws its margin marks; for the place
    // behind the phantom line it fills the row with crBack and gives false.
    bool BeginLineFrame(CDC* pDC, int nLine, DWORD marks, COLORREF crBack, bool bEmptyPlace,
                        LineFrame* pFrame);
    // Pixels from one tab stop to the next.
    int TabStopPixels();
    // What a line is drawn from: the line itself, or, in a box or a free
    // caret's selection, a copy in *pPadded padded out to the selection.
    CStringEx* TextToDraw(CStringEx* pLine, CStringEx* pPadded, bool bInSelection, bool bBox);
    // What follows the text drawn up to x + dx: the box caret's bar over
    // byte nBar (-1 for none), the rest of the row, and a selection that
    // goes on past the text.
    void DrawLineEnd(CDC* pDC, const CStringEx* pLine, const char* p, int nBar, int x, int y, int h,
                     int dx, bool bSelected, bool bBox, COLORREF crBack);

    // Scrolling and painting helpers.
    // Moves the pixels of the text rectangle, re-invalidating pending paints
    // at their moved place and what the move uncovers.
    void ScrollTextRect(int dx, int dy);
    // Paints what is pending when a host asked for it before the next scroll.
    void FlushPendingPaint();
    // Window x of the place behind nIndex bytes of a line, or of its
    // space-equivalent copy, padded with spaces beyond the text.
    int CaretX(CDC* pDC, int nLine, int nIndex, bool bColumns);

    // --- Store slots (TextZoneStore.cpp, TextZoneLineLengths.cpp) ---
    // Every slot of the store holds a line and, beside it, the line's raw
    // length; each block knows its longest raw length. So the longest line
    // of a range is found without visiting the lines.
    void NewStoreBlock(int nBlock);
    void FreeStoreBlock(int nBlock);
    // Destroys a line that CreateLine made, wherever its memory came from.
    void DestroyLine(CStringEx* pLine);
    // Gives a new, empty line of the store nCount bytes of pszText, ended
    // with the byte 13 if bEnded, held in the zone's text memory.
    void SetLoadedLine(CStringEx* pLine, const char* pszText, int nCount, bool bEnded);
    void PutSlot(int nBlock, int nIndex, CStringEx* pLine);
    // memmove-like within one block or between two.
    void MoveSlots(int nToBlock, int nToIndex, int nFromBlock, int nFromIndex, int nCount);
    // Moves the directory entries [nFrom, nBlockCount) to nTo on.
    void MoveDirectory(int nTo, int nFrom);
    void ForgetLongest(int nBlock) {
        m_pBlockLongest[nBlock] = -1;
        m_pBlockHidden[nBlock] = -1;
    }
    // A slot holds the raw length, and kSlotHidden for a hidden line.
    static constexpr int kSlotHidden = 1 << 30;
    static int SlotLength(int nSlot) { return nSlot & (kSlotHidden - 1); }
    static int SlotOf(const CStringEx* pLine) {
        return pLine->GetLength() | ((pLine->m_dwBlockFlags & 4) ? kSlotHidden : 0);
    }
    int HiddenInBlock(int nBlock);
    // The hidden lines among the lines [0, nLines), nLines at most the count.
    long long HiddenBefore(int nLines);
    // The line whose place holds the height y (>= 0) under ZS_VARHEIGHT, as
    // GetLineFromPoint's walk finds it.
    int LineAtHeight(int y);
    void RememberPlace(int nBlock, int nIndex) {
        m_nRecentBlock[m_nRecentNext] = nBlock;
        m_nRecentIndex[m_nRecentNext] = nIndex;
        m_nRecentNext = (m_nRecentNext + 1) & 3;
    }
    int LongestInBlock(int nBlock);
    // The first line with the most bytes among nFirst..nLast (both existing,
    // nFirst <= nLast), as the walk of GetMaxLineWidth would find it.
    int FindLongestLine(int nFirst, int nLast);
    bool FindSlot(const CStringEx* pLine, int* pBlock, int* pIndex);
    void RebuildLineLengths();
    static std::uint32_t TakeIndex(CTextZone* pZone);
    static void ReleaseIndex(std::uint32_t nIndex);
    // The number of lines a stream insertion of pszText makes; its length in pLength.
    static long long CountTextLines(const char* pszText, size_t* pLength = nullptr);
    // Grows the empty store at once to the capacity the insertion of
    // nLines lines would have grown it to step by step.
    void ReserveLines(long long nLines);
    // Calls f(line) for the lines in order, straight from the blocks, while
    // it returns true. The first lookup is GetLine(0)'s own, so a stale cache
    // that hides line 0 hides the text as a walk by GetLine would.
    template <class F>
    void ForEachStoredLine(F f) {
        if (!GetLine(0)) return;
        for (int b = 0; b < m_nBlockCount; ++b)
            for (int i = 0; i < m_pBlockSizes[b]; ++i)
                if (!f(m_ppBlocks[b][i])) return;
    }
    // --- end of store slots ---

    // The line limit in force: 65500 bytes, 65536 with ZS_PARAGRAPH.
    int GetLineLimit() const {
        return (m_dwStyle & ZS_PARAGRAPH) ? TZ_MAX_PARAGRAPH_LINE : TZ_MAX_LINE_LENGTH;
    }

    // Mouse and drag helpers (TextZoneMouse.cpp, TextZoneHitTest.cpp).
    // The line under a point, at most the place behind the text.
    int GetLineUnderPoint(POINT* pt);
    // The column under a point on a line's space-equivalent copy padded far
    // out, so that a box may reach beyond the line's end.
    int GetBoxIndexFromPoint(int nLine, POINT* pt);
    // While the pointer is outside the text: a scroll step at most every 50
    // milliseconds, and a re-posted move that comes back here.
    void AutoScroll(UINT nFlags, POINT* pt);
    // Moves (or copies) the selected text to a place, as one undo step.
    void DropSelectedText(int nLine, int nChar, bool bCopy);

    // --- Key handling helpers (TextZoneKeyMoves.cpp, TextZoneKeyEdit.cpp,
    // TextZoneChar.cpp) ---
    // Several lines selected with no width: a tall caret that types on every line.
    int IsBoxCaret();
    void KeyMoveHorizontal(int bRight, int bWord, int bShift);
    void KeyMoveVertical(int bDown, int bShift);
    void KeyMovePage(int bDown, int bShift);
    void KeyHomeEnd(int bEnd, int bCtrl, int bShift);
    // Sets m_nGoalX from a place if it is unset; bSpaced measures columns.
    void KeyStartMove(int bShift, int bRedraw, int* pnLine, int* pnChar);
    void KeyGoalX(CDC* pDC, int nLine, int nChar, int bSpaced, int bPage);
    int KeyIndexAtGoal(int nLine, int nChar);
    void KeyBackDelete(int bBackspace);
    void KeyReturn();
    void KeyTab(int bShift);
    void KeyNumberLines();
    int KeyTabChars();
    void KeySetTypingRoot();
    CStringEx* KeyLineForTyping(int* pbCreated);
    void KeyRewrapTyped(int nLine, int bCreated, int* pnFirst, int* pnLast);
    // --- end of key handling helpers ---

public:
    // The members, in the order of the class. Engine code and derived zones
    // read and write them directly where that is quicker.
    CWnd* m_pWnd = nullptr;
    RECT m_rcText;
    int m_nMaxWidth = 0;
    int m_nTabWidth = 0;  // > 0 pixels, < 0 average characters, 0 means 20 pixels
    int m_bTabConvert = 0;
    DWORD m_dwStyle = 0;
    int m_bReadOnly = 0;
    int m_bModify = 0;
    HFONT m_hFont = nullptr;
    int m_nLineHeight = 1;
    int m_nCharWidth = 1;
    int m_nOverhang = 0;
    int m_bProportional = 0;
    COLORREF m_crText = 0;
    COLORREF m_crBack = 0;
    COLORREF m_crSelText = 0;
    COLORREF m_crSelBack = 0;
    int m_bRedraw = 1;
    int m_bCaretShown = 0;
    int m_bMouseSelecting = 0;
    int m_bNoBlock = 0;
    WORD m_nSelectionMode = TZ_SEL_STREAM;
    CScrollBar* m_pHScrollBar = nullptr;
    CScrollBar* m_pVScrollBar = nullptr;
    int m_nLinesPerUnit = 1;
    int m_nUnitRemainder = 0;
    int m_nHScrollMax = 0;
    int m_nVScrollMax = 0;
    int m_nHScrollPos = 0;
    int m_nVScrollPos = 0;
    int m_nReservedTopLines = 0;
    int m_nSelStartLine = 0;
    int m_nSelEndLine = 0;
    int m_nSelStartChar = 0;
    int m_nSelEndChar = 0;
    int m_nLineCount = 0;
    int m_nCurrentLength = 0;
    LONG m_lMaxLength = 0;
    int m_nGranularity = 10;
    // The line store: a directory of m_nGranularity blocks, each an array of
    // m_nGranularity line pointers, of which m_pBlockSizes tells how many
    // are in use. The zone owns the lines.
    std::unique_ptr<std::unique_ptr<CStringEx*[]>[]> m_ppBlocks;
    // Where the lines and the text of a load live (LinePool.h).
    CLinePool m_linePool;
    int m_nBlockCount = 0;
    std::unique_ptr<int[]> m_pBlockSizes;
    // Raw lengths beside the line pointers, and per block the longest one
    // (-1: to be found again). Stale: a line changed where the zone could not
    // place it, so all lengths are read again before the next use.
    std::unique_ptr<std::unique_ptr<int[]>[]> m_ppLengths;
    std::unique_ptr<int[]> m_pBlockLongest;
    std::unique_ptr<int[]> m_pBlockHidden;  // hidden lines per block, -1: to be counted
    bool m_bLengthsStale = false;
    // GetTextCRCValues of the text as it stands while m_bCheckValid holds:
    // every change of a stored line's bytes and every line that comes or
    // goes clears it.
    bool m_bCheckValid = false;
    int m_nCheckSize = 0;
    int m_nCheckHash = 0;
    std::uint32_t m_nZoneIndex = TakeIndex(this);  // what this zone's lines name it by
    // Places of the last lines looked up, where a changing line is sought first.
    int m_nRecentBlock[4] = {-1, -1, -1, -1};
    int m_nRecentIndex[4] = {0, 0, 0, 0};
    int m_nRecentNext = 0;
    int m_nCacheLine = -1;
    int m_nCacheBlock = 0;
    int m_nCacheIndex = 0;
    int m_nGoalX = -1;
    DWORD m_dwLastAutoScroll = 0;
    int m_nSelRootLine = 0;
    int m_nSelRootChar = 0;
    LONG m_lSelRootOffset = 0;
    std::list<std::unique_ptr<CUndoOperation>> m_undoList;  // oldest first
    std::list<std::unique_ptr<CUndoOperation>> m_redoList;
    std::unique_ptr<CUndoOperation> m_pCurrentOperation;
    int m_bUndoing = 0;
    BlockList m_editBlocks;  // each sorted by first line
    BlockList m_inputBlocks;
    BlockList m_altBlocks;
    int m_bMarginMode = 0;
    int m_bBlockMode = 0;
    UINT m_nMarginWidth = 16;
    COLORREF m_crBookmark[16];
    COLORREF m_crMargin = 0xC0C0C0;
    CImageList* m_pMarginImages = nullptr;
    int m_bDragDrop = 1;
    int m_nDragState = 0;
    int m_bRepaintBeforeScroll = 0;
    GraphicText m_GraphicText;
    bool m_bDragCopyCursor = false;
    BYTE m_bOleDragSource = 0;  // this zone is the source of a running system drag
};
