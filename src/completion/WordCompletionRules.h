// The rules of word completion that need no zone: which bytes make a word,
// how the typed prefix sets the case of a candidate, the candidates' order
// and where the pick list goes.
#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"

// A byte of a word to complete: 128 and above, letters, digits, '#', '@'
// and '_', so that "@@er" and "#tmp" complete in SQL.
bool IsWordCompletionChar(unsigned char c);

// The case mode of a typed prefix under the zone's completion mode: 0 lower,
// 1 upper, 2 capitalised, 3 as the table has it (modes other than 1 and 3).
int CaseModeOf(const char* pTyped, unsigned int nWordCompletion);

// Puts a candidate in the case of nCaseMode.
void ApplyCaseMode(std::string& word, int nCaseMode);

// Ascending without regard to case; words that compare equal keep their
// order.
void SortCandidates(std::vector<std::string>& words);

// The pick list's rectangle, its top left corner at the caret so that it
// covers the line: w is the widest candidate, cy the height of a row.
RECT PickListRect(POINT ptCaret, int w, int cy, int nCount, int cxBorder, int cyBorder,
                  int cxVScroll);
