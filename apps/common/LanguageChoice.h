// Which colouring a file gets in the demo and the render tool: by its
// extension, by a language id of SetClientLanguageSyntaxColor, or by a SQL
// dialect number. The ids are the component's; the names are the hosts'.
#pragma once

#include <string>

class CTextZoneColor;

class CLanguageChoice {
public:
    enum Kind { None, Sql, Client };

    // From a file name's extension (".sql", ".cpp", ...), in any case; none
    // for an extension without a language.
    static CLanguageChoice ForPath(const std::string& path);
    // "--lang": a language id of SetClientLanguageSyntaxColor, or an
    // extension name without its dot ("sql", "java"). False for anything
    // else, and for an id the component does not know.
    static bool FromArgument(const std::string& arg, CLanguageChoice* pChoice);
    // "--dialect": a SQL dialect number (150, 90, -92 for PL/SQL, -1050 for
    // UDB, ...). False for a number without a dialect.
    static bool FromDialect(int nDialect, CLanguageChoice* pChoice);

    // Switches the zone to this language; with none, colouring goes off.
    void Apply(CTextZoneColor& zone) const;
    // "T-SQL (dialect 150)", "Java", "plain text".
    std::string Name() const;

    Kind m_kind = None;
    unsigned int m_nId = 0;  // the id passed to the zone's language switch
    int m_nDialect = 0;      // for SQL
};
