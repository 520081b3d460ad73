// Whether a word-completion list is up anywhere in the process. Windows read
// it to show the arrow instead of the I-beam over the text meanwhile; the
// list lives on the user-interface thread, so a plain flag serves.
#pragma once

bool IsCompletionListShown();
void SetCompletionListShown(bool bShown);
