// Files through a real zone: what was opened comes back byte for byte, and
// whatever the zone cannot hold is said before it is lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "apps/demo/TextFile.h"
#include "support/ZoneTest.h"
#include "support/ZoneWindow.h"
#include "zones/TextZoneParam.h"

namespace {

// A zone that believes it holds more lines than it does, so that the line
// limit is reached with a few lines.
class CCrowdedZone : public CTestZone {
public:
    int GetLastLineIndex() override { return CTextZone::GetLastLineIndex() + m_nPretended; }
    int m_nPretended = 0;
};

const char* const kEnds[] = {"\n", "\r\n", "\r"};
const CTextFile::ELineEnd kEndKinds[] = {CTextFile::ELineEnd::Lf, CTextFile::ELineEnd::CrLf,
                                         CTextFile::ELineEnd::Cr};

class TextFileTest : public ZoneTest {
protected:
    // Opens bytes into the zone and gives what saving writes.
    std::string RoundTrip(CTextZone& zone, CTextFile& file) {
        zone.SetText(file.GetZoneText());
        file.CheckLoaded(zone);
        return file.TextToSave(zone);
    }
    std::string RoundTrip(const std::string& bytes) {
        CTextFile file(bytes);
        return RoundTrip(m_zone, file);
    }
    // A line of text: no line end and no 0, but tabs, blanks and high bytes.
    std::string RandomLine(int nMax) {
        static const std::string alphabet = "abc XYZ\t019;,'\"\x80\xE9\xFF";
        std::string line(static_cast<size_t>(Pick(0, nMax)), ' ');
        for (char& c : line) c = alphabet[static_cast<size_t>(Pick(0, alphabet.size() - 1))];
        return line;
    }
    int Pick(size_t lo, size_t hi) {
        return std::uniform_int_distribution<int>(static_cast<int>(lo), static_cast<int>(hi))(m_rng);
    }

    std::mt19937 m_rng{20261124};
};

}  // namespace

TEST_F(TextFileTest, RandomFilesComeBackByteForByteInEachConvention) {
    for (int e = 0; e < 3; ++e) {
        for (bool bFinal : {true, false}) {
            for (int round = 0; round < 25; ++round) {
                const int nLines = Pick(1, 30);
                std::string bytes;
                for (int i = 0; i < nLines; ++i) {
                    std::string line = RandomLine(i % 7 == 6 ? 300 : 40);
                    // The last line of a file without a final end has text.
                    if (i == nLines - 1 && !bFinal && line.empty()) line = "z";
                    bytes += line;
                    if (i < nLines - 1 || bFinal) bytes += kEnds[e];
                }
                CTextFile file(bytes);
                SCOPED_TRACE(testing::Message() << "end " << e << " final " << bFinal
                                                << " round " << round);
                if (nLines > 1 || bFinal) {
                    EXPECT_EQ(file.GetLineEnd(), kEndKinds[e]);
                }
                EXPECT_EQ(file.HasFinalLineEnd(), bFinal);
                EXPECT_EQ(file.GetLineCount(), nLines);
                EXPECT_TRUE(file.GetProblems().empty()) << file.DescribeProblems();
                ASSERT_EQ(RoundTrip(m_zone, file), bytes);
                EXPECT_FALSE(file.SavingChangesTheFile());
            }
        }
    }
}

TEST_F(TextFileTest, EditsTakeTheFilesLineEndAndFinalEnd) {
    // A CR-only file stays CR-only, new lines included.
    CTextFile cr(std::string("a\rb\rc\r"));
    EXPECT_STREQ(cr.GetLineEndName(), "CR");
    m_zone.SetText(cr.GetZoneText());
    m_zone.SetSelection(1, 1, 1, 1, 0, 0);
    m_zone.InsertText("x\ny", 0, 1, 1);
    EXPECT_EQ(cr.TextToSave(m_zone), "a\rbx\ry\rc\r");

    // No final line end stays so after an edit; one is put back if deleted.
    CTextFile open(std::string("one\r\ntwo"));
    EXPECT_STREQ(open.GetLineEndName(), "CR LF");
    EXPECT_FALSE(open.HasFinalLineEnd());
    m_zone.SetText(open.GetZoneText());
    m_zone.SetSelection(1, 1, 3, 3, 0, 0);
    m_zone.InsertText("\nthree", 0, 1, 1);
    EXPECT_EQ(open.TextToSave(m_zone), "one\r\ntwo\r\nthree");
    CTextFile ended(std::string("one\ntwo\n"));
    m_zone.SetText("one\ntwo");
    EXPECT_EQ(ended.TextToSave(m_zone), "one\ntwo\n");

    // No line end to go by: LF and, for an empty file, a final end.
    CTextFile single(std::string("abc"));
    EXPECT_EQ(single.GetLineEnd(), CTextFile::ELineEnd::Lf);
    EXPECT_FALSE(single.HasFinalLineEnd());
    EXPECT_EQ(RoundTrip("abc"), "abc");
    CTextFile empty{std::string()};
    EXPECT_TRUE(empty.HasFinalLineEnd());
    EXPECT_EQ(empty.GetLineCount(), 0);
    EXPECT_EQ(RoundTrip(""), "");
    m_zone.InsertText("new", 0, 1, 1);
    EXPECT_EQ(empty.TextToSave(m_zone), "new\n");
    CTextFile fresh;
    EXPECT_EQ(fresh.GetTextFlags(), TF_LF);
    EXPECT_TRUE(fresh.GetProblems().empty());
}

TEST_F(TextFileTest, NulBytesAreSaidAndBecomeBlanks) {
    const std::string bytes("ab\0cd\nxy\0\0\n", 11);
    CTextFile file(bytes);
    ASSERT_EQ(file.GetProblems().size(), 1u);
    const CTextFile::SProblem& problem = file.GetProblems()[0];
    EXPECT_EQ(problem.kind, CTextFile::EProblem::NulBytes);
    EXPECT_EQ(problem.count, 3);
    EXPECT_EQ(problem.firstLine, 1);
    EXPECT_EQ(problem.message,
              "The file contains 3 NUL bytes (the first on line 1). The editor shows them as "
              "blanks, and saving writes blanks in their place.");
    EXPECT_STREQ(file.GetZoneText(), "ab cd\nxy  \n");
    EXPECT_TRUE(file.SavingChangesTheFile());
    EXPECT_EQ(file.DescribeSaveChanges(), problem.message);
    EXPECT_EQ(RoundTrip(m_zone, file), "ab cd\nxy  \n");
    // Once saved, the file holds the blanks: nothing more to confirm.
    file.MarkSaved();
    EXPECT_FALSE(file.SavingChangesTheFile());
}

TEST_F(TextFileTest, LinesLongerThanTheZoneHoldsAreSaid) {
    // The longest line the zone keeps whole, and one byte more.
    const std::string fits(TZ_MAX_LINE_LENGTH - 1, 'a');
    EXPECT_TRUE(CTextFile(fits + "\n").GetProblems().empty());
    EXPECT_EQ(RoundTrip(fits + "\n"), fits + "\n");

    const std::string longer = "x\n" + fits + "b\n" + "y\n" + fits + fits + "c";
    CTextFile file(longer);
    ASSERT_EQ(file.GetProblems().size(), 1u);
    const CTextFile::SProblem& problem = file.GetProblems()[0];
    EXPECT_EQ(problem.kind, CTextFile::EProblem::LongLines);
    EXPECT_EQ(problem.count, 2);
    EXPECT_EQ(problem.firstLine, 2);
    EXPECT_EQ(problem.message,
              "2 lines are longer than the editor's limit of 65,499 bytes (the first is line 2). "
              "The editor splits them into lines of at most 65,499 bytes, and saving writes them "
              "split.");
    // The zone splits them as said: into 2 and 3 lines.
    EXPECT_EQ(RoundTrip(m_zone, file),
              "x\n" + fits + "\nb\ny\n" + fits + "\n" + fits + "\nc");
    EXPECT_EQ(m_zone.GetLineCount(), 7);
}

TEST_F(TextFileTest, MixedLineEndsAreSaidAndNeverChangedSilently) {
    CTextFile file(std::string("a\r\nb\nc\r\nd\re"));
    EXPECT_EQ(file.GetLineEnd(), CTextFile::ELineEnd::CrLf);
    ASSERT_EQ(file.GetProblems().size(), 1u);
    EXPECT_EQ(file.GetProblems()[0].kind, CTextFile::EProblem::MixedLineEnds);
    EXPECT_EQ(file.GetProblems()[0].count, 2);
    EXPECT_EQ(file.GetProblems()[0].message,
              "The line ends are mixed: line 1 ends in CR LF, line 2 in LF (2 line ends differ "
              "from the first). Saving writes every line end as CR LF.");
    EXPECT_EQ(RoundTrip(m_zone, file), "a\r\nb\r\nc\r\nd\r\ne");

    // LF CR is two line ends to the zone: saved as LF LF, and so it is said.
    CTextFile lfcr(std::string("a\n\rb\n"));
    EXPECT_TRUE(lfcr.HasProblem(CTextFile::EProblem::MixedLineEnds));
    EXPECT_EQ(lfcr.GetProblems()[0].firstLine, 2);
    EXPECT_EQ(lfcr.GetLineCount(), 3);
    EXPECT_EQ(RoundTrip(m_zone, lfcr), "a\n\nb\n");
    // A CR at the very end is a line end of its own, not half a CR LF.
    EXPECT_TRUE(CTextFile(std::string("a\r\nb\r")).HasProblem(CTextFile::EProblem::MixedLineEnds));
}

TEST_F(TextFileTest, TheLineLimitIsSaidWhereTheZoneStops) {
    // The engine's own limit, counted without a zone.
    std::string many(TZ_MAX_LINES, '\n');
    CTextFile full(many);
    ASSERT_EQ(full.GetProblems().size(), 1u);
    EXPECT_EQ(full.GetProblems()[0].kind, CTextFile::EProblem::AtLineLimit);
    EXPECT_EQ(full.GetProblems()[0].message,
              "The file has 10,000,000 lines, the most the editor holds: no line can be added.");
    EXPECT_FALSE(full.SavingChangesTheFile());
    many += "last";
    CTextFile over(many);
    ASSERT_EQ(over.GetProblems().size(), 1u);
    EXPECT_EQ(over.GetProblems()[0].kind, CTextFile::EProblem::TooManyLines);
    EXPECT_EQ(over.GetProblems()[0].firstLine, TZ_MAX_LINES + 1);
    EXPECT_EQ(over.GetProblems()[0].message,
              "The file is longer than the 10,000,000 lines the editor holds. The text from line "
              "10,000,001 on does not fit: it is not loaded, and saving would lose it.");
    many.clear();
    many.shrink_to_fit();

    // Through a zone whose limit lies five lines away: the analysis must say
    // exactly when the zone drops text.
    CCrowdedZone zone;
    PutZoneInWindow(zone, m_wnd, m_font);
    zone.m_nPretended = TZ_MAX_LINES - 5;
    CTextFile::SLimits limits;
    limits.maxLines = 5;
    const std::string split(TZ_MAX_LINE_LENGTH, 's');  // two lines in the zone
    const std::string files[] = {"1\n2\n3\n4\n",    "1\n2\n3\n4\n5\n", "1\n2\n3\n4\n5",
                                 "1\n2\n3\n4\n5\n6", "1\n2\n3\n4\n5\n6\n",
                                 "1\n2\n3\n" + split + "\n", "1\n2\n3\n4\n" + split};
    for (const std::string& bytes : files) {
        CTextFile file(bytes, limits);
        const std::string saved = RoundTrip(zone, file);
        SCOPED_TRACE(bytes.substr(0, 20));
        const bool bTooMany = file.HasProblem(CTextFile::EProblem::TooManyLines);
        const bool bLong = file.HasProblem(CTextFile::EProblem::LongLines);
        EXPECT_EQ(saved == bytes, !bTooMany && !bLong);
        EXPECT_EQ(file.HasProblem(CTextFile::EProblem::AtLineLimit),
                  !bTooMany && zone.GetLineCount() == 5);
    }
    EXPECT_TRUE(CTextFile(files[5], limits).HasProblem(CTextFile::EProblem::AtLineLimit));
    EXPECT_TRUE(CTextFile(files[6], limits).HasProblem(CTextFile::EProblem::TooManyLines));
    EXPECT_EQ(CTextFile(files[6], limits).GetProblems().back().firstLine, 5);
    zone.HideCaret();
}

TEST_F(TextFileTest, AZoneThatChangesTheTextOnLoadingIsNoticed) {
    CTextFile plain(std::string("a\tb\n"));
    EXPECT_EQ(RoundTrip(m_zone, plain), "a\tb\n");
    EXPECT_TRUE(plain.GetProblems().empty());

    m_zone.SetTabConvert(1);
    CTextFile tabs(std::string("a\tb\n"));
    EXPECT_NE(RoundTrip(m_zone, tabs), "a\tb\n");
    EXPECT_TRUE(tabs.HasProblem(CTextFile::EProblem::ChangedOnLoad));
    EXPECT_TRUE(tabs.SavingChangesTheFile());
    tabs.ReleaseZoneText();
    EXPECT_STREQ(tabs.GetZoneText(), "");
}

// The editors' own zone, colouring SQL and converting keyword case as the
// user types: loading converts nothing, so files still come back whole.
TEST_F(TextFileTest, TheEditorsZoneGivesBackWhatItLoaded) {
    CTextZoneParam zone;
    PutZoneInWindow(zone, m_wnd, m_font);
    zone.SetSQLSyntaxColor(150);
    zone.SetKeywordMode(1, 0);
    for (int e = 0; e < 3; ++e) {
        std::string bytes = std::string("select top 10 * from t -- note") + kEnds[e] +
                            "/* begin\t" + kEnds[e] + "end */ 'str" + kEnds[e] + "ing'" +
                            kEnds[e] + "\tgo";
        for (int i = 0; i < 20; ++i) bytes += kEnds[e] + RandomLine(60);
        CTextFile file(bytes);
        EXPECT_EQ(RoundTrip(zone, file), bytes);
        EXPECT_TRUE(file.GetProblems().empty()) << file.DescribeProblems();
    }
    zone.HideCaret();
}

// Random files with every fault mixed in, against the zone itself: saving
// gives back the file exactly when nothing was said, and otherwise the file
// with blanks for NULs and every line end in the first kind.
TEST_F(TextFileTest, WhatIsSaidAgreesWithWhatTheZoneDoesOnRandomFiles) {
    const char* const pieces[] = {"ab", "\t", " ", "\xE9", "\n", "\r\n", "\r", "\n\r"};
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        const int nPieces = Pick(0, 40);
        for (int i = 0; i < nPieces; ++i) {
            const int k = Pick(0, 8);
            if (k == 8)
                bytes += '\0';
            else
                bytes += pieces[k];
        }
        CTextFile file(bytes);
        const std::string saved = RoundTrip(m_zone, file);
        SCOPED_TRACE(testing::Message() << "round " << round);
        EXPECT_EQ(saved == bytes, !file.SavingChangesTheFile()) << file.DescribeProblems();

        // The model: NULs to blanks, every line end the first one's kind.
        std::string model;
        const std::string end = kEnds[static_cast<int>(file.GetLineEnd())];
        for (size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] == '\r' || bytes[i] == '\n') {
                if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
                model += end;
            } else {
                model += bytes[i] ? bytes[i] : ' ';
            }
        }
        EXPECT_EQ(saved, model);
    }
}
