#include <gtest/gtest.h>

#include <string>

#include "host/GraphicText.h"
#include "platform/Font.h"
#include "platform/Messages.h"
#include "platform/headless/HeadlessDC.h"
#include "platform/headless/HeadlessFonts.h"

namespace {

struct Surface {
    Surface() : dc(nullptr, CRgn(RECT{0, 0, 20000, 100}), false) {
        LOGFONTA lf = CHeadlessFonts::MakeFont(CHeadlessFonts::kProportionalFace, 16);
        font.CreateFontIndirect(&lf);
        dc.SelectObject(&font);
    }
    std::vector<DrawRecord> Texts() const {
        std::vector<DrawRecord> out;
        for (const DrawRecord& r : dc.GetDisplayList())
            if (r.kind == DrawRecord::Text) out.push_back(r);
        return out;
    }
    CFont font;
    CHeadlessDC dc;
};

}  // namespace

TEST(GraphicTextTest, LongTextGoesOutInPiecesThatJoinWithoutAGap) {
    Surface s;
    // 2500 bytes of mixed widths: pieces of 1024, 1024 and 452 bytes.
    std::string text;
    for (int i = 0; i < 2500; ++i)
        text += "iWa"[i % 3];
    GraphicText()(&s.dc, 10, 0, text.data(), static_cast<int>(text.size()), 0, nullptr, 10);
    auto texts = s.Texts();
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[0].text.size(), 1024u);
    EXPECT_EQ(texts[1].text.size(), 1024u);
    EXPECT_EQ(texts[2].text.size(), 452u);
    EXPECT_EQ(texts[0].rc.left, 10);
    EXPECT_EQ(texts[1].rc.left, texts[0].rc.right);
    EXPECT_EQ(texts[2].rc.left, texts[1].rc.right);
    EXPECT_EQ(texts[2].rc.right, 10 + s.dc.GetTextExtent(text.data(), 2500).cx);
}

TEST(GraphicTextTest, TabsAcrossPiecesStayOnTheOriginsGrid) {
    Surface s;
    int step = 40;
    // A tab right behind the first piece still lands on the grid from x = 0.
    std::string text(1024, 'a');
    text += "\tb";
    GraphicText()(&s.dc, 0, 0, text.data(), static_cast<int>(text.size()), 1, &step, 0);
    auto texts = s.Texts();
    ASSERT_EQ(texts.size(), 2u);
    int afterPiece = 1024 * 8;
    int expected = (afterPiece / step + 1) * step;
    EXPECT_EQ(texts[1].text, "b");
    EXPECT_EQ(texts[1].rc.left, expected);
}

TEST(GraphicTextTest, StringFormsDrawTheirBytes) {
    Surface s;
    GraphicText()(&s.dc, 0, 0, VESK::String("ab"));
    int step = 16;
    GraphicText()(&s.dc, 0, 20, VESK::String("a\tb"), 1, &step, 0);
    auto texts = s.Texts();
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[0].text, "ab");
    EXPECT_EQ(texts[2].text, "b");
    EXPECT_EQ(texts[2].rc.left, 16);
    // Nothing happens without a context.
    GraphicText()(nullptr, 0, 0, "x", 1, 0, nullptr, 0);
}
