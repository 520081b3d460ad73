// A text file as the editor can hold it: the bytes of a file made ready for
// a zone, the file's own conventions (its line end, whether its last line
// ended), and what the zone cannot hold, each said in a sentence a host can
// show in a dialog. Saving turns the zone's text back into the file's bytes
// with the same conventions, so that a file the user did not change comes
// back byte for byte, and says beforehand when that cannot be.
//
// Standard library only: no window, no Qt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"
#include "textzone/TextZone.h"

class CTextFile {
public:
    enum class ELineEnd { Lf, CrLf, Cr };

    enum class EProblem {
        NulBytes,       // shown and saved as blanks
        LongLines,      // split into several lines, saved split
        TooManyLines,   // the text past the line limit is not loaded
        MixedLineEnds,  // saved all in the first kind
        AtLineLimit,    // loads whole, but no line can be added
        ChangedOnLoad,  // the zone's own settings changed the text (tabs to blanks)
    };

    struct SProblem {
        EProblem kind;
        long long count;      // bytes or lines concerned
        long long firstLine;  // 1-based line of the file where it first shows
        std::string message;  // a sentence or two for a dialog
    };

    // What a zone holds; the engine's own by default, smaller in tests.
    struct SLimits {
        long long maxLineBytes = TZ_MAX_LINE_LENGTH - 1;
        long long maxLines = TZ_MAX_LINES;
    };

    // A new text that has no file yet: the platform's conventions, LF and a
    // final line end.
    CTextFile();
    // The bytes of a file, as read; a string given whole becomes the zone's
    // text in place, without a copy.
    explicit CTextFile(std::string_view bytes);
    explicit CTextFile(std::string&& bytes);
    CTextFile(std::string_view bytes, const SLimits& limits);

    // The text to hand to the zone's SetText (0-ended; no 0 byte inside).
    const char* GetZoneText() const { return m_strZoneText.c_str(); }
    // Frees the text once the zone has it.
    void ReleaseZoneText();

    ELineEnd GetLineEnd() const { return m_eLineEnd; }
    // "CR LF", "LF" or "CR", for a status bar.
    const char* GetLineEndName() const;
    bool HasFinalLineEnd() const { return m_bFinalLineEnd; }
    // The lines of the file: line ends, plus an unended last line.
    long long GetLineCount() const { return m_nLines; }

    const std::vector<SProblem>& GetProblems() const { return m_problems; }
    bool HasProblem(EProblem kind) const;
    // The sentences of all problems, one paragraph each.
    std::string DescribeProblems() const;

    // After the zone has loaded GetZoneText: notes when the zone did not
    // take the text as given (a setting that turns tabs into blanks), which
    // saving would then write. Call before ReleaseZoneText.
    void CheckLoaded(CTextZone& zone);

    // The GetText flags of the file's conventions.
    WORD GetTextFlags() const;
    // The bytes to write for the zone's text.
    std::string TextToSave(CTextZone& zone) const;
    // Whether saving writes something other than what was opened, beyond the
    // user's own edits, and the sentences that say what, for a confirmation.
    bool SavingChangesTheFile() const;
    std::string DescribeSaveChanges() const;
    // The file now holds what the zone held: what saving would have changed
    // has been written, so the next save changes nothing more.
    void MarkSaved();

private:
    // Reads m_strZoneText as the file's bytes and makes it the zone's text.
    void Analyse(const SLimits& limits);
    static bool ChangesBytes(EProblem kind);

    std::string m_strZoneText;
    ELineEnd m_eLineEnd = ELineEnd::Lf;
    bool m_bFinalLineEnd = true;
    long long m_nLines = 0;
    std::vector<SProblem> m_problems;
};
