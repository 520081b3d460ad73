// One line of a zone's text. A line that ends with a hard line end holds the
// byte 13 as its last byte ("ended"); the raw length counts it, so code that
// wants the text proper subtracts IsEnded(). Blanks are 32 and 9; wrap
// delimiters are 9, 32 and 45.
#pragma once

#include "host/VeskString.h"
#include "platform/Types.h"

// Block flags of a line.
constexpr DWORD BF_OPEN_HEAD = 1;    // first line of an open block
constexpr DWORD BF_CLOSED_HEAD = 2;  // first line of a closed block
constexpr DWORD BF_HIDDEN = 4;       // inside a closed block

class CStringEx : public VESK::String {
public:
    CStringEx() = default;
    CStringEx(const char* psz);
    // Copies carry the bookmarks and block flags along with the text, so
    // assigning a fresh line clears them.
    CStringEx(const CStringEx& src) = default;
    CStringEx& operator=(const CStringEx& src) = default;

    virtual ~CStringEx() = default;
    virtual int IsEnded() const;
    virtual void EnsureEnded();
    virtual void EnsureMinimumLength(int nLength);
    virtual int GetVisibleLength();
    virtual int GetFirstWordLength();
    virtual void InsertChar(int nPos, char c);
    virtual void RemoveChar(int nPos, int nCount, int bKeepEnd);
    virtual int TransferStart(CStringEx& target, int bByWord);
    virtual int TransferEnd(CStringEx& target, int bByWord);
    virtual void TransferStartingSpaces(CStringEx& target);
    // A new[]'d text the caller delete[]s; read back by SetSpecificInfo.
    virtual char* GetSpecificInfo();
    virtual void SetSpecificInfo(char* pszInfo);

    DWORD m_dwBookmarks = 0;   // one bit per bookmark number
    DWORD m_dwBlockFlags = 0;  // 1 opens an open block, 2 opens a closed one, 4 hidden

private:
    // Index of the first wrap delimiter after the leading blanks, or -1 if the
    // text ends first.
    int FindFirstDelimiter() const;
};
