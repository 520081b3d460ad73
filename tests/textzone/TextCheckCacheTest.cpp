// The check values are kept between changes. Whatever changes the text, by
// whatever road (edits that keep a line's length, bytes written through a
// line's buffer, undo and redo, the wrap moving words), the kept values must
// be those read afresh from the lines.
#include <random>
#include <string>

#include "KeyZoneTest.h"

namespace {

class TextCheckCacheTest : public KeyZoneTest {
protected:
    void ExpectFresh(const std::string& what) {
        int size = 0, hash = 0, freshSize = 0, freshHash = 0;
        m_zone.GetTextCRCValues(&size, &hash);
        m_zone.ComputeTextCRCValues(&freshSize, &freshHash);
        ASSERT_EQ(size, freshSize) << what;
        ASSERT_EQ(hash, freshHash) << what;
    }
};

}  // namespace

TEST_F(TextCheckCacheTest, ChangesThatKeepTheLengthDropTheKeptValues) {
    m_zone.SetText("select a\r\n\tb\r\n");
    int size = 0, before = 0, after = 0;
    m_zone.GetTextCRCValues(&size, &before);
    // Written through the buffer, as the keyword case does.
    m_zone.GetLine(0)->GetBuffer()[0] = 'S';
    m_zone.GetTextCRCValues(&size, &after);
    EXPECT_NE(after, before);
    ExpectFresh("buffer");
    // A byte replaced in place, as a box edge splitting a tab does.
    m_zone.GetLine(1)->replaceAt(0, ' ');
    ExpectFresh("replaceAt");
    m_zone.GetLine(0)->assign("SELECT a\r", 9);
    ExpectFresh("assign");
    // A copy of a line belongs to no zone: changing it changes nothing.
    CStringEx copy(*m_zone.GetLine(0));
    m_zone.GetTextCRCValues(&size, &before);
    copy.GetBuffer()[1] = 'x';
    m_zone.GetTextCRCValues(&size, &after);
    EXPECT_EQ(after, before);
}

TEST_F(TextCheckCacheTest, RandomEditsKeepTheKeptValuesFresh) {
    std::mt19937 rng(20261124);
    auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    const char* pieces[] = {"a", "b c", "\t", " ", "\r\n", "x\r\ny", "  z", "\xe9"};
    m_zone.SetText("one two\r\n\tthree\r\nfour five six\r\n");
    for (int step = 0; step < 1500; ++step) {
        const int lines = m_zone.GetLineCount();
        const int line = lines > 0 ? pick(lines + 1) : 0;
        const int ch = pick(12);
        std::string what = "step " + std::to_string(step) + " op ";
        switch (pick(12)) {
            case 0:
            case 1:
                m_zone.SetSelection(line, line, ch, ch, 0, 0);
                Type(pieces[pick(std::size(pieces))]);
                what += "type";
                break;
            case 2:
                m_zone.SetSelection(line, std::min(line + pick(3), lines), ch, pick(12), 0, 0);
                Press(pick(2) ? VK_DELETE : VK_BACK);
                what += "delete";
                break;
            case 3:
                m_zone.SetSelection(line, line, ch, ch, 0, 0);
                m_zone.InsertText(pieces[pick(std::size(pieces))], 0, 1, 1);
                what += "insert";
                break;
            case 4:
                m_zone.Undo();
                what += "undo";
                break;
            case 5:
                m_zone.Redo();
                what += "redo";
                break;
            case 6:
                if (CStringEx* p = m_zone.GetLine(line); p && p->GetLength() > 0)
                    p->GetBuffer()[pick(p->GetLength())] = static_cast<char>('A' + pick(26));
                what += "buffer";
                break;
            case 7:
                m_zone.SetSelection(line, line, 0, ch, 0, 0);
                m_zone.MakeUpperOrLower(pick(2));
                what += "case";
                break;
            case 8:
                // A box over tabs splits them into blanks in place.
                m_zone.SetSelection(line, std::min(line + 2, lines), 1 + pick(3), 2 + pick(6), 2, 0);
                m_zone.StartRegister(4);
                m_zone.DeleteSelection(1);
                m_zone.EndRegister();
                m_zone.SetSelectionMode(TZ_SEL_STREAM);
                what += "box";
                break;
            case 9:
                m_zone.SetStyle(m_zone.GetStyle() ^ ZS_PARAGRAPH);
                m_zone.SetMaxWidth(40 + pick(80));
                what += "wrap";
                break;
            case 10:
                if (pick(20) == 0) m_zone.SetText(pick(2) ? "" : "fresh\r\n\ttext");
                what += "set text";
                break;
            default:
                ExpectFresh(what + "read");  // reading twice keeps the values
                break;
        }
        ExpectFresh(what);
    }
}
