// Keyword tables: COBOL, JCL, IMS and CSD definitions.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordCbl_1[] = {
    "01", "77", "78", "accept", "add", "alter", "apply", "call", "cancel", "close", "compute",
    "continue", "copy", "entry", "exit", "fd", "delete", "display", "divide", "exec",
    "evaluate", "generate", "go", "goback", "if", "initialyze", "initiate", "inspect", "merge",
    "move", "multiply", "open", "perform", "read", "release", "return", "rewrite", "sd",
    "search", "select", "sort", "stop", "start", "string", "subtract", "suppress", "terminate",
    "unclock", "unstring", "use", "write", "",
};

const char* szKeyWordCbl_2[] = {
    "author", "class-id", "configuration", "file", "file-control", "identification",
    "interface-id", "io-control", "data", "division", "environment", "input-output", "linkage",
    "procedure", "program-id", "object-computer", "section", "source-computer", "special-names",
    "working-storage", "",
};

const char* szKeyWordCbl_3[] = {
    "abstract", "advancing", "after", "also", "and", "any", "assign", "at", "before", "by", "c",
    "cics", "class", "comp", "computation", "content", "corr", "corresponding", "declaratives",
    "depending", "delimited", "delimiter", "dli", "else", "end", "end-add", "end-call",
    "end-compute", "end-delete", "end-divide", "end-exec", "end-evaluate", "end-if",
    "end-multiply", "end-perform", "end-read", "end-return", "end-rewrite", "end-search",
    "end-start", "end-string", "end-subtract", "end-unstring", "end-write", "end-of-page",
    "eop", "equal", "error", "exception", "external", "false", "from", "giving", "greater",
    "gu", "in", "include", "inherits", "initialize", "interface", "into", "invalid", "is",
    "key", "less", "linkage", "line", "lines", "link", "next", "not", "on", "of", "or", "other",
    "over", "overflow", "page", "pascal", "pcb", "pic", "picture", "pointer", "private",
    "program", "protected", "record", "reference", "remainder", "replacing", "returning",
    "rounded", "run", "segment", "sentence", "set", "size", "space", "spaces", "sql", "stdcall",
    "suppress", "test", "then", "through", "thru", "times", "to", "true", "until", "using",
    "value", "varying", "with", "when", "where", "xctl", "zero", "zeros", "",
};

const char* szKeyWordJCL_1[] = {
    "COMMAND", "CNTL", "DD", "ELSE", "ENDCNTL", "ENDIF", "EXEC", "IF", "INCLUDE", "JCLLIB",
    "JOB", "LIB", "OUTPUT", "PEND", "PROC", "SET", "THEN", "XMIT", "",
};

const char* szKeyWordJCL_2[] = {
    "CCSID", "CNTL", "DATA", "DDNAME", "DLM", "DSN", "DSNAME", "END", "MEMBER", "PGM", "PROC",
    "PROGRAM", "RUN", "SYSTEM", "",
};

const char* szKeyWordJCL_3[] = {
    "AND", "EQ", "GE", "GT", "LE", "LT", "NE", "NG", "NL", "NOT", "OR", "",
};

const char* szKeyWordJCL_4[] = {
    "/*$", "/*JOBPARM", "/*MESSAGE", "/*NETACCT", "/*NOTIFY", "/*OUTPUT", "/*PRIORITY",
    "/*ROUTE", "/*SETUP", "/*SIGNOFF", "/*SIGNON", "/*XEQ", "/*XMIT", "",
};

const char* szKeyWordIms_1[] = {
    "dataset", "dbd", "dbdname", "dd1", "field", "lchild", "name", "parent", "pcb", "pcbname",
    "segm", "senseg", "type", "",
};

const char* szKeyWordCsd_1[] = {
    "dfhmsd", "dfhmdi", "dfhmdf", "print", "def", "define", "init", "initialize", "db2tran",
    "db2entry", "file", "mapset", "program", "prog", "tdqueue", "transaction", "trans",
    "tsmodel", "",
};

const char* szKeyWordCsd_2[] = {
    "pos", "length", "attrb", "initial", "trace", "storageclear", "shutdown", "prefix",
    "location", "add", "delete", "description", "des", "dsname", "dsn", "entry", "group",
    "language", "nsrgroup", "accountrec", "authtype", "drollback", "priority", "threadwait",
    "protectnum", "threadlimit", "sysoutclass", "list", "transid", "plan", "datalocation",
    "profile", "remotesystem", "remotename", "ddname", "isolate", "spurge", "opentime",
    "rlsaccess", "lsrpoollid", "readinteg", "dsnsharing", "strings", "status", "opentime",
    "blocksize", "journal", "disposition", "databuffers", "indexbuffers", "cedf", "table",
    "maxnumrecs", "updatemodel", "load", "save", "recordformat", "bowse", "read", "write",
    "update", "type", "jnlread", "jnlsyncread", "jnlsyncwrite", "jnladd", "recovery",
    "fwdrecovlog", "backuptype", "blockformat", "recordsize", "typesize", "typefile",
    "erroroption", "browse", "twasize", "upgrade", "migrate", "li", "copy", "append", "usage",
    "lsrpoolid", "resident", "reload", "usa", "",
};
