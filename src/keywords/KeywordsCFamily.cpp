// Keyword tables: C, C++, Java, C#, Objective-C and the CC language.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordCPP1[] = {
    "if", "else", "for", "while", "do", "static", "const", "extern", "switch", "case",
    "default", "break", "continue", "return", "void", "char", "unsigned", "short", "int",
    "long", "float", "double", "auto", "signed", "goto", "sizeof", "struct", "typedef", "union",
    "enum", "volatile", "register", "",
};

const char* szKeyWordCPP2[] = {
    "bool", "catch", "class", "const_cast", "delete", "dynamic_cast", "explicit", "false",
    "friend", "inline", "mutable", "namespace", "new", "operator", "private", "protected",
    "public", "reinterpret_cast", "static_cast", "template", "this", "throw", "true", "try",
    "typeid", "typename", "using", "virtual", "wmain", "",
};

const char* szKeyWordCPP3[] = {
    "#include", "#if", "#ifdef", "#ifndef", "#else", "#endif", "#undef", "#pragma", "#error",
    "#define", "#elif", "#line", "defined", "",
};

const char* szKeyWordCPP4[] = {
    "__asm", "__assume", "__based", "__cdecl", "__declspec", "__except", "__fastcall",
    "__finally", "__inline", "__int16", "__int32", "__int64", "__int8", "__leave", "__stdcall",
    "__try", "",
};

const char* szKeyWordCPP5[] = {
    "__multiple_inheritance", "__single_inheritance", "__virtual_inheritance", "",
};

const char* szKeyWordCPP6[] = {
    "argc", "argv", "__emit", "main", "_set_new_handler", "",
};

const char* szKeyWordJV_1[] = {
    "#sql", "abstract", "assert", "boolean", "break", "byte", "case", "catch", "char", "class",
    "const", "continue", "default", "do", "double", "else", "extends", "false", "final",
    "finally", "float", "for", "goto", "if", "implements", "import", "instanceof", "int",
    "interface", "long", "native", "new", "null", "package", "private", "protected", "public",
    "return", "short", "static", "strictfp", "super", "switch", "synchronized", "this", "throw",
    "throws", "transient", "true", "try", "void", "volatile", "while", "",
};

const char* szKeyWordCS_1[] = {
    "abstract", "as", "base", "break", "case", "catch", "checked", "class", "const", "continue",
    "default", "do", "else", "enum", "explicit", "extern", "false", "finally", "fixed", "for",
    "foreach", "goto", "if", "implicit", "in", "interface", "internal", "is", "lock",
    "namespace", "new", "null", "operator", "out", "override", "params", "private", "protected",
    "public", "readonly", "ref", "return", "sealed", "sizeof", "stackalloc", "static", "struct",
    "switch", "this", "throw", "true", "try", "typeof", "unchecked", "unsafe", "using",
    "virtual", "volatile", "while", "async", "await", "",
};

const char* szKeyWordCS2_1[] = {
    "abstract", "add", "alias", "as", "base", "break", "case", "catch", "checked", "class",
    "const", "continue", "default", "do", "else", "enum", "explicit", "extern", "false",
    "finally", "fixed", "for", "foreach", "get", "goto", "if", "implicit", "in", "interface",
    "internal", "is", "lock", "namespace", "new", "null", "operator", "out", "override",
    "params", "partial", "private", "protected", "public", "readonly", "ref", "remove",
    "return", "sealed", "set", "sizeof", "stackalloc", "static", "struct", "switch", "this",
    "throw", "true", "try", "typeof", "unchecked", "unsafe", "using", "virtual", "volatile",
    "where", "while", "yield", "async", "await", "var", "dynamic", "",
};

const char* szKeyWordCS_2[] = {
    "bool", "byte", "char", "decimal", "delegate", "double", "event", "float", "int", "long",
    "object", "sbyte", "short", "string", "uint", "ulong", "ushort", "void", "",
};

const char* szKeyWordCS_3[] = {
    "#define", "#elif", "#else", "#endif", "#endregion", "#error", "#if", "#line", "#pragma",
    "#region", "#undef", "#warning", "",
};

const char* szKeyWordCC_1[] = {
    "calls", "catches", "equals", "extends", "fqname_matches", "has_bean_prop", "has_doctag",
    "has_modifier", "has_parent", "has_placement", "has_son", "hides", "implements", "imports",
    "inherites_from", "is", "is_array_type_by", "is_called_by", "is_cast_op_by",
    "is_catched_by", "is_extended_by", "is_fully_ref_by", "is_hidden_by", "is_implemented_by",
    "is_imported_by", "is_instanciated_by", "is_instof_op_by", "is_overriden_by",
    "is_raised_by", "is_read_by", "is_referenced_by", "is_thrown_by", "is_written_by",
    "name_matches", "overrides", "raises", "reads", "references", "relies_on", "returns",
    "this_referenced_by", "throws", "writes", "",
};

const char* szKeyWordCC_2[] = {
    "class", "curr_caller", "interface", "package", "parent", "self", "src_file", "super_class",
    "super_interfaces", "return_type", "user_type", "",
};

const char* szKeyWordCC_3[] = {
    "and", "or", "xor", "not", "",
};

const char* szKeyWordObjC_1[] = {
    "@class", "@defs", "@end", "@protocol", "@required", "@optional", "@interface", "@public",
    "@package", "@protected", "@private", "@property", "@implementation", "@synthesize",
    "@dynamic", "@throw", "@try", "@catch", "@finally", "@compatibility_alias", "@synchronized",
    "@autoreleasepool", "@selector", "@encode", "assign", "copy", "readonly", "retain",
    "nonatomic", "break", "bycopy", "byref", "case", "continue", "const", "default", "do",
    "else", "enum", "extern", "for", "goto", "if", "in", "inout", "nil", "NULL", "oneway",
    "out", "return", "self", "sizeof", "super", "struct", "switch", "typedef", "union",
    "volatile", "while", "YES", "NO", "",
};

const char* szKeyWordObjC_2[] = {
    "auto", "BOOL", "byte", "char", "Class", "decimal ", "delegate ", "double", "event",
    "float", "id", "IMP", "int", "long", "object", "register", "sbyte", "SEL", "short",
    "signed", "static", "struct", "ulong", "unsigned", "ushort", "void", "",
};

const char* szKeyWordObjC_3[] = {
    "#import", "#pragma", "#include", "",
};
