#include "completion/CompletionList.h"

namespace {
bool g_bCompletionListShown = false;
}

bool IsCompletionListShown() {
    return g_bCompletionListShown;
}

void SetCompletionListShown(bool bShown) {
    g_bCompletionListShown = bShown;
}
