// Keyword tables: PL/SQL, version by version.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordORA1[] = {
    "abort", "accept", "array", "asc", "assert", "assign", "authorization", "begin", "body",
    "case", "char_base", "close", "colauth", "constant", "crash", "cursor", "data_base", "dba",
    "debugoff", "debugon", "declare", "definition", "delay", "delta", "desc", "digits",
    "dispose", "do", "else", "elsif", "end", "entry", "errors", "exception", "exception_init",
    "exit", "false", "fetch", "for", "form", "function", "generic", "goto", "if", "indicator",
    "limited", "loop", "open", "others", "out", "package", "pragma", "procedure", "raise",
    "range", "record", "release", "return", "reverse", "rowtype", "run", "savepoint", "schema",
    "separate", "show", "space", "sql", "sqlcode", "sqlerrm", "statement", "subtype", "tabauth",
    "task", "terminate", "then", "true", "type", "use", "when", "while", "work", "",
};

const char* szKeyWordORA2[] = {
    "binary_integer", "boolean", "char", "character", "date", "dec", "decimal", "double",
    "float", "int", "integer", "long", "natural", "naturaln", "number", "numeric", "positive",
    "positiven", "precision", "raw", "real", "rowid", "smallint", "string", "varchar",
    "varchar2", "",
};

const char* szKeyWordORA3[] = {
    "add", "after", "alter", "as", "at", "audit", "before", "by", "cascade", "check", "cluster",
    "column", "comment", "commit", "compile", "compress", "connect", "constraint", "create",
    "current", "database", "default", "delete", "disable", "drop", "each", "enable",
    "exceptions", "exclusive", "execute", "file", "foreign", "from", "grant", "group", "having",
    "identified", "immediate", "increment", "index", "initial", "initrans", "insert", "into",
    "key", "level", "link", "lock", "maxextents", "maxtrans", "minextents", "mode", "modify",
    "new", "next", "noaudit", "nocompress", "nowait", "of", "offline", "old", "on", "online",
    "option", "order", "pctfree", "pctincrease", "pctused", "primary", "private", "privileges",
    "public", "quota", "references", "referencing", "rename", "replace", "resource", "revoke",
    "rollback", "row", "rowlabel", "rownum", "rows", "select", "sequence", "session", "set",
    "share", "size", "start", "storage", "successful", "synonym", "table", "tablespace",
    "temporary", "to", "trigger", "unique", "update", "validate", "values", "view", "whenever",
    "where", "with", "",
};

const char* szKeyWordORA4[] = {
    "abs", "acos", "add_months", "ascii", "asin", "atan", "atan2", "ceil", "chartorowid", "chr",
    "concat", "convert", "cos", "cosh", "exp", "floor", "glb", "greatest", "greatest_lb",
    "hextoraw", "initcap", "instr", "instrb", "isopen", "last_day", "least", "least_ub",
    "length", "lengthb", "ln", "log", "lower", "lpad", "ltrim", "lub", "mod", "months_between",
    "new_time", "next_day", "nls_initcap", "nls_lower", "nls_upper", "nlssort", "notfound",
    "nvl", "power", "rawtohex", "replace", "round", "rowidtochar", "rpad", "rtrim", "sign",
    "sin", "sinh", "soundex", "sqrt", "stddev", "substr", "substrb", "sysdate", "tan", "tanh",
    "to_char", "to_date", "to_label", "to_multi_byte", "to_number", "to_single_byte",
    "translate", "trunc", "uid", "upper", "user", "userenv", "vsize", "",
};

const char* szKeyWordORA5[] = {
    "all", "and", "any", "between", "distinct", "exists", "in", "intersect", "is", "like",
    "minus", "not", "null", "or", "prior", "some", "union", "xor", "",
};

const char* szKeyWordORA6[] = {
    "access", "admin", "allocate", "analyze", "archive", "archivelog", "arraylen", "avg",
    "backup", "base_table", "become", "block", "cache", "cancel", "change", "checkpoint",
    "clusters", "cobol", "committed", "constraints", "contents", "continue", "controlfile",
    "count", "currval", "cycle", "datafile", "date_base", "dismount", "dump", "escape",
    "events", "except", "exec", "explain", "extent", "externally", "flush", "force", "fortran",
    "found", "freelist", "freelists", "go", "groups", "including", "indexes", "instance",
    "interface", "isolation", "language", "layer", "lists", "logfile", "manage", "manual",
    "max", "maxdatafiles", "maxinstances", "maxlogfiles", "maxloghistory", "maxlogmembers",
    "maxvalue", "min", "minvalue", "mlslabel", "module", "mount", "nextval", "noarchivelog",
    "nocache", "nocycle", "noforce", "nomaxvalue", "nominvalue", "none", "noorder",
    "noresetlogs", "normal", "nosort", "number_base", "off", "only", "optimal", "own",
    "parallel", "partition", "pascal", "plan", "pli", "pls_integer", "profile", "read",
    "recover", "ref", "remr", "renames", "resetlogs", "restricted", "reuse", "role", "roles",
    "rowcount", "scn", "section", "segment", "serializable", "shared", "snapshot", "sort",
    "sqlerror", "sqlstate", "statement_id", "statistics", "stop", "sum", "switch", "system",
    "tables", "thread", "time", "tracing", "transaction", "triggers", "truncate", "under",
    "unlimited", "until", "using", "variance", "views", "write", "",
};

const char* szKeyWordORA8_1[] = {
    "abort", "accept", "array", "asc", "assert", "assign", "authorization", "begin", "body",
    "case", "char_base", "close", "colauth", "constant", "crash", "cursor", "data_base", "dba",
    "debugoff", "debugon", "declare", "definition", "delay", "delta", "desc", "digits",
    "dispose", "do", "else", "elsif", "end", "entry", "errors", "exception", "exception_init",
    "exit", "false", "fetch", "for", "form", "function", "generic", "goto", "if", "indicator",
    "limited", "loop", "open", "others", "out", "package", "pragma", "procedure", "raise",
    "range", "record", "release", "return", "reverse", "rowtype", "run", "savepoint", "schema",
    "separate", "show", "space", "sql", "sqlcode", "sqlerrm", "statement", "subtype", "tabauth",
    "task", "terminate", "then", "true", "type", "use", "when", "while", "work", "",
};

const char* szKeyWordORA8_2[] = {
    "binary_integer", "boolean", "char", "character", "date", "dec", "decimal", "double",
    "float", "int", "integer", "long", "natural", "naturaln", "number", "numeric", "positive",
    "positiven", "precision", "raw", "real", "rowid", "smallint", "string", "varchar",
    "varchar2", "",
};

const char* szKeyWordORA8_3[] = {
    "add", "after", "alter", "as", "at", "audit", "before", "by", "cascade", "check", "cluster",
    "column", "comment", "commit", "compile", "compress", "connect", "constraint", "create",
    "current", "database", "default", "delete", "disable", "drop", "each", "enable",
    "exceptions", "exclusive", "execute", "file", "foreign", "from", "grant", "group", "having",
    "identified", "immediate", "increment", "index", "initial", "initrans", "insert", "into",
    "key", "level", "link", "lock", "maxextents", "maxtrans", "minextents", "mode", "modify",
    "new", "next", "noaudit", "nocompress", "nowait", "of", "offline", "old", "on", "online",
    "option", "order", "pctfree", "pctincrease", "pctused", "primary", "private", "privileges",
    "public", "quota", "references", "referencing", "rename", "replace", "resource", "revoke",
    "rollback", "row", "rowlabel", "rownum", "rows", "select", "sequence", "session", "set",
    "share", "size", "start", "storage", "successful", "synonym", "table", "tablespace",
    "temporary", "to", "trigger", "unique", "update", "validate", "values", "varray", "varying",
    "view", "whenever", "where", "with", "",
};

const char* szKeyWordORA8_4[] = {
    "abs", "acos", "add_months", "ascii", "asin", "atan", "atan2", "ceil", "chartorowid", "chr",
    "concat", "convert", "cos", "cosh", "exp", "floor", "glb", "greatest", "greatest_lb",
    "hextoraw", "initcap", "instr", "instrb", "isopen", "last_day", "least", "least_ub",
    "length", "lengthb", "ln", "log", "lower", "lpad", "ltrim", "lub", "mod", "months_between",
    "new_time", "next_day", "nls_initcap", "nls_lower", "nls_upper", "nlssort", "notfound",
    "nvl", "power", "rawtohex", "replace", "round", "rowidtochar", "rpad", "rtrim", "sign",
    "sin", "sinh", "soundex", "sqrt", "stddev", "substr", "substrb", "sysdate", "tan", "tanh",
    "to_char", "to_date", "to_label", "to_multi_byte", "to_number", "to_single_byte",
    "translate", "trunc", "uid", "upper", "user", "userenv", "vsize", "",
};

const char* szKeyWordORA8_5[] = {
    "all", "and", "any", "between", "distinct", "exists", "in", "intersect", "is", "like",
    "minus", "not", "null", "or", "prior", "some", "union", "xor", "",
};

const char* szKeyWordORA8_6[] = {
    "access", "admin", "allocate", "analyze", "archive", "archivelog", "arraylen", "avg",
    "backup", "base_table", "become", "bfile_base", "blob_base", "block", "cache", "calling",
    "cancel", "cfile_base", "change", "charset", "charsetform", "charsetid", "checkpoint",
    "clob_base", "clusters", "cobol", "committed", "constraints", "contents", "context",
    "continue", "controlfile", "count", "currval", "cycle", "datafile", "date_base", "dismount",
    "dump", "duration", "escape", "events", "except", "exec", "explain", "extent", "external",
    "externally", "fixed", "flush", "force", "fortran", "found", "freelist", "freelists",
    "general", "go", "groups", "including", "indexes", "instance", "instead", "interface",
    "isolation", "language", "layer", "library", "lists", "logfile", "manage", "manual", "max",
    "maxdatafiles", "maxinstances", "maxlen", "maxlogfiles", "maxloghistory", "maxlogmembers",
    "maxvalue", "min", "minvalue", "mlslabel", "module", "mount", "name", "native", "nextval",
    "noarchivelog", "nocache", "nocycle", "noforce", "nomaxvalue", "nominvalue", "none",
    "noorder", "noresetlogs", "normal", "nosort", "number_base", "off", "only", "optimal",
    "own", "parallel", "parameter", "parameters", "partition", "pascal", "plan", "pli",
    "pls_integer", "profile", "read", "recover", "ref", "reference", "remr", "renames",
    "resetlogs", "restricted", "returning", "reuse", "role", "roles", "rowcount", "scn",
    "section", "segment", "serializable", "shared", "snapshot", "sort", "sqlerror", "sqlstate",
    "statement_id", "statistics", "stop", "sum", "switch", "system", "tables", "thread", "time",
    "tracing", "transaction", "triggers", "truncate", "under", "unlimited", "until", "using",
    "value", "variance", "views", "write", "",
};

const char* szKeyWordORA81_1[] = {
    "abort", "accept", "array", "asc", "assert", "assign", "authorization", "begin", "body",
    "case", "char_base", "close", "colauth", "constant", "crash", "cursor", "data_base", "dba",
    "debugoff", "debugon", "declare", "definition", "delay", "delta", "desc", "digits",
    "dispose", "do", "else", "elsif", "end", "entry", "errors", "exception", "exception_init",
    "exit", "false", "fetch", "for", "form", "function", "generic", "goto", "if", "indicator",
    "limited", "loop", "open", "others", "out", "package", "pragma", "procedure", "raise",
    "range", "record", "release", "return", "reverse", "rowtype", "run", "savepoint", "schema",
    "separate", "show", "space", "sql", "sqlcode", "sqlerrm", "statement", "subtype", "tabauth",
    "task", "terminate", "then", "true", "type", "use", "when", "while", "work", "",
};

const char* szKeyWordORA81_2[] = {
    "binary_integer", "boolean", "char", "character", "date", "dec", "decimal", "double",
    "float", "int", "integer", "long", "national", "natural", "naturaln", "nchar", "number",
    "numeric", "positive", "positiven", "precision", "raw", "real", "rowid", "smallint",
    "string", "timestamp", "varchar", "varchar2", "",
};

const char* szKeyWordORA81_3[] = {
    "add", "after", "alter", "as", "at", "audit", "before", "by", "cascade", "check", "cluster",
    "column", "comment", "commit", "compile", "compress", "connect", "constraint", "create",
    "current", "database", "default", "delete", "disable", "drop", "each", "enable",
    "exceptions", "exclusive", "execute", "file", "foreign", "from", "grant", "group", "having",
    "identified", "immediate", "increment", "index", "initial", "initrans", "insert", "into",
    "key", "level", "link", "lock", "maxextents", "maxtrans", "minextents", "mode", "modify",
    "new", "next", "noaudit", "nocompress", "nowait", "of", "offline", "old", "on", "online",
    "option", "order", "pctfree", "pctincrease", "pctused", "primary", "private", "privileges",
    "public", "quota", "references", "referencing", "rename", "replace", "resource", "revoke",
    "rollback", "row", "rowlabel", "rownum", "rows", "select", "sequence", "session", "set",
    "share", "size", "start", "storage", "successful", "synonym", "table", "tablespace",
    "temporary", "to", "trigger", "unique", "update", "validate", "values", "varray", "varying",
    "view", "whenever", "where", "with", "",
};

const char* szKeyWordORA81_4[] = {
    "abs", "acos", "add_months", "ascii", "asin", "atan", "atan2", "authid", "cast", "ceil",
    "chartorowid", "chr", "concat", "convert", "cos", "cosh", "current_user", "decode", "exp",
    "floor", "glb", "greatest", "greatest_lb", "hextoraw", "initcap", "instr", "instrb",
    "isopen", "last_day", "least", "least_ub", "length", "lengthb", "ln", "log", "lower",
    "lpad", "ltrim", "lub", "mod", "months_between", "new_time", "next_day", "nls_initcap",
    "nls_lower", "nls_upper", "nlssort", "notfound", "nvl", "power", "rawtohex", "replace",
    "round", "rowidtochar", "rpad", "rtrim", "sign", "sin", "sinh", "soundex", "sqrt", "stddev",
    "substr", "substrb", "sysdate", "tan", "tanh", "to_char", "to_date", "to_label",
    "to_multi_byte", "to_number", "to_single_byte", "translate", "trunc", "uid", "upper",
    "user", "userenv", "vsize", "",
};

const char* szKeyWordORA81_5[] = {
    "all", "and", "any", "between", "bulk", "cube", "distinct", "exists", "in", "intersect",
    "is", "like", "minus", "not", "null", "or", "prior", "rollup", "some", "union", "xor", "",
};

const char* szKeyWordORA81_6[] = {
    "access", "admin", "allocate", "analyze", "archive", "archivelog", "arraylen", "avg",
    "backup", "base_table", "become", "bfile_base", "blob_base", "block", "cache", "call",
    "calling", "cancel", "cfile_base", "change", "charset", "charsetform", "charsetid",
    "checkpoint", "clob_base", "clusters", "cobol", "collect", "committed", "constraints",
    "contents", "context", "continue", "controlfile", "count", "currval", "cycle", "datafile",
    "date_base", "day", "definer", "deterministic", "dismount", "dump", "duration", "escape",
    "events", "except", "exec", "explain", "extent", "external", "externally", "fixed", "flush",
    "forall", "force", "fortran", "found", "freelist", "freelists", "general", "go", "grouping",
    "groups", "identifier", "including", "indexes", "instance", "instead", "interface",
    "interval", "isolation", "java", "language", "layer", "library", "lists", "logfile",
    "manage", "manual", "map", "max", "maxdatafiles", "maxinstances", "maxlen", "maxlogfiles",
    "maxloghistory", "maxlogmembers", "maxvalue", "member", "min", "minvalue", "mlslabel",
    "module", "month", "mount", "multiset", "name", "native", "nested", "nextval",
    "noarchivelog", "nocache", "nocopy", "nocycle", "noforce", "nomaxvalue", "nominvalue",
    "none", "noorder", "noresetlogs", "normal", "nosort", "number_base", "object", "off",
    "only", "optimal", "own", "parallel", "parallel_enable", "parameter", "parameters",
    "parent", "partition", "pascal", "plan", "pli", "pls_integer", "profile", "read", "recover",
    "ref", "reference", "remr", "renames", "resetlogs", "restricted", "returning", "reuse",
    "role", "roles", "rowcount", "scn", "second", "section", "segment", "serializable",
    "shared", "snapshot", "sort", "sqlerror", "sqlstate", "statement_id", "statistics", "stop",
    "subpartition", "sum", "switch", "system", "tables", "thread", "time", "tracing",
    "transaction", "triggers", "truncate", "under", "unlimited", "until", "using", "value",
    "variance", "views", "write", "year", "zone", "",
};

const char* szKeyWordORA90_4[] = {
    "abs", "acos", "add_months", "ascii", "asciistr", "asin", "atan", "atan2", "authid",
    "bin_to_num", "cast", "ceil", "chartorowid", "chr", "coalesce", "compose", "concat",
    "convert", "cos", "cosh", "current_date", "current_timestamp", "current_user", "dbtimezone",
    "decode", "decompose", "existsnode", "exp", "extract", "first", "floor", "from_tz", "glb",
    "greatest", "greatest_lb", "group_id", "grouping_id", "hextoraw", "initcap", "instr",
    "instrb", "isopen", "last", "last_day", "least", "least_ub", "length", "lengthb", "ln",
    "localtimestamp", "log", "lower", "lpad", "ltrim", "lub", "mod", "months_between",
    "new_time", "next_day", "nls_initcap", "nls_lower", "nls_upper", "nlssort", "notfound",
    "nullif", "nvl", "percentile_cont", "percentile_disc", "power", "rawtohex", "rawtonhex",
    "replace", "round", "rowidtochar", "rowidtonchar", "rpad", "rtrim", "sessiontimezone",
    "sign", "sin", "sinh", "soundex", "sqrt", "stddev", "substr", "substrb",
    "sys_connect_by_path", "sys_dburigen", "sys_extract_utc", "sys_xmlagg", "sys_xmlgen",
    "sysdate", "systimestamp", "tan", "tanh", "to_char", "to_clob", "to_date", "to_dsinterval",
    "to_label", "to_multi_byte", "to_nchar", "to_nclob", "to_number", "to_single_byte",
    "to_timestamp", "to_timestamp_tz", "to_yminterval", "translate", "treat", "trunc",
    "tz_offset", "uid", "unistr", "upper", "user", "userenv", "vsize", "width_bucket", "",
};

const char* szKeyWordORA90_6[] = {
    "access", "admin", "allocate", "analyze", "archive", "archivelog", "arraylen", "avg",
    "backup", "base_table", "become", "bfile_base", "blob_base", "block", "byte", "cache",
    "call", "calling", "cancel", "cfile_base", "change", "charset", "charsetform", "charsetid",
    "checkpoint", "clob_base", "clusters", "cobol", "collect", "committed", "constraints",
    "contents", "context", "continue", "controlfile", "count", "cross", "currval", "cycle",
    "datafile", "date_base", "day", "definer", "deterministic", "dismount", "dump", "duration",
    "escape", "events", "except", "exec", "explain", "extent", "external", "externally",
    "fixed", "flush", "forall", "force", "fortran", "found", "freelist", "freelists", "general",
    "go", "grouping", "groups", "hour", "identifier", "including", "indexes", "inner",
    "instance", "instead", "interface", "interval", "isolation", "java", "join", "language",
    "layer", "left", "library", "limit", "lists", "local", "logfile", "manage", "manual", "map",
    "max", "maxdatafiles", "maxinstances", "maxlen", "maxlogfiles", "maxloghistory",
    "maxlogmembers", "maxvalue", "member", "merge", "min", "minute", "minvalue", "mlslabel",
    "module", "month", "mount", "multiset", "name", "native", "nested", "nextval",
    "noarchivelog", "nocache", "nocopy", "nocycle", "noforce", "nomaxvalue", "nominvalue",
    "none", "noorder", "noresetlogs", "normal", "nosort", "number_base", "object", "off",
    "only", "optimal", "outer", "own", "parallel", "parallel_enable", "parameter", "parameters",
    "parent", "partition", "pascal", "plan", "pli", "pls_integer", "profile", "read", "recover",
    "ref", "reference", "remr", "renames", "resetlogs", "restricted", "returning", "reuse",
    "right", "role", "roles", "rowcount", "scn", "second", "section", "segment", "serializable",
    "shared", "siblings", "snapshot", "sort", "sqlerror", "sqlstate", "statement_id",
    "statistics", "stop", "subpartition", "sum", "switch", "system", "tables", "thread", "time",
    "tracing", "transaction", "triggers", "truncate", "under", "unlimited", "until", "using",
    "value", "variance", "views", "write", "year", "zone", "",
};
