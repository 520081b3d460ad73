// Keyword tables: PowerBuilder, Visual Basic, VB.NET and Delphi.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordPB_1[] = {
    "and", "call", "case", "choose", "close", "commit", "connect", "continue", "create",
    "cursor", "declare", "delete", "describe", "descriptor", "destroy", "disconnect", "do",
    "dynamic", "else", "elseif", "end", "enumerated", "event", "execute", "exit", "external",
    "false", "fetch", "first", "for", "forward", "from", "function", "global", "goto", "halt",
    "if", "immediate", "insert", "into", "is", "last", "library", "loop", "next", "not", "of",
    "on", "open", "or", "parent", "prepare", "prior", "private", "procedure", "protected",
    "prototypes", "public", "readonly", "ref", "return", "rollback", "select", "selectblob",
    "shared", "step", "subroutine", "super", "system", "then", "this", "to", "true", "type",
    "until", "update", "updateblob", "using", "variables", "while", "with", "within", "",
};

const char* szKeyWordPB4[] = {
    "updateable", "",
};

const char* szKeyWordPB567[] = {
    "alias", "autoinstantiate", "constant", "indirect", "intrinsic", "post", "privateread",
    "privatewrite", "protectedread", "protectedwrite", "rpcfunc", "static", "systemread",
    "systemwrite", "trigger", "updateblob", "",
};

const char* szKeyWordVB_1[] = {
    "abs", "addressof", "and", "any", "array", "as", "attribute", "boolean", "byte", "byref",
    "byval", "call", "case", "circle", "close", "const", "currency", "cverr", "cbool", "cbyte",
    "ccur", "cdate", "cdbl", "cdec", "cint", "clng", "csng", "cstr", "cvar", "date", "declare",
    "decimal", "defbool", "defbyte", "defcur", "defdate", "defdbl", "defdec", "defint",
    "deflng", "defobj", "defsng", "defstr", "defvar", "dim", "do", "doevents", "double", "each",
    "else", "elseif", "empty", "end", "enum", "eqv", "erase", "event", "exit", "false", "fix",
    "for", "friend", "function", "get", "global", "gosub", "goto", "if", "imp", "implements",
    "in", "input", "inputb", "int", "integer", "is", "lbound", "len", "lenb", "let", "like",
    "line", "local", "lock", "loop", "long", "lset", "me", "mod", "new", "next", "not",
    "nothing", "null", "on", "open", "option", "optional", "or", "paramarray", "preserve",
    "print", "private", "property", "pset", "public", "put", "raiseevent", "redim", "resume",
    "return", "rset", "seek", "select", "set", "single", "sgn", "shared", "spc", "static",
    "step", "stop", "string", "sub", "tab", "then", "to", "true", "type", "typeof", "ubound",
    "unlock", "until", "variant", "wend", "while", "with", "withevents", "write", "xor", "",
};

const char* szKeyWordVBN_1[] = {
    "addhandler", "addressof", "alias", "and", "andalso", "ansi", "as", "assembly", "auto",
    "byref", "byval", "call", "case", "catch", "class", "const", "declare", "default",
    "delegate", "dim", "directcast", "do", "each", "else", "elseif", "end", "enum", "erase",
    "error", "event", "exit", "false", "finally", "for", "friend", "function", "get", "gettype",
    "goto", "handles", "if", "implements", "imports", "in", "inherits", "interface", "is",
    "let", "lib", "like", "loop", "me", "mod", "module", "mustinherit", "mustoverride",
    "mybase", "myclass", "namespace", "new", "next", "not", "nothing", "notinheritable",
    "notoverridable", "on", "option", "optional", "or", "orelse", "overloads", "overridable",
    "overrides", "paramarray", "preserve", "private", "property", "protected", "public",
    "raiseevent", "readonly", "redim", "rem", "removehandler", "resume", "return", "select",
    "set", "shadows", "shared", "static", "step", "stop", "structure", "sub", "synclock",
    "then", "throw", "to", "true", "try", "typeof", "unicode", "until", "when", "while", "with",
    "withevents", "writeonly", "xor", "custom", "async", "await", "key", "operator", "partial",
    "",
};

const char* szKeyWordVBN_2[] = {
    "boolean", "byte", "char", "date", "decimal", "double", "integer", "long", "object",
    "short", "single", "string", "variant", "",
};

const char* szKeyWordVBN_3[] = {
    "cbool", "cbyte", "cchar", "cdate", "cdbl", "cdec", "cint", "clng", "cobj", "cshort",
    "csng", "cstr", "ctype", "",
};

const char* szKeyWordVBN_4[] = {
    "#const", "#else", "#externalsource", "#if", "#end region", "#region", "#end", "",
};

const char* szKeyWordDP_1[] = {
    "and", "array", "as", "asm", "assembler", "at", "automated", "begin", "case", "class",
    "const", "constructor", "contains", "deprecated", "destructor", "dispinterface", "div",
    "do", "downto", "else", "end", "except", "exports", "file", "finalization", "finally",
    "for", "function", "goto", "if", "implementation", "implements", "in", "inherited",
    "initialization", "inline", "interface", "interrupt", "is", "label", "library", "mod",
    "nil", "not", "object", "of", "on", "or", "out", "package", "packed", "platform", "private",
    "procedure", "program", "property", "protected", "public", "published", "raise", "record",
    "repeat", "requires", "resourcestring", "set", "shl", "shr", "string", "stringresource",
    "then", "threadvar", "to", "try", "type", "unit", "until", "uses", "var", "while", "with",
    "xor", "",
};

const char* szKeyWordDP_2[] = {
    "ansichar", "ansistring", "boolean", "byte", "bytebool", "cardinal", "char", "comp",
    "currency", "double", "extended", "int64", "integer", "longbool", "longint", "longword",
    "olevariant", "pansichar", "pbytearray", "pchar", "pointer", "ptextbuf", "pwidechar",
    "pwordarray", "real", "real48", "shortint", "shortstring", "single", "smallint", "text",
    "textfile", "variant", "widechar", "widestring", "word", "wordbool", "",
};

const char* szKeyWordDP_4[] = {
    "absolute", "abstract", "assembler", "cdecl", "default", "dispid", "dynamic", "export",
    "external", "far", "forward", "index", "local", "message", "name", "near", "nodefault",
    "overload", "override", "pascal", "read", "readonly", "register", "reintroduce", "resident",
    "safecall", "stdcall", "stored", "virtual", "write", "writeonly", "",
};

const char* szKeyWordDP_5[] = {
    "abs", "assigned", "break", "dec", "exclude", "exit", "fillchar", "high", "inc", "include",
    "length", "lo", "low", "ord", "pred", "round", "sizeof", "string", "succ", "typeinfo", "",
};

const char* szKeyWordDP_6[] = {
    "false", "hinstance", "maxint", "maxlongint", "pi", "true", "",
};
