// Keyword tables: T-SQL statements, datatypes and global variables, dialect by dialect.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordSQL1[] = {
    "add", "all", "alter", "and", "any", "as", "asc", "avg", "begin", "between", "break",
    "browse", "by", "checkpoint", "clustered", "commit", "compute", "confirm", "continue",
    "count", "create", "database", "dbcc", "declare", "default", "delete", "desc", "disk",
    "distinct", "drop", "dump", "else", "end", "errorexit", "exec", "execute", "exists",
    "fillfactor", "for", "from", "goto", "grant", "group", "having", "holdlock", "if", "in",
    "index", "insert", "into", "is", "kill", "like", "load", "max", "min", "mirrorexit",
    "nonclustered", "not", "null", "off", "offsets", "on", "or", "order", "prepare", "print",
    "proc", "procedure", "processexit", "public", "raiserror", "readtext", "reconfigure",
    "return", "revoke", "rollback", "rowcount", "rule", "save", "select", "set", "setuser",
    "shutdown", "statistics", "sum", "table", "textsize", "to", "tran", "transaction",
    "trigger", "truncate", "tsequal", "union", "unique", "update", "use", "values", "view",
    "waitfor", "where", "while", "with", "writetext", "",
};

const char* szKeyWordSQL6[] = {
    "out", "output", "delay", "",
};

const char* szKeyWordSQL2_4[] = {
    "binary", "bit", "char", "datetime", "datetimn", "float", "floatn", "image", "int", "intn",
    "money", "moneyn", "nchar", "nvarchar", "real", "smalldatetime", "smallint", "smallmoney",
    "sysname", "text", "timestamp", "tinyint", "varbinary", "varchar", "",
};

const char* szKeyWordSQL2_6[] = {
    "binary", "bit", "char", "datetime", "datetimn", "decimal", "decimaln", "float", "floatn",
    "image", "int", "intn", "money", "moneyn", "numeric", "numericn", "real", "smalldatetime",
    "smallint", "smallmoney", "sysname", "text", "timestamp", "tinyint", "varbinary", "varchar",
    "",
};

const char* szKeyWordSQL2_70[] = {
    "binary", "bit", "char", "datetime", "datetimn", "decimal", "decimaln", "float", "floatn",
    "image", "int", "intn", "money", "moneyn", "nchar", "ntext", "nvarchar", "numeric",
    "numericn", "real", "smalldatetime", "smallint", "smallmoney", "sysname", "text",
    "timestamp", "tinyint", "uniqueidentifier", "varbinary", "varchar", "",
};

const char* szKeyWordSQL2_80[] = {
    "bigint", "binary", "bit", "char", "datetime", "datetimn", "decimal", "decimaln", "float",
    "floatn", "image", "int", "intn", "money", "moneyn", "nchar", "ntext", "nvarchar",
    "numeric", "numericn", "real", "smalldatetime", "smallint", "smallmoney", "sql_variant",
    "sysname", "text", "timestamp", "tinyint", "uniqueidentifier", "varbinary", "varchar", "",
};

const char* szKeyWordSQL2_90[] = {
    "bigint", "binary", "bit", "char", "datetime", "datetimn", "decimal", "decimaln", "float",
    "floatn", "image", "int", "intn", "money", "moneyn", "nchar", "ntext", "nvarchar",
    "numeric", "numericn", "real", "smalldatetime", "smallint", "smallmoney", "sql_variant",
    "sysname", "text", "timestamp", "tinyint", "uniqueidentifier", "varbinary", "varchar",
    "xml", "",
};

const char* szKeyWordSQL2_10[] = {
    "binary", "bit", "char", "datetime", "datetimn", "decimal", "decimaln", "float", "floatn",
    "image", "int", "intn", "money", "moneyn", "nchar", "numeric", "numericn", "nvarchar",
    "real", "smalldatetime", "smallint", "smallmoney", "sysname", "text", "timestamp",
    "tinyint", "varbinary", "varchar", "",
};

const char* szKeyWordSQL2_125[] = {
    "binary", "bit", "char", "datetime", "datetimn", "decimal", "decimaln", "float", "floatn",
    "image", "int", "intn", "money", "moneyn", "nchar", "numeric", "numericn", "nvarchar",
    "real", "smalldatetime", "smallint", "smallmoney", "sysname", "text", "timestamp",
    "tinyint", "unichar", "univarchar", "varbinary", "varchar", "",
};

const char* szKeyWordSQL2_150[] = {
    "bigint", "binary", "bit", "char", "character", "date", "datetime", "decimal", "double",
    "float", "image", "int", "money", "nchar", "numeric", "nvarchar", "precision", "real",
    "smalldatetime", "smallint", "smallmoney", "text", "time", "tinyint", "unichar", "unitext",
    "univarchar", "unsigned", "varbinary", "varchar", "",
};

const char* szKeyWordSQL3_4[] = {
    "@@char_convert", "@@client_csname", "@@client_csid", "@@connections", "@@cpu_busy",
    "@@error", "@@idle", "@@io_busy", "@@kernel_addr", "@@kernel_size", "@@langid",
    "@@language", "@@maxcharlen", "@@max_connections", "@@mempool_addr", "@@ncharsize",
    "@@nestlevel", "@@pack_received", "@@pack_sent", "@@packet_errors", "@@procid",
    "@@shmem_flags", "@@rowcount", "@@servername", "@@spid", "@@textsize", "@@timeticks",
    "@@total_errors", "@@total_read", "@@total_write", "@@trancount", "@@version", "",
};

const char* szKeyWordSQL3_6[] = {
    "@@connections", "@@cpu_busy", "@@cursor_rows", "@@dbts", "@@error", "@@fetch_status",
    "@@identity", "@@idle", "@@io_busy", "@@langid", "@@language", "@@max_connections",
    "@@max_precision", "@@microsoftversion", "@@nestlevel", "@@pack_received", "@@pack_sent",
    "@@packet_errors", "@@procid", "@@remserver", "@@rowcount", "@@servername", "@@servicename",
    "@@spid", "@@textsize", "@@timeticks", "@@total_errors", "@@total_read", "@@total_write",
    "@@trancount", "@@version", "",
};

const char* szKeyWordSQL3_65[] = {
    "@@connections", "@@cpu_busy", "@@cursor_rows", "@@datefirst", "@@dbts", "@@error",
    "@@fetch_status", "@@identity", "@@idle", "@@io_busy", "@@langid", "@@language",
    "@@max_connections", "@@max_precision", "@@microsoftversion", "@@nestlevel", "@@options",
    "@@pack_received", "@@pack_sent", "@@packet_errors", "@@procid", "@@remserver",
    "@@rowcount", "@@servername", "@@servicename", "@@spid", "@@textsize", "@@timeticks",
    "@@total_errors", "@@total_read", "@@total_write", "@@trancount", "@@version", "",
};

const char* szKeyWordSQL3_70[] = {
    "@@connections", "@@cpu_busy", "@@cursor_rows", "@@datefirst", "@@dbts", "@@error",
    "@@fetch_status", "@@identity", "@@idle", "@@io_busy", "@@langid", "@@language",
    "@@lock_timeout", "@@max_connections", "@@max_precision", "@@microsoftversion",
    "@@nestlevel", "@@options", "@@pack_received", "@@pack_sent", "@@packet_errors", "@@procid",
    "@@remserver", "@@rowcount", "@@servername", "@@servicename", "@@spid", "@@textsize",
    "@@timeticks", "@@total_errors", "@@total_read", "@@total_write", "@@trancount",
    "@@version", "",
};

const char* szKeyWordSQL3_10[] = {
    "@@char_convert", "@@client_csname", "@@client_csid", "@@connections", "@@cpu_busy",
    "@@error", "@@identity", "@@idle", "@@io_busy", "@@isolation", "@@kernel_addr",
    "@@kernel_size", "@@langid", "@@language", "@@maxcharlen", "@@max_connections",
    "@@mempool_addr", "@@ncharsize", "@@nestlevel", "@@pack_received", "@@pack_sent",
    "@@packet_errors", "@@procid", "@@rowcount", "@@servername", "@@shmem_flags", "@@spid",
    "@@sqlstatus", "@@textsize", "@@thresh_hysteresis", "@@timeticks", "@@total_errors",
    "@@total_read", "@@total_write", "@@tranchained", "@@trancount", "@@transtate", "@@version",
    "",
};

const char* szKeyWordSQL3_11[] = {
    "@@char_convert", "@@client_csid", "@@client_csname", "@@connections", "@@cpu_busy",
    "@@error", "@@identity", "@@idle", "@@io_busy", "@@isolation", "@@kernel_addr",
    "@@kernel_size", "@@langid", "@@language", "@@maxcharlen", "@@max_connections",
    "@@mempool_addr", "@@ncharsize", "@@nestlevel", "@@pack_received", "@@pack_sent",
    "@@packet_errors", "@@procid", "@@rowcount", "@@servername", "@@shmem_flags", "@@spid",
    "@@sqlstatus", "@@textcolid", "@@textdbid", "@@textptr", "@@textsize", "@@textts",
    "@@thresh_hysteresis", "@@timeticks", "@@total_errors", "@@total_read", "@@total_write",
    "@@tranchained", "@@trancount", "@@transtate", "@@version", "",
};

const char* szKeyWordSQL3_12[] = {
    "@@char_convert", "@@cis_rpc_handling", "@@cis_version", "@@client_csid", "@@client_csname",
    "@@connections", "@@cpu_busy", "@@curloid", "@@error", "@@errorlog", "@@identity", "@@idle",
    "@@io_busy", "@@isolation", "@@kernel_addr", "@@kernel_size", "@@langid", "@@language",
    "@@max_connections", "@@maxcharlen", "@@ncharsize", "@@nestlevel", "@@options",
    "@@pack_received", "@@pack_sent", "@@packet_errors", "@@parallel_degree", "@@probesuid",
    "@@procid", "@@rowcount", "@@scan_parallel_degree", "@@servername", "@@shmem_flags",
    "@@spid", "@@sqlstatus", "@@textcolid", "@@textdbid", "@@textobjid", "@@textptr",
    "@@textsize", "@@textts", "@@thresh_hysteresis", "@@timeticks", "@@total_errors",
    "@@total_read", "@@total_write", "@@tranchained", "@@trancount", "@@transactional_rpc",
    "@@transtate", "@@version", "",
};

const char* szKeyWordSQL3_125[] = {
    "@@char_convert", "@@cis_rpc_handling", "@@cis_version", "@@client_csid", "@@client_csname",
    "@@connections", "@@cpu_busy", "@@curloid", "@@dbts", "@@error", "@@errorlog",
    "@@guestuserid", "@@identity", "@@idle", "@@invaliduserid", "@@io_busy", "@@isolation",
    "@@kernel_addr", "@@kernel_size", "@@langid", "@@language", "@@max_connections",
    "@@maxcharlen", "@@maxgroupid", "@@maxpagesize", "@@maxsuid", "@@maxuserid", "@@mingroupid",
    "@@minsuid", "@@minuserid", "@@ncharsize", "@@nestlevel", "@@options", "@@pack_received",
    "@@pack_sent", "@@packet_errors", "@@pagesize", "@@parallel_degree", "@@probesuid",
    "@@procid", "@@rowcount", "@@scan_parallel_degree", "@@servername", "@@shmem_flags",
    "@@spid", "@@sqlstatus", "@@stringsize", "@@textcolid", "@@textdbid", "@@textobjid",
    "@@textptr", "@@textsize", "@@textts", "@@thresh_hysteresis", "@@timeticks",
    "@@total_errors", "@@total_read", "@@total_write", "@@tranchained", "@@trancount",
    "@@transactional_rpc", "@@transtate", "@@unicharsize", "@@version", "",
};

const char* szKeyWordSQL3_150[] = {
    "@@authmech", "@@bootcount", "@@boottime", "@@bulkarraysize", "@@bulkbatchsize",
    "@@char_convert", "@@cis_rpc_handling", "@@cis_version", "@@client_csexpansion",
    "@@client_csid", "@@client_csname", "@@cmpstate", "@@connections", "@@cpu_busy",
    "@@cursor_rows", "@@curloid", "@@datefirst", "@@dbts", "@@error", "@@errorlog",
    "@@failedoverconn", "@@fetch_status", "@@guestuserid", "@@hacmpservername",
    "@@haconnection", "@@heapmemsize", "@@identity", "@@idle", "@@invaliduserid", "@@io_busy",
    "@@isolation", "@@kernel_addr", "@@kernel_size", "@@langid", "@@language", "@@lock_timeout",
    "@@maxcharlen", "@@max_connections", "@@maxgroupid", "@@maxpagesize", "@@max_precision",
    "@@maxspid", "@@maxsuid", "@@maxuserid", "@@mempool_addr", "@@min_poolsize", "@@mingroupid",
    "@@minspid", "@@minsuid", "@@minuserid", "@@monitors_active", "@@ncharsize", "@@nestlevel",
    "@@nodeid", "@@optgoal", "@@options", "@@opttimeout", "@@pack_received", "@@pack_sent",
    "@@packet_errors", "@@pagesize", "@@parallel_degree", "@@probesuid", "@@procid",
    "@@recovery_state", "@@repartition_degree", "@@resource_granularity", "@@rowcount",
    "@@scan_parallel_degree", "@@servername", "@@setrowcount", "@@shmem_flags", "@@spid",
    "@@sqlstatus", "@@ssl_ciphersuite", "@@stringsize", "@@tempdbid", "@@textcolid",
    "@@textdataptnid", "@@textdbid", "@@textobjid", "@@textptnid", "@@textptr",
    "@@textptr_parameters", "@@textsize", "@@textts", "@@thresh_hysteresis", "@@timeticks",
    "@@total_errors", "@@total_read", "@@total_write", "@@tranchained", "@@trancount",
    "@@transactional_rpc", "@@transtate", "@@unicharsize", "@@version", "@@version_number",
    "@@version_as_integer", "",
};
