// Keyword tables: T-SQL built-in functions and minor keywords, dialect by dialect.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordSQL4_4[] = {
    "abs", "acos", "ascii", "asin", "atan", "atn2", "ceiling", "char_length", "charindex",
    "col_length", "col_name", "convert", "cos", "cot", "data_pgs", "datalength", "dateadd",
    "datediff", "datename", "datepart", "db_id", "db_name", "degrees", "difference", "exp",
    "floor", "getdate", "host_id", "host_name", "index_col", "isnull", "log", "log10", "lower",
    "ltrim", "object_id", "object_name", "patindex", "pi", "power", "radians", "rand",
    "replicate", "reserved_pgs", "reverse", "right", "round", "rowcnt", "rtrim", "sign", "sin",
    "soundex", "space", "sqrt", "str", "stuff", "substring", "suser_id", "suser_name", "tan",
    "textptr", "textvalid", "upper", "used_pgs", "user", "user_id", "user_name", "valid_name",
    "",
};

const char* szKeyWordSQL4_6[] = {
    "abs", "acos", "ascii", "asin", "atan", "atn2", "ceiling", "charindex", "coalesce",
    "col_length", "col_name", "convert", "cos", "cot", "current_timestamp", "current_user",
    "datalength", "dateadd", "datediff", "datename", "datepart", "db_id", "db_name", "degrees",
    "difference", "exp", "floor", "getansinull", "getdate", "host_id", "host_name",
    "ident_incr", "ident_seed", "index_col", "isdate", "isnull", "isnumeric", "log", "log10",
    "lower", "ltrim", "nullif", "object_id", "object_name", "patindex", "pi", "power",
    "radians", "rand", "replicate", "reverse", "right", "round", "rtrim", "session_user",
    "sign", "sin", "soundex", "space", "sqrt", "stats_date", "str", "stuff", "substring",
    "suser_id", "suser_name", "system_user", "tan", "textptr", "textvalid", "upper", "user_id",
    "user_name", "",
};

const char* szKeyWordSQL4_65[] = {
    "abs", "acos", "ascii", "asin", "atan", "atn2", "ceiling", "charindex", "coalesce",
    "col_length", "col_name", "convert", "cos", "cot", "current_timestamp", "current_user",
    "datalength", "dateadd", "datediff", "datename", "datepart", "db_id", "db_name", "degrees",
    "difference", "exp", "floor", "getansinull", "getdate", "host_id", "host_name",
    "ident_incr", "ident_seed", "index_col", "isdate", "isnull", "isnumeric", "log", "log10",
    "lower", "ltrim", "nullif", "object_id", "object_name", "patindex", "pi", "power",
    "radians", "rand", "replicate", "reverse", "round", "rtrim", "session_user", "sign", "sin",
    "soundex", "space", "sqrt", "stats_date", "str", "stuff", "substring", "suser_id",
    "suser_name", "system_user", "tan", "textptr", "textvalid", "upper", "user_id", "user_name",
    "",
};

const char* szKeyWordSQL4_70[] = {
    "abs", "acos", "app_name", "ascii", "asin", "atan", "atn2", "ceiling", "charindex",
    "coalesce", "col_length", "col_name", "columnproperty", "containstable", "convert", "cos",
    "cot", "current_timestamp", "current_user", "cursor_status", "databaseproperty",
    "datalength", "dateadd", "datediff", "datename", "datepart", "day", "db_id", "db_name",
    "degrees", "difference", "exp", "file_id", "file_name", "filegroup_id", "filegroup_name",
    "filegroupproperty", "fileproperty", "floor", "formatmessage", "freetexttable",
    "fulltextcatalogproperty", "fulltextserviceproperty", "getansinull", "getdate", "host_id",
    "host_name", "ident_incr", "ident_seed", "index_col", "indexproperty", "is_member",
    "is_srvrolemember", "isdate", "isnull", "isnumeric", "len", "log", "log10", "lower",
    "ltrim", "month", "newid", "nullif", "object_id", "object_name", "objectproperty",
    "openquery", "openrowset", "parsename", "patindex", "permissions", "pi", "power",
    "quotename", "radians", "rand", "replicate", "reverse", "round", "rtrim", "session_user",
    "sign", "sin", "soundex", "space", "square", "sqrt", "stats_date", "stdev", "stdevp", "str",
    "stuff", "substring", "suser_id", "suser_name", "suser_sid", "suser_sname", "system_user",
    "tan", "textptr", "textvalid", "trigger_nestlevel", "typeproperty", "unicode", "upper",
    "user_id", "user_name", "var", "varp", "year", "",
};

const char* szKeyWordSQL4_10[] = {
    "abs", "acos", "ascii", "asin", "atan", "atn2", "ceiling", "char_length", "charindex",
    "col_length", "col_name", "convert", "cos", "cot", "data_pgs", "datalength", "dateadd",
    "datediff", "datename", "datepart", "db_id", "db_name", "degrees", "difference", "exp",
    "floor", "getdate", "host_id", "host_name", "index_col", "isnull", "log", "log10", "lower",
    "ltrim", "object_id", "object_name", "patindex", "pi", "power", "radians", "rand",
    "replicate", "reserved_pgs", "reverse", "right", "round", "rowcnt", "rtrim", "sign", "sin",
    "soundex", "space", "sqrt", "str", "stuff", "substring", "suser_id", "suser_name", "tan",
    "textptr", "textvalid", "upper", "used_pgs", "user", "user_id", "user_name", "valid_name",
    "",
};

const char* szKeyWordSQL4_125[] = {
    "abs", "acos", "ascii", "asin", "atan", "atn2", "ceiling", "char_length", "charindex",
    "col_length", "col_name", "convert", "cos", "cot", "data_pgs", "datalength", "dateadd",
    "datediff", "datename", "datepart", "db_id", "db_name", "degrees", "difference", "exp",
    "floor", "getdate", "host_id", "host_name", "index_col", "isnull", "lockscheme", "log",
    "log10", "lower", "ltrim", "object_id", "object_name", "pagesize", "patindex", "pi",
    "power", "radians", "rand", "replicate", "reserved_pgs", "reverse", "right", "round",
    "rowcnt", "rtrim", "sign", "sin", "soundex", "space", "sqrt", "str", "stuff", "substring",
    "suser_id", "suser_name", "tan", "textptr", "textvalid", "upper", "used_pgs", "user",
    "user_id", "user_name", "valid_name", "",
};

const char* szKeyWordSQL4_150[] = {
    "abs", "acos", "ascii", "asin", "atan", "atn2", "avg", "audit_event_name", "biginttohex",
    "case", "cast", "ceiling", "char", "char_length", "charindex", "coalesce", "col_length",
    "col_name", "compare", "convert", "cos", "cot", "count", "count_big", "current_date",
    "current_time", "curunreservedpgs", "data_pages", "datachange", "datalength", "dateadd",
    "datediff", "datename", "datepart", "day", "db_id", "db_name", "degrees", "derived_stat",
    "difference", "exp", "floor", "get_appcontext", "getdate", "getutcdate", "has_role",
    "hextobigint", "hextoint", "host_id", "host_name", "identity_burn_max", "index_col",
    "index_colorder", "inttohex", "is_quiesced", "is_sec_service_on", "isnull", "lct_admin",
    "left", "len", "license_enabled", "list_appcontext", "lockscheme", "log", "log10", "lower",
    "ltrim", "max", "min", "month", "mut_excl_roles", "newid", "next_identity", "nullif",
    "object_id", "object_name", "pagesize", "partition_id", "partition_name", "patindex", "pi",
    "power", "proc_role", "radians", "rand", "replicate", "reserved_pages", "reverse", "right",
    "rm_appcontext", "role_contain", "role_id", "role_name", "round", "row_count", "rtrim",
    "set_appcontext", "show_role", "show_sec_services", "sign", "sin", "sortkey", "soundex",
    "space", "square", "sqrt", "str", "str_replace", "stuff", "substring", "sum", "suser_id",
    "suser_name", "syb_quit", "syb_sendmsg", "tan", "tempdb_id", "textptr", "textvalid",
    "to_unichar", "tran_dumptable_status", "tsequal", "uhighsurr", "ulowsurr", "upper",
    "uscalar", "used_pages", "user", "user_id", "user_name", "valid_name", "valid_user", "year",
    "",
};

const char* szKeyWordSQL5_4[] = {
    "bulk", "char_convert", "controlrow", "dummy", "errlvl", "except", "exit", "intersect",
    "lineno", "once", "over", "perm", "permanent", "plan", "syb_terminate", "temp", "temporary",
    "using", "",
};

const char* szKeyWordSQL5_6[] = {
    "case", "check", "close", "constraint", "controlrow", "current", "current_date",
    "current_time", "cursor", "deallocate", "double", "dummy", "errlvl", "except", "exit",
    "fetch", "floppy", "foreign", "identity", "identity_insert", "identitycol", "insensitive",
    "intersect", "isolation", "key", "level", "lineno", "nocheck", "of", "only", "open",
    "option", "over", "perm", "permanent", "pipe", "plan", "precision", "primary", "read",
    "references", "repeatable", "replication", "scroll", "serializable", "session_user", "some",
    "tape", "temp", "temporary", "then", "updatetext", "user", "varying", "when", "",
};

const char* szKeyWordSQL5_65[] = {
    "authorization", "cascade", "case", "check", "close", "constraint", "controlrow", "cross",
    "cube", "current", "current_date", "current_time", "cursor", "deallocate", "distributed",
    "double", "dummy", "errlvl", "escape", "except", "exit", "fetch", "floppy", "foreign",
    "full", "identity", "identity_insert", "identitycol", "inner", "insensitive", "intersect",
    "isolation", "join", "key", "left", "level", "lineno", "nocheck", "of", "only", "open",
    "option", "outer", "over", "perm", "permanent", "pipe", "plan", "precision", "primary",
    "privileges", "read", "references", "repeatable", "replication", "restrict", "right",
    "rollup", "schema", "scroll", "serializable", "session_user", "some", "tape", "temp",
    "temporary", "then", "uncommitted", "updatetext", "user", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_70[] = {
    "authorization", "backup", "bulk", "cascade", "case", "cast", "check", "close",
    "columns_updated", "constraint", "contains", "controlrow", "cross", "cube", "current",
    "current_date", "current_time", "cursor", "deallocate", "deny", "distributed", "double",
    "dummy", "errlvl", "escape", "except", "exit", "fetch", "floppy", "foreign", "freetext",
    "full", "identity", "identity_insert", "identitycol", "inner", "insensitive", "intersect",
    "isolation", "join", "key", "left", "level", "lineno", "national", "nocheck", "of", "only",
    "open", "option", "outer", "over", "percent", "perm", "permanent", "pipe", "plan",
    "precision", "primary", "privileges", "read", "references", "repeatable", "replication",
    "restore", "restrict", "right", "rollup", "rowguidcol", "schema", "scroll", "serializable",
    "session_user", "some", "tape", "temp", "temporary", "then", "top", "uncommitted",
    "updatetext", "user", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_80[] = {
    "authorization", "backup", "binary_checksum", "bulk", "cascade", "case", "cast", "check",
    "checksum", "checksum_agg", "close", "collate", "columns_updated", "constraint", "contains",
    "controlrow", "count_big", "cross", "cube", "current", "current_date", "current_time",
    "cursor", "deallocate", "deny", "distributed", "double", "dummy", "errlvl", "escape",
    "except", "exit", "fetch", "file", "floppy", "foreign", "freetext", "full", "function",
    "identity", "identity_insert", "identitycol", "inner", "insensitive", "intersect",
    "isolation", "join", "key", "left", "level", "lineno", "national", "nocheck", "of", "only",
    "open", "opendatasource", "openxml", "option", "outer", "over", "percent", "perm",
    "permanent", "pipe", "plan", "precision", "primary", "privileges", "read", "references",
    "repeatable", "replication", "restore", "restrict", "right", "rollup", "rowguidcol",
    "schema", "scroll", "serializable", "session_user", "some", "tape", "temp", "temporary",
    "then", "top", "uncommitted", "updatetext", "user", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_90[] = {
    "authorization", "backup", "binary_checksum", "bulk", "cascade", "case", "cast", "check",
    "checksum", "checksum_agg", "close", "collate", "columns_updated", "constraint", "contains",
    "controlrow", "count_big", "cross", "cube", "current", "current_date", "current_time",
    "cursor", "deallocate", "deny", "distributed", "double", "dummy", "errlvl", "escape",
    "except", "exit", "fetch", "file", "floppy", "foreign", "freetext", "full", "function",
    "identity", "identity_insert", "identitycol", "inner", "insensitive", "intersect",
    "isolation", "join", "key", "left", "level", "lineno", "national", "nocheck", "of", "only",
    "open", "opendatasource", "openxml", "option", "outer", "over", "percent", "perm",
    "permanent", "pipe", "pivot", "plan", "precision", "primary", "privileges", "read",
    "references", "repeatable", "replication", "restore", "restrict", "revert", "right",
    "rollup", "rowguidcol", "schema", "scroll", "serializable", "session_user", "some",
    "tablesample", "tape", "temp", "temporary", "then", "top", "uncommitted", "unpivot",
    "updatetext", "user", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_10[] = {
    "arith_overflow", "at", "authorization", "bulk", "cascade", "char_convert", "check",
    "close", "constraint", "controlrow", "current", "current_date", "current_time", "cursor",
    "deallocate", "double", "dummy", "endtran", "errlvl", "errordata", "escape", "except",
    "exit", "fetch", "foreign", "identity", "identity_insert", "intersect", "isolation", "key",
    "level", "lineno", "mirror", "national", "noholdlock", "numeric_truncation", "of", "once",
    "only", "open", "option", "over", "perm", "permanent", "plan", "precision", "primary",
    "privileges", "read", "references", "replace", "role", "rows", "schema", "shared", "some",
    "stripe", "syb_identity", "syb_restree", "syb_terminate", "temp", "temporary",
    "user_option", "using", "varying", "work", "",
};

const char* szKeyWordSQL5_11[] = {
    "arith_overflow", "at", "authorization", "bulk", "cascade", "char_convert", "check",
    "close", "constraint", "controlrow", "current", "current_date", "current_time", "cursor",
    "deallocate", "double", "dummy", "endtran", "errlvl", "errordata", "escape", "except",
    "exit", "fetch", "foreign", "identity", "identity_insert", "intersect", "isolation", "key",
    "level", "lineno", "max_rows_per_page", "mirror", "national", "noholdlock",
    "numeric_truncation", "of", "once", "online", "only", "open", "option", "over", "partition",
    "perm", "permanent", "plan", "precision", "primary", "privileges", "read", "references",
    "replace", "role", "rows", "schema", "shared", "some", "stripe", "syb_identity",
    "syb_restree", "syb_terminate", "temp", "temporary", "unpartition", "user_option", "using",
    "varying", "work", "",
};

const char* szKeyWordSQL5_115[] = {
    "activation", "arith_overflow", "at", "authorization", "bulk", "cascade", "case",
    "char_convert", "check", "close", "coalesce", "connect", "constraint", "consumers",
    "controlrow", "current", "current_date", "current_time", "cursor", "deallocate", "double",
    "dummy", "endtran", "errlvl", "errordata", "escape", "except", "exclusive", "exit",
    "external", "fetch", "foreign", "identity", "identity_insert", "identity_start",
    "intersect", "isolation", "key", "level", "lineno", "max_rows_per_page", "membership",
    "mirror", "national", "noholdlock", "nullif", "numeric_truncation", "of", "once", "online",
    "only", "open", "option", "over", "partition", "passwd", "perm", "permanent", "plan",
    "precision", "primary", "privileges", "read", "references", "replace", "role", "rows",
    "schema", "session", "shared", "some", "stripe", "syb_identity", "syb_restree",
    "syb_terminate", "temp", "temporary", "then", "unpartition", "user_option", "using",
    "varying", "when", "work", "",
};

const char* szKeyWordSQL5_119[] = {
    "arith_overflow", "at", "authorization", "bulk", "cascade", "case", "char_convert", "check",
    "close", "coalesce", "connect", "constraint", "controlrow", "current", "current_date",
    "current_time", "cursor", "deallocate", "double", "dummy", "endtran", "errlvl", "errordata",
    "escape", "except", "exclusive", "exit", "exp_row_size", "external", "fetch", "foreign",
    "identity", "identity_insert", "identity_start", "intersect", "isolation", "key", "level",
    "lineno", "lock", "max_rows_per_page", "mirror", "national", "noholdlock", "nullif",
    "numeric_truncation", "of", "once", "online", "only", "open", "option", "over", "partition",
    "perm", "permanent", "plan", "precision", "primary", "privileges", "read", "readpast",
    "references", "reorg", "replace", "reservepagegap", "role", "rows", "schema", "shared",
    "some", "stripe", "syb_identity", "syb_restree", "syb_terminate", "temp", "temporary",
    "then", "unpartition", "user_option", "using", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_12[] = {
    "arith_overflow", "at", "authorization", "bulk", "cascade", "case", "char_convert", "check",
    "close", "coalesce", "connect", "constraint", "controlrow", "current", "current_date",
    "current_time", "cursor", "deallocate", "double", "dummy", "endtran", "errlvl", "errordata",
    "escape", "except", "exclusive", "exit", "exp_row_size", "external", "fetch", "foreign",
    "identity", "identity_gap", "identity_insert", "identity_start", "intersect", "isolation",
    "join", "key", "level", "lineno", "lock", "max_rows_per_page", "mirror", "modify",
    "national", "noholdlock", "nullif", "numeric_truncation", "of", "once", "online", "only",
    "open", "option", "over", "partition", "perm", "permanent", "plan", "precision", "primary",
    "privileges", "quiesce", "read", "readpast", "references", "reorg", "replace",
    "reservepagegap", "role", "rows", "schema", "shared", "some", "stripe", "syb_identity",
    "syb_restree", "syb_terminate", "temp", "temporary", "then", "unpartition", "user_option",
    "using", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_125[] = {
    "arith_overflow", "at", "authorization", "bulk", "called", "cascade", "case",
    "char_convert", "check", "classes", "close", "coalesce", "connect", "constraint",
    "controlrow", "current", "current_date", "current_time", "cursor", "data", "deallocate",
    "deterministic", "directory", "double", "dummy", "endtran", "errlvl", "errordata", "escape",
    "except", "exclusive", "existing", "exit", "exp_row_size", "exportable", "external",
    "fetch", "file", "foreign", "func", "function", "identity", "identity_gap",
    "identity_insert", "identity_start", "inout", "input", "intersect", "isolation", "jar",
    "java", "join", "key", "language", "level", "lineno", "lock", "max_rows_per_page", "mirror",
    "modifies", "modify", "national", "noholdlock", "nullif", "numeric_truncation", "of",
    "offline", "once", "online", "only", "open", "option", "over", "package", "partition",
    "perm", "permanent", "plan", "precision", "primary", "privileges", "quiesce", "read",
    "readpast", "references", "remove", "reorg", "replace", "reservepagegap", "result",
    "retain", "returns", "role", "rows", "schema", "serverlimits", "sets", "shared", "some",
    "sql", "stripe", "style", "syb_identity", "syb_restree", "syb_terminate", "temp",
    "temporary", "then", "unpartition", "user_option", "using", "varying", "when", "work", "",
};

const char* szKeyWordSQL5_150[] = {
    "arith_overflow", "at", "authorization", "bulk", "called", "cascade", "case",
    "char_convert", "check", "classes", "close", "coalesce", "connect", "constraint",
    "controlrow", "current", "current_date", "current_time", "cursor", "data", "deallocate",
    "decrypt", "deterministic", "directory", "double", "dummy", "encrypt", "endtran", "errlvl",
    "errordata", "escape", "except", "exclusive", "existing", "exit", "exp_row_size",
    "exportable", "external", "fetch", "file", "foreign", "func", "function", "identity",
    "identity_gap", "identity_insert", "identity_start", "inout", "input", "insensitive",
    "intersect", "isolation", "jar", "java", "join", "key", "language", "level", "lineno",
    "lock", "materialized", "max_rows_per_page", "mirror", "modifies", "modify", "national",
    "noholdlock", "nonscrollable", "non_sensitive", "nullif", "numeric_truncation", "of",
    "offline", "once", "online", "only", "open", "option", "over", "package", "partition",
    "perm", "permanent", "plan", "precision", "primary", "privileges", "quiesce", "read",
    "readpast", "references", "remove", "reorg", "replace", "reservepagegap", "result",
    "retain", "returns", "role", "rows", "schema", "scroll", "scrollable", "semi_sensitive",
    "serverlimits", "sets", "shared", "some", "sql", "stripe", "style", "syb_identity",
    "syb_restree", "syb_terminate", "temp", "temporary", "then", "tracefile", "unpartition",
    "user_option", "using", "varying", "when", "work", "xmlextract", "xmlparse", "xmltest",
    "xmlvalidate", "",
};
