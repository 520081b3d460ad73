#include "colour/StringExColor.h"

int CStringExColor::IsVBContinueEnding() {
    const int n = GetVisibleLength();
    if (n < 2) return 0;
    const char* p = c_str();
    return p[n - 1] == '_' && (p[n - 2] == ' ' || p[n - 2] == '\t') ? 1 : 0;
}
