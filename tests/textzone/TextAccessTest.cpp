// Reading text out of a zone: line ends, the reader flags, buffer limits,
// ranges, positions, the text fingerprint; and the measuring underneath.
#include <gtest/gtest.h>

#include <cstdint>
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
        return buffer.data();
    }
    std::string Part(LONG lFirst, LONG lLast, int nFirst, int nLast, WORD wMode,
                     WORD wFlags = TF_CRLF, LONG lSize = 4096) {
        std::vector<char> buffer(static_cast<size_t>(lSize) + 8, '#');
        m_zone.GetPartOfText(buffer.data(), lSize, lFirst, lLast, nFirst, nLast, wMode, wFlags);
        return buffer.data();
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
    ASSERT_EQ(m_zone.SetText("one\r\ntwo\n\nthree"), 1);
    EXPECT_EQ(m_zone.GetLineCount(), 4);
    EXPECT_EQ(Get(TF_CRLF), "one\r\ntwo\r\n\r\nthree\r\n");
    EXPECT_EQ(Get(TF_LF), "one\ntwo\n\nthree\n");
    EXPECT_EQ(Get(TF_CRLF | TF_NO_FINAL_END), "one\r\ntwo\r\n\r\nthree");
    for (WORD flags : {0, 1, 2, 3, 32, 33, 34})
        EXPECT_EQ(m_zone.GetTextLength(flags), static_cast<LONG>(Get(flags).size())) << flags;

    // With a final line end the text comes back as it went in.
    m_zone.SetText("a\r\nb\r\n");
    EXPECT_EQ(Get(TF_CRLF | TF_NO_FINAL_END), "a\r\nb\r\n");
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
    // A tab step of four 8-pixel characters is 32 pixels; 0: the tab width is left alone.
    const struct {
        int tab;
        const char* text;
        WORD flags;
        const char* expected;
    } cases[] = {
        {0, "ab  \t\r\n  \r\nxy  ", TF_CRLF | TF_STRIP_TRAILING, "ab\r\n\r\nxy  \r\n"},
        {-4, "        x\r\n      y\r\n \t z\r\nq\r\n\t\tw", TF_CRLF | TF_LEADING_TABS,
         "\t\tx\r\n\t  y\r\n\t z\r\nq\r\n\t\tw\r\n"},
        {-4, "    \t  \r\nz", TF_CRLF | TF_LEADING_TABS | TF_STRIP_TRAILING, "\r\nz\r\n"},
    };
    for (const auto& c : cases) {
        if (c.tab) m_zone.SetTabWidth(c.tab);
        m_zone.SetText(c.text);
        EXPECT_EQ(Get(c.flags), c.expected);
        EXPECT_EQ(m_zone.GetTextLength(c.flags), static_cast<LONG>(std::strlen(c.expected)));
        EXPECT_EQ(Get(TF_CRLF | TF_NO_FINAL_END), c.text) << "the stored text is untouched";
    }
}

TEST_F(TextAccessTest, BufferLimits) {
    m_zone.SetText("abc\r\ndef");
    // A line end needs room for itself and the 0; without it the next line follows on.
    const struct {
        WORD flags;
        LONG size;
        const char* expected;
    } cases[] = {{TF_CRLF, 1, ""},
                 {TF_CRLF, 4, "abc"},
                 {TF_CRLF, 5, "abcd"},
                 {TF_LF, 5, "abcd"},
                 {TF_LF, 6, "abc\nd"},
                 {TF_CRLF, 6, "abc\r\n"},
                 {TF_CRLF, 10, "abc\r\ndef"},
                 {TF_CRLF, 11, "abc\r\ndef\r\n"}};
    for (const auto& c : cases)
        EXPECT_EQ(Get(c.flags, c.size), c.expected) << c.size;
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
    const int index[][2] = {{0, 0}, {1, 3}, {2, 7}, {3, 8}, {4, 9}, {50, 9}, {-7, 0}};
    for (auto [line, pos] : index)
        EXPECT_EQ(m_zone.LineIndex(line), pos) << line;
    m_zone.m_nSelStartLine = 2;
    EXPECT_EQ(m_zone.LineIndex(-1), 7);
    EXPECT_EQ(m_zone.LineFromChar(-1, 0), 2);

    const int expected[] = {0, 0, 0, 1, 1, 1, 1, 2, 3, 3, 4, 4};
    for (int pos = 0; pos < 12; ++pos)
        EXPECT_EQ(m_zone.LineFromChar(pos, 0), expected[pos]) << pos;
    EXPECT_EQ(m_zone.LineFromChar(-5, 0), 0);
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
    for (const char* text : {"x", "\r\n"}) {
        m_zone.SetText(text);
        EXPECT_EQ(m_zone.IsEmpty(), 0) << text;
    }
    // With paragraphs a lone empty ended line is empty; two lines are not.
    SetLines({"\r"});
    m_zone.SetStyle(ZS_PARAGRAPH);
    EXPECT_EQ(m_zone.IsEmpty(), 1);
    SetLines({"", ""});
    EXPECT_EQ(m_zone.IsEmpty(), 0);
}

TEST_F(TextAccessTest, TextCheckValuesOfNoText) {
    int size = -1, hash = -1;
    m_zone.GetTextCRCValues(&size, &hash);
    EXPECT_EQ(std::pair(size, hash), std::pair(0, 0));
    m_zone.GetTextCRCValues(nullptr, nullptr);
}

TEST_F(TextAccessTest, SetTextNeedsAWindowAndClearsTheModifiedFlag) {
    CTextZone zone;
    EXPECT_EQ(zone.SetText("abc"), 0);
    EXPECT_EQ(zone.GetLineCount(), 0);
    m_zone.SetModify(1);
    m_zone.SetText("x\r\ny");
    EXPECT_EQ(m_zone.GetModify(), 0);
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
    std::vector<int> prefix{0};
    for (int i = 0; i < 5000; ++i) {
        const char c = alphabet[rng() % alphabet.size()];
        text += c;
        const int x = prefix.back();
        prefix.push_back(c == '\t' ? (x / step + 1) * step
                                   : x + fm.widths[static_cast<unsigned char>(c)]);
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

    // Columns count a tab as the spaces up to the next multiple of 4; {line, char, column}.
    m_zone.SetTabWidth(-4);
    SetLines({"\tab\r", "xy"});
    const int units[][3] = {{0, 0, 0}, {0, 1, 4}, {0, 3, 6}, {7, 5, 5}};
    for (auto [line, chr, unit] : units)
        EXPECT_EQ(m_zone.ComputeBlockUnit(line, chr), unit);
    const int chars[][3] = {{0, 4, 1}, {0, 1, 0}, {0, 6, 3}, {1, 9, 2}, {7, 3, 0}};
    for (auto [line, unit, chr] : chars)
        EXPECT_EQ(m_zone.ComputeCharIndex(line, unit), chr);
}

TEST_F(TextAccessTest, SpaceEquivalentLine) {
    const struct {
        int tab;
        std::string in, out;
    } cases[] = {{4, "a\t", "a   "}, {4, "abcd\tx\r", "abcd    x\r"},
                 {4, "", ""},        {-3, "\t\ta", "      a"},
                 {0, "a\tb", "a b"}, {8, std::string(100, '\t'), std::string(800, ' ')}};
    for (const auto& c : cases) {
        m_zone.SetTabWidth(c.tab);
        EXPECT_EQ(SpaceEquivalent(c.in.c_str()), c.out) << c.in;
    }
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
    EXPECT_EQ(Text(), "    x\r\ny   z\r\n");
    EXPECT_EQ(m_zone.GetLine(0)->m_dwBookmarks, 0u);
    EXPECT_EQ(m_zone.GetLine(1)->m_dwBlockFlags, 0u);
}

TEST_F(TextAccessTest, Settings) {
    // Free caret does not go with paragraphs and brings selection to the edge.
    m_zone.SetStyle(ZS_PARAGRAPH | ZS_FREECARET | ZS_AUTOINDENT);
    EXPECT_EQ(m_zone.GetStyle(), ZS_PARAGRAPH | ZS_AUTOINDENT);
    m_zone.SetStyle(ZS_FREECARET);
    EXPECT_EQ(m_zone.GetStyle(), ZS_FREECARET | ZS_SELTOEDGE);

    // A colour of -1 keeps the default; null pointers are skipped.
    COLORREF text, back, selText, selBack;
    m_zone.SetColors(0x123456, static_cast<COLORREF>(-1), 0x010203, static_cast<COLORREF>(-1));
    m_zone.GetColors(&text, nullptr, &selText, nullptr);
    m_zone.GetColors(nullptr, &back, nullptr, &selBack);
    EXPECT_EQ(text, 0x123456u);
    EXPECT_EQ(back, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(selText, 0x010203u);
    EXPECT_EQ(selBack, ::GetSysColor(COLOR_HIGHLIGHT));

    // The margin counts only in margin mode.
    EXPECT_EQ(m_zone.GetMarginWidth(), 0);
    m_zone.SetMarginWidth(20);
    m_zone.SetMarginMode(1);
    EXPECT_EQ(m_zone.GetMarginWidth(), 20);

    // A proportional font ends box mode.
    m_zone.SetSelectionMode(2);
    ASSERT_EQ(m_zone.GetSelectionMode(), 2);
    UseFont(CHeadlessFonts::kProportionalFace, 20);
    EXPECT_EQ(m_zone.IsFontProportionnal(), 1);
    EXPECT_EQ(m_zone.m_nLineHeight, 20);
    EXPECT_EQ(m_zone.GetSelectionMode(), 1);
}

}  // namespace

// The check values as first written: one pass, byte by byte, the shift
// stepping 0 to 20 with every counted byte. Random texts with blanks, tabs,
// bytes above 127, long lines and blank lines at the end give the same.
TEST_F(TextAccessTest, TextCheckValuesAgreeWithTheBytewiseSum) {
    std::mt19937 random(7);
    auto pick = [&](int nLow, int nHigh) {
        return std::uniform_int_distribution<int>(nLow, nHigh)(random);
    };
    const char alphabet[] = {' ', '\t', 'a', 'Z', '~', '0', '\xE9', '\xFF'};
    for (int run = 0; run < 60; ++run) {
        std::string text;
        for (int n = pick(0, 80); n > 0; --n) {
            const int nLength = pick(0, 8) == 0 ? pick(100, 3000) : pick(0, 70);
            for (int k = 0; k < nLength; ++k)
                text += alphabet[pick(0, 7)];
            text += pick(0, 3) ? "\r\n" : "\n";
        }
        if (pick(0, 1)) text += "\r\n  \r\n\t\r\n";  // blank lines at the end
        m_zone.SetText(text.c_str());

        int nLast = m_zone.GetLastLineIndex();
        while (nLast > 0 && m_zone.GetLine(nLast) && m_zone.GetLine(nLast)->GetVisibleLength() == 0)
            --nLast;
        std::uint32_t total = 0;
        std::uint32_t hash = 0;
        int shift = 0;
        for (int n = 0; n <= nLast; ++n) {
            CStringEx* pLine = m_zone.GetLine(n);
            if (!pLine) break;
            const int nEnd = pLine->GetVisibleLength();
            int k = 0;
            while (k < nEnd && (pLine->c_str()[k] == ' ' || pLine->c_str()[k] == '\t'))
                ++k;
            for (; k < nEnd; ++k, ++total, shift = shift == 20 ? 0 : shift + 1)
                hash += static_cast<std::uint32_t>(static_cast<unsigned char>(pLine->c_str()[k]))
                        << shift;
        }
        int size = 0;
        int check = 0;
        m_zone.GetTextCRCValues(&size, &check);
        ASSERT_EQ(static_cast<std::uint32_t>(check), hash) << "run " << run;
        ASSERT_EQ(size,
                  static_cast<int>((static_cast<std::uint32_t>(nLast) << 16) ^ (total & 0xFFFF)))
            << "run " << run;
    }
}
