// Drawing a long line scrolled to the left starts its walk near the visible
// part and stops behind it. What shows must be what the whole walk draws:
// the same line in a window wide enough to show all of it is the oracle.
#include <random>

#include "ColourPaint.h"

namespace {

struct Piece {
    int left;  // in the line's own coordinates: scroll offset added back
    std::string text;
    COLORREF crText;
    COLORREF crBk;
    bool operator==(const Piece&) const = default;
};

std::vector<Piece> TextPieces(const DisplayList& list, int nOffset, int nFrom, int nTo) {
    std::vector<Piece> pieces;
    for (const DrawRecord& r : list) {
        const int left = r.rc.left + nOffset;
        const int right = r.rc.right + nOffset;
        if (r.kind == DrawRecord::Text && right > nFrom && left < nTo)
            pieces.push_back(Piece{left, r.text, r.crText, r.crBk});
    }
    return pieces;
}

}  // namespace

TEST_F(ColourPaintTest, ScrolledLongLinesShowWhatTheWholeWalkDraws) {
    CWnd wide;
    ASSERT_TRUE(wide.Create(WS_VISIBLE, RECT{0, 0, 60000, 40}, nullptr, 2));
    CTestColorZone oracle;
    PutZoneInWindow(oracle, wide, m_font);
    for (unsigned int c = 1; c <= 9; ++c)
        oracle.SetSyntaxColor(c, TestClassColor(c));
    oracle.SetColors(kTestTextColor, 0xFFFFFF, kSelText, kSelBack);
    for (CTextZoneColor* pZone :
         {static_cast<CTextZoneColor*>(&m_zone), static_cast<CTextZoneColor*>(&oracle)}) {
        pZone->SetSQLSyntaxColor(14);
        pZone->SetTabWidth(-4);
    }

    std::mt19937 rng(18);
    const char* const kPieces[] = {"select ", "'a b' ", "/* c */ ", "x", "\t",  "[id] ",
                                   "@v ",     "from ",  "  ",       "(", "y1 ", "\"q\" "};
    for (int round = 0; round < 40; ++round) {
        std::string line;
        while (line.size() < 1200)
            line += kPieces[rng() % std::size(kPieces)];
        if (round % 3 == 0) line += "-- the end";
        const int length = static_cast<int>(line.size());
        const int a = static_cast<int>(rng() % length);
        const int b = a + static_cast<int>(rng() % 300);
        const short mode = round % 4 == 3 ? 2 : 1;
        for (CTestColorZone* pZone : {&m_zone, &oracle}) {
            ASSERT_TRUE(pZone->SetText(line.c_str()));
            pZone->SetSelectionMode(mode);
            if (round % 4 != 0) pZone->SetSelection(0, 0, a, b, mode == 2 ? 2 : 0, 0);
        }
        m_zone.SetFirstVisiblePosition(0, static_cast<int>(rng() % (length / 2)));
        const int offset = m_zone.GetHScrollOffset();
        Paint();
        const std::vector<Piece> shown =
            TextPieces(Peer().GetDisplayList(), offset, offset, offset + 400);

        CHeadlessWindowPeer* pWide = CHeadlessPlatform::Peer(&wide);
        wide.InvalidateRect(nullptr, FALSE);
        pWide->ClearDisplayList();
        PAINTSTRUCT ps;
        oracle.HandlePaint(wide.BeginPaint(&ps));
        wide.EndPaint(&ps);
        const std::vector<Piece> whole =
            TextPieces(pWide->GetDisplayList(), 0, offset, offset + 400);
        ASSERT_FALSE(whole.empty()) << round;
        EXPECT_EQ(shown, whole) << "round " << round << " offset " << offset;
    }
    oracle.HideCaret();
    wide.DestroyWindow();
}
