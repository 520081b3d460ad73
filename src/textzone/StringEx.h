// One line of a zone's text. A line that ends with a hard line end holds the
// byte 13 as its last byte ("ended"); the raw length counts it, so code that
// wants the text proper subtracts IsEnded(). Blanks are 32 and 9; wrap
// delimiters are 9, 32 and 45.
#pragma once

#include <cstdint>

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "platform/Types.h"
#include "textzone/LineFlags.h"

class CTextZone;

// Block flags of a line.
constexpr DWORD BF_OPEN_HEAD = 1;    // first line of an open block
constexpr DWORD BF_CLOSED_HEAD = 2;  // first line of a closed block
constexpr DWORD BF_HIDDEN = 4;       // inside a closed block

class TEXTZONE_EXPORT CStringEx : public VESK::String {
public:
    CStringEx() = default;
    CStringEx(const char* psz);
    // Copies carry the bookmarks and block flags along with the text, so
    // assigning a fresh line clears them. A copy belongs to no zone.
    CStringEx(const CStringEx& src);
    CStringEx& operator=(const CStringEx& src);

    // The string's changes that can alter the length, redeclared so that a
    // line in a zone's store tells the zone its new length (the zone keeps
    // every line's length for the horizontal range without visiting lines).
    // Assigning a text goes through a fresh line, as it always has, so it
    // clears the bookmarks and flags.
    CStringEx& operator+=(const char* psz);
    CStringEx& operator+=(char c);
    CStringEx& operator+=(const VESK::String& s);
    CStringEx& keepLeft(int n);
    CStringEx& discardLeft(int n);
    CStringEx& discardRight(int n);
    CStringEx& deleteAt(int nPos, int nCount);
    CStringEx& insertAt(int nPos, char c);
    CStringEx& insertAt(int nPos, const char* psz);
    CStringEx& insertAt(int nPos, const VESK::String& s);
    void Empty();
    void assign(const char* p, int n);
    // Changes that keep the length tell the zone too: its check values of
    // the text go. The buffer is written after the call, so its bytes must
    // be written before the zone is next asked for those values.
    void replaceAt(int nPos, char c);
    char* GetBuffer();
    CStringEx& Format(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));

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

    DWORD m_dwBookmarks = 0;    // one bit per bookmark number
    CLineFlags m_dwBlockFlags;  // 1 opens an open block, 2 opens a closed one, 4 hidden
    // The zone whose store holds this line (CTextZone::FromIndex), set by the
    // store; 0 for copies and loose lines. An index, not a pointer: it fills
    // the 4 bytes the object had to spare, and a derived line's first member
    // still fits in the tail, so no line grows.
    std::uint32_t m_nOwnerZone = 0;

private:
    friend class CLineFlags;
    friend class CTextZone;  // lends a loaded line its bytes (AdoptBytes)
    // The line's text becomes the nLength bytes at p (a 0 behind them), lent
    // by its zone: written in place while the text fits, copied out when it
    // grows beyond them.
    void AdoptBytes(char* p, int nLength);
    // Tells the owning zone of a change, and if the length is no longer
    // nOld, of that too.
    void NoteLength(int nOld);
    // Runs a change of the string and tells the zone of a new length.
    template <class F>
    CStringEx& Noted(F change);

    // Index of the first wrap delimiter after the leading blanks, or -1 if the
    // text ends first.
    int FindFirstDelimiter() const;
};
