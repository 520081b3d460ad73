// The golden samples: a file name in the test data and how to set the zone
// up for its language.
#pragma once

#include "colour/TextZoneColor.h"

struct GoldenSample {
    const char* name;
    void (*setup)(CTextZoneColor& zone);
};

inline const GoldenSample kGoldenSamples[] = {
    {"tsql4", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(1); }},
    {"tsql65", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(4); }},
    {"tsql90", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(14); }},
    {"plsql", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(105); }},
    {"udb", [](CTextZoneColor& z) { z.SetSQLSyntaxColor(205); }},
    {"cpp", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1300); }},
    {"csharp", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(921); }},
    {"java", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(210); }},
    {"objc", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1250); }},
    {"vb", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(70); }},
    {"vbnet", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(930); }},
    {"powerbuilder", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(50); }},
    {"delphi", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(90); }},
    {"cobol", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1010); }},
    {"jcl", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1020); }},
    {"html", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(310); }},
    {"jsp", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(610); }},
    {"asp", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(631); }},
    {"xml", [](CTextZoneColor& z) { z.SetClientLanguageSyntaxColor(1090); }},
};
