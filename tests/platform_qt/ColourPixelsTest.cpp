// A coloured zone in the editor control on the Qt backend: the pixels of a
// coloured line, before and after typing turns it into a comment.
#include <QApplication>
#include <QTest>

#include "QtFixture.h"
#include "colour/TextZoneColor.h"
#include "editor/qt/QtEditorWidget.h"

namespace {

constexpr COLORREF kKeyword = RGB(0, 0, 255);
constexpr COLORREF kComment = RGB(0, 128, 0);

// The leftmost and rightmost x of pixels of a colour in a band of rows; -1, -1
// when there are none.
std::pair<int, int> Extent(const QImage& image, int top, int bottom, COLORREF cr) {
    int left = -1;
    int right = -1;
    for (int y = top; y < bottom && y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (QtFixture::Pixel(image, x, y) == cr) {
                if (left < 0 || x < left) left = x;
                right = std::max(right, x);
            }
    return {left, right};
}

}  // namespace

TEST(ColourPixelsTest, KeywordsAndCommentsShowInTheirColoursAndFollowTyping) {
    CQtPlatform platform;
    CTextZoneColor zone;
    zone.SetSyntaxColor(SC_KEYWORD1, kKeyword);
    zone.SetSyntaxColor(SC_COMMENT, kComment);
    {
        CQtEditorWidget editor(nullptr, 0, &zone);
        editor.resize(400, 120);
        editor.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&editor));
        zone.SetSQLSyntaxColor(15);
        editor.Editor().SetWindowTextA("select x -- note\r\nfrom t");
        editor.Editor().SetSel(0, 0);
        QtFixture::Pump();
        QWidget* pWindow = CQtPlatform::WidgetOf(&editor.Editor());
        auto image = [&] {
            QtFixture::Pump();
            return static_cast<CQtWindowWidget*>(pWindow)->Image().copy();
        };
        const int top = zone.m_rcText.top;
        const int bottom = top + zone.m_nLineHeight;

        QImage before = image();
        auto keyword = Extent(before, top, bottom, kKeyword);
        auto comment = Extent(before, top, bottom, kComment);
        ASSERT_GE(keyword.first, 0) << "no keyword pixels";
        ASSERT_GE(comment.first, 0) << "no comment pixels";
        EXPECT_LT(keyword.second, comment.first) << "the keyword stands left of the comment";
        EXPECT_GE(Extent(before, bottom, bottom + zone.m_nLineHeight, kKeyword).first, 0)
            << "the next line has its keyword too";

        // Typing "/*" in front makes both lines one comment, at once.
        QTest::keyClicks(pWindow, "/*");
        QImage after = image();
        EXPECT_EQ(Extent(after, top, bottom + zone.m_nLineHeight, kKeyword).first, -1);
        EXPECT_LT(Extent(after, top, bottom, kComment).first, keyword.second);
        EXPECT_GE(Extent(after, bottom, bottom + zone.m_nLineHeight, kComment).first, 0);
    }
}
