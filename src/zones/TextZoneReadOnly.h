// A zone for report text that a host shows: results with marks that no
// language rule gives. The host highlights ranges, pales them, colours whole
// lines, adds links and help text; the marks live on the lines
// (CStringExReadOnly). Drawing turns them into colour runs whose word
// carries the marks above the colour (RUN_...); a click on a link calls
// OpenHyperlinks, which a host overrides; resting on a link or a line with
// help opens a CTooltipBubble under the line.
//
// The source is cut by topic: TextZoneReadOnly.cpp (marks, addresses,
// fonts), TextZoneReadOnlyDraw.cpp (runs and drawing),
// TextZoneReadOnlyMouse.cpp (links under the mouse, hover and bubble).
#pragma once

#include <cstdint>
#include <list>
#include <memory>

#include "TextzoneExport.h"
#include "colour/TextZoneColor.h"
#include "zones/StringExReadOnly.h"

#include "zones/TooltipBubble.h"

// Marks above the COLORREF in the word of a run.
constexpr COLORREF RUN_HILIGHT = 0x01000000;
constexpr COLORREF RUN_LINK = 0x02000000;
constexpr COLORREF RUN_BACK_YELLOW = 0x04000000;
constexpr COLORREF RUN_BACK_PINK = 0x08000000;
constexpr COLORREF RUN_PASTEL = 0x10000000;

// The lists a host reads the links under a point from.
using LinkIdList = std::list<std::int64_t>;
using LinkDataList = std::list<unsigned long>;
using LinkKindList = std::list<unsigned int>;

class TEXTZONE_EXPORT CTextZoneReadOnly : public CTextZoneColor {
public:
    CTextZoneReadOnly();
    ~CTextZoneReadOnly() override;

protected:
    CStringEx* CreateLine() override;
    void DrawTextLine(CDC* pDC, int nLine) override;

public:
    void SetFont(HFONT hFont) override;
    void HandleLButtonDown(UINT nFlags, POINT* pPoint) override;
    void HandleLButtonUp(UINT nFlags, POINT* pPoint) override;
    void HandleMouseMove(UINT nFlags, POINT* pPoint) override;
    void HandleKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;

protected:
    void DefineColors(int nLine, CStringEx* pText) override;
    virtual void BuildHilighFont(int bForce);

public:
    virtual void SetLineColor(int nLine, unsigned long crColor);
    virtual void SetPastel(long a, long b, int c, int d, short nMode);
    virtual void SetHilighted(long a, long b, int c, int d, short nMode);
    virtual void SetHyperlink(long a, long b, int c, int d, short nMode, char const* pText,
                              std::int64_t nId, unsigned long nData, unsigned int nKind);
    // Non-zero when the point lies on a link; every out-pointer may be null.
    // With pIds, all links under the point are collected and the positions
    // and texts are those of the last.
    virtual int IsOnHyperlink(POINT* pPoint, int* pLine1, int* pLine2, int* pChar1, int* pChar2,
                              char* pText, long nTextMax, unsigned short nEolMode, char* pLinkText,
                              long nLinkTextMax, LinkIdList* pIds, LinkDataList* pData,
                              LinkKindList* pKinds);
    // Activates links: the host's hook; here it does nothing.
    virtual void OpenHyperlinks(POINT point, int nLine1, int nLine2, int nChar1, int nChar2,
                                char const* pText, LinkIdList const& ids, LinkDataList const& data,
                                LinkKindList const& kinds);

    void OpenBubble(int nLine, POINT* pPoint, char const* pText);
    void CloseBubble();

    // The pastel rule: each channel lightened by how dark it is.
    static COLORREF Pastel(COLORREF cr);

    // How the mouse is waited on before a bubble opens: returns true when
    // the wait ran out with the mouse still on line nLine, false when input
    // ended it. The default polls the message queue against the tick count;
    // a backend whose input arrives only through its own loop installs one
    // of its own (null puts the default back).
    using HoverWait = bool (*)(CTextZoneReadOnly* pZone, int nLine, DWORD dwDelay);
    static void SetHoverWait(HoverWait pWait);
    static bool PollHoverWait(CTextZoneReadOnly* pZone, int nLine, DWORD dwDelay);

    static constexpr DWORD kHoverDelay = 800;

protected:
    CStringExReadOnly* GetReadOnlyLine(int nLine);
    // The run table's merge of a range with a mark (links clear the link
    // marks of the runs they insert; the pastel range may start at the end
    // of the text and never closes at 0x7fffffff).
    void MergeRange(int lo, int hi, COLORREF mark, int nTextEnd, bool bLink, bool bPastel);
    CColorDef* InsertRun(size_t nAt, int nPos, COLORREF crWord);

public:
    HFONT m_hHilightFont = nullptr;
    HFONT m_hLinkFont = nullptr;
    int m_nHilightHeight = 1;
    int m_nLinkHeight = 1;
    int m_nNormalHeight = -1;
    int m_bLinkPressed = 0;
    int m_nPressLine = 0;
    int m_nPressChar = 0;
    CTooltipBubble* m_pBubble = nullptr;
    int m_nBubbleLine = 0;
    POINT m_ptBubble{0, 0};

private:
    void BoundsConvert(int* pLine1, int* pLine2, int* pChar1, int* pChar2, long a, long b, int c,
                       int d, short nMode);
    int ColorConvert(HFONT* phFont, COLORREF* pcrText, COLORREF nRunWord, COLORREF* pcrBack,
                     COLORREF crBackNow);
    // Calls fn(line, char1, char2) for each line of a converted address.
    template <typename Fn>
    void ForEachMarkedLine(long a, long b, int c, int d, short nMode, Fn fn);

    // A closed bubble is freed at the next open or close, not at once: the
    // close may come from inside one of its own messages.
    std::unique_ptr<CTooltipBubble> m_pClosedBubble;
    // A normal font refitted to the line height, when the zone needed one;
    // the host's own font is left to the host.
    HFONT m_hRefittedFont = nullptr;
};
