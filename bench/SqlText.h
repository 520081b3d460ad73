// Shared by the benchmark programs: the generated SQL text every component
// is measured on, the places the tasks work at, and the process's memory
// figures.
#pragma once

#include <cstddef>
#include <string>

namespace bench {

// Line counts the tasks run at; the largest is for the engine alone. It
// stays a little under the engine's 10M-line limit, where edits that add a
// line are refused.
constexpr int kSmall = 10000;
constexpr int kLarge = 1000000;
constexpr int kHuge = 9990000;

// A word that occurs once, on the line FindLine(n).
constexpr const char* kNeedle = "zebra_marker";

// SQL text of nLines lines, each ended by LF, the same bytes on every call.
// Lines are 20 to 70 bytes, about 45 on average, with ids that make them
// differ; kNeedle sits on FindLine(nLines).
std::string MakeSqlText(int nLines);

// The line in the middle, where edits and typing happen.
inline int MiddleLine(int nLines) {
    return nLines / 2;
}
// The line near the top for the edit where QScintilla's per-edit cost, which
// grows with the text behind the edit, is small.
constexpr int kTopLine = 10;
// The line of the word that find looks for: 99% of the way down.
inline int FindLine(int nLines) {
    return nLines - nLines / 100 - 1;
}

// What is typed: 100 characters, letters, digits and spaces only, so that no
// component's auto-indent, brace or completion logic is triggered.
extern const char kTyped[101];

// The line inserted and removed again in the middle.
constexpr const char* kInsertedLine = "INSERT INTO audit_log (id, note) VALUES (42, 'bench');\n";

// Memory of this process, in bytes, from /proc/self/status: the resident set
// and its high-water mark. ResetPeak sets the mark to the current resident
// set where the kernel allows it (returns false otherwise).
struct MemoryFigures {
    std::size_t rss = 0;
    std::size_t peak = 0;
};
MemoryFigures ReadMemory();
bool ResetPeak();

}  // namespace bench
