// The coloured zone of the extended editors. It adds two things to the
// colouring: SQL keywords change case in place while the user works, and
// short words expand into stored text when a blank is typed behind them.
//
// A conversion rewrites bytes of the live line only: no length or position
// changes, nothing goes into the undo history, the modified flag stays as it
// was. Only user actions convert (typed keys, clicks, InsertText and so paste
// and drop, SetKeywordMode); SetText and painting never do.
//
// Sources: TextZoneParam.cpp (modes, deferred redraw, AnalyzeLine),
// TextZoneParamInput.cpp (which lines each action analyses),
// TextZoneParamShortcuts.cpp (the shortcut table and its expansion).
#pragma once

#include <memory>
#include <vector>

#include "TextzoneExport.h"
#include "colour/KeywordIndex.h"
#include "colour/TextZoneColor.h"
#include "zones/ShortcutEntry.h"

// Values of SetKeywordMode.
constexpr unsigned int KM_NONE = 0;
constexpr unsigned int KM_UPPER = 1;
constexpr unsigned int KM_LOWER = 2;
constexpr unsigned int KM_CAPITAL = 3;  // first letter upper, after any leading @ or #

// The shortcut file, in the settings store's data directory.
inline constexpr const char* kShortcutFileName = "ed_short.txt";

class TEXTZONE_EXPORT CTextZoneParam : public CTextZoneColor {
public:
    CTextZoneParam();
    ~CTextZoneParam() override;

    void RedrawLines(int nFirst, int nLast, int bUpdate) override;
    // Loads without converting: the text is the host's, not typed.
    int SetText(const char* pszText) override;
    int InsertText(const char* pszText, int bSelect, int bScroll, int bHorizontal) override;
    // Keyword conversion looks at every inserted piece: then the loop runs.
    int ReplaceAllInPlace(const char* pszFind, const char* pszReplace, int bMatchCase) override {
        if (KeywordGate()) return 0;
        return CTextZoneColor::ReplaceAllInPlace(pszFind, pszReplace, bMatchCase);
    }
    void HandleLButtonDown(UINT nFlags, POINT* pt) override;
    void HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    void HandleChar(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    void EnableSyntaxColor(int bEnable, int bSlashSlash, int bDashDash, int bBackslash, int bSql,
                           int bNested, int nSqlVersion) override;

protected:
    // Converts the keywords of one line in place by the keyword mode, past
    // strings, comments and bracketed names.
    virtual void AnalyzeLine(int nLine);

public:
    // Values above 3 are refused. A new non-zero mode with bRedraw converts
    // the whole text and repaints it; mode 0 restores nothing.
    virtual void SetKeywordMode(unsigned int nMode, int bRedraw);
    virtual unsigned int GetKeywordMode();
    // A slot for derived classes; the map is not used here.
    virtual void SetCharMap(void* pMap);
    // Reads the shortcut file again; a missing or unreadable file leaves the
    // table empty.
    virtual void LoadShortcuts();
    // 1 loads the table; any other value empties it and is kept as the flag.
    virtual void EnableShortcuts(int bEnable);

    const std::vector<std::unique_ptr<ShortcutEntry>>& GetShortcuts() const {
        return m_shortcutList;
    }

protected:
    // Analyses nFirst through nLast, clamped to the text.
    void AnalyzeLines(int nFirst, int nLast);
    // Ends a deferral and paints the range it recorded, once.
    void FlushRedraw();
    // Whether keywords are converted at all.
    bool KeywordGate() const { return m_bSyntaxColor && m_bSql && m_nKeywordMode != KM_NONE; }
    // The expansion behind a typed blank; bHadSelection is TestSelection()
    // from before the character.
    void ExpandShortcut(UINT nChar, int bHadSelection);

    unsigned int m_nKeywordMode = KM_CAPITAL;
    // A quote or backslash changed the caret's line: when the caret leaves
    // it, everything from there down is analysed again.
    int m_bRescanPending = 0;
    int m_bDeferRedraw = 0;
    int m_bRedrawPending = 0;
    int m_nRedrawFirst = 0;
    int m_nRedrawLast = 0;
    int m_bShortcuts = 0;
    std::vector<std::unique_ptr<ShortcutEntry>> m_shortcutList;
    // Six 0-ended tables of lower-case words; index 1 (data types) is never
    // converted.
    const char** m_keywordLists[6];

private:
    // The words of the converted tables (all but index 1), rebuilt when the
    // lists change, so that a line is scanned once and not once per word.
    CKeywordIndex m_keywordIndex;
    std::vector<KeywordToken> m_keywordTokens;
};
