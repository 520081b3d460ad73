#include <cctype>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "support/ZoneTest.h"

namespace {

// Notes the redraw requests of the block operations.
class CRedrawRecordingZone : public CTestZone {
public:
    void RedrawLines(int nFirst, int nLast, int) override { m_redraws.push_back({nFirst, nLast}); }
    std::vector<std::pair<int, int>> m_redraws;
};

using Extents = std::vector<std::pair<int, int>>;

class EditBlockTest : public ZoneTest {
protected:
    // A text of nLines lines "0", "1", ... each ended.
    void SetLines(int nLines) { ASSERT_TRUE(m_zone.SetText(Numbered(nLines, "").c_str())); }
    void Close(std::initializer_list<int> heads) {
        for (int n : heads)
            m_zone.CloseBlock(n, 0);
    }
    // The block flags of every line, one digit a line.
    std::string Flags() {
        std::string s;
        for (int n = 0; n < m_zone.GetLineCount(); ++n)
            s += static_cast<char>('0' + m_zone.GetLine(n)->m_dwBlockFlags);
        return s;
    }
    CEditBlk* Block(int nFirst) {
        for (auto& pBlk : m_zone.m_editBlocks)
            if (pBlk->m_nFirstLine == nFirst) return pBlk.get();
        return nullptr;
    }
    static Extents Of(const BlockList& list) {
        Extents v;
        for (auto& pBlk : list)
            v.push_back({pBlk->m_nFirstLine, pBlk->m_nLineCount});
        return v;
    }
    void Rescan(const Extents& blocks) {
        m_zone.BeginEditBlockInput();
        for (auto [nLine, nCount] : blocks)
            EXPECT_EQ(m_zone.AddEditBlockInput(nLine, nCount), 1);
        m_zone.EndEditBlockInput();
    }
    std::string Status() {
        VESK::String s;
        m_zone.GetEditorBlockStatus(s);
        return s.c_str();
    }
    void ApplyStatus(const std::string& status) {
        VESK::String s(status.c_str());
        m_zone.SetEditorBlockStatus(s);
    }
    std::string Head() {
        int nSize = 0, nHash = 0;
        m_zone.GetTextCRCValues(&nSize, &nHash);
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%08X%08X", static_cast<unsigned>(nSize),
                      static_cast<unsigned>(nHash));
        return buffer;
    }
};

}  // namespace

TEST_F(EditBlockTest, NestedBlocksCloseAndOpen) {
    SetLines(12);
    const int h = m_zone.GetLineHeight(0);
    EXPECT_EQ(m_zone.SetEditBlock(12, 2), 0);  // no such line
    EXPECT_EQ(m_zone.SetEditBlock(3, 3), 1);   // 3..5
    EXPECT_EQ(m_zone.SetEditBlock(1, 8), 1);   // 1..8, made after its inner block
    EXPECT_EQ(m_zone.SetEditBlock(10, 2), 1);
    EXPECT_EQ(Block(3)->m_pParent, Block(1));

    // Each step: close (+) or open (-) a head, then the flags of all lines.
    const struct {
        int head, result;
        const char* flags;
    } steps[] = {
        {+3, 1, "010244000010"},
        {+1, 1, "024644444010"},
        // Opening the outer block leaves the inner one closed, its head shown.
        {-1, 1, "010244000010"},
        {-1, 0, "010244000010"},
        {-2, 0, "010244000010"},
        {+2, 0, "010244000010"},
        {-3, 1, "010100000010"},
        {+3, 1, "010244000010"},
        // An inner block opened under its closed parent stays hidden by it.
        {+1, 1, "024644444010"},
        {-3, 1, "024544444010"},
        {-1, 1, "010100000010"},
    };
    for (const auto& st : steps) {
        const int n = st.head < 0 ? -st.head : st.head;
        EXPECT_EQ(st.head < 0 ? m_zone.OpenBlock(n, 0) : m_zone.CloseBlock(n, 0), st.result)
            << st.head;
        EXPECT_EQ(Flags(), st.flags) << st.head;
    }

    // Hidden lines keep their numbers and text, and with variable heights take no room.
    Close({3, 1});
    EXPECT_EQ(m_zone.GetLineHeight(1), h);
    EXPECT_EQ(m_zone.GetLineHeight(4), 0);
    EXPECT_EQ(Line(4), "4\r");
    m_zone.SetStyle(ZS_VARHEIGHT);
    EXPECT_EQ(m_zone.GetLineTopPos(9) - m_zone.GetLineTopPos(0), 2 * h);
}

TEST_F(EditBlockTest, NewAndResizedBlocksFindTheirParents) {
    SetLines(20);
    m_zone.SetEditBlock(5, 2);   // 5..6
    m_zone.SetEditBlock(2, 10);  // 2..11: takes 5 in
    EXPECT_EQ(Block(5)->m_pParent, Block(2));
    m_zone.SetEditBlock(4, 5);  // 4..8 between them: 5 moves to it, it goes into 2
    EXPECT_EQ(Block(5)->m_pParent, Block(4));
    EXPECT_EQ(Block(4)->m_pParent, Block(2));
    m_zone.SetEditBlock(0, 15);  // round all: only the outermost gets a new parent
    EXPECT_EQ(Block(2)->m_pParent, Block(0));
    m_zone.SetEditBlock(13, 2);  // ends with 0
    EXPECT_EQ(Block(13)->m_pParent, Block(0));
    m_zone.SetEditBlock(16, 1);
    m_zone.SetEditBlock(17, 2);  // sticks out of 16
    EXPECT_EQ(Block(17)->m_pParent, nullptr);

    // Same extent: nothing to do. Another extent: the nesting round it follows.
    EXPECT_EQ(m_zone.SetEditBlock(4, 5), 1);
    EXPECT_EQ(m_zone.SetEditBlock(16, 4), 1);
    EXPECT_EQ(Block(17)->m_pParent, Block(16));
    EXPECT_EQ(m_zone.SetEditBlock(0, 20), 1);
    EXPECT_EQ(Block(16)->m_pParent, Block(0));
    EXPECT_EQ(Block(17)->m_pParent, Block(16));  // had a parent already
    EXPECT_EQ(Block(4)->m_pParent, Block(2));
    EXPECT_EQ(Block(5)->m_pParent, Block(4));
    EXPECT_EQ(Of(m_zone.m_editBlocks),
              (Extents{{0, 20}, {2, 10}, {4, 5}, {5, 2}, {13, 2}, {16, 4}, {17, 2}}));
}

TEST_F(EditBlockTest, RescanKeepsGrowsShrinksAndDropsClosedBlocks) {
    SetLines(14);
    Rescan({{1, 4}, {6, 3}, {10, 2}});
    Close({1, 6, 10});
    EXPECT_EQ(Flags(), "02444024402400");
    Rescan({{1, 4}, {6, 3}, {10, 2}});  // the same set keeps all closed
    EXPECT_EQ(Flags(), "02444024402400");

    // 1 grows, 6 shrinks, 10 is gone and 12 is new.
    Rescan({{1, 5}, {6, 2}, {12, 2}});
    EXPECT_EQ(Flags(), "02444424000010");
    EXPECT_EQ(Of(m_zone.m_editBlocks), (Extents{{1, 5}, {6, 2}, {12, 2}}));
    EXPECT_TRUE(m_zone.m_inputBlocks.empty());

    // A closed block that loses its head opens first: no line stays hidden.
    Rescan({{12, 2}});
    EXPECT_EQ(Flags(), "00000000000010");

    // Under a closed outer block the inner one shrinks or goes: its lines stay hidden.
    Rescan({{1, 8}, {3, 4}});
    Close({3, 1});
    EXPECT_EQ(Flags(), "02464444400000");
    Rescan({{1, 8}, {3, 2}});
    EXPECT_EQ(Flags(), "02464444400000");
    Rescan({{1, 8}});
    EXPECT_EQ(Flags(), "02444444400000");
    m_zone.OpenBlock(1, 0);
    EXPECT_EQ(Flags(), "01000000000000");
}

TEST_F(EditBlockTest, RescanInputRules) {
    CRedrawRecordingZone zone;
    zone.SetWindow(&m_wnd);
    ASSERT_TRUE(zone.SetText(Numbered(6, "").c_str()));
    zone.m_redraws.clear();

    zone.BeginEditBlockInput();
    EXPECT_EQ(zone.AddEditBlockInput(4, 1), 1);
    EXPECT_EQ(zone.AddEditBlockInput(1, -1), 1);  // to the end of the text
    EXPECT_EQ(zone.AddEditBlockInput(4, 2), 1);   // more: grows
    EXPECT_EQ(zone.AddEditBlockInput(4, 1), 1);   // less: no change
    EXPECT_EQ(zone.AddEditBlockInput(6, 1), 0);   // no such line
    EXPECT_EQ(zone.AddEditBlockInput(2, 1), 1);
    EXPECT_EQ(Of(zone.m_inputBlocks), (Extents{{1, 5}, {2, 1}, {4, 2}}));
    zone.EndEditBlockInput();
    EXPECT_EQ(zone.m_editBlocks.size(), 3u);
    // One redraw over all the heads that changed.
    EXPECT_EQ(zone.m_redraws, (Extents{{1, 4}}));

    // A rescan that changes nothing redraws nothing; an abandoned input is dropped.
    zone.m_redraws.clear();
    zone.BeginEditBlockInput();
    zone.AddEditBlockInput(0, 2);
    zone.BeginEditBlockInput();
    for (auto [nLine, nCount] : Extents{{1, 5}, {2, 1}, {4, 2}})
        zone.AddEditBlockInput(nLine, nCount);
    zone.EndEditBlockInput();
    EXPECT_TRUE(zone.m_redraws.empty());
    EXPECT_EQ(zone.m_editBlocks.size(), 3u);
}

TEST_F(EditBlockTest, EditsMoveAndCutBlocks) {
    SetLines(10);
    Rescan({{2, 1}, {6, 2}});
    m_zone.CloseBlock(6, 0);
    // Enter at the start of a head splits the line: the head keeps its line
    // and number; the closed block behind moves down, flags and all.
    m_zone.SetSelection(2, 2, 0, 0, 0, 0);
    m_zone.InsertText("new\r\n", 0, 1, 1);
    EXPECT_EQ(Of(m_zone.m_editBlocks), (Extents{{2, 1}, {7, 2}}));
    EXPECT_EQ(Flags(), "00100002400");
    EXPECT_EQ(Line(7), "6\r");
    // Deleting into the second block's head destroys that block.
    m_zone.OpenBlock(7, 0);
    m_zone.SetSelection(2, 7, 1, 1, 0, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Of(m_zone.m_editBlocks), (Extents{{2, 1}}));
    EXPECT_EQ(Line(3), "7\r");

    // Joining a closed head into the line above takes its block away and its
    // lines show again; another closed block keeps its own hidden.
    SetLines(10);
    Rescan({{2, 4}, {7, 3}});
    Close({2, 7});
    m_zone.SetSelection(1, 2, 1, 1, 0, 0);
    m_zone.DeleteSelection(0);
    EXPECT_EQ(Of(m_zone.m_editBlocks), (Extents{{6, 3}}));
    EXPECT_EQ(Flags(), "000000244");
}

TEST_F(EditBlockTest, ParentDestroyedUnderAClosedChild) {
    SetLines(10);
    Rescan({{1, 8}, {3, 2}});
    CEditBlk* pInner = Block(3);
    m_zone.CloseBlock(1, 0);
    // The outer head goes; the inner block survives without its parent, open.
    m_zone.RemoveLines(1, 1);
    ASSERT_EQ(Of(m_zone.m_editBlocks), (Extents{{2, 2}}));
    EXPECT_EQ(pInner->m_pParent, nullptr);
    EXPECT_EQ(pInner->IsClosed(), 0);
    EXPECT_EQ(m_zone.CloseBlock(2, 0), 1);
    EXPECT_EQ(m_zone.OpenBlock(2, 0), 1);
}

TEST_F(EditBlockTest, AlternateBlocks) {
    SetLines(12);
    Rescan({{2, 6}});                                     // 2..7
    EXPECT_EQ(m_zone.CreateClosedAltBlock(12, 2, 0), 0);  // no such line
    EXPECT_EQ(m_zone.CreateClosedAltBlock(3, 0, 0), 0);   // no lines

    EXPECT_EQ(m_zone.CreateClosedAltBlock(4, 2, 0), 1);
    EXPECT_EQ(Flags(), "001024000000");
    EXPECT_EQ(m_zone.CreateClosedAltBlock(4, 2, 0), 1);  // the same: nothing new
    EXPECT_EQ(m_zone.CreateClosedAltBlock(4, 3, 0), 1);  // longer: grows
    EXPECT_EQ(Flags(), "001024400000");
    EXPECT_EQ(m_zone.CreateClosedAltBlock(10, 5, 0), 1);  // runs off the text
    EXPECT_EQ(m_zone.CreateClosedAltBlock(10, 6, 0), 0);  // growing over no lines
    // A shorter one replaces it; blocks that begin inside a new one give way.
    EXPECT_EQ(m_zone.CreateClosedAltBlock(10, 1, 0), 1);
    EXPECT_EQ(m_zone.CreateClosedAltBlock(3, 8, 0), 1);
    EXPECT_EQ(Of(m_zone.m_altBlocks), (Extents{{3, 8}}));
    EXPECT_EQ(Flags(), "001244444440");

    // Closing the language's block merges with an alternate block that sticks
    // out; opening it gives the head back to the language's block.
    EXPECT_EQ(m_zone.CloseBlock(2, 0), 1);
    EXPECT_EQ(Of(m_zone.m_altBlocks), (Extents{{2, 9}}));
    EXPECT_EQ(Block(2)->m_bClosed, 0);
    EXPECT_EQ(Flags(), "002444444440");
    EXPECT_EQ(m_zone.OpenBlock(2, 0), 1);
    EXPECT_TRUE(m_zone.m_altBlocks.empty());
    EXPECT_EQ(Flags(), "001000000000");

    // An alternate block inside gives way when the block closes.
    m_zone.CreateClosedAltBlock(5, 2, 0);
    EXPECT_EQ(m_zone.CloseBlock(2, 0), 1);
    EXPECT_TRUE(m_zone.m_altBlocks.empty());
    EXPECT_EQ(Flags(), "002444440000");
    // A head without a block of the language loses its flags when opened.
    m_zone.OpenBlock(2, 0);
    m_zone.CreateClosedAltBlock(9, 2, 0);
    EXPECT_EQ(m_zone.OpenBlock(9, 0), 1);
    EXPECT_EQ(Flags(), "001000000000");

    // Freeing all blocks shows everything.
    m_zone.CloseBlock(2, 0);
    m_zone.CreateClosedAltBlock(9, 3, 0);
    m_zone.FreeAllEditBlocks();
    EXPECT_EQ(Flags(), "000000000000");
    EXPECT_TRUE(m_zone.m_editBlocks.empty());
    EXPECT_TRUE(m_zone.m_altBlocks.empty());
}

TEST_F(EditBlockTest, CollapseAndExpandAtTheCaret) {
    SetLines(6);
    Rescan({{1, 3}});
    m_zone.SetSelection(1, 1, 0, 0, 0, 0);
    m_zone.CollapseCurrentSel();  // block mode is off
    EXPECT_EQ(Flags(), "010000");
    m_zone.SetBlockMode(1);
    // Both keys toggle the head; not with a selection, and not off a head.
    const struct {
        bool collapse;
        int line, endChar;
        const char* flags;
    } steps[] = {{true, 1, 0, "024400"},
                 {false, 1, 0, "010000"},
                 {false, 1, 0, "024400"},
                 {false, 1, 1, "024400"},
                 {false, 0, 0, "024400"}};
    for (const auto& st : steps) {
        m_zone.SetSelection(st.line, st.line, 0, st.endChar, 0, 0);
        st.collapse ? m_zone.CollapseCurrentSel() : m_zone.ExpandCurrentSel();
        EXPECT_EQ(Flags(), st.flags) << st.line << "," << st.endChar;
    }
}

TEST_F(EditBlockTest, StatusStringRoundTrip) {
    SetLines(12);
    Rescan({{1, 4}, {2, 2}, {7, 3}});
    EXPECT_EQ(Status(), Head() + "00000000");
    Close({2, 7});
    m_zone.CreateClosedAltBlock(10, 2, 0);
    const std::string saved = Status();
    EXPECT_EQ(saved, Head() + "00020001" + "000002" + "000007" + "00000A000002");
    const std::string flags = Flags();

    // The same text, loaded afresh with other indentation: the state comes back.
    ASSERT_TRUE(m_zone.SetText(Numbered(12, "  ").c_str()));
    m_zone.OpenBlock(10, 0);
    Rescan({{1, 4}, {2, 2}, {7, 3}});
    EXPECT_EQ(Flags(), "011000010000");
    std::string lower = saved;
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    ApplyStatus(lower);
    EXPECT_EQ(Flags(), flags);
    EXPECT_EQ(Status(), saved);
}

TEST_F(EditBlockTest, StatusStringForAnotherTextOrMalformed) {
    SetLines(12);
    Rescan({{1, 4}, {7, 3}});
    const std::string open = Flags();
    Close({1, 7});
    const std::string saved = Status();
    m_zone.OpenBlock(1, 0);
    m_zone.OpenBlock(7, 0);

    // Another text, or a check value changed: nothing happens.
    std::string wrong = saved;
    wrong[15] = wrong[15] == '0' ? '1' : '0';
    for (const std::string& status : {wrong, std::string(), std::string("zz")})
        ApplyStatus(status);
    EXPECT_EQ(Flags(), open);

    // Cut short or spoilt inside the list: what was read applies, the rest not.
    ApplyStatus(saved.substr(0, 24 + 6 + 3));
    EXPECT_EQ(Flags(), "024440010000");
    m_zone.OpenBlock(1, 0);
    ApplyStatus(saved.substr(0, 24) + "00000G" + saved.substr(30));
    EXPECT_EQ(Flags(), open);

    // Lines that are not there, counts claiming more than is written,
    // and an empty alternate block are all ignored.
    const std::string head = saved.substr(0, 16);
    ApplyStatus(head + "0003" + "0001" + "FFFFFF" + "000003" + "000007" + "000001000000");
    EXPECT_EQ(Flags(), "010000024400");
    EXPECT_TRUE(m_zone.m_altBlocks.empty());
    EXPECT_EQ(m_zone.CreateClosedAltBlock(11, 3, 0), 1);
    EXPECT_EQ(Status(), head + "00010001" + "000007" + "00000B000003");
}

TEST_F(EditBlockTest, OpeningAnAlternateBlockLeavesHeadsUnderAClosedBlockHidden) {
    SetLines(12);
    m_zone.SetEditBlock(1, 8);  // 1..8
    m_zone.SetEditBlock(3, 3);  // 3..5, inside it
    Close({3, 1});
    EXPECT_EQ(m_zone.CreateClosedAltBlock(2, 5, 0), 1);  // 2..6 over the inner head
    EXPECT_EQ(m_zone.OpenBlock(2, 0), 1);
    // The alternate block's lines, the inner head among them, stay under block 1.
    EXPECT_EQ(Flags(), "024644444000");
}
