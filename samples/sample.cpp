// A sample for the Textzone demo: a small C++ file.
#include <map>
#include <string>

/* Counts the words of a text, case kept. */
std::map<std::string, int> CountWords(const std::string& text) {
    std::map<std::string, int> counts;
    std::string word;
    for (char c : text) {
        if (c == ' ' || c == '\t' || c == '\n') {
            if (!word.empty()) ++counts[word];
            word.clear();
        } else {
            word += c;
        }
    }
    if (!word.empty()) ++counts[word];
    return counts;
}

int main() {
    const char* text = "the quick brown fox \"jumps\" over the lazy dog";
    auto counts = CountWords(text);
    return counts["the"] == 2 ? 0 : 1;
}
