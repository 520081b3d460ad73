#include "colour/StringExColor.h"

int CStringExColor::IsVBContinueEnding() {
    if (GetVisibleLength() < 2) return 0;
    // The "_" must be the very last byte before the line end: a blank
    // behind it means the line does not go on.
    const int n = GetLength() - IsEnded();
    const char* p = c_str();
    return p[n - 1] == '_' && (p[n - 2] == ' ' || p[n - 2] == '\t') ? 1 : 0;
}
