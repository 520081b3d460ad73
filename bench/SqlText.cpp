#include "SqlText.h"

#include <cstdio>
#include <cstring>
#include <fstream>

namespace bench {

const char kTyped[101] =
    "select total from ledger where id is not null and amount over limit "
    "order by created at desc limit 9";

namespace {

// Appends one line built from its number; eight shapes of statement.
void AppendLine(std::string& out, int n) {
    char line[128];
    int len = 0;
    switch (n % 8) {
        case 0:
            len = std::snprintf(line, sizeof line, "SELECT o.id, o.amount, c.name FROM orders_%d o\n",
                                n % 97);
            break;
        case 1:
            len = std::snprintf(line, sizeof line,
                                "  JOIN customers c ON c.id = o.customer_id AND c.region = %d\n",
                                n % 13);
            break;
        case 2:
            len = std::snprintf(line, sizeof line,
                                "  WHERE o.created_at >= DATE '2024-%02d-01' AND o.status = 'open'\n",
                                n % 12 + 1);
            break;
        case 3:
            len = std::snprintf(line, sizeof line, "  ORDER BY o.amount DESC;\n");
            break;
        case 4:
            len = std::snprintf(line, sizeof line,
                                "UPDATE stock SET quantity = quantity - %d WHERE item = %d;\n",
                                n % 50, n);
            break;
        case 5:
            len = std::snprintf(line, sizeof line, "-- batch %d\n", n);
            break;
        case 6:
            len = std::snprintf(line, sizeof line,
                                "INSERT INTO events (id, kind, payload) VALUES (%d, 'k%d', NULL);\n",
                                n, n % 7);
            break;
        default:
            len = std::snprintf(line, sizeof line, "DELETE FROM sessions WHERE expires < %d;\n", n);
            break;
    }
    out.append(line, static_cast<std::size_t>(len));
}

std::size_t StatusField(const char* name) {
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::size_t n = std::strlen(name);
    while (std::getline(status, line))
        if (line.compare(0, n, name) == 0 && line.size() > n && line[n] == ':')
            return std::stoull(line.substr(n + 1)) * 1024;  // the figure is in kB
    return 0;
}

}  // namespace

std::string MakeSqlText(int nLines) {
    std::string text;
    // One allocation: a doubling string would leave a peak of 1.5 times the text.
    text.reserve(static_cast<std::size_t>(nLines) * 72);
    const int needle = FindLine(nLines);
    for (int n = 0; n < nLines; ++n) {
        if (n == needle)
            text += "SELECT zebra_marker FROM hidden_table;\n";
        else
            AppendLine(text, n);
    }
    return text;
}

MemoryFigures ReadMemory() {
    return MemoryFigures{StatusField("VmRSS"), StatusField("VmHWM")};
}

bool ResetPeak() {
    // 5 resets the high-water mark of the resident set (Linux 4.0 and later).
    std::ofstream clear("/proc/self/clear_refs");
    clear << "5";
    clear.flush();
    return static_cast<bool>(clear);
}

}  // namespace bench
