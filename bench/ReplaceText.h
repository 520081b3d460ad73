// What the replace-all benchmarks replace, and the plain string replacement
// they check the editors' results against, outside the timing.
#pragma once

#include <string>

namespace bench {

// The bench text writes its keywords in capitals: three lines in eight hold
// "WHERE" (375,000 matches at 1M lines), replaced by a text of its length.
constexpr const char* kReplaceFrom = "WHERE";
constexpr const char* kReplaceTo = "where";

inline std::string ReplacedText(const std::string& text, int* pnCount) {
    const std::string from = kReplaceFrom;
    std::string out;
    out.reserve(text.size());
    size_t at = 0;
    *pnCount = 0;
    for (size_t next; (next = text.find(from, at)) != std::string::npos; at = next + from.size()) {
        out.append(text, at, next - at);
        out += kReplaceTo;
        ++*pnCount;
    }
    out.append(text, at, std::string::npos);
    return out;
}

}  // namespace bench
