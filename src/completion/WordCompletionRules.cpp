#include "completion/WordCompletionRules.h"

#include <algorithm>
#include <cctype>

#include "host/Collator.h"

bool IsWordCompletionChar(unsigned char c) {
    return c >= 128 || std::isalnum(c) || c == '#' || c == '@' || c == '_';
}

int CaseModeOf(const char* pTyped, unsigned int nWordCompletion) {
    if (nWordCompletion != 1 && nWordCompletion != 3) return 3;
    const auto first = static_cast<unsigned char>(pTyped[0]);
    if (!std::isupper(first)) return 0;
    const auto second = static_cast<unsigned char>(pTyped[1]);
    return second == 0 || std::isupper(second) ? 1 : 2;
}

void ApplyCaseMode(std::string& word, int nCaseMode) {
    if (word.empty() || nCaseMode == 3) return;
    VESK::ICollator* pCollator = VESK::CollatorFactory::getSystemCollator();
    const int n = static_cast<int>(word.size());
    if (nCaseMode == 1) {
        pCollator->toUpper(word.data(), n);
        return;
    }
    pCollator->toLower(word.data(), n);
    if (nCaseMode == 2)
        word[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
}

void SortCandidates(std::vector<std::string>& words) {
    // Stable, as the neighbour-swapping sort the lists were first made with.
    std::stable_sort(words.begin(), words.end(), [](const std::string& a, const std::string& b) {
        return _stricmp(a.c_str(), b.c_str()) < 0;
    });
}

RECT PickListRect(POINT ptCaret, int w, int cy, int nCount, int cxBorder, int cyBorder,
                  int cxVScroll) {
    int cx = w + 2 * cxBorder + 4;
    int cyList;
    if (nCount > 6) {
        // Six and a bit rows show; the rest scroll.
        cyList = (cyBorder + 3 * cy) * 2 + 10;
        cx += cxVScroll;
    } else {
        cyList = nCount * cy + 2 * cyBorder + 14;
    }
    return RECT{ptCaret.x, ptCaret.y, ptCaret.x + cx, ptCaret.y + cyList};
}
