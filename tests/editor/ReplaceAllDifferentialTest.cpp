// Replace all in one pass against the dialog's loop (InsertText, then a
// forward find, until nothing is found), kept as the rule. Two zones get the
// same random text, start selection, search and replacement texts; one runs
// the loop, the other the one-pass replacement (which falls back to the loop
// where it cannot be exact). Text, selection, root and undo state must agree
// afterwards, after one undo, after the redo and after undoing that again.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "editor/EditFindReplace.h"
#include "support/ZoneWindow.h"
#include "textzone/TextZone.h"

namespace {

class CStateZone : public CTextZoneColor {
public:
    using CTextZoneColor::StartWithWhat;
};

// One zone in a window of its own.
template <class Zone>
struct Doc {
    explicit Doc(int nId) {
        wnd.Create(WS_VISIBLE, RECT{0, 0, 240, 160}, nullptr, nId);
        PutZoneInWindow(zone, wnd, font);
    }
    ~Doc() {
        zone.HideCaret();
        wnd.DestroyWindow();
    }
    CWnd wnd;
    CFont font;
    Zone zone;
};

// Everything the two roads must leave alike.
struct State {
    std::vector<std::string> lines;
    int selStartLine, selStartChar, selEndLine, selEndChar, rootLine, rootChar, mode;
    int undoType, redoType, vpos;
    bool operator==(const State&) const = default;
};

State StateOf(CTextZone& zone) {
    State s{};
    for (int n = 0; CStringEx* pLine = zone.GetLine(n); ++n)
        s.lines.emplace_back(pLine->c_str(), static_cast<size_t>(pLine->GetLength()));
    s.selStartLine = zone.m_nSelStartLine;
    s.selStartChar = zone.m_nSelStartChar;
    s.selEndLine = zone.m_nSelEndLine;
    s.selEndChar = zone.m_nSelEndChar;
    s.rootLine = zone.GetSelRootLine();
    s.rootChar = zone.GetSelRootChar();
    s.mode = zone.GetSelectionMode();
    s.undoType = zone.GetUndoType();
    s.redoType = zone.GetRedoType();
    s.vpos = zone.m_nVScrollPos;
    return s;
}

std::string Describe(const State& s) {
    std::string out;
    for (const std::string& line : s.lines) {
        for (char c : line)
            out += c == '\r' ? std::string("\\r") : std::string(1, c);
        out += '|';
    }
    out += " sel " + std::to_string(s.selStartLine) + ":" + std::to_string(s.selStartChar) +
           "-" + std::to_string(s.selEndLine) + ":" + std::to_string(s.selEndChar) + " root " +
           std::to_string(s.rootLine) + ":" + std::to_string(s.rootChar) + " mode " +
           std::to_string(s.mode) + " undo " + std::to_string(s.undoType) + " redo " +
           std::to_string(s.redoType) + " vpos " + std::to_string(s.vpos);
    return out;
}

class ReplaceAllDifferentialTest : public HeadlessTest {
protected:
    std::mt19937 m_rng{20261124};

    int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_rng); }

    std::string Word(const std::string& alphabet, int nMin, int nMax) {
        std::string w;
        for (int k = nMin + Pick(nMax - nMin + 1); k > 0; --k)
            w += alphabet[static_cast<size_t>(Pick(static_cast<int>(alphabet.size())))];
        return w;
    }

    // Lines of bytes from the alphabet, the last one ended or not.
    std::string RandomText(const std::string& alphabet, int nMaxLines) {
        std::string text;
        for (int n = 1 + Pick(nMaxLines); n > 0; --n) {
            text += Word(alphabet, 0, 14);
            if (n > 1 || Pick(2)) text += "\r\n";
        }
        return text;
    }

    // The start selection: a caret or a stretch of one line, or two lines.
    static void Select(CTextZone& zone, int nLine, int nStart, int nEnd, int nEndLine) {
        zone.SetSelection(nLine, nEndLine, nStart, nEnd, 0, 0);
    }

    // The dialog's InitializeReplace, then the replacement as the zone does
    // it (or the loop alone); false when there was nothing to replace.
    static bool ReplaceAll(CTextZone& zone, const std::string& find, const std::string& replace,
                           int bCase, bool bLoop, int* pnFast) {
        if (!(zone.TestSelection() && zone.SameAsSelected(find.c_str(), bCase)) &&
            !zone.FindTextFromCurrentPos(find.c_str(), 1, bCase))
            return false;
        zone.StartRegister(TZ_EDIT_REPLACE_ALL);
        if (bLoop || !zone.ReplaceAllInPlace(find.c_str(), replace.c_str(), bCase))
            CEditFindReplace::ReplaceEach(zone, find.c_str(), replace.c_str(), bCase);
        else
            ++*pnFast;
        zone.EndRegister();
        return true;
    }

    template <class Zone, class Prepare>
    void RunRounds(int nRounds, const std::string& alphabet, Prepare prepare, int nMinFast) {
        int nFast = 0;
        for (int round = 0; round < nRounds; ++round) {
            Doc<Zone> loop(1);
            Doc<Zone> fast(2);
            const std::string text = RandomText(alphabet, 40);
            const DWORD style = Pick(4) == 0 ? ZS_FREECARET : 0;
            std::string find = Word(alphabet, 1, 3);
            if (Pick(12) == 0) find += "\r";
            std::string replace = Word(alphabet, 0, 4);
            if (Pick(4) == 0) replace = Word(alphabet, 0, 1) + find + Word(alphabet, 0, 1);
            if (Pick(15) == 0) replace += "\r\nx";
            const int bCase = Pick(2);
            for (Doc<Zone>* pDoc : {&loop, &fast}) {
                pDoc->zone.SetStyle(style);
                pDoc->zone.SetText(text.c_str());
                prepare(pDoc->zone);
            }
            const int lines = loop.zone.GetLineCount();
            const int line = Pick(lines + 1);
            const int start = Pick(16);
            const int end = start + Pick(4);
            const int endLine = Pick(6) == 0 ? line + 1 : line;
            Select(loop.zone, line, start, end, endLine);
            Select(fast.zone, line, start, end, endLine);

            const std::string what = "round " + std::to_string(round) + " text \"" + text +
                                     "\" find \"" + find + "\" replace \"" + replace +
                                     "\" case " + std::to_string(bCase) + " sel " +
                                     std::to_string(line) + ":" + std::to_string(start) + "-" +
                                     std::to_string(endLine) + ":" + std::to_string(end);
            const bool did = ReplaceAll(loop.zone, find, replace, bCase, true, &nFast);
            ASSERT_EQ(did, ReplaceAll(fast.zone, find, replace, bCase, false, &nFast)) << what;
            auto same = [&](const char* pszStep) {
                const State a = StateOf(loop.zone);
                const State b = StateOf(fast.zone);
                ASSERT_EQ(a, b) << what << " after " << pszStep << "\n loop " << Describe(a)
                                << "\n fast " << Describe(b);
            };
            same("replace all");
            if (!did) continue;
            CheckZones(loop.zone, fast.zone, what);
            for (const char* pszStep : {"undo", "redo", "undo again"}) {
                if (pszStep[0] == 'r') {
                    loop.zone.Redo();
                    fast.zone.Redo();
                } else {
                    loop.zone.Undo();
                    fast.zone.Undo();
                }
                same(pszStep);
                CheckZones(loop.zone, fast.zone, what + " after " + pszStep);
            }
        }
        // The one-pass road must be the one mostly taken, or this proves little.
        EXPECT_GE(nFast, nMinFast);
    }

    // What a kind of zone adds to the comparison.
    static void CheckZones(CTextZone&, CTextZone&, const std::string&) {}
    static void CheckZones(CStateZone& loop, CStateZone& fast, const std::string& what) {
        for (int n = 0; n < loop.GetLineCount(); ++n)
            ASSERT_EQ(loop.StartWithWhat(n), fast.StartWithWhat(n)) << what << " line " << n;
    }
};

TEST_F(ReplaceAllDifferentialTest, PlainZoneMatchesTheLoop) {
    // Both cases, bytes of 128 and above with their other case, blanks.
    const std::string alphabet = "aAabB \t\xe9\xc9";
    RunRounds<CTextZone>(3000, alphabet, [](CTextZone&) {}, 1200);
}

TEST_F(ReplaceAllDifferentialTest, ColouredZoneKeepsItsLineStates) {
    // Comment and string delimiters, so a replacement changes the states of
    // the lines below; the states are computed before it, to be stale after.
    const std::string alphabet = "a/*'-x ";
    RunRounds<CStateZone>(
        1500, alphabet,
        [](CStateZone& zone) {
            zone.SetSQLSyntaxColor(14);
            zone.StartWithWhat(zone.GetLineCount() - 1);
        },
        600);
}

TEST_F(ReplaceAllDifferentialTest, FallsBackWhereOnePassCannotBeExact) {
    Doc<CTextZone> doc(1);
    CTextZone& zone = doc.zone;
    auto tryOnce = [&](const char* pszText, const char* pszFind, const char* pszReplace) {
        zone.SetText(pszText);
        zone.SetSelection(0, 0, 0, 0, 0, 0);
        EXPECT_TRUE(zone.FindTextFromCurrentPos(pszFind, 1, 1));
        zone.StartRegister(TZ_EDIT_REPLACE_ALL);
        const int result = zone.ReplaceAllInPlace(pszFind, pszReplace, 1);
        zone.EndRegister();
        return result;
    };
    EXPECT_EQ(tryOnce("ab\r\nab\r\n", "ab", "x"), 1);
    // A line end in the replacement makes lines.
    EXPECT_EQ(tryOnce("ab\r\nab\r\n", "ab", "x\r\ny"), 0);
    // A match at the end of an unended last line: the text stays as it was.
    EXPECT_EQ(tryOnce("ab\r\nab", "ab", "x"), 0);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
    // A line would pass the line limit: the lines changed before are restored.
    const std::string longLine = "ab\r\n" + std::string(TZ_MAX_LINE_LENGTH - 3, 'c') + "ab\r\n";
    EXPECT_EQ(tryOnce(longLine.c_str(), "ab", "xyz"), 0);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
    // Wrap, box mode, tab conversion and read-only zones take the loop.
    zone.SetText("ab ab\r\n");
    zone.SetTabConvert(1);
    EXPECT_EQ(tryOnce("ab\r\n", "ab", "x"), 0);
    zone.SetTabConvert(0);
    zone.SetReadOnly(1);
    EXPECT_EQ(tryOnce("ab\r\n", "ab", "x"), 0);
    zone.SetReadOnly(0);
    // Outside an undo group nothing is done either.
    zone.SetText("ab\r\n");
    zone.SetSelection(0, 0, 0, 2, 0, 0);
    EXPECT_EQ(zone.ReplaceAllInPlace("ab", "x", 1), 0);
    EXPECT_EQ(zone.GetLine(0)->c_str(), std::string("ab\r"));
}

}  // namespace
