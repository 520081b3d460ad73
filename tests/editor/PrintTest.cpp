// Printing through the print loop onto a printer with fixed pages: where
// pages break, how long lines wrap and tabs expand, and how a job ends.
#include <random>
#include <string>
#include <vector>

#include "EditorExFixture.h"
#include "editor/EditorPrinting.h"
#include "platform/CmdUI.h"
#include "platform/PrintingDialog.h"
#include "platform/headless/HeadlessFonts.h"

namespace {

// The default font: 14 pixels high, 7 wide; a tab of 4 is 28 pixels.
constexpr int kW = 7;
constexpr int kH = 14;

class PrintTest : public EditorExTest {
protected:
    void SetUp() override {
        EditorExTest::SetUp();
        // Ten characters by ten rows a page.
        m_platform.SetPrinterPage({10 * kW, 10 * kH, 96});
    }
    void Print(const char* pszText, UINT nFrom = 1, UINT nTo = 0xFFFF) {
        Zone().SetText(pszText);
        CPrintInfo info;
        info.m_bDirect = TRUE;
        info.m_pd.nFromPage = nFrom;
        info.m_pd.nToPage = nTo;
        m_bResult = m_editor.PrintTo(info);
    }
    const HeadlessPrintJob& Job() { return *m_platform.GetPrintJobs().back(); }
    // Each page's text runs as "x:text", a row per line of the result.
    std::vector<std::string> Page(size_t n) {
        std::vector<std::string> rows;
        for (const DrawRecord& r : Job().pages.at(n))
            if (r.kind == DrawRecord::Text)
                rows.push_back(std::to_string(r.rc.left) + "," + std::to_string(r.rc.top) + ":" +
                               r.text);
        return rows;
    }
    BOOL m_bResult = FALSE;
};

TEST_F(PrintTest, PagesBreakAfterTheRowsThatFit) {
    std::string text;
    for (int i = 1; i <= 25; ++i)
        text += "L" + std::to_string(i) + "\n";
    text.pop_back();
    Print(text.c_str());
    ASSERT_TRUE(m_bResult);
    ASSERT_EQ(Job().pages.size(), 3u);
    EXPECT_TRUE(Job().bEnded);
    EXPECT_EQ(Job().strDocName, "Text Editor");
    EXPECT_EQ(Page(0).size(), 10u);
    EXPECT_EQ(Page(0).front(), "0,0:L1");
    EXPECT_EQ(Page(1).front(), "0,0:L11");
    EXPECT_EQ(Page(2).back(), "0," + std::to_string(4 * kH) + ":L25");
    // Pages 2 and 3 alone: found by walking, the first printed nowhere.
    Print(text.c_str(), 2, 3);
    ASSERT_EQ(Job().pages.size(), 2u);
    EXPECT_EQ(Page(0).front(), "0,0:L11");
    // Page 3 of a two-page text: no blank page, the job just ends.
    Print("a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk", 3, 3);
    EXPECT_TRUE(Job().pages.empty());
    EXPECT_TRUE(Job().bEnded);
}

TEST_F(PrintTest, LongLinesWrapAtTheCharacterThatNoLongerFitsAndTabsMatchTheScreen) {
    Print("abcdefghijklmnopqrstuvwxy\nabcdefghij\tk\n\na\tb");
    ASSERT_EQ(Job().pages.size(), 1u);
    const std::string y1 = std::to_string(kH), y2 = std::to_string(2 * kH);
    const std::vector<std::string> expected = {
        "0,0:abcdefghij", "0," + y1 + ":klmnopqrst", "0," + y2 + ":uvwxy",
        // A continuation row starts at column 0, and its tab is measured from there.
        "0," + std::to_string(3 * kH) + ":abcdefghij", "28," + std::to_string(4 * kH) + ":k",
        // An empty line is an empty row; a tab is as wide as on screen.
        "0," + std::to_string(6 * kH) + ":a", "28," + std::to_string(6 * kH) + ":b"};
    EXPECT_EQ(Page(0), expected);
}

TEST_F(PrintTest, CollapsedLinesArePrintedLikeTheOthers) {
    Zone().SetText("head\nin1\nin2\ntail");
    Zone().BeginEditBlockInput();
    Zone().AddEditBlockInput(0, 3);
    Zone().EndEditBlockInput();
    Zone().CloseBlock(0, 0);
    ASSERT_TRUE(Zone().GetLine(1)->m_dwBlockFlags & 4);  // hidden on screen
    CPrintInfo info;
    info.m_bDirect = TRUE;
    ASSERT_TRUE(m_editor.PrintTo(info));
    EXPECT_EQ(Page(0).size(), 4u);
}

TEST_F(PrintTest, ACancelAfterPageTwoEndsTheJob) {
    std::string lines;
    for (int i = 0; i < 40; ++i)
        lines += "row\n";
    m_platform.SetEndPageHandler([](int nPage) {
        // What Cancel in the printing window does.
        if (nPage == 2) CPrintingDialog().OnCancel();
    });
    Print(lines.c_str());
    EXPECT_FALSE(m_bResult);
    EXPECT_EQ(Job().pages.size(), 2u);
    EXPECT_TRUE(Job().bAborted);
    EXPECT_FALSE(Job().bEnded);
    // The main window is usable again.
    EXPECT_TRUE(m_parent.IsWindowEnabled());
}

TEST_F(PrintTest, ThePrinterGetsTheScreenFontScaledUnlessItIsTheSystemFont) {
    m_platform.SetPrinterPage({600, 800, 192});
    Print("a");
    ASSERT_EQ(Job().pages.size(), 1u);
    EXPECT_EQ(Job().pages[0][0].font.lfHeight, -28);
    EXPECT_EQ(m_editor.m_printing.m_hPrinterFont, nullptr);  // gone with the job

    Set("FontName", "System");
    m_editor.OnLoadIniSetting(0, 0);
    Print("a");
    ASSERT_EQ(Job().pages.size(), 1u);
    EXPECT_NE(Job().pages[0][0].font.lfHeight, -28);
}

TEST_F(PrintTest, AnEmptyTextCannotBePrintedAndAMissingPrinterIsSaid) {
    Zone().SetText("");
    CCmdUI ui;
    ui.m_nID = ID_FILE_PRINT;
    ui.DoUpdate(&m_editor, TRUE);
    EXPECT_FALSE(ui.m_bEnabled);
    Zone().SetText("x");
    ui.DoUpdate(&m_editor, TRUE);
    EXPECT_TRUE(ui.m_bEnabled);

    m_platform.SetPrinterMissing(true);
    m_editor.SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT, 0);
    ASSERT_EQ(m_platform.GetMessageBoxes().size(), 1u);
    EXPECT_EQ(m_platform.GetMessageBoxes()[0], CPrintJob::kFailedToStart);
    // A cancelled print dialog prints nothing and says nothing.
    m_platform.SetPrinterMissing(false);
    m_platform.SetPrintDialogHandler([](CPrintDialogInfo&) { return FALSE; });
    m_editor.SendMessage(WM_COMMAND, ID_FILE_PRINT, 0);
    EXPECT_TRUE(m_platform.GetPrintJobs().empty());
}

// The longest run that fits, by halving, against the plain search from the
// end, one step at a time.
TEST(PrintFitTest, HalvingFindsWhatTheStepByStepSearchFinds) {
    CHeadlessPlatform platform;
    std::unique_ptr<CDC> pDC(CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    ASSERT_TRUE(pDC);
    std::mt19937 random(7);
    const char alphabet[] = "iimwW@ \tab.,";
    for (int round = 0; round < 400; ++round) {
        LOGFONTA lf = CHeadlessFonts::MakeFont(
            round % 2 ? CHeadlessFonts::kProportionalFace : CHeadlessFonts::kFixedFace, 12);
        CFont font;
        font.CreateFontIndirect(&lf);
        pDC->SelectObject(&font);
        std::string text(random() % 60, ' ');
        for (char& c : text)
            c = alphabet[random() % (sizeof alphabet - 1)];
        const int nWidth = static_cast<int>(random() % 200);
        int nTab = 8 + static_cast<int>(random() % 40);
        int n = static_cast<int>(text.size());
        while (n > 1 && pDC->GetTabbedTextExtent(text.c_str(), n, 1, &nTab).cx > nWidth)
            --n;
        EXPECT_EQ(CEditorPrinting::FittingLength(pDC.get(), text.c_str(),
                                                 static_cast<int>(text.size()), nWidth, nTab),
                  n)
            << text << " in " << nWidth;
    }
}

}  // namespace
