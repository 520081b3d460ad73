// Drawing and measuring through the seam's contexts, in real pixels.
#include <QPainter>
#include <cstring>

#include "QtFixture.h"
#include "platform/Brush.h"
#include "platform/ClientDC.h"
#include "platform/Font.h"
#include "platform/ImageList.h"
#include "platform/Pen.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

class DrawingTest : public QtFixture {
protected:
    // The window's context, cleared to white.
    CDC* WhiteDC() {
        CDC* dc = m_wnd.GetDC();
        dc->FillSolidRect(0, 0, 400, 300, kWhite);
        return dc;
    }
    static std::unique_ptr<CDC> Display() {
        return std::unique_ptr<CDC>(CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    }
    struct Probe {
        int x, y;
        COLORREF cr;
    };
    void ExpectPixels(std::initializer_list<Probe> probes) {
        const QImage& image = Image();
        for (const Probe& p : probes)
            EXPECT_EQ(Pixel(image, p.x, p.y), p.cr) << p.x << ',' << p.y;
    }
};


LOGFONTA Font(const char* face, int height, int weight = FW_NORMAL, BYTE pitch = DEFAULT_PITCH) {
    LOGFONTA lf;
    lf.lfHeight = height;
    lf.lfWeight = weight;
    lf.lfPitchAndFamily = pitch;
    lf.lfQuality = NONANTIALIASED_QUALITY;
    std::strncpy(lf.lfFaceName, face, LF_FACESIZE - 1);
    return lf;
}

int CountPixels(const QImage& image, const QRect& area, COLORREF cr) {
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (QtFixture::Pixel(image, x, y) == cr) ++n;
    return n;
}

}  // namespace

TEST_F(DrawingTest, FillsShapesAndImagesLandInTheImageInsideTheClip) {
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, 0, 1, 1));
    std::vector<DWORD> pixels(16, 0xFF00FF00);  // opaque green
    pixels[0] = 0x00000000;                     // one transparent corner
    ASSERT_EQ(list.Add(pixels), 0);
    CDC* dc = WhiteDC();
    dc->FillSolidRect(10, 10, 20, 5, kRed);
    dc->IntersectClipRect(0, 0, 15, 300);
    dc->FillSolidRect(0, 50, 100, 10, kBlue);
    // Rectangle with a pen outlines in the pen, fills inside with the brush.
    dc->SelectClipRgn(nullptr);
    CBrush brush(kBlue);
    CPen pen(PS_SOLID, 1, kRed);
    dc->SelectObject(&brush);
    dc->SelectObject(&pen);
    dc->Rectangle(100, 100, 110, 110);
    ImageList_Draw(&list, 0, dc, 20, 30, ILD_NORMAL);
    dc->SelectStockObject(BLACK_PEN);
    dc->RoundRect(200, 100, 240, 120, 4, 4);
    RECT focus{200, 200, 220, 210};
    dc->DrawFocusRect(&focus);
    m_wnd.ReleaseDC(dc);

    // Right and bottom edges excluded; the clip holds.
    ExpectPixels({{10, 10, kRed}, {29, 14, kRed}, {30, 14, kWhite}, {29, 15, kWhite},
                  {14, 55, kBlue}, {15, 55, kWhite}, {100, 100, kRed}, {109, 109, kRed},
                  {105, 105, kBlue}, {110, 110, kWhite}, {21, 31, RGB(0, 255, 0)},
                  {20, 30, kWhite}, {24, 34, kWhite}, {220, 110, kBlue}, {220, 100, kBlack},
                  {220, 120, kWhite}, {199, 110, kWhite}});
    // The focus rectangle inverts dots along its edge and nothing inside.
    EXPECT_GT(CountPixels(Image(), QRect(200, 200, 20, 1), kBlack), 5);
    EXPECT_EQ(CountPixels(Image(), QRect(201, 201, 18, 8), kBlack), 0);
}

TEST_F(DrawingTest, TextIsDrawnInTheTextColourWithinItsMeasuredCell) {
    CFont font;
    LOGFONTA lf = Font("Courier New", -20, FW_BOLD);
    ASSERT_TRUE(font.CreateFontIndirect(&lf));
    CDC* dc = WhiteDC();
    dc->SelectObject(&font);
    dc->SetTextColor(kRed);
    dc->SetBkColor(kBlue);
    CSize extent = dc->GetTextExtent("HIH", 3);
    dc->TextOut(50, 40, "HIH", 3);
    dc->SetBkMode(TRANSPARENT);
    dc->TextOut(50, 100, "HIH", 3);
    m_wnd.ReleaseDC(dc);

    const QImage& image = Image();
    QRect cell(50, 40, extent.cx, extent.cy);
    // Opaque: the cell is the background colour where no glyph is.
    int red = CountPixels(image, cell, kRed);
    int blue = CountPixels(image, cell, kBlue);
    EXPECT_GT(red, 40);
    EXPECT_EQ(red + blue, cell.width() * cell.height());
    EXPECT_EQ(CountPixels(image, cell.adjusted(-5, -5, 5, 5), kRed), red);  // nothing outside
    // Transparent: the same glyph pixels, the background left as it was.
    QRect cell2 = cell.translated(0, 60);
    EXPECT_EQ(CountPixels(image, cell2, kRed), red);
    EXPECT_EQ(CountPixels(image, cell2, kBlue), 0);
}

TEST_F(DrawingTest, WidthsAreSumsOfIntegerByteAdvancesInEveryFont) {
    const LOGFONTA fonts[] = {Font("Courier New", -13), Font("Arial", -15),
                              Font("Arial", -15, FW_BOLD), Font("Times New Roman", 18),
                              Font("", 0, FW_NORMAL, FIXED_PITCH | FF_MODERN)};
    std::unique_ptr<CDC> dc = Display();
    ASSERT_NE(dc, nullptr);
    const char* text = "Wil\xE9\x80 fi ff AV To.\x97";
    int n = static_cast<int>(std::strlen(text));
    for (const LOGFONTA& lf : fonts) {
        SCOPED_TRACE(lf.lfFaceName);
        CFont font;
        font.CreateFontIndirect(&lf);
        dc->SelectObject(&font);
        int widths[256];
        ASSERT_TRUE(dc->GetCharWidth(0, 255, widths));
        int sum = 0;
        for (int i = 0; i < n; ++i)
            sum += widths[static_cast<unsigned char>(text[i])];
        EXPECT_EQ(dc->GetTextExtent(text, n).cx, sum);  // pieces add up, tabless tabbed too
        EXPECT_EQ(dc->GetTextExtent(text, 5).cx + dc->GetTextExtent(text + 5, n - 5).cx, sum);
        EXPECT_EQ(dc->GetTabbedTextExtent(text, n, 0, nullptr).cx, sum);
        TEXTMETRICA tm;
        ASSERT_TRUE(dc->GetTextMetrics(&tm));
        if (tm.tmPitchAndFamily & TMPF_FIXED_PITCH) {  // set: variable pitch
            EXPECT_GT(widths['W'], widths['i']);
        }
        EXPECT_GT(widths[0x80], 0);  // the euro sign has a glyph
        EXPECT_EQ(tm.tmHeight, tm.tmAscent + tm.tmDescent);
        EXPECT_EQ(tm.tmOverhang, 0);
        if (lf.lfHeight < 0) {
            EXPECT_GE(tm.tmHeight, -lf.lfHeight);
        } else if (lf.lfHeight > 0) {
            EXPECT_LE(tm.tmHeight, lf.lfHeight + 1);
        }
    }
}

TEST_F(DrawingTest, FixedPitchRequestsGetOneWidthForEveryByte) {
    std::unique_ptr<CDC> dc = Display();
    for (const LOGFONTA& lf : {Font("Courier New", -16), Font("Fixedsys", 15),
                               Font("Anything", -16, FW_NORMAL, FIXED_PITCH)}) {
        SCOPED_TRACE(lf.lfFaceName);
        EXPECT_EQ(CQtFonts::MakeQFont(lf).family(), QString(CQtFonts::kFixedFamily));
        CFont font;
        font.CreateFontIndirect(&lf);
        dc->SelectObject(&font);
        TEXTMETRICA tm;
        dc->GetTextMetrics(&tm);
        EXPECT_EQ(dc->GetTextExtent("i", 1).cx, dc->GetTextExtent("W", 1).cx);
        EXPECT_EQ(dc->GetTextExtent("\xE9\x80", 2).cx, 2 * tm.tmAveCharWidth);
        EXPECT_EQ(tm.tmPitchAndFamily & TMPF_FIXED_PITCH, 0);  // clear means fixed
        // A tab goes to eight average characters.
        EXPECT_EQ(dc->GetTabbedTextExtent("ab\tc", 4, 0, nullptr).cx, 9 * tm.tmAveCharWidth);
    }
    EXPECT_EQ(CQtFonts::MakeQFont(Font("Arial", -12)).family(), QString(CQtFonts::kSansFamily));

    // A width in the description stretches the font.
    LOGFONTA lf = Font("Courier New", -20);
    CFont natural;
    natural.CreateFontIndirect(&lf);
    dc->SelectObject(&natural);
    lf.lfWidth = 2 * dc->GetTextExtent("x", 1).cx;
    CFont wide;
    wide.CreateFontIndirect(&lf);
    dc->SelectObject(&wide);
    EXPECT_NEAR(dc->GetTextExtent("x", 1).cx, lf.lfWidth, 2);
    TEXTMETRICA tm;
    dc->GetTextMetrics(&tm);
    EXPECT_NEAR(tm.tmAveCharWidth, lf.lfWidth, 2);
}

TEST_F(DrawingTest, DrawnGlyphsFollowTheMeasuredAdvances) {
    // Whole and in pieces at their measured offsets: the same pixels.
    CFont font;
    LOGFONTA lf = Font("Arial", -17);
    font.CreateFontIndirect(&lf);
    CDC* dc = WhiteDC();
    dc->SelectObject(&font);
    dc->SetBkMode(TRANSPARENT);
    const char* text = "AVAWAY Tof.ff";
    int n = static_cast<int>(std::strlen(text));
    dc->TextOut(10, 10, text, n);
    int x = 10;
    for (int i = 0; i < n; ++i) {
        dc->TextOut(x, 60, text + i, 1);
        x += dc->GetTextExtent(text + i, 1).cx;
    }
    CSize size = dc->GetTextExtent(text, n);
    m_wnd.ReleaseDC(dc);
    EXPECT_EQ(Image().copy(10, 10, size.cx, size.cy), Image().copy(10, 60, size.cx, size.cy));
}

TEST_F(DrawingTest, ScrollDCMovesPixelsAndReportsWhatItUncovered) {
    CDC* dc = WhiteDC();
    dc->FillSolidRect(0, 100, 400, 20, kRed);
    RECT scroll{0, 0, 400, 300};
    CRgn exposed;
    RECT box;
    ASSERT_TRUE(dc->ScrollDC(0, -30, &scroll, &scroll, &exposed, &box));
    m_wnd.ReleaseDC(dc);
    EXPECT_EQ(box, (RECT{0, 270, 400, 300}));
    ExpectPixels({{5, 70, kRed}, {5, 89, kRed}, {5, 90, kWhite}, {5, 69, kWhite}});
    // A measuring context has nothing to move.
    EXPECT_FALSE(Display()->ScrollDC(0, 10, &scroll, &scroll, &exposed, &box));
}

TEST_F(DrawingTest, AnUnderlineRunsUnderItsOwnTextOnly) {
    CFont font;
    LOGFONTA lf = Font("Courier New", -20);
    lf.lfUnderline = 1;
    ASSERT_TRUE(font.CreateFontIndirect(&lf));
    CDC* dc = WhiteDC();
    dc->SelectObject(&font);
    dc->SetTextColor(kRed);
    dc->SetBkMode(TRANSPARENT);
    CSize extent = dc->GetTextExtent("__", 2);
    dc->TextOut(150, 40, "  ", 2);  // blanks: only the underline shows
    m_wnd.ReleaseDC(dc);

    const QImage& image = Image();
    EXPECT_GT(CountPixels(image, QRect(150, 40, extent.cx, extent.cy), kRed), extent.cx / 2);
    EXPECT_EQ(CountPixels(image, QRect(0, 30, 148, 40), kRed), 0);
    EXPECT_EQ(CountPixels(image, QRect(152 + extent.cx, 30, 100, 40), kRed), 0);
}
