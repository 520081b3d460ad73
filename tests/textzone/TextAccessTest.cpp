// Reading text out of a zone: line ends, the reader flags, buffer limits,
// ranges, positions, the text fingerprint; and the measuring underneath.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "platform/DC.h"
#include "platform/Messages.h"
#include "platform/Platform.h"
#include "platform/headless/HeadlessFonts.h"
#include "support/ZoneTest.h"

namespace {

class TextAccessTest : public ZoneTest {
protected:
    std::string Get(WORD wFlags, LONG lSize = 4096) {
        std::vector<char> buffer(static_cast<size_t>(lSize) + 8, '#');
        m_zone.GetText(buffer.data(), lSize, wFlags);
        return std::string(buffer.data());
    }

    std::string Part(LONG lFirst, LONG lLast, int nFirst, int nLast, WORD wMode,
                     WORD wFlags = TF_CRLF, LONG lSize = 4096) {
        std::vector<char> buffer(static_cast<size_t>(lSize) + 8, '#');
        m_zone.GetPartOfText(buffer.data(), lSize, lFirst, lLast, nFirst, nLast, wMode, wFlags);
        return std::string(buffer.data());
    }

    // Puts raw lines into the store, for layouts (lines without a line end in
    // the middle) that only wrapping would make.
    void SetLines(const std::vector<std::string>& lines) {
        m_zone.FreeAllLines();
        for (size_t i = 0; i < lines.size(); ++i)
            *m_zone.InsertLine(static_cast<int>(i)) += lines[i].c_str();
    }

    void UseFont(const char* pszFace, int nHeight) {
        LOGFONTA lf = CHeadlessFonts::MakeFont(pszFace, nHeight);
        m_other.DeleteObject();
        m_other.CreateFontIndirect(&lf);
        m_zone.SetFont(m_other);
    }

    int Width(const char* psz, int n = -1) {
        CDC* pDC = m_zone.GetStandardDC();
        int w = m_zone.GetTextWidth(pDC, psz, n < 0 ? static_cast<int>(std::strlen(psz)) : n);
        m_zone.ReleaseStandardDC(pDC);
        return w;
    }

    std::string SpaceEquivalent(const char* psz) {
        CStringEx source(psz);
        CStringEx target;
        m_zone.GetSpaceEquivalentLine(&target, &source);
        return std::string(target.c_str(), static_cast<size_t>(target.GetLength()));
    }

    CFont m_other;
};

TEST_F(TextAccessTest, LineEndsRoundTrip) {
    const char* text = "one\r\ntwo\n\nthree";
    ASSERT_EQ(m_zone.SetText(text), 1);
    EXPECT_EQ(m_zone.GetLineCount(), 4);
    EXPECT_EQ(m_zone.GetModify(), 0);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);

    EXPECT_EQ(Get(TF_CRLF), "one\r\ntwo\r\n\r\nthree\r\n");
    EXPECT_EQ(Get(TF_LF), "one\ntwo\n\nthree\n");
    EXPECT_EQ(Get(0), "one\rtwo\r\rthree\r");
    EXPECT_EQ(Get(3), "one\rtwo\r\rthree\r");
    EXPECT_EQ(Get(TF_CRLF | TF_NO_FINAL_END), "one\r\ntwo\r\n\r\nthree");
    for (WORD flags : {0, 1, 2, 3, 32, 33, 34})
        EXPECT_EQ(m_zone.GetTextLength(flags), static_cast<LONG>(Get(flags).size())) << flags;

    // With a final line end the text comes back as it went in.
    m_zone.SetText("a\r\nb\r\n");
    EXPECT_EQ(Get(TF_CRLF | TF_NO_FINAL_END), "a\r\nb\r\n");
    EXPECT_EQ(Get(TF_CRLF), "a\r\nb\r\n");
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF), 6);

    m_zone.SetText("");
    EXPECT_EQ(Get(TF_CRLF), "");
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF), 0);
}

TEST_F(TextAccessTest, WrappedLinesAndTheLengthThatMayBeMore) {
    SetLines({"ab", "cd\r", "ef"});
    EXPECT_EQ(Get(TF_CRLF), "abcd\r\nef\r\n");
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF), 10);
    EXPECT_EQ(Get(TF_CRLF | TF_WRAPPED_ENDS), "ab\r\ncd\r\nef\r\n");
    // The length asks the stored last line, which has no line end: one more.
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF | TF_WRAPPED_ENDS), 14);
    EXPECT_EQ(Get(TF_CRLF | TF_WRAPPED_ENDS | TF_NO_FINAL_END), "ab\r\ncd\r\nef\r\n");
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF | TF_WRAPPED_ENDS | TF_NO_FINAL_END), 12);
}

TEST_F(TextAccessTest, StripTrailingAndLeadingTabs) {
    m_zone.SetText("ab  \t\r\n  \r\nxy  ");
    EXPECT_EQ(Get(TF_CRLF | TF_STRIP_TRAILING), "ab\r\n\r\nxy  \r\n");
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF | TF_STRIP_TRAILING), 12);

    // A tab step of four 8-pixel characters: 32 pixels.
    m_zone.SetTabWidth(-4);
    m_zone.SetText("        x\r\n      y\r\n \t z\r\nq\r\n\t\tw");
    const std::string tabbed = "\t\tx\r\n\t  y\r\n\t z\r\nq\r\n\t\tw\r\n";
    EXPECT_EQ(Get(TF_CRLF | TF_LEADING_TABS), tabbed);
    EXPECT_EQ(m_zone.GetTextLength(TF_CRLF | TF_LEADING_TABS), static_cast<LONG>(tabbed.size()));
    // The stored text is untouched.
    EXPECT_EQ(Line(0), "        x\r");

    m_zone.SetText("    \t  \r\nz");
    EXPECT_EQ(Get(TF_CRLF | TF_LEADING_TABS | TF_STRIP_TRAILING), "\r\nz\r\n");
}

TEST_F(TextAccessTest, BufferLimits) {
    m_zone.SetText("abc\r\ndef");
    EXPECT_EQ(Get(TF_CRLF, 1), "");
    EXPECT_EQ(Get(TF_CRLF, 4), "abc");
    // A line end needs room for itself and the 0; without it the next line
    // follows straight on.
    EXPECT_EQ(Get(TF_CRLF, 5), "abcd");
    EXPECT_EQ(Get(TF_LF, 5), "abcd");
    EXPECT_EQ(Get(TF_LF, 6), "abc\nd");
    EXPECT_EQ(Get(TF_CRLF, 6), "abc\r\n");
    EXPECT_EQ(Get(TF_CRLF, 10), "abc\r\ndef");
    EXPECT_EQ(Get(TF_CRLF, 11), "abc\r\ndef\r\n");

    EXPECT_EQ(Part(0, 1, 0, 3, 1, TF_CRLF, 5), "abcd");
    EXPECT_EQ(Part(0, 1, 0, 3, 1, TF_CRLF, 1), "");
}

TEST_F(TextAccessTest, PartOfTextInEachMode) {
    m_zone.SetText("alpha\r\nbeta\r\ngamma");
    EXPECT_EQ(Part(0, 2, 0, 0, 0), "alpha\r\nbeta\r\n");
    EXPECT_EQ(Part(1, 3, 0, 0, 0), "beta\r\ngamma");
    EXPECT_EQ(Part(0, 1, 2, 2, 1), "pha\r\nbe");
    EXPECT_EQ(Part(1, 1, 1, 3, 1, TF_LF), "et");
    EXPECT_EQ(Part(0, 1, 2, 2, 1, TF_LF | TF_WRAPPED_ENDS), "pha\nbe\n");
    // A stream beyond a line's end reads spaces up to the column asked for.
    EXPECT_EQ(Part(2, 2, 3, 8, 1), "ma   ");

    // Box: columns of the tab-expanded lines, every line padded and ended,
    // the phantom line included.
    m_zone.SetTabWidth(4);
    m_zone.SetText("a\tbc\r\nxy\r\n");
    EXPECT_EQ(Part(0, 2, 1, 5, 2), "   b\r\ny   \r\n    \r\n");

    // Wrapped lines join in a stream only where paragraphs are on.
    SetLines({"ab", "cd\r", "ef"});
    EXPECT_EQ(Part(0, 2, 0, 2, 1), "ab\r\ncd\r\nef");
    m_zone.SetStyle(ZS_PARAGRAPH);
    EXPECT_EQ(Part(0, 2, 0, 2, 1), "abcd\r\nef");
    EXPECT_EQ(Part(0, 2, 0, 2, 2), "ab\r\ncd\r\nef\r\n");
    // A range to the very end of the numbers stops when the lines run out.
    EXPECT_EQ(Part(0, TZ_TO_END, 0, 0, 1), "abcd\r\nef");
}

TEST_F(TextAccessTest, Positions) {
    m_zone.SetText("ab\r\ncde\r\n\r\nf");
    EXPECT_EQ(m_zone.LineIndex(0), 0);
    EXPECT_EQ(m_zone.LineIndex(1), 3);
    EXPECT_EQ(m_zone.LineIndex(2), 7);
    EXPECT_EQ(m_zone.LineIndex(3), 8);
    EXPECT_EQ(m_zone.LineIndex(4), 9);
    EXPECT_EQ(m_zone.LineIndex(50), 9);
    EXPECT_EQ(m_zone.LineIndex(-7), 0);
    m_zone.m_nSelStartLine = 2;
    EXPECT_EQ(m_zone.LineIndex(-1), 7);
    EXPECT_EQ(m_zone.LineFromChar(-1, 0), 2);

    const int expected[] = {0, 0, 0, 1, 1, 1, 1, 2, 3, 3, 4, 4};
    for (int pos = 0; pos < 12; ++pos)
        EXPECT_EQ(m_zone.LineFromChar(pos, 0), expected[pos]) << pos;
    EXPECT_EQ(m_zone.LineFromChar(-5, 0), 0);

    // Counting CR LF: "ab\r\ncde\r\n\r\nf".
    const int crlf[] = {0, 0, 0, 1, 1, 1, 1, 1, 2, 2, 3, 3, 3, 4};
    for (int pos = 0; pos < 14; ++pos)
        EXPECT_EQ(m_zone.LineFromChar(pos, TF_CRLF), crlf[pos]) << pos;
    // Only the exact value 2 counts the line end twice.
    EXPECT_EQ(m_zone.LineFromChar(8, TF_CRLF | TF_NO_FINAL_END), 3);

    CTextZone empty;
    EXPECT_EQ(empty.LineFromChar(0, 0), 0);
    EXPECT_EQ(empty.LineIndex(3), 0);
}

TEST_F(TextAccessTest, IsEmpty) {
    EXPECT_EQ(m_zone.IsEmpty(), 1);
    m_zone.SetText("");
    EXPECT_EQ(m_zone.IsEmpty(), 1);
    m_zone.SetText("x");
    EXPECT_EQ(m_zone.IsEmpty(), 0);
    m_zone.SetText("\r\n");
    EXPECT_EQ(m_zone.IsEmpty(), 0);
    SetLines({"\r"});
    m_zone.SetStyle(ZS_PARAGRAPH);
    EXPECT_EQ(m_zone.IsEmpty(), 1);
    SetLines({"", ""});
    EXPECT_EQ(m_zone.IsEmpty(), 0);
    SetLines({"x"});
    EXPECT_EQ(m_zone.IsEmpty(), 0);
}

TEST_F(TextAccessTest, TextCheckValues) {
    int size = -1;
    int hash = -1;
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(hash, 0);

    m_zone.SetText("ab\r\ncd");
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_EQ(size, (1 << 16) ^ 4);
    EXPECT_EQ(hash, 97 + (98 << 1) + (99 << 2) + (100 << 3));
    m_zone.GetTextCRCValues(nullptr, nullptr);

    // The shift runs 0 to 20 and starts again.
    m_zone.SetText(std::string(22, 'a').c_str());
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_EQ(hash, 97 * (1 << 21));

    m_zone.SetText("  int a;\r\n\tb = 1;  \r\n");
    int size0, hash0;
    m_zone.GetTextCRCValues(&size0, &hash0);
    m_zone.SetText("int a;\r\n    b = 1;\r\n\r\n  \r\n\r\n");
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_EQ(size, size0);
    EXPECT_EQ(hash, hash0);

    m_zone.SetText("int b;\r\n    b = 1;\r\n");
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_NE(hash, hash0);
    m_zone.SetText("int a;\r\n\r\n    b = 1;\r\n");
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_NE(size, size0);
}

TEST_F(TextAccessTest, SetTextNeedsAWindow) {
    CTextZone zone;
    EXPECT_EQ(zone.SetText("abc"), 0);
    EXPECT_EQ(zone.GetLineCount(), 0);

    m_zone.SetText("abc");
    m_zone.SetModify(1);
    m_zone.SetText("x\r\ny");
    EXPECT_EQ(m_zone.GetModify(), 0);
    EXPECT_EQ(Text(), "x\r\ny\r\n");
}

TEST_F(TextAccessTest, MillionLineText) {
    std::string text;
    const int n = 1000000;
    text.reserve(static_cast<size_t>(n) * 9);
    for (int i = 0; i < n; ++i) {
        text += "l";
        text += std::to_string(i % 1000);
        text += "\r\n";
    }
    ASSERT_EQ(m_zone.SetText(text.c_str()), 1);
    EXPECT_EQ(m_zone.GetLineCount(), n);
    EXPECT_EQ(Line(n - 1), "l999\r");
    LONG length = m_zone.GetTextLength(TF_CRLF);
    ASSERT_EQ(length, static_cast<LONG>(text.size()));
    std::vector<char> buffer(static_cast<size_t>(length) + 1);
    m_zone.GetText(buffer.data(), length + 1, TF_CRLF);
    EXPECT_TRUE(text == buffer.data());
    EXPECT_EQ(m_zone.LineFromChar(length, 0), n);
}

TEST_F(TextAccessTest, TextWidth) {
    CDC* pDC = m_zone.GetStandardDC();
    ASSERT_NE(pDC, nullptr);
    EXPECT_EQ(m_zone.GetTextWidth(pDC, "abc", 0), 0);
    EXPECT_EQ(m_zone.GetTextWidth(nullptr, "abc", 3), 0);
    EXPECT_EQ(m_zone.GetTextWidth(pDC, "abc", 3), 24);
    EXPECT_EQ(m_zone.GetTextWidth(pDC, "\t", 1), 20);  // no tab width: 20 pixels
    m_zone.ReleaseStandardDC(pDC);

    m_zone.SetMarginMode(1);
    EXPECT_EQ(Width("abc", 0), 16);
    EXPECT_EQ(Width("abc"), 16 + 24);
    m_zone.SetMarginMode(0);

    m_zone.SetTabWidth(-4);
    EXPECT_EQ(Width("a\tb"), 40);
    // 5-pixel bytes: a tab at x 5 with a 32-pixel step adds 27.
    UseFont(CHeadlessFonts::kFixedFace, 10);
    m_zone.SetTabWidth(32);
    EXPECT_EQ(Width("a"), 5);
    EXPECT_EQ(Width("a\t"), 32);
    EXPECT_EQ(Width("a\tb"), 37);

    // Long text goes to the platform in pieces; the sum must not change.
    UseFont(CHeadlessFonts::kProportionalFace, 20);
    m_zone.SetTabWidth(-3);
    LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 20);
    const FontMetrics& fm = CHeadlessFonts::Get(lf);
    const int step = 3 * fm.tm.tmAveCharWidth;
    std::mt19937 rng(7);
    const std::string alphabet = "abiW\t l.m";
    std::string text;
    for (int i = 0; i < 5000; ++i)
        text += alphabet[rng() % alphabet.size()];
    int expected = 0;
    std::vector<int> prefix{0};
    for (char c : text) {
        expected = c == '\t' ? (expected / step + 1) * step
                             : expected + fm.widths[static_cast<unsigned char>(c)];
        prefix.push_back(expected);
    }
    for (int n : {1, 1023, 1024, 1025, 2049, 3333, 5000})
        EXPECT_EQ(Width(text.c_str(), n), prefix[n]) << n;
    EXPECT_EQ(m_zone.GetMaxLineWidth(5, 9), 0);
}

TEST_F(TextAccessTest, LineWidthsAndColumns) {
    SetLines({"a\r", "abcdef\r", "abc"});
    EXPECT_EQ(m_zone.GetMaxLineWidth(0, TZ_TO_END), 48);
    EXPECT_EQ(m_zone.GetMaxLineWidth(-3, 0), 8);
    EXPECT_EQ(m_zone.GetMaxLineWidth(2, 2), 24);
    m_zone.m_nSelStartLine = 0;
    m_zone.m_nSelEndLine = 2;
    EXPECT_EQ(m_zone.GetCurrentLineWidth(), 24);
    m_zone.m_nSelEndLine = 9;
    EXPECT_EQ(m_zone.GetCurrentLineWidth(), 8);

    // Columns count a tab as the spaces up to the next multiple of 4.
    m_zone.SetTabWidth(-4);
    SetLines({"\tab\r", "xy"});
    EXPECT_EQ(m_zone.ComputeBlockUnit(0, 0), 0);
    EXPECT_EQ(m_zone.ComputeBlockUnit(0, 1), 4);
    EXPECT_EQ(m_zone.ComputeBlockUnit(0, 3), 6);
    EXPECT_EQ(m_zone.ComputeBlockUnit(7, 5), 5);
    EXPECT_EQ(m_zone.ComputeCharIndex(0, 4), 1);
    EXPECT_EQ(m_zone.ComputeCharIndex(0, 1), 0);
    EXPECT_EQ(m_zone.ComputeCharIndex(0, 6), 3);
    EXPECT_EQ(m_zone.ComputeCharIndex(1, 9), 2);
    EXPECT_EQ(m_zone.ComputeCharIndex(7, 3), 0);
}

TEST_F(TextAccessTest, SpaceEquivalentLine) {
    m_zone.SetTabWidth(4);
    EXPECT_EQ(SpaceEquivalent("a\t"), "a   ");
    EXPECT_EQ(SpaceEquivalent("abcd\tx\r"), "abcd    x\r");
    EXPECT_EQ(SpaceEquivalent(""), "");
    m_zone.SetTabWidth(-3);
    EXPECT_EQ(SpaceEquivalent("\t\ta"), "      a");
    m_zone.SetTabWidth(0);
    EXPECT_EQ(SpaceEquivalent("a\tb"), "a b");
    // Far beyond the room made at the start.
    m_zone.SetTabWidth(8);
    EXPECT_EQ(SpaceEquivalent(std::string(100, '\t').c_str()), std::string(800, ' '));

    CStringEx source("\tx");
    CStringEx target;
    target.m_dwBookmarks = 5;
    m_zone.GetSpaceEquivalentLine(&target, &source);
    EXPECT_EQ(target.m_dwBookmarks, 5u);
}

TEST_F(TextAccessTest, TabConvertDropsLineMarks) {
    m_zone.SetTabWidth(4);
    m_zone.SetText("\tx\r\ny\tz");
    m_zone.GetLine(0)->m_dwBookmarks = 3;
    m_zone.GetLine(1)->m_dwBlockFlags = 1;
    m_zone.SetTabConvert(0);
    EXPECT_EQ(Line(0), "\tx\r");
    m_zone.SetTabConvert(1);
    EXPECT_EQ(m_zone.GetTabConvert(), 1);
    EXPECT_EQ(Line(0), "    x\r");
    EXPECT_EQ(Line(1), "y   z");
    EXPECT_EQ(m_zone.GetLine(0)->m_dwBookmarks, 0u);
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBlockFlags, 0u);
}

TEST_F(TextAccessTest, Settings) {
    m_zone.SetStyle(ZS_PARAGRAPH | ZS_FREECARET | ZS_AUTOINDENT);
    EXPECT_EQ(m_zone.GetStyle(), ZS_PARAGRAPH | ZS_AUTOINDENT);
    m_zone.SetStyle(ZS_FREECARET);
    EXPECT_EQ(m_zone.GetStyle(), ZS_FREECARET | ZS_SELTOEDGE);
    m_zone.SetStyle(ZS_AUTOINDENT | ZS_SELTOEDGE);
    EXPECT_EQ(m_zone.GetStyle(), ZS_AUTOINDENT | ZS_SELTOEDGE);

    COLORREF text, back, selText, selBack;
    m_zone.GetColors(&text, &back, &selText, &selBack);
    EXPECT_EQ(text, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(back, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(selBack, ::GetSysColor(COLOR_HIGHLIGHT));
    m_zone.SetColors(0x123456, static_cast<COLORREF>(-1), 0x010203, static_cast<COLORREF>(-1));
    m_zone.GetColors(&text, nullptr, &selText, nullptr);
    m_zone.GetColors(nullptr, &back, nullptr, &selBack);
    EXPECT_EQ(text, 0x123456u);
    EXPECT_EQ(back, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(selText, 0x010203u);
    EXPECT_EQ(selBack, ::GetSysColor(COLOR_HIGHLIGHT));

    EXPECT_EQ(m_zone.GetBookmarkColor(0), 0x00FF00u);
    EXPECT_EQ(m_zone.GetBookmarkColor(1), 0xEF0010u);
    EXPECT_EQ(m_zone.GetBookmarkColor(15), 0x0F00F0u);
    EXPECT_EQ(m_zone.GetBookmarkColor(16), 0u);
    m_zone.SetBookmarkColor(0xABCDEF, 16);
    m_zone.SetBookmarkColor(0xABCDEF, 2);
    EXPECT_EQ(m_zone.GetBookmarkColor(2), 0xABCDEFu);

    EXPECT_EQ(m_zone.GetMarginWidth(), 0);
    m_zone.SetMarginWidth(20);
    m_zone.SetMarginMode(1);
    EXPECT_EQ(m_zone.GetMarginWidth(), 20);

    m_zone.SetText("abc\r\nd");
    m_zone.SetMaxLength(100);
    EXPECT_EQ(m_zone.m_nCurrentLength, 6);
    m_zone.SetMaxLength(0);
    EXPECT_EQ(m_zone.m_nCurrentLength, 0);

    // Font metrics; a proportional font ends box mode.
    EXPECT_EQ(m_zone.m_nLineHeight, 16);
    EXPECT_EQ(m_zone.m_nCharWidth, 8);
    EXPECT_EQ(m_zone.IsFontProportionnal(), 0);
    m_zone.SetSelectionMode(2);
    ASSERT_EQ(m_zone.GetSelectionMode(), 2);
    UseFont(CHeadlessFonts::kProportionalFace, 20);
    EXPECT_EQ(m_zone.IsFontProportionnal(), 1);
    EXPECT_EQ(m_zone.m_nLineHeight, 20);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
}

}  // namespace
