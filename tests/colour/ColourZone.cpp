#include "ColourZone.h"

#include <cstdio>

namespace {

const char* const kNames[9] = {"Comment",  "KeyWord1", "KeyWord2", "KeyWord3", "KeyWord4",
                               "KeyWord5", "KeyWord6", "String",   "Variable"};

}  // namespace

std::string ClassName(COLORREF cr) {
    if (cr == kTestTextColor) return "Text";
    for (unsigned int c = 1; c <= 9; ++c)
        if (cr == TestClassColor(c)) return kNames[c - 1];
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "#%06X", cr);
    return buffer;
}

void ColourTest::SetUp() {
    ZoneWindowTest::SetUp();
    for (unsigned int c = 1; c <= 9; ++c)
        m_zone.SetSyntaxColor(c, TestClassColor(c));
    m_zone.SetColors(kTestTextColor, 0xFFFFFF, 0xFFFFFF, 0x800000);
}

void ColourTest::Attach(CTextZoneColor& zone) {
    PutZoneInWindow(zone, m_wnd, m_font);
}

std::string ColourTest::Runs(int nLine) {
    m_zone.DefineColors(nLine, m_zone.GetLine(nLine));
    return TakeRuns();
}

std::string ColourTest::TakeRuns() {
    std::string out;
    for (const auto& def : m_zone.m_colorDefs) {
        if (!out.empty()) out += ", ";
        out += std::to_string(def->nPos) + " " + ClassName(def->crColor);
    }
    m_zone.FreeColorDefs();
    return out;
}

std::vector<unsigned int> ColourTest::States(const char* pszText) {
    m_zone.SetText(pszText);
    std::vector<unsigned int> states;
    for (int n = 0; m_zone.GetLine(n); ++n)
        states.push_back(m_zone.StartWithWhat(n));
    return states;
}

std::string ColourTest::RunsOf(const char* pszText, int nLine) {
    m_zone.SetText(pszText);
    return Runs(nLine);
}

std::string ColourTest::Dump() {
    std::string out;
    for (int n = 0; CStringEx* pLine = m_zone.GetLine(n); ++n) {
        std::string text(pLine->c_str(),
                         static_cast<size_t>(pLine->GetLength() - pLine->IsEnded()));
        out += std::to_string(n + 1) + ": " + text + "\n";
        m_zone.DefineColors(n, pLine);
        const auto& defs = m_zone.m_colorDefs;
        for (size_t i = 0; i < defs.size(); ++i) {
            const int from = defs[i]->nPos;
            const int to = i + 1 < defs.size() ? defs[i + 1]->nPos : static_cast<int>(text.size());
            std::string piece =
                from < to && from < static_cast<int>(text.size())
                    ? text.substr(static_cast<size_t>(from), static_cast<size_t>(to - from))
                    : std::string();
            out += "    " + std::to_string(from) + " " + ClassName(defs[i]->crColor) + " |" +
                   piece + "|\n";
        }
        m_zone.FreeColorDefs();
    }
    return out;
}
