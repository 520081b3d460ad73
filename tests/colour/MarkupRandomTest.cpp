// Markup built at random from the pieces that switch sections: every line
// must give well-formed runs and a start state the machine knows, and the
// states kept across an edit must be those of a fresh walk.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "ColourZone.h"
#include "colour/MarkupStates.h"

namespace {

const char* const kPieces[] = {"<",
                               ">",
                               "<b>",
                               "</b>",
                               "<td align=",
                               "<script>",
                               "<SCRIPT language=vbscript>",
                               "</script>",
                               "</ SCRIPT",
                               "<%",
                               "%>",
                               "<%--",
                               "--%>",
                               "<!",
                               "--",
                               "-->",
                               "<?",
                               "?>",
                               "\"",
                               "'",
                               "/*",
                               "*/",
                               "//",
                               "rem ",
                               " _",
                               "\\",
                               "\n",
                               "\n",
                               "&amp;",
                               "&lt;",
                               "x",
                               " ",
                               "if ",
                               "\t",
                               "\xE9",
                               "<\xE9",
                               "\r\n"};

std::string RandomText(std::mt19937& random, bool bDirectives) {
    std::string text;
    const int parts = 1 + static_cast<int>(random() % 60);
    for (int k = 0; k < parts; ++k) {
        if (bDirectives && random() % 20 == 0)
            text += random() % 2 ? "<%@ language=vbscript %>" : "<%@ page language=java %>";
        else
            text += kPieces[random() % std::size(kPieces)];
    }
    return text;
}

class MarkupRandomTest : public ColourTest {
protected:
    // Runs ascending from 0, none past the line; start states known.
    void CheckLines(CTestColorZone& zone, const std::string& text) {
        for (int n = 0; CStringEx* pLine = zone.GetLine(n); ++n) {
            const unsigned int state = zone.StartWithWhat(n);
            const unsigned int markup = MarkupPart(state);
            const unsigned int script = EmbeddedPart(state);
            EXPECT_TRUE(markup >= MS_TEXT && markup <= MS_SERVER_COMMENT) << state << text;
            if (markup >= MS_SCRIPT && markup <= MS_DIRECTIVE) {
                EXPECT_TRUE(script == 0 || script == 1 || script == 5) << state << text;
            } else {
                EXPECT_EQ(script, 0u) << text;
            }

            zone.DefineColors(n, pLine);
            const int length = pLine->GetLength();
            int last = -1;
            for (const auto& def : zone.m_colorDefs) {
                EXPECT_GT(def->nPos, last) << "line " << n << ": " << text;
                EXPECT_LE(def->nPos, length) << "line " << n << ": " << text;
                last = def->nPos;
            }
            if (!zone.m_colorDefs.empty()) {
                EXPECT_EQ(zone.m_colorDefs.front()->nPos, 0);
            }
            zone.FreeColorDefs();
            if (HasFailure()) return;
        }
    }
};

TEST_F(MarkupRandomTest, EveryLineIsScannedSafely) {
    std::mt19937 random(20261124);
    for (unsigned int language : {310u, 610u, 631u, 1090u}) {
        m_zone.SetClientLanguageSyntaxColor(language);
        for (int round = 0; round < 150 && !HasFailure(); ++round) {
            const std::string text = RandomText(random, true);
            m_zone.SetText(text.c_str());
            CheckLines(m_zone, text);
        }
    }
}

TEST_F(MarkupRandomTest, StatesKeptAcrossAnEditAreThoseOfAFreshWalk) {
    std::mt19937 random(7);
    for (unsigned int language : {310u, 610u, 1090u}) {
        m_zone.SetClientLanguageSyntaxColor(language);
        for (int round = 0; round < 100 && !HasFailure(); ++round) {
            // No directives: the server language they set is the zone's, not a line's.
            m_zone.SetText(RandomText(random, false).c_str());
            int lines = 0;
            while (m_zone.GetLine(lines))
                m_zone.StartWithWhat(lines++);
            if (lines == 0) continue;

            const int line = static_cast<int>(random() % static_cast<unsigned>(lines));
            const int at = static_cast<int>(
                random() % static_cast<unsigned>(m_zone.GetLine(line)->GetVisibleLength() + 1));
            m_zone.SetSelection(line, line, at, at, 0, 0);
            m_zone.InsertText(RandomText(random, false).c_str(), 0, 0, 0);

            std::string edited;
            for (int n = 0; CStringEx* pLine = m_zone.GetLine(n); ++n) {
                edited += std::string(pLine->c_str(),
                                      static_cast<size_t>(pLine->GetLength() - pLine->IsEnded()));
                if (pLine->IsEnded()) edited += "\n";
            }
            CTestColorZone fresh;
            Attach(fresh);
            fresh.SetClientLanguageSyntaxColor(language);
            fresh.SetText(edited.c_str());
            for (int n = 0; m_zone.GetLine(n); ++n)
                ASSERT_EQ(m_zone.StartWithWhat(n), fresh.StartWithWhat(n))
                    << "line " << n << " of\n"
                    << edited;
        }
    }
}

}  // namespace
