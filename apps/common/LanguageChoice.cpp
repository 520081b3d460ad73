#include "apps/common/LanguageChoice.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "colour/TextZoneColor.h"

namespace {

struct Dialect {
    int nDialect;
    unsigned int nId;  // the first id of SetSQLSyntaxColor with that dialect
    const char* pszFamily;
};

constexpr Dialect kDialects[] = {
    {4, 1, "T-SQL"},      {6, 3, "T-SQL"},      {65, 4, "T-SQL"},     {10, 5, "T-SQL"},
    {11, 6, "T-SQL"},     {115, 7, "T-SQL"},    {70, 8, "T-SQL"},     {119, 9, "T-SQL"},
    {80, 10, "T-SQL"},    {12, 11, "T-SQL"},    {125, 12, "T-SQL"},   {90, 14, "T-SQL"},
    {150, 15, "T-SQL"},   {-73, 101, "PL/SQL"}, {-80, 103, "PL/SQL"}, {-81, 104, "PL/SQL"},
    {-90, 105, "PL/SQL"}, {-92, 107, "PL/SQL"}, {-1050, 205, "UDB"},
};

struct ClientRow {
    unsigned int nFirst;
    unsigned int nLast;
    const char* pszName;
};

// The client language ids the component knows, as ranges.
constexpr ClientRow kClients[] = {
    {35, 35, "PowerBuilder"},
    {40, 40, "PowerBuilder"},
    {45, 45, "PowerBuilder"},
    {47, 47, "PowerBuilder"},
    {49, 57, "PowerBuilder"},
    {70, 70, "Visual Basic"},
    {75, 75, "Visual Basic"},
    {80, 80, "Visual Basic"},
    {510, 510, "Visual Basic"},
    {90, 94, "Delphi"},
    {210, 210, "Java"},
    {220, 220, "Java"},
    {230, 230, "Java"},
    {240, 240, "Java"},
    {250, 253, "Java"},
    {270, 270, "C-like (CC tables)"},
    {310, 310, "HTML"},
    {360, 360, "HTML"},
    {810, 810, "HTML"},
    {1030, 1030, "HTML"},
    {410, 410, "Java"},
    {420, 420, "Java"},
    {610, 610, "Server pages"},
    {620, 620, "Server pages"},
    {630, 632, "Server pages"},
    {710, 710, "C/C++"},
    {1300, 1300, "C/C++"},
    {920, 925, "C#"},
    {930, 935, "Visual Basic .NET"},
    {1010, 1010, "COBOL"},
    {1020, 1020, "JCL"},
    {1060, 1060, "IMS"},
    {1090, 1090, "XML"},
    {1120, 1120, "CSD"},
    {1250, 1250, "Objective-C"},
};

struct Extension {
    const char* pszExt;
    CLanguageChoice::Kind kind;
    int nValue;  // a dialect for SQL, else a client language id
};

constexpr Extension kExtensions[] = {
    {"sql", CLanguageChoice::Sql, 150},     {"pls", CLanguageChoice::Sql, -92},
    {"pkb", CLanguageChoice::Sql, -92},     {"c", CLanguageChoice::Client, 1300},
    {"cpp", CLanguageChoice::Client, 1300}, {"cc", CLanguageChoice::Client, 1300},
    {"cxx", CLanguageChoice::Client, 1300}, {"h", CLanguageChoice::Client, 1300},
    {"hpp", CLanguageChoice::Client, 1300}, {"cs", CLanguageChoice::Client, 921},
    {"java", CLanguageChoice::Client, 210}, {"vb", CLanguageChoice::Client, 930},
    {"pas", CLanguageChoice::Client, 90},   {"cbl", CLanguageChoice::Client, 1010},
    {"jcl", CLanguageChoice::Client, 1020}, {"htm", CLanguageChoice::Client, 310},
    {"html", CLanguageChoice::Client, 310}, {"jsp", CLanguageChoice::Client, 610},
    {"asp", CLanguageChoice::Client, 631},  {"xml", CLanguageChoice::Client, 1090},
};

const ClientRow* FindClient(unsigned int nId) {
    for (const ClientRow& c : kClients)
        if (nId >= c.nFirst && nId <= c.nLast) return &c;
    return nullptr;
}

const Dialect* FindDialect(int nDialect) {
    for (const Dialect& d : kDialects)
        if (d.nDialect == nDialect) return &d;
    return nullptr;
}

std::string Lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

bool FromExtension(const std::string& ext, CLanguageChoice* pChoice) {
    const std::string lower = Lower(ext);
    for (const Extension& e : kExtensions) {
        if (lower != e.pszExt) continue;
        if (e.kind == CLanguageChoice::Sql) return CLanguageChoice::FromDialect(e.nValue, pChoice);
        pChoice->m_kind = CLanguageChoice::Client;
        pChoice->m_nId = static_cast<unsigned int>(e.nValue);
        return true;
    }
    return false;
}

}  // namespace

CLanguageChoice CLanguageChoice::ForPath(const std::string& path) {
    CLanguageChoice choice;
    const size_t slash = path.find_last_of('/');
    const size_t dot = path.find_last_of('.');
    if (dot != std::string::npos && (slash == std::string::npos || dot > slash))
        FromExtension(path.substr(dot + 1), &choice);
    return choice;
}

bool CLanguageChoice::FromArgument(const std::string& arg, CLanguageChoice* pChoice) {
    if (arg.empty()) return false;
    if (std::all_of(arg.begin(), arg.end(), [](unsigned char c) { return std::isdigit(c); })) {
        const unsigned long nId = std::strtoul(arg.c_str(), nullptr, 10);
        if (nId > 0xFFFFFFFFul || !FindClient(static_cast<unsigned int>(nId))) return false;
        *pChoice = CLanguageChoice();
        pChoice->m_kind = Client;
        pChoice->m_nId = static_cast<unsigned int>(nId);
        return true;
    }
    CLanguageChoice choice;
    if (!FromExtension(arg, &choice)) return false;
    *pChoice = choice;
    return true;
}

bool CLanguageChoice::FromDialect(int nDialect, CLanguageChoice* pChoice) {
    const Dialect* pDialect = FindDialect(nDialect);
    if (!pDialect) return false;
    *pChoice = CLanguageChoice();
    pChoice->m_kind = Sql;
    pChoice->m_nId = pDialect->nId;
    pChoice->m_nDialect = nDialect;
    return true;
}

void CLanguageChoice::Apply(CTextZoneColor& zone) const {
    switch (m_kind) {
        case Sql:
            zone.SetSQLSyntaxColor(m_nId);
            break;
        case Client:
            zone.SetClientLanguageSyntaxColor(m_nId);
            break;
        case None:
            // An id no language has turns colouring off.
            zone.SetClientLanguageSyntaxColor(0);
            break;
    }
}

std::string CLanguageChoice::Name() const {
    if (m_kind == Sql) {
        const Dialect* pDialect = FindDialect(m_nDialect);
        return std::string(pDialect ? pDialect->pszFamily : "SQL") + " (dialect " +
               std::to_string(m_nDialect) + ")";
    }
    if (m_kind == Client) {
        const ClientRow* pClient = FindClient(m_nId);
        return pClient ? pClient->pszName : "language " + std::to_string(m_nId);
    }
    return "plain text";
}
