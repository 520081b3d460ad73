// The keyword pass against the pass as the colouring defines it, kept here
// as the oracle: each word of each table, in order, searched with strstr in
// the whole line, the text lower-cased table by table and given back its
// case afterwards. Both must take the same words in the same order and
// leave the same text, on the golden samples and on random lines.
#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "ColourZone.h"
#include "GoldenSamples.h"
#include "colour/KeywordIndex.h"
#include "host/Collator.h"
#include "keywords/KeywordTables.h"

namespace {

bool IsBoundary(unsigned char c) {
    return c >= 128 || std::isalnum(c) || c == '#' || c == '@' || c == '_';
}

bool BadBefore(unsigned char c, KeywordBounds b) {
    if (b == KeywordBounds::CFamily) return std::isalnum(c) || c == '_' || c == '#';
    return IsBoundary(c) || (b == KeywordBounds::SqlNoDash && c == '-');
}

bool BadBehind(unsigned char c, KeywordBounds b) {
    if (b == KeywordBounds::CFamily) return std::isalnum(c) || c == '_';
    return IsBoundary(c) || (b == KeywordBounds::SqlNoDash && c == '-');
}

std::vector<KeywordToken> LiteralPass(std::string& text, const char** const* tables, int count,
                                      bool bFold, KeywordBounds bounds) {
    std::vector<KeywordToken> tokens;
    char* base = text.data();
    const size_t n = std::strlen(base);
    for (int t = 0; t < count; ++t) {
        const std::string remembered = text;
        if (bFold) VESK::CollatorFactory::getSystemCollator()->toLower(base, static_cast<int>(n));
        for (int i = 0; tables[t][i][0]; ++i) {
            const char* word = tables[t][i];
            const size_t len = std::strlen(word);
            const char* from = base;
            while (const char* hit = std::strstr(from, word)) {
                const unsigned char before = hit > base ? static_cast<unsigned char>(hit[-1]) : 0;
                const unsigned char behind = static_cast<unsigned char>(hit[len]);
                if ((hit > base && BadBefore(before, bounds)) || BadBehind(behind, bounds)) {
                    from = hit + len;
                    continue;
                }
                char* end = const_cast<char*>(hit) + len;
                while (*end == ' ' || *end == '\t')
                    ++end;
                std::memset(const_cast<char*>(hit), 10, static_cast<size_t>(end - hit));
                tokens.push_back({static_cast<int>(hit - base), static_cast<int>(end - base), t});
                from = end;
            }
        }
        if (bFold)
            for (size_t k = 0; k < n; ++k)
                if (base[k] != 10) base[k] = remembered[k];
    }
    return tokens;
}

struct Config {
    const char* name;
    void (*setup)(CTextZoneColor&);
};

const Config kConfigs[] = {
    {"tsql4", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(1); }},
    {"tsql90", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(14); }},
    {"tsql150", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(15); }},
    {"plsql92", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(107); }},
    {"udb", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(205); }},
    {"cpp", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(710); }},
    {"vbnet", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(930); }},
    {"vb", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(70); }},
    {"markup", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(310); }},
    {"objc", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1250); }},
    {"cobol", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1010); }},
    {"java", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(210); }},
    {"jcl", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1020); }},
};

class KeywordOracleTest : public ColourTest {
protected:
    // The language of the zone as the keyword pass sees it.
    void Use(void (*setup)(CTextZoneColor&)) {
        setup(m_zone);
        for (auto& t : m_tables)
            t = szKeyWordEmpty;
        m_zone.DefineKeywordList(m_tables);
        const bool bWords = m_zone.m_bSql || m_zone.m_bClientLanguage;
        m_bFold = bWords && !m_zone.m_bCaseSensitive;
        m_bounds = !bWords                  ? KeywordBounds::CFamily
                   : m_zone.m_bCobolComment ? KeywordBounds::SqlNoDash
                                            : KeywordBounds::Sql;
        if (m_zone.m_bHtml) {
            // Names in tags: elements, then attributes, in any case.
            m_tables[0] = szKeyWordHTM_El;
            m_tables[1] = szKeyWordHTM_At;
            m_bFold = true;
            m_bounds = KeywordBounds::Sql;
        }
        m_index.Build(m_tables, 6);
    }

    // Both passes over one text; false (with a failure) when they differ.
    bool Agree(const std::string& line, const std::string& what) {
        std::string fast = line;
        std::string slow = line;
        std::vector<KeywordToken> fastTokens;
        m_index.Take(fast, m_bFold, m_bounds, fastTokens);
        const std::vector<KeywordToken> slowTokens =
            LiteralPass(slow, m_tables, 6, m_bFold, m_bounds);
        bool same = fast == slow && fastTokens.size() == slowTokens.size();
        for (size_t i = 0; same && i < fastTokens.size(); ++i)
            same = fastTokens[i].nStart == slowTokens[i].nStart &&
                   fastTokens[i].nEnd == slowTokens[i].nEnd &&
                   fastTokens[i].nTable == slowTokens[i].nTable;
        EXPECT_TRUE(same) << what << ": \"" << line << "\"";
        return same;
    }

    const char** m_tables[6];
    bool m_bFold = false;
    KeywordBounds m_bounds = KeywordBounds::Sql;
    CKeywordIndex m_index;
};

TEST_F(KeywordOracleTest, GoldenSamples) {
    for (const GoldenSample& sample : kGoldenSamples) {
        Use(sample.setup);
        std::ifstream in(std::string(TEXTZONE_COLOUR_DATA) + "/" + sample.name + ".txt");
        std::string line;
        int lines = 0;
        while (std::getline(in, line)) {
            // As the pass meets it: behind the token pass, with its byte 10s.
            std::string text = line;
            m_zone.TokenPass(text);
            m_zone.FreeColorDefs();
            if (!Agree(text, sample.name)) break;
            ++lines;
        }
        EXPECT_GT(lines, 10) << sample.name;
    }
}

TEST_F(KeywordOracleTest, RandomLines) {
    std::mt19937 random(20261124);
    const char* const pieces[] = {" ", "  ", "\t",   "-",  "#",  "@", "_", ".", "(", ")", ",",
                                  "x", "7",  "\xE9", "\n", "/*", "&", "'", "=", "$", "~", "<"};
    for (const Config& config : kConfigs) {
        Use(config.setup);
        std::vector<const char*> words;
        for (const char** const* t = m_tables; t < m_tables + 6; ++t)
            for (int i = 0; (*t)[i][0]; ++i)
                words.push_back((*t)[i]);
        if (words.empty()) continue;
        for (int round = 0; round < 400; ++round) {
            std::string line;
            const int parts = 1 + static_cast<int>(random() % 24);
            for (int k = 0; k < parts; ++k) {
                if (random() % 2) {
                    std::string w = words[random() % words.size()];
                    // Mixed case, and words cut or glued to their neighbours.
                    if (random() % 4 == 0) w[0] = static_cast<char>(std::toupper(w[0]));
                    if (random() % 6 == 0 && w.size() > 2) w.resize(w.size() - 1);
                    line += w;
                } else {
                    line += pieces[random() % std::size(pieces)];
                }
            }
            if (!Agree(line, config.name)) break;
        }
    }
}

}  // namespace
