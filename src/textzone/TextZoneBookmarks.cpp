// Bookmarks: a mask of 16 kinds on each line.
#include "textzone/TextZone.h"

// Bookmark keys are not handled yet.
void CTextZone::ToggleBookmark() {}
void CTextZone::GotoNextBookmark(int) {}
void CTextZone::SetLineBookmark(int, int, int) {}
