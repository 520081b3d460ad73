// The engine with syntax colouring. A line keeps only the state it starts in
// (CStringExColor::m_nStartType); its colour runs are computed again each
// time it is drawn, into m_colorDefs, and go back to the pool afterwards.
// The language is a set of flags and up to six keyword tables, chosen by
// EnableSyntaxColor, SetSQLSyntaxColor or SetClientLanguageSyntaxColor.
//
// The source is cut by topic: TextZoneColor.cpp (construction, colours,
// settings, the run pool), TextZoneColorEdit.cpp (the wrapped engine
// operations), TextZoneColorLanguages.cpp, TextZoneColorStates.cpp (start
// states and delimiter search), TextZoneColorRuns.cpp (DefineColors),
// TextZoneColorJcl.cpp, TextZoneColorMarkup*.cpp and TextZoneColorEmbedded.cpp
// (markup and the script embedded in it), TextZoneColorDraw.cpp
// (DrawTextLine), TextZoneColorKeys.cpp (HandleKeyDown); word completion
// and the parameter tooltips are in completion/.
#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "colour/ColorDef.h"
#include "colour/KeywordIndex.h"
#include "colour/StringExColor.h"
#include "colour/TextZoneColorSettings.h"
#include "textzone/TextZone.h"

class COpenParmComp;
class CParmCompSet;
class CParmCompRequest;
class CCompletionTooltip;
using tagPOINT = POINT;

// The syntax classes: what SetSyntaxColor and GetSyntaxColor take.
constexpr unsigned int SC_COMMENT = 1;
constexpr unsigned int SC_KEYWORD1 = 2;  // KeyWord1 to KeyWord6 follow
constexpr unsigned int SC_STRING = 8;
constexpr unsigned int SC_VARIABLE = 9;

// Start states of a line, for every language but the markup ones.
constexpr std::uint32_t LS_UNKNOWN = 0;
constexpr std::uint32_t LS_PLAIN = 1;
constexpr std::uint32_t LS_QUOTE = 2;    // inside a ' string
constexpr std::uint32_t LS_DOUBLE = 3;   // inside a " string
constexpr std::uint32_t LS_BRACKET = 4;  // inside a [ identifier
constexpr std::uint32_t LS_COMMENT = 5;  // a block comment; 5 + n with n more nested
constexpr std::uint32_t LS_BRACE = 6;    // a Pascal { comment

class TEXTZONE_EXPORT CTextZoneColor : public CTextZone {
public:
    CTextZoneColor();
    ~CTextZoneColor() override;

    // Engine operations wrapped so that edits invalidate the line states.
    void DeleteSelection(int bUpdate) override;
    int InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal) override;

protected:
    CStringEx* CreateLine() override;
    void DrawTextLine(CDC* pDC, int nLine) override;

public:
    int SetText(const char* pszText) override;
    void HandleLButtonDown(UINT nFlags, POINT* pt) override;
    void HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    void HandleChar(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    void HandleKillFocus(CWnd* pNewWnd) override;
    LONG HandleUserMessage(std::uint64_t wParam, std::int64_t lParam) override;
    // Undo gives box edits their old lines back in place, past the wrapped
    // edits: the states from the first such line on are dropped here.
    void PerformUndoing(CUndoOperation* pOperation) override;
    int ReplaceAllInPlace(const char* pszFind, const char* pszReplace, int bMatchCase) override;

protected:
    virtual void ResetLastLines(int nLine);
    virtual unsigned int GetEndEmbeddedType(char* pText, unsigned int nType, int bJava);
    virtual unsigned int StartWithWhat(int nLine);
    virtual void BuildEmbeddedColor(char* pText, unsigned int nType, int bJava, int nOffset);
    virtual void DefineColors(int nLine, CStringEx* pText);

public:
    virtual void ReadColorValues();
    virtual void SetSyntaxColor(unsigned int nClass, unsigned long crColor);
    virtual unsigned long GetSyntaxColor(unsigned int nClass);
    virtual void EnableSyntaxColor(int bEnable, int bSlashSlash, int bDashDash, int bBackslash,
                                   int bSql, int bNested, int nSqlVersion);
    virtual void SetSQLSyntaxColor(unsigned int nId);
    virtual void SetClientLanguageSyntaxColor(unsigned int nId);
    virtual void SetQuotedId(int bQuotedId);
    virtual int IsSyntaxColorEnabled();
    virtual void DefineKeywordList(char const*** pLists);
    virtual void SetWordCompletion(unsigned int nMode);
    virtual unsigned int GetWordCompletion();
    virtual void AddExtraCandidateKeyword(char const* pPrefix, int nMode);
    virtual void CompleteWord(int nMode);
    virtual void ResetWordCompletion();
    virtual void SetParmCompletionMode(unsigned int nMode);
    virtual void AddParmCompletionSet(int nKind, char const* pName, char const* pTitle,
                                      char const* pParms, char const* pNames);
    virtual void OnNewParmCompletionRequest(int nKind, char const* pName);
    virtual void OpenParmTooltip(COpenParmComp* pComp);
    virtual void CloseParmTooltip(int bClearRequests);
    virtual void UpdateParmTooltipStatus();
    virtual void GetCommentAndStringFreeLine(CStringEx* pOut, int nLine, int bKeepIdentifiers);
    virtual void HandleLButtonDownForCompletion(unsigned int nFlags, tagPOINT* pPoint);
    virtual void HandleKeyDownForCompletion(unsigned int nChar, unsigned int nRepeat,
                                            unsigned int nFlags);
    virtual void HandleCharForCompletion(unsigned int nChar, unsigned int nRepeat,
                                         unsigned int nFlags);

    // View state a host keeps while it rebuilds the zone.
    void GetSettings(CTextZoneColorSettings* pSettings);
    void SetSettings(CTextZoneColorSettings* pSettings);

    // Moves every run of m_colorDefs back to the pool; drawing does this
    // when it has used the runs of a line.
    void FreeColorDefs();

protected:
    // Kinds of opener, in the order that wins a tie at one place.
    enum { OPENER_BLOCK, OPENER_QUOTE, OPENER_DOUBLE, OPENER_LINE, OPENER_BRACKET };

    // --- Run operations (TextZoneColor.cpp) ---
    // A run from nPos on in crColor; one already starting there gives way.
    void AddColorDef(int nPos, COLORREF crColor);
    // Text colour from nPos on, unless a run already starts there.
    void CloseColorDef(int nPos);
    // A run not yet placed, taken from the freed ones where there are any.
    std::unique_ptr<CColorDef> NewColorDef(int nPos, COLORREF crColor);
    // A token coloured from nStart, closed at nEnd.
    struct TokenRun {
        int nStart;
        int nEnd;
        COLORREF crColor;
    };
    // The same as AddColorDef and CloseColorDef for each token, for tokens
    // that lie apart from each other and from what has runs already, in
    // one merge: a long line has thousands of them.
    void AddTokenRuns(std::vector<TokenRun>& tokens);

    // --- Delimiter search (TextZoneColorStates.cpp) ---
    // The closing delimiter of the construct of state *pState, searched from
    // nFrom: the index behind it, or -1 when the line ends first. Nested
    // comments move *pState up and down. bEscapes allows the backslash and
    // tilde escapes.
    int FindCloser(const char* pText, int nFrom, std::uint32_t* pState, bool bEscapes);
    // The earliest opener at or behind nFrom: its index, its length in
    // *pnLength, its kind in *pnKind (OPENER_...) and the state it opens in
    // *pnState; -1 for none. nLineComment, when not -2, is where the line
    // comment opens (-1 for nowhere), found by rules of the caller's own.
    int FindOpener(const char* pText, int nFrom, int nLineComment, int* pnLength, int* pnKind,
                   std::uint32_t* pnState);
    // FindOpener with the line comments that the language's rules make
    // rather than an opener: "rem" at the start, a COBOL comment line or
    // "*>". Used by the colouring and by the comment-free copy of a line.
    int FindPartOpener(const char* pText, int nFrom, int* pnLength, int* pnKind,
                       std::uint32_t* pnState);
    // The state at the end of a line that starts in nState.
    std::uint32_t AdvanceState(CStringExColor* pLine, std::uint32_t nState);
    // "rem" and a blank after leading blanks: a Visual Basic comment line.
    static bool StartsWithRem(const char* pText);

    // --- Passes of DefineColors (TextZoneColorRuns.cpp, TextZoneColorJcl.cpp) ---
    void ContinuationPass(std::string& text, std::uint32_t nState);
    void TokenPass(std::string& text);
    void KeywordPass(std::string& text, const char* const* const* ppTables, int nTables,
                     const COLORREF* pColors, bool bFold, KeywordBounds bounds);
    void VariablePass(std::string& text);
    void DefineJclColors(std::string& text, const char* const* const* ppTables);
    CStringExColor* GetColorLine(int nLine);

    // --- Markup (TextZoneColorMarkup.cpp, TextZoneColorMarkupStates.cpp,
    // TextZoneColorEmbedded.cpp) ---
    // The runs of a markup line that starts in nState (MarkupStates.h).
    void DefineMarkupColors(const std::string& text, std::uint32_t nState);
    // The state at the end of a markup line that starts in nState.
    std::uint32_t AdvanceMarkupState(const char* pText, std::uint32_t nState);
    // The state the '<' at pLt opens, 0 for none; a "<%@" directive read on
    // the way sets m_bServerScriptJava.
    std::uint32_t OpenMarkup(const char* pLt);
    void MarkupEntityPass(const std::string& text, int nFrom, int nTo);
    void MarkupTagKeywordPass(const std::string& text, int nFrom, int nTo);
    // BuildEmbeddedColor on the bytes [nFrom, nTo) of text.
    void ColorEmbeddedPiece(const std::string& text, int nFrom, int nTo, std::uint32_t nType,
                            bool bJava);

    // --- Parameter tooltips (completion/ParmCompletion*.cpp) ---
    // Frees the answers, questions, open calls and the tooltip of the zone.
    void FreeParmCompletion();
    // Types the name of parameter nParm of the newest call unless the text
    // already goes on with it; bComma puts a blank before it.
    void InsertParmName(int nParm, bool bComma);
    // Where the tooltip of a call hangs, in the window's client coordinates.
    POINT ParmTooltipPlace(const COpenParmComp* pComp);
    // Whether a blank behind the name of a call without parentheses opens
    // it, given the calls open already; closes the only one when the new
    // name just adds a group number to it.
    bool BlankCallMayOpen(bool bGroup, const std::string& name);

    // --- Drawing and the edit wrappers (TextZoneColorDraw.cpp,
    // TextZoneColorEdit.cpp, TextZoneColorKeys.cpp) ---
    // The selection on a line as two columns (-1 for none) at which the
    // drawing swaps between selected and plain, and the side it starts on;
    // false when the line holds no selection.
    bool LineSelectionBounds(int nLine, int* pA, int* pB, bool* pbStartSelected);
    // Where the drawing walk of a line scrolled to the left can start: the
    // last place at which the walk cuts the text whose text ends left of
    // the rectangle, with its offset in *pdx; 0 for the line's start.
    int FirstVisibleCut(CDC* pDC, const char* p, int n, int x, int A, int B, bool bStartSelected,
                        int* pdx);
    // The states from nLine on are no longer trusted, and everything from
    // the first selected line down is repainted (at once with bUpdate).
    void InvalidateFrom(int nLine, int bUpdate);
    // The bytes before and at the caret (the selection's start), 0 where
    // there is none.
    void BytesAroundCaret(char* pcBefore, char* pcAt);
    // Whether the caret line ends in a backslash that goes on into the next
    // line, and whether it ends in " _"; the state of the next line
    // depends on both.
    bool EndsInBackslash(int nLine);
    bool HasContinuationEnding(int nLine);
    // Whether the two bytes can take part in a comment delimiter.
    bool FormsCommentDelimiter(char cBefore, char cAt);

    // --- Word completion (completion/TextZoneColorWordCompletion.cpp) ---
    // Looks up the candidates of the word left of the caret and opens the
    // cycle when there are any; false when the place is refused.
    bool StartWordCompletion(int nMode);
    // A candidate as it goes into the text: in the case of the prefix, and
    // a blank behind.
    std::string CandidateText(const char* pWord, int nMode);
    // Replaces the prefix by text as one undo operation of its own.
    void InsertCandidate(const std::string& text);
    void CompleteInPlace(int nMode, bool bStarted, bool bShift);
    void CompleteFromList(int nMode);

public:
    // The members, in the order of the class.
    int m_bSyntaxColor = 1;
    int m_bHtml = 0;
    int m_bXml = 0;
    int m_bServerPage = 0;
    int m_bSlashStarComment = 1;
    int m_bSlashSlashComment = 1;
    int m_bDashDashComment = 0;
    int m_bQuoteComment = 0;
    int m_bBackslashEscape = 1;
    int m_bTildeEscape = 0;
    int m_bNestedComment = 0;
    int m_bPascalComment = 0;
    int m_bCobolComment = 0;
    int m_bSql = 0;
    int m_bProcCallNoParens = 0;
    int m_bClientLanguage = 0;
    int m_bQuotedId = 0;
    int m_bCaseSensitive = 0;
    int m_bJcl = 0;
    int m_bServerScriptJava = 0;
    int m_nSqlVersion = 0;
    unsigned int m_nClientLanguage = 0;
    COLORREF m_crSyntax[9] = {};  // Comment, KeyWord1 to KeyWord6, String, Variable
    int m_nFirstDirtyLine = 0;
    std::vector<std::unique_ptr<CColorDef>> m_freeColorDefs;
    std::vector<std::unique_ptr<CColorDef>> m_colorDefs;  // ascending by nPos, no two alike
    unsigned int m_nWordCompletion = 0;
    int m_bCompleting = 0;
    int m_nCompletionMode = 0;
    std::list<VESK::String>::iterator m_posCandidate{};
    std::list<VESK::String> m_candidates;
    int m_nWordStart = 0;
    int m_nWordLength = 0;
    int m_nCaseMode = 0;
    CUndoOperation* m_pCompletionUndo = nullptr;
    unsigned int m_nParmCompletionMode = 2;
    std::list<CParmCompSet*> m_parmSets;
    std::list<CParmCompRequest*> m_parmRequests;
    CCompletionTooltip* m_pParmTooltip = nullptr;
    std::list<COpenParmComp*> m_openParmComps;
    std::mutex m_parmLock;

private:
    CKeywordIndex m_keywordIndex;  // of the tables the last line was coloured with
    std::vector<KeywordToken> m_keywordTokens;
    std::vector<TokenRun> m_tokenRuns;
    std::vector<std::unique_ptr<CColorDef>> m_mergedDefs;
    CKeywordIndex m_markupIndex;       // element and attribute names
    CKeywordIndex m_embeddedIndex[2];  // the VB-like and the Java-like script words
    std::string m_embeddedPiece;       // scratch for the pieces of embedded script
    COLORREF m_crRunText = 0;          // the zone's text colour while a line is coloured
};
