// The state at the end of a markup line, for the walk of start states. It
// runs through the same sections as the colouring, without runs, and takes
// a few shortcuts of its own that are settled behaviour and must stay:
// - a "<?" or "<%" seen in text is searched to its "?>" or "%>" at once;
//   when that is missing, the section starts at the old scan position, so
//   the "<%--" test and the embedded scan look at the text before the '<'
//   too;
// - a quoted attribute value is followed to its closing quote at once, and
//   a value that breaks across lines returns to a plain tag (or
//   declaration) on the next one, even in a SCRIPT tag, whose body is then
//   lost for the states below;
// - a section's "<%" is never stepped over.
#include <cstring>

#include "colour/MarkupSearch.h"
#include "colour/MarkupStates.h"
#include "colour/TextZoneColor.h"

std::uint32_t CTextZoneColor::AdvanceMarkupState(const char* t, std::uint32_t nStart) {
    std::uint32_t nState = MarkupPart(nStart);
    std::uint32_t nEmbedded = EmbeddedPart(nStart);
    // Where the line ends inside embedded script, its state goes in the high half.
    auto endInScript = [&](int p, bool bJava) {
        m_embeddedPiece.assign(t + p);
        const std::uint32_t nType = nEmbedded ? nEmbedded : LS_PLAIN;
        return MarkupState(nState, GetEndEmbeddedType(m_embeddedPiece.data(), nType, bJava));
    };
    int p = 0;
    for (;;) {
        switch (nState) {
            case MS_TAG:
            case MS_DECLARATION:
            case MS_SCRIPT_TAG:
            case MS_VBSCRIPT_TAG: {
                const TagSectionStops stops = ScanTagSection(t, p, &nState, m_bXml != 0);
                const int gt = stops.gt;
                const int dq = stops.dq;
                const int cm = stops.cm;
                const int first = stops.first;
                if (first < 0) return nState;
                if (first == gt) {
                    p = gt + 1;
                    nState = nState == MS_SCRIPT_TAG     ? MS_SCRIPT
                             : nState == MS_VBSCRIPT_TAG ? MS_VBSCRIPT
                                                         : MS_TEXT;
                } else if (first == cm) {
                    const char* pEnd = std::strstr(t + cm + 2, "-->");
                    if (!pEnd) return MS_DECL_COMMENT;
                    p = OffsetOf(t, pEnd) + 2;
                } else {
                    const char* pClose = std::strchr(t + first + 1, t[first]);
                    if (!pClose)
                        return (first == dq ? MS_DOUBLE_VALUE : MS_SINGLE_VALUE) + nState - MS_TAG;
                    p = OffsetOf(t, pClose) + 1;
                }
                break;
            }
            case MS_DOUBLE_VALUE:
            case MS_DOUBLE_VALUE + 1:
            case MS_DOUBLE_VALUE + 2:
            case MS_DOUBLE_VALUE + 3:
            case MS_SINGLE_VALUE:
            case MS_SINGLE_VALUE + 1:
            case MS_SINGLE_VALUE + 2:
            case MS_SINGLE_VALUE + 3: {
                const bool bDouble = nState < MS_SINGLE_VALUE;
                const char* pClose = std::strchr(t + (p ? p + 1 : 0), bDouble ? '"' : '\'');
                if (!pClose) return nState;
                p = OffsetOf(t, pClose) + 1;
                // Back to a declaration from its values, to a plain tag from
                // all others: SCRIPT tags included.
                nState = nState == MS_DOUBLE_VALUE + 1 || nState == MS_SINGLE_VALUE + 1
                             ? MS_DECLARATION
                             : MS_TAG;
                break;
            }
            case MS_DECL_COMMENT: {
                const char* pEnd = std::strstr(t + (p ? p + 2 : 0), "-->");
                if (!pEnd) return nState;
                p = OffsetOf(t, pEnd) + 2;
                nState = MS_DECLARATION;
                break;
            }
            case MS_SERVER_COMMENT: {
                const char* pEnd = std::strstr(t + p, "%>");
                if (!pEnd) return nState;
                p = OffsetOf(t, pEnd) + 2;
                nState = MS_TEXT;
                break;
            }
            case MS_PROCESSING: {
                const char* pEnd = std::strstr(t + (p ? p + 2 : 0), "?>");
                if (!pEnd) return nState;
                p = OffsetOf(t, pEnd) + 2;
                nState = MS_TEXT;
                break;
            }
            case MS_SCRIPT:
            case MS_VBSCRIPT: {
                const int e = OffsetOf(t, FindScriptEnd(t + p));
                const int s = OffsetOf(t, std::strstr(t + p, "<%"));
                if (e >= 0 && (s < 0 || e < s)) {
                    p = e;
                    nState = MS_TAG;
                } else if (s >= 0) {
                    p = s;
                    nState = nState == MS_SCRIPT ? MS_SERVER_IN_SCRIPT : MS_SERVER_IN_VBSCRIPT;
                } else {
                    return endInScript(p, nState == MS_SCRIPT);
                }
                break;
            }
            case MS_SERVER:
            case MS_SERVER_IN_SCRIPT:
            case MS_SERVER_IN_VBSCRIPT:
            case MS_DIRECTIVE: {
                if (m_bServerPage && nState == MS_SERVER && std::strncmp(t + p, "<%--", 4) == 0) {
                    p += 2;
                    nState = MS_SERVER_COMMENT;
                    break;
                }
                const char* pEnd = std::strstr(t + p, "%>");
                if (!pEnd) {
                    if (m_bServerPage && nState == MS_DIRECTIVE) return nState;
                    return endInScript(p, m_bServerScriptJava != 0);
                }
                p = OffsetOf(t, pEnd) + 2;
                nState = nState == MS_SERVER_IN_SCRIPT     ? MS_SCRIPT
                         : nState == MS_SERVER_IN_VBSCRIPT ? MS_VBSCRIPT
                                                           : MS_TEXT;
                break;
            }
            default: {  // MS_TEXT, and any value that is no markup state
                const char* pLt = std::strchr(t + p, '<');
                const std::uint32_t nOpened = pLt ? OpenMarkup(pLt) : 0;
                if (!nOpened) return MS_TEXT;
                if (nOpened == MS_PROCESSING || nOpened == MS_SERVER || nOpened == MS_DIRECTIVE) {
                    const char* pEnd = std::strstr(pLt + 1, nOpened == MS_PROCESSING ? "?>" : "%>");
                    if (pEnd) {
                        p = OffsetOf(t, pEnd) + 2;
                        nState = MS_TEXT;
                    } else {
                        nState = nOpened;  // from the old position: see above
                    }
                } else {
                    p = OffsetOf(t, pLt);
                    nState = nOpened;
                }
                break;
            }
        }
        nEmbedded = 0;
    }
}
